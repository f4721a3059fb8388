#include <KvUICore/widgets/DoubleSpinBox.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/DeferredUnitsUpdate_p.h>
#include <KvUICore/widgets/DoubleSpinBoxNumericField.h>
#include <KvUICore/widgets/ThemedColor_p.h>

#include <QKeyEvent>
#include <QPointer>
#include <QRegularExpressionValidator>
#include <QStyle>

#include <cmath>

namespace Kavrel::UICore {

namespace {

constexpr QSize kCompactSize(56, 24);

} // namespace

class DoubleSpinBoxImp
{
public:
    DoubleSpinBoxImp(DoubleSpinBox* owner, bool compactSize)
        : mpOwner(owner)
        , mbCompactSize(compactSize)
    {}

    // Laid over the line edit so that gradients span the field.
    void ApplyFieldBackground(const QString& key)
    {
        QLineEdit* edit = mpOwner->lineEdit();
        if (!edit)
            return;
        QPalette palette = edit->palette();
        palette.setBrush(edit->backgroundRole(), ThemeManager::GetInstance()->GetBrush(key, edit->rect()));
        edit->setPalette(palette);
    }

    // The deferrable update shared by the format notifications.
    void UpdateOrMark()
    {
        mDeferred.MarkOrRun([this] { mpOwner->setValue(mpOwner->value()); });
    }

