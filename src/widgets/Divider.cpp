#include <KvUICore/widgets/Divider.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>

#include <QPainter>

namespace Kavrel::UICore {

namespace {
// The room the line gets across its direction, the line in the middle.
constexpr int kDividerExtent = 5;
} // namespace

class DividerImp
{
public:
    Qt::Orientation mOrientation = Qt::Horizontal;
    QString msColorThemeKey = ThemeFileKey::Separator1;
};

Divider::Divider(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<DividerImp>())
{
    Internal::InstallControlsAccessibility();
    mpImp->mOrientation = orientation;
    ApplyOrientation();
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &Divider::OnThemeChanged);
}

Divider::Divider(QWidget* parent)
    : Divider(Qt::Horizontal, parent)
{}

Divider::~Divider() = default;

Qt::Orientation Divider::GetOrientation() const
{
    return mpImp->mOrientation;
}

void Divider::SetOrientation(Qt::Orientation orientation)
{
    if (orientation == mpImp->mOrientation)
        return;
    mpImp->mOrientation = orientation;
    ApplyOrientation();
    updateGeometry();
    update();
    Q_EMIT OrientationChanged(orientation);
}

QString Divider::GetColorThemeKey() const
{
    return mpImp->msColorThemeKey;
}

void Divider::SetColorThemeKey(const QString& key)
{
    if (key == mpImp->msColorThemeKey)
        return;
    mpImp->msColorThemeKey = key;
    update();
}

void Divider::ApplyOrientation()
{
    if (mpImp->mOrientation == Qt::Horizontal)
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    else
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

QSize Divider::sizeHint() const
{
    return mpImp->mOrientation == Qt::Horizontal ? QSize(2 * kDividerExtent, kDividerExtent)
                                                 : QSize(kDividerExtent, 2 * kDividerExtent);
}

QSize Divider::minimumSizeHint() const
{
    return mpImp->mOrientation == Qt::Horizontal ? QSize(0, kDividerExtent) : QSize(kDividerExtent, 0);
}

void Divider::OnThemeChanged()
{
    Internal::RepaintAfterThemeChange(this);
}

void Divider::paintEvent(QPaintEvent*)
{
    QColor color = ThemeManager::GetInstance()->GetColor(mpImp->msColorThemeKey);
    if (!color.isValid())
        return;
    if (!isEnabled())
        color = Internal::DimmedColor(color);
    QPainter painter(this);
    const Internal::StrokeGrid grid = Internal::StrokeGridOf(this, &painter);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Internal::CosmeticPen(color, grid, 1.0, Qt::FlatCap));
    const QRect r = rect();
    if (mpImp->mOrientation == Qt::Horizontal) {
        const qreal middle = r.top() + r.height() / 2;
        const QRectF line = Internal::StrokeRect(&painter, QRectF(r.left(), middle, r.width(), grid.unit), grid);
        painter.drawLine(QPointF(r.left(), line.top()), QPointF(r.right() + 1, line.top()));
    } else {
        const qreal middle = r.left() + r.width() / 2;
        const QRectF line = Internal::StrokeRect(&painter, QRectF(middle, r.top(), grid.unit, r.height()), grid);
        painter.drawLine(QPointF(line.left(), r.top()), QPointF(line.left(), r.bottom() + 1));
    }
}

} // namespace Kavrel::UICore
