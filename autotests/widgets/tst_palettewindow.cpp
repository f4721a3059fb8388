#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/PaletteResizeButton.h>
#include <KvUICore/widgets/PaletteTitleBar.h>
#include <KvUICore/widgets/PaletteWindow.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Kavrel::UICore;

namespace {

// Sends a mouse event as the window system would, with its global position.
void SendMouse(QWidget* widget, QEvent::Type type, const QPoint& local, Qt::MouseButtons buttons)
{
    const QPointF global = widget->mapToGlobal(QPointF(local));
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, QPointF(local), global, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

QWidget* NewContent()
{
    auto* content = new QWidget;
    content->setMinimumSize(50, 50);
    return content;
}

} // namespace

class tst_PaletteWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void geometryIsSavedAndRestoredThroughAStateFile()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("state.xml"));
        QWidget owner;
        PaletteWindow layers(&owner);
        layers.SetContentWidget(NewContent());
        layers.setGeometry(120, 90, 300, 200);
        QVERIFY(layers.SaveState(file, QStringLiteral("Palettes/Layers")));
        PaletteWindow other(&owner);
        other.setGeometry(40, 60, 180, 150);
        QVERIFY(other.SaveState(file, QStringLiteral("Palettes/Other")));

        PaletteWindow restored(&owner);
        restored.SetContentWidget(NewContent());
        QVERIFY(restored.LoadState(file, QStringLiteral("Palettes/Layers")));
        QCOMPARE(restored.geometry(), QRect(120, 90, 300, 200));
        // The other palette's state stayed in the file beside it.
        QVERIFY(restored.LoadState(file, QStringLiteral("Palettes/Other")));
        QCOMPARE(restored.geometry(), QRect(40, 60, 180, 150));
        QVERIFY(!restored.LoadState(file, QStringLiteral("Palettes/Missing")));
    }

    void collapsedStateTravelsInTheStringForm()
    {
        PaletteWindow palette;
        palette.SetContentWidget(NewContent());
        palette.setGeometry(50, 50, 260, 240);
        palette.SetCollapsed(true);
        const QString xml = palette.SaveState();
        QVERIFY(xml.contains(QStringLiteral("<PaletteWindow")));

        PaletteWindow restored;
        restored.SetContentWidget(NewContent());
        QVERIFY(restored.LoadState(xml));
        QVERIFY(restored.IsCollapsed());
        QCOMPARE(restored.height(), ThemeFileKey::TitleBarHeight + 2);
        QCOMPARE(restored.GetExpandedSize(), QSize(260, 240));
        restored.SetCollapsed(false);
        QCOMPARE(restored.size(), QSize(260, 240));
    }

    void stateOutsideReasonIsBroughtBack_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QSize>("size");
        QTest::newRow("far off every screen")
            << "X=\"-50000\" Y=\"-50000\" Width=\"300\" Height=\"200\"" << QSize(300, 200);
        QTest::newRow("absurdly large") << "X=\"10\" Y=\"10\" Width=\"9000000\" Height=\"9000000\""
                                        << QSize(PaletteWindow::MaximumStateExtent, PaletteWindow::MaximumStateExtent);
        QTest::newRow("not numbers") << "X=\"10\" Y=\"10\" Width=\"wide\" Height=\"-3\"" << QSize(-1, -1);
    }

    void stateOutsideReasonIsBroughtBack()
    {
        QFETCH(QString, attributes);
        QFETCH(QSize, size);
        PaletteWindow palette;
        palette.SetContentWidget(NewContent());
        QVERIFY(palette.LoadState(QStringLiteral("<PaletteWindow %1/>").arg(attributes)));
        if (size.isValid())
            QCOMPARE(palette.size(), size);
        else
            QVERIFY(palette.width() < 200 && palette.height() < 200); // the smallest useful size
        QVERIFY(palette.width() >= palette.GetTitleBar()->minimumSizeHint().width());
        QVERIFY(palette.height() > ThemeFileKey::TitleBarHeight);
        bool reachable = false;
        for (QScreen* screen : QGuiApplication::screens())
            reachable =
                reachable || screen->availableGeometry().intersects(QRect(palette.pos(), QSize(palette.width(), 10)));
        QVERIFY(reachable);
    }

    void doubleClickCollapsesToTheTitleBar()
    {
        PaletteWindow palette;
        QWidget* content = NewContent();
        palette.SetContentWidget(content);
        palette.resize(240, 220);
        QVERIFY(Probe::Shown(&palette));
        QCOMPARE(palette.GetTitleBar()->height(), ThemeFileKey::TitleBarHeight);
        QSignalSpy collapsed(&palette, &PaletteWindow::CollapsedChanged);
        QTest::mouseDClick(palette.GetTitleBar(), Qt::LeftButton, {}, QPoint(20, 8));
        QTRY_COMPARE(palette.height(), ThemeFileKey::TitleBarHeight + 2);
        QVERIFY(!content->isVisible());
        QVERIFY(!palette.GetResizeButton()->isVisible());
        QTest::mouseDClick(palette.GetTitleBar(), Qt::LeftButton, {}, QPoint(20, 8));
        QTRY_COMPARE(palette.height(), 220);
        QVERIFY(content->isVisible());
        QCOMPARE(collapsed.count(), 2);
    }

    void titleBarDragMovesAndGripResizes()
    {
        PaletteWindow palette;
        palette.SetContentWidget(NewContent());
        palette.setGeometry(100, 100, 240, 200);
        QVERIFY(Probe::Shown(&palette));
        const QPoint start = palette.pos();
        PaletteTitleBar* bar = palette.GetTitleBar();
        SendMouse(bar, QEvent::MouseButtonPress, QPoint(30, 8), Qt::LeftButton);
        SendMouse(bar, QEvent::MouseMove, QPoint(60, 28), Qt::LeftButton);
        SendMouse(bar, QEvent::MouseButtonRelease, QPoint(60, 28), Qt::NoButton);
        QTRY_COMPARE(palette.pos(), start + QPoint(30, 20));

        PaletteResizeButton* grip = palette.GetResizeButton();
        QCOMPARE(grip->geometry().bottomRight(), palette.rect().bottomRight() - QPoint(1, 1));
        SendMouse(grip, QEvent::MouseButtonPress, QPoint(5, 5), Qt::LeftButton);
        SendMouse(grip, QEvent::MouseMove, QPoint(45, 25), Qt::LeftButton);
        SendMouse(grip, QEvent::MouseButtonRelease, QPoint(45, 25), Qt::NoButton);
        QTRY_COMPARE(palette.size(), QSize(280, 220));
        // From the keyboard, and never below the smallest useful size.
        QTest::keyClick(grip, Qt::Key_Right);
        QCOMPARE(palette.width(), 290);
        for (int i = 0; i < 40; ++i)
            QTest::keyClick(grip, Qt::Key_Up);
        QVERIFY(palette.height() > ThemeFileKey::TitleBarHeight + 2);
        QCOMPARE(grip->geometry().bottomRight(), palette.rect().bottomRight() - QPoint(1, 1));
    }

    void closeButtonHidesAndRemembersTheGeometry()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("state.xml"));
        {
            PaletteWindow palette;
            palette.SetContentWidget(NewContent());
            palette.SetStateLocation(file, QStringLiteral("Layers"));
            palette.setGeometry(70, 80, 250, 210);
            QVERIFY(Probe::Shown(&palette));
            QSignalSpy closed(&palette, &PaletteWindow::Closed);
            palette.GetTitleBar()->GetCloseButton()->click();
            QVERIFY(palette.isHidden());
            QCOMPARE(closed.count(), 1);
        }
        QVERIFY(QFile::exists(file));
        PaletteWindow next;
        next.SetContentWidget(NewContent());
        next.SetStateLocation(file, QStringLiteral("Layers"));
        QCOMPARE(next.geometry(), QRect(70, 80, 250, 210));
    }

    void floatsOverItsParentOrTheHostWindow()
    {
        QWidget host;
        host.resize(400, 300);
        PaletteWindow palette(&host);
        QVERIFY(palette.isWindow());
        QCOMPARE(palette.parentWidget(), &host);
        QVERIFY(palette.windowFlags().testFlag(Qt::Tool));
        QCOMPARE(QAccessible::queryAccessibleInterface(&palette)->role(), QAccessible::Window);

        // The native window of a window of this process stands for that window.
        PaletteWindow hosted(Platform::HandleFromWId(host.winId()));
        QCOMPARE(hosted.parentWidget(), &host);
        QVERIFY(hosted.isWindow());

        palette.SetFloating(false);
        QVERIFY(!palette.isWindow());
        QCOMPARE(QAccessible::queryAccessibleInterface(&palette)->role(), QAccessible::Grouping);
        palette.SetFloating(true);
        QVERIFY(palette.isWindow());
    }
};

QTEST_MAIN(tst_PaletteWindow)
#include "tst_palettewindow.moc"
