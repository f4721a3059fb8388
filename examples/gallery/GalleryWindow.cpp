#include "GalleryWindow.h"
#include "GalleryPage.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QComboBox>
#include <QFileDialog>
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
        mpPageList->addItem(page.title);
        mpPages->addWidget(page.create(mpPages));
    }
    connect(mpPageList, &QListWidget::currentRowChanged, mpPages, &QStackedWidget::setCurrentIndex);

    auto* body = new QHBoxLayout;
    body->addWidget(mpPageList);
    body->addWidget(mpPages, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addLayout(body, 1);

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
    ThemeManager* themes = ThemeManager::GetInstance();
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, themes->GetColor(ThemeFileKey::Container1));
    palette.setColor(QPalette::WindowText, themes->GetColor(ThemeFileKey::FontNormal1));
    palette.setColor(QPalette::Base, themes->GetColor(ThemeFileKey::WidgetContainer4));
    palette.setColor(QPalette::Text, themes->GetColor(ThemeFileKey::FontNormal1));
    palette.setColor(QPalette::Button, themes->GetColor(ThemeFileKey::WidgetContainer4));
    palette.setColor(QPalette::ButtonText, themes->GetColor(ThemeFileKey::FontNormal1));
    palette.setColor(QPalette::Highlight, themes->GetColor(ThemeFileKey::FocusOutline1));
    setPalette(palette);

    const int index = kBuiltInThemes.indexOf(themes->GetCurrentTheme());
    if (index >= 0 && mpThemeBox->currentIndex() != index)
        mpThemeBox->setCurrentIndex(index);
    update();
}
