#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A single-line text box editing the Text attribute; every edit is written
/// back as it is typed.
class KVUICORE_EXPORT TextBoxElement : public PropertyEditorElement
{
    Q_OBJECT
    /// The text edited.
    Q_PROPERTY(QString Text READ GetText WRITE SetText NOTIFY AttributesChanged)

public:
    /// A text box element, empty.
    explicit TextBoxElement(QObject* parent = nullptr);
    ~TextBoxElement() override;

    /// The Text attribute.
    QString GetText() const;
    /// Sets the Text attribute (through its binding when it has one).
    void SetText(const QString& text);
    /// Binds the Text attribute; see SetBinding.
    void SetText(Binding* binding);

protected Q_SLOTS:
    /// Writes the typed text back through the Text binding (connected to the text box).
    void TargetTextChanged(const QString& text);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(TextBoxElement)
};

} // namespace Kavrel::UICore
