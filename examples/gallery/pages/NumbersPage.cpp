// Unit-aware spin boxes and sliders in millimetres, inches, feet and inches
// with fractions, degrees/minutes/seconds, percent and plain numbers. Each
// control tells what it read, so typing an expression such as "1ft 3in + 20mm"
// shows the parsed value; switches change the precision and the unit symbol of
// every control at once.
#include "GalleryPage.h"

#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/DoubleSpinBox.h>
#include <KvUICore/widgets/DropDown.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/Slider.h>

#include <KvCoreUnits/UnitsTypes.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include <vector>

using namespace Kavrel::UICore;
namespace units = kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

namespace {

// The standard height of a control row.
constexpr int kRowHeight = 24;

QString tr(const char* text)
{
    return QCoreApplication::translate("NumbersPage", text);
}

struct UnitKind
{
    const char* title;
    Units::teType type;
    units::UnitSymbol symbol;
    units::NumberFormat format;
    int precision;
    double minimum;
    double maximum;
    double initial;
    const char* unitText; // how the parsed value is labelled
};

const UnitKind kKinds[] = {
    {QT_TRANSLATE_NOOP("NumbersPage", "Millimetres"), Units::eMillimeter, units::kSymbolMillimeter,
     units::kNumberFormatDecimal, 2, 0.0, 5000.0, 1200.0, "mm"},
    {QT_TRANSLATE_NOOP("NumbersPage", "Inches"), Units::eInch, units::kSymbolInch, units::kNumberFormatDecimal, 2, 0.0,
     200.0, 47.25, "in"},
    {QT_TRANSLATE_NOOP("NumbersPage", "Feet and inches, fractions"), Units::eInch,
     units::kSymbolFeetDashFractionalInches, units::kNumberFormatFractional, 4, 0.0, 1200.0, 66.5, "in"},
    {QT_TRANSLATE_NOOP("NumbersPage", "Degrees, minutes, seconds"), Units::eDegree, units::kSymbolDegreesMinutesSeconds,
     units::kNumberFormatDecimal, 4, 0.0, 360.0, 45.5041666666667, "°"},
    {QT_TRANSLATE_NOOP("NumbersPage", "Percent"), Units::ePercent, units::kSymbolPercent, units::kNumberFormatDecimal,
     1, 0.0, 100.0, 35.0, "%"},
    {QT_TRANSLATE_NOOP("NumbersPage", "Plain number"), Units::eUnitless, units::kSymbolUnitless,
     units::kNumberFormatDecimal, 2, -1000.0, 1000.0, 12.5, ""},
};

QString ParsedText(double value, const UnitKind& kind)
{
    const QString number = QString::number(value, 'g', 12);
    return kind.unitText[0] ? tr("read as %1 %2").arg(number, QString::fromUtf8(kind.unitText))
                            : tr("read as %1").arg(number);
}

// Sets up the unit part of a control. Changing the symbol installs the
// number-only display, so the display flag is applied afterwards.
void ApplyKind(WidgetUnits& target, const UnitKind& kind, bool showSymbol)
{
    target.SetUnitType(kind.type);
    target.SetNumberFormatId(kind.format);
    target.SetDecimalPrecision(kind.precision);
    target.SetUnitSymbolType(kind.symbol);
    target.SetUnitSymbolDisplayEnabled(showSymbol);
}

// Every numeric control of the page, so that the switches reach them all.
struct Controls
{
    std::vector<std::pair<DoubleSpinBox*, const UnitKind*>> spinBoxes;
    std::vector<std::pair<Slider*, const UnitKind*>> sliders;
    int precision = -1; // -1: each unit's own
    bool showSymbol = true;
    bool showLabel = false;

