#pragma once

#include <QList>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class QGridLayout;
class QImage;
class QLayout;
class QScrollArea;
class QVBoxLayout;

namespace Kavrel::UICore {
class Label;
}

// A page of the gallery. Each page file registers itself with a static
// GalleryPageRegistration, so adding a page touches no other file.
struct GalleryPageInfo
{
    int order;
    QString title;
    std::function<QWidget*(QWidget* parent)> create;
};

const std::vector<GalleryPageInfo>& GalleryPages();

struct GalleryPageRegistration
{
    GalleryPageRegistration(int order, const QString& title, std::function<QWidget*(QWidget*)> create);
};

// The frameless scroll area a page sits in, its content resized with it.
QScrollArea* NewPageArea(QWidget* parent);

// A plain label in the bold font.
Kavrel::UICore::Label* BoldHeading(const QString& text, QWidget* parent);

// A bold heading at (row, column) and below it the widget build() makes, both
// columnSpan columns wide. The heading is made first so that it leads in the
// focus and accessibility order.
void AddGridSection(QGridLayout* grid, const QString& title, QWidget* (*build)(QWidget* parent), int row, int column,
                    int columnSpan = 1);

// A group heading and below it the layout build() makes; every section but
// the first is set off by a divider.
void AddDividedSection(QVBoxLayout* layout, const QString& title, const std::function<QLayout*()>& build);

// Marks a control whose focused look the screenshots show. Only one control of
// a window holds the focus at a time, so the screenshot run gives each marked
// control the focus in turn and takes its look while it has it.
void ShowFocusedInScreenshots(QWidget* control);

// Where the marked controls below root are, in root's coordinates.
struct FocusedPlace
{
    QPointer<QWidget> control;
    QRect rect;
};
QList<FocusedPlace> FocusedPlaces(QWidget* root);

// Paints each control's focused look at its place over image (inside clip),
// giving the control the focus for the moment; the focus then goes back.
void PaintFocusedLooks(QImage& image, const QList<FocusedPlace>& places, const QRect& clip);
