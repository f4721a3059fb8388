#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/BreadcrumbBar.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/LinkMessage.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/PaletteTitleBar.h>
#include <KvUICore/widgets/ProgressBar.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RadioButton.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/SearchBox.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/SliderControl.h>
#include <KvUICore/widgets/TextBox.h>
#include <KvUICore/widgets/TextLabel.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QFontDatabase>
#include <QHash>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Kavrel::UICore;
using Internal::ThemedColor;

namespace {

// How a row customises its control before the switch.
enum class Custom
{
    None,
    TextColor,
    ThemeKey
};

struct Control
{
    using Make = std::function<QWidget*(QWidget* window)>;
    Control(Make m, Custom c = Custom::None, QString key = QString(), bool disabledKey = true)
        : make(std::move(m))
        , custom(c)
        , keyAfterSwitch(std::move(key))
        , followsDisabledKey(disabledKey)
    {}

    // Builds the control in a window and returns the widget whose text it colours.
    Make make;
    Custom custom;
    // The key shown after a switch when customised by key (the key itself, or
    // the key the control returns to).
    QString keyAfterSwitch;
    // The colour while disabled: the disabled key's, or the enabled one.
    bool followsDisabledKey;
};

template <class T> QWidget* Itself(QWidget* window)
{
    return new T(window);
}

const QList<Control>& Controls()
{
    static const QList<Control> controls = {
        {[](QWidget* w) { return new Label(QStringLiteral("Label"), w); }, Custom::ThemeKey, ThemeFileKey::FontNormal3},
        {[](QWidget* w) { return new TextLabel(QStringLiteral("Text label"), w); }, Custom::ThemeKey,
         ThemeFileKey::FontNormal3},
        {[](QWidget* w) { return new CheckBox(QStringLiteral("Check box"), w); }, Custom::ThemeKey,
         ThemeFileKey::FontNormal1},
        {Itself<PushButton>},
        {Itself<ToolButton>},
        {[](QWidget* w) { return new RadioButton(QStringLiteral("Radio"), w); }},
        {Itself<ProgressBar>, Custom::None, QString(), false},
        {Itself<NumericField>},
        {[](QWidget* w) { return new LineEdit(w, false); }, Custom::TextColor},
        {[](QWidget* w) { return new LineEdit(w, true); }, Custom::TextColor},
        {[](QWidget* w) { return (new DoubleSpinBox(w))->GetNumericField(); }},
        {[](QWidget* w) { return (new Slider(w))->GetNumericField(); }},
        {[](QWidget* w) { return (new Slider(w))->findChild<QLabel*>(); }},
        {[](QWidget* w) { return (new Slider(w))->GetSliderControl(); }},
        {Itself<DropDown>},
        // The box paints its own disabled look into the editor.
        {[](QWidget* w) { return (new TextBox(w))->findChild<LineEdit*>(); }, Custom::None, QString(), false},
    };
    return controls;
}

// The controls as a host holds them, each showing some text, and what each
// is checked for: the host's palette, the application font, right to left.
enum Check
{
    HostPalette = 1,
    AppFont = 2,
    Mirrors = 4,
    All = 7
};

struct Hosted
{
    const char* name;
    int checks;
    // Builds the control; returns the widget whose text is checked (a part for the font).
    std::function<QWidget*(QWidget* window)> make;
};

template <class T> T* With(T* control, const std::function<void(T*)>& set)
{
    set(control);
    return control;
}

const QList<Hosted>& HostedControls()
{
    using S = QString;
    static const QList<Hosted> controls = {
        {"Label", All, [](QWidget* w) { return new Label(S("Label text"), w); }},
        {"Label wrapped", Mirrors,
         [](QWidget* w) { return With<Label>(new Label(S("Text"), w), [](Label* l) { l->setWordWrap(true); }); }},
        {"TextLabel", All, [](QWidget* w) { return new TextLabel(S("Text label"), w); }},
        {"CheckBox", All, [](QWidget* w) { return new CheckBox(S("Check box"), w); }},
        {"PushButton", HostPalette | AppFont,
         [](QWidget* w) { return With<PushButton>(new PushButton(w), [](PushButton* b) { b->setText(S("Apply")); }); }},
        {"DropDown", All,
         [](QWidget* w) {
             return With<DropDown>(new DropDown(w), [](DropDown* d) { d->setText(d->AddItem(S("Item"))->text()); });
         }},
        {"TextBox", HostPalette | Mirrors,
         [](QWidget* w) {
             return With<TextBox>(new TextBox(w), [w](TextBox* b) {
                 b->SetIcon(w->style()->standardIcon(QStyle::SP_FileIcon));
                 b->SetText(S("Text"));
             });
         }},
        {"TextBox editor", AppFont, [](QWidget* w) { return (new TextBox(w))->GetLineEdit(); }},
        {"RolloutContainer", All,
         [](QWidget* w) {
             return With<RolloutContainer>(new RolloutContainer(w), [](RolloutContainer* r) {
                 r->SetTitle(S("Rollout title"));
                 r->SetIsCheckable(true);
                 r->setMinimumHeight(40);
             });
         }},
        {"LineEdit", HostPalette | AppFont,
         [](QWidget* w) { return With<LineEdit>(new LineEdit(w), [](LineEdit* e) { e->SetText(S("Line edit")); }); }},
        {"SliderControl", AppFont | Mirrors, [](QWidget* w) { return (new Slider(w))->GetSliderControl(); }},
        // Typed text keeps its own direction in an editor, as in any Qt line edit.
        {"SearchBox icons", Mirrors, [](QWidget* w) { return new SearchBox(w); }},
        {"BreadcrumbBar", Mirrors,
         [](QWidget* w) {
             return With<BreadcrumbBar>(new BreadcrumbBar(w), [](BreadcrumbBar* b) {
                 b->SetPath({S("Root"), S("Folder")});
             });
         }},
        {"ProgressBar", Mirrors,
         [](QWidget* w) { return With<ProgressBar>(new ProgressBar(w), [](ProgressBar* b) { b->setValue(30); }); }},
        {"LinkMessage", Mirrors, [](QWidget* w) { return new LinkMessage(S("Message"), w); }},
        {"PaletteTitleBar", Mirrors,
         [](QWidget* w) {
             return With<PaletteTitleBar>(new PaletteTitleBar(w), [](PaletteTitleBar* b) { b->SetTitle(S("Title")); });
         }},
    };
    return controls;
}

void AddRows(int check)
{
    QTest::addColumn<int>("control");
    for (int i = 0; i < HostedControls().size(); ++i) {
        if (HostedControls().at(i).checks & check)
            QTest::newRow(HostedControls().at(i).name) << i;
    }
}

// Builds the row's control in a shown window; null when the window never showed.
QWidget* Build(QWidget& window, int control)
{
    auto* layout = new QVBoxLayout(&window);
    QWidget* part = HostedControls().at(control).make(&window);
    layout->addWidget(part->parentWidget() == &window ? part : part->parentWidget());
    window.resize(260, 80);
    return Probe::Shown(&window) ? part : nullptr;
}

// Pixels in which text painted in pure red covers most of the pixel; no
// theme colours text anything like it.
int RedPixels(QWidget* widget)
{
    return Probe::Count(Probe::Grab(widget),
                        [](const QColor& c) { return c.red() >= 160 && c.green() <= 90 && c.blue() <= 90; });
}

// The ink of each of 24 bands of the image: the distance of its pixels from
// its most common colour, the background. Bands, so that text (which keeps
// its reading order) counts by where it is, not by the shapes of its letters.
QList<double> InkBands(const QImage& image, bool mirrored)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    const QRgb background = std::max_element(counts.cbegin(), counts.cend()).key();
    QList<double> bands(24, 0.0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb p = image.pixel(mirrored ? image.width() - 1 - x : x, y);
            bands[x * 24 / image.width()] += qAbs(qRed(p) - qRed(background)) + qAbs(qGreen(p) - qGreen(background)) +
                                             qAbs(qBlue(p) - qBlue(background));
        }
    }
    return bands;
}

