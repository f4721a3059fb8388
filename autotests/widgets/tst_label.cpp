// test-options: LABELS visual
#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/Label.h>

#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

using namespace Kavrel::UICore;

namespace {

QString LongText()
{
    return QStringLiteral("A label text that is far too long to fit into the narrow label it sits in");
}

// Asks the label for its tool tip at pos, as a hover would.
void AskForToolTip(Label* label, const QPoint& pos)
{
    QHelpEvent event(QEvent::ToolTip, pos, label->mapToGlobal(pos));
    QApplication::sendEvent(label, &event);
}

QPixmap RedPixmap()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class tst_Label : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void cleanup()
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void toolTipExplainsCutText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("reserved");
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("expected");
        QTest::newRow("fits, no reserved tip") << QStringLiteral("Short") << QString() << 200 << QString();
        QTest::newRow("fits, reserved tip") << "Short" << QStringLiteral("Explains") << 200 << "Explains";
        QTest::newRow("cut") << LongText() << QString() << 80 << LongText();
        QTest::newRow("cut, reserved tip ignored") << LongText() << QStringLiteral("Explains") << 80 << LongText();
    }

    void toolTipExplainsCutText()
    {
        QFETCH(QString, text);
        QFETCH(QString, reserved);
        QFETCH(int, width);
        QFETCH(QString, expected);
        Label label(text);
        label.SetReservedToolTip(reserved);
        label.resize(width, 24);
        QVERIFY(Probe::Shown(&label));
        AskForToolTip(&label, QPoint(10, 10));
        if (expected.isEmpty()) {
            QVERIFY(!QToolTip::isVisible());
        } else {
            QTRY_VERIFY(QToolTip::isVisible());
            QCOMPARE(QToolTip::text(), expected);
        }
    }

    void rightPixmapHasItsOwnToolTip()
    {
        Label label(QStringLiteral("Short"));
        label.SetRightPixmap(RedPixmap());
        label.SetRightPixmapTooltip(QStringLiteral("Pixmap tip"));
        label.SetReservedToolTip(QStringLiteral("Text tip"));
        label.resize(200, 24);
        QVERIFY(Probe::Shown(&label));
        AskForToolTip(&label, QPoint(label.width() - 9, 12));
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("Pixmap tip"));
        AskForToolTip(&label, QPoint(10, 12));
        QTRY_COMPARE(QToolTip::text(), QStringLiteral("Text tip"));
    }

    void rightPixmapClickIsReported()
    {
        Label label(QStringLiteral("Short"));
        label.SetRightPixmap(RedPixmap());
        label.resize(200, 24);
        QSignalSpy clicked(&label, &Label::RightPixmapClicked);
        QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(10, 12));
        QCOMPARE(clicked.count(), 0);
        QTest::mouseClick(&label, Qt::RightButton, {}, QPoint(label.width() - 9, 12));
        QCOMPARE(clicked.count(), 0);
        QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(label.width() - 9, 12));
        QCOMPARE(clicked.count(), 1);

        // The pixmap, white made transparent, is painted at the right edge.
        const QImage image = Probe::Grab(&label);
        const qreal ratio = image.devicePixelRatio();
        PROBE_COMPARE_COLOR(Probe::Pixel(image, int((label.width() - 9) * ratio), int(12 * ratio)), QColor(Qt::red));
    }

    void narrowLabelNeverShowsRightPixmap()
    {
        Label label(QStringLiteral("x"));
        label.SetRightPixmap(RedPixmap());
        label.setMinimumWidth(0);
        label.resize(18, 24);
        QSignalSpy clicked(&label, &Label::RightPixmapClicked);
        for (int x = 0; x < 18; x += 3)
            QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(x, 12));
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(Probe::Count(Probe::Grab(&label), [](const QColor& c) { return c == QColor(Qt::red); }), 0);
    }

    void textColourKeyMustExist()
    {
        ThemeManager* themes = ThemeManager::GetInstance();
        Label label(QStringLiteral("Text"));
        label.SetTextColorThemeKey(QStringLiteral("NoSuchColourKey"));
        QCOMPARE(label.GetTextColorThemeKey(), ThemeFileKey::FontNormal1);
        label.SetTextColorThemeKey(ThemeFileKey::FontNormal3);
        QCOMPARE(label.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal3));

        // The same key again changes nothing unless forced.
        QPalette palette = label.palette();
        palette.setColor(QPalette::WindowText, Qt::magenta);
        label.setPalette(palette);
        label.SetTextColorThemeKey(ThemeFileKey::FontNormal3);
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::magenta));
        label.SetTextColorThemeKey(ThemeFileKey::FontNormal3, true);
        QCOMPARE(label.palette().color(QPalette::WindowText), themes->GetColor(ThemeFileKey::FontNormal3));
    }

    void geometryAndShowSignals()
    {
        Label label(QStringLiteral("Text"));
        QSignalSpy geometry(&label, &Label::GeometryChanged);
        QSignalSpy aboutToShow(&label, &Label::AboutToShow);
        label.resize(100, 24);
        QVERIFY(Probe::Shown(&label));
        QCOMPARE(aboutToShow.count(), 1);
        const int before = geometry.count();
        label.resize(140, 30);
        QTRY_VERIFY(geometry.count() > before);
    }

    void autoFixedWidthFollowsText()
    {
        Label label(QStringLiteral("Short"));
        label.SetAutoFixedWidth(true);
        const int shortWidth = label.width();
        QCOMPARE(label.minimumWidth(), label.maximumWidth());
        QVERIFY(shortWidth >= label.getTextWidth());
        label.setText(LongText());
        QVERIFY(Probe::Shown(&label));
        QTRY_VERIFY(label.width() >= label.getTextWidth());
        QVERIFY(label.width() > shortWidth);
        label.SetAutoFixedWidth(false);
        label.resize(50, 24);
        QCOMPARE(label.width(), 50);
    }

    void cutTextIsPaintedInThemeColour()
    {
        // A cut label ends in an ellipsis; the text is painted in the key's colour.
        ThemeManager* themes = ThemeManager::GetInstance();
        Label label(QString(40, QLatin1Char('W')));
        QFont font = label.font();
        font.setPixelSize(20);
        font.setBold(true);
        label.setFont(font);
        label.resize(120, 30);
        const QColor text = themes->GetColor(ThemeFileKey::FontNormal1);
        QVERIFY(Probe::Count(Probe::Grab(&label), [&](const QColor& c) { return Probe::Near(c, text, 8); }) > 20);
    }

    void alignmentPlacesText_data()
    {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        // The horizontal middle of the painted text, as a fraction of the width.
        QTest::newRow("left") << int(Qt::AlignLeft | Qt::AlignVCenter) << 0.0 << 0.3;
        QTest::newRow("centre") << int(Qt::AlignCenter) << 0.4 << 0.6;
        QTest::newRow("right") << int(Qt::AlignRight | Qt::AlignVCenter) << 0.7 << 1.0;
    }

    void alignmentPlacesText()
    {
        QFETCH(int, alignment);
        QFETCH(double, low);
        QFETCH(double, high);
        Label label(QStringLiteral("Text"));
        label.setAlignment(Qt::Alignment(alignment));
        label.resize(300, 24);
        const QImage image = Probe::Grab(&label);
        const QRgb background = image.pixel(0, 0);
        int first = image.width();
        int last = -1;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            if (image.pixel(i % image.width(), i / image.width()) != background) {
                first = std::min(first, i % image.width());
                last = std::max(last, i % image.width());
            }
        }
        QVERIFY(last >= first);
        const double middle = (first + last) / 2.0 / image.width();
        QVERIFY2(middle >= low && middle <= high, qPrintable(QString::number(middle)));
    }
};

QTEST_MAIN(tst_Label)
#include "tst_label.moc"
