// Every focusable control the gallery shows marks the keyboard focus, in every
// built-in theme, with a ring that stands out 3:1 from the panel around it;
// the simple ones are one Tab stop; a drop-down answers a combo box's keys.
#include "../PaintProbe.h"

#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/widgets/BreadcrumbBar.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorSwatch.h>
#include <KvUICore/widgets/ColorWheel.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/DropDownMenu.h>
#include <KvUICore/widgets/DropDownTree.h>
#include <KvUICore/widgets/GradientSwatch.h>
#include <KvUICore/widgets/ImageSwatch.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/LinkMessage.h>
#include <KvUICore/widgets/MessageFacility.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RadioButton.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/SearchBox.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/TextBox.h>
#include <KvUICore/widgets/TextEdit.h>
#include <KvUICore/widgets/TextureSwatch.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QDoubleSpinBox>
#include <QSet>
#include <QSlider>
#include <QTimer>

#include <algorithm>
#include <type_traits>

using namespace Kavrel::UICore;

namespace {

using Factory = QWidget* (*)(QWidget*);

template <class Control> QWidget* Make(QWidget* parent)
{
    auto* control = new Control(parent);
    if constexpr (std::is_same_v<Control, QSlider> || std::is_same_v<Control, QDoubleSpinBox>) {
        control->setStyle(CustomStyle::GetInstance());
        control->setFocusPolicy(Qt::StrongFocus);
    } else if constexpr (std::is_same_v<Control, RolloutContainer>) {
        control->SetTitle(QStringLiteral("Geometry"));
        control->SetIsCheckable(true);
    } else if constexpr (std::is_same_v<Control, RadioButton>) {
        control->SetIconThemeKey(QStringLiteral("HueWheelIcon"));
    } else if constexpr (std::is_same_v<Control, DropDown>) {
        for (const char* text : {"Oak", "Ash", "Walnut", "Apple"})
            control->AddItem(QString::fromLatin1(text));
        control->SetCurrentIndex(0);
    } else if constexpr (std::is_same_v<Control, BreadcrumbBar>) {
        control->SetPath({QStringLiteral("Home"), QStringLiteral("Wood")});
    } else if constexpr (std::is_same_v<Control, LinkMessage>) {
        control->SetMessage(QStringLiteral("See [the list](list)."));
    } else if constexpr (std::is_same_v<Control, MessageFacility>) {
        control->ShowMessage(MessageFacility::Severity::Information, QStringLiteral("Saved."));
    }
    return control;
}

struct Control
{
    const char* name;
    Factory make;
    bool oneTabStop;
};

const Control kControls[] = {
    {"CheckBox", Make<CheckBox>, true},
    {"PushButton", Make<PushButton>, true},
    {"ToolButton", Make<ToolButton>, true},
    {"RadioButton icon tile", Make<RadioButton>, true},
    {"QSlider", Make<QSlider>, true},
    {"QDoubleSpinBox", Make<QDoubleSpinBox>, true},
    {"Slider", Make<Slider>, true},
    {"DoubleSpinBox", Make<DoubleSpinBox>, true},
    {"DropDown", Make<DropDown>, true},
    {"DropDownTree", Make<DropDownTree>, true},
    {"LineEdit", Make<LineEdit>, true},
    {"TextBox", Make<TextBox>, true},
    {"SearchBox", Make<SearchBox>, true},
    {"TextEdit", Make<TextEdit>, false},
    {"RolloutContainer", Make<RolloutContainer>, true},
    {"ColorWheel", Make<ColorWheel>, true},
    {"ColorSwatch", Make<ColorSwatch>, true},
    {"GradientSwatch", Make<GradientSwatch>, true},
    {"ImageSwatch", Make<ImageSwatch>, true},
    {"TextureSwatch", Make<TextureSwatch>, true},
    {"ColorPicker", Make<ColorPicker>, false},
    {"BreadcrumbBar", Make<BreadcrumbBar>, false},
    {"LinkMessage", Make<LinkMessage>, false},
    {"MessageFacility", Make<MessageFacility>, false},
};

// The control between two line edits, in a window of the theme's panel colour.
struct Bench
{
    QWidget window;
    QLineEdit* before = new QLineEdit(&window);
    QWidget* control;
    QLineEdit* after;

    explicit Bench(Factory make)
    {
        window.setPalette(ThemeManager::GetInstance()->GetPalette());
        window.setAutoFillBackground(true);
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(12, 12, 12, 12);
        layout->addWidget(before);
        layout->addWidget(control = make(&window));
        layout->addWidget(after = new QLineEdit(&window));
        window.resize(320, window.sizeHint().height());
    }

    // The control and margin pixels of panel around it.
    QImage Grab(int margin)
    {
        QCoreApplication::processEvents();
        const QRect area(control->mapTo(&window, QPoint()), control->size());
        return window.grab(area.adjusted(-margin, -margin, margin, margin))
            .toImage()
            .convertToFormat(QImage::Format_ARGB32);
    }

