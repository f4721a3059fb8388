#include "../PaintProbe.h"

#include <KvUICore/widgets/LinkMessage.h>
#include <KvUICore/widgets/MessageFacility.h>
#include <KvUICore/widgets/NavigationCommon_p.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <set>

using namespace Kavrel::UICore;

class tst_MessageFacility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void messagesBeyondTheLimitWaitInTheQueue_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addColumn<int>("messages");
        QTest::newRow("under the limit") << 3 << 2;
        QTest::newRow("at the limit") << 3 << 3;
        QTest::newRow("a hundred queued") << 3 << 100;
        QTest::newRow("one at a time") << 1 << 5;
        QTest::newRow("more than the queue holds") << 2 << MessageFacility::MaximumQueued + 10;
    }

    void messagesBeyondTheLimitWaitInTheQueue()
    {
        QFETCH(int, limit);
        QFETCH(int, messages);
        MessageFacility facility;
        facility.SetMaximumVisible(limit);
        facility.ShowMessage(MessageFacility::Severity::Information, QStringLiteral("first"));
        const int widgetsPerMessage = int(facility.findChildren<QWidget*>().size());
        QSignalSpy shown(&facility, &MessageFacility::MessageShown);
        QList<int> ids;
        for (int i = 1; i < messages; ++i)
            ids.append(facility.ShowMessage(MessageFacility::Severity::Warning, QStringLiteral("message %1").arg(i)));
        const int visible = qMin(limit, messages);
        QCOMPARE(facility.GetVisibleCount(), visible);
        // The oldest waiting messages give way to a runaway host's newest.
        QCOMPARE(facility.GetQueuedCount(), qMin(messages - visible, int(MessageFacility::MaximumQueued)));
        QCOMPARE(shown.count(), visible - 1);
        // Queued messages are data: widgets exist only for the shown ones.
        QCOMPARE(int(facility.findChildren<QWidget*>().size()), widgetsPerMessage * visible);
        QCOMPARE(std::set<int>(ids.begin(), ids.end()).size(), size_t(ids.size()));
    }

    void closingMovesTheNextQueuedMessageUp()
    {
        MessageFacility facility;
        facility.SetMaximumVisible(2);
        const int a = facility.ShowMessage(MessageFacility::Severity::Error, QStringLiteral("a"));
        const int b = facility.ShowMessage(MessageFacility::Severity::Error, QStringLiteral("b"));
        const int c = facility.ShowMessage(MessageFacility::Severity::Error, QStringLiteral("c"));
        const int d = facility.ShowMessage(MessageFacility::Severity::Error, QStringLiteral("d"));
        QSignalSpy closed(&facility, &MessageFacility::MessageClosed);
        QVERIFY(facility.CloseMessage(d)); // a queued one is simply dropped
        QCOMPARE(facility.GetVisibleIds(), (QList<int>{a, b}));
        QVERIFY(facility.CloseMessage(a));
        QCOMPARE(facility.GetVisibleIds(), (QList<int>{b, c}));
        QCOMPARE(facility.GetQueuedCount(), 0);
        QVERIFY(!facility.CloseMessage(a));
        QCOMPARE(closed.count(), 2);
        facility.Clear();
        QCOMPARE(facility.GetVisibleCount(), 0);
        QCOMPARE(closed.count(), 4);
    }

    void timeoutClosesAShownMessage()
    {
        MessageFacility facility;
        const int kept = facility.ShowMessage(MessageFacility::Severity::Information, QStringLiteral("kept"));
        const int brief = facility.ShowMessage(MessageFacility::Severity::Information, QStringLiteral("brief"), 50);
        QSignalSpy closed(&facility, &MessageFacility::MessageClosed);
        QTRY_COMPARE(closed.count(), 1);
        QCOMPARE(closed.first().first().toInt(), brief);
        QCOMPARE(facility.GetVisibleIds(), QList<int>{kept});
    }

    void timeoutWaitsWhileQueued()
    {
        MessageFacility facility;
        facility.SetMaximumVisible(1);
        const int first = facility.ShowMessage(MessageFacility::Severity::Information, QStringLiteral("first"));
        const int waiting = facility.ShowMessage(MessageFacility::Severity::Information, QStringLiteral("waiting"), 40);
        QTest::qWait(120);
        // Its time starts only once it is shown.
        QCOMPARE(facility.GetQueuedCount(), 1);
        facility.CloseMessage(first);
        QVERIFY(facility.IsShown(waiting));
        QTRY_VERIFY(!facility.IsShown(waiting));
    }

    void loweringTheLimitQueuesTheNewestAgain()
    {
        MessageFacility facility;
        const int a = facility.ShowMessage(MessageFacility::Severity::Information, QStringLiteral("a"));
        const int b = facility.ShowMessage(MessageFacility::Severity::Information, QStringLiteral("b"));
        const int c = facility.ShowMessage(MessageFacility::Severity::Information, QStringLiteral("c"));
        facility.SetMaximumVisible(1);
        QCOMPARE(facility.GetVisibleIds(), QList<int>{a});
        QCOMPARE(facility.GetQueuedCount(), 2);
        facility.SetMaximumVisible(0);
        QCOMPARE(facility.GetMaximumVisible(), 1);
        facility.SetMaximumVisible(3);
        QCOMPARE(facility.GetVisibleIds(), (QList<int>{a, b, c}));
    }

    void closeButtonLinkAndActionsReport()
    {
        MessageFacility facility;
        MessageFacility::Message message;
        message.severity = MessageFacility::Severity::Error;
        message.text = QStringLiteral("3 textures could not be found. [Show them](missing)");
        message.actions = {QStringLiteral("Locate"), QStringLiteral("Ignore")};
        const int id = facility.ShowMessage(message);
        QWidget* row = facility.GetMessageWidget(id);
        QVERIFY(row);
        QSignalSpy links(&facility, &MessageFacility::LinkActivated);
        QSignalSpy actions(&facility, &MessageFacility::ActionTriggered);
        QSignalSpy closed(&facility, &MessageFacility::MessageClosed);
        row->findChild<LinkMessage*>()->ActivateLink(QStringLiteral("missing"));
        QCOMPARE(links.count(), 1);
        QCOMPARE(links.first().at(0).toInt(), id);
        QCOMPARE(links.first().at(1).toString(), QStringLiteral("missing"));
        QList<QAbstractButton*> buttons = row->findChildren<QAbstractButton*>();
        QCOMPARE(buttons.size(), 3); // two actions and the close button
        buttons.at(1)->click();
        QCOMPARE(actions.count(), 1);
        QCOMPARE(actions.first().at(1).toInt(), 1);
        buttons.last()->click();
        QCOMPARE(closed.count(), 1);
        QVERIFY(!facility.IsShown(id));
    }

    void shownMessagesAreAnnouncedAsAlerts()
    {
        QList<QWidget*> alerts;
        Internal::SetAlertObserver([&alerts](QWidget* widget) { alerts.append(widget); });
        MessageFacility facility;
        facility.SetMaximumVisible(1);
        const int id = facility.ShowMessage(MessageFacility::Severity::Warning, QStringLiteral("Low disk space"));
        const int queued = facility.ShowMessage(MessageFacility::Severity::Warning, QStringLiteral("queued"));
        QCOMPARE(alerts, QList<QWidget*>{facility.GetMessageWidget(id)});
        facility.CloseMessage(id);
        // A queued message is announced when it is shown.
        QCOMPARE(alerts.size(), 2);
        QCOMPARE(alerts.last(), facility.GetMessageWidget(queued));
        Internal::SetAlertObserver({});
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(facility.GetMessageWidget(queued));
        QCOMPARE(accessible->role(), QAccessible::AlertMessage);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Warning: queued"));
    }

    void linkMarkup_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("plain");
        QTest::addColumn<QStringList>("links");
        QTest::newRow("plain text") << QStringLiteral("Saved.") << QStringLiteral("Saved.") << QStringList();
        QTest::newRow("two links") << "[Show](a) or [hide](b) them" << QStringLiteral("Show or hide them")
                                   << QStringList{"a", "b"};
        QTest::newRow("markup stays text")
            << "<b>bold</b> & [x](<script>)" << QStringLiteral("<b>bold</b> & x") << QStringList{"<script>"};
        QTest::newRow("unfinished link") << QStringLiteral("[open](") << QStringLiteral("[open](") << QStringList();
        QTest::newRow("target with quotes") << "[q](a\"b)" << QStringLiteral("q") << QStringList{"a\"b"};
    }

    void linkMarkup()
    {
        QFETCH(QString, message);
        QFETCH(QStringList, links);
        LinkMessage label(message);
        QTEST(label.GetPlainText(), "plain");
        QCOMPARE(label.GetLinks(), links);
        QCOMPARE(label.focusPolicy(), links.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
        // No markup of the message reaches the rich text: nothing is bold.
        QVERIFY(!label.text().contains(QStringLiteral("<b>")));
    }

    void linkActivatesFromTheKeyboard()
    {
        LinkMessage label(QStringLiteral("Open [the library](library) now"));
        label.resize(300, 40);
        QVERIFY(Probe::Shown(&label));
        QSignalSpy activated(&label, &LinkMessage::LinkActivated);
        QVERIFY(Probe::Focus(&label, Qt::TabFocusReason));
        // Tab inside the label moves to its first link.
        QTest::keyClick(&label, Qt::Key_Tab);
        QTest::keyClick(&label, Qt::Key_Return);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.first().first().toString(), QStringLiteral("library"));
    }
};

QTEST_MAIN(tst_MessageFacility)
#include "tst_messagefacility.moc"
