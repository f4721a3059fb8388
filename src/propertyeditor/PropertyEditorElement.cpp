#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>

#include <KvUICore/propertyeditor/Binding.h>
#include <KvUICore/propertyeditor/ElementRegistry_p.h>
#include <KvUICore/propertyeditor/PageElement.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/propertyeditor/PropertyEditorContext.h>
#include <KvUICore/propertyeditor/PropertyEditorImp.h>
#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/XmlFilerReadLog_p.h>
#include <KvUICore/widgets/Label.h>

#include <QDomElement>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace Kavrel::UICore {

namespace {

// The words of the layout attributes; built when the library is loaded.
const XmlWordTable kControlPlacementWords = {
    {PropertyEditorElement::ControlRight, QStringLiteral("Right")},
    {PropertyEditorElement::ControlFullRow, QStringLiteral("FullRow")},
};

const XmlWordTable kLabelPlacementWords = {
    {PropertyEditorElement::LabelDefault, QStringLiteral("Default")},
    {PropertyEditorElement::LabelLeft, QStringLiteral("Left")},
    {PropertyEditorElement::LabelFullRow, QStringLiteral("FullRow")},
    {PropertyEditorElement::LabelControl, QStringLiteral("Control")},
};

const XmlWordTable kLabelWrapWords = {
    {PropertyEditorElement::LabelNoWrap, QStringLiteral("NoWrap")},
    {PropertyEditorElement::LabelWordWrap, QStringLiteral("WordWrap")},
};

const XmlWordTable kAlignmentWords = {
    {0x1, QStringLiteral("AlignLeft")},    {0x2, QStringLiteral("AlignRight")},
    {0x4, QStringLiteral("AlignHCenter")}, {0x20, QStringLiteral("AlignTop")},
    {0x40, QStringLiteral("AlignBottom")}, {0x80, QStringLiteral("AlignVCenter")},
    {0x84, QStringLiteral("AlignCenter")},
};

QString WordOf(const XmlWordTable& table, int value)
{
    for (const auto& entry : table) {
        if (entry.first == value)
            return entry.second;
    }
    return QString::number(value);
}

bool BoolOr(const QVariant& value, bool fallback)
{
    return value.isValid() ? value.toBool() : fallback;
}

// How deep element loads are nested right now, over every editor: the walk
// recurses once per container level and refuses to go deeper than the limit.
int sElementLoadDepth = 0;

struct LoadDepthScope
{
    LoadDepthScope() { ++sElementLoadDepth; }
    ~LoadDepthScope() { --sElementLoadDepth; }
    Q_DISABLE_COPY_MOVE(LoadDepthScope)
};

} // namespace

// ---- PropertyEditorElementImp ------------------------------------------------

PropertyEditorElementImp::PropertyEditorElementImp(PropertyEditorElement::Attribute attribute)
    : miState(attribute == PropertyEditorElement::Container ? quint32(ContainerBit) : 0u)
{}

PropertyEditorElementImp::~PropertyEditorElementImp() = default;

QString PropertyEditorElementImp::KindName() const
{
    return QString::fromLatin1(mpOwner->metaObject()->className());
}

QString PropertyEditorElementImp::LoadSourceName() const
{
    const PropertyEditorImp* editor = GetEditorImp();
    const QString source = editor ? editor->LoadSourceName() : QString();
    return source.isEmpty() ? QStringLiteral("the UI definition") : source;
}

void PropertyEditorElementImp::ReportUnknownAttributes(QStringList names) const
{
    // A hostile file may carry hundreds: the first few name the problem.
    constexpr qsizetype kNamed = 8;
    names.sort();
    const qsizetype count = names.size();
    QString list = QStringList(names.mid(0, kNamed)).join(QStringLiteral(", "));
    if (count > kNamed)
        list += QStringLiteral(" and %1 more").arg(count - kNamed);
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::PropertyEditor, QtWarningMsg,
                              QStringLiteral("Property editor: %1: %2 \"%3\" ignores the unknown attribute%4 %5\n")
                                  .arg(LoadSourceName(), KindName(), msId,
                                       count > 1 ? QStringLiteral("s") : QString(), list));
}

