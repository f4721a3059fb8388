#include <KvUICore/widgets/CheckBox.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QEvent>

namespace Kavrel::UICore {

class CheckBoxImp
{
public:
    Internal::ThemedColor* mpColor = nullptr;
    bool mbAlwaysShowTooltip = false;
};

CheckBox::CheckBox(QWidget* parent)
    : QCheckBox(parent)
    , mpImp(std::make_unique<CheckBoxImp>())
{
    Internal::InstallControlsAccessibility();
    Initialize();
}

CheckBox::CheckBox(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
    , mpImp(std::make_unique<CheckBoxImp>())
{
    Internal::InstallControlsAccessibility();
    Initialize();
}

CheckBox::~CheckBox() = default;

void CheckBox::Initialize()
{
    new Internal::ThemedFont(this);
    setAttribute(Qt::WA_Hover);
    setStyle(CustomStyle::GetInstance());
    setFocusPolicy(Qt::StrongFocus);
    mpImp->mpColor = new Internal::ThemedColor(this, ThemeFileKey::FontNormal1);
    mpImp->mpColor->SetThemeChangedHandler([this] { OnThemeChanged(); });
}

QString CheckBox::GetTextColorThemeKey() const
{
    return mpImp->mpColor->GetKey();
}

void CheckBox::SetTextColorThemeKey(const QString& key)
{
    mpImp->mpColor->SetKey(key);
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

void CheckBox::OnThemeChanged()
{
    mpImp->mpColor->SetKey(ThemeFileKey::FontNormal1);
    mpImp->mpColor->Apply();
}

void CheckBox::UpdateLabelToolTip()
{
    if (mpImp->mbAlwaysShowTooltip)
        return;
    const QString tip = CustomStyle::CheckBoxLabelToolTip(this);
    if (toolTip() != tip)
        setToolTip(tip);
}

bool CheckBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTipChange)
        Q_EMIT ToolTipChanged();
    // The label's tool tip is settled before each paint, where a new text,
    // font or width first shows; the style that paints it leaves it alone.
    else if (event->type() == QEvent::Paint)
        UpdateLabelToolTip();
    return QCheckBox::event(event);
}

} // namespace Kavrel::UICore
