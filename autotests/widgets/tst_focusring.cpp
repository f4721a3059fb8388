// Every focusable control of the library shows where the keyboard focus is,
// in every built-in theme, with a ring that stands out 3:1 from the panel
// around it; each is one Tab stop, and a drop-down answers the keys of a combo box.
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
#include <QHash>
#include <QSlider>
#include <QTimer>

using namespace Kavrel::UICore;

namespace {

using Factory = QWidget* (*)(QWidget*);

template <class Control> QWidget* Make(QWidget* parent)
{
    return new Control(parent);
}

template <class Control> QWidget* Styled(QWidget* parent)
{
    auto* control = new Control(parent);
    control->setStyle(CustomStyle::GetInstance());
    control->setFocusPolicy(Qt::StrongFocus);
    return control;
}

QWidget* NewDropDown(QWidget* parent)
{
    auto* drop = new DropDown(parent);
    for (const char* text : {"Oak", "Ash", "Walnut", "Apple"})
        drop->AddItem(QString::fromLatin1(text));
    drop->SetCurrentIndex(0);
    return drop;
}

template <bool withText> QWidget* NewTile(QWidget* parent)
{
    auto* tile = withText ? new RadioButton(QStringLiteral("Hue"), parent) : new RadioButton(parent);
    tile->SetIconThemeKey(QStringLiteral("HueWheelIcon"));
    return tile;
}

// The controls the gallery shows that take the keyboard focus.
const std::pair<const char*, Factory> kControls[] = {
    {"CheckBox", Make<CheckBox>},
    {"PushButton", Make<PushButton>},
    {"ToolButton", Make<ToolButton>},
    {"RadioButton tile", NewTile<true>},
    {"RadioButton icon tile", NewTile<false>},
    {"QSlider", Styled<QSlider>},
    {"QDoubleSpinBox", Styled<QDoubleSpinBox>},
    {"Slider", Make<Slider>},
    {"DoubleSpinBox", Make<DoubleSpinBox>},
    {"DropDown", NewDropDown},
    {"DropDownTree", Make<DropDownTree>},
    {"LineEdit", Make<LineEdit>},
    {"TextBox", Make<TextBox>},
    {"SearchBox", Make<SearchBox>},
    {"TextEdit", Make<TextEdit>},
    {"RolloutContainer",
     [](QWidget* p) -> QWidget* {
         auto* rollout = new RolloutContainer(p);
         rollout->SetTitle(QStringLiteral("Geometry"));
         rollout->SetIsCheckable(true);
         return rollout;
     }},
    {"ColorWheel", Make<ColorWheel>},
    {"ColorSwatch", Make<ColorSwatch>},
    {"GradientSwatch", Make<GradientSwatch>},
    {"ImageSwatch", Make<ImageSwatch>},
    {"TextureSwatch", Make<TextureSwatch>},
    {"ColorPicker", Make<ColorPicker>},
    {"BreadcrumbBar",
     [](QWidget* p) -> QWidget* {
         auto* bar = new BreadcrumbBar(p);
         bar->SetPath({QStringLiteral("Home"), QStringLiteral("Wood")});
         return bar;
     }},
    {"LinkMessage", [](QWidget* p) -> QWidget* { return new LinkMessage(QStringLiteral("See [the list](list)."), p); }},
    {"MessageFacility",
     [](QWidget* p) -> QWidget* {
         auto* facility = new MessageFacility(p);
         facility->ShowMessage(MessageFacility::Severity::Information, QStringLiteral("Saved."));
         return facility;
     }},
};

// The first widget of the control that Tab stops at.
QWidget* TabTarget(QWidget* control)
{
    QWidget* widget = control;
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled())
            return widget->focusProxy() ? widget->focusProxy() : widget;
        widget = widget->nextInFocusChain();
    } while (widget != control && (widget == control || control->isAncestorOf(widget)));
    return nullptr;
}

// A window with a line edit before and after the control, in the theme's panel colour.
struct Bench
{
    QWidget window;
    QLineEdit* before = new QLineEdit(&window);
    QWidget* control = nullptr;
    QLineEdit* after = nullptr;

    explicit Bench(Factory make)
    {
        window.setPalette(ThemeManager::GetInstance()->GetPalette());
        window.setAutoFillBackground(true);
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(12, 12, 12, 12);
        layout->addWidget(before);
        control = make(&window);
        layout->addWidget(control);
        after = new QLineEdit(&window);
        layout->addWidget(after);
        window.resize(320, window.sizeHint().height());
    }

    QImage Grab(int margin)
    {
        QCoreApplication::processEvents();
        const QRect area(control->mapTo(&window, QPoint()), control->size());
        return window.grab(area.adjusted(-margin, -margin, margin, margin))
            .toImage()
            .convertToFormat(QImage::Format_ARGB32);
    }

