#pragma once

#include <KvUICore/propertyeditor/ListElement.h>

namespace Kavrel::UICore {

/// A combo box listing the items.
class KVUICORE_EXPORT ComboBoxElement : public ListElement
{
    Q_OBJECT

public:
    /// A combo box element without items.
    explicit ComboBoxElement(QObject* parent = nullptr);
    ~ComboBoxElement() override;

protected Q_SLOTS:
    /// Writes the chosen item back through the Current binding (connected to the combo
    /// box); ignored while the items are being replaced.
    void ComboBoxCurrentIndexChanged(int index);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;
    /// The items reach the combo box before the current item is chosen.
    int GetUpdateOrder(const QString& attribute) const override;
    void ItemsChanged() override;

private:
    Q_DISABLE_COPY_MOVE(ComboBoxElement)
};

} // namespace Kavrel::UICore
