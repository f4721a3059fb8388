#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QList>
#include <QStringList>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class MessageFacilityImp;

/// An in-window, non-modal message area: the way a host says "3 textures could
/// not be found" without a modal box. Messages stack from the top, each with a
/// severity icon, its text (links written "[text](target)", see LinkMessage),
/// optional action buttons and a close button, and an optional timeout.
///
/// At most GetMaximumVisible() messages are shown; later ones wait in a queue
/// (as data, not widgets) and move up as shown ones close. A timeout runs
/// while its message is shown and pauses while the pointer rests on it. Every
/// message shown is announced to assistive technology as an alert.
class KVUICORE_EXPORT MessageFacility : public QWidget
{
    Q_OBJECT
    /// How many messages show at once.
    Q_PROPERTY(int maximumVisible READ GetMaximumVisible WRITE SetMaximumVisible NOTIFY MaximumVisibleChanged)

public:
    /// How serious a message is; it decides the message's icon and colours.
    enum class Severity
    {
        Information,
        Warning,
        Error
    };
    Q_ENUM(Severity)

    /// A message to show.
    struct Message
    {
        /// How serious the message is.
        Severity severity = Severity::Information;
        /// The text; links in it emit LinkActivated.
        QString text;
        /// Button texts, in order; ActionTriggered() gives the position.
        QStringList actions;
        /// Milliseconds while shown before the message closes itself; 0 keeps it.
        int timeout = 0;
        /// Whether the message has a close button.
        bool closable = true;
    };

    /// How many messages show at once unless set otherwise.
    static constexpr int DefaultMaximumVisible = 3;
    /// Further messages are dropped, oldest queued first, so a runaway host
    /// cannot grow the queue without bound.
    static constexpr int MaximumQueued = 1000;

    /// An empty facility.
    explicit MessageFacility(QWidget* parent = nullptr);
    ~MessageFacility() override;

    /// Shows the message (or queues it) and gives its id, always above 0.
    int ShowMessage(const Message& message);
    /// Shows a closable message without actions, as the other overload.
    int ShowMessage(Severity severity, const QString& text, int timeout = 0);
    /// Closes a shown message or drops a queued one; false for an unknown id.
    bool CloseMessage(int id);
    /// Closes everything, queued messages included.
    void Clear();

    /// How many messages show at once.
    int GetMaximumVisible() const;
    /// At least 1. Lowering it sends the newest shown messages back to the queue's front.
    void SetMaximumVisible(int count);

    /// The number of messages shown.
    int GetVisibleCount() const;
    /// The number of messages waiting for room.
    int GetQueuedCount() const;
    /// The shown messages' ids, top first.
    QList<int> GetVisibleIds() const;
    /// Whether the message is shown (not queued, not closed).
    bool IsShown(int id) const;
    /// The widget of a shown message; null for a queued or unknown id.
    QWidget* GetMessageWidget(int id) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A message came into view, at once or from the queue.
    void MessageShown(int id);
    /// Closed by the user, by its timeout or by the host.
    void MessageClosed(int id);
    /// A link in a message's text was activated.
    void LinkActivated(int id, const QString& target);
    /// The button at actionIndex of a message's actions was pressed.
    void ActionTriggered(int id, int actionIndex);
    /// Emitted when the number of messages shown at once changes.
    void MaximumVisibleChanged(int count);

public Q_SLOTS:
    /// Takes the theme's icons and colours again.
    void OnThemeChanged();

private:
    Q_DISABLE_COPY_MOVE(MessageFacility)
    friend class MessageFacilityImp;
    std::unique_ptr<MessageFacilityImp> const mpImp;
};

} // namespace Kavrel::UICore