bool PropertyEditorElementImp::Load(XmlFiler& filer)
{
    const LoadDepthScope depth;
    if (sElementLoadDepth > PropertyEditor::kMaxDefinitionDepth) {
        Internal::WriteDiagnostic(Internal::DiagnosticChannel::PropertyEditor, QtWarningMsg, [&] {
            return QStringLiteral("Property editor: %1 nests elements deeper than %2 levels\n")
                .arg(LoadSourceName())
                .arg(PropertyEditor::kMaxDefinitionDepth);
        });
        return false;
    }
    // A handler of the signals sent while loading may delete the editor and
    // this element with it; the load then stops without touching either.
    const QPointer<PropertyEditorElement> self(mpOwner);
    std::optional<Internal::AttributeReadLog> readLog;
    if (Internal::IsDiagnosticListened(Internal::DiagnosticChannel::PropertyEditor, QtWarningMsg))
        readLog.emplace(filer);
    const QString id = filer.ReadString(QStringLiteral("Id"));
    const QString label = filer.ReadString(AttributeName::Label);
    const QString isEnabled = filer.ReadString(AttributeName::IsEnabled, QStringLiteral("True"));
    const QString isVisible = filer.ReadString(AttributeName::IsVisible, QStringLiteral("True"));
    const QString tooltip = filer.ReadString(AttributeName::Tooltip);

    PropertyEditorElement::LayoutInfo& info = mLayoutInfo;
    info.miControlPlacement =
        filer.ReadEnum(QStringLiteral("ControlPlacement"), kControlPlacementWords, info.miControlPlacement);
    info.miControlIndent = filer.ReadInt(QStringLiteral("ControlIndent"), 0);
    info.miLabelPlacement =
        filer.ReadEnum(QStringLiteral("LabelPlacement"), kLabelPlacementWords, info.miLabelPlacement);
    if (info.miLabelPlacement == PropertyEditorElement::LabelFullRow) {
        // A label on a row of its own starts at the left and doesn't wrap,
        // unless the attributes below say otherwise.
        info.miLabelAlignment = (info.miLabelAlignment & ~int(Qt::AlignRight)) | int(Qt::AlignLeft);
        info.miLabelWrap = PropertyEditorElement::LabelNoWrap;
    }
    info.miLabelWrap = filer.ReadEnum(QStringLiteral("LabelWrap"), kLabelWrapWords, info.miLabelWrap);
    info.miLabelAlignment = filer.ReadFlags(QStringLiteral("LabelAlignment"), kAlignmentWords, info.miLabelAlignment);
    info.miControlAlignment =
        filer.ReadFlags(QStringLiteral("ControlAlignment"), kAlignmentWords, info.miControlAlignment);
    info.miColumn = filer.ReadInt(QStringLiteral("Column"), -1);
    info.miColumnSpan = filer.ReadInt(QStringLiteral("ColumnSpan"), 1);

    // A name already used in the editor is not taken: the element keeps its own.
    if (id.compare(msId, Qt::CaseInsensitive) != 0) {
        PropertyEditorImp* editor = GetEditorImp();
        if (id.isEmpty() || !editor || !editor->IsNameTaken(id))
            mpOwner->SetId(id);
    }

    if (!self)
        return false;
    mpOwner->SetLabel(label);
    if (!self)
        return false;

    BindAttributeText(AttributeName::IsEnabled, isEnabled, QMetaType::Bool);
    BindAttributeText(AttributeName::IsVisible, isVisible, QMetaType::Bool);
    BindAttributeText(AttributeName::Tooltip, tooltip, QMetaType::QString);
    if (!self)
        return false;

    LoadAttributes(filer);
    if (!self)
        return false;
    if (readLog) {
        const QStringList unknown = readLog->Unread();
        readLog.reset();
        if (!unknown.isEmpty())
            ReportUnknownAttributes(unknown);
    }

    if (!IsContainer())
        return true;

    bool result = true;
    Internal::ElementTypeRegistry& registry = Internal::ElementTypeRegistry::Instance();
    filer.RememberPosition();
    for (bool more = filer.GoToFirstChild(); more; more = filer.GoToNextSibling()) {
        const QDomElement node = filer.GetCurrentElement();
        const QString namespaceUri = node.namespaceURI();
        PropertyEditorElement* child = registry.Create(node.tagName(), namespaceUri);
        if (!child) {
            Internal::WriteDiagnostic(Internal::DiagnosticChannel::PropertyEditor, QtWarningMsg, [&] {
                return QStringLiteral("Property editor: %1: unknown element <%2> in %3 \"%4\" is skipped\n")
                    .arg(LoadSourceName(), node.tagName(), KindName(), msId);
            });
            continue;
        }
        if (RefuseNesting(child)) {
            result = false;
            break;
        }
        const bool accepted = mpOwner->AddChild(child);
        if (!self) {
            if (!accepted)
                delete child;
            return false;
        }

        // Elements without a namespace, as every element of a document read
        // without namespace processing, take the library's own load, whatever
        // module their type comes from.
        bool ownLoad = namespaceUri.isEmpty();
        if (!ownLoad) {
            Internal::ElementNamespace ns;
            ownLoad = Internal::ElementTypeRegistry::ParseNamespaceUri(namespaceUri, &ns) &&
                      Internal::ElementTypeRegistry::IsLibraryNamespace(ns);
        }
        const QPointer<PropertyEditorElement> guardedChild(child);
        const bool loaded = ownLoad ? Of(child)->Load(filer) : child->Load(node);
        if (!accepted)
            delete guardedChild.data();
        if (!self)
            return false;
        if (!loaded) {
            result = false;
            break;
        }
    }
    filer.RestorePosition();
    return result;
}

