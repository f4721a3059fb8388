// The accessible interfaces of the search box, multi-line text edit, drop-down
// tree, breadcrumb bar, message facility and palette window, and the factory
// that hands them to Qt.
#include <KvUICore/widgets/BreadcrumbBar.h>
#include <KvUICore/widgets/ControlsAccessible_p.h>
#include <KvUICore/widgets/DropDownTree.h>
#include <KvUICore/widgets/MessageFacility.h>
#include <KvUICore/widgets/MessageFacilityRow_p.h>
#include <KvUICore/widgets/NavigationCommon_p.h>
#include <KvUICore/widgets/PaletteTitleBar.h>
#include <KvUICore/widgets/PaletteWindow.h>
#include <KvUICore/widgets/SearchBox.h>
#include <KvUICore/widgets/TextEdit.h>

#include <QAccessibleWidget>
#include <QLineEdit>
#include <QTextCursor>
#include <QTextDocument>

#include <functional>

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
            return NameOf(Box(), Box()->GetPrompt(), SearchBox::tr("Search"));
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

// The multi-line field: text interfaces over its document, named by the
// host, its label or its prompt.
class TextEditAccessible : public QAccessibleWidget,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface
{
public:
    explicit TextEditAccessible(TextEdit* edit)
        : QAccessibleWidget(edit, QAccessible::EditableText)
    {}

    TextEdit* Edit() const { return static_cast<TextEdit*>(widget()); }

    QTextCursor CursorAt(int offset) const
    {
        QTextCursor cursor(Edit()->document());
        cursor.setPosition(qBound(0, offset, characterCount()));
        return cursor;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name)
            return NameOf(Edit(), Edit()->GetPrompt(), TextEdit::tr("Text"));
        if (t == QAccessible::Value)
            return Edit()->toPlainText();
        return QAccessibleWidget::text(t);
    }

    QAccessible::State state() const override
    {
        QAccessible::State s = QAccessibleWidget::state();
        s.readOnly = Edit()->isReadOnly();
        s.editable = !s.readOnly;
        s.multiLine = true;
        s.selectableText = true;
        return s;
    }

    // QAccessibleTextInterface
    void selection(int selectionIndex, int* startOffset, int* endOffset) const override
    {
        const QTextCursor cursor = Edit()->textCursor();
        const bool selected = selectionIndex == 0 && cursor.hasSelection();
        *startOffset = selected ? cursor.selectionStart() : 0;
        *endOffset = selected ? cursor.selectionEnd() : 0;
    }
    int selectionCount() const override { return Edit()->textCursor().hasSelection() ? 1 : 0; }
    void addSelection(int startOffset, int endOffset) override { setSelection(0, startOffset, endOffset); }
    void removeSelection(int) override
    {
        QTextCursor cursor = Edit()->textCursor();
        cursor.clearSelection();
        Edit()->setTextCursor(cursor);
    }
    void setSelection(int, int startOffset, int endOffset) override
    {
        QTextCursor cursor = CursorAt(startOffset);
        cursor.setPosition(qBound(0, endOffset, characterCount()), QTextCursor::KeepAnchor);
        Edit()->setTextCursor(cursor);
    }
    int cursorPosition() const override { return Edit()->textCursor().position(); }
    void setCursorPosition(int position) override { Edit()->setTextCursor(CursorAt(position)); }
    QString text(int startOffset, int endOffset) const override
    {
        return Edit()->toPlainText().mid(startOffset, endOffset - startOffset);
    }
    int characterCount() const override { return Edit()->document()->characterCount() - 1; }
    QRect characterRect(int offset) const override
    {
        if (offset < 0 || offset >= characterCount())
            return QRect();
        QTextCursor cursor = CursorAt(offset);
        QRect rect = Edit()->cursorRect(cursor);
        cursor.movePosition(QTextCursor::NextCharacter);
        const QRect next = Edit()->cursorRect(cursor);
        if (next.top() == rect.top())
            rect.setRight(qMax(rect.left(), next.left() - 1));
        return QRect(Edit()->viewport()->mapToGlobal(rect.topLeft()), rect.size());
    }
    int offsetAtPoint(const QPoint& point) const override
    {
        const QPoint local = Edit()->viewport()->mapFromGlobal(point);
        if (!Edit()->viewport()->rect().contains(local))
            return -1;
        return Edit()->cursorForPosition(local).position();
    }
    void scrollToSubstring(int startIndex, int endIndex) override
    {
        Edit()->setTextCursor(CursorAt(endIndex));
        Edit()->ensureCursorVisible();
        Edit()->setTextCursor(CursorAt(startIndex));
        Edit()->ensureCursorVisible();
    }
    QString attributes(int offset, int* startOffset, int* endOffset) const override
    {
        *startOffset = *endOffset = offset;
        return QString();
    }

    // QAccessibleEditableTextInterface
    void deleteText(int startOffset, int endOffset) override { replaceText(startOffset, endOffset, QString()); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int startOffset, int endOffset, const QString& text) override
    {
        if (Edit()->isReadOnly() || !Edit()->isEnabled())
            return;
        QTextCursor cursor = CursorAt(startOffset);
        cursor.setPosition(qBound(0, endOffset, characterCount()), QTextCursor::KeepAnchor);
        cursor.insertText(text);
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
            return NameOf(Tree(), Tree()->GetPrompt(), DropDownTree::tr("Tree drop-down"));
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
    if (auto* edit = qobject_cast<TextEdit*>(object))
        return new TextEditAccessible(edit);
    if (auto* bar = qobject_cast<BreadcrumbBar*>(object))
        return new NamedAccessible(bar, QAccessible::ToolBar, [] { return BreadcrumbBar::tr("Path"); });
    if (auto* row = qobject_cast<MessageFacilityRow*>(object))
        return new MessageRowAccessible(row);
    if (auto* facility = qobject_cast<MessageFacility*>(object))
        return new NamedAccessible(facility, QAccessible::Grouping, [] { return MessageFacility::tr("Messages"); });
    if (auto* palette = qobject_cast<PaletteWindow*>(object))
        return new PaletteWindowAccessible(palette);
    if (auto* bar = qobject_cast<PaletteTitleBar*>(object))
        return new NamedAccessible(bar, QAccessible::TitleBar, [bar] {
            auto* palette = qobject_cast<PaletteWindow*>(bar->window());
            return palette ? palette->GetTitle() : bar->window()->windowTitle();
        });
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
