#include <KvUICore/widgets/Slider.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/SliderControl.h>

#include <KvCoreUnits/MathUtilities.h>
#include <KvCoreUnits/UnitsConverter.h>
#include <KvCoreUnits/UnitsUtilities.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

#include <algorithm>
#include <climits>
#include <cmath>

namespace Kavrel::UICore {

namespace {

namespace units = kavrel::platform::core::units;
using units::MathUtilities;
using units::UnitsConverter;
using units::UnitsUtilities;
using Units = kvp::IDesignPropertyUnits;

constexpr int kMaximumEffectivePrecision = 3;
constexpr int kPageStep = 10;
// Positions stay well inside int so that steps and ranges cannot overflow.
constexpr double kPositionLimit = INT_MAX / 4;

} // namespace

class SliderImp
{
public:
    explicit SliderImp(Slider* owner)
        : mpOwner(owner)
    {}

    // The unit type the current symbol shows, or the value's own unit type
    // when the symbol has none (a plain number shown for a length).
    Units::teType SymbolUnitType() const
    {
        Units::teType symbolType = Units::eUnitless;
        if (UnitsUtilities::GetUnitType(mpOwner->GetUnitSymbolType(), symbolType) != units::kSuccess ||
            symbolType == Units::eUnitless)
            return mpOwner->GetUnitType();
        return symbolType;
    }

    double SymbolValue(double value) const
    {
        const Units::teType symbolType = SymbolUnitType();
        if (symbolType == mpOwner->GetUnitType())
            return value;
        double converted = value;
        UnitsConverter::Convert(value, mpOwner->GetUnitType(), converted, symbolType);
        return converted;
    }

    bool ApplyMultiplier() const { return mpOwner->GetDecimalPrecision() != 0; }

    int ScaledPosition(double symbolValue) const
    {
        const double scaled = MathUtilities::_round(ApplyMultiplier() ? symbolValue * miMultiplier : symbolValue);
        if (!std::isfinite(scaled))
            return scaled < 0 ? int(-kPositionLimit) : int(kPositionLimit);
        return int(std::clamp(scaled, -kPositionLimit, kPositionLimit));
    }

    int Position(double value) const { return ScaledPosition(SymbolValue(value)); }

    void ShowValueInField()
    {
        QString text;
        mpOwner->GetLocaleStringFromValue(mpOwner->GetValue(), text);
        if (text.isEmpty())
            text = QString::number(mpOwner->GetValue(), 'f', mpOwner->GetDecimalPrecision());
        mpNumericField->setText(text);
        mpNumericField->setCursorPosition(0);
    }

    // Sets the control's position without taking it back as a value.
    void PlaceSlider(int position)
    {
        miSliderPosition = position;
        const bool guard = mbUpdatingSlider;
        mbUpdatingSlider = true;
        mpSliderControl->setSliderPosition(position);
        mbUpdatingSlider = guard;
    }

    void UpdateRange(bool moveSlider)
    {
        mdSymbolMinimum = SymbolValue(mdMinimum);
        mdSymbolMaximum = SymbolValue(mdMaximum);
        miMinimumPosition = ScaledPosition(mdSymbolMinimum);
        miMaximumPosition = ScaledPosition(mdSymbolMaximum);
        if (!moveSlider) {
            mpSliderControl->SetRange(miMinimumPosition, miMaximumPosition);
            return;
        }
        miSliderPosition = Position(mpOwner->GetValue());
        const bool guard = mbUpdatingSlider;
        mbUpdatingSlider = true;
        mpSliderControl->SetRange(miMinimumPosition, miMaximumPosition);
        mpSliderControl->setValue(miSliderPosition);
        mbUpdatingSlider = guard;
    }

    void SetSliderValue(int position)
    {
        const double shown = ApplyMultiplier() ? double(position) / miMultiplier : double(position);
        double value = 0.0;
        if (!mpOwner->ValidateValue(QString::number(shown, 'g', 6), value)) {
            // Refused: the thumb goes back to where the value is.
            PlaceSlider(miSliderPosition);
            return;
        }
        miSliderPosition = position;
        if (!mpSliderControl->EmitValue())
            return;
        mpOwner->WidgetUnits::SetValue(value, false);
        ShowValueInField();
        Q_EMIT mpOwner->ValueChanged(mpOwner->GetValue());
    }

    double Clamped(double value) const
    {
        if (value > mdMaximum)
            return mdMaximum;
        if (value < mdMinimum)
            return mdMinimum;
        return value;
    }

    void ShowLabelFor(int symbol) { mpOwner->SetUnitSymbolLabel(mpOwner->GetUnitDisplayName(symbol)); }

    void ApplyTextColors()
    {
        const QColor color = ThemeManager::GetInstance()->GetColor(
            mpOwner->isEnabled() ? ThemeFileKey::FontNormal1 : ThemeFileKey::FontColorDisabled);
        Internal::SetTextColor(mpUnitSymbolLabel, color);
        Internal::SetTextColor(mpNumericField, color);
    }

