// The hosting wrapper on a platform without foreign windows (offscreen): it
// stays an ordinary top-level widget, and everything still answers sensibly.
#include <KvUICore/platform/NativeParent_p.h>
#include <KvUICore/platform/WinWidget_p.h>
#include <KvUICore/widgets/WidgetImp.h>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

using namespace Kavrel::UICore;

namespace {

// Any id that no Qt widget of this process owns.
HWND foreignHandle()
{
    return Platform::HandleFromWId(WId(0x7ff0001));
}

} // namespace

class tst_WinWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handleConversionsRoundTrip()
    {
        const WId id = WId(0x1234567);
        QCOMPARE(Platform::WIdFromHandle(Platform::HandleFromWId(id)), id);
        QVERIFY(!Platform::HandleFromWId(0));
    }

    void withoutForeignWindowsStaysTopLevel()
    {
        QTest::ignoreMessage(QtWarningMsg, "QWindow::fromWinId(): platform plugin does not support foreign windows.");
        Platform::WinWidget wrapper(foreignHandle());
        QVERIFY(!wrapper.IsEmbedded());
        QCOMPARE(wrapper.parentWindow(), foreignHandle());
        QVERIFY(wrapper.isWindow());
        wrapper.move(40, 30);
        QCOMPARE(wrapper.PositionInParentWindow(), QPoint(40, 30));
        QVERIFY(!wrapper.ParentWindowSize().isValid());
    }

    void widgetImpStillUsesWrapper()
    {
        QTest::ignoreMessage(QtWarningMsg, "QWindow::fromWinId(): platform plugin does not support foreign windows.");
        auto* imp = new WidgetImp(foreignHandle());
        QVERIFY(imp->IsParentWindowsNativeWindow());
        QPointer<QWidget> wrapper(imp->parentWidget());
        QVERIFY(qobject_cast<Platform::WinWidget*>(wrapper));
        imp->Resize(5, 6, 70, 80);
        QCOMPARE(wrapper->geometry().size(), QSize(70, 80));
        imp->Move(9, 11);
        QCOMPARE(imp->GetX(), 9);
        QCOMPARE(imp->GetY(), 11);
        delete imp;
        QVERIFY(!wrapper.isNull());
        QTRY_VERIFY(wrapper.isNull());
    }

    void tabStaysInsideWhenNotEmbedded()
    {
        QTest::ignoreMessage(QtWarningMsg, "QWindow::fromWinId(): platform plugin does not support foreign windows.");
        Platform::WinWidget wrapper(foreignHandle());
        auto* first = new QLineEdit(&wrapper);
        auto* second = new QLineEdit(&wrapper);
        second->move(0, 40);
        wrapper.show();
        QVERIFY(QTest::qWaitForWindowExposed(&wrapper));
        wrapper.activateWindow();
        first->setFocus();
        QTRY_VERIFY(first->hasFocus());
        QTest::keyClick(first, Qt::Key_Tab);
        QTRY_VERIFY(second->hasFocus());
        // No host to hand focus to: the chain wraps as in any Qt window.
        QTest::keyClick(second, Qt::Key_Tab);
        QTRY_VERIFY(first->hasFocus());
    }

    void parentWidgetForUnknownHandleIsWrapper()
    {
        QTest::ignoreMessage(QtWarningMsg, "QWindow::fromWinId(): platform plugin does not support foreign windows.");
        QWidget* parent = Internal::ParentWidgetForNativeHandle(foreignHandle());
        QVERIFY(qobject_cast<Platform::WinWidget*>(parent));
        QVERIFY(!parent->isVisible());
        delete parent;
    }
};

QTEST_MAIN(tst_WinWidget)
#include "tst_winwidget.moc"
