#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/util/XmlFiler.h>

#include <QString>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class PageElement;
class PropertyEditorContext;
class PropertyEditorElement;
class PropertyEditorImp;

/// A form built from an XML UI definition and bound to properties of the
/// host's objects.
///
/// A definition's document element may carry LabelColumnWidth and a
/// ColumnWidths child (one child per column, each with Width), and holds one
/// PageElement with the page's elements: panels, groups and controls. Each
/// group lays out its children in a grid of a label column and two control
/// columns. Attribute values are literals, tr(id) texts translated through the
/// translation table the load names, or binding expressions such as
/// Binding(Roughness) resolved against the editor's context objects (and the
/// page's elements, by Id).
///
/// Loading adds to the page; the whole page's widgets are built at the next
/// paint (or at BuildNow), hidden, and the page shows once they all exist, so
/// a host finds every element's widget after the first paint.
///
/// Groups and panels nest at most kMaxNestingDepth levels below the page. A
/// definition nesting deeper fails to load with a diagnostic (the elements
/// loaded before stay): widget size hints and painting recurse once per level,
/// and a hostile definition must not overflow the host's stack.
///
/// Limits: a definition file larger than kMaxDefinitionFileSize bytes (a text
/// given to LoadUI longer than as many characters), or that is no regular file
/// (a pipe or a device would block the read), elements nested deeper than
/// kMaxDefinitionDepth levels, or an element with more than
/// kMaxAttributesPerElement attributes are refused by the XML filer before the
/// definition is parsed (they are the filer's limits): the load writes a
/// diagnostic naming the definition and the limit,
/// and fails without adding anything. The nesting limit holds for the element
/// walk of every load, also of nodes handed to an element's Load.
///
/// Column widths: -1 leaves a column unset, 0 makes it stretch (only one column
/// may), a positive width is the column's minimum width in pixels. The user can
/// drag the right edge of the label column; the width the user chose is kept
/// for the rest of the process for the definition file and element path that
/// was loaded, and later editors loading that definition start with it.
class KVUICORE_EXPORT PropertyEditor : public QWidget
{
    Q_OBJECT

public:
    /// The largest definition file read, in bytes (the XML filer's limit).
    static constexpr qint64 kMaxDefinitionFileSize = XmlFiler::kMaxFileSize;
    /// The deepest element nesting of a definition (the XML filer's limit).
    static constexpr int kMaxDefinitionDepth = XmlFiler::kMaxDepth;
    /// The most attributes one element of a definition may carry (the XML filer's limit).
    static constexpr int kMaxAttributesPerElement = XmlFiler::kMaxAttributes;
    /// The deepest nesting of groups and panels below the page.
    static constexpr int kMaxNestingDepth = 64;

    /// An editor with an empty page.
    explicit PropertyEditor(QWidget* parent = nullptr);
    ~PropertyEditor() override;

    /// Loads a whole definition document given as text; translationFile names
    /// the translation table for tr(id) texts (may be empty). False for text
    /// that is not well-formed XML, beyond the limits above, or when the load
    /// fails. A handler that deletes the editor during the load ends it with
    /// false.
    bool LoadUI(const QString& uiDefinition, const QString& translationFile = QString());
    /// Loads from a file; elementPath selects the element that plays the part
    /// of the document element (empty: the document element itself).
    bool LoadUIFile(const QString& fileName, const QString& elementPath = QString(),
                    const QString& translationFile = QString());
    /// The absolute path of the last file LoadUIFile could open.
    QString GetUIFile() const;
    /// Where the schema of UI definitions is installed: beside the
    /// application. Definitions are not validated against it.
    static QString GetSchemaFile();

    /// The page holding the loaded elements; never null.
    PageElement* GetPage() const;
    /// The element of the page with that Id (without regard to case), or null.
    QObject* FindElement(const QString& id) const;

    /// Sets the default object of the editor's context: names in bindings are its
    /// properties.
    void SetContextObject(QObject* object);
    /// Sets a named object of the editor's context (null removes the name).
    void SetContextObject(const QString& name, QObject* object);
    /// The default object of the editor's context; null when none.
    QObject* GetContextObject() const;
    /// The object the editor's context gives for a name (the page's elements by Id
    /// included); null when none.
    QObject* GetContextObject(const QString& name) const;
    /// The context that the page's bindings resolve against.
    PropertyEditorContext* GetContext() const;

    /// The width of column 0 (labels), 1 or 2; -1 for other columns.
    int GetColumnWidth(int column) const;
    /// Sets a column's width (ignored for other columns; 0 is refused while
    /// another column stretches) and applies it to the built groups. Widths a
    /// load sets reach the built groups at the next paint.
    void SetColumnWidth(int column, int width);

    /// Marks the page for rebuilding at the next paint.
    void Invalidate();
    /// Builds every pending widget now instead of at the next paint.
    void BuildNow();
    /// Whether every element has its widget (nothing waits for a paint).
    bool IsBuilt() const;

Q_SIGNALS:
    /// An edit through an element has modified a bound property.
    void PropertyModified(PropertyEditorElement* element, QString propName);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(PropertyEditor)
    friend class PropertyEditorImp;
    std::unique_ptr<PropertyEditorImp> const mpImp;
};

} // namespace Kavrel::UICore
