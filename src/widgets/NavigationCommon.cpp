#include <KvUICore/widgets/NavigationCommon_p.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QAccessible>
#include <QPainter>

namespace Kavrel::UICore::Internal {

namespace {
std::function<void(QWidget*)>& AlertObserver()
{
    static std::function<void(QWidget*)> observer;
    return observer;
}
} // namespace

void AnnounceAlert(QWidget* widget)
{
    if (!widget)
        return;
    if (AlertObserver())
        AlertObserver()(widget);
    QAccessibleEvent event(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void SetAlertObserver(std::function<void(QWidget*)> observer)
{
    AlertObserver() = std::move(observer);
}

QColor ThemeColorOr(const QString& key, const QColor& fallback)
{
    const QColor color = ThemeManager::GetInstance()->GetColor(key);
    return color.isValid() ? color : fallback;
}

GlyphButton::GlyphButton(const QString& colorKey, const QString& iconKey, QWidget* parent)
    : QAbstractButton(parent)
    , msColorKey(colorKey)
    , msIconKey(iconKey)
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::ArrowCursor);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &GlyphButton::OnThemeChanged);
    OnThemeChanged();
}

GlyphButton::~GlyphButton() = default;

void GlyphButton::SetColorKey(const QString& key)
{
    if (key == msColorKey)
        return;
    msColorKey = key;
    update();
}

void GlyphButton::SetGlyphSize(int size)
{
    if (size == miGlyphSize || size <= 0)
        return;
    miGlyphSize = size;
    OnThemeChanged();
    updateGeometry();
}

QSize GlyphButton::sizeHint() const
{
    const int side = (msIconKey.isEmpty() ? miGlyphSize : 16) + 6;
    return QSize(side, side);
}

void GlyphButton::OnThemeChanged()
{
    if (!msIconKey.isEmpty())
        mIcon = IconFromTheme(msIconKey, QSize(16, 16));
    update();
}

void GlyphButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ThemeManager* themes = ThemeManager::GetInstance();
    const QRect box = rect();
    const bool enabled = isEnabled();
    if (enabled && isDown())
        painter.fillRect(box.adjusted(1, 1, -1, -1), themes->GetBrush(ThemeFileKey::ClickContainer1, box));
    else if (enabled && underMouse())
        painter.fillRect(box.adjusted(1, 1, -1, -1), themes->GetBrush(ThemeFileKey::HoverContainer1, box));

    if (msIconKey.isEmpty()) {
        QColor color = ThemeColorOr(msColorKey, palette().color(QPalette::ButtonText));
        if (!enabled)
            color = DimmedColor(color);
        const int side = qMin(miGlyphSize, qMin(box.width(), box.height()) - 4);
        const QRectF cross(box.center().x() + 1 - side / 2.0, box.center().y() + 1 - side / 2.0, side, side);
        QPen pen(color, 1.5, Qt::SolidLine, Qt::RoundCap);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(pen);
        painter.drawLine(cross.topLeft(), cross.bottomRight());
        painter.drawLine(cross.topRight(), cross.bottomLeft());
    } else if (!mIcon.isNull()) {
        const int side = qMin(16, qMin(box.width(), box.height()) - 2);
        const QRect cell(box.center().x() + 1 - side / 2, box.center().y() + 1 - side / 2, side, side);
        mIcon.paint(&painter, cell, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
    }
    if (hasFocus())
        DrawFocusRing(&painter, this, box);
}

} // namespace Kavrel::UICore::Internal
