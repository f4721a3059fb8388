#include <KvUICore/platform/NativeWindow_p.h>

namespace Kavrel::UICore::Platform {

bool TranslateToAncestor(WId window, HWND ancestor, QPoint* position)
{
    if (!window || !ancestor)
        return false;
    POINT point = {0, 0};
    if (!::ClientToScreen(HandleFromWId(window), &point) || !::ScreenToClient(ancestor, &point))
        return false;
    if (position)
        *position = QPoint(point.x, point.y);
    return true;
}

bool ScreenPosition(HWND window, QPoint* position)
{
    POINT point = {0, 0};
    if (!window || !::ClientToScreen(window, &point))
        return false;
    if (position)
        *position = QPoint(point.x, point.y);
    return true;
}

QSize NativeClientSize(HWND window)
{
    RECT rect;
    if (!window || !::GetClientRect(window, &rect))
        return QSize();
    return QSize(rect.right - rect.left, rect.bottom - rect.top);
}

void SetNativeFocus(HWND window)
{
    if (window)
        ::SetFocus(window);
}

} // namespace Kavrel::UICore::Platform
