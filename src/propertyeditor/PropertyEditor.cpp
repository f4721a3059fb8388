#include <KvUICore/propertyeditor/PropertyEditorImp.h>

#include <KvUICore/propertyeditor/ElementRegistry_p.h>
#include <KvUICore/propertyeditor/GroupElementImp.h>
#include <KvUICore/propertyeditor/PageElement.h>
#include <KvUICore/propertyeditor/PropertyEditorAccessible_p.h>
#include <KvUICore/propertyeditor/PropertyEditorContext.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/TranslationTable.h>
#include <KvUICore/util/XmlFiler.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPaintEvent>
#include <QVBoxLayout>

namespace Kavrel::UICore {

namespace {

// The key remembered column widths are kept under: the definition's file and
// the element path inside it.
QString DefinitionKey(const QString& absoluteFile, const QString& elementPath)
{
    QString path = elementPath.trimmed();
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return absoluteFile + QLatin1Char('\n') + path;
}

} // namespace

// ---- PropertyEditorImp -------------------------------------------------------

PropertyEditorImp::PropertyEditorImp(PropertyEditor* host)
    : mpHost(host)
{
    // Hosts that never initialised the library can still build pages.
    Internal::RegisterPropertyEditorElementTypes();
    mpContext = new PropertyEditorContext(this);
    mpContext->SetResolver([this](const QString& name) -> QObject* { return FindElement(name); });
    mpPage = new PageElement();
    PropertyEditorElementImp::Of(mpPage)->mpEditor = this;
    RegisterSubtree(mpPage);
}

PropertyEditorImp::~PropertyEditorImp()
{
    // The page and its bindings go before the context they resolve against.
    delete mpPage;
    mpPage = nullptr;
    mNameIndex.clear();
    mpContext->SetResolver({});
    delete mpContext;
    mpContext = nullptr;
}

bool PropertyEditorImp::Load(XmlFiler& filer, const QString& translationFile, const QString& sourceName)
{
    TranslationTable* table = translationFile.isEmpty() ? nullptr : TranslationTable::GetCached(translationFile);
    filer.SetTranslationTable(table);
    mpLoadTable = table;
    msLoadSource = sourceName;
    // Handlers of the signals sent while loading may delete the editor.
    const QPointer<PropertyEditor> host(mpHost);

    filer.GoToDocumentElement();
    SetColumnWidth(0, filer.ReadInt(QStringLiteral("LabelColumnWidth"), mColumnWidths[0]));

    filer.RememberPosition();
    if (filer.GoToFirstChild(QStringLiteral("ColumnWidths")) && filer.GetCurrentElement().hasChildNodes()) {
        int column = 0;
        for (bool more = filer.GoToFirstChild(); more; more = filer.GoToNextSibling(), ++column) {
            const int current = column < 3 ? mColumnWidths[size_t(column)] : -1;
            const int width = filer.ReadInt(QStringLiteral("Width"), current);
            if (column < 3)
                SetColumnWidth(column, width);
        }
    }
    filer.RestorePosition();

    bool result = false;
    filer.RememberPosition();
    if (filer.GoToFirstChild(QStringLiteral("PageElement"))) {
        ++miLoadDepth;
        result = PropertyEditorElementImp::Of(mpPage)->Load(filer);
        if (!host)
            return false;
        --miLoadDepth;
    }
    filer.RestorePosition();
    mpLoadTable = nullptr;
    msLoadSource.clear();

    // Bindings that name elements defined further down resolve now.
    mpContext->NotifyContextChanged();
    if (!host)
        return false;
    return result;
}

QString PropertyEditorImp::LoadSourceName() const
{
    return msLoadSource;
}

int PropertyEditorImp::GetColumnWidth(int column) const
{
    return column >= 0 && column < 3 ? mColumnWidths[size_t(column)] : -1;
}

void PropertyEditorImp::SetColumnWidth(int column, int width)
{
    if (column < 0 || column >= 3)
        return;
    if (width == 0) {
        // Only one column stretches.
        for (int other = 0; other < 3; ++other) {
            if (other != column && mColumnWidths[size_t(other)] == 0)
                return;
        }
    }
    if (mColumnWidths[size_t(column)] == width)
        return;
    mColumnWidths[size_t(column)] = width;
    // Built groups take the widths at the next paint, once however many a load sets.
    mpHost->update();
}

void PropertyEditorImp::SetLabelColumnWidthByUser(int width)
{
    width = qMax(width, 1);
    if (width == mColumnWidths[0])
        return;
    SetColumnWidth(0, width);
    ApplyColumnWidthsToGroups();
    if (!msDefinitionKey.isEmpty())
        Internal::RememberedColumnWidths().insert(msDefinitionKey, mColumnWidths);
}

void PropertyEditorImp::ApplyColumnWidthsToGroups()
{
    QList<PropertyEditorElement*> pending{mpPage};
    while (!pending.isEmpty()) {
        PropertyEditorElement* element = pending.takeLast();
        if (auto* group = qobject_cast<GroupElement*>(element))
            GroupElementApplyColumnWidths(group, mColumnWidths);
        for (int i = 0; i < element->GetChildCount(); ++i)
            pending.append(element->GetChild(i));
    }
    mAppliedColumnWidths = mColumnWidths;
}

void PropertyEditorImp::Invalidate()
{
    if (miFlags & InvalidFlag)
        return;
    miFlags |= InvalidFlag;
    mpHost->update();
}

void PropertyEditorImp::Rebuild()
{
    if (miFlags & BuildingFlag)
        return;
    // Groups built from here on take the widths as they are created.
    if (mAppliedColumnWidths != mColumnWidths)
        ApplyColumnWidthsToGroups();
    if (!(miFlags & InvalidFlag))
        return;
    miFlags |= BuildingFlag;
    // A widget shown inside a visible parent activates every layout up to the
    // window, so widgets added one by one to a shown page cost the whole page
    // each. The page is built hidden and shows once, with all it holds; a
    // new page is hidden until its layout shows it.
    QWidget* pageWidget = mpPage->GetWidget();
    const bool shown = pageWidget && pageWidget->isVisible();
    QPointer<QWidget> focus;
    if (shown) {
        QWidget* current = QApplication::focusWidget();
        if (current && pageWidget->isAncestorOf(current))
            focus = current;
        pageWidget->hide();
    }
    PropertyEditorElementImp::Of(mpPage)->BuildWidgetTree(mpHost);
    pageWidget = mpPage->GetWidget();
    if (!mpHost->layout()) {
        auto* layout = new QVBoxLayout();
        layout->setContentsMargins(5, 5, 0, 0);
        mpHost->setLayout(layout);
        layout->addWidget(pageWidget);
    }
    if (shown) {
        pageWidget->show();
        if (focus && focus->isVisible())
            focus->setFocus(Qt::OtherFocusReason);
    }
    miFlags &= ~quint32(InvalidFlag | BuildingFlag);
}

void PropertyEditorImp::RegisterSubtree(PropertyEditorElement* element)
{
    const QString id = element->GetId();
    if (!id.isEmpty())
        mNameIndex[id.toLower()].append(element);
    for (int i = 0; i < element->GetChildCount(); ++i)
        RegisterSubtree(element->GetChild(i));
}

void PropertyEditorImp::UnregisterSubtree(PropertyEditorElement* element)
{
    const QString id = element->GetId();
    if (!id.isEmpty()) {
        const auto it = mNameIndex.find(id.toLower());
        if (it != mNameIndex.end()) {
            it->removeOne(element);
            if (it->isEmpty())
                mNameIndex.erase(it);
        }
    }
    for (int i = 0; i < element->GetChildCount(); ++i)
        UnregisterSubtree(element->GetChild(i));
}

void PropertyEditorImp::Rename(PropertyEditorElement* element, const QString& oldId, const QString& newId)
{
    if (!oldId.isEmpty()) {
        const auto it = mNameIndex.find(oldId.toLower());
        if (it != mNameIndex.end()) {
            it->removeOne(element);
            if (it->isEmpty())
                mNameIndex.erase(it);
        }
    }
    if (!newId.isEmpty())
        mNameIndex[newId.toLower()].append(element);
    // A binding may have been waiting for this name. During a load all of
    // them are resolved once at its end.
    if (miLoadDepth == 0 && !newId.isEmpty())
        mpContext->NotifyContextChanged();
}

PropertyEditorElement* PropertyEditorImp::FindElement(const QString& id) const
{
    if (id.isEmpty())
        return nullptr;
    const auto it = mNameIndex.constFind(id.toLower());
    if (it == mNameIndex.constEnd() || it->isEmpty())
        return nullptr;
    if (it->size() == 1)
        return it->first();
    // Names given twice through SetId: the first in tree order wins.
    QList<PropertyEditorElement*> pending{mpPage};
    while (!pending.isEmpty()) {
        PropertyEditorElement* element = pending.takeFirst();
        if (it->contains(element))
            return element;
        for (int i = element->GetChildCount() - 1; i >= 0; --i)
            pending.prepend(element->GetChild(i));
    }
    return nullptr;
}

bool PropertyEditorImp::IsNameTaken(const QString& id) const
{
    return !id.isEmpty() && mNameIndex.contains(id.toLower());
}

void PropertyEditorImp::ReportPropertyModified(PropertyEditorElement* element, const QString& attribute)
{
    emit mpHost->PropertyModified(element, attribute);
}

// ---- PropertyEditor ----------------------------------------------------------

PropertyEditor::PropertyEditor(QWidget* parent)
    : QWidget(parent)
    , mpImp(std::make_unique<PropertyEditorImp>(this))
{
    Internal::InstallPropertyEditorAccessibility();
}

PropertyEditor::~PropertyEditor() = default;

bool PropertyEditor::LoadUI(const QString& uiDefinition, const QString& translationFile)
{
    // The filer refuses, with a diagnostic, what is beyond its limits.
    XmlFiler filer;
    if (!filer.Parse(uiDefinition))
        return false;
    return mpImp->Load(filer, translationFile, QString());
}

bool PropertyEditor::LoadUIFile(const QString& fileName, const QString& elementPath, const QString& translationFile)
{
    if (fileName.isEmpty() || !QFileInfo::exists(fileName))
        return false;
    XmlFiler filer;
    if (!filer.Open(fileName))
        return false;
    mpImp->msUIFile = QFileInfo(fileName).absoluteFilePath();
    if (!filer.GoToPath(elementPath))
        return false;
    // The element found plays the part of the document element, read in place.
    const XmlFiler::RootScope scope(filer, filer.GetCurrentElement());
    mpImp->msDefinitionKey = DefinitionKey(mpImp->msUIFile, elementPath);
    const QPointer<PropertyEditor> self(this);
    const bool result = mpImp->Load(filer, translationFile, fileName);
    if (!self)
        return false;
    const auto remembered = Internal::RememberedColumnWidths().constFind(mpImp->msDefinitionKey);
    if (remembered != Internal::RememberedColumnWidths().constEnd())
        mpImp->mColumnWidths = *remembered;
    return result;
}

QString PropertyEditor::GetSchemaFile()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/PropertyEditorUIDefinitionSchema.xsd"));
}

