#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A push button showing the label, with an optional icon (Image, and
/// CheckedImage for the checked state of a checkable button).
class KVUICORE_EXPORT ButtonElement : public PropertyEditorElement
{
    Q_OBJECT
    /// Whether the button toggles; false unless set.
    Q_PROPERTY(bool IsCheckable READ IsCheckable WRITE SetCheckable NOTIFY AttributesChanged)
    /// Whether a checkable button is checked; true unless set.
    Q_PROPERTY(bool IsChecked READ IsChecked WRITE SetCheck NOTIFY AttributesChanged)

public:
    /// A button element without label or image.
    explicit ButtonElement(QObject* parent = nullptr);
    ~ButtonElement() override;

    /// The IsCheckable attribute; false unless set.
    bool IsCheckable() const;
    /// The IsChecked attribute; true unless set.
    bool IsChecked() const;
    /// Sets the IsCheckable attribute.
    void SetCheckable(bool checkable);
    /// Sets the IsChecked attribute (through its binding when it has one).
    void SetCheck(bool checked);
    /// Binds the IsChecked attribute; see SetBinding.
    void SetCheck(Binding* binding);
    /// An image file or resource path, or a theme key that holds one.
    void SetImage(const QString& image);
    /// The image shown while a checkable button is checked, in the forms SetImage takes.
    void SetCheckedImage(const QString& image);
    /// The Image attribute as set; empty when none.
    QString GetImage() const;
    /// The CheckedImage attribute as set; empty when none.
    QString GetCheckedImage() const;

Q_SIGNALS:
    /// The button was clicked; a checkable button's new state has been written back
    /// first.
    void ButtonClicked();

protected Q_SLOTS:
    /// Writes a checkable button's state back and emits ButtonClicked (connected to the
    /// button).
    void TargetButtonClicked();

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(ButtonElement)
    friend class ButtonElementImp;
};

} // namespace Kavrel::UICore
