// A form made in Qt Designer with the library's plugin (DesignerPage.ui) and
// compiled by uic: the controls, their properties and a rollout container's
// children come from the form alone.
#include "GalleryPage.h"
#include "ui_DesignerPage.h"

#include <QScrollArea>

namespace {

GalleryPageRegistration registration(650, QStringLiteral("Designer form"), [](QWidget* parent) {
    QScrollArea* area = NewPageArea(parent);
    auto* content = new QWidget(area);
    // The generated class only holds pointers to the widgets it made.
    Ui::DesignerPage form;
    form.setupUi(content);
    area->setWidget(content);
    return area;
});

} // namespace
