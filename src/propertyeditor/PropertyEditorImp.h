#pragma once

#include <KvUICore/propertyeditor/ElementRegistry_p.h>
#include <KvUICore/propertyeditor/PropertyEditor.h>

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QRect>

namespace Kavrel::UICore {

class GroupElement;
class PageElement;
class PropertyEditorContext;
class PropertyEditorElement;
class TranslationTable;
class XmlFiler;

class PropertyEditorImp : public QObject
{
    Q_OBJECT

public:
    enum Flag : quint32
    {
        InvalidFlag = 0x1,
        BuildingFlag = 0x2,
    };

    explicit PropertyEditorImp(PropertyEditor* host);
    ~PropertyEditorImp() override;

    // The load shared by LoadUI and LoadUIFile, on a filer positioned on a
    // document; sourceName names the definition in diagnostics.
    bool Load(XmlFiler& filer, const QString& translationFile, const QString& sourceName);
    // The definition being loaded, for diagnostics.
    QString LoadSourceName() const;

    int GetColumnWidth(int column) const;
    // A non-zero width is stored; 0 only when no other column is 0.
    void SetColumnWidth(int column, int width);
    Internal::ColumnWidths GetColumnWidths() const { return mColumnWidths; }
    // Sets the label column's width as the user dragged it, applies it to
    // every built group and remembers it for the loaded definition.
    void SetLabelColumnWidthByUser(int width);
    // Applies the column widths to every built group.
    void ApplyColumnWidthsToGroups();

    void Invalidate();
    // Builds every missing widget of the page, hidden, and shows the page
    // once at the end; applies changed column widths to the built groups.
    void Rebuild();

    // Index of element names (lower case) for the Id checks and FindElement.
    void RegisterSubtree(PropertyEditorElement* element);
    void UnregisterSubtree(PropertyEditorElement* element);
    void Rename(PropertyEditorElement* element, const QString& oldId, const QString& newId);
    PropertyEditorElement* FindElement(const QString& id) const;
    bool IsNameTaken(const QString& id) const;

    void ReportPropertyModified(PropertyEditorElement* element, const QString& attribute);

    PropertyEditor* const mpHost;
    PageElement* mpPage = nullptr;
    PropertyEditorContext* mpContext = nullptr;
    QString msUIFile;
    // The key the remembered column widths are kept under: file and element path.
    QString msDefinitionKey;
    Internal::ColumnWidths mColumnWidths = {100, -1, -1};
    // The widths the built groups carry; a load changes mColumnWidths only.
    Internal::ColumnWidths mAppliedColumnWidths = {100, -1, -1};
    quint32 miFlags = InvalidFlag;
    // The translation table of the load in progress, for elements that load
    // themselves from their node.
    TranslationTable* mpLoadTable = nullptr;
    QString msLoadSource;
    int miLoadDepth = 0;
    QHash<QString, QList<PropertyEditorElement*>> mNameIndex;
};

} // namespace Kavrel::UICore
