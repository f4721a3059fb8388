#include <KvUICore/platform/NativeWindow_p.h>

#include <QGuiApplication>
#include <QtGui/qtguiglobal.h>

#if QT_CONFIG(xcb)
#include <QtGui/qguiapplication_platform.h>

#include <xcb/xcb.h>

#include <cstdlib>
#endif

namespace Kavrel::UICore::Platform {

#if QT_CONFIG(xcb)
namespace {

// Qt's own connection, so requests are ordered after those Qt sent for its
// windows; null when the application does not run on X11.
xcb_connection_t* qtConnection()
{
    auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (!application)
        return nullptr;
    auto* x11 = application->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t windowOf(HWND handle)
{
    return xcb_window_t(WIdFromHandle(handle));
}

} // namespace

bool TranslateToAncestor(WId window, HWND ancestor, QPoint* position)
{
    xcb_connection_t* connection = qtConnection();
    if (!connection || !window || !ancestor)
        return false;
    const xcb_translate_coordinates_cookie_t cookie =
        xcb_translate_coordinates(connection, xcb_window_t(window), windowOf(ancestor), 0, 0);
    xcb_generic_error_t* error = nullptr;
    xcb_translate_coordinates_reply_t* reply = xcb_translate_coordinates_reply(connection, cookie, &error);
    std::free(error);
    if (!reply)
        return false;
    if (position)
        *position = QPoint(reply->dst_x, reply->dst_y);
    std::free(reply);
    return true;
}

bool ScreenPosition(HWND window, QPoint* position)
{
    xcb_connection_t* connection = qtConnection();
    if (!connection || !window)
        return false;
    xcb_generic_error_t* error = nullptr;
    xcb_query_tree_reply_t* tree =
        xcb_query_tree_reply(connection, xcb_query_tree(connection, windowOf(window)), &error);
    std::free(error);
    if (!tree)
        return false;
    const xcb_window_t root = tree->root;
    std::free(tree);
    return TranslateToAncestor(WId(windowOf(window)), HandleFromWId(WId(root)), position);
}

QSize NativeClientSize(HWND window)
{
    xcb_connection_t* connection = qtConnection();
    if (!connection || !window)
        return QSize();
    xcb_generic_error_t* error = nullptr;
    xcb_get_geometry_reply_t* reply =
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, windowOf(window)), &error);
    std::free(error);
    if (!reply)
        return QSize();
    const QSize size(reply->width, reply->height);
    std::free(reply);
    return size;
}

void SetNativeFocus(HWND window)
{
    xcb_connection_t* connection = qtConnection();
    if (!connection || !window)
        return;
    // A host window that is not viewable refuses focus with an error; ask
    // first so that no error reaches Qt's error handler.
    xcb_get_window_attributes_reply_t* attributes =
        xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, windowOf(window)), nullptr);
    const bool viewable = attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    std::free(attributes);
    if (!viewable)
        return;
    xcb_set_input_focus(connection, XCB_INPUT_FOCUS_PARENT, windowOf(window), XCB_CURRENT_TIME);
    xcb_flush(connection);
}

#else

// Without X11 support in Qt there is no native window system to ask.
bool TranslateToAncestor(WId, HWND, QPoint*)
{
    return false;
}

bool ScreenPosition(HWND, QPoint*)
{
    return false;
}

QSize NativeClientSize(HWND)
{
    return QSize();
}

void SetNativeFocus(HWND)
{
}

#endif

} // namespace Kavrel::UICore::Platform
