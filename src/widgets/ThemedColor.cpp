#include <KvUICore/widgets/ThemedColor_p.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QEvent>
#include <QMetaObject>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace Kavrel::UICore::Internal {

namespace {

constexpr QPalette::ColorRole kTextRoles[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
// Enough to recognise the colours of the themes visited lately.
constexpr qsizetype kThemedHistory = 8;

bool PaletteHoldsTextColor(const QPalette& palette, const QColor& color)
{
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (auto role : kTextRoles) {
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
    msTheme = ThemeManager::GetInstance()->GetCurrentTheme();
    widget->installEventFilter(this);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ThemedColor::OnThemeChanged);
    Apply();
}

ThemedColor::~ThemedColor() = default;

ThemedColor* ThemedColor::Of(const QWidget* widget)
{
    return widget ? widget->findChild<ThemedColor*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

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
    if (color.isValid())
        mHostColor = QColor();
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

const QColor& ThemedColor::GetHostColor() const
{
    return mHostColor;
}

void ThemedColor::DropHostColor()
{
    if (!mHostColor.isValid())
        return;
    mHostColor = QColor();
    Apply();
}

const QString& ThemedColor::GetAlternateKey() const
{
    return msAlternateKey;
}

void ThemedColor::SetAlternateKey(const QString& key)
{
    if (key == msAlternateKey)
        return;
    msAlternateKey = key;
    Apply();
}

void ThemedColor::SetAlternateCustomColor(const QColor& color)
{
    if (color == mAlternateCustomColor)
        return;
    mAlternateCustomColor = color;
    Apply();
}

const QColor& ThemedColor::GetAlternateCustomColor() const
{
    return mAlternateCustomColor;
}

bool ThemedColor::IsAlternateActive() const
{
    return mbAlternateActive;
}

void ThemedColor::SetAlternateActive(bool active)
{
    if (active == mbAlternateActive)
        return;
    mbAlternateActive = active;
    Apply();
}

QColor ThemedColor::GetEnabledColor(bool alternate) const
{
    if (mHostColor.isValid())
        return mHostColor;
    if (alternate) {
        if (mAlternateCustomColor.isValid())
            return mAlternateCustomColor;
        if (!msAlternateKey.isEmpty()) {
            const QColor color = ThemeManager::GetInstance()->GetColor(msAlternateKey);
            if (color.isValid())
                return color;
        }
    }
    if (mCustomColor.isValid())
        return mCustomColor;
    return ThemeManager::GetInstance()->GetColor(msKey);
}

QColor ThemedColor::GetColor(bool alternate) const
{
    if (!mpWidget->isEnabled() && !msDisabledKey.isEmpty()) {
        const QColor color = ThemeManager::GetInstance()->GetColor(msDisabledKey);
        if (color.isValid())
            return color;
    }
    return GetEnabledColor(alternate);
}

QColor ThemedColor::GetColor() const
{
    return GetColor(mbAlternateActive);
}

void ThemedColor::Apply()
{
    const QColor color = GetColor();
    if (!color.isValid())
        return;
    mLastWritten = color.rgba();
    if (color != mHostColor && color != mCustomColor && color != mAlternateCustomColor) {
        mThemed.removeOne(mLastWritten);
        mThemed.append(mLastWritten);
        if (mThemed.size() > kThemedHistory)
            mThemed.removeFirst();
    }
    if (PaletteHoldsTextColor(mpWidget->palette(), color))
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
        case QEvent::Polish: // a style may settle the palette when it polishes
            Apply();
            break;
        case QEvent::PaletteChange:
            OnPaletteChanged();
            break;
        case QEvent::StyleChange:
            // A style sheet's repolish brings back the palette saved at the
            // last polish. During a theme switch it comes before ThemeChanged,
            // once for the widget and once more for every styled ancestor:
            // the colour is applied once, when ThemeChanged arrives.
            mPendingHostColor = QColor();
            if (ThemeManager::GetInstance()->GetCurrentTheme() == msTheme)
                Apply();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

void ThemedColor::OnPaletteChanged()
{
    // Only what the host can see and means is looked at: the text roles set
    // on this widget (not inherited) in the groups of an enabled widget.
    const QPalette& palette = mpWidget->palette();
    bool anySet = false;
    QColor changed;
    for (auto group : {QPalette::Active, QPalette::Inactive}) {
        for (auto role : kTextRoles) {
            if (!palette.isBrushSet(group, role))
                continue;
            anySet = true;
            const QColor color = palette.color(group, role);
            if (!changed.isValid() && color.rgba() != mLastWritten)
                changed = color;
        }
    }
    if (!anySet) {
        // The host cleared its palette (or set one without text): back to the
        // theme, at once unless a theme switch's notice will do it.
        mHostColor = QColor();
        mPendingHostColor = QColor();
        if (ThemeManager::GetInstance()->GetCurrentTheme() == msTheme)
            Apply();
        return;
    }
    if (!changed.isValid() || changed == mHostColor)
        return;
    if (mThemed.contains(changed.rgba())) {
        const bool queued = mPendingHostColor.isValid();
        mPendingHostColor = changed;
        if (!queued)
            QMetaObject::invokeMethod(this, &ThemedColor::AdoptPendingHostColor, Qt::QueuedConnection);
        return;
    }
    mHostColor = changed;
    Apply();
}

void ThemedColor::AdoptPendingHostColor()
{
    const QColor color = mPendingHostColor;
    mPendingHostColor = QColor();
    if (!color.isValid())
        return;
    // Still the palette the host set, not one a later change replaced.
    const QPalette& palette = mpWidget->palette();
    const bool held = std::any_of(std::begin(kTextRoles), std::end(kTextRoles), [&](QPalette::ColorRole role) {
        return palette.isBrushSet(QPalette::Active, role) && palette.color(QPalette::Active, role) == color;
    });
    if (!held)
        return;
    mHostColor = color;
    Apply();
}

void ThemedColor::OnThemeChanged()
{
    msTheme = ThemeManager::GetInstance()->GetCurrentTheme();
    Apply();
    RepaintAfterThemeChange(mpWidget);
    if (mThemeChangedHandler)
        mThemeChangedHandler();
}

} // namespace Kavrel::UICore::Internal
