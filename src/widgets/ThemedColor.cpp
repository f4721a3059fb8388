#include <KvUICore/widgets/ThemedColor_p.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QEvent>
#include <QWidget>

namespace Kavrel::UICore::Internal {

namespace {
bool PaletteHoldsTextColor(const QPalette& palette, const QColor& color)
{
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            const QBrush& brush = palette.brush(group, role);
            if (brush.style() != Qt::SolidPattern || brush.color() != color)
                return false;
        }
    }
    return true;
}
} // namespace

ThemedColor::ThemedColor(QWidget* widget, const QString& key, const QString& disabledKey)
    : QObject(widget)
    , mpWidget(widget)
    , msKey(key)
    , msDisabledKey(disabledKey)
{
    Q_ASSERT(widget);
    widget->installEventFilter(this);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ThemedColor::OnThemeChanged);
    Apply();
}

ThemedColor::~ThemedColor() = default;

QWidget* ThemedColor::GetWidget() const
{
    return mpWidget;
}

const QString& ThemedColor::GetKey() const
{
    return msKey;
}

void ThemedColor::SetKey(const QString& key)
{
    if (key == msKey)
        return;
    msKey = key;
    Apply();
}

const QString& ThemedColor::GetDisabledKey() const
{
    return msDisabledKey;
}

void ThemedColor::SetDisabledKey(const QString& key)
{
    if (key == msDisabledKey)
        return;
    msDisabledKey = key;
    Apply();
}

void ThemedColor::SetCustomColor(const QColor& color)
{
    if (color == mCustomColor)
        return;
    mCustomColor = color;
    Apply();
}

const QColor& ThemedColor::GetCustomColor() const
{
    return mCustomColor;
}

bool ThemedColor::IsDefault() const
{
    return !mCustomColor.isValid();
}

QColor ThemedColor::GetColor() const
{
    if (!mpWidget->isEnabled())
        return ThemeManager::GetInstance()->GetColor(msDisabledKey);
    if (mCustomColor.isValid())
        return mCustomColor;
    return ThemeManager::GetInstance()->GetColor(msKey);
}

void ThemedColor::Apply()
{
    const QColor color = GetColor();
    if (!color.isValid() || PaletteHoldsTextColor(mpWidget->palette(), color))
        return;
    // Writing the palette sends events back to the filter; they must not loop.
    mbApplying = true;
    SetTextColor(mpWidget, color);
    mbApplying = false;
    ++miApplyCount;
}

void ThemedColor::SetThemeChangedHandler(std::function<void()> handler)
{
    mThemeChangedHandler = std::move(handler);
}

int ThemedColor::GetApplyCount() const
{
    return miApplyCount;
}

bool ThemedColor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == mpWidget && !mbApplying) {
        switch (event->type()) {
        case QEvent::EnabledChange:
        case QEvent::StyleChange: // a style sheet's polish replaces the palette
            Apply();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

void ThemedColor::OnThemeChanged()
{
    Apply();
    if (mThemeChangedHandler)
        mThemeChangedHandler();
}

} // namespace Kavrel::UICore::Internal