    void Apply()
    {
        for (auto& [spin, kind] : spinBoxes) {
            const double value = spin->value();
            spin->SetDecimalPrecision(precision < 0 ? kind->precision : precision);
            spin->SetUnitSymbolDisplayEnabled(showSymbol);
            spin->setValue(value);
        }
        for (auto& [slider, kind] : sliders) {
            // One refresh for the whole batch.
            slider->SetDeferUpdateForUnits(true);
            slider->SetDecimalPrecision(precision < 0 ? kind->precision : precision);
            slider->SetUnitSymbolDisplayEnabled(showSymbol);
            slider->SetDeferUpdateForUnits(false);
            slider->UpdateForUnits();
            slider->ShowUnitSymbolLabel(showLabel);
        }
    }
};

// The label names its control, for screen readers too.
Label* Naming(Label* label, QWidget* control)
{
    label->setBuddy(control);
    return label;
}

QWidget* switches(Controls* controls, QWidget* parent)
{
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* precisionLabel = new Label(tr("Decimal precision"), row);
    layout->addWidget(precisionLabel);
    auto* precision = new DropDown(row);
    precisionLabel->setBuddy(precision);
    precision->AddItem(tr("Each unit's own"), -1);
    for (int p = 0; p <= 5; ++p)
        precision->AddItem(QString::number(p), p);
    precision->SetCurrentIndex(0);
    precision->SetAlignment(DropDown::AlignLeft);
    precision->setMinimumWidth(150);
    QObject::connect(precision, &DropDown::CurrentIndexChanged, row, [controls, precision](int index) {
        controls->precision = precision->ItemData(index).toInt();
        controls->Apply();
    });
    layout->addWidget(precision);
    layout->addSpacing(16);
    auto* symbol = new CheckBox(tr("Show the unit symbol"), row);
    symbol->setChecked(true);
    QObject::connect(symbol, &QCheckBox::toggled, row, [controls](bool on) {
        controls->showSymbol = on;
        controls->Apply();
    });
    layout->addWidget(symbol);
    auto* label = new CheckBox(tr("Unit label beside sliders"), row);
    QObject::connect(label, &QCheckBox::toggled, row, [controls](bool on) {
        controls->showLabel = on;
        controls->Apply();
    });
    layout->addWidget(label);
    layout->addStretch();
    return row;
}

QWidget* spinBoxes(Controls* controls, QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    int row = 0;
    for (const UnitKind& kind : kKinds) {
        auto* spin = new DoubleSpinBox(page);
        spin->setRange(kind.minimum, kind.maximum);
        ApplyKind(*spin, kind, true);
        spin->setValue(kind.initial);
        // The spin box's own size hint is low under the library's frameless
        // style; the page gives it the standard row height, as a host would.
        spin->setMinimumSize(150, kRowHeight);
        auto* parsed = new Label(ParsedText(spin->value(), kind), page);
        QObject::connect(spin, &QDoubleSpinBox::valueChanged, parsed,
                         [parsed, &kind](double value) { parsed->setText(ParsedText(value, kind)); });
        grid->addWidget(Naming(new Label(tr(kind.title), page), spin), row, 0);
        grid->addWidget(spin, row, 1);
        grid->addWidget(parsed, row, 2);
        controls->spinBoxes.emplace_back(spin, &kind);
        ++row;
    }
    auto* compact = new DoubleSpinBox(page, true);
    compact->setRange(0.0, 10.0);
    compact->setValue(2.5);
    grid->addWidget(Naming(new Label(tr("Compact"), page), compact), row, 0);
    grid->addWidget(compact, row, 1, Qt::AlignLeft);
    ++row;
    auto* disabled = new DoubleSpinBox(page);
    disabled->setRange(0.0, 5000.0);
    ApplyKind(*disabled, kKinds[0], true);
    disabled->setValue(640.0);
    disabled->setEnabled(false);
    disabled->setMinimumSize(150, kRowHeight);
    grid->addWidget(Naming(new Label(tr("Disabled"), page), disabled), row, 0);
    grid->addWidget(disabled, row, 1);
    grid->setColumnStretch(2, 1);
    return page;
}

QWidget* sliders(Controls* controls, QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    int row = 0;
    for (const UnitKind& kind : kKinds) {
        auto* slider = new Slider(page);
        ApplyKind(*slider, kind, true);
        slider->SetRange(kind.minimum, kind.maximum);
        slider->SetValue(kind.initial);
        slider->setMinimumWidth(300);
        auto* parsed = new Label(ParsedText(slider->GetValue(), kind), page);
        QObject::connect(slider, &Slider::ValueChanged, parsed,
                         [parsed, &kind](double value) { parsed->setText(ParsedText(value, kind)); });
        // Escape during a drag puts the value back to where the drag began.
        auto* start = new double(kind.initial);
        QObject::connect(slider, &QObject::destroyed, [start] { delete start; });
        QObject::connect(slider, &Slider::SliderPressed, slider, [slider, start] { *start = slider->GetValue(); });
        QObject::connect(slider, &Slider::SliderChangeCancelled, slider, [slider, start, parsed, &kind] {
            slider->SetValue(*start);
            parsed->setText(ParsedText(slider->GetValue(), kind));
        });
        grid->addWidget(Naming(new Label(tr(kind.title), page), slider), row, 0);
        grid->addWidget(slider, row, 1);
        grid->addWidget(parsed, row, 2);
        controls->sliders.emplace_back(slider, &kind);
        ++row;
    }
    auto* opacity = new Slider(page);
    opacity->SetDisplayText(tr("Opacity"));
    opacity->SetValue(70.0);
    opacity->SetNumFieldVisible(false);
    grid->addWidget(Naming(new Label(tr("Text in the groove"), page), opacity), row, 0);
    grid->addWidget(opacity, row, 1);
    ++row;
    auto* disabled = new Slider(page);
    disabled->SetValue(25.0);
    disabled->setEnabled(false);
    disabled->setMinimumSize(150, kRowHeight);
    grid->addWidget(Naming(new Label(tr("Disabled"), page), disabled), row, 0);
    grid->addWidget(disabled, row, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

GalleryPageRegistration registration(300, QStringLiteral("Numbers"), [](QWidget* parent) {
    QScrollArea* area = NewPageArea(parent);
    auto* content = new QWidget(area);
    auto* controls = new Controls;
    QObject::connect(content, &QObject::destroyed, [controls] { delete controls; });
    auto* column = new QVBoxLayout(content);
    column->addWidget(switches(controls, content));
    auto* hint = new Label(tr("Type a value with any unit of its kind, or an expression such as 1ft 3in + 20mm, "
                              "and press Return. Arrow and page keys step by the smallest shown digit; Escape "
                              "during a slider drag puts the value back."),
                           content);
    hint->setWordWrap(true);
    column->addWidget(hint);
    column->addWidget(BoldHeading(tr("Spin boxes"), content));
    column->addWidget(spinBoxes(controls, content));
    column->addSpacing(12);
    column->addWidget(BoldHeading(tr("Sliders"), content));
    column->addWidget(sliders(controls, content));
    column->addStretch();
    area->setWidget(content);
    return area;
});

} // namespace
