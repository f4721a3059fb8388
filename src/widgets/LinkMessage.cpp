#include <KvUICore/widgets/LinkMessage.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <QEvent>
#include <QPainter>
#include <QRegularExpression>

namespace Kavrel::UICore {

namespace {

struct Segment
{
    QString text;
    QString target; // empty for plain text
};

QList<Segment> ParseMessage(const QString& message)
{
    static const QRegularExpression link(QStringLiteral("\\[([^\\[\\]\\n]+)\\]\\(([^()\\s]+)\\)"));
    QList<Segment> segments;
    qsizetype position = 0;
    auto it = link.globalMatch(message);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        if (match.capturedStart() > position)
            segments.append({message.mid(position, match.capturedStart() - position), QString()});
        segments.append({match.captured(1), match.captured(2)});
        position = match.capturedEnd();
    }
    if (position < message.size())
        segments.append({message.mid(position), QString()});
    return segments;
}

// Link colours are fixed when the text is laid out (from the application's
// palette, not the label's), so the theme's colour is written into each link.
QString ToHtml(const QList<Segment>& segments, const QColor& linkColor)
{
    QString html;
    for (const Segment& segment : segments) {
        QString text = segment.text.toHtmlEscaped();
        text.replace(QLatin1Char('\n'), QStringLiteral("<br/>"));
        if (segment.target.isEmpty())
            html += text;
        else
            html += QStringLiteral("<a href=\"%1\" style=\"color:%2; text-decoration:underline\">%3</a>")
                        .arg(segment.target.toHtmlEscaped(), linkColor.name(QColor::HexArgb), text);
    }
    return html;
}

} // namespace

class LinkMessageImp
{
public:
    QString msMessage;
    QList<Segment> mSegments;
    QColor mLinkColor;
    Internal::ThemedColor* mpTextColor = nullptr;
};

LinkMessage::LinkMessage(QWidget* parent)
    : QLabel(parent)
    , mpImp(std::make_unique<LinkMessageImp>())
{
    Initialize();
}

LinkMessage::LinkMessage(const QString& message, QWidget* parent)
    : QLabel(parent)
    , mpImp(std::make_unique<LinkMessageImp>())
{
    Initialize();
    SetMessage(message);
}

LinkMessage::~LinkMessage() = default;

void LinkMessage::Initialize()
{
    Internal::InstallNavigationAccessibility();
    new Internal::ThemedFont(this);
    setTextFormat(Qt::RichText);
    setWordWrap(true);
    setOpenExternalLinks(false);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    // Room for the focus ring around the text.
    setContentsMargins(3, 2, 3, 2);
    Internal::AlignToLayoutDirection(this);
    mpImp->mpTextColor = new Internal::ThemedColor(this, ThemeFileKey::FontNormal1);
    connect(this, &QLabel::linkActivated, this, &LinkMessage::LinkActivated);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &LinkMessage::OnThemeChanged);
    OnThemeChanged();
}

void LinkMessage::SetMessage(const QString& message)
{
    const QString cut = message.left(MaximumMessageLength);
    if (cut == mpImp->msMessage && !text().isEmpty())
        return;
    const bool changed = cut != mpImp->msMessage;
    mpImp->msMessage = cut;
    mpImp->mSegments = ParseMessage(cut);
    setText(ToHtml(mpImp->mSegments, mpImp->mLinkColor));
    // Without links there is nothing to reach with the keyboard.
    setFocusPolicy(GetLinks().isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleName(GetPlainText());
    if (changed)
        Q_EMIT MessageChanged(cut);
}

QString LinkMessage::GetMessage() const
{
    return mpImp->msMessage;
}

QString LinkMessage::GetPlainText() const
{
    QString plain;
    for (const Segment& segment : mpImp->mSegments)
        plain += segment.text;
    return plain;
}

QStringList LinkMessage::GetLinks() const
{
    QStringList links;
    for (const Segment& segment : mpImp->mSegments) {
        if (!segment.target.isEmpty())
            links.append(segment.target);
    }
    return links;
}

void LinkMessage::SetTextColorThemeKey(const QString& key)
{
    mpImp->mpTextColor->SetKey(key);
}

QString LinkMessage::GetTextColorThemeKey() const
{
    return mpImp->mpTextColor->GetKey();
}

bool LinkMessage::ActivateLink(const QString& target)
{
    if (!GetLinks().contains(target))
        return false;
    Q_EMIT linkActivated(target);
    return true;
}

void LinkMessage::OnThemeChanged()
{
    QPalette palette = this->palette();
    QColor link = Internal::ThemeColorOr(ThemeFileKey::FontUnderline1, palette.color(QPalette::Link));
    if (!isEnabled())
        link = Internal::DimmedColor(link);
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Link, link);
        palette.setColor(group, QPalette::LinkVisited, link);
    }
    if (palette != this->palette())
        setPalette(palette);
    if (link != mpImp->mLinkColor) {
        mpImp->mLinkColor = link;
        setText(ToHtml(mpImp->mSegments, link));
    }
    mpImp->mpTextColor->Apply();
    update();
}

void LinkMessage::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    Internal::DrawFocusRing(&painter, this, rect());
}

void LinkMessage::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    update();
}

void LinkMessage::focusOutEvent(QFocusEvent* event)
{
    QLabel::focusOutEvent(event);
    update();
}

void LinkMessage::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        OnThemeChanged();
    else if (event->type() == QEvent::LayoutDirectionChange)
        Internal::AlignToLayoutDirection(this);
}

} // namespace Kavrel::UICore
