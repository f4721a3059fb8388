#include <KvUICore/widgets/ProgressBar.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QEvent>

namespace Kavrel::UICore {

ProgressBar::ProgressBar(QWidget* parent)
    : QProgressBar(parent)
{
    setStyle(CustomStyle::GetInstance());
    OnThemeChanged();
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &ProgressBar::OnThemeChanged);
}

ProgressBar::~ProgressBar() = default;

void ProgressBar::OnThemeChanged()
{
    const QColor color = ThemeManager::GetInstance()->GetColor(ThemeFileKey::FontNormal1);
    if (color.isValid())
        Internal::SetTextColor(this, color);
    Internal::RepaintAfterThemeChange(this);
}

void ProgressBar::changeEvent(QEvent* event)
{
    // A style sheet's polish replaces the palette: colour it again after it.
    if (event->type() == QEvent::StyleChange)
        OnThemeChanged();
    QProgressBar::changeEvent(event);
}

} // namespace Kavrel::UICore
