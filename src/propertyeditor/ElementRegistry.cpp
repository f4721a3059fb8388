#include <KvUICore/propertyeditor/ElementRegistry_p.h>

#include <KvUICore/core/CoreUIManager_p.h>
#include <KvUICore/platform/PlatformFiles_p.h>
#include <KvUICore/propertyeditor/ButtonElement.h>
#include <KvUICore/propertyeditor/CheckBoxElement.h>
#include <KvUICore/propertyeditor/ColorElement.h>
#include <KvUICore/propertyeditor/ComboBoxElement.h>
#include <KvUICore/propertyeditor/GroupElement.h>
#include <KvUICore/propertyeditor/LabelElement.h>
#include <KvUICore/propertyeditor/PanelElement.h>
#include <KvUICore/propertyeditor/RadioButtonGroupElement.h>
#include <KvUICore/propertyeditor/SliderElement.h>
#include <KvUICore/propertyeditor/TextBoxElement.h>
#include <KvUICore/propertyeditor/TextEditElement.h>
#include <KvUICore/util/Diagnostics_p.h>

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QMetaType>
#include <QRegularExpression>
#include <QSet>

namespace Kavrel::UICore {

namespace {

const QString kLibraryNamespace = QStringLiteral("Kavrel::UICore");
const QString kLibraryModule = QStringLiteral("KvUICore");

// The meta-type ids of element types: only these are ever created from a tag,
// so a tag naming some other registered type ("QString") creates nothing.
QSet<int>& ElementTypeIds()
{
    static QSet<int> ids;
    return ids;
}

template <typename T> void RegisterKind(const char* name)
{
    PropertyEditorElement::RegisterElementType(QMetaType::fromType<T>(), name);
}

} // namespace

void PropertyEditorElement::RegisterElementType(QMetaType type, const char* name)
{
    const int id = type.id();
    if (id <= 0 || !name || !*name)
        return;
    const QByteArray normalized = QMetaObject::normalizedType(name);
    // A typedef only where the name differs from the type's own.
    if (normalized != QByteArray(type.name()))
        QMetaType::registerNormalizedTypedef(normalized, type);
    ElementTypeIds().insert(id);
}

namespace Internal {

QHash<QString, ColumnWidths>& RememberedColumnWidths()
{
    static QHash<QString, ColumnWidths> widths;
    return widths;
}

void ClearRememberedColumnWidths()
{
    RememberedColumnWidths().clear();
}

void RegisterPropertyEditorElementTypes()
{
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    // "ListElement" is left out on purpose: no tag creates a bare list.
    RegisterKind<GroupElement>("GroupElement");
    RegisterKind<CheckBoxElement>("CheckBoxElement");
    RegisterKind<ComboBoxElement>("ComboBoxElement");
    RegisterKind<ButtonElement>("ButtonElement");
    RegisterKind<LabelElement>("LabelElement");
    RegisterKind<SliderElement>("SliderElement");
    RegisterKind<TextBoxElement>("TextBoxElement");
    RegisterKind<TextEditElement>("TextEditElement");
    RegisterKind<PanelElement>("PanelElement");
    RegisterKind<RadioButtonGroupElement>("RadioButtonGroupElement");
    RegisterKind<ColorElement>("ColorElement");
}

namespace {

// Start-up registers the kinds and shut-down forgets the widths through core.
void registerPropertyEditorLayer()
{
    PropertyEditorLayer layer;
    layer.mpRegisterElementTypes = &RegisterPropertyEditorElementTypes;
    layer.mpClearRememberedColumnWidths = &ClearRememberedColumnWidths;
    RegisterPropertyEditorLayer(layer);
}
Q_CONSTRUCTOR_FUNCTION(registerPropertyEditorLayer)

} // namespace

ElementTypeRegistry& ElementTypeRegistry::Instance()
{
    static ElementTypeRegistry registry;
    return registry;
}

PropertyEditorElement* ElementTypeRegistry::Create(const QString& tagName, const QString& namespaceUri)
{
    if (tagName.isEmpty())
        return nullptr;
    QString typeName = tagName;
    if (!namespaceUri.isEmpty()) {
        ElementNamespace ns;
        if (!ParseNamespaceUri(namespaceUri, &ns)) {
            WriteDiagnostic(Internal::DiagnosticChannel::PropertyEditor, QtWarningMsg, QStringLiteral("Property editor: invalid namespace URI \"%1\" of element %2\n")
                                .arg(namespaceUri, tagName));
            return nullptr;
        }
        if (ns.msNamespace != kLibraryNamespace)
            typeName = ns.msNamespace + QStringLiteral("::") + tagName;
        if (!IsLibraryNamespace(ns))
            LoadModule(ns.msModule);
    }
    const QMetaType type = QMetaType::fromName(typeName.toLatin1());
    if (!type.isValid() || type.id() <= 0 || !ElementTypeIds().contains(type.id()))
        return nullptr;
    // Element types are QObjects, whose QObject part starts the object.
    void* object = type.create();
    if (auto* element = qobject_cast<PropertyEditorElement*>(static_cast<QObject*>(object)))
        return element;
    type.destroy(object);
    return nullptr;
}

bool ElementTypeRegistry::ParseNamespaceUri(const QString& namespaceUri, ElementNamespace* result)
{
    const QStringList parts = namespaceUri.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (parts.size() != 2)
        return false;
    static const QString keys[2] = {QStringLiteral("namespace"), QStringLiteral("module")};
    QString values[2];
    for (int i = 0; i < 2; ++i) {
        const qsizetype equals = parts.at(i).indexOf(QLatin1Char('='));
        if (equals < 0)
            return false;
        const QString key = parts.at(i).left(equals).trimmed();
        if (key.compare(keys[i], Qt::CaseInsensitive) != 0)
            return false;
        values[i] = parts.at(i).mid(equals + 1).trimmed();
        if (values[i].isEmpty())
            return false;
    }
    if (result) {
        result->msNamespace = values[0];
        result->msModule = values[1];
    }
    return true;
}

bool ElementTypeRegistry::IsLibraryNamespace(const ElementNamespace& ns)
{
    return ns.msNamespace == kLibraryNamespace && ns.msModule.compare(kLibraryModule, Qt::CaseInsensitive) == 0;
}

bool ElementTypeRegistry::IsAcceptableModuleName(const QString& module)
{
    // Letters, digits, "_", "-", "+" and inner dots: no folder separators,
    // drives, schemes, blanks or parent references.
    static const QRegularExpression bareName(QStringLiteral("^[A-Za-z0-9_+-]+(\\.[A-Za-z0-9_+-]+)*$"));
    return !module.isEmpty() && module.size() <= 128 && bareName.match(module).hasMatch();
}

bool ElementTypeRegistry::LoadModule(const QString& module)
{
    if (!IsAcceptableModuleName(module)) {
        WriteDiagnostic(Internal::DiagnosticChannel::PropertyEditor, QtWarningMsg, QStringLiteral("Property editor: module \"%1\" refused: a module is named without a folder, "
                                       "drive or scheme\n")
                            .arg(module));
        return false;
    }
    const QString key = module.toLower();
    if (key == kLibraryModule.toLower() || mLoadedModules.contains(key))
        return true;
    // Only the application's folder and the library's own are searched, never
    // the working folder or the system's library path.
    QStringList folders;
    if (QCoreApplication::instance())
        folders.append(QCoreApplication::applicationDirPath());
    const QString libraryFolder = Platform::LibraryModuleDirectory();
    if (!libraryFolder.isEmpty() && !folders.contains(libraryFolder))
        folders.append(libraryFolder);
    QString errors;
    for (const QString& folder : std::as_const(folders)) {
        auto* library = new QLibrary(QDir(folder).absoluteFilePath(module));
        if (library->load()) {
            mLoadedModules.insert(key, library);
            return true;
        }
        errors += library->errorString() + QLatin1Char(' ');
        delete library;
    }
    WriteDiagnostic(Internal::DiagnosticChannel::PropertyEditor, QtWarningMsg,
        QStringLiteral("Property editor: module \"%1\" could not be loaded. %2\n").arg(module, errors.trimmed()));
    return false;
}

bool ElementTypeRegistry::IsModuleLoaded(const QString& module) const
{
    return mLoadedModules.contains(module.toLower());
}

} // namespace Internal

} // namespace Kavrel::UICore
