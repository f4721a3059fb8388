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
    Q_PROPERTY(QString Id READ GetId WRITE SetId NOTIFY AttributesChanged)
    Q_PROPERTY(QString Label READ GetLabel WRITE SetLabel NOTIFY AttributesChanged)
    Q_PROPERTY(bool IsEnabled READ IsEnabled WRITE SetEnabled NOTIFY AttributesChanged)
    Q_PROPERTY(bool IsVisible READ IsVisible WRITE SetVisible NOTIFY AttributesChanged)
    Q_PROPERTY(QString Tooltip READ GetTooltip WRITE SetTooltip NOTIFY AttributesChanged)

public:
    /// What an element is, told by a kind to the base.
    enum Attribute
    {
        Leaf = 0,
        Container = 1, ///< holds child elements (page, panel, group)
    };

    enum ControlPlacement
    {
        ControlRight = 0,
        ControlFullRow = 1,
    };

    enum LabelPlacement
    {
        LabelDefault = 0, ///< the control shows the label itself, or none
        LabelLeft = 1,
        LabelFullRow = 2,
        LabelControl = 3,
    };

    enum LabelWrap
    {
        LabelNoWrap = 0,
        LabelWordWrap = 1,
    };

    /// Where a group places the element in its grid of a label column and two
    /// control columns.
    struct LayoutInfo
    {
        qint32 miControlPlacement = ControlRight;
        qint32 miControlAlignment = int(Qt::AlignLeft | Qt::AlignVCenter);
        qint32 miLabelPlacement = LabelDefault;
        qint32 miLabelAlignment = int(Qt::AlignRight | Qt::AlignVCenter);
        qint32 miLabelWrap = LabelWordWrap;
        qint32 miControlIndent = 0; ///< pixels
        qint32 miColumn = -1;       ///< -1: placed automatically
        qint32 miColumnSpan = 1;    ///< used with an explicit column

        bool operator==(const LayoutInfo& other) const;
        bool operator!=(const LayoutInfo& other) const { return !(*this == other); }
    };

    ~PropertyEditorElement() override;

    QString GetId() const;
    /// Renames without a uniqueness check (loading a definition checks).
    void SetId(const QString& id);
    QString GetLabel() const;
    void SetLabel(const QString& label);
    QString GetTooltip() const;
    void SetTooltip(const QString& tooltip);
    void SetTooltip(Binding* binding);

    bool IsContainer() const;
    PropertyEditorElement* GetParent() const;
    PropertyEditorElement* GetChild(int index) const;
    int GetChildCount() const;
    int IndexOfChild(PropertyEditorElement* child) const;
    /// Both take ownership on success; refused when CanAddChild says no or the
    /// child has a parent already.
    bool AddChild(PropertyEditorElement* child);
    bool InsertChild(int index, PropertyEditorElement* child);
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

    Binding* GetBinding(const QString& attribute) const;
    /// Takes ownership of the binding (a previous one is deleted) and pushes
    /// its value into the widget. Refused (and the binding deleted) when
    /// CanBindProperty says no. A null binding removes the attribute's binding.
    bool SetBinding(const QString& attribute, Binding* binding);
    void DeleteBinding(const QString& attribute);

    bool IsEnabled() const;
    void SetEnabled(bool enabled);
    void SetEnabled(Binding* binding);
    bool IsVisible() const;
    void SetVisible(bool visible);
    void SetVisible(Binding* binding);

    LayoutInfo GetLayoutInfo() const;
    void SetLayoutInfo(const LayoutInfo& layoutInfo);
    /// The layout information that placement in a grid uses.
    virtual LayoutInfo GetLayoutInfoOverride() const;

    /// A multi-line description of the element and its subtree: kind, Id,
    /// label, layout and bindings, for diagnostics.
    QString GetDebugText() const;

    PropertyEditorElementImp* GetImp() const;

    /// Makes an element type creatable from UI definitions under a name: the
    /// bare tag for the library's kinds, "Namespace::Tag" for a type of another
    /// module, whose nodes name it through a namespace URI. The type must be a
    /// default-constructible PropertyEditorElement.
    static void RegisterElementType(QMetaType type, const char* name);
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
    void AttributesChanged();
    /// The element's widget was built and has taken the attributes' values;
    /// hosts adjust what definitions don't describe (units, icons, limits).
    void WidgetCreated(QWidget* widget);

protected Q_SLOTS:
    void BindingModifiedSlot();

protected:
    explicit PropertyEditorElement(Attribute attribute, QObject* parent = nullptr);
    /// For the library's kinds, each with an implementation of its own.
    explicit PropertyEditorElement(std::unique_ptr<PropertyEditorElementImp> imp, QObject* parent = nullptr);

    virtual bool CanAddChild(PropertyEditorElement* child) const;
    virtual bool CanBindProperty(const QString& attribute) const;
    /// Loads an element from its node, read in place. A definition calls it
    /// for nodes whose namespace URI names another module; nodes without a
    /// namespace (every node of a document read without namespace processing)
    /// take the library's own load, whatever type they create. The default
    /// reads what every element reads, and its children.
    virtual bool Load(const QDomElement& element);
    virtual QWidget* CreateWidgetOverride(QWidget* parent);
    virtual void AddChildWidgetsOverride();
    virtual void UpdateWidgetOverride(const QString& attribute);
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
