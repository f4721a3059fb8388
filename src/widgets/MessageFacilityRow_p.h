#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/MessageFacility.h>

#include <QFrame>

class QLabel;
class QTimer;

namespace Kavrel::UICore {

class LinkMessage;

namespace Internal {

class GlyphButton;

// One shown message of a MessageFacility: icon, text, action buttons and the
// close button over the theme's message background. Announced as an alert.
class KVUICORE_EXPORT MessageFacilityRow : public QFrame
{
    Q_OBJECT

public:
    MessageFacilityRow(int id, const MessageFacility::Message& message, QWidget* parent);
    ~MessageFacilityRow() override;

    int GetId() const { return miId; }
    MessageFacility::Severity GetSeverity() const { return mMessage.severity; }
    const MessageFacility::Message& GetMessage() const { return mMessage; }
    QString GetAccessibleText() const;
    // Starts the timeout (when there is one) and announces the message.
    void Announce();
    void ApplyTheme();

Q_SIGNALS:
    void CloseRequested(int id);
    void LinkActivated(int id, const QString& target);
    void ActionTriggered(int id, int actionIndex);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int miId;
    MessageFacility::Message mMessage;
    QLabel* mpIcon = nullptr;
    LinkMessage* mpText = nullptr;
    GlyphButton* mpClose = nullptr;
    QTimer* mpTimer = nullptr;
};

} // namespace Internal
} // namespace Kavrel::UICore