    void MarkOrUpdate()
    {
        if (mbDeferUpdateForUnits)
            mbHaveDeferredUpdatesForUnits = true;
        else
            mpOwner->UpdateForUnits();
    }

    Slider* const mpOwner;
    SliderControl* mpSliderControl = nullptr;
    NumericField* mpNumericField = nullptr;
    QLabel* mpUnitSymbolLabel = nullptr;
    QHBoxLayout* mpLayout = nullptr;
    int miMultiplier = 100;
    double mdMinimum = 0.0;
    double mdMaximum = 100.0;
    double mdSymbolMinimum = 0.0;
    double mdSymbolMaximum = 100.0;
    int miSliderPosition = 0;
    int miMinimumPosition = 0;
    int miMaximumPosition = 10000;
    bool mbShowUnitSymbolLabel = false;
    int miEffectivePrecision = 2;
    bool mbTreatValueAsFloat = false;
    bool mbUpdatingSlider = false;
    bool mbDeferUpdateForUnits = false;
    bool mbHaveDeferredUpdatesForUnits = false;
    int miPendingUnitSymbol = -1;
    int miPendingPrecision = -1;
};

Slider::Slider(QWidget* parent)
    : QWidget(parent)
    , WidgetUnits()
    , mpImp(std::make_unique<SliderImp>(this))
{
    mpImp->mpSliderControl = new SliderControl(this);
    mpImp->mpSliderControl->setFont(QApplication::font("QAbstractItemView"));
    mpImp->mpSliderControl->setStyle(CustomStyle::GetInstance());
    mpImp->mpSliderControl->setOrientation(Qt::Horizontal);
    mpImp->mpSliderControl->setPageStep(kPageStep);
    mpImp->mpSliderControl->setAttribute(Qt::WA_Hover, true);
    mpImp->mpNumericField = new NumericField(this);
    mpImp->mpUnitSymbolLabel = new QLabel(this);
    mpImp->mpUnitSymbolLabel->hide();
    mpImp->mpUnitSymbolLabel->installEventFilter(this);

    mpImp->UpdateRange(false);

    mpImp->mpSliderControl->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    mpImp->mpNumericField->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    mpImp->mpUnitSymbolLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    mpImp->mpSliderControl->setAttribute(Qt::WA_LayoutUsesWidgetRect, true);

    mpImp->mpLayout = new QHBoxLayout(this);
    mpImp->mpLayout->setContentsMargins(0, 0, 0, 0);
    mpImp->mpLayout->setSpacing(1);
    mpImp->mpLayout->addWidget(mpImp->mpSliderControl, 2);
    mpImp->mpLayout->addWidget(mpImp->mpNumericField, 1);
    mpImp->mpLayout->addWidget(mpImp->mpUnitSymbolLabel, 0);

    mpImp->mpUnitSymbolLabel->setText(QString());
    SetDecimalPrecision(2);
    if (mpImp->mdMinimum != 0.0 || mpImp->mdMaximum != 100.0)
        SetRange(0.0, 100.0);
    mpImp->ShowValueInField();
    mpImp->mpUnitSymbolLabel->setAlignment(Qt::AlignVCenter);

    connect(mpImp->mpSliderControl, SIGNAL(valueChanged(int)), this, SLOT(UpdateSliderValue(int)));
    connect(mpImp->mpNumericField, SIGNAL(editingFinished()), this, SLOT(TextEditComplete()));
    connect(mpImp->mpSliderControl, SIGNAL(sliderPressed()), this, SLOT(OnSliderPressed()));
    connect(mpImp->mpSliderControl, SIGNAL(sliderMoved(int)), this, SLOT(OnSliderMoved(int)));
    connect(mpImp->mpSliderControl, SIGNAL(sliderReleased()), this, SLOT(OnSliderReleased()));
    connect(mpImp->mpSliderControl, SIGNAL(EscapeReleased()), this, SLOT(EscapeReleased()));
    connect(mpImp->mpSliderControl, SIGNAL(FocusOut()), this, SIGNAL(SliderFocusOut()));
    connect(mpImp->mpSliderControl, SIGNAL(IncDecKeyPressed(int)), this, SLOT(IncDecKeyPressed(int)));
    connect(mpImp->mpNumericField, SIGNAL(FocusOut()), this, SIGNAL(SliderFocusOut()));
    connect(ThemeManager::GetInstance(), SIGNAL(ThemeChanged(const QString&, const QString&)), this,
            SLOT(OnThemeChanged()));

    mpImp->SetSliderValue(mpImp->mpSliderControl->value());
    mpImp->ApplyTextColors();
}

Slider::~Slider() = default;

double Slider::GetMinimum() const
{
    return mpImp->mdMinimum;
}

double Slider::GetMaximum() const
{
    return mpImp->mdMaximum;
}

void Slider::SetMinimum(double minimum)
{
    if (mpImp->mdMinimum == minimum)
        return;
    mpImp->mdMinimum = minimum;
    mpImp->UpdateRange(false);
}

void Slider::SetMaximum(double maximum)
{
    if (mpImp->mdMaximum == maximum)
        return;
    mpImp->mdMaximum = maximum;
    mpImp->UpdateRange(false);
}

void Slider::SetRange(double minimum, double maximum)
{
    if (mpImp->mdMinimum == minimum && mpImp->mdMaximum == maximum)
        return;
    mpImp->mdMinimum = minimum;
    mpImp->mdMaximum = maximum;
    mpImp->UpdateRange(false);
}

void Slider::SetDisplayText(const QString& text)
{
    mpImp->mpSliderControl->SetDisplayText(text);
}

void Slider::SetNumFieldVisible(bool visible)
{
    mpImp->mpNumericField->setVisible(visible);
}

void Slider::SetSliderControlVisible(bool visible)
{
    mpImp->mpSliderControl->setVisible(visible);
}

void Slider::SetUnitSymbolLabel(const QString& text)
{
    mpImp->mpUnitSymbolLabel->setText(text);
    if (mpImp->mbShowUnitSymbolLabel)
        mpImp->mpUnitSymbolLabel->setVisible(!text.isEmpty());
}

QString Slider::GetUnitSymbolLabel() const
{
    return mpImp->mpUnitSymbolLabel ? mpImp->mpUnitSymbolLabel->text() : QString();
}

void Slider::ShowUnitSymbolLabel(bool show)
{
    mpImp->mbShowUnitSymbolLabel = show;
    mpImp->mpUnitSymbolLabel->setVisible(show && !mpImp->mpUnitSymbolLabel->text().isEmpty());
}

SliderControl* Slider::GetSliderControl() const
{
    return mpImp->mpSliderControl;
}

NumericField* Slider::GetNumericField() const
{
    return mpImp->mpNumericField;
}

int Slider::GetTextBoxFixedWidth() const
{
    return mpImp->mpNumericField->width();
}

void Slider::SetTabOrderNextWidget(QWidget* next)
{
    if (next)
        QWidget::setTabOrder(mpImp->mpNumericField, next);
}

void Slider::SetTreatValueAsFloat(bool treatAsFloat)
{
    mpImp->mbTreatValueAsFloat = treatAsFloat;
}

bool Slider::TreatValueAsFloat() const
{
    return mpImp->mbTreatValueAsFloat;
}

bool Slider::IsModified() const
{
    return mpImp->mpNumericField->IsModified();
}

void Slider::ClearModified()
{
    mpImp->mpNumericField->ClearModified();
}

void Slider::SetDeferUpdateForUnits(bool defer)
{
    mpImp->mbDeferUpdateForUnits = defer;
}

bool Slider::DeferUpdateForUnits() const
{
    return mpImp->mbDeferUpdateForUnits;
}

bool Slider::HaveDeferredUpdatesForUnits() const
{
    return mpImp->mbHaveDeferredUpdatesForUnits;
}

void Slider::UpdateForUnits()
{
    if (mpImp->mbDeferUpdateForUnits) {
        mpImp->mbHaveDeferredUpdatesForUnits = true;
        return;
    }
    if (mpImp->miPendingPrecision != -1 && mpImp->miPendingUnitSymbol == -1)
        mpImp->UpdateRange(true);
    mpImp->miPendingPrecision = -1;
    if (mpImp->miPendingUnitSymbol != -1) {
        mpImp->ShowLabelFor(mpImp->miPendingUnitSymbol);
        mpImp->UpdateRange(true);
        mpImp->miPendingUnitSymbol = -1;
    }
    mpImp->ShowValueInField();
    mpImp->mbHaveDeferredUpdatesForUnits = false;
}

void Slider::setGeometry(const QRect& rect)
{
    QWidget::setGeometry(rect);
    updateGeometry();
}

void Slider::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateGeometry();
}

