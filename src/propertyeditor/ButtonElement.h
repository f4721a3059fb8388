#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A push button showing the label, with an optional icon (Image, and
/// CheckedImage for the checked state of a checkable button).
class KVUICORE_EXPORT ButtonElement : public PropertyEditorElement
{
    Q_OBJECT
    Q_PROPERTY(bool IsCheckable READ IsCheckable WRITE SetCheckable NOTIFY AttributesChanged)
    Q_PROPERTY(bool IsChecked READ IsChecked WRITE SetCheck NOTIFY AttributesChanged)

public:
    explicit ButtonElement(QObject* parent = nullptr);
    ~ButtonElement() override;

    bool IsCheckable() const;
    bool IsChecked() const;
    void SetCheckable(bool checkable);
    void SetCheck(bool checked);
    void SetCheck(Binding* binding);
    /// An image file or resource path, or a theme key that holds one.
    void SetImage(const QString& image);
    void SetCheckedImage(const QString& image);
    QString GetImage() const;
    QString GetCheckedImage() const;

Q_SIGNALS:
    void ButtonClicked();

protected Q_SLOTS:
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
