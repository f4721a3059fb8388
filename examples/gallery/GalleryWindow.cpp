#include "GalleryWindow.h"
#include "GalleryPage.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QStackedWidget>
#include <QVBoxLayout>

using Kavrel::UICore::ThemeManager;

namespace {
const QStringList kBuiltInThemes = {QStringLiteral("Light"), QStringLiteral("Dark"), QStringLiteral("HIGLight")};
}

GalleryWindow::GalleryWindow(QWidget* parent)
    : QWidget(parent)
{
    setWindowTitle(tr("KvUICore gallery"));
    setAutoFillBackground(true);

    mpTitle = new QLabel(tr("KvUICore gallery"), this);
    QFont titleFont = mpTitle->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.4);
    titleFont.setBold(true);
    mpTitle->setFont(titleFont);

    mpThemeBox = new QComboBox(this);
    mpThemeBox->addItems(kBuiltInThemes);
    mpThemeBox->addItem(tr("Load theme file…"));
    connect(mpThemeBox, &QComboBox::activated, this, &GalleryWindow::OnThemeChosen);

    auto* header = new QHBoxLayout;
    header->addWidget(mpTitle);
    header->addStretch(1);
    header->addWidget(new QLabel(tr("Theme:"), this));
    header->addWidget(mpThemeBox);

    mpPageList = new QListWidget(this);
    mpPageList->setFixedWidth(170);
    mpPages = new QStackedWidget(this);
    for (const GalleryPageInfo& page : GalleryPages()) {
        // 24-pixel rows, whatever order the style sheet and the items arrive in.
        auto* item = new QListWidgetItem(page.title, mpPageList);
        item->setSizeHint(QSize(0, 24));
        mpPages->addWidget(page.create(mpPages));
    }
    connect(mpPageList, &QListWidget::currentRowChanged, mpPages, &QStackedWidget::setCurrentIndex);

    auto* body = new QHBoxLayout;
    body->addWidget(mpPageList);
    body->addWidget(mpPages, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    header->setContentsMargins(12, 8, 12, 8);
    layout->addLayout(header);
    mpHeaderRule = new QFrame(this);
    mpHeaderRule->setFixedHeight(1);
    mpHeaderRule->setAutoFillBackground(true);
    layout->addWidget(mpHeaderRule);
    body->setSpacing(0);
    layout->addLayout(body, 1);

    setAttribute(Qt::WA_WindowPropagation);
    connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, this, &GalleryWindow::OnThemeChanged);
    OnThemeChanged();
    if (mpPageList->count() > 0)
        mpPageList->setCurrentRow(0);
    resize(1100, 760);
}

int GalleryWindow::PageCount() const
{
    return mpPages->count();
}

QString GalleryWindow::PageTitle(int index) const
{
    QListWidgetItem* item = mpPageList->item(index);
    return item ? item->text() : QString();
}

QWidget* GalleryWindow::PageWidget(int index) const
{
    return mpPages->widget(index);
}

void GalleryWindow::ShowPage(int index)
{
    mpPageList->setCurrentRow(index);
}

bool GalleryWindow::SwitchTheme(const QString& theme)
{
    return ThemeManager::GetInstance()->SetCurrentTheme(theme);
}

void GalleryWindow::OnThemeChosen(int index)
{
    ThemeManager* themes = ThemeManager::GetInstance();
    if (index < kBuiltInThemes.size()) {
        themes->SetCurrentTheme(kBuiltInThemes.at(index));
        return;
    }
    themes->LoadTheme(this);
    OnThemeChanged();
}

void GalleryWindow::OnThemeChanged()
{
    // The gallery frame follows the theme as a host application would: one
    // palette for the window and everything in it (lists, scroll areas, the
    // theme switcher and its pop-up), taken from the theme's keys.
    ThemeManager* themes = ThemeManager::GetInstance();
    const QColor window = themes->GetColor(ThemeFileKey::Container1);
    const QColor field = themes->GetColor(ThemeFileKey::WidgetContainer9);
    const QColor text = themes->GetColor(ThemeFileKey::FontNormal1);
    const QColor disabled = themes->GetColor(ThemeFileKey::FontColorDisabled);
    const QColor selection = themes->GetColor(ThemeFileKey::MBViewItemSelectionBackground);
    const QColor accent = themes->GetColor(ThemeFileKey::FocusOutline1);

    QPalette palette = QApplication::palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const bool off = group == QPalette::Disabled;
        palette.setColor(group, QPalette::Window, window);
        palette.setColor(group, QPalette::WindowText, off ? disabled : text);
        palette.setColor(group, QPalette::Base, field);
        palette.setColor(group, QPalette::AlternateBase, themes->GetColor(ThemeFileKey::Container6));
        palette.setColor(group, QPalette::Text, off ? disabled : text);
        palette.setColor(group, QPalette::PlaceholderText, themes->GetColor(ThemeFileKey::FontSearchPrompt));
        palette.setColor(group, QPalette::Button, themes->GetColor(ThemeFileKey::Container3));
        palette.setColor(group, QPalette::ButtonText, off ? disabled : text);
        palette.setColor(group, QPalette::Highlight, selection);
        palette.setColor(group, QPalette::HighlightedText, text);
        palette.setColor(group, QPalette::Link, themes->GetColor(ThemeFileKey::FontUnderline1));
        palette.setColor(group, QPalette::ToolTipBase, themes->GetColor(ThemeFileKey::ToolTipBackground));
        palette.setColor(group, QPalette::ToolTipText, text);
        palette.setColor(group, QPalette::Light, themes->GetColor(ThemeFileKey::Container3));
        palette.setColor(group, QPalette::Midlight, themes->GetColor(ThemeFileKey::Separator1));
        palette.setColor(group, QPalette::Mid, themes->GetColor(ThemeFileKey::WidgetOutline3));
        palette.setColor(group, QPalette::Dark, themes->GetColor(ThemeFileKey::WidgetOutline3));
        palette.setColor(group, QPalette::Shadow, themes->GetColor(ThemeFileKey::HoverOutline4));
    }
    // The palette belongs to this window and reaches its pop-ups too; the
    // controls colour their own text, so no second restyle is needed.
    setPalette(palette);
    QPalette rule = mpHeaderRule->palette();
    rule.setColor(QPalette::Window, themes->GetColor(ThemeFileKey::Separator1));
    mpHeaderRule->setPalette(rule);

    // The page list: 24-pixel rows on the panel colour, the selection tinted
    // and marked with the accent at its left edge.
    mpPageList->setStyleSheet(
        QStringLiteral("QListWidget { background: %1; border: none; border-right: 1px solid %2; outline: 0; }"
                       "QListWidget::item { min-height: 24px; padding-left: 10px; color: %3; border: none; }"
                       "QListWidget::item:hover { background: %4; }"
                       "QListWidget::item:selected { background: %5; color: %3; border-left: 3px solid %6;"
                       " padding-left: 7px; }")
            .arg(themes->GetColor(ThemeFileKey::Container2).name(), themes->GetColor(ThemeFileKey::Separator1).name(),
                 text.name(), themes->GetColor(ThemeFileKey::HoverContainer1).name(), selection.name(), accent.name()));

    const int index = kBuiltInThemes.indexOf(themes->GetCurrentTheme());
    if (index >= 0 && mpThemeBox->currentIndex() != index)
        mpThemeBox->setCurrentIndex(index);
    update();
}
