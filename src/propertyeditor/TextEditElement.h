#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A multi-line text editor (TextEdit) editing the Text attribute. Unlike the
/// single-line text box, an edit is written back when editing finishes (the
/// editor loses focus, or Ctrl+Return), not per keystroke: a paragraph is one
/// change of the source property.
class KVUICORE_EXPORT TextEditElement : public PropertyEditorElement
{
    Q_OBJECT
    /// The text edited.
    Q_PROPERTY(QString Text READ GetText WRITE SetText NOTIFY AttributesChanged)

public:
    /// A text edit element, empty.
    explicit TextEditElement(QObject* parent = nullptr);
    ~TextEditElement() override;

    /// The Text attribute.
    QString GetText() const;
    /// Sets the Text attribute (through its binding when it has one).
    void SetText(const QString& text);
    /// Binds the Text attribute; see SetBinding.
    void SetText(Binding* binding);

protected Q_SLOTS:
    /// Writes the finished text back through the Text binding (connected to the editor).
    void TargetTextCommitted(const QString& text);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(TextEditElement)
};

} // namespace Kavrel::UICore