bool PropertyEditorElementImp::LoadFromDomElement(const QDomElement& element)
{
    if (element.isNull())
        return false;
    // The node may belong to any document: the filer reads it in place.
    XmlFiler filer;
    const XmlFiler::RootScope scope(filer, element);
    if (PropertyEditorImp* editor = GetEditorImp())
        filer.SetTranslationTable(editor->mpLoadTable);
    return Load(filer);
}

void PropertyEditorElementImp::LoadAttributes(XmlFiler& /*filer*/) {}

bool PropertyEditorElementImp::RefuseNesting(PropertyEditorElement* child) const
{
    if (!Of(child)->IsContainer())
        return false;
    int depth = 1;
    for (const PropertyEditorElementImp* imp = this; imp->mpParent; imp = Of(imp->mpParent))
        ++depth;
    if (depth <= PropertyEditor::kMaxNestingDepth)
        return false;
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::PropertyEditor, QtWarningMsg, QStringLiteral("Property editor: a %1 inside \"%2\" nests containers deeper than %3 "
                                             "levels; the definition is refused\n")
                                  .arg(Of(child)->KindName(), msId)
                                  .arg(PropertyEditor::kMaxNestingDepth));
    delete child;
    return true;
}

void PropertyEditorElementImp::BuildWidgetTree(QWidget* parent)
{
    bool created = false;
    if (!mpWidget) {
        mpWidget = mpOwner->CreateWidgetOverride(parent);
        created = true;
        if (mpWidget) {
            PushAllAttributes();
            emit mpOwner->WidgetCreated(mpWidget);
        }
    }
    if (!IsContainer())
        return;
    QWidget* childParent = GetChildParentWidget();
    for (PropertyEditorElement* child : std::as_const(mChildren))
        Of(child)->BuildWidgetTree(childParent);
    if (created || (miState & ChildrenChangedBit)) {
        miState &= ~quint32(ChildrenChangedBit);
        if (mpWidget)
            mpOwner->AddChildWidgetsOverride();
    }
}

QWidget* PropertyEditorElementImp::GetChildParentWidget() const
{
    return mpWidget;
}

void PropertyEditorElementImp::PushAllAttributes()
{
    QList<QString> attributes = mBindings.keys();
    std::stable_sort(attributes.begin(), attributes.end(), [this](const QString& a, const QString& b) {
        return mpOwner->GetUpdateOrder(a) < mpOwner->GetUpdateOrder(b);
    });
    if (!mBindings.contains(AttributeName::Label))
        mpOwner->UpdateWidget(AttributeName::Label);
    for (const QString& attribute : std::as_const(attributes))
        mpOwner->UpdateWidget(attribute);
}

void PropertyEditorElementImp::DestroyWidgets()
{
    for (PropertyEditorElement* child : std::as_const(mChildren))
        Of(child)->DestroyWidgets();
    delete mpLabelWidget.data();
    delete mpWidget.data();
}

