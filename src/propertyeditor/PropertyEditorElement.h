#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

class QDomElement;
class QWidget;

namespace Kavrel::UICore {

class Binding;
class Label;
class PropertyEditor;
class PropertyEditorElementImp;

/// A node of a property editor page. Each element owns one control or
/// container widget, built when the editor paints, and keeps the control's
/// attributes in bindings: an attribute is a literal or follows a property of a
/// context object (see Binding). Edits in the control are written back through
/// the attribute's binding; changes of the source reach the control.
///
/// Every attribute is also a Qt property of the element (notified through
/// AttributeChanged), so bindings can name elements by their Id:
/// Binding(useCoating.IsChecked) follows the check box element "useCoating".
class KVUICORE_EXPORT PropertyEditorElement : public QObject
{
    Q_OBJECT
    /// The element's Id; bindings name the element by it.
    Q_PROPERTY(QString Id READ GetId WRITE SetId NOTIFY AttributesChanged)
    /// The label text shown beside or in the control.
    Q_PROPERTY(QString Label READ GetLabel WRITE SetLabel NOTIFY AttributesChanged)
    /// Whether the control is enabled; true unless set.
    Q_PROPERTY(bool IsEnabled READ IsEnabled WRITE SetEnabled NOTIFY AttributesChanged)
    /// Whether the control is shown; true unless set.
    Q_PROPERTY(bool IsVisible READ IsVisible WRITE SetVisible NOTIFY AttributesChanged)
    /// The tool tip of the control.
    Q_PROPERTY(QString Tooltip READ GetTooltip WRITE SetTooltip NOTIFY AttributesChanged)

public:
    /// What an element is, told by a kind to the base.
    enum Attribute
    {
        Leaf = 0,
        Container = 1, ///< holds child elements (page, panel, group)
    };

    /// Where a group places the control in its row.
    enum ControlPlacement
    {
        ControlRight = 0,
        ControlFullRow = 1,
    };

    /// Where a group places the label.
    enum LabelPlacement
    {
        LabelDefault = 0, ///< the control shows the label itself, or none
        LabelLeft = 1,
        LabelFullRow = 2,
        LabelControl = 3,
    };

    /// Whether a long label wraps.
    enum LabelWrap
    {
        LabelNoWrap = 0,
        LabelWordWrap = 1,
    };

    /// Where a group places the element in its grid of a label column and two
    /// control columns.
    struct LayoutInfo
    {
        /// A ControlPlacement.
        qint32 miControlPlacement = ControlRight;
        /// The control's alignment in its cell (Qt::Alignment).
        qint32 miControlAlignment = int(Qt::AlignLeft | Qt::AlignVCenter);
        /// A LabelPlacement.
        qint32 miLabelPlacement = LabelDefault;
        /// The label's alignment in its cell (Qt::Alignment).
        qint32 miLabelAlignment = int(Qt::AlignRight | Qt::AlignVCenter);
        /// A LabelWrap.
        qint32 miLabelWrap = LabelWordWrap;
        qint32 miControlIndent = 0; ///< pixels
        qint32 miColumn = -1;       ///< -1: placed automatically
        qint32 miColumnSpan = 1;    ///< used with an explicit column

        /// Whether every field equals the other's.
        bool operator==(const LayoutInfo& other) const;
        /// Whether a field differs from the other's.
        bool operator!=(const LayoutInfo& other) const { return !(*this == other); }
    };

    ~PropertyEditorElement() override;

    /// The element's Id; empty unless set.
    QString GetId() const;
    /// Renames without a uniqueness check (loading a definition checks).
    void SetId(const QString& id);
    /// The Label attribute.
    QString GetLabel() const;
    /// Sets the Label attribute (through its binding when it has one).
    void SetLabel(const QString& label);
    /// The Tooltip attribute.
    QString GetTooltip() const;
    /// Sets the Tooltip attribute (through its binding when it has one).
    void SetTooltip(const QString& tooltip);
    /// Binds the Tooltip attribute; see SetBinding.
    void SetTooltip(Binding* binding);

    /// Whether the element holds child elements (page, panel, group).
    bool IsContainer() const;
    /// The element holding this one; null for a page or an element not added yet.
    PropertyEditorElement* GetParent() const;
    /// The child at index; null for an index out of range.
    PropertyEditorElement* GetChild(int index) const;
    /// The number of child elements.
    int GetChildCount() const;
    /// The index of a child; -1 when it is not a child of this element.
    int IndexOfChild(PropertyEditorElement* child) const;
    ///@{
    /// Both take ownership on success; refused when CanAddChild says no or the
    /// child has a parent already.
    bool AddChild(PropertyEditorElement* child);
    bool InsertChild(int index, PropertyEditorElement* child);
    ///@}
    /// Removes the child at index from the element and its editor and deletes it; an
    /// index out of range does nothing.
    void DeleteChild(int index);
    /// The child (or, when recursive, the descendant, depth first) whose Id
    /// equals id without regard to case; null for an empty id.
    PropertyEditorElement* FindChild(const QString& id, bool recursive) const;

    /// The editor whose page holds this element, or null.
    PropertyEditor* GetEditor() const;
    /// The element's widget; null until the editor has built it.
    QWidget* GetWidget() const;
    /// The label that a group's grid made for the element, or null.
    Label* GetLabelWidget() const;

    /// The value of an attribute: its binding's value, else the widget's.
    QVariant GetValue(const QString& attribute) const;

