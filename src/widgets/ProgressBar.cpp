#include <KvUICore/widgets/ProgressBar.h>

#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>

namespace Kavrel::UICore {

ProgressBar::ProgressBar(QWidget* parent)
    : QProgressBar(parent)
{
    Internal::InstallControlsAccessibility();
    setStyle(CustomStyle::GetInstance());
    new Internal::ThemedColor(this, ThemeFileKey::FontNormal1, QString());
}

ProgressBar::~ProgressBar() = default;

void ProgressBar::OnThemeChanged()
{
    Internal::ThemedColor::Of(this)->Apply();
}

} // namespace Kavrel::UICore