QString PropertyEditor::GetUIFile() const
{
    return mpImp->msUIFile;
}

PageElement* PropertyEditor::GetPage() const
{
    return mpImp->mpPage;
}

QObject* PropertyEditor::FindElement(const QString& id) const
{
    return mpImp->FindElement(id);
}

void PropertyEditor::SetContextObject(QObject* object)
{
    mpImp->mpContext->SetContextObject(object);
}

void PropertyEditor::SetContextObject(const QString& name, QObject* object)
{
    mpImp->mpContext->SetContextObject(name, object);
}

QObject* PropertyEditor::GetContextObject() const
{
    return mpImp->mpContext->GetContextObject();
}

QObject* PropertyEditor::GetContextObject(const QString& name) const
{
    return mpImp->mpContext->GetContextObject(name);
}

PropertyEditorContext* PropertyEditor::GetContext() const
{
    return mpImp->mpContext;
}

int PropertyEditor::GetColumnWidth(int column) const
{
    return mpImp->GetColumnWidth(column);
}

void PropertyEditor::SetColumnWidth(int column, int width)
{
    mpImp->SetColumnWidth(column, width);
    mpImp->ApplyColumnWidthsToGroups();
}

void PropertyEditor::Invalidate()
{
    mpImp->Invalidate();
}

void PropertyEditor::BuildNow()
{
    mpImp->Rebuild();
}

bool PropertyEditor::IsBuilt() const
{
    return !(mpImp->miFlags & PropertyEditorImp::InvalidFlag);
}

void PropertyEditor::paintEvent(QPaintEvent* event)
{
    mpImp->Rebuild();
    QWidget::paintEvent(event);
}

} // namespace Kavrel::UICore
