#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

namespace Kavrel::UICore {

/// A single-line text box editing the Text attribute; every edit is written
/// back as it is typed.
class KVUICORE_EXPORT TextBoxElement : public PropertyEditorElement
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ GetText WRITE SetText NOTIFY AttributesChanged)

public:
    explicit TextBoxElement(QObject* parent = nullptr);
    ~TextBoxElement() override;

    QString GetText() const;
    void SetText(const QString& text);
    void SetText(Binding* binding);

protected Q_SLOTS:
    void TargetTextChanged(const QString& text);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(TextBoxElement)
};

} // namespace Kavrel::UICore
