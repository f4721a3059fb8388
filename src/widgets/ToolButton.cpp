#include <KvUICore/widgets/ToolButton.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

namespace Kavrel::UICore {

class ToolButtonImp
{
public:
    QString msIconThemeKey;
};

ToolButton::ToolButton(QWidget* parent)
    : QToolButton(parent)
    , mpImp(std::make_unique<ToolButtonImp>())
{
    Internal::InstallControlsAccessibility();
    new Internal::ThemedFont(this);
    setAttribute(Qt::WA_Hover);
    setStyle(CustomStyle::GetInstance());
    setFocusPolicy(Qt::TabFocus);
    setIconSize(ThemeFileKey::NormalIconSize);
    auto* color = new Internal::ThemedColor(this);
    color->SetThemeChangedHandler([this] { OnThemeChanged(); });
}

ToolButton::~ToolButton() = default;

QString ToolButton::GetIconThemeKey() const
{
    return mpImp->msIconThemeKey;
}

void ToolButton::SetIconThemeKey(const QString& key)
{
    if (key == mpImp->msIconThemeKey)
        return;
    mpImp->msIconThemeKey = key;
    Internal::ApplyThemedIcon(this, key);
}

void ToolButton::OnThemeChanged()
{
    Internal::ThemedColor::Of(this)->Apply();
    Internal::ApplyThemedIcon(this, mpImp->msIconThemeKey);
}

} // namespace Kavrel::UICore
