#include "../PaintProbe.h"

#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>

#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

using namespace Kavrel::UICore;

class tst_CheckBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void setUpFollowsLibraryLook()
    {
        CheckBox box(QStringLiteral("Check"));
        // The application's global style sheet may wrap the style; the library's
        // metrics show through either way.
        QCOMPARE(box.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &box), 4);
    }

    void cutLabelExplainsItself_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("alwaysShow");
        QTest::addColumn<QString>("hostTip");
        QTest::addColumn<QString>("expected");
        const QString longText = QStringLiteral("A check box label that cannot possibly fit in the box");
        QTest::newRow("fits") << QStringLiteral("Fits") << 200 << false << QStringLiteral("stale") << QString();
        QTest::newRow("cut") << longText << 90 << false << QString() << longText;
        QTest::newRow("cut, always show keeps host tip")
            << longText << 90 << true << QStringLiteral("Host tip") << QStringLiteral("Host tip");
        QTest::newRow("fits, always show keeps host tip")
            << QStringLiteral("Fits") << 200 << true << QStringLiteral("Host tip") << QStringLiteral("Host tip");
    }

    void cutLabelExplainsItself()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(bool, alwaysShow);
        QFETCH(QString, hostTip);
        CheckBox box(text);
        box.SetAlwaysShowTooltip(alwaysShow);
        box.setToolTip(hostTip);
        box.resize(width, 24);
        box.grab();
        QTEST(box.toolTip(), "expected");
    }

    void toolTipChangesAreSignalled()
    {
        CheckBox box(QStringLiteral("A check box label that cannot possibly fit"));
        box.resize(80, 24);
        QSignalSpy changed(&box, &CheckBox::ToolTipChanged);
        box.grab();
        QCOMPARE(changed.count(), 1);
        // Painting again with the same cut sets nothing new.
        box.grab();
        QCOMPARE(changed.count(), 1);
        box.resize(600, 24);
        box.grab();
        QCOMPARE(changed.count(), 2);
        QVERIFY(box.toolTip().isEmpty());
    }

    void plainCheckBoxExplainsItsCutLabelOnHover()
    {
        const QString longText = QStringLiteral("A plain check box label that cannot possibly fit");
        QCheckBox box(longText);
        box.setStyle(CustomStyle::GetInstance());
        box.resize(80, 24);
        QVERIFY(Probe::Shown(&box));
        QHelpEvent help(QEvent::ToolTip, QPoint(10, 10), box.mapToGlobal(QPoint(10, 10)));
        QVERIFY(QApplication::sendEvent(&box, &help));
        QTRY_COMPARE(QToolTip::text(), longText);
        // The style answered the hover; it wrote nothing into the check box.
        QVERIFY(box.toolTip().isEmpty());
        QToolTip::hideText();
    }
};

QTEST_MAIN(tst_CheckBox)
#include "tst_checkbox.moc"
