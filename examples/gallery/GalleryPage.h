#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

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
