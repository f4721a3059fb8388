#pragma once

#include <KvUICore/platform/WinWidget_p.h>

// The wrapper that embeds a WidgetImp in a host's native window.
//
// On Windows it joins the host dialog's tab order and claims all keys, so
// that the dialog manager leaves them to the embedded content. On X11 there
// is no dialog manager: keys go to the window that has input focus, and
// tabbing out of the content hands focus back to the host window.
class KVUICORE_EXPORT WinWidgetImp : public Kavrel::UICore::Platform::WinWidget
{
    Q_OBJECT

public:
    explicit WinWidgetImp(HWND parentWindow);
    ~WinWidgetImp() override;

protected:
#ifdef Q_OS_WIN
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override;
#endif
    // With no Qt widget focused inside, focus movement is left to the host.
    bool focusNextPrevChild(bool next) override;

private:
#ifdef Q_OS_WIN
    // Lets the host dialog's tab order reach the embedded content.
    void JoinNativeTabOrder();
#endif
};
