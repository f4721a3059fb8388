#pragma once

#include <KvUICore/platform/NativeHandle.h>

#include <QPoint>
#include <QSize>

// Native window operations behind the hosting wrapper, one implementation per
// windowing system (NativeWindow_x11.cpp, NativeWindow_win.cpp).
namespace Kavrel::UICore::Platform {

// Where the origin of `window` lies in the client area of `ancestor`, in native
// pixels; false when the windowing system cannot tell.
bool TranslateToAncestor(WId window, HWND ancestor, QPoint* position);

// Where the client area's origin of a native window lies on the screen, in
// native pixels; false when the windowing system cannot tell.
bool ScreenPosition(HWND window, QPoint* position);

// The client size of a native window in native pixels; invalid when unknown.
QSize NativeClientSize(HWND window);

// Gives keyboard focus to a native window.
void SetNativeFocus(HWND window);

} // namespace Kavrel::UICore::Platform
