#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A check box showing the label as its text.
class KVUICORE_EXPORT CheckBoxElement : public PropertyEditorElement
{
    Q_OBJECT
    Q_PROPERTY(bool IsChecked READ IsChecked WRITE SetCheck NOTIFY AttributesChanged)

public:
    explicit CheckBoxElement(QObject* parent = nullptr);
    ~CheckBoxElement() override;

    bool IsChecked() const;
    void SetCheck(bool checked);
    void SetCheck(Binding* binding);

protected Q_SLOTS:
    void TargetCheckStateChanged(int state);
    void TargetToolTipChanged();

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(CheckBoxElement)
};

} // namespace Kavrel::UICore