    DoubleSpinBox* const mpOwner;
    QRegularExpressionValidator* mpValidator = nullptr;
    DoubleSpinBoxNumericField* mpNumericField = nullptr;
    double mdAcceptedValue = 0.0;
    const bool mbCompactSize;
    bool mbCanChangeQtDecimals = true;
    Internal::DeferredUnitsUpdate mDeferred;
};

DoubleSpinBox::DoubleSpinBox(QWidget* parent, bool compactSize)
    : QDoubleSpinBox(parent)
    , WidgetUnits()
    , mpImp(std::make_unique<DoubleSpinBoxImp>(this, compactSize))
{
    Internal::InstallControlsAccessibility();
    setStyle(CustomStyle::GetInstance());
    mpImp->mpNumericField = new DoubleSpinBoxNumericField(this);
    setLineEdit(mpImp->mpNumericField);
    setAlignment(Qt::AlignRight);
    // The field colours its own text; the spin box adds the field's background.
    Internal::ThemedColor::Of(mpImp->mpNumericField)->SetThemeChangedHandler([this] { OnThemeChanged(); });
    mpImp->mpValidator = new QRegularExpressionValidator(QRegularExpression(QStringLiteral(".*")), this);
    setDecimals(GetDecimalPrecision());
    setSingleStep(CalculateSingleStep(GetDecimalPrecision()));
    connect(this, &QAbstractSpinBox::editingFinished, this, &DoubleSpinBox::SaveAcceptedValue);
    // The text is formatted from the unit part, which learns the new value only
    // here; take it over first and write the text again, before any other
    // listener of valueChanged runs.
    connect(this, &QDoubleSpinBox::valueChanged, this, [this](double value) {
        SetValue(value, false);
        QDoubleSpinBox::setValue(QDoubleSpinBox::value());
    });
    setAttribute(Qt::WA_MouseTracking, true);
    setAttribute(Qt::WA_Hover, true);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setKeyboardTracking(false);
}

DoubleSpinBox::~DoubleSpinBox() = default;

void DoubleSpinBox::stepBy(int steps)
{
    // Steps add in binary, where 1.001 - 0.001 is 0.99999999999999989: stepping
    // in Qt would announce that, then the display grid would round it to 1 and
    // announce again. Land on the grid at once, with one notification.
    QPointer<DoubleSpinBox> self(this);
    interpretText();
    if (!self)
        return;
    const double old = value();
    double target = old + steps * singleStep();
    if (wrapping() && maximum() > minimum()) {
        if (target > maximum())
            target = old >= maximum() ? minimum() : maximum();
        else if (target < minimum())
            target = old <= minimum() ? maximum() : minimum();
    }
    const double scale = std::pow(10.0, decimals());
    setValue(std::round(target * scale) / scale);
    // valueChanged() handlers may delete the spin box.
    if (self && style()->styleHint(QStyle::SH_SpinBox_SelectOnStep, nullptr, this, nullptr))
        selectAll();
}

QString DoubleSpinBox::textFromValue(double) const
{
    QString text;
    GetLocaleStringFromValue(GetValue(), text);
    if (text.isEmpty())
        text = QString::number(GetValue(), 'f', GetDecimalPrecision());
    return text;
}

double DoubleSpinBox::valueFromText(const QString& text) const
{
    auto* self = const_cast<DoubleSpinBox*>(this);
    double value = 0.0;
    if (!self->ValidateValue(text + QLatin1Char(' '), value))
        return self->GetAcceptedValue();
    if (value > maximum())
        return maximum();
    if (value < minimum())
        return minimum();
    return value;
}

QValidator::State DoubleSpinBox::validate(QString& text, int& pos) const
{
    return mpImp->mpValidator->validate(text, pos);
}

bool DoubleSpinBox::ValidateValue(const QString& text, double& value)
{
    if (!WidgetUnits::ValidateValue(text, value))
        return false;
    bool valid = true;
    Q_EMIT ValidateChangingValue(value, valid);
    return valid;
}

double DoubleSpinBox::CalculateSingleStep(int precision)
{
    if (GetNumberFormatId() == kavrel::platform::core::units::kNumberFormatFractional)
        return 1.0 / std::pow(2.0, precision);
    return 1.0 / std::pow(10.0, precision);
}

void DoubleSpinBox::ResetSingleStep()
{
    setSingleStep(CalculateSingleStep(GetDecimalPrecision()));
}

double DoubleSpinBox::GetAcceptedValue()
{
    return mpImp->mdAcceptedValue;
}

void DoubleSpinBox::SaveAcceptedValue()
{
    mpImp->mdAcceptedValue = value();
}

NumericField* DoubleSpinBox::GetNumericField() const
{
    return mpImp->mpNumericField;
}

bool DoubleSpinBox::IsModified() const
{
    return mpImp->mpNumericField ? mpImp->mpNumericField->IsModified() : false;
}

void DoubleSpinBox::ClearModified()
{
    if (mpImp->mpNumericField)
        mpImp->mpNumericField->ClearModified();
}

void DoubleSpinBox::SetDeferUpdateForUnits(bool defer)
{
    mpImp->mDeferred.SetDeferring(defer);
}

bool DoubleSpinBox::DeferUpdateForUnits() const
{
    return mpImp->mDeferred.IsDeferring();
}

bool DoubleSpinBox::HaveDeferredUpdatesForUnits() const
{
    return mpImp->mDeferred.HasPending();
}

void DoubleSpinBox::SetCanChangeQtDecimals(bool canChange)
{
    mpImp->mbCanChangeQtDecimals = canChange;
}

bool DoubleSpinBox::CanChangeQtDecimals() const
{
    return mpImp->mbCanChangeQtDecimals;
}

void DoubleSpinBox::UpdateForUnits()
{
    setValue(value());
    mpImp->mDeferred.Clear();
}

void DoubleSpinBox::UpdateForUnits(bool, bool)
{
    mpImp->UpdateOrMark();
}

void DoubleSpinBox::OnChanged_DecimalPrecision(int, int newPrecision)
{
    Q_EMIT DecimalPrecisionChanged(newPrecision);
    if (mpImp->mbCanChangeQtDecimals)
        setDecimals(newPrecision);
    setSingleStep(CalculateSingleStep(newPrecision));
}

void DoubleSpinBox::OnChanged_UnitSymbol(UnitSymbol, UnitSymbol)
{
    Q_EMIT UnitSymbolChanged(GetUnitSymbol());
    ResetSingleStep();
    mpImp->UpdateOrMark();
}

void DoubleSpinBox::OnChanged_NumberFormat(NumberFormat, NumberFormat)
{
    ResetSingleStep();
    mpImp->UpdateOrMark();
}

void DoubleSpinBox::OnChanged_DecimalSeparator(QString, QString)
{
    mpImp->UpdateOrMark();
}

void DoubleSpinBox::OnChanged_GroupSeparator(QString, QString)
{
    mpImp->UpdateOrMark();
}

void DoubleSpinBox::OnChanged_NumberSign(bool, bool)
{
    mpImp->UpdateOrMark();
}

void DoubleSpinBox::OnChanged_ExponentSign(bool, bool)
{
    mpImp->UpdateOrMark();
}

void DoubleSpinBox::OnChanged_UnitSymbolDisplayEnabled(bool, bool)
{
    mpImp->UpdateOrMark();
}

QSize DoubleSpinBox::sizeHint() const
{
    return mpImp->mbCompactSize ? kCompactSize : QDoubleSpinBox::sizeHint();
}

void DoubleSpinBox::OnThemeChanged()
{
    if (Internal::ThemedColor* color = Internal::ThemedColor::Of(lineEdit()))
        color->Apply();
    mpImp->ApplyFieldBackground(hasFocus() ? ThemeFileKey::ActiveContainer1 : ThemeFileKey::WidgetContainer3);
}

bool DoubleSpinBox::event(QEvent* event)
{
    // editingFinished() and valueChanged() handlers may delete the spin box.
    QPointer<DoubleSpinBox> self(this);
    switch (event->type()) {
    case QEvent::FocusIn: {
        const bool handled = QDoubleSpinBox::event(event);
        if (self)
            mpImp->ApplyFieldBackground(ThemeFileKey::ActiveContainer1);
        return handled;
    }
    case QEvent::FocusOut: {
        const bool handled = QDoubleSpinBox::event(event);
        if (self)
            mpImp->ApplyFieldBackground(ThemeFileKey::WidgetContainer3);
        return handled;
    }
    case QEvent::Wheel:
        if (!isEnabled()) {
            event->ignore();
            return false;
        }
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            // What the base class does for Return, with a check after each
            // notification: its own code goes on using the spin box after
            // emitting editingFinished(), which a handler may have deleted.
            interpretText();
            if (!self)
                return true;
            selectAll();
            event->ignore();
            Q_EMIT editingFinished();
            if (!self)
                return true;
            QLineEdit* edit = lineEdit();
            Q_EMIT edit->returnPressed();
            if (self)
                edit->selectAll();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QDoubleSpinBox::event(event);
}

} // namespace Kavrel::UICore
