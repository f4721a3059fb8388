#include "../PaintProbe.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/LineEdit.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/ProgressBar.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RadioButton.h>
#include <KvUICore/widgets/RolloutContainer.h>
#include <KvUICore/widgets/Slider.h>
#include <KvUICore/widgets/SliderControl.h>
#include <KvUICore/widgets/TextBox.h>
#include <KvUICore/widgets/TextLabel.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QLabel>
#include <QVBoxLayout>

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

// The controls as a host holds them, each showing some text.
const QList<std::pair<const char*, Control::Make>>& HostControls()
{
    static const QList<std::pair<const char*, Control::Make>> controls = {
        {"Label", [](QWidget* w) { return new Label(QStringLiteral("Label text"), w); }},
        {"TextLabel", [](QWidget* w) { return new TextLabel(QStringLiteral("Text label"), w); }},
        {"CheckBox", [](QWidget* w) { return new CheckBox(QStringLiteral("Check box"), w); }},
        {"PushButton",
         [](QWidget* w) {
             auto* button = new PushButton(w);
             button->setText(QStringLiteral("Button"));
             return button;
         }},
        {"DropDown",
         [](QWidget* w) {
             auto* dropDown = new DropDown(w);
             dropDown->AddItem(QStringLiteral("Drop-down item"));
             dropDown->setText(QStringLiteral("Drop-down item"));
             return dropDown;
         }},
        {"TextBox",
         [](QWidget* w) {
             auto* box = new TextBox(w);
             box->SetText(QStringLiteral("Text box"));
             return box;
         }},
        {"RolloutContainer",
         [](QWidget* w) {
             auto* rollout = new RolloutContainer(w);
             rollout->SetTitle(QStringLiteral("Rollout title"));
             rollout->setMinimumHeight(40);
             return rollout;
         }},
        {"LineEdit",
         [](QWidget* w) {
             auto* edit = new LineEdit(w);
             edit->SetText(QStringLiteral("Line edit"));
             return edit;
         }},
    };
    return controls;
}

// Pixels in which text painted in pure red covers most of the pixel; no
// theme colours text anything like it.
int RedPixels(QWidget* widget)
{
    return Probe::Count(Probe::Grab(widget),
                        [](const QColor& c) { return c.red() >= 160 && c.green() <= 90 && c.blue() <= 90; });
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
    void cleanup() { QVERIFY(ThemeManager::GetInstance()->SetCurrentTheme(QStringLiteral("Light"))); }

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

    void paletteIsWrittenOnlyWhenTheColourDiffers()
    {
        QLabel label;
        ThemedColor color(&label);
        const int applied = color.GetApplyCount();
        color.Apply();
        color.SetKey(ThemeFileKey::FontNormal1);
        QCOMPARE(color.GetApplyCount(), applied);
    }

    void hostPaletteWinsUntilCleared_data()
    {
        QTest::addColumn<int>("control");
        for (int i = 0; i < HostControls().size(); ++i)
            QTest::newRow(HostControls().at(i).first) << i;
    }

    // The host's red text shows, outlives a theme switch and a repolish,
    // gives way to the disabled look, and leaves when the host clears it; a
    // custom colour wins the same way.
    void hostPaletteWinsUntilCleared()
    {
        QFETCH(int, control);
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        QWidget* widget = HostControls().at(control).second(&window);
        layout->addWidget(widget);
        window.resize(240, 80);
        QVERIFY(Probe::Shown(&window));
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
};

QTEST_MAIN(tst_ThemedColor)
#include "tst_themedcolor.moc"
