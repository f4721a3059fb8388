#include "GalleryPage.h"

#include <algorithm>

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
