// The property editor is a form to screen readers, and each group's grid a
// group named after the group; the controls inside speak for themselves.
#include <KvUICore/propertyeditor/PropertyEditorAccessible_p.h>

#include <KvUICore/propertyeditor/GroupElement.h>
#include <KvUICore/propertyeditor/GroupElementImp.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>

namespace Kavrel::UICore::Internal {

namespace {

QAccessibleInterface* PropertyEditorFactory(const QString&, QObject* object)
{
    if (auto* editor = qobject_cast<PropertyEditor*>(object))
        return new NamedAccessible(editor, QAccessible::Form, [] {
            return QCoreApplication::translate("Kavrel::UICore::PropertyEditor", "Properties");
        });
    if (auto* grid = qobject_cast<GroupGrid*>(object))
        return new NamedAccessible(grid, QAccessible::Grouping, [grid] {
            const GroupElement* group = grid->GetGroup();
            return group && !group->GetLabel().isEmpty()
                       ? group->GetLabel()
                       : QCoreApplication::translate("Kavrel::UICore::PropertyEditor", "Group");
        });
    return nullptr;
}

} // namespace

void InstallPropertyEditorAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(&PropertyEditorFactory);
        return true;
    }();
    (void)installed;
}

} // namespace Kavrel::UICore::Internal
