#include "../PaintProbe.h"

#include <KvUICore/widgets/BreadcrumbBar.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/LinkMessage.h>
#include <KvUICore/widgets/PaletteTitleBar.h>
#include <KvUICore/widgets/ProgressBar.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/SearchBox.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/SliderControl.h>
#include <KvUICore/widgets/TextBox.h>
#include <KvUICore/widgets/TextLabel.h>

#include <QHash>
#include <QStyle>

#include <functional>

using namespace Kavrel::UICore;

namespace {

using Make = std::function<QWidget*(QWidget* window)>;

constexpr int kBands = 24;

// How much ink each column of the image holds: the distance of its pixels
// from the image's most common colour, the background.
QList<double> InkProfile(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QRgb background = 0;
    int most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > most) {
            most = it.value();
            background = it.key();
        }
    }
    QList<double> columns(image.width(), 0.0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb p = image.pixel(x, y);
            columns[x] += qAbs(qRed(p) - qRed(background)) + qAbs(qGreen(p) - qGreen(background)) +
                          qAbs(qBlue(p) - qBlue(background));
        }
    }
    return columns;
}

// Compared in bands, so that text (which keeps its reading order) counts by
// where it is, not by the shapes of its letters.
double Difference(const QList<double>& a, const QList<double>& b)
{
    QList<double> bands(kBands, 0.0);
    for (int x = 0; x < a.size(); ++x)
        bands[x * kBands / a.size()] += a.at(x) - b.at(x);
    double sum = 0;
    for (double band : bands)
        sum += qAbs(band);
    return sum;
}

} // namespace

Q_DECLARE_METATYPE(Make)

class tst_Mirroring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void rightToLeftMirrorsTheControl_data()
    {
        QTest::addColumn<Make>("make");
        QTest::newRow("DropDown arrow and text") << Make([](QWidget* w) {
            auto* dropDown = new DropDown(w);
            dropDown->AddItem(QStringLiteral("Item"));
            dropDown->setText(QStringLiteral("Item"));
            return dropDown;
        });
        QTest::newRow("RolloutContainer arrow, check box and title") << Make([](QWidget* w) {
            auto* rollout = new RolloutContainer(w);
            rollout->SetTitle(QStringLiteral("Title"));
            rollout->SetIsCheckable(true);
            return rollout;
        });
        QTest::newRow("TextLabel alignment")
            << Make([](QWidget* w) { return new TextLabel(QStringLiteral("Text"), w); });
        QTest::newRow("Label alignment") << Make([](QWidget* w) { return new Label(QStringLiteral("Text"), w); });
        QTest::newRow("CheckBox indicator and text")
            << Make([](QWidget* w) { return new CheckBox(QStringLiteral("Check"), w); });
        QTest::newRow("TextBox icon and text") << Make([](QWidget* w) {
            auto* box = new TextBox(w);
            box->SetIcon(w->style()->standardIcon(QStyle::SP_FileIcon));
            box->SetText(QStringLiteral("Text"));
            return box;
        });
        // Typed text keeps its own direction in an editor, as in any Qt line edit.
        QTest::newRow("SearchBox icons") << Make([](QWidget* w) { return new SearchBox(w); });
        QTest::newRow("BreadcrumbBar order") << Make([](QWidget* w) {
            auto* bar = new BreadcrumbBar(w);
            bar->SetPath({QStringLiteral("Root"), QStringLiteral("Folder")});
            return bar;
        });
        QTest::newRow("Slider value") << Make([](QWidget* w) {
            auto* slider = new Slider(w);
            slider->GetSliderControl()->setValue(slider->GetSliderControl()->minimum());
            return slider->GetSliderControl();
        });
        QTest::newRow("ProgressBar chunk") << Make([](QWidget* w) {
            auto* bar = new ProgressBar(w);
            bar->setValue(30);
            return bar;
        });
        QTest::newRow("LinkMessage") << Make([](QWidget* w) { return new LinkMessage(QStringLiteral("Message"), w); });
        QTest::newRow("PaletteTitleBar") << Make([](QWidget* w) {
            auto* bar = new PaletteTitleBar(w);
            bar->SetTitle(QStringLiteral("Title"));
            return bar;
        });
    }

    // A right-to-left layout shows the control as its left-to-right look in
    // a mirror: where ink was on the left it is now on the right.
    void rightToLeftMirrorsTheControl()
    {
        QFETCH(Make, make);
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        QWidget* control = make(&window);
        layout->addWidget(control->parentWidget() == &window ? control : control->parentWidget());
        window.resize(260, control->sizeHint().height() + 20);
        QVERIFY(Probe::Shown(&window));
        const QList<double> ltr = InkProfile(Probe::Grab(control));
        window.setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        const QList<double> rtl = InkProfile(Probe::Grab(control));
        const QList<double> mirrored(ltr.crbegin(), ltr.crend());
        const double unchanged = Difference(rtl, ltr);
        QVERIFY2(
            Difference(rtl, mirrored) * 2 < unchanged,
            qPrintable(QStringLiteral("mirrored %1, unmirrored %2").arg(Difference(rtl, mirrored)).arg(unchanged)));
    }
};

QTEST_MAIN(tst_Mirroring)
#include "tst_mirroring.moc"
