// The accessible interfaces of the search box, drop-down tree, breadcrumb bar,
// message facility and palette window, and the factory that hands them to Qt.
#include <KvUICore/widgets/BreadcrumbBar.h>
#include <KvUICore/widgets/DropDownTree.h>
#include <KvUICore/widgets/MessageFacility.h>
#include <KvUICore/widgets/MessageFacilityRow_p.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/PaletteTitleBar.h>
#include <KvUICore/widgets/PaletteWindow.h>
#include <KvUICore/widgets/SearchBox.h>

#include <QAccessibleWidget>
#include <QLineEdit>

namespace Kavrel::UICore::Internal {

namespace {

// The field itself answers for its inner editor: one editable text, named
// by its prompt unless the host named it.
class SearchBoxAccessible : public QAccessibleWidget
{
public:
    explicit SearchBoxAccessible(SearchBox* box)
        : QAccessibleWidget(box, QAccessible::EditableText)
    {}

    SearchBox* Box() const { return static_cast<SearchBox*>(widget()); }

    QString text(QAccessible::Text t) const override
    {
        switch (t) {
        case QAccessible::Name:
            return Box()->accessibleName().isEmpty() ? Box()->GetPrompt() : Box()->accessibleName();
        case QAccessible::Value:
            return Box()->GetText();
        case QAccessible::Description:
            return Box()->accessibleDescription().isEmpty() ? SearchBox::tr("Search field")
                                                            : Box()->accessibleDescription();
        default:
            return QAccessibleWidget::text(t);
        }
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = QAccessibleWidget::state();
        s.editable = !Box()->GetLineEdit()->isReadOnly();
        s.focusable = true;
        s.focused = Box()->hasFocus();
        return s;
    }
};

class DropDownTreeAccessible : public QAccessibleWidget
{
public:
    explicit DropDownTreeAccessible(DropDownTree* tree)
        : QAccessibleWidget(tree, QAccessible::ComboBox)
    {
        addControllingSignal(QStringLiteral("CurrentIndexChanged(QModelIndex)"));
    }

    DropDownTree* Tree() const { return static_cast<DropDownTree*>(widget()); }

    QString text(QAccessible::Text t) const override
    {
        switch (t) {
        case QAccessible::Value:
            return Tree()->GetCurrentPathText();
        case QAccessible::Description:
            return Tree()->accessibleDescription().isEmpty() ? DropDownTree::tr("Tree drop-down")
                                                             : Tree()->accessibleDescription();
        case QAccessible::Name:
            return Tree()->accessibleName().isEmpty() ? Tree()->GetPrompt() : Tree()->accessibleName();
        default:
            return QAccessibleWidget::text(t);
        }
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = QAccessibleWidget::state();
        s.expandable = true;
        s.expanded = Tree()->IsPopupVisible();
        s.collapsed = !s.expanded;
        s.hasPopup = true;
        return s;
    }

    QStringList actionNames() const override
    {
        return QStringList{QAccessibleActionInterface::showMenuAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override
    {
        if (name == QAccessibleActionInterface::showMenuAction() || name == QAccessibleActionInterface::pressAction())
            Tree()->ShowPopup();
        else
            QAccessibleWidget::doAction(name);
    }
};

class MessageRowAccessible : public QAccessibleWidget
{
public:
    explicit MessageRowAccessible(MessageFacilityRow* row)
        : QAccessibleWidget(row, QAccessible::AlertMessage)
    {}

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name)
            return static_cast<MessageFacilityRow*>(widget())->GetAccessibleText();
        return QAccessibleWidget::text(t);
    }
};

class PaletteWindowAccessible : public QAccessibleWidget
{
public:
    explicit PaletteWindowAccessible(PaletteWindow* palette)
        : QAccessibleWidget(palette, palette->IsFloating() ? QAccessible::Window : QAccessible::Grouping)
    {}

    QString text(QAccessible::Text t) const override
    {
        auto* palette = static_cast<PaletteWindow*>(widget());
        if (t == QAccessible::Name && palette->accessibleName().isEmpty())
            return palette->GetTitle();
        return QAccessibleWidget::text(t);
    }

    QAccessible::Role role() const override
    {
        return static_cast<PaletteWindow*>(widget())->IsFloating() ? QAccessible::Window : QAccessible::Grouping;
    }
};

QAccessibleInterface* NavigationAccessibleFactory(const QString& className, QObject* object)
{
    // Asked once per class of the object's hierarchy: answer for the exact class only.
    if (!object || !object->isWidgetType() || className != QLatin1String(object->metaObject()->className()))
        return nullptr;
    if (auto* box = qobject_cast<SearchBox*>(object))
        return new SearchBoxAccessible(box);
    if (auto* tree = qobject_cast<DropDownTree*>(object))
        return new DropDownTreeAccessible(tree);
    if (auto* bar = qobject_cast<BreadcrumbBar*>(object))
        return new QAccessibleWidget(bar, QAccessible::ToolBar);
    if (auto* row = qobject_cast<MessageFacilityRow*>(object))
        return new MessageRowAccessible(row);
    if (auto* facility = qobject_cast<MessageFacility*>(object))
        return new QAccessibleWidget(facility, QAccessible::Grouping);
    if (auto* palette = qobject_cast<PaletteWindow*>(object))
        return new PaletteWindowAccessible(palette);
    if (auto* bar = qobject_cast<PaletteTitleBar*>(object))
        return new QAccessibleWidget(bar, QAccessible::TitleBar);
    return nullptr;
}

} // namespace

void InstallNavigationAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(&NavigationAccessibleFactory);
        return true;
    }();
    (void)installed;
}

} // namespace Kavrel::UICore::Internal
