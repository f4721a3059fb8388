#include <KvUICore/widgets/PaletteResizeButton.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/NavigationCommon_p.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace Kavrel::UICore {

namespace {
constexpr int kGripSize = 14;
}

PaletteResizeButton::PaletteResizeButton(QWidget* parent)
    : QAbstractButton(parent)
{
    Internal::InstallNavigationAccessibility();
    setFocusPolicy(Qt::TabFocus);
    setFixedSize(kGripSize, kGripSize);
    setCursor(Qt::SizeFDiagCursor);
    setToolTip(tr("Resize"));
    setAccessibleName(tr("Resize"));
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &PaletteResizeButton::OnThemeChanged);
}

PaletteResizeButton::~PaletteResizeButton() = default;

QSize PaletteResizeButton::sizeHint() const
{
    return QSize(kGripSize, kGripSize);
}

void PaletteResizeButton::OnThemeChanged()
{
    update();
}

QWidget* PaletteResizeButton::Palette() const
{
    return parentWidget();
}

void PaletteResizeButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor color =
        Internal::ThemeColorOr(ThemeFileKey::TitleBarCloseButtonColor, palette().color(QPalette::WindowText));
    if (!isEnabled())
        color = Internal::DimmedColor(color);
    painter.setRenderHint(QPainter::Antialiasing, true);
    // Three diagonal strokes in the corner, mirrored right to left.
    const bool rtl = layoutDirection() == Qt::RightToLeft;
    painter.setPen(QPen(color, 1.0));
    const int w = width();
    const int h = height();
    for (int i = 1; i <= 3; ++i) {
        const int d = 3 * i + 1;
        if (rtl)
            painter.drawLine(QPointF(1.5, h - d - 0.5), QPointF(d + 0.5, h - 1.5));
        else
            painter.drawLine(QPointF(w - d - 0.5, h - 1.5), QPointF(w - 1.5, h - d - 0.5));
    }
    if (hasFocus())
        Internal::DrawFocusRing(&painter, this, rect());
}

void PaletteResizeButton::mousePressEvent(QMouseEvent* event)
{
    QWidget* palette = Palette();
    if (event->button() != Qt::LeftButton || !palette)
        return QAbstractButton::mousePressEvent(event);
    mPressGlobal = event->globalPosition().toPoint();
    mPressSize = palette->size();
    mbDragging = true;
    setDown(true);
    event->accept();
}

void PaletteResizeButton::mouseMoveEvent(QMouseEvent* event)
{
    if (!mbDragging)
        return QAbstractButton::mouseMoveEvent(event);
    QPoint delta = event->globalPosition().toPoint() - mPressGlobal;
    if (layoutDirection() == Qt::RightToLeft)
        delta.rx() = -delta.x();
    Q_EMIT ResizeRequested(QSize(mPressSize.width() + delta.x(), mPressSize.height() + delta.y()));
    event->accept();
}

void PaletteResizeButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (!mbDragging || event->button() != Qt::LeftButton)
        return QAbstractButton::mouseReleaseEvent(event);
    mbDragging = false;
    setDown(false);
    Q_EMIT ResizeFinished();
    event->accept();
}

void PaletteResizeButton::keyPressEvent(QKeyEvent* event)
{
    QWidget* palette = Palette();
    if (!palette)
        return QAbstractButton::keyPressEvent(event);
    QSize size = palette->size();
    const int step = KeyboardStep;
    const bool rtl = layoutDirection() == Qt::RightToLeft;
    switch (event->key()) {
    case Qt::Key_Left:
        size.rwidth() += rtl ? step : -step;
        break;
    case Qt::Key_Right:
        size.rwidth() += rtl ? -step : step;
        break;
    case Qt::Key_Up:
        size.rheight() -= step;
        break;
    case Qt::Key_Down:
        size.rheight() += step;
        break;
    default:
        return QAbstractButton::keyPressEvent(event);
    }
    Q_EMIT ResizeRequested(size);
    Q_EMIT ResizeFinished();
    event->accept();
}

void PaletteResizeButton::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        setCursor(layoutDirection() == Qt::RightToLeft ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor);
}

} // namespace Kavrel::UICore
