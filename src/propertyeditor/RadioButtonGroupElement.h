#pragma once

#include <KvUICore/propertyeditor/ListElement.h>

class QButtonGroup;

namespace Kavrel::UICore {

/// One radio button per item, one below the other; the checked button is the
/// current item. Buttons show the item's text and, when it has one, its image.
class KVUICORE_EXPORT RadioButtonGroupElement : public ListElement
{
    Q_OBJECT

public:
    /// A radio button group without items.
    explicit RadioButtonGroupElement(QObject* parent = nullptr);
    ~RadioButtonGroupElement() override;

    /// The group of the buttons (button id = item row) once the widget is built.
    QButtonGroup* GetButtonGroup() const;

protected Q_SLOTS:
    /// Writes the newly checked item back through the Current binding (connected to the
    /// buttons).
    void RadioButtonGroupCurrentIndexChanged(bool checked);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;
    void ItemsChanged() override;

private:
    Q_DISABLE_COPY_MOVE(RadioButtonGroupElement)
    friend class RadioButtonGroupElementImp;
};

} // namespace Kavrel::UICore
