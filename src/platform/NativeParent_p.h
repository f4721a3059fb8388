#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/platform/NativeHandle.h>

class QWidget;

namespace Kavrel::UICore::Internal {

// The widget to parent library UI to for a native handle: null for a null
// handle, the Qt widget that owns the handle, or a new native-window wrapper
// that the caller does not delete.
KVUICORE_EXPORT QWidget* ParentWidgetForNativeHandle(HWND handle);

} // namespace Kavrel::UICore::Internal
