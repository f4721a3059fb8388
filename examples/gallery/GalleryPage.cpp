#include "GalleryPage.h"

#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/TextLabel.h>

#include <QApplication>
#include <QGridLayout>
#include <QImage>
#include <QPainter>
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

constexpr char kShowsFocus[] = "galleryShowsFocus";

// The widget of the control that Tab gives the focus to.
QWidget* TabStop(QWidget* control)
{
    QWidget* widget = control;
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled())
            return widget;
        widget = widget->nextInFocusChain();
    } while (widget != control && control->isAncestorOf(widget));
    return nullptr;
}
} // namespace

void ShowFocusedInScreenshots(QWidget* control)
{
    control->setProperty(kShowsFocus, true);
}

QList<FocusedPlace> FocusedPlaces(QWidget* root)
{
    QList<FocusedPlace> places;
    const QList<QWidget*> children = root->findChildren<QWidget*>();
    for (QWidget* control : children) {
        if (control->property(kShowsFocus).toBool() && control->isVisibleTo(root))
            places.append({control, QRect(control->mapTo(root, QPoint()), control->size())});
    }
    return places;
}

void PaintFocusedLooks(QImage& image, const QList<FocusedPlace>& places, const QRect& clip)
{
    if (places.isEmpty())
        return;
    QWidget* window = places.front().control ? places.front().control->window() : nullptr;
    if (!window)
        return;
    // Focus is only real in the active window; without a window manager
    // nothing activates it on its own.
    window->activateWindow();
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(window);
    QT_WARNING_POP
    const QPointer<QWidget> previous = QApplication::focusWidget();
    QPainter painter(&image);
    painter.setClipRect(clip);
    for (const FocusedPlace& place : places) {
        QWidget* stop = place.control ? TabStop(place.control) : nullptr;
        if (!stop)
            continue;
        stop->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        if (stop->hasFocus())
            painter.drawPixmap(place.rect.topLeft(), place.control->parentWidget()->grab(place.control->geometry()));
    }
    painter.end();
    if (previous)
        previous->setFocus(Qt::OtherFocusReason);
    QCoreApplication::processEvents();
}

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
