#include <KvUICore/widgets/WinWidgetImp.h>

#include <windows.h>

void WinWidgetImp::JoinNativeTabOrder()
{
    const HWND window = reinterpret_cast<HWND>(winId());
    const LONG style = ::GetWindowLongW(window, GWL_STYLE);
    ::SetWindowLongW(window, GWL_STYLE, style | WS_TABSTOP);
}

bool WinWidgetImp::nativeEvent(const QByteArray& eventType, void* message, qintptr* result)
{
    const MSG* msg = static_cast<const MSG*>(message);
    if (msg && msg->message == WM_GETDLGCODE) {
        // Arrows, Tab and every other key stay with the embedded Qt content.
        *result = DLGC_WANTARROWS | DLGC_WANTTAB | DLGC_WANTALLKEYS;
        return true;
    }
    return WinWidget::nativeEvent(eventType, message, result);
}
