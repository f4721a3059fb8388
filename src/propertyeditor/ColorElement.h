#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>

#include <QColor>

namespace Kavrel::UICore {

/// A colour swatch editing the Color attribute through its pop-up picker:
/// `<ColorElement Id="tint" Label="Tint" Color="Binding(Tint)" IsAlphaEnabled="True"/>`.
/// Color is "#rrggbb" or "#rrggbbaa" (or a binding); IsAlphaEnabled (default
/// False) lets the picker change the alpha. Each change in the picker is
/// written back as it is made, so the source follows the picker live; Escape
/// in the picker writes the old colour back.
class KVUICORE_EXPORT ColorElement : public PropertyEditorElement
{
    Q_OBJECT
    Q_PROPERTY(QColor Color READ GetColor WRITE SetColor NOTIFY AttributesChanged)
    Q_PROPERTY(bool IsAlphaEnabled READ IsAlphaEnabled WRITE SetAlphaEnabled NOTIFY AttributesChanged)

public:
    static const QString ColorAttribute;
    static const QString AlphaEnabledAttribute;

    explicit ColorElement(QObject* parent = nullptr);
    ~ColorElement() override;

    QColor GetColor() const;
    void SetColor(const QColor& color);
    void SetColor(Binding* binding);
    bool IsAlphaEnabled() const;
    void SetAlphaEnabled(bool enabled);
    void SetAlphaEnabled(Binding* binding);

protected Q_SLOTS:
    void TargetColorChanged(const QColor& color);

protected:
    QWidget* CreateWidgetOverride(QWidget* parent) override;
    void UpdateWidgetOverride(const QString& attribute) override;
    QVariant GetWidgetValueOverride(const QString& attribute) const override;
    /// The alpha switch reaches a new swatch before the colour.
    int GetUpdateOrder(const QString& attribute) const override;

private:
    Q_DISABLE_COPY_MOVE(ColorElement)
};

} // namespace Kavrel::UICore
