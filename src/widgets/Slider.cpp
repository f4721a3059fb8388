#include <KvUICore/widgets/Slider.h>

#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/DeferredUnitsUpdate_p.h>
#include <KvUICore/widgets/NumericField.h>
#include <KvUICore/widgets/SliderControl.h>
#include <KvUICore/widgets/ThemedColor_p.h>
#include <KvUICore/widgets/ThemedFont_p.h>

#include <KvCoreUnits/MathUtilities.h>
#include <KvCoreUnits/UnitsConverter.h>
#include <KvCoreUnits/UnitsUtilities.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
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

// The slider is one Tab stop: the control takes it (its keys step the value)
// and the field only the pointer. Typing a number on the control starts
// editing it in the field, so typed values stay within keyboard reach.
class TypeIntoField : public QObject
{
public:
    TypeIntoField(QWidget* control, NumericField* field)
        : QObject(control)
        , mpField(field)
    {
        control->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        const QString text = key->text();
        if (text.size() != 1 || !StartsNumber(text.front()) || !mpField->isEnabled() || mpField->isReadOnly())
            return false;
        mpField->setFocus(Qt::OtherFocusReason);
        mpField->selectAll();
        QKeyEvent copy(QEvent::KeyPress, key->key(), key->modifiers(), text);
        QCoreApplication::sendEvent(mpField, &copy);
        return true;
    }

private:
    static bool StartsNumber(QChar c)
    {
        return c.isDigit() || c == QLatin1Char('-') || c == QLatin1Char('+') || c == QLatin1Char('.') ||
               c == QLatin1Char(',');
    }

    NumericField* const mpField;
};

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
        if (mpOwner->WidgetUnits::SetValue(value, false))
            Q_EMIT mpOwner->ValueUpdated(mpOwner->GetValue());
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

    void MarkOrUpdate()
    {
        mDeferred.MarkOrRun([this] { mpOwner->UpdateForUnits(); });
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
    Internal::DeferredUnitsUpdate mDeferred;
    int miPendingUnitSymbol = -1;
    int miPendingPrecision = -1;
};

Slider::Slider(QWidget* parent)
    : QWidget(parent)
    , WidgetUnits()
    , mpImp(std::make_unique<SliderImp>(this))
{
    Internal::InstallControlsAccessibility();
    mpImp->mpSliderControl = new SliderControl(this);
    new Internal::ThemedFont(mpImp->mpSliderControl);
    mpImp->mpSliderControl->setStyle(CustomStyle::GetInstance());
    mpImp->mpSliderControl->setOrientation(Qt::Horizontal);
    mpImp->mpSliderControl->setPageStep(kPageStep);
    mpImp->mpSliderControl->setAttribute(Qt::WA_Hover, true);
    mpImp->mpNumericField = new NumericField(this);
    mpImp->mpNumericField->setFocusPolicy(Qt::ClickFocus);
    new TypeIntoField(mpImp->mpSliderControl, mpImp->mpNumericField);
    mpImp->mpUnitSymbolLabel = new QLabel(this);
    mpImp->mpUnitSymbolLabel->hide();
    // The field colours its own text; the label gets the same colour.
    auto* labelColor = new Internal::ThemedColor(mpImp->mpUnitSymbolLabel);
    labelColor->SetThemeChangedHandler([this] { OnThemeChanged(); });

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

    SliderControl* control = mpImp->mpSliderControl;
    NumericField* field = mpImp->mpNumericField;
    connect(control, &QAbstractSlider::valueChanged, this, &Slider::UpdateSliderValue);
    connect(field, &QLineEdit::editingFinished, this, &Slider::TextEditComplete);
    connect(control, &QAbstractSlider::sliderPressed, this, &Slider::OnSliderPressed);
    connect(control, &QAbstractSlider::sliderMoved, this, &Slider::OnSliderMoved);
    connect(control, &QAbstractSlider::sliderReleased, this, &Slider::OnSliderReleased);
    connect(control, &SliderControl::EscapeReleased, this, &Slider::EscapeReleased);
    connect(control, &SliderControl::FocusOut, this, &Slider::SliderFocusOut);
    connect(control, &SliderControl::IncDecKeyPressed, this, &Slider::IncDecKeyPressed);
    connect(field, &NumericField::FocusOut, this, &Slider::SliderFocusOut);

    mpImp->SetSliderValue(mpImp->mpSliderControl->value());
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
    mpImp->mDeferred.SetDeferring(defer);
}

