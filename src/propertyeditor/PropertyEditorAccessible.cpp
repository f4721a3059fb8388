// The property editor is a form to screen readers, and each group's grid a
// group named after the group; the controls inside speak for themselves.
#include <KvUICore/propertyeditor/PropertyEditorAccessible_p.h>

#include <KvUICore/propertyeditor/GroupElement.h>
#include <KvUICore/propertyeditor/GroupElementImp.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>

namespace Kavrel::UICore::Internal {

namespace {

class PropertyEditorAccessible : public QAccessibleWidget
{
public:
    explicit PropertyEditorAccessible(PropertyEditor* editor)
        : QAccessibleWidget(editor, QAccessible::Form)
    {}

    QString text(QAccessible::Text t) const override
    {
        const QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty())
            return QCoreApplication::translate("Kavrel::UICore::PropertyEditor", "Properties");
        return text;
    }
};

class GroupGridAccessible : public QAccessibleWidget
{
public:
    explicit GroupGridAccessible(GroupGrid* grid)
        : QAccessibleWidget(grid, QAccessible::Grouping)
    {}

    QString text(QAccessible::Text t) const override
    {
        const QString text = QAccessibleWidget::text(t);
        if (t != QAccessible::Name || !text.isEmpty())
            return text;
        const GroupElement* group = static_cast<GroupGrid*>(widget())->GetGroup();
        if (group && !group->GetLabel().isEmpty())
            return group->GetLabel();
        return QCoreApplication::translate("Kavrel::UICore::PropertyEditor", "Group");
    }
};

QAccessibleInterface* PropertyEditorFactory(const QString&, QObject* object)
{
    if (auto* editor = qobject_cast<PropertyEditor*>(object))
        return new PropertyEditorAccessible(editor);
    if (auto* grid = qobject_cast<GroupGrid*>(object))
        return new GroupGridAccessible(grid);
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