void PropertyEditorElementImp::BindAttributeText(const QString& attribute, const QString& text, QMetaType::Type type)
{
    mpOwner->SetBinding(attribute, new Binding(QVariant(text), type));
}

Binding* PropertyEditorElementImp::FindBinding(const QString& attribute) const
{
    return mBindings.value(attribute, nullptr);
}

void PropertyEditorElementImp::SetLabelWidget(Label* label)
{
    if (label == mpLabelWidget)
        return;
    delete mpLabelWidget.data();
    mpLabelWidget = label;
    if (!label)
        return;
    label->setEnabled(mpOwner->IsEnabled());
    const QString tooltip = mpOwner->GetTooltip();
    if (!tooltip.isEmpty())
        label->SetReservedToolTip(tooltip);
    if (!mpOwner->IsVisible())
        label->hide();
}

PropertyEditorImp* PropertyEditorElementImp::GetEditorImp() const
{
    return GetRootImp()->mpEditor;
}

PropertyEditorElementImp* PropertyEditorElementImp::GetRootImp() const
{
    const PropertyEditorElementImp* imp = this;
    while (imp->mpParent)
        imp = Of(imp->mpParent);
    return const_cast<PropertyEditorElementImp*>(imp);
}

void PropertyEditorElementImp::AttachSubtreeToContext()
{
    PropertyEditorImp* editor = GetEditorImp();
    BindingContext* context = editor ? editor->mpContext : nullptr;
    for (Binding* binding : std::as_const(mBindings))
        binding->SetContext(context);
    for (PropertyEditorElement* child : std::as_const(mChildren))
        Of(child)->AttachSubtreeToContext();
}

void PropertyEditorElementImp::MarkChildrenChanged()
{
    miState |= ChildrenChangedBit;
    // The path up to the root is marked too, so a rebuild finds the change.
    for (PropertyEditorElement* parent = mpParent; parent; parent = Of(parent)->mpParent)
        Of(parent)->miState |= ChildrenChangedBit;
    if (PropertyEditorImp* editor = GetEditorImp())
        editor->Invalidate();
}

void PropertyEditorElementImp::AppendDebugText(QString& text, int depth) const
{
    const QString indent(depth * 2, QLatin1Char(' '));
    const PropertyEditorElement::LayoutInfo info = mpOwner->GetLayoutInfoOverride();
    text += QStringLiteral("%1%2 Id=\"%3\" Label=\"%4\"").arg(indent, KindName(), msId, msLabel);
    text += QStringLiteral(" ControlPlacement=%1 LabelPlacement=%2 LabelWrap=%3")
                .arg(WordOf(kControlPlacementWords, info.miControlPlacement),
                     WordOf(kLabelPlacementWords, info.miLabelPlacement), WordOf(kLabelWrapWords, info.miLabelWrap));
    text += QStringLiteral(" LabelAlignment=0x%1 ControlAlignment=0x%2 ControlIndent=%3 Column=%4 ColumnSpan=%5\n")
                .arg(QString::number(info.miLabelAlignment, 16), QString::number(info.miControlAlignment, 16))
                .arg(info.miControlIndent)
                .arg(info.miColumn)
                .arg(info.miColumnSpan);
    for (auto it = mBindings.cbegin(); it != mBindings.cend(); ++it) {
        const Binding* binding = it.value();
        QString source;
        if (binding->GetSource()) {
            source = QStringLiteral(" -> %1::%2")
                         .arg(QString::fromLatin1(binding->GetSource()->metaObject()->className()),
                              binding->GetSourceProperty());
        } else if (!binding->GetExpression().isEmpty()) {
            source = QStringLiteral(" (unresolved)");
        }
        const QString expression = binding->GetExpression();
        text += QStringLiteral("%1  %2 = %3%4%5\n")
                    .arg(indent, it.key(), expression.isEmpty() ? binding->GetValue().toString() : expression, source,
                         mpWidget ? QString() : QStringLiteral(" [no widget]"));
    }
    for (PropertyEditorElement* child : std::as_const(mChildren))
        Of(child)->AppendDebugText(text, depth + 1);
}

// ---- PropertyEditorElement ---------------------------------------------------

