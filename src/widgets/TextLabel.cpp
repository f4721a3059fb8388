#include <KvUICore/widgets/TextLabel.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QPainter>
#include <QStyle>

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
    // Bold only where the theme lets static labels be bold.
    new Internal::ThemedFont(this, "QAbstractItemView", [this](QFont font) {
        font.setBold(mpImp->mbBold && ThemeManager::GetInstance()->GetInt(ThemeFileKey::StaticLabelFontBold) != 0);
        return font;
    });
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

void TextLabel::paintEvent(QPaintEvent* event)
{
    // QLabel aligns plain text by the text's own direction; a control in a
    // right-to-left layout aligns by the layout's.
    const bool plain = textFormat() == Qt::PlainText && pixmap().isNull() &&
                       !(textInteractionFlags() & (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard));
    if (!plain) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const int m = margin();
    QRect box = contentsRect().adjusted(m, m, -m, -m);
    const Qt::Alignment align = QStyle::visualAlignment(layoutDirection(), alignment());
    if (indent() > 0) {
        if (align & Qt::AlignLeft)
            box.setLeft(box.left() + indent());
        else if (align & Qt::AlignRight)
            box.setRight(box.right() - indent());
    }
    const int flags = int(align) | (wordWrap() ? int(Qt::TextWordWrap) : 0);
    style()->drawItemText(&painter, box, flags, palette(), isEnabled(), text(), foregroundRole());
}

void TextLabel::ApplyFont()
{
    Internal::ThemedFont::Of(this)->Apply();
}

} // namespace Kavrel::UICore
