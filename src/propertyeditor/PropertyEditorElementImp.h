#pragma once

#include <KvUICore/propertyeditor/PropertyEditorElement.h>
#include <KvUICore/util/XmlFiler.h>

#include <QList>
#include <QMap>
#include <QPointer>
#include <QStringList>

namespace Kavrel::UICore {

class PropertyEditorImp;

// The fixed names of element attributes.
namespace AttributeName {
inline const QString IsEnabled = QStringLiteral("IsEnabled");
inline const QString IsVisible = QStringLiteral("IsVisible");
inline const QString Tooltip = QStringLiteral("Tooltip");
inline const QString Label = QStringLiteral("Label");
inline const QString IsChecked = QStringLiteral("IsChecked");
inline const QString IsCheckable = QStringLiteral("IsCheckable");
inline const QString IsCollapsed = QStringLiteral("IsCollapsed");
inline const QString Items = QStringLiteral("Items");
inline const QString Current = QStringLiteral("Current");
inline const QString Text = QStringLiteral("Text");
inline const QString Number = QStringLiteral("Number");
inline const QString Minimum = QStringLiteral("Minimum");
inline const QString Maximum = QStringLiteral("Maximum");
inline const QString Precision = QStringLiteral("Precision");
} // namespace AttributeName

class PropertyEditorElementImp : public QObject
{
    Q_OBJECT

public:
    enum StateBit : quint32
    {
        ContainerBit = 0x1,
        ChildrenChangedBit = 0x2,
    };

    explicit PropertyEditorElementImp(PropertyEditorElement::Attribute attribute);
    ~PropertyEditorElementImp() override;

    // The element load on the filer's current node: common attributes, the
    // kind's own (LoadAttributes), then the children of a container.
    bool Load(XmlFiler& filer);
    // Loads from a node of any document, read in place through a filer of its own.
    bool LoadFromDomElement(const QDomElement& element);
    virtual void LoadAttributes(XmlFiler& filer);
    // Deletes a new child and says so when it is a container nesting deeper
    // than PropertyEditor::kMaxNestingDepth below the root, where size hints
    // and painting would recurse past the stack.
    bool RefuseNesting(PropertyEditorElement* child) const;
    // The kind's name for debug texts.
    virtual QString KindName() const;

    // Creates the widget when it is missing, builds the children's widgets
    // and places them when they changed.
    void BuildWidgetTree(QWidget* parent);
    // The widget that the children's widgets are created in.
    virtual QWidget* GetChildParentWidget() const;
    // Pushes every bound attribute into a new widget, in update order.
    void PushAllAttributes();
    // Deletes the widget, the label widget and those of every descendant.
    void DestroyWidgets();

    // Creates a binding from an attribute's text, as the loader does.
    void BindAttributeText(const QString& attribute, const QString& text, QMetaType::Type type);
    Binding* FindBinding(const QString& attribute) const;
    // Replaces the label widget (the old one is deleted).
    void SetLabelWidget(Label* label);

    PropertyEditorImp* GetEditorImp() const;
    // The file (or text) being loaded, for diagnostics.
    QString LoadSourceName() const;
    void ReportUnknownAttributes(QStringList names) const;
    PropertyEditorElementImp* GetRootImp() const;
    // Gives every binding of the subtree the editor's context.
    void AttachSubtreeToContext();
    void MarkChildrenChanged();

    bool IsContainer() const { return miState & ContainerBit; }
    static PropertyEditorElementImp* Of(const PropertyEditorElement* element) { return element->mpImp.get(); }

    void AppendDebugText(QString& text, int depth) const;

    PropertyEditorElement* mpOwner = nullptr;
    PropertyEditorElement* mpParent = nullptr;
    // Set on the root page only: the editor that owns it.
    PropertyEditorImp* mpEditor = nullptr;
    QString msId;
    QString msLabel;
    QList<PropertyEditorElement*> mChildren;
    QPointer<QWidget> mpWidget;
    QPointer<Label> mpLabelWidget;
    // The widget that indents the control in a group's grid, if any.
    QPointer<QWidget> mpPlacedWrapper;
    QMap<QString, Binding*> mBindings;
    PropertyEditorElement::LayoutInfo mLayoutInfo;
    quint32 miState = 0;
    bool mbUpdatingWidget = false;
    // Set on the whole subtree when an element is destroyed.
    bool mbTearingDown = false;
};

} // namespace Kavrel::UICore
