// Search boxes, drop-down trees, breadcrumbs, link messages, the message
// facility, multi-line text edits and palette windows (one docked in the page,
// one floating over the gallery, opened when the page is first shown).
#include "GalleryPage.h"

#include <KvUICore/widgets/BreadcrumbBar.h>
#include <KvUICore/widgets/DropDownTree.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/LinkMessage.h>
#include <KvUICore/widgets/MessageFacility.h>
#include <KvUICore/widgets/PaletteWindow.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/SearchBox.h>
#include <KvUICore/widgets/TextEdit.h>

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPointer>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace Kavrel::UICore;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("NavigationPage", text);
}

QStandardItemModel* materialLibrary(QObject* parent)
{
    auto* model = new QStandardItemModel(parent);
    const QList<QPair<QString, QStringList>> groups = {
        {tr("Wood"), {tr("Oak, natural"), tr("Oak, smoked"), tr("Walnut"), tr("Birch plywood")}},
        {tr("Metal"), {tr("Brushed steel"), tr("Copper"), tr("Anodised aluminium")}},
        {tr("Stone"), {tr("Granite"), tr("Marble, white"), tr("Slate")}},
        {tr("Glass"), {tr("Clear"), tr("Frosted")}},
    };
    auto* library = new QStandardItem(tr("Library"));
    for (const auto& group : groups) {
        auto* groupItem = new QStandardItem(group.first);
        for (const QString& material : group.second)
            groupItem->appendRow(new QStandardItem(material));
        library->appendRow(groupItem);
    }
    model->appendRow(library);
    model->appendRow(new QStandardItem(tr("Scene materials")));
    return model;
}

QWidget* searchAndTrees(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* form = new QFormLayout(page);
    auto* status = new Label(tr("Type in a search box"), page);

    auto* search = new SearchBox(page);
    search->SetPrompt(tr("Search materials"));
    search->SetRecentSearchesEnabled(true);
    search->SetRecentSearches({tr("oak"), tr("steel"), tr("glass")});
    QObject::connect(search, &SearchBox::SearchChanged, status,
                     [status](const QString& text) { status->setText(tr("Searching for \"%1\"").arg(text)); });
    QObject::connect(search, &SearchBox::SearchSubmitted, status,
                     [status](const QString& text) { status->setText(tr("Submitted \"%1\"").arg(text)); });
    form->addRow(new Label(tr("Prompt, recent searches"), page), search);

    auto* withText = new SearchBox(page);
    withText->SetText(tr("walnut"));
    form->addRow(new Label(tr("With text"), page), withText);

    auto* disabledSearch = new SearchBox(page);
    disabledSearch->SetPrompt(tr("Search (disabled)"));
    disabledSearch->setEnabled(false);
    form->addRow(new Label(tr("Disabled"), page), disabledSearch);

    QStandardItemModel* model = materialLibrary(page);
    auto* tree = new DropDownTree(page);
    tree->SetModel(model);
    tree->SetPrompt(tr("Choose a material"));
    tree->setAccessibleName(tr("Material"));
    QObject::connect(tree, &DropDownTree::CurrentIndexChanged, status,
                     [status, tree] { status->setText(tr("Material: %1").arg(tree->GetCurrentPathText())); });
    form->addRow(new Label(tr("Tree, no choice yet"), page), tree);

    auto* chosen = new DropDownTree(page);
    chosen->SetModel(model);
    chosen->SetCurrentIndex(model->index(1, 0, model->index(0, 0, model->index(0, 0))));
    form->addRow(new Label(tr("Tree, path shown"), page), chosen);

    auto* disabledTree = new DropDownTree(page);
    disabledTree->SetModel(model);
    disabledTree->SetCurrentIndex(model->index(0, 0, model->index(2, 0, model->index(0, 0))));
    disabledTree->setEnabled(false);
    form->addRow(new Label(tr("Tree, disabled"), page), disabledTree);

    form->addRow(new Label(page), status);
    return page;
}

