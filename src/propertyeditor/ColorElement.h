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
    /// The colour edited.
    Q_PROPERTY(QColor Color READ GetColor WRITE SetColor NOTIFY AttributesChanged)
    /// Whether the picker may change the alpha; false unless set.
    Q_PROPERTY(bool IsAlphaEnabled READ IsAlphaEnabled WRITE SetAlphaEnabled NOTIFY AttributesChanged)

public:
    /// The name of the Color attribute.
    static const QString ColorAttribute;
    /// The name of the IsAlphaEnabled attribute.
    static const QString AlphaEnabledAttribute;

    /// A colour element without a colour.
    explicit ColorElement(QObject* parent = nullptr);
    ~ColorElement() override;

    /// The Color attribute; an invalid colour when it is unset or no colour text.
    QColor GetColor() const;
    /// Sets the Color attribute (through its binding when it has one).
    void SetColor(const QColor& color);
    /// Binds the Color attribute; see SetBinding.
    void SetColor(Binding* binding);
    /// The IsAlphaEnabled attribute; false unless set.
    bool IsAlphaEnabled() const;
    /// Sets the IsAlphaEnabled attribute (through its binding when it has one).
    void SetAlphaEnabled(bool enabled);
    /// Binds the IsAlphaEnabled attribute; see SetBinding.
    void SetAlphaEnabled(Binding* binding);

protected Q_SLOTS:
    /// Writes the swatch's new colour back through the Color binding (connected to the
    /// swatch).
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
