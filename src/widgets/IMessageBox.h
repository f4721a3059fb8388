#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/widgets/KvMessageBox.h>

namespace Kavrel::UICore {

/// One message box as a provider creates it. KvMessageBox forwards every
/// member of the same name unchanged; a host provider implements this to take
/// over the presentation. Text getters copy into (buffer, capacity) and return
/// the number of characters copied.
class KVUICORE_EXPORT IMessageBox
{
public:
    virtual int GetWindowTitle(wchar_t* buffer, int capacity) const = 0;
    virtual void SetWindowTitle(const wchar_t* text) = 0;
    virtual KvMessageBox::Icon GetIcon() const = 0;
    virtual void SetIcon(KvMessageBox::Icon icon) = 0;
    virtual int GetMainInstruction(wchar_t* buffer, int capacity) const = 0;
    virtual void SetMainInstruction(const wchar_t* text) = 0;
    virtual int GetContentText(wchar_t* buffer, int capacity) const = 0;
    virtual void SetContentText(const wchar_t* text) = 0;
    virtual int GetExpandedText(wchar_t* buffer, int capacity) const = 0;
    virtual void SetExpandedText(const wchar_t* text) = 0;
    virtual KvMessageBox::StandardButton GetStandardButtons() const = 0;
    virtual void SetStandardButtons(KvMessageBox::StandardButton buttons) = 0;
    virtual void AddButton(const wchar_t* text, int id) = 0;
    virtual int GetDefaultButton() const = 0;
    virtual void SetDefaultButton(int id) = 0;
    virtual int GetEscapeButton() const = 0;
    virtual void SetEscapeButton(int id) = 0;
    virtual int GetWidth() const = 0;
    virtual void SetWidth(int width) = 0;
    virtual void SetFooterText(const wchar_t* text) = 0;
    virtual int GetFooterText(wchar_t* buffer, int capacity) const = 0;
    virtual void SetFlags(int flags) = 0;
    virtual int GetFlags() = 0;
    virtual int SetCallback(KvMessageBoxCallback callback) = 0;
    virtual int SetCallbackData(void* data) = 0;
    virtual int GetCheckBoxText(wchar_t* buffer, int capacity) const = 0;
    virtual void SetCheckBoxText(const wchar_t* text) = 0;
    virtual int Show(HWND parent, bool& checked) = 0;
    virtual int Show(HWND parent) = 0;
    virtual ~IMessageBox() = default;
};

} // namespace Kavrel::UICore