QWidget* breadcrumbs(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* form = new QFormLayout(page);
    auto* status = new Label(page);

    auto makeBar = [page, status](const QStringList& path) {
        auto* bar = new BreadcrumbBar(page);
        bar->SetPath(path);
        bar->SetChoices(1, {tr("Library"), tr("Scene materials")});
        bar->SetChoices(2, {tr("Wood"), tr("Metal"), tr("Stone"), tr("Glass")});
        bar->SetChoices(3, {tr("Oak, natural"), tr("Oak, smoked"), tr("Walnut")});
        QObject::connect(bar, &BreadcrumbBar::PathActivated, status, [status, bar](int level) {
            status->setText(tr("Level %1: %2").arg(level).arg(bar->GetPath().value(level)));
        });
        QObject::connect(bar, &BreadcrumbBar::ChoiceActivated, bar, [bar](int level, const QString& text) {
            QStringList path = bar->GetPath().mid(0, level);
            path.append(text);
            bar->SetPath(path);
        });
        return bar;
    };
    const QStringList path = {tr("Home"), tr("Library"), tr("Wood"), tr("Oak, natural")};
    form->addRow(new Label(tr("Path with choices"), page), makeBar(path));

    BreadcrumbBar* narrow = makeBar(path + QStringList{tr("Variants"), tr("Matte finish")});
    narrow->setFixedWidth(230);
    auto* narrowRow = new QHBoxLayout;
    narrowRow->addWidget(narrow);
    narrowRow->addStretch();
    form->addRow(new Label(tr("Narrow: levels fold"), page), narrowRow);

    BreadcrumbBar* rtl = makeBar(path);
    rtl->setLayoutDirection(Qt::RightToLeft);
    form->addRow(new Label(tr("Right to left"), page), rtl);
    form->addRow(new Label(page), status);
    return page;
}

QWidget* messages(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* column = new QVBoxLayout(page);
    auto* status = new Label(page);

    auto* link = new LinkMessage(
        tr("The scene uses 12 materials. [Show them](materials) or [open the library](library)."), page);
    QObject::connect(link, &LinkMessage::LinkActivated, status,
                     [status](const QString& target) { status->setText(tr("Link: %1").arg(target)); });
    column->addWidget(link);

    auto* facility = new MessageFacility(page);
    MessageFacility::Message missing;
    missing.severity = MessageFacility::Severity::Error;
    missing.text = tr("3 textures could not be found. [Show the list](missing-textures)");
    missing.actions = {tr("Locate…")};
    facility->ShowMessage(missing);
    MessageFacility::Message units;
    units.severity = MessageFacility::Severity::Warning;
    units.text = tr("The imported file uses inches; the scene uses millimetres.");
    units.actions = {tr("Convert"), tr("Keep")};
    facility->ShowMessage(units);
    facility->ShowMessage(MessageFacility::Severity::Information, tr("Autosave is on: every 10 minutes."));
    facility->ShowMessage(MessageFacility::Severity::Information, tr("This message waits in the queue."));
    auto* queued = new Label(page);
    auto updateQueued = [facility, queued] {
        queued->setText(tr("%1 shown, %2 waiting").arg(facility->GetVisibleCount()).arg(facility->GetQueuedCount()));
    };
    QObject::connect(facility, &MessageFacility::MessageShown, queued, updateQueued);
    QObject::connect(facility, &MessageFacility::MessageClosed, queued, updateQueued);
    QObject::connect(facility, &MessageFacility::LinkActivated, status,
                     [status](int, const QString& target) { status->setText(tr("Link: %1").arg(target)); });
    QObject::connect(facility, &MessageFacility::ActionTriggered, status, [status](int id, int action) {
        status->setText(tr("Message %1, action %2").arg(id).arg(action));
    });
    updateQueued();
    column->addWidget(facility);

    auto* buttons = new QHBoxLayout;
    auto* add = new PushButton(page);
    add->setText(tr("Add a message"));
    QObject::connect(add, &QAbstractButton::clicked, facility, [facility] {
        facility->ShowMessage(MessageFacility::Severity::Information, tr("Saved. This message closes in 4 seconds."),
                              4000);
    });
    buttons->addWidget(add);
    buttons->addWidget(queued);
    buttons->addStretch();
    column->addLayout(buttons);
    column->addWidget(status);
    return page;
}

