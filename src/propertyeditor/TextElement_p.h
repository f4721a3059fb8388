#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>

namespace Kavrel::UICore::Internal {

// LabelElement and TextBoxElement differ only in their widget: both keep their
// text in the Text attribute, a string binding read from the XML.
class TextElementImp final : public PropertyEditorElementImp
{
public:
    TextElementImp()
        : PropertyEditorElementImp(PropertyEditorElement::Leaf)
    {}

    void LoadAttributes(XmlFiler& filer) override
    {
        BindAttributeText(AttributeName::Text, filer.ReadString(AttributeName::Text), QMetaType::QString);
    }
};

// The Text attribute on a widget W through its accessors Read and Write.
template <typename W, QString (W::*Read)() const, void (W::*Write)(const QString&)> struct TextWidget
{
    // Pushes the text; false when the attribute isn't Text or there is no
    // widget. A text the widget shows already is left alone, so that typing
    // keeps its cursor.
    static bool Update(const PropertyEditorElement& element, const QString& attribute)
    {
        auto* widget = qobject_cast<W*>(element.GetWidget());
        if (!widget || attribute != AttributeName::Text)
            return false;
        const QString text = element.GetValue(AttributeName::Text).toString();
        if ((widget->*Read)() != text)
            (widget->*Write)(text);
        return true;
    }

    // The widget's text; invalid when the attribute isn't Text or there is no widget.
    static QVariant Value(const PropertyEditorElement& element, const QString& attribute)
    {
        auto* widget = qobject_cast<W*>(element.GetWidget());
        if (!widget || attribute != AttributeName::Text)
            return QVariant();
        return (widget->*Read)();
    }
};

} // namespace Kavrel::UICore::Internal
