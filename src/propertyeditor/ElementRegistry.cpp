#include <KvUICore/core/LibraryHooks_p.h>
#include <KvUICore/propertyeditor/ElementRegistry_p.h>

#include <QHash>

namespace Kavrel::UICore::Internal {

QHash<QString, int>& RememberedColumnWidths()
{
    static QHash<QString, int> widths;
    return widths;
}

void ClearRememberedColumnWidths()
{
    RememberedColumnWidths().clear();
}

void RegisterPropertyEditorElementTypes()
{
    // The element kinds register here as they are added to the library, in the
    // order the UI definitions name them.
}

} // namespace Kavrel::UICore::Internal