bool PropertyEditorElement::LayoutInfo::operator==(const LayoutInfo& other) const
{
    return miControlPlacement == other.miControlPlacement && miControlAlignment == other.miControlAlignment &&
           miLabelPlacement == other.miLabelPlacement && miLabelAlignment == other.miLabelAlignment &&
           miLabelWrap == other.miLabelWrap && miControlIndent == other.miControlIndent && miColumn == other.miColumn &&
           miColumnSpan == other.miColumnSpan;
}

PropertyEditorElement::PropertyEditorElement(Attribute attribute, QObject* parent)
    : PropertyEditorElement(std::make_unique<PropertyEditorElementImp>(attribute), parent)
{}

PropertyEditorElement::PropertyEditorElement(std::unique_ptr<PropertyEditorElementImp> imp, QObject* parent)
    : QObject(parent)
    , mpImp(std::move(imp))
{
    mpImp->mpOwner = this;
}

PropertyEditorElement::~PropertyEditorElement()
{
    // The subtree goes quietly: a handler reached from its teardown would
    // find elements and an editor half destroyed.
    if (!mpImp->mbTearingDown) {
        QList<PropertyEditorElement*> pending{this};
        while (!pending.isEmpty()) {
            PropertyEditorElementImp* imp = pending.takeLast()->mpImp.get();
            imp->mbTearingDown = true;
            imp->mpOwner->blockSignals(true);
            for (Binding* binding : std::as_const(imp->mBindings))
                binding->blockSignals(true);
            pending.append(imp->mChildren);
        }
    }
    // Bindings go first, so that nothing reaches this element while its
    // children and widgets are torn down.
    const QList<Binding*> bindings = mpImp->mBindings.values();
    mpImp->mBindings.clear();
    for (Binding* binding : bindings) {
        disconnect(binding, nullptr, this, nullptr);
        delete binding;
    }
    if (PropertyEditorImp* editor = mpImp->GetEditorImp())
        editor->UnregisterSubtree(this);
    if (mpImp->mpParent) {
        PropertyEditorElementImp* parentImp = PropertyEditorElementImp::Of(mpImp->mpParent);
        parentImp->mChildren.removeOne(this);
        mpImp->mpParent = nullptr;
    }
    const QList<PropertyEditorElement*> children = mpImp->mChildren;
    mpImp->mChildren.clear();
    for (PropertyEditorElement* child : children) {
        PropertyEditorElementImp::Of(child)->mpParent = nullptr;
        delete child;
    }
    delete mpImp->mpLabelWidget.data();
    delete mpImp->mpWidget.data();
}

QString PropertyEditorElement::GetId() const
{
    return mpImp->msId;
}

void PropertyEditorElement::SetId(const QString& id)
{
    if (id == mpImp->msId)
        return;
    const QString oldId = mpImp->msId;
    mpImp->msId = id;
    if (PropertyEditorImp* editor = mpImp->GetEditorImp())
        editor->Rename(this, oldId, id);
    NotifyAttributeChanged(QStringLiteral("Id"));
}

QString PropertyEditorElement::GetLabel() const
{
    if (Binding* binding = mpImp->FindBinding(AttributeName::Label))
        return binding->GetValue().toString();
    return mpImp->msLabel;
}

void PropertyEditorElement::SetLabel(const QString& label)
{
    if (mpImp->FindBinding(AttributeName::Label)) {
        SetAttributeValue(AttributeName::Label, label, QMetaType::QString);
        return;
    }
    if (label == mpImp->msLabel)
        return;
    mpImp->msLabel = label;
    UpdateWidget(AttributeName::Label);
    NotifyAttributeChanged(AttributeName::Label);
}

QString PropertyEditorElement::GetTooltip() const
{
    return GetValue(AttributeName::Tooltip).toString();
}

void PropertyEditorElement::SetTooltip(const QString& tooltip)
{
    SetAttributeValue(AttributeName::Tooltip, tooltip, QMetaType::QString);
}

void PropertyEditorElement::SetTooltip(Binding* binding)
{
    SetBinding(AttributeName::Tooltip, binding);
}

bool PropertyEditorElement::IsContainer() const
{
    return mpImp->IsContainer();
}

PropertyEditorElement* PropertyEditorElement::GetParent() const
{
    return mpImp->mpParent;
}

PropertyEditorElement* PropertyEditorElement::GetChild(int index) const
{
    return index >= 0 && index < mpImp->mChildren.size() ? mpImp->mChildren.at(index) : nullptr;
}

