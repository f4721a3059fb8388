#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QHash>
#include <QString>

#include <array>

class QLibrary;

namespace Kavrel::UICore {
class PropertyEditorElement;
}

namespace Kavrel::UICore::Internal {

// The widths of the three grid columns (label column first); -1 leaves a
// column unset, 0 makes it stretch, a positive width is a minimum in pixels.
using ColumnWidths = std::array<int, 3>;

// Column widths the user set in an editor, kept for the rest of the process by
// the definition they were set for (see PropertyEditor), so that the next
// editor showing the same definition opens with them.
KVUICORE_EXPORT QHash<QString, ColumnWidths>& RememberedColumnWidths();
// Empties that table (at shut-down).
void ClearRememberedColumnWidths();

// Registers the element kinds with Qt's meta-type system, once.
void RegisterPropertyEditorElementTypes();

// The namespace and module that a node's namespace URI names:
// "namespace=Kavrel::UICore;module=KvUICore".
struct ElementNamespace
{
    QString msNamespace;
    QString msModule;
};

// Turns tag names into element objects through Qt's meta-type system, and
// loads the modules that namespace URIs name. One per process.
class KVUICORE_EXPORT ElementTypeRegistry
{
public:
    static ElementTypeRegistry& Instance();

    // A new element of the kind the tag names, or null; the caller owns it.
    PropertyEditorElement* Create(const QString& tagName, const QString& namespaceUri);

    // Two parts separated by ";" (empty parts dropped): "namespace=..." and
    // "module=...", keys trimmed and matched without regard to case, values
    // non-empty.
    static bool ParseNamespaceUri(const QString& namespaceUri, ElementNamespace* result);
    // Whether the parsed namespace is the library's own pair.
    static bool IsLibraryNamespace(const ElementNamespace& ns);
    // A module is only ever loaded by its bare name, from the application's
    // folder or the library's: no folders, drives, schemes or "..".
    static bool IsAcceptableModuleName(const QString& module);

    // Loads the module (once) from the trusted folders; false when the name is
    // refused or no such module loads.
    bool LoadModule(const QString& module);
    bool IsModuleLoaded(const QString& module) const;

private:
    ElementTypeRegistry() = default;
    QHash<QString, QLibrary*> mLoadedModules; // by lower-cased name; never unloaded
};

} // namespace Kavrel::UICore::Internal
