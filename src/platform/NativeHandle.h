#pragma once

// The native window handle that crosses the exported interface. On Windows it
// is the real HWND; elsewhere an opaque pointer-sized handle that carries the
// native window id (an X11 window id under xcb), so host code stays portable.
#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#else
struct HWND__;
typedef HWND__* HWND;
#endif

#include <QtGui/qwindowdefs.h>

namespace Kavrel::UICore::Platform {

/// Qt's window id of a native window handle.
inline WId WIdFromHandle(HWND handle)
{
    return WId(reinterpret_cast<quintptr>(handle));
}

/// The native window handle of a Qt window id.
inline HWND HandleFromWId(WId id)
{
    return reinterpret_cast<HWND>(quintptr(id));
}

} // namespace Kavrel::UICore::Platform