QWidget* textEdits(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* form = new QFormLayout(page);
    auto* prompt = new TextEdit(page);
    prompt->SetPrompt(tr("Notes for this material"));
    form->addRow(new Label(tr("Prompt"), page), prompt);
    auto* limited = new TextEdit(page);
    limited->SetMaximumLength(120);
    limited->SetText(tr("At most 120 characters. Pasting more keeps what fits.\nA second line."));
    form->addRow(new Label(tr("Maximum length"), page), limited);
    auto* disabled = new TextEdit(page);
    disabled->SetText(tr("Disabled"));
    disabled->setEnabled(false);
    disabled->setFixedHeight(48);
    form->addRow(new Label(tr("Disabled"), page), disabled);
    return page;
}

QWidget* paletteContent(QWidget* parent)
{
    auto* content = new QWidget(parent);
    auto* form = new QFormLayout(content);
    form->setContentsMargins(6, 6, 6, 6);
    auto* search = new SearchBox(content);
    search->SetPrompt(tr("Filter layers"));
    form->addRow(search);
    auto* breadcrumb = new BreadcrumbBar(content);
    breadcrumb->SetPath({tr("Home"), tr("Layers"), tr("Walls")});
    form->addRow(breadcrumb);
    form->addRow(new Label(tr("Double-click the title to collapse."), content));
    return content;
}

// Opens the floating palette over the gallery the first time the page shows.
class FloatingPaletteOpener : public QObject
{
public:
    FloatingPaletteOpener(QWidget* page, PushButton* button)
        : QObject(page)
        , mpPage(page)
    {
        page->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this, [this] { Open(); });
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == mpPage && event->type() == QEvent::Show && !mbOpenedOnce) {
            mbOpenedOnce = true;
            Open();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void Open()
    {
        if (!mpPalette) {
            mpPalette = new PaletteWindow(mpPage->window());
            mpPalette->SetTitle(tr("Layers"));
            mpPalette->SetContentWidget(paletteContent(mpPalette));
            mpPalette->resize(260, 170);
            const QPoint corner = mpPage->mapToGlobal(QPoint(mpPage->width() - 290, 40));
            mpPalette->move(corner);
            mpPalette->SetStateLocation(QDir::temp().filePath(QStringLiteral("kvuicore-gallery-state.xml")),
                                        QStringLiteral("Gallery/LayersPalette"));
        }
        mpPalette->show();
        mpPalette->raise();
    }

    QWidget* mpPage;
    QPointer<PaletteWindow> mpPalette;
    bool mbOpenedOnce = false;
};

QWidget* palettes(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* column = new QVBoxLayout(page);
    auto* area = new QWidget(page);
    area->setMinimumHeight(190);
    auto* docked = new PaletteWindow(area);
    docked->SetFloating(false);
    docked->SetTitle(tr("Layers (docked in the page)"));
    docked->SetContentWidget(paletteContent(docked));
    docked->setGeometry(0, 0, 300, 170);
    column->addWidget(area);
    auto* open = new PushButton(page);
    open->setText(tr("Open the floating palette"));
    new FloatingPaletteOpener(page, open);
    auto* row = new QHBoxLayout;
    row->addWidget(open);
    row->addStretch();
    column->addLayout(row);
    return page;
}

GalleryPageRegistration registration(450, QStringLiteral("Navigation and messages"), [](QWidget* parent) {
    QScrollArea* area = NewPageArea(parent);
    auto* content = new QWidget(area);
    auto* grid = new QGridLayout(content);
    grid->setHorizontalSpacing(24);
    AddGridSection(grid, tr("Search and drop-down trees"), searchAndTrees, 0, 0);
    AddGridSection(grid, tr("Breadcrumbs"), breadcrumbs, 0, 1);
    AddGridSection(grid, tr("Messages"), messages, 2, 0);
    AddGridSection(grid, tr("Multi-line text"), textEdits, 2, 1);
    AddGridSection(grid, tr("Palette window"), palettes, 4, 0, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(6, 1);
    area->setWidget(content);
    return area;
});

} // namespace
