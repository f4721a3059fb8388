#include <KvUICore/widgets/TextLabel.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ThemedColor_p.h>

namespace Kavrel::UICore {

class TextLabelImp
{
public:
    Internal::ThemedColor* mpColor = nullptr;
    bool mbBold = false;
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
    mpImp->mpColor = new Internal::ThemedColor(this);
    mpImp->mpColor->SetThemeChangedHandler([this] { OnThemeChanged(); });
    ApplyFont();
}

QString TextLabel::GetTextColorThemeKey() const
{
    return mpImp->mpColor->GetKey();
}

void TextLabel::SetText(const QString& text)
{
    if (text == this->text())
        return;
    setText(text);
    Q_EMIT TextChanged(text);
}

void TextLabel::SetTextColorThemeKey(const QString& key)
{
    if (ThemeManager::GetInstance()->Exists(key))
        mpImp->mpColor->SetKey(key);
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
    ApplyFont();
}

void TextLabel::OnThemeChanged()
{
    mpImp->mpColor->Apply();
    ApplyFont();
}

void TextLabel::ApplyFont()
{
    QFont font = Internal::ItemViewFont();
    font.setBold(mpImp->mbBold && ThemeManager::GetInstance()->GetInt(ThemeFileKey::StaticLabelFontBold) != 0);
    if (font != this->font())
        setFont(font);
}

} // namespace Kavrel::UICore
