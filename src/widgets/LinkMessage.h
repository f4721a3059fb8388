#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QLabel>
#include <QStringList>

#include <memory>

namespace Kavrel::UICore {

class LinkMessageImp;

/// A themed text with links. Links are written "[text](target)" inside the
/// message; everything else is shown as plain text (markup is never
/// interpreted). Links are underlined in the theme's link colour, reached with
/// Tab and activated with Return or Space as well as the mouse; activating one
/// emits LinkActivated(target).
class KVUICORE_EXPORT LinkMessage : public QLabel
{
    Q_OBJECT
    /// The message, with its links.
    Q_PROPERTY(QString message READ GetMessage WRITE SetMessage NOTIFY MessageChanged)

public:
    /// Longer messages are cut: a message is a sentence or two, not a document.
    static constexpr int MaximumMessageLength = 65536;

    /// An empty message.
    explicit LinkMessage(QWidget* parent = nullptr);
    /// A label showing message.
    explicit LinkMessage(const QString& message, QWidget* parent = nullptr);
    ~LinkMessage() override;

    /// Shows a message, cut to MaximumMessageLength.
    void SetMessage(const QString& message);
    /// The message as set (cut to MaximumMessageLength).
    QString GetMessage() const;
    /// The message as read: each link replaced by its text.
    QString GetPlainText() const;
    /// The targets of the links, in order.
    QStringList GetLinks() const;

    /// The key of the text colour (links keep the link colour).
    void SetTextColorThemeKey(const QString& key);
    /// The theme key of the text colour.
    QString GetTextColorThemeKey() const;

    /// Activates the link of that target as a click would; false when there is none.
    bool ActivateLink(const QString& target);

Q_SIGNALS:
    /// A link was activated; target is the link's target.
    void LinkActivated(const QString& target);
    /// Emitted when SetMessage changes the message.
    void MessageChanged(const QString& message);

public Q_SLOTS:
    /// Applies the theme's text and link colours again.
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(LinkMessage)
    void Initialize();
    std::unique_ptr<LinkMessageImp> const mpImp;
};

} // namespace Kavrel::UICore