double Difference(const QList<double>& a, const QList<double>& b)
{
    double sum = 0;
    for (int i = 0; i < a.size(); ++i)
        sum += qAbs(a.at(i) - b.at(i));
    return sum;
}

QColor Theme(const QString& key)
{
    return ThemeManager::GetInstance()->GetColor(key);
}

QColor ShownText(QWidget* widget)
{
    return widget->palette().color(QPalette::Active, QPalette::Text);
}

} // namespace

class tst_ThemedColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }
    void cleanup()
    {
        QApplication::setFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light")));
    }

    void everyControlFollowsTheThemeOncePerSwitch_data()
    {
        QTest::addColumn<int>("control");
        const QStringList names = {
            "Label",        "TextLabel",     "CheckBox", "PushButton",          "ToolButton",          "RadioButton",
            "ProgressBar",  "NumericField",  "LineEdit", "LineEdit (embedded)", "DoubleSpinBox field", "Slider field",
            "Slider label", "SliderControl", "DropDown", "TextBox editor"};
        QCOMPARE(names.size(), Controls().size());
        for (int i = 0; i < names.size(); ++i)
            QTest::newRow(qPrintable(names.at(i))) << i;
    }

    void everyControlFollowsTheThemeOncePerSwitch()
    {
        QFETCH(int, control);
        const Control& row = Controls().at(control);
        ThemeManager* themes = ThemeManager::GetInstance();

        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        QWidget* part = row.make(&window);
        QVERIFY(part);
        for (QWidget* top = part; top && top != &window; top = top->parentWidget()) {
            if (top->parentWidget() == &window)
                layout->addWidget(top);
        }
        QVERIFY(Probe::Shown(&window));
        ThemedColor* color = ThemedColor::Of(part);
        QVERIFY(color);
        QCOMPARE(ShownText(part), Theme(ThemeFileKey::FontNormal1));

        // A switch, with the global style sheet's repolish, writes the palette once.
        int applied = color->GetApplyCount();
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("Dark")));
        QCOMPARE(ShownText(part), Theme(ThemeFileKey::FontNormal1));
        QCOMPARE(color->GetApplyCount() - applied, 1);
        // A host that sets its style sheet again repolishes every widget.
        qApp->setStyleSheet(qApp->styleSheet());
        QCOMPARE(ShownText(part), Theme(ThemeFileKey::FontNormal1));

        // Custom colours and keys survive the next switch.
        QColor expected = Theme(ThemeFileKey::FontNormal1);
        if (row.custom == Custom::TextColor) {
            qobject_cast<LineEdit*>(part)->SetTextColor(Qt::red);
            QCOMPARE(ShownText(part), QColor(Qt::red));
        } else if (row.custom == Custom::ThemeKey) {
            QVERIFY(part->setProperty("textColorThemeKey", ThemeFileKey::FontNormal3));
            QCOMPARE(ShownText(part), Theme(ThemeFileKey::FontNormal3));
        }
        applied = color->GetApplyCount();
        QVERIFY(themes->SetCurrentTheme(QStringLiteral("HIGLight")));
        if (row.custom == Custom::TextColor)
            expected = Qt::red;
        else if (row.custom == Custom::ThemeKey)
            expected = Theme(row.keyAfterSwitch);
        else
            expected = Theme(ThemeFileKey::FontNormal1);
        QCOMPARE(ShownText(part), expected);
        // A control that returns to its default key on a switch writes once more.
        const bool keyReturns = row.custom == Custom::ThemeKey && row.keyAfterSwitch != ThemeFileKey::FontNormal3;
        QVERIFY(color->GetApplyCount() - applied <= (keyReturns ? 2 : 1));

        // Disabled, the text takes the disabled colour (the progress bar keeps its own).
        window.setEnabled(false);
        const QColor disabled = row.followsDisabledKey ? Theme(ThemeFileKey::FontColorDisabled) : expected;
        QCOMPARE(part->palette().color(QPalette::Disabled, QPalette::Text), disabled);
        QCOMPARE(color->GetColor(), disabled);
        window.setEnabled(true);
        // A label takes "FontNormal1" again when it is enabled, whatever its key was.
        QCOMPARE(ShownText(part), qobject_cast<Label*>(part) ? Theme(ThemeFileKey::FontNormal1) : expected);
    }

    void keysMissingFromTheThemeFallBackToTheEnabledLook()
    {
        QLabel label;
        ThemedColor color(&label, ThemeFileKey::FontNormal1, QStringLiteral("NoSuchDisabledKey"));
        color.SetAlternateKey(QStringLiteral("NoSuchAlternateKey"));
        color.SetAlternateActive(true);
        QCOMPARE(ShownText(&label), Theme(ThemeFileKey::FontNormal1));
        label.setEnabled(false);
        QCOMPARE(color.GetColor(), Theme(ThemeFileKey::FontNormal1));
        QCOMPARE(label.palette().color(QPalette::Disabled, QPalette::WindowText), Theme(ThemeFileKey::FontNormal1));
    }

    void alternateLookAndCustomColours()
    {
        QLabel label;
        ThemedColor color(&label);
        color.SetAlternateKey(ThemeFileKey::FontGroupHeader);
        QCOMPARE(ShownText(&label), Theme(ThemeFileKey::FontNormal1));
        color.SetAlternateActive(true);
        QCOMPARE(ShownText(&label), Theme(ThemeFileKey::FontGroupHeader));
        color.SetAlternateCustomColor(Qt::blue);
        QCOMPARE(ShownText(&label), QColor(Qt::blue));
        QCOMPARE(color.GetEnabledColor(false), Theme(ThemeFileKey::FontNormal1));
        color.SetAlternateActive(false);
        color.SetCustomColor(Qt::green);
        QCOMPARE(ShownText(&label), QColor(Qt::green));
        QVERIFY(!color.IsDefault());
        // An invalid colour returns to the key.
        color.SetCustomColor(QColor());
        QVERIFY(color.IsDefault());
        QCOMPARE(ShownText(&label), Theme(ThemeFileKey::FontNormal1));
        // The disabled key wins over every custom colour.
        color.SetCustomColor(Qt::green);
        label.setEnabled(false);
        QCOMPARE(ShownText(&label), Theme(ThemeFileKey::FontColorDisabled));
    }

    void hostPaletteWinsUntilCleared_data() { AddRows(HostPalette); }

    // The host's red text shows, outlives a theme switch and a repolish,
    // gives way to the disabled look, and leaves when the host clears it; a
    // custom colour wins the same way.
    void hostPaletteWinsUntilCleared()
    {
        QFETCH(int, control);
        QWidget window;
        QWidget* widget = Build(window, control);
        QVERIFY(widget);
        ThemedColor* color = ThemedColor::Of(widget);
        QVERIFY(color);
        QCOMPARE(RedPixels(widget), 0);

        QPalette palette = widget->palette();
        palette.setColor(QPalette::WindowText, Qt::red);
        widget->setPalette(palette);
        QCOMPARE(color->GetColor(), QColor(Qt::red));
        QVERIFY(RedPixels(widget) > 0);
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Dark")));
        qApp->setStyleSheet(qApp->styleSheet());
        QCoreApplication::processEvents();
        QCOMPARE(color->GetColor(), QColor(Qt::red));
        QVERIFY(RedPixels(widget) > 0);

        window.setEnabled(false);
        QCOMPARE(RedPixels(widget), 0);
        window.setEnabled(true);
        QVERIFY(RedPixels(widget) > 0);

        widget->setPalette(QPalette());
        QCOMPARE(color->GetColor(), Theme(ThemeFileKey::FontNormal1));
        QCOMPARE(RedPixels(widget), 0);

        color->SetCustomColor(Qt::red);
        QVERIFY(RedPixels(widget) > 0);
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("HIGLight")));
        QVERIFY(RedPixels(widget) > 0);
        color->SetCustomColor(QColor());
        QCOMPARE(RedPixels(widget), 0);
    }

    void controlsFollowTheApplicationFont_data() { AddRows(AppFont); }

    // The theme's pixel size is the default; an application font the host
    // sets reaches controls already built, and leaves again with it. A font
    // set on the control itself wins until cleared.
    void controlsFollowTheApplicationFont()
    {
        QFETCH(int, control);
        const int themed = ThemeManager::GetInstance()->GetInt(ThemeFileKey::FontPixelSizeVal);
        QVERIFY(themed > 0);
        const QFont platform = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        QWidget window;
        QWidget* part = Build(window, control);
        QVERIFY(part);
        const auto shown = [part] {
            part->window()->grab(); // a text box hands its font on when it paints
            return part->font();
        };
        QCOMPARE(shown().pixelSize(), themed);
        QFont large = platform;
        large.setPointSize(16);
        QApplication::setFont(large);
        QCOMPARE(shown().pointSize(), 16);
        QApplication::setFont(platform);
        QCOMPARE(shown().pixelSize(), themed);

        if (qobject_cast<LineEdit*>(part))
            return; // the line edit and the box's editor take their fonts from their owner
        large.setPixelSize(30);
        part->setFont(large);
        QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Dark")));
        QCOMPARE(shown().pixelSize(), 30);
        part->setFont(QFont());
        QCOMPARE(shown().pixelSize(), themed);
    }

    void rightToLeftMirrorsTheControl_data() { AddRows(Mirrors); }

    // A right-to-left layout shows the control as its left-to-right look in
    // a mirror: where ink was on the left it is now on the right.
    void rightToLeftMirrorsTheControl()
    {
        QFETCH(int, control);
        QWidget window;
        QWidget* widget = Build(window, control);
        QVERIFY(widget);
        const QImage ltr = Probe::Grab(widget);
        window.setLayoutDirection(Qt::RightToLeft);
        QCoreApplication::processEvents();
        const QList<double> rtl = InkBands(Probe::Grab(widget), false);
        const double mirrored = Difference(rtl, InkBands(ltr, true));
        const double unchanged = Difference(rtl, InkBands(ltr, false));
        QVERIFY2(mirrored * 2 < unchanged, qPrintable(QStringLiteral("%1 against %2").arg(mirrored).arg(unchanged)));
    }
};

QTEST_MAIN(tst_ThemedColor)
#include "tst_themedcolor.moc"