    /// The attribute's binding; null when it has none.
    Binding* GetBinding(const QString& attribute) const;
    /// Takes ownership of the binding (a previous one is deleted) and pushes
    /// its value into the widget. Refused (and the binding deleted) when
    /// CanBindProperty says no. A null binding removes the attribute's binding.
    bool SetBinding(const QString& attribute, Binding* binding);
    /// Removes and deletes the attribute's binding; nothing happens when it has none.
    void DeleteBinding(const QString& attribute);

    /// The IsEnabled attribute; true unless set.
    bool IsEnabled() const;
    /// Sets the IsEnabled attribute (through its binding when it has one).
    void SetEnabled(bool enabled);
    /// Binds the IsEnabled attribute; see SetBinding.
    void SetEnabled(Binding* binding);
    /// The IsVisible attribute; true unless set.
    bool IsVisible() const;
    /// Sets the IsVisible attribute (through its binding when it has one).
    void SetVisible(bool visible);
    /// Binds the IsVisible attribute; see SetBinding.
    void SetVisible(Binding* binding);

    /// Where a group places the element, as set.
    LayoutInfo GetLayoutInfo() const;
    /// Sets where a group places the element; the parent lays its children out again.
    void SetLayoutInfo(const LayoutInfo& layoutInfo);
    /// The layout information that placement in a grid uses.
    virtual LayoutInfo GetLayoutInfoOverride() const;

    /// A multi-line description of the element and its subtree: kind, Id,
    /// label, layout and bindings, for diagnostics.
    QString GetDebugText() const;

    /// The element's implementation, for the library's own kinds.
    PropertyEditorElementImp* GetImp() const;

    /// Makes an element type creatable from UI definitions under a name: the
    /// bare tag for the library's kinds, "Namespace::Tag" for a type of another
    /// module, whose nodes name it through a namespace URI. The type must be a
    /// default-constructible PropertyEditorElement.
    static void RegisterElementType(QMetaType type, const char* name);
    /// Registers the element type T under a name, as the QMetaType overload.
    template <typename T> static void RegisterElementType(const char* name)
    {
        RegisterElementType(QMetaType::fromType<T>(), name);
    }

Q_SIGNALS:
    /// The control's value was changed by an edit.
    void ValueChanged();
    /// One of the element's bindings reported a modification.
    void BindingModified();
    /// An attribute took a new value, by an edit or from its source; both are
    /// emitted, the second is the notify signal of the attribute properties.
    void AttributeChanged(const QString& attribute);
    /// An attribute took a new value; the notify signal of the attribute properties.
    void AttributesChanged();
    /// The element's widget was built and has taken the attributes' values;
    /// hosts adjust what definitions don't describe (units, icons, limits).
    void WidgetCreated(QWidget* widget);

protected Q_SLOTS:
    /// Reacts to a binding of the element reporting a modification: emits BindingModified
    /// and pushes the attribute's new value into the widget.
    void BindingModifiedSlot();

protected:
    /// An element of a kind of its own; attribute says whether it holds children.
    explicit PropertyEditorElement(Attribute attribute, QObject* parent = nullptr);
    /// For the library's kinds, each with an implementation of its own.
    explicit PropertyEditorElement(std::unique_ptr<PropertyEditorElementImp> imp, QObject* parent = nullptr);

    /// Whether child may be added; the default takes any element but a page, and only
    /// into a container.
    virtual bool CanAddChild(PropertyEditorElement* child) const;
    /// Whether the attribute may take a binding; the default refuses only an empty name.
    virtual bool CanBindProperty(const QString& attribute) const;
    /// Loads an element from its node, read in place. A definition calls it
    /// for nodes whose namespace URI names another module; nodes without a
    /// namespace (every node of a document read without namespace processing)
    /// take the library's own load, whatever type they create. The default
    /// reads what every element reads, and its children.
    virtual bool Load(const QDomElement& element);
    /// Creates the element's widget under parent; the default makes a plain QWidget that
    /// takes the element's place in a grid.
    virtual QWidget* CreateWidgetOverride(QWidget* parent);
    /// Places the widgets of the children into the element's widget; the default does
    /// nothing.
    virtual void AddChildWidgetsOverride();
    /// Shows the attribute's value in the widget; the default handles IsEnabled,
    /// IsVisible and Tooltip.
    virtual void UpdateWidgetOverride(const QString& attribute);
    /// The attribute's value as the widget shows it; the default answers IsEnabled,
    /// IsVisible and Tooltip, and an invalid value otherwise or without a widget.
    virtual QVariant GetWidgetValueOverride(const QString& attribute) const;
    /// Attributes with a lower order reach a new widget first.
    virtual int GetUpdateOrder(const QString& attribute) const;

    /// Writes the widget's value of the attribute back through its binding.
    void UpdateSourceValue(const QString& attribute);
    /// Pushes the attribute's value into the widget (when it exists).
    void UpdateWidget(const QString& attribute);
    /// Whether the element is pushing values into its widget right now:
    /// signals of the widget then echo the element's own change.
    bool IsUpdatingWidget() const;
    /// Sets the attribute's value: through its binding when it has one, else
    /// as a new literal binding of that type.
    void SetAttributeValue(const QString& attribute, const QVariant& value, QMetaType::Type type);
    /// Emits AttributeChanged and AttributesChanged.
    void NotifyAttributeChanged(const QString& attribute);

private:
    Q_DISABLE_COPY_MOVE(PropertyEditorElement)
    friend class PropertyEditorElementImp;
    std::unique_ptr<PropertyEditorElementImp> const mpImp;
};

} // namespace Kavrel::UICore
