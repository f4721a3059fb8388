#include <KvUICore/widgets/TextLabel.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QEvent>

namespace Kavrel::UICore {

class TextLabelImp
{
public:
    QString msTextColorThemeKey = ThemeFileKey::FontNormal1;
    bool mbBold = false;
    bool mbApplying = false;
};

TextLabel::TextLabel(QWidget* parent)
    : QLabel(parent)
    , mpImp(std::make_unique<TextLabelImp>())
{
    Initialize();
}

TextLabel::TextLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
    , mpImp(std::make_unique<TextLabelImp>())
{
    Initialize();
}

TextLabel::~TextLabel() = default;

void TextLabel::Initialize()
{
    setTextFormat(Qt::PlainText);
    ApplyTheme();
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &TextLabel::OnThemeChanged);
}

QString TextLabel::GetTextColorThemeKey() const
{
    return mpImp->msTextColorThemeKey;
}

void TextLabel::SetTextColorThemeKey(const QString& key)
{
    if (key == mpImp->msTextColorThemeKey || !ThemeManager::GetInstance()->Exists(key))
        return;
    mpImp->msTextColorThemeKey = key;
    ApplyTheme();
}

bool TextLabel::IsBold() const
{
    return mpImp->mbBold;
}

void TextLabel::SetBold(bool bold)
{
    if (bold == mpImp->mbBold)
        return;
    mpImp->mbBold = bold;
    ApplyTheme();
}

void TextLabel::OnThemeChanged()
{
    Internal::RepaintAfterThemeChange(this);
    ApplyTheme();
}

void TextLabel::ApplyTheme()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    mpImp->mbApplying = true;
    const QColor color = themes->GetColor(isEnabled() ? mpImp->msTextColorThemeKey : ThemeFileKey::FontColorDisabled);
    if (color.isValid())
        Internal::SetTextColor(this, color);
    QFont font = Internal::ItemViewFont();
    font.setBold(mpImp->mbBold && themes->GetInt(ThemeFileKey::StaticLabelFontBold) != 0);
    setFont(font);
    mpImp->mbApplying = false;
}

void TextLabel::changeEvent(QEvent* event)
{
    // A style sheet's polish replaces the palette: colour it again after it.
    if ((event->type() == QEvent::EnabledChange || event->type() == QEvent::StyleChange) && !mpImp->mbApplying)
        ApplyTheme();
    QLabel::changeEvent(event);
}

} // namespace Kavrel::UICore
