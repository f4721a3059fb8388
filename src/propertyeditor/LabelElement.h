#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A word-wrapping text (the Text attribute), beside its label if it has one.
class KVUICORE_EXPORT LabelElement : public PropertyEditorElement
{
    Q_OBJECT
    /// The text shown.
    Q_PROPERTY(QString Text READ GetText WRITE SetText NOTIFY AttributesChanged)

public:
    /// A label element without text.
    explicit LabelElement(QObject* parent = nullptr);
    ~LabelElement() override;

    /// The Text attribute.
    QString GetText() const;
    /// Sets the Text attribute (through its binding when it has one).
    void SetText(const QString& text);
    /// Binds the Text attribute; see SetBinding.
    void SetText(Binding* binding);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(LabelElement)
};

} // namespace Kavrel::UICore
