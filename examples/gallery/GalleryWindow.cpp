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
    // The gallery frame follows the theme as a host application would: the
    // library's palette becomes the application's and stays in step.
    ThemeManager::GetInstance()->SetApplicationPaletteFollowsTheme(true);
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
    // A file loaded over the current theme changes values without a switch.
    QApplication::setPalette(themes->GetPalette());
    OnThemeChanged();
}

void GalleryWindow::OnThemeChanged()
{
    ThemeManager* themes = ThemeManager::GetInstance();
    const QColor text = themes->GetColor(ThemeFileKey::FontNormal1);
    const QColor selection = themes->GetColor(ThemeFileKey::MBViewItemSelectionBackground);
    const QColor accent = themes->GetColor(ThemeFileKey::FocusOutline1);
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
