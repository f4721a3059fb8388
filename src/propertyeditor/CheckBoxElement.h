#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A check box showing the label as its text.
class KVUICORE_EXPORT CheckBoxElement : public PropertyEditorElement
{
    Q_OBJECT
    /// Whether the box is checked.
    Q_PROPERTY(bool IsChecked READ IsChecked WRITE SetCheck NOTIFY AttributesChanged)

public:
    /// A check box element, unchecked.
    explicit CheckBoxElement(QObject* parent = nullptr);
    ~CheckBoxElement() override;

    /// The IsChecked attribute; false unless set.
    bool IsChecked() const;
    /// Sets the IsChecked attribute (through its binding when it has one).
    void SetCheck(bool checked);
    /// Binds the IsChecked attribute; see SetBinding.
    void SetCheck(Binding* binding);

protected Q_SLOTS:
    /// Writes the box's new state back through the IsChecked binding (connected to the
    /// box).
    void TargetCheckStateChanged(int state);
    /// Shows the element's tool tip again when the box dropped its own (connected to the
    /// box).
    void TargetToolTipChanged();

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(CheckBoxElement)
};

} // namespace Kavrel::UICore