    void Tab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
};

} // namespace

class tst_FocusRing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Probe::UseRepositoryThemes();
        // A steady text cursor, so that both grabs see the same caret.
        QApplication::setCursorFlashTime(0);
    }

    void focusRing_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<int>("control");
        for (const char* theme : {"Light", "Dark", "HIGLight"}) {
            for (int i = 0; i < int(std::size(kControls)); ++i)
                QTest::addRow("%s %s", theme, kControls[i].name) << QString::fromLatin1(theme) << i;
        }
    }

    // Tabs into the control and grabs it with the panel around it before and
    // after. The ring's colour is the changed colour of the highest contrast
    // against the panel among those running along a row for a while: text
    // cursors stand upright and antialiasing leaves no long runs.
    void focusRing()
    {
        QFETCH(QString, theme);
        QFETCH(int, control);
        Probe::UseRepositoryThemes(theme);
        Bench bench(kControls[control].make);
        QVERIFY(Probe::ShowActive(&bench.window) && Probe::Focus(bench.before));
        constexpr int kMargin = 4;
        const QImage without = bench.Grab(kMargin);
        bench.Tab();
        QVERIFY(bench.control->isAncestorOf(QApplication::focusWidget()) || bench.control->hasFocus());
        const QImage with = bench.Grab(kMargin);
        QCOMPARE(with.size(), without.size());

        const int edge = Probe::DeviceFloor(without, kMargin) - 1;
        QHash<QRgb, int> panel;
        QSet<QRgb> runs;
        int changed = 0;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0, run = 0; x < with.width(); ++x) {
                const QRgb pixel = with.pixel(x, y);
                if (x < edge || y < edge || x >= with.width() - edge || y >= with.height() - edge)
                    ++panel[without.pixel(x, y)];
                const bool differs = pixel != without.pixel(x, y);
                changed += differs;
                run = !differs ? 0 : (run > 0 && with.pixel(x - 1, y) == pixel ? run + 1 : 1);
                if (run == 6)
                    runs.insert(pixel);
            }
        }
        const QColor background =
            QColor::fromRgb(std::max_element(panel.keyValueBegin(), panel.keyValueEnd(), [](auto a, auto b) {
                                return a.second < b.second;
                            })->first);
        double contrast = 0.0;
        for (QRgb color : std::as_const(runs))
            contrast = std::max(contrast, Probe::Contrast(QColor::fromRgb(color), background));
        qInfo("FOCUS|%s|%s|%d|%.2f", qPrintable(theme), kControls[control].name, changed, contrast);
        QVERIFY(changed > 0);
        QVERIFY2(contrast >= 3.0, qPrintable(QString::number(contrast)));
        if (kControls[control].oneTabStop) {
            bench.Tab();
            QVERIFY(bench.after->hasFocus());
        }
    }

    // The keys that open a combo box open the drop-down; typed letters pick items.
    void dropDownKeys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<int>("current");
        for (const char* key : {"Space", "Return", "Alt+Down", "F4", "Down"})
            QTest::newRow(key) << QString::fromLatin1(key) << true << 0;
        QTest::newRow("Up") << "Up" << false << 0;
        QTest::newRow("w") << "W" << false << 2;
        QTest::newRow("a twice cycles") << "A, A" << false << 3;
        QTest::newRow("ap") << "A, P" << false << 3;
        QTest::newRow("no match") << "Z" << false << 0;
    }

    void dropDownKeys()
    {
        QFETCH(QString, keys);
        Bench bench(Make<DropDown>);
        auto* drop = static_cast<DropDown*>(bench.control);
        QVERIFY(Probe::ShowActive(&bench.window) && Probe::Focus(drop));
        bool opened = false;
        QString highlighted;
        QMenu* menu = drop->GetDropDownMenu();
        connect(menu, &QMenu::aboutToShow, this, [&] {
            opened = true;
            // The open list has the same type-ahead.
            QTimer::singleShot(0, menu, [&] {
                QTest::keyClick(menu, Qt::Key_W);
                highlighted = menu->activeAction() ? menu->activeAction()->text() : QString();
                menu->close();
            });
        });
        QTest::keySequence(drop, QKeySequence(keys));
        QTEST(opened, "opens");
        QCOMPARE(highlighted, opened ? QStringLiteral("Walnut") : QString());
        QTEST(drop->GetCurrentIndex(), "current");
    }

    // A number typed on the slider goes to its field, which Tab skips.
    void sliderTypesIntoField()
    {
        Bench bench(Make<Slider>);
        auto* slider = static_cast<Slider*>(bench.control);
        QVERIFY(Probe::ShowActive(&bench.window) && Probe::Focus(bench.before));
        bench.Tab();
        QTest::keyClick(QApplication::focusWidget(), '4');
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(slider->GetNumericField()));
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("2"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(slider->GetValue(), 42.0);
    }
};

QTEST_MAIN(tst_FocusRing)
#include "tst_focusring.moc"