int PropertyEditorElement::GetChildCount() const
{
    return int(mpImp->mChildren.size());
}

int PropertyEditorElement::IndexOfChild(PropertyEditorElement* child) const
{
    return int(mpImp->mChildren.indexOf(child));
}

bool PropertyEditorElement::AddChild(PropertyEditorElement* child)
{
    return InsertChild(GetChildCount(), child);
}

bool PropertyEditorElement::InsertChild(int index, PropertyEditorElement* child)
{
    if (!child || child->GetParent() || !CanAddChild(child))
        return false;
    for (const PropertyEditorElement* ancestor = this; ancestor; ancestor = ancestor->GetParent()) {
        if (ancestor == child)
            return false;
    }
    // A root page belongs to its editor.
    if (PropertyEditorElementImp::Of(child)->mpEditor)
        return false;
    index = std::clamp(index, 0, GetChildCount());
    mpImp->mChildren.insert(index, child);
    PropertyEditorElementImp* childImp = PropertyEditorElementImp::Of(child);
    childImp->mpParent = this;
    if (PropertyEditorImp* editor = mpImp->GetEditorImp()) {
        editor->RegisterSubtree(child);
        childImp->AttachSubtreeToContext();
    }
    mpImp->MarkChildrenChanged();
    return true;
}

void PropertyEditorElement::DeleteChild(int index)
{
    PropertyEditorElement* child = GetChild(index);
    if (!child)
        return;
    if (PropertyEditorImp* editor = mpImp->GetEditorImp())
        editor->UnregisterSubtree(child);
    mpImp->mChildren.removeAt(index);
    PropertyEditorElementImp::Of(child)->mpParent = nullptr;
    delete child;
    mpImp->MarkChildrenChanged();
}

PropertyEditorElement* PropertyEditorElement::FindChild(const QString& id, bool recursive) const
{
    if (id.isEmpty())
        return nullptr;
    for (PropertyEditorElement* child : std::as_const(mpImp->mChildren)) {
        if (child->GetId().compare(id, Qt::CaseInsensitive) == 0)
            return child;
        if (recursive) {
            if (PropertyEditorElement* found = child->FindChild(id, true))
                return found;
        }
    }
    return nullptr;
}

PropertyEditor* PropertyEditorElement::GetEditor() const
{
    PropertyEditorImp* editor = mpImp->GetEditorImp();
    return editor ? editor->mpHost : nullptr;
}

QWidget* PropertyEditorElement::GetWidget() const
{
    return mpImp->mpWidget;
}

Label* PropertyEditorElement::GetLabelWidget() const
{
    return mpImp->mpLabelWidget;
}

QVariant PropertyEditorElement::GetValue(const QString& attribute) const
{
    if (Binding* binding = mpImp->FindBinding(attribute))
        return binding->GetValue();
    if (attribute == AttributeName::Label)
        return mpImp->msLabel;
    if (mpImp->mpWidget)
        return GetWidgetValueOverride(attribute);
    return QVariant();
}

Binding* PropertyEditorElement::GetBinding(const QString& attribute) const
{
    return mpImp->FindBinding(attribute);
}

bool PropertyEditorElement::SetBinding(const QString& attribute, Binding* binding)
{
    if (!binding) {
        DeleteBinding(attribute);
        return true;
    }
    Binding* previous = mpImp->FindBinding(attribute);
    if (previous == binding)
        return true;
    if (!CanBindProperty(attribute)) {
        delete binding;
        return false;
    }
    if (previous) {
        disconnect(previous, nullptr, this, nullptr);
        delete previous;
    }
    mpImp->mBindings.insert(attribute, binding);
    binding->setParent(this);
    connect(binding, &Binding::BindingModified, this, &PropertyEditorElement::BindingModifiedSlot);
    if (PropertyEditorImp* editor = mpImp->GetEditorImp()) {
        // Resolving notifies, and a handler may delete the editor and this element.
        const QPointer<PropertyEditorElement> self(this);
        binding->SetContext(editor->mpContext);
        if (!self)
            return true;
    }
    UpdateWidget(attribute);
    NotifyAttributeChanged(attribute);
    return true;
}

void PropertyEditorElement::DeleteBinding(const QString& attribute)
{
    Binding* binding = mpImp->mBindings.take(attribute);
    if (!binding)
        return;
    disconnect(binding, nullptr, this, nullptr);
    delete binding;
    NotifyAttributeChanged(attribute);
}

