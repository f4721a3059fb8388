#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A unit-aware slider with its numeric field, editing Number between Minimum
/// and Maximum. Precision (the decimals shown) can only be bound, not written
/// in a definition. Units are set up on the widget, for instance in a slot of
/// WidgetCreated: values are held in the slider's unit type.
class KVUICORE_EXPORT SliderElement : public PropertyEditorElement
{
    Q_OBJECT
    /// The value edited.
    Q_PROPERTY(double Number READ GetValue WRITE SetValue NOTIFY AttributesChanged)
    /// The lowest value; 0 unless set.
    Q_PROPERTY(double Minimum READ GetMinimum WRITE SetMinimum NOTIFY AttributesChanged)
    /// The highest value; 100 unless set.
    Q_PROPERTY(double Maximum READ GetMaximum WRITE SetMaximum NOTIFY AttributesChanged)

public:
    /// A slider element from 0 to 100 at 0.
    explicit SliderElement(QObject* parent = nullptr);
    ~SliderElement() override;

    /// The Minimum attribute; 0 unless set.
    double GetMinimum() const;
    /// The Maximum attribute; 100 unless set.
    double GetMaximum() const;
    /// The Number attribute; 0 unless set.
    double GetValue() const;
    using PropertyEditorElement::GetValue;
    /// Sets the Minimum attribute (through its binding when it has one).
    void SetMinimum(double minimum);
    /// Binds the Minimum attribute; see SetBinding.
    void SetMinimum(Binding* binding);
    /// Sets the Maximum attribute (through its binding when it has one).
    void SetMaximum(double maximum);
    /// Binds the Maximum attribute; see SetBinding.
    void SetMaximum(Binding* binding);
    /// Sets the Number attribute (through its binding when it has one).
    void SetValue(double value);
    /// Binds the Number attribute; see SetBinding.
    void SetValue(Binding* binding);
    /// Binds the Precision attribute, the decimals shown; see SetBinding.
    void SetPrecision(Binding* binding);

protected Q_SLOTS:
    /// Writes the slider's new value back through the Number binding (connected to the
    /// slider).
    void TargetNumberChanged(double value);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(SliderElement)
};

} // namespace Kavrel::UICore
