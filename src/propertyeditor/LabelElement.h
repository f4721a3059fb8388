#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A word-wrapping text (the Text attribute), beside its label if it has one.
class KVUICORE_EXPORT LabelElement : public PropertyEditorElement
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ GetText WRITE SetText NOTIFY AttributesChanged)

public:
    explicit LabelElement(QObject* parent = nullptr);
    ~LabelElement() override;

    QString GetText() const;
    void SetText(const QString& text);
    void SetText(Binding* binding);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(LabelElement)
};

} // namespace Kavrel::UICore