bool Slider::DeferUpdateForUnits() const
{
    return mpImp->mDeferred.IsDeferring();
}

bool Slider::HaveDeferredUpdatesForUnits() const
{
    return mpImp->mDeferred.HasPending();
}

void Slider::UpdateForUnits()
{
    if (mpImp->mDeferred.IsDeferring()) {
        mpImp->mDeferred.Mark();
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
    mpImp->mDeferred.Clear();
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

void Slider::OnChanged_DecimalPrecision(int, int newPrecision)
{
    Q_EMIT DecimalPrecisionChanged(newPrecision);
    mpImp->miEffectivePrecision = std::clamp(newPrecision, 0, kMaximumEffectivePrecision);
    mpImp->miMultiplier = int(std::lround(std::pow(10.0, mpImp->miEffectivePrecision)));
    mpImp->mpSliderControl->SetPrecision(newPrecision, mpImp->miEffectivePrecision);
    if (mpImp->mDeferred.IsDeferring()) {
        mpImp->miPendingPrecision = newPrecision;
        mpImp->mDeferred.Mark();
        return;
    }
    mpImp->ShowValueInField();
    mpImp->UpdateRange(true);
}

void Slider::OnChanged_UnitSymbol(UnitSymbol, UnitSymbol newSymbol)
{
    Q_EMIT UnitSymbolChanged(GetUnitSymbol());
    if (mpImp->mDeferred.IsDeferring()) {
        mpImp->miPendingUnitSymbol = newSymbol;
        mpImp->mDeferred.Mark();
        return;
    }
    mpImp->ShowLabelFor(newSymbol);
    mpImp->ShowValueInField();
    mpImp->UpdateRange(true);
}

void Slider::OnChanged_Value(double, double newValue)
{
    mpImp->PlaceSlider(mpImp->Position(newValue));
    QString text;
    GetLocaleStringFromValue(newValue, text);
    mpImp->mpNumericField->setText(text);
    mpImp->mpNumericField->setCursorPosition(0);
    Internal::AnnounceValueChange(this, newValue);
    Q_EMIT ValueUpdated(newValue);
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
    if (WidgetUnits::SetValue(value, false))
        Q_EMIT ValueUpdated(GetValue());
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
    Internal::ThemedColor::Of(mpImp->mpUnitSymbolLabel)->Apply();
    Internal::ThemedColor::Of(mpImp->mpNumericField)->Apply();
    update();
}

void Slider::EscapeReleased()
{
    Q_EMIT SliderChangeCancelled();
}

void Slider::IncDecKeyPressed(int number)
{
    const int precision = GetDecimalPrecision();
    double value = GetValue();
    if (HasDegreeMinuteSecond(GetUnitSymbolType())) {
        // The step is already one of the shown angle's smallest parts.
        value += CalculateStepForDegreeMinuteSecond(precision) * number;
    } else {
        const Units::teType symbolType = mpImp->SymbolUnitType();
        const Units::teType unitType = GetUnitType();
        double shown = value;
        if (symbolType != unitType && UnitsConverter::Convert(value, unitType, shown, symbolType) != units::kSuccess)
            return;
        shown += number / std::pow(10.0, precision);
        if (symbolType != unitType && UnitsConverter::Convert(shown, symbolType, value, unitType) != units::kSuccess)
            return;
        if (symbolType == unitType)
            value = shown;
    }
    if (WidgetUnits::SetValue(mpImp->Clamped(value), false))
        Q_EMIT ValueUpdated(GetValue());
    mpImp->ShowValueInField();
    Q_EMIT ValueChanged(GetValue());
}

} // namespace Kavrel::UICore