void Slider::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        mpImp->ApplyTextColors();
}

bool Slider::eventFilter(QObject* watched, QEvent* event)
{
    // A style sheet's polish replaces the label's palette: colour it again after it.
    if (watched == mpImp->mpUnitSymbolLabel && event->type() == QEvent::StyleChange)
        mpImp->ApplyTextColors();
    return QWidget::eventFilter(watched, event);
}

void Slider::OnChanged_DecimalPrecision(int, int newPrecision)
{
    mpImp->miEffectivePrecision = std::clamp(newPrecision, 0, kMaximumEffectivePrecision);
    mpImp->miMultiplier = int(std::lround(std::pow(10.0, mpImp->miEffectivePrecision)));
    mpImp->mpSliderControl->SetPrecision(newPrecision, mpImp->miEffectivePrecision);
    if (mpImp->mbDeferUpdateForUnits) {
        mpImp->miPendingPrecision = newPrecision;
        mpImp->mbHaveDeferredUpdatesForUnits = true;
        return;
    }
    mpImp->ShowValueInField();
    mpImp->UpdateRange(true);
}

void Slider::OnChanged_UnitSymbol(UnitSymbol, UnitSymbol newSymbol)
{
    if (mpImp->mbDeferUpdateForUnits) {
        mpImp->miPendingUnitSymbol = newSymbol;
        mpImp->mbHaveDeferredUpdatesForUnits = true;
        return;
    }
    mpImp->ShowLabelFor(newSymbol);
    mpImp->ShowValueInField();
    mpImp->UpdateRange(true);
}

