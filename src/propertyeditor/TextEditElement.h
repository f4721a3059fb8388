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
    Q_PROPERTY(QString Text READ GetText WRITE SetText NOTIFY AttributesChanged)

public:
    explicit TextEditElement(QObject* parent = nullptr);
    ~TextEditElement() override;

    QString GetText() const;
    void SetText(const QString& text);
    void SetText(Binding* binding);

protected Q_SLOTS:
    void TargetTextCommitted(const QString& text);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(TextEditElement)
};

} // namespace Kavrel::UICore
