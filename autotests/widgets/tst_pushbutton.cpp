// test-options: SCALES 1.5 LABELS visual
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/PushButton.h>

#include <QSignalSpy>
#include <QtTest>

using namespace Kavrel::UICore;

namespace {

void PressKey(QWidget* widget, Qt::Key key, bool autoRepeat = false)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), autoRepeat);
    QApplication::sendEvent(widget, &press);
}

void ReleaseKey(QWidget* widget, Qt::Key key, bool autoRepeat = false)
{
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString(), autoRepeat);
    QApplication::sendEvent(widget, &release);
}

void Tap(QWidget* widget, Qt::Key key)
{
    PressKey(widget, key);
    ReleaseKey(widget, key);
}

} // namespace

class tst_PushButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void lockedButtonStaysChecked_data()
    {
        QTest::addColumn<bool>("locked");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QList<bool>>("states");
        QTest::newRow("locked, space") << true << Qt::Key_Space << QList<bool>{true, true, true};
        QTest::newRow("locked, return") << true << Qt::Key_Return << QList<bool>{true, true, true};
        QTest::newRow("unlocked, space") << false << Qt::Key_Space << QList<bool>{true, false, true};
        QTest::newRow("locked, mouse") << true << Qt::Key_unknown << QList<bool>{true, true};
        QTest::newRow("unlocked, mouse") << false << Qt::Key_unknown << QList<bool>{true, false};
    }

    void lockedButtonStaysChecked()
    {
        QFETCH(bool, locked);
        QFETCH(Qt::Key, key);
        QFETCH(QList<bool>, states);
        PushButton button;
        button.SetCheckable(true, locked);
        QCOMPARE(button.IsToggleOnStateLocked(), locked);
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        for (int i = 0; i < states.size(); ++i) {
            if (key == Qt::Key_unknown)
                QTest::mouseClick(&button, Qt::LeftButton);
            else
                Tap(&button, key);
            QCOMPARE(button.isChecked(), states.at(i));
            QCOMPARE(clicked.count(), i + 1);
            QCOMPARE(button.GetMouseState(), int(PushButton::Released));
        }
        // The program may still uncheck a locked button.
        button.setChecked(false);
        QVERIFY(!button.isChecked());
    }

    void autoRepeatedReleasesDoNotClick()
    {
        PushButton button;
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        PressKey(&button, Qt::Key_Space);
        QCOMPARE(button.GetMouseState(), int(PushButton::Pressed));
        for (int i = 0; i < 5; ++i) {
            ReleaseKey(&button, Qt::Key_Space, true);
            PressKey(&button, Qt::Key_Space, true);
        }
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(button.GetMouseState(), int(PushButton::Pressed));
        ReleaseKey(&button, Qt::Key_Space);
        QCOMPARE(clicked.count(), 1);
    }

    void otherKeysGoToBase()
    {
        PushButton button;
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        Tap(&button, Qt::Key_A);
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(button.GetMouseState(), int(PushButton::Idle));
    }

    void mouseStatesFollowPointer()
    {
        PushButton button;
        button.resize(60, 24);
        QVERIFY(Probe::Shown(&button));
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), button.mapToGlobal(QPointF(5, 5)));
        QApplication::sendEvent(&button, &enter);
        QCOMPARE(button.GetMouseState(), int(PushButton::Hovered));
        QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(button.GetMouseState(), int(PushButton::Pressed));
        button.setAttribute(Qt::WA_UnderMouse, true);
        QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(button.GetMouseState(), int(PushButton::Hovered));
        QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(5, 5));
        button.setAttribute(Qt::WA_UnderMouse, false);
        QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(200, 5));
        QCOMPARE(button.GetMouseState(), int(PushButton::Released));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&button, &leave);
        QCOMPARE(button.GetMouseState(), int(PushButton::Idle));
    }

    void iconComesFromObjectNameKey()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        QVERIFY2(!themes->GetString(ThemeFileKey::CheckMarkIcon).isEmpty(), "the theme names no check-mark icon");
        PushButton button;
        QVERIFY(button.icon().isNull());
        button.setObjectName(ThemeFileKey::CheckMarkIcon);
        QVERIFY(!button.icon().isNull());
        QCOMPARE(button.iconSize(), QSize(16, 16));
    }

    void iconSurvivesThemeSwitchWhenNameIsNoKey()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        PushButton button;
        button.setObjectName(QStringLiteral("notAThemeKey"));
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::green);
        const QIcon icon(pixmap);
        button.setIcon(icon);
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Light")));
        QCOMPARE(button.icon().cacheKey(), icon.cacheKey());
    }

    void miniIconFollowsCheckAndHover()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        for (const QString& key : {ThemeFileKey::MiniButtonToggleOff, ThemeFileKey::MiniButtonToggleOffHover,
                                   ThemeFileKey::MiniButtonToggleOn, ThemeFileKey::MiniButtonToggleOnHover})
            QVERIFY2(!themes->GetImage(key, QSize(16, 16)).isNull(), qPrintable(key));
        PushButton button;
        button.setIconSize(QSize(16, 16));
        button.SetCheckable(true);
        button.SetIsMiniIcon(true);
        const qint64 off = button.icon().cacheKey();
        QVERIFY(!button.icon().isNull());
        button.setChecked(true);
        const qint64 on = button.icon().cacheKey();
        QVERIFY(on != off);
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QApplication::sendEvent(&button, &enter);
        QVERIFY(button.icon().cacheKey() != on);
    }

    void iconAndTextAreLaidOutSideBySide()
    {
        PushButton button;
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::green);
        button.setIcon(QIcon(pixmap));
        button.setIconSize(QSize(16, 16));
        button.setText(QStringLiteral("Apply"));
        button.resize(button.sizeHint());
        const QImage image = Probe::Grab(&button);
        // The icon sits left of the middle, the text right of it.
        const qreal ratio = image.devicePixelRatio();
        int greenRight = -1;
        for (int x = 0; x < image.width(); ++x) {
            if (Probe::Pixel(image, x, int(image.height() / 2)) == QColor(Qt::green))
                greenRight = x;
        }
        QVERIFY(greenRight > 0);
        QVERIFY(greenRight / ratio < button.width() / 2.0);
        // The text's room ends at the preferred block's right edge, however
        // wide the button: the text, 2 pixels wider than that room, is cut
        // and explains itself.
        button.resize(button.sizeHint().width() + 200, 24);
        Probe::Grab(&button);
        QCOMPARE(button.toolTip(), button.text());
    }

    void cutTextGoesToToolTip()
    {
        PushButton button;
        button.setToolTip(QStringLiteral("Reserved"));
        button.setText(QStringLiteral("A push button text far too long for it"));
        button.resize(60, 24);
        QVERIFY(Probe::Shown(&button));
        QCOMPARE(button.toolTip(), button.text());
        button.resize(button.sizeHint().width() + 20, 24);
        QTRY_COMPARE(button.toolTip(), QStringLiteral("Reserved"));
    }

    void paintsStateFromTheme_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("fillKey");
        QTest::addColumn<QString>("outlineKey");
        QTest::newRow("idle") << 0 << ThemeFileKey::WidgetContainer1 << ThemeFileKey::WidgetOutline1;
        QTest::newRow("hovered") << 1 << ThemeFileKey::HoverContainer1 << ThemeFileKey::HoverOutline1;
        QTest::newRow("pressed") << 2 << ThemeFileKey::ClickContainer1 << ThemeFileKey::ClickOutline1;
        QTest::newRow("checked") << 4 << ThemeFileKey::ActiveContainer1 << ThemeFileKey::ActiveOutline1;
        QTest::newRow("disabled") << 5 << ThemeFileKey::WidgetContainerDisable << ThemeFileKey::WidgetOutlineDisable;
    }

    void paintsStateFromTheme()
    {
        QFETCH(int, state);
        QFETCH(QString, fillKey);
        QFETCH(QString, outlineKey);
        ThemeManager* themes = ThemeManager::GetInstance();
        PushButton button;
        button.resize(40, 24);
        if (state == 1) {
            QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
            QApplication::sendEvent(&button, &enter);
        } else if (state == 2) {
            QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(5, 5));
        } else if (state == 4) {
            button.SetCheckable(true);
            button.setChecked(true);
        } else if (state == 5) {
            button.setEnabled(false);
        }
        const QColor outline = themes->GetColor(outlineKey);
        QVERIFY2(outline.isValid(), qPrintable(outlineKey));
        QVERIFY2(themes->Exists(fillKey), qPrintable(fillKey));
        const QImage image = Probe::Grab(&button);
        const int b = Probe::Bucket(image);
        const int column = image.width() / 2;
        for (int i = 0; i < b; ++i)
            PROBE_COMPARE_COLOR(Probe::Pixel(image, column, i), outline);
        const int y = image.height() / 2;
        const QColor expected = Probe::Reference(image, button.palette().color(QPalette::Window),
                                                 themes->GetBrush(fillKey, button.rect()), button.rect(), column, y);
        QVERIFY2(Probe::Near(Probe::Pixel(image, column, y), expected, 8),
                 qPrintable(Probe::Pixel(image, column, y).name() + " vs " + expected.name()));
        if (state == 2)
            QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(5, 5));
    }
};

QTEST_MAIN(tst_PushButton)
#include "tst_pushbutton.moc"
