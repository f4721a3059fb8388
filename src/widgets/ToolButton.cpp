#include <KvUICore/widgets/ToolButton.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QEvent>

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
    setFont(Internal::ItemViewFont());
    setAttribute(Qt::WA_Hover);
    setStyle(CustomStyle::GetInstance());
    setFocusPolicy(Qt::TabFocus);
    setIconSize(ThemeFileKey::NormalIconSize);
    ApplyTheme();
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ToolButton::OnThemeChanged);
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
    ApplyTheme();
}

void ToolButton::OnThemeChanged()
{
    Internal::RepaintAfterThemeChange(this);
    ApplyTheme();
}

void ToolButton::ApplyTheme()
{
    Internal::ApplyThemedTextAndIcon(this, isEnabled() ? ThemeFileKey::FontNormal1 : ThemeFileKey::FontColorDisabled,
                                     mpImp->msIconThemeKey);
}

void ToolButton::changeEvent(QEvent* event)
{
    // A style sheet's polish replaces the palette: colour it again after it.
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::StyleChange)
        ApplyTheme();
    QToolButton::changeEvent(event);
}

} // namespace Kavrel::UICore
