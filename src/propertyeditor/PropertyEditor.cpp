#include <KvUICore/propertyeditor/PropertyEditorImp.h>

#include <KvUICore/propertyeditor/ElementRegistry_p.h>
#include <KvUICore/propertyeditor/GroupElementImp.h>
#include <KvUICore/propertyeditor/PageElement.h>
#include <KvUICore/propertyeditor/PropertyEditorContext.h>
#include <KvUICore/propertyeditor/PropertyEditorElementImp.h>
#include <KvUICore/propertyeditor/UIDefinitionCheck_p.h>
#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/TranslationTable.h>
#include <KvUICore/util/XmlFiler.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPaintEvent>
#include <QTimer>
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
    ApplyColumnWidthsToGroups();
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
    mColumnWidths[size_t(column)] = width;
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
}

void PropertyEditorImp::Invalidate()
{
    if (miFlags & InvalidFlag)
        return;
    miFlags |= InvalidFlag;
    mpHost->update();
}

void PropertyEditorImp::Rebuild(const QRect& exposed)
{
    if (!(miFlags & InvalidFlag) || (miFlags & BuildingFlag))
        return;
    miFlags |= BuildingFlag;
    PropertyEditorElementImp* page = PropertyEditorElementImp::Of(mpPage);
    const int count = mpPage->GetChildCount();
    if (exposed.isEmpty()) {
        page->miChildBuildLimit = -1;
    } else {
        // The page's first elements, as far as they reach one screen below
        // what is exposed, are built now; the rest follows in slices once the
        // page has painted, so that long pages show at once.
        const int needed = exposed.bottom() + qMax(exposed.height(), 200);
        int covered = 0;
        int limit = 0;
        page->miChildBuildLimit = 0;
        page->BuildWidgetTree(mpHost);
        QWidget* childParent = page->GetChildParentWidget();
        for (; limit < count && covered <= needed; ++limit) {
            PropertyEditorElementImp* child = PropertyEditorElementImp::Of(mpPage->GetChild(limit));
            const bool wasBuilt = child->mpWidget;
            child->BuildWidgetTree(childParent);
            if (!wasBuilt)
                page->miState |= PropertyEditorElementImp::ChildrenChangedBit;
            if (child->mpWidget)
                covered += child->mpWidget->sizeHint().height();
        }
        page->miChildBuildLimit = limit < count ? limit : -1;
    }
    page->BuildWidgetTree(mpHost);
    if (!mpHost->layout()) {
        auto* layout = new QVBoxLayout();
        layout->setContentsMargins(5, 5, 0, 0);
        mpHost->setLayout(layout);
        layout->addWidget(mpPage->GetWidget());
    }
    miFlags &= ~quint32(InvalidFlag | BuildingFlag);
    if (page->miChildBuildLimit >= 0 && !mbSliceScheduled) {
        mbSliceScheduled = true;
        QTimer::singleShot(0, this, &PropertyEditorImp::BuildNextSlice);
    }
}

void PropertyEditorImp::BuildNextSlice()
{
    mbSliceScheduled = false;
    PropertyEditorElementImp* page = PropertyEditorElementImp::Of(mpPage);
    if (page->miChildBuildLimit < 0 || (miFlags & BuildingFlag))
        return;
    page->miChildBuildLimit += kSliceSize;
    if (page->miChildBuildLimit >= mpPage->GetChildCount())
        page->miChildBuildLimit = -1;
    page->miState |= PropertyEditorElementImp::ChildrenChangedBit;
    miFlags |= BuildingFlag;
    page->BuildWidgetTree(mpHost);
    miFlags &= ~quint32(BuildingFlag);
    if (page->miChildBuildLimit >= 0) {
        mbSliceScheduled = true;
        QTimer::singleShot(0, this, &PropertyEditorImp::BuildNextSlice);
    }
}

void PropertyEditorImp::BuildAll()
{
    miFlags |= InvalidFlag;
    Rebuild(QRect());
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
{}

PropertyEditor::~PropertyEditor() = default;

bool PropertyEditor::LoadUI(const QString& uiDefinition, const QString& translationFile)
{
    const QString source = QStringLiteral("the UI definition");
    QString refusal;
    if (uiDefinition.size() > kMaxDefinitionFileSize)
        refusal = QStringLiteral("Property editor: %1 is larger than %2 characters\n")
                      .arg(source)
                      .arg(kMaxDefinitionFileSize);
    else
        refusal = Internal::CheckDefinitionMarkup(uiDefinition, source);
    if (!refusal.isEmpty()) {
        Internal::WriteDiagnostic(refusal);
        return false;
    }
    XmlFiler filer;
    if (!filer.Parse(uiDefinition))
        return false;
    return mpImp->Load(filer, translationFile, QString());
}

bool PropertyEditor::LoadUIFile(const QString& fileName, const QString& elementPath, const QString& translationFile)
{
    if (fileName.isEmpty() || !QFileInfo::exists(fileName))
        return false;
    const QString refusal = Internal::CheckDefinitionFile(fileName);
    if (!refusal.isEmpty()) {
        Internal::WriteDiagnostic(refusal);
        return false;
    }
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
    if (remembered != Internal::RememberedColumnWidths().constEnd()) {
        mpImp->mColumnWidths = *remembered;
        mpImp->ApplyColumnWidthsToGroups();
    }
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
    mpImp->BuildAll();
}

bool PropertyEditor::IsBuilt() const
{
    return !(mpImp->miFlags & PropertyEditorImp::InvalidFlag) &&
           PropertyEditorElementImp::Of(mpImp->mpPage)->miChildBuildLimit < 0;
}

void PropertyEditor::paintEvent(QPaintEvent* event)
{
    mpImp->Rebuild(event->rect());
    QWidget::paintEvent(event);
}

} // namespace Kavrel::UICore
