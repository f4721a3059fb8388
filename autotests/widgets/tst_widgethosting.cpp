// test-options: XVFB SCALES 1.5 LIBS xcb
// A WidgetImp hosted in a foreign X11 window, as a host that is not a Qt
// application creates it with its own connection.
#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/platform/NativeParent_p.h>
#include <KvUICore/platform/WinWidget_p.h>
#include <KvUICore/widgets/KvMessageBox.h>
#include <KvUICore/widgets/WidgetImp.h>
#include <KvUICore/widgets/WinWidgetImp.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <xcb/xcb.h>

#include <cmath>
#include <cstdlib>
#include <memory>

using namespace Kavrel::UICore;

namespace {

// A plain X11 top-level window on a connection of its own.
class ForeignWindow
{
public:
    ForeignWindow(int width, int height)
    {
        mpConnection = xcb_connect(nullptr, nullptr);
        if (xcb_connection_has_error(mpConnection))
            return;
        xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(mpConnection)).data;
        mWindow = xcb_generate_id(mpConnection);
        const uint32_t values[] = {screen->white_pixel, XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_FOCUS_CHANGE};
        xcb_create_window(mpConnection, XCB_COPY_FROM_PARENT, mWindow, screen->root, 20, 20, uint16_t(width),
                          uint16_t(height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
        xcb_map_window(mpConnection, mWindow);
        Sync();
    }

    ~ForeignWindow()
    {
        if (mWindow)
            xcb_destroy_window(mpConnection, mWindow);
        xcb_flush(mpConnection);
        xcb_disconnect(mpConnection);
    }

    bool IsValid() const { return mWindow != 0; }
    HWND Handle() const { return Platform::HandleFromWId(WId(mWindow)); }
    xcb_window_t Window() const { return mWindow; }

    // A round trip: everything sent before has been processed by the server.
    void Sync() { std::free(xcb_get_input_focus_reply(mpConnection, xcb_get_input_focus(mpConnection), nullptr)); }

    xcb_window_t ParentOf(WId child)
    {
        xcb_query_tree_reply_t* reply =
            xcb_query_tree_reply(mpConnection, xcb_query_tree(mpConnection, xcb_window_t(child)), nullptr);
        const xcb_window_t parent = reply ? reply->parent : 0;
        std::free(reply);
        return parent;
    }

    // Where the child's origin lies in this window, as the host sees it.
    QPoint PositionOf(WId child)
    {
        xcb_translate_coordinates_reply_t* reply = xcb_translate_coordinates_reply(
            mpConnection, xcb_translate_coordinates(mpConnection, xcb_window_t(child), mWindow, 0, 0), nullptr);
        const QPoint position = reply ? QPoint(reply->dst_x, reply->dst_y) : QPoint(-1, -1);
        std::free(reply);
        return position;
    }

    QSize SizeOf(WId window)
    {
        xcb_get_geometry_reply_t* reply =
            xcb_get_geometry_reply(mpConnection, xcb_get_geometry(mpConnection, xcb_window_t(window)), nullptr);
        const QSize size = reply ? QSize(reply->width, reply->height) : QSize();
        std::free(reply);
        return size;
    }

    xcb_window_t FocusWindow()
    {
        xcb_get_input_focus_reply_t* reply =
            xcb_get_input_focus_reply(mpConnection, xcb_get_input_focus(mpConnection), nullptr);
        const xcb_window_t focus = reply ? reply->focus : 0;
        std::free(reply);
        return focus;
    }

    void GiveFocusTo(WId window)
    {
        xcb_set_input_focus(mpConnection, XCB_INPUT_FOCUS_PARENT, xcb_window_t(window), XCB_CURRENT_TIME);
        Sync();
    }

private:
    xcb_connection_t* mpConnection = nullptr;
    xcb_window_t mWindow = 0;
};

class ProbeWinWidget : public WinWidgetImp
{
public:
    using WinWidgetImp::WinWidgetImp;
    bool MoveFocus(bool next) { return focusNextPrevChild(next); }
};

int scaled(int value, qreal ratio)
{
    return int(std::lround(value * ratio));
}

} // namespace

class tst_WidgetHosting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        ForeignWindow probe(10, 10);
        QVERIFY2(probe.IsValid(), "no X server");
    }

    void embedsIntoForeignWindow()
    {
        ForeignWindow host(640, 480);
        WidgetImp imp(host.Handle());
        QVERIFY(imp.IsParentWindowsNativeWindow());
        auto* wrapper = qobject_cast<Platform::WinWidget*>(imp.parentWidget());
        QVERIFY(wrapper);
        QVERIFY(wrapper->IsEmbedded());
        QCOMPARE(wrapper->parentWindow(), host.Handle());
        QCOMPARE(wrapper->windowTitle(), QStringLiteral("WinWidget"));
        QVERIFY(wrapper->testAttribute(Qt::WA_AlwaysShowToolTips));
        QCOMPARE(wrapper->layout()->indexOf(&imp), 0);
        QCOMPARE(imp.GetWinId(), Platform::HandleFromWId(wrapper->winId()));

        imp.Resize(0, 0, 200, 100);
        imp.Show();
        QVERIFY(imp.IsVisible());
        QTRY_COMPARE(host.ParentOf(wrapper->winId()), host.Window());
        // The content fills the wrapper.
        QTRY_COMPARE(imp.geometry(), QRect(0, 0, 200, 100));
    }

    void positionIsReportedInParentPixels()
    {
        ForeignWindow host(640, 480);
        WidgetImp imp(host.Handle());
        imp.Show();
        // Move is never scaled: the position is logical, reported in native pixels.
        imp.Move(300, 150);
        QCOMPARE(imp.parentWidget()->pos(), QPoint(300, 150));
        QTRY_COMPARE(host.PositionOf(imp.parentWidget()->winId()), QPoint(scaled(300, Ratio()), scaled(150, Ratio())));
        QCOMPARE(imp.GetX(), scaled(300, Ratio()));
        QCOMPARE(imp.GetY(), scaled(150, Ratio()));
    }

    void resizeScalesOnlyThePosition()
    {
        ForeignWindow host(900, 700);
        WidgetImp imp(host.Handle());
        imp.Show();
        QWidget* wrapper = imp.parentWidget();
        wrapper->setGeometry(0, 0, 10, 10);
        QRect geometryWhenSignalled;
        QSignalSpy spy(&imp, &WidgetImp::Resizing);
        connect(&imp, &WidgetImp::Resizing, this, [&] { geometryWhenSignalled = wrapper->geometry(); });

        imp.Resize(300, 150, 400, 200);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0), (QVariantList{400, 200}));
        QCOMPARE(geometryWhenSignalled, QRect(0, 0, 10, 10));

        if (qFuzzyCompare(Ratio(), 1.5)) {
            QCOMPARE(wrapper->geometry(), QRect(200, 100, 400, 200));
        } else {
            QCOMPARE(Ratio(), 1.0);
            QCOMPARE(wrapper->geometry(), QRect(300, 150, 400, 200));
        }
        // The host sees its own numbers again.
        QTRY_COMPARE(QPoint(imp.GetX(), imp.GetY()), QPoint(300, 150));
        QCOMPARE(imp.GetWidth(), 400);
        QCOMPARE(imp.GetHeight(), 200);
        QTRY_COMPARE(host.SizeOf(wrapper->winId()), QSize(scaled(400, Ratio()), scaled(200, Ratio())));
    }

    void resizeWithoutPositionIsUnscaled()
    {
        ForeignWindow host(900, 700);
        WidgetImp imp(host.Handle());
        QSignalSpy spy(&imp, &WidgetImp::Resizing);
        imp.Resize(333, 222);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(imp.parentWidget()->size(), QSize(333, 222));
        QCOMPARE(imp.GetWidth(), 333);
        imp.Show();
        imp.Resize(111, 99);
        QTRY_COMPARE(host.SizeOf(imp.parentWidget()->winId()), QSize(scaled(111, Ratio()), scaled(99, Ratio())));
    }

    void wrapperIsDeletedLater()
    {
        ForeignWindow host(300, 200);
        auto* first = new WidgetImp(host.Handle());
        QPointer<QWidget> firstWrapper(first->parentWidget());
        first->Show();
        delete first;
        QVERIFY(!firstWrapper.isNull());
        QTRY_VERIFY(firstWrapper.isNull());

        // A new wrapper flushes the deletions still pending.
        auto* second = new WidgetImp(host.Handle());
        QPointer<QWidget> secondWrapper(second->parentWidget());
        delete second;
        QVERIFY(!secondWrapper.isNull());
        WidgetImp third(host.Handle());
        QVERIFY(secondWrapper.isNull());
        // The host's window survives its guests.
        host.Sync();
        QCOMPARE(host.PositionOf(WId(host.Window())), QPoint(0, 0));
    }

    void tabbingPastTheLastFieldHandsFocusToHost()
    {
        ForeignWindow host(400, 300);
        WidgetImp imp(host.Handle());
        auto* layout = new QVBoxLayout(&imp);
        auto* first = new QLineEdit(&imp);
        auto* second = new QLineEdit(&imp);
        layout->addWidget(first);
        layout->addWidget(second);
        imp.Resize(0, 0, 300, 120);
        imp.Show();
        QWidget* wrapper = imp.parentWidget();
        QTRY_COMPARE(host.ParentOf(wrapper->winId()), host.Window());

        // The host hands keyboard focus to the embedded window.
        host.GiveFocusTo(wrapper->winId());
        QTRY_VERIFY(wrapper->isActiveWindow());
        first->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(first->hasFocus());

        QTest::keyClick(first, Qt::Key_Tab);
        QTRY_VERIFY(second->hasFocus());
        QCOMPARE(host.FocusWindow(), xcb_window_t(wrapper->winId()));
        QTest::keyClick(second, Qt::Key_Tab);
        QTRY_COMPARE(host.FocusWindow(), host.Window());

        // Backwards out of the first field as well.
        host.GiveFocusTo(wrapper->winId());
        QTRY_COMPARE(host.FocusWindow(), xcb_window_t(wrapper->winId()));
        first->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(first->hasFocus());
        QTest::keyClick(first, Qt::Key_Backtab, Qt::ShiftModifier);
        QTRY_COMPARE(host.FocusWindow(), host.Window());
        QVERIFY(!second->hasFocus());
    }

    void noFocusedChildLeavesFocusToHost()
    {
        ForeignWindow host(400, 300);
        ProbeWinWidget wrapper(host.Handle());
        auto* edit = new QLineEdit(&wrapper);
        Q_UNUSED(edit);
        QVERIFY(!wrapper.focusWidget());
        QVERIFY(!wrapper.MoveFocus(true));
        QVERIFY(!wrapper.MoveFocus(false));
    }

    void parentWidgetForNativeHandle()
    {
        QVERIFY(!Internal::ParentWidgetForNativeHandle(nullptr));

        QWidget own;
        QCOMPARE(Internal::ParentWidgetForNativeHandle(Platform::HandleFromWId(own.winId())), &own);

        ForeignWindow host(600, 300);
        QWidget* wrapper = Internal::ParentWidgetForNativeHandle(host.Handle());
        auto* owner = qobject_cast<Platform::WinWidget*>(wrapper);
        QVERIFY(owner);
        QCOMPARE(owner->GetRole(), Platform::WinWidget::Role::DialogOwner);
        QVERIFY(!wrapper->isVisible());
        QVERIFY(!wrapper->internalWinId());
        // Covering the host window on the screen, so dialogs centre on it.
        QCOMPARE(wrapper->geometry(),
                 QRect(qRound(20 / Ratio()), qRound(20 / Ratio()), qRound(600 / Ratio()), qRound(300 / Ratio())));
        delete wrapper;
    }

    void hostWindowGoingFirstIsSurvived()
    {
        auto host = std::make_unique<ForeignWindow>(300, 200);
        auto* imp = new WidgetImp(host->Handle());
        QPointer<QWidget> wrapper(imp->parentWidget());
        imp->Show();
        QTRY_COMPARE(host->ParentOf(wrapper->winId()), host->Window());
        // The server destroys the embedded window with the host's; Qt may report
        // the stale window id, which is harmless.
        host.reset();
        QTest::qWait(50);
        delete imp;
        QTRY_VERIFY(wrapper.isNull());
    }

    void handleOfNoWindowIsSurvived()
    {
        // An id no window has: X reports errors, nothing else happens.
        auto* imp = new WidgetImp(Platform::HandleFromWId(WId(0x7ffffff)));
        QVERIFY(imp->IsParentWindowsNativeWindow());
        imp->Resize(10, 10, 100, 50);
        imp->GetX();
        QCOMPARE(imp->GetWidth(), 100);
        QPointer<QWidget> wrapper(imp->parentWidget());
        delete imp;
        QTRY_VERIFY(wrapper.isNull());
    }

    void messageBoxOverForeignWindow()
    {
        CoreUIManager::Initialize();
        ForeignWindow host(700, 500);
        QWidget* parent = nullptr;
        QPoint boxCentre;
        QWindow* transientParent = nullptr;
        auto* timer = new QTimer(this);
        timer->setInterval(10);
        connect(timer, &QTimer::timeout, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !box->isVisible())
                return;
            timer->stop();
            parent = box->parentWidget();
            transientParent = box->windowHandle()->transientParent();
            boxCentre = box->frameGeometry().center();
            box->button(QMessageBox::Ok)->click();
        });
        timer->start();
        {
            KvMessageBox box;
            box.SetMainInstruction(L"Over a native window");
            QCOMPARE(box.Show(host.Handle()), 1);
        }
        auto* owner = qobject_cast<Platform::WinWidget*>(parent);
        QVERIFY(owner);
        // Above the host's window, and centred on it (the host sits at 20, 20).
        QVERIFY(transientParent);
        QCOMPARE(transientParent, owner->ForeignParent());
        QCOMPARE(transientParent->winId(), WId(host.Window()));
        const QPoint hostCentre(qRound((20 + 350) / Ratio()), qRound((20 + 250) / Ratio()));
        // QMessageBox settles its size after it was placed.
        QVERIFY2((boxCentre - hostCentre).manhattanLength() < 80,
                 qPrintable(QStringLiteral("%1,%2").arg(boxCentre.x()).arg(boxCentre.y())));
        // The owner goes by itself once its box is gone.
        QPointer<QWidget> guard(parent);
        QTRY_VERIFY(guard.isNull());
        CoreUIManager::Uninitialize();
    }

private:
    qreal Ratio() const { return qApp->devicePixelRatio(); }
};

QTEST_MAIN(tst_WidgetHosting)
#include "tst_widgethosting.moc"
