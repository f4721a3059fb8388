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
    Q_PROPERTY(double Number READ GetValue WRITE SetValue NOTIFY AttributesChanged)
    Q_PROPERTY(double Minimum READ GetMinimum WRITE SetMinimum NOTIFY AttributesChanged)
    Q_PROPERTY(double Maximum READ GetMaximum WRITE SetMaximum NOTIFY AttributesChanged)

public:
    explicit SliderElement(QObject* parent = nullptr);
    ~SliderElement() override;

    double GetMinimum() const;
    double GetMaximum() const;
    double GetValue() const;
    using PropertyEditorElement::GetValue;
    void SetMinimum(double minimum);
    void SetMinimum(Binding* binding);
    void SetMaximum(double maximum);
    void SetMaximum(Binding* binding);
    void SetValue(double value);
    void SetValue(Binding* binding);
    void SetPrecision(Binding* binding);

protected Q_SLOTS:
    void TargetNumberChanged(double value);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(SliderElement)
};

} // namespace Kavrel::UICore
