#include <KvUICore/widgets/CheckBox.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QEvent>

namespace Kavrel::UICore {

class CheckBoxImp
{
public:
    QString msTextColorThemeKey = ThemeFileKey::FontNormal1;
    bool mbAlwaysShowTooltip = false;
    QString msElidedSource;
    QString msElided;
    QFont mElidedFont;
    int miElidedWidth = -1;
};

CheckBox::CheckBox(QWidget* parent)
    : QCheckBox(parent)
    , mpImp(std::make_unique<CheckBoxImp>())
{
    Initialize();
}

CheckBox::CheckBox(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
    , mpImp(std::make_unique<CheckBoxImp>())
{
    Initialize();
}

CheckBox::~CheckBox() = default;

void CheckBox::Initialize()
{
    setFont(Internal::ItemViewFont());
    setAttribute(Qt::WA_Hover);
    setStyle(CustomStyle::GetInstance());
    setFocusPolicy(Qt::StrongFocus);
    SetTextColorThemeKey(ThemeFileKey::FontNormal1);
    ApplyTextColor();
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &CheckBox::OnThemeChanged);
}

QString CheckBox::GetTextColorThemeKey() const
{
    return mpImp->msTextColorThemeKey;
}

void CheckBox::SetTextColorThemeKey(const QString& key)
{
    if (key == mpImp->msTextColorThemeKey)
        return;
    mpImp->msTextColorThemeKey = key;
    ApplyTextColor();
}

bool CheckBox::IsAlwaysShowTooltip() const
{
    return mpImp->mbAlwaysShowTooltip;
}

void CheckBox::SetAlwaysShowTooltip(bool alwaysShow)
{
    if (alwaysShow == mpImp->mbAlwaysShowTooltip)
        return;
    mpImp->mbAlwaysShowTooltip = alwaysShow;
    update();
}

const QString& CheckBox::ElidedText(const QString& text, int width) const
{
    CheckBoxImp& d = *mpImp;
    if (width != d.miElidedWidth || text != d.msElidedSource || font() != d.mElidedFont) {
        d.msElidedSource = text;
        d.miElidedWidth = width;
        d.mElidedFont = font();
        d.msElided = fontMetrics().elidedText(text, Qt::ElideRight, width);
    }
    return d.msElided;
}

void CheckBox::OnThemeChanged()
{
    Internal::RepaintAfterThemeChange(this);
    ApplyTextColor();
}

void CheckBox::ApplyTextColor()
{
    const QString& key = isEnabled() ? mpImp->msTextColorThemeKey : ThemeFileKey::FontColorDisabled;
    const QColor color = ThemeManager::GetInstance()->GetColor(key);
    if (color.isValid())
        Internal::SetTextColor(this, color);
}

bool CheckBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTipChange)
        Q_EMIT ToolTipChanged();
    return QCheckBox::event(event);
}

void CheckBox::changeEvent(QEvent* event)
{
    // A style sheet's polish replaces the palette: colour it again after it.
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::StyleChange)
        ApplyTextColor();
    QCheckBox::changeEvent(event);
}

} // namespace Kavrel::UICore