    // How many Tab presses it takes from the line edit before to the one after.
    int TabStops()
    {
        if (!Probe::Focus(before))
            return -1;
        for (int presses = 1; presses < 10; ++presses) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (after->hasFocus())
                return presses - 1;
        }
        return -1;
    }
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
                QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(theme, kControls[i].first)))
                    << QString::fromLatin1(theme) << i;
        }
    }

    // Grabs the control and the panel around it without and with focus. The
    // ring's colour is the changed colour of the highest contrast against the
    // panel that runs along a row for a while: text cursors stand upright and
    // antialiasing leaves no long runs.
    void focusRing()
    {
        QFETCH(QString, theme);
        QFETCH(int, control);
        Probe::UseRepositoryThemes(theme);
        Bench bench(kControls[control].second);
        QVERIFY(Probe::ShowActive(&bench.window));
        QWidget* target = TabTarget(bench.control);
        QVERIFY(target);
        QVERIFY(Probe::Focus(bench.before));
        constexpr int kMargin = 4;
        const QImage without = bench.Grab(kMargin);
        QVERIFY(Probe::Focus(target, Qt::TabFocusReason));
        const QImage with = bench.Grab(kMargin);
        QCOMPARE(with.size(), without.size());

        const int edge = Probe::DeviceFloor(without, kMargin) - 1;
        QHash<QRgb, int> panel;
        QHash<QRgb, int> runs;
        int changed = 0;
        for (int y = 0; y < with.height(); ++y) {
            int run = 0;
            for (int x = 0; x < with.width(); ++x) {
                const QRgb pixel = with.pixel(x, y);
                if (x < edge || y < edge || x >= with.width() - edge || y >= with.height() - edge)
                    ++panel[without.pixel(x, y)];
                const bool differs = pixel != without.pixel(x, y);
                changed += differs ? 1 : 0;
                run = differs && x > 0 && run > 0 && with.pixel(x - 1, y) == pixel ? run + 1 : (differs ? 1 : 0);
                if (run == 6)
                    ++runs[pixel];
            }
        }
        QRgb background = 0;
        for (auto it = panel.cbegin(); it != panel.cend(); ++it)
            background = it.value() > panel.value(background) ? it.key() : background;
        double contrast = 0.0;
        for (auto it = runs.cbegin(); it != runs.cend(); ++it)
            contrast = std::max(contrast, Probe::Contrast(QColor::fromRgb(it.key()), QColor::fromRgb(background)));
        qInfo("FOCUS|%s|%s|%d|%.2f", qPrintable(theme), kControls[control].first, changed, contrast);
        QVERIFY(changed > 0);
        QVERIFY2(contrast >= 3.0, qPrintable(QStringLiteral("contrast %1").arg(contrast)));
    }

    // Each control is one Tab stop, the icon-only tile included.
    void tabStops_data()
    {
        QTest::addColumn<int>("control");
        for (int i = 0; i < int(std::size(kControls)); ++i) {
            const QByteArray name = kControls[i].first;
            if (name == "Slider" || name == "RolloutContainer" || name.startsWith("RadioButton") || name == "DropDown")
                QTest::newRow(name.constData()) << i;
        }
    }

    void tabStops()
    {
        QFETCH(int, control);
        Bench bench(kControls[control].second);
        QVERIFY(Probe::ShowActive(&bench.window));
        QCOMPARE(bench.TabStops(), 1);
    }

    // Keys on a focused drop-down: which open its list, and type-ahead.
    void dropDownKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<int>("current");
        QTest::newRow("Space") << int(Qt::Key_Space) << 0 << QString() << true << 0;
        QTest::newRow("Return") << int(Qt::Key_Return) << 0 << QString() << true << 0;
        QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier) << QString() << true << 0;
        QTest::newRow("F4") << int(Qt::Key_F4) << 0 << QString() << true << 0;
        QTest::newRow("Down") << int(Qt::Key_Down) << 0 << QString() << true << 0;
        QTest::newRow("Up") << int(Qt::Key_Up) << 0 << QString() << false << 0;
        QTest::newRow("type w") << 0 << 0 << QStringLiteral("w") << false << 2;
        QTest::newRow("type a twice cycles") << 0 << 0 << QStringLiteral("aa") << false << 3;
        QTest::newRow("type ap") << 0 << 0 << QStringLiteral("ap") << false << 3;
        QTest::newRow("type z finds none") << 0 << 0 << QStringLiteral("z") << false << 0;
    }

    void dropDownKeys()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, typed);
        QFETCH(bool, opens);
        QFETCH(int, current);
        Bench bench(NewDropDown);
        auto* drop = static_cast<DropDown*>(bench.control);
        QVERIFY(Probe::ShowActive(&bench.window) && Probe::Focus(drop));
        bool opened = false;
        QMenu* menu = drop->GetDropDownMenu();
        connect(menu, &QMenu::aboutToShow, this, [&] {
            opened = true;
            QTimer::singleShot(0, menu, &QMenu::close);
        });
        if (key)
            QTest::keyClick(drop, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        else
            QTest::keyClicks(drop, typed);
        QCOMPARE(opened, opens);
        QCOMPARE(drop->GetCurrentIndex(), current);
    }

    // A number typed on the slider goes to its field, which the Tab stop skips.
    void sliderTypesIntoField()
    {
        Bench bench([](QWidget* p) -> QWidget* { return new Slider(p); });
        auto* slider = static_cast<Slider*>(bench.control);
        QVERIFY(Probe::ShowActive(&bench.window));
        QWidget* target = TabTarget(slider);
        QVERIFY(Probe::Focus(target));
        // The first key moves the focus to the field; the next ones go where the focus is.
        QTest::keyClick(target, '4');
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(slider->GetNumericField()));
        QTest::keyClick(QApplication::focusWidget(), '2');
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(slider->GetValue(), 42.0);
    }
};

QTEST_MAIN(tst_FocusRing)
#include "tst_focusring.moc"
