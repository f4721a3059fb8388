// test-options: XVFB TIMEOUT 120
#include "../PaintProbe.h"

#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QSignalSpy>
#include <QtTest>

using namespace Kavrel::UICore;

// The eyedropper reads the real screen, so this runs under an X server.
class tst_ColorEyedropper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Probe::UseRepositoryThemes();
        if (!ColorPicker::IsEyedropperSupported())
            QSKIP("the eyedropper needs a platform that can read the screen (run under xvfb)");
    }

    void pointerPreviewsClickTakesEscapeRestores()
    {
        QWidget target;
        target.setAutoFillBackground(true);
        QPalette palette = target.palette();
        palette.setColor(QPalette::Window, QColor(12, 200, 99));
        target.setPalette(palette);
        target.setGeometry(40, 40, 120, 120);
        ColorPicker picker;
        picker.SetColor(QColor(Qt::red));
        picker.move(300, 40);
        QVERIFY(Probe::Shown(&target));
        QVERIFY(Probe::Shown(&picker));
        QVERIFY(picker.findChild<ToolButton*>("eyedropper")->isEnabled());

        QSignalSpy changed(&picker, &ColorPicker::ColorChanged);
        QSignalSpy committed(&picker, &ColorPicker::ColorCommitted);
        picker.StartEyedropper();
        QVERIFY(picker.IsPicking());
        QTest::mouseMove(&target, QPoint(60, 60));
        QTRY_COMPARE(picker.GetColor(), QColor(12, 200, 99));
        QCOMPARE(committed.count(), 0);
        QTest::keyClick(&picker, Qt::Key_Escape);
        QVERIFY(!picker.IsPicking());
        QCOMPARE(picker.GetColor(), QColor(Qt::red));

        picker.StartEyedropper();
        QTest::mouseClick(&target, Qt::LeftButton, {}, QPoint(60, 60));
        QVERIFY(!picker.IsPicking());
        QCOMPARE(picker.GetColor(), QColor(12, 200, 99));
        QCOMPARE(committed.count(), 1);
        QVERIFY(changed.count() >= 2);
    }
};

QTEST_MAIN(tst_ColorEyedropper)
#include "tst_coloreyedropper.moc"