bool PropertyEditorElement::IsEnabled() const
{
    return BoolOr(GetValue(AttributeName::IsEnabled), true);
}

void PropertyEditorElement::SetEnabled(bool enabled)
{
    SetAttributeValue(AttributeName::IsEnabled, enabled, QMetaType::Bool);
}

void PropertyEditorElement::SetEnabled(Binding* binding)
{
    SetBinding(AttributeName::IsEnabled, binding);
}

bool PropertyEditorElement::IsVisible() const
{
    return BoolOr(GetValue(AttributeName::IsVisible), true);
}

void PropertyEditorElement::SetVisible(bool visible)
{
    SetAttributeValue(AttributeName::IsVisible, visible, QMetaType::Bool);
}

void PropertyEditorElement::SetVisible(Binding* binding)
{
    SetBinding(AttributeName::IsVisible, binding);
}

PropertyEditorElement::LayoutInfo PropertyEditorElement::GetLayoutInfo() const
{
    return mpImp->mLayoutInfo;
}

void PropertyEditorElement::SetLayoutInfo(const LayoutInfo& layoutInfo)
{
    if (layoutInfo == mpImp->mLayoutInfo)
        return;
    mpImp->mLayoutInfo = layoutInfo;
    // The parent places its children again.
    if (mpImp->mpParent)
        PropertyEditorElementImp::Of(mpImp->mpParent)->MarkChildrenChanged();
}

PropertyEditorElement::LayoutInfo PropertyEditorElement::GetLayoutInfoOverride() const
{
    return GetLayoutInfo();
}

QString PropertyEditorElement::GetDebugText() const
{
    QString text;
    mpImp->AppendDebugText(text, 0);
    return text;
}

PropertyEditorElementImp* PropertyEditorElement::GetImp() const
{
    return mpImp.get();
}

void PropertyEditorElement::BindingModifiedSlot()
{
    auto* binding = qobject_cast<Binding*>(sender());
    if (!binding)
        return;
    const QString attribute = mpImp->mBindings.key(binding);
    if (attribute.isEmpty())
        return;
    // Handlers may delete the editor, and this element with it.
    const QPointer<PropertyEditorElement> self(this);
    emit BindingModified();
    if (!self)
        return;
    UpdateWidget(attribute);
    NotifyAttributeChanged(attribute);
}

bool PropertyEditorElement::CanAddChild(PropertyEditorElement* child) const
{
    return IsContainer() && child && !qobject_cast<PageElement*>(child);
}

bool PropertyEditorElement::CanBindProperty(const QString& attribute) const
{
    return !attribute.isEmpty();
}

bool PropertyEditorElement::Load(const QDomElement& element)
{
    return mpImp->LoadFromDomElement(element);
}

QWidget* PropertyEditorElement::CreateWidgetOverride(QWidget* parent)
{
    // An element of no particular kind still takes its place in a grid.
    auto* widget = new QWidget(parent);
    return widget;
}

void PropertyEditorElement::AddChildWidgetsOverride() {}

void PropertyEditorElement::UpdateWidgetOverride(const QString& attribute)
{
    QWidget* widget = mpImp->mpWidget;
    if (!widget)
        return;
    Label* label = mpImp->mpLabelWidget;
    if (attribute == AttributeName::IsEnabled) {
        const bool enabled = IsEnabled();
        widget->setEnabled(enabled);
        if (label)
            label->setEnabled(enabled);
    } else if (attribute == AttributeName::IsVisible) {
        const bool visible = IsVisible();
        QWidget* wrapper = mpImp->mpPlacedWrapper;
        if (!visible) {
            widget->hide();
            if (wrapper)
                wrapper->hide();
            if (label)
                label->hide();
        } else if (widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide)) {
            // Only what was hidden is shown again; the rest shows with its parent.
            widget->show();
            if (wrapper)
                wrapper->show();
            if (label)
                label->show();
        }
    } else if (attribute == AttributeName::Tooltip) {
        const QString tooltip = GetTooltip();
        widget->setToolTip(tooltip);
        if (label)
            label->SetReservedToolTip(tooltip);
    } else if (attribute == AttributeName::Label) {
        if (label)
            label->setText(GetLabel());
    }
}

