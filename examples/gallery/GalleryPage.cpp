#include "GalleryPage.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/TextLabel.h>

#include <QGridLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

using namespace Kavrel::UICore;

namespace {
std::vector<GalleryPageInfo>& registry()
{
    static std::vector<GalleryPageInfo> pages;
    return pages;
}
} // namespace

const std::vector<GalleryPageInfo>& GalleryPages()
{
    std::vector<GalleryPageInfo>& pages = registry();
    std::stable_sort(pages.begin(), pages.end(),
                     [](const GalleryPageInfo& a, const GalleryPageInfo& b) { return a.order < b.order; });
    return pages;
}

GalleryPageRegistration::GalleryPageRegistration(int order, const QString& title,
                                                 std::function<QWidget*(QWidget*)> create)
{
    registry().push_back({order, title, std::move(create)});
}

QScrollArea* NewPageArea(QWidget* parent)
{
    auto* area = new QScrollArea(parent);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

Label* BoldHeading(const QString& text, QWidget* parent)
{
    auto* label = new Label(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

void AddGridSection(QGridLayout* grid, const QString& title, QWidget* (*build)(QWidget* parent), int row, int column,
                    int columnSpan)
{
    QWidget* content = grid->parentWidget();
    grid->addWidget(BoldHeading(title, content), row, column, 1, columnSpan);
    grid->addWidget(build(content), row + 1, column, 1, columnSpan);
}

void AddDividedSection(QVBoxLayout* layout, const QString& title, const std::function<QLayout*()>& build)
{
    QWidget* page = layout->parentWidget();
    if (layout->count() > 0)
        layout->addWidget(new Divider(Qt::Horizontal, page));
    auto* heading = new TextLabel(title, page);
    heading->SetBold(true);
    heading->SetTextColorThemeKey(ThemeFileKey::FontGroupHeader);
    layout->addWidget(heading);
    layout->addLayout(build());
}