void Slider::OnChanged_NumberFormat(NumberFormat, NumberFormat)
{
    mpImp->MarkOrUpdate();
}

void Slider::OnChanged_Value(double, double newValue)
{
    mpImp->PlaceSlider(mpImp->Position(newValue));
    QString text;
    GetLocaleStringFromValue(newValue, text);
    mpImp->mpNumericField->setText(text);
    mpImp->mpNumericField->setCursorPosition(0);
}

void Slider::OnChanged_DecimalSeparator(QString, QString)
{
    mpImp->MarkOrUpdate();
}

void Slider::OnChanged_GroupSeparator(QString, QString)
{
    mpImp->MarkOrUpdate();
}

void Slider::OnChanged_NumberSign(bool, bool)
{
    mpImp->MarkOrUpdate();
}

void Slider::OnChanged_ExponentSign(bool, bool)
{
    mpImp->MarkOrUpdate();
}

void Slider::OnChanged_UnitSymbolDisplayEnabled(bool, bool)
{
    mpImp->MarkOrUpdate();
}

bool Slider::ValidateValue(const QString& text, double& value)
{
    if (!WidgetUnits::ValidateValue(text, value))
        return false;
    if (mpImp->mbTreatValueAsFloat) {
        const double single = double(float(value));
        if (single != value)
            value = single;
    }
    bool valid = true;
    Q_EMIT ValidateChangingValue(value, valid);
    return valid;
}

void Slider::UpdateSliderValue(int scaleValue)
{
    if (mpImp->mbUpdatingSlider || scaleValue == mpImp->miSliderPosition)
        return;
    mpImp->SetSliderValue(scaleValue);
}

void Slider::TextEditComplete()
{
    if (!mpImp->mpNumericField->IsModified())
        return;
    mpImp->mpNumericField->ClearModified();
    double value = 0.0;
    const bool valid = ValidateValue(mpImp->mpNumericField->text(), value);
    if (valid)
        value = mpImp->Clamped(value);
    if (!valid || std::fabs(value - GetValue()) <= GetTolerance()) {
        mpImp->ShowValueInField();
        return;
    }
    WidgetUnits::SetValue(value, false);
    mpImp->PlaceSlider(mpImp->Position(GetValue()));
    mpImp->ShowValueInField();
    // Each handler may delete the slider.
    QPointer<Slider> self(this);
    Q_EMIT SliderPressed();
    if (self)
        Q_EMIT ValueChanged(GetValue());
    if (self)
        Q_EMIT SliderReleased();
}

void Slider::OnSliderPressed()
{
    Q_EMIT SliderPressed();
}

void Slider::OnSliderReleased()
{
    Q_EMIT SliderReleased();
}

void Slider::OnSliderMoved(int position)
{
    Q_EMIT SliderMoved(position);
}

void Slider::OnThemeChanged()
{
    mpImp->ApplyTextColors();
    update();
}

void Slider::EscapeReleased()
{
    Q_EMIT SliderChangeCancelled();
}

void Slider::IncDecKeyPressed(int number)
{
    const Units::teType symbolType = mpImp->SymbolUnitType();
    const Units::teType unitType = GetUnitType();
    const int precision = GetDecimalPrecision();
    const double step = HasDegreeMinuteSecond(GetUnitSymbolType()) ? CalculateStepForDegreeMinuteSecond(precision)
                                                                   : 1.0 / std::pow(10.0, precision);
    double shown = GetValue();
    if (symbolType != unitType && UnitsConverter::Convert(GetValue(), unitType, shown, symbolType) != units::kSuccess)
        return;
    shown += step * number;
    double value = shown;
    if (symbolType != unitType && UnitsConverter::Convert(shown, symbolType, value, unitType) != units::kSuccess)
        return;
    WidgetUnits::SetValue(mpImp->Clamped(value), false);
    mpImp->ShowValueInField();
    Q_EMIT ValueChanged(GetValue());
}

} // namespace Kavrel::UICore