QVariant PropertyEditorElement::GetWidgetValueOverride(const QString& attribute) const
{
    const QWidget* widget = mpImp->mpWidget;
    if (!widget)
        return QVariant();
    if (attribute == AttributeName::IsEnabled)
        return widget->isEnabled();
    if (attribute == AttributeName::IsVisible)
        return !widget->isHidden();
    if (attribute == AttributeName::Tooltip)
        return widget->toolTip();
    if (attribute == AttributeName::Label)
        return mpImp->msLabel;
    return QVariant();
}

int PropertyEditorElement::GetUpdateOrder(const QString& attribute) const
{
    // Whatever limits a value reaches the widget before the value.
    if (attribute == AttributeName::IsCheckable || attribute == AttributeName::Minimum ||
        attribute == AttributeName::Maximum || attribute == AttributeName::Precision)
        return -1;
    return 0;
}

void PropertyEditorElement::UpdateSourceValue(const QString& attribute)
{
    if (mpImp->mbUpdatingWidget)
        return;
    // Handlers of the signals below, and of the source's notify signal, may
    // delete the editor and this element with it.
    const QPointer<PropertyEditorElement> self(this);
    const QVariant value = GetWidgetValueOverride(attribute);
    bool modified = false;
    if (Binding* binding = mpImp->FindBinding(attribute)) {
        const bool bound = binding->IsBound();
        const QVariant before = binding->GetValue();
        const QPointer<Binding> guardedBinding(binding);
        binding->SetValue(value);
        if (!self || !guardedBinding)
            return;
        const QVariant after = binding->GetValue();
        modified = bound && after != before;
        // A source that refused or adjusted the value shows what it holds.
        if (bound && after != value)
            UpdateWidget(attribute);
    } else {
        const QMetaType::Type type = QMetaType::Type(value.metaType().id());
        auto* literal = new Binding(value, type);
        mpImp->mBindings.insert(attribute, literal);
        literal->setParent(this);
        connect(literal, &Binding::BindingModified, this, &PropertyEditorElement::BindingModifiedSlot);
        if (PropertyEditorImp* editor = mpImp->GetEditorImp())
            literal->SetContext(editor->mpContext);
    }
    emit ValueChanged();
    if (!self)
        return;
    NotifyAttributeChanged(attribute);
    if (!self || !modified)
        return;
    if (PropertyEditorImp* editor = mpImp->GetEditorImp())
        editor->ReportPropertyModified(this, attribute);
}

void PropertyEditorElement::UpdateWidget(const QString& attribute)
{
    if (!mpImp->mpWidget)
        return;
    Internal::WriteDiagnostic(Internal::DiagnosticChannel::PropertyEditor, QtDebugMsg, [&] {
        return QStringLiteral("Updating widget property for element: %1, target property:%2\n")
            .arg(mpImp->msId, attribute);
    });
    const bool wasUpdating = mpImp->mbUpdatingWidget;
    mpImp->mbUpdatingWidget = true;
    UpdateWidgetOverride(attribute);
    mpImp->mbUpdatingWidget = wasUpdating;
}

void PropertyEditorElement::NotifyAttributeChanged(const QString& attribute)
{
    const QPointer<PropertyEditorElement> self(this);
    emit AttributeChanged(attribute);
    if (self)
        emit AttributesChanged();
}

bool PropertyEditorElement::IsUpdatingWidget() const
{
    return mpImp->mbUpdatingWidget;
}

void PropertyEditorElement::SetAttributeValue(const QString& attribute, const QVariant& value, QMetaType::Type type)
{
    Binding* binding = mpImp->FindBinding(attribute);
    if (!binding) {
        SetBinding(attribute, new Binding(value, type));
        return;
    }
    const QVariant before = binding->GetValue();
    const QPointer<Binding> guardedBinding(binding);
    binding->SetValue(value);
    // The source's notify signal may have reached a handler that deleted the
    // editor, and this element with it.
    if (!guardedBinding)
        return;
    // A bound source with a notify signal has updated the widget already;
    // pushing again is harmless and covers sources without one.
    if (binding->GetValue() != before) {
        UpdateWidget(attribute);
        NotifyAttributeChanged(attribute);
    }
}

} // namespace Kavrel::UICore
