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
    /// \copydoc KvMessageBox::GetWindowTitle
    virtual int GetWindowTitle(wchar_t* buffer, int capacity) const = 0;
    /// \copydoc KvMessageBox::SetWindowTitle
    virtual void SetWindowTitle(const wchar_t* text) = 0;
    /// \copydoc KvMessageBox::GetIcon
    virtual KvMessageBox::Icon GetIcon() const = 0;
    /// \copydoc KvMessageBox::SetIcon
    virtual void SetIcon(KvMessageBox::Icon icon) = 0;
    /// \copydoc KvMessageBox::GetMainInstruction
    virtual int GetMainInstruction(wchar_t* buffer, int capacity) const = 0;
    /// \copydoc KvMessageBox::SetMainInstruction
    virtual void SetMainInstruction(const wchar_t* text) = 0;
    /// \copydoc KvMessageBox::GetContentText
    virtual int GetContentText(wchar_t* buffer, int capacity) const = 0;
    /// \copydoc KvMessageBox::SetContentText
    virtual void SetContentText(const wchar_t* text) = 0;
    /// \copydoc KvMessageBox::GetExpandedText
    virtual int GetExpandedText(wchar_t* buffer, int capacity) const = 0;
    /// \copydoc KvMessageBox::SetExpandedText
    virtual void SetExpandedText(const wchar_t* text) = 0;
    /// \copydoc KvMessageBox::GetStandardButtons
    virtual KvMessageBox::StandardButton GetStandardButtons() const = 0;
    /// \copydoc KvMessageBox::SetStandardButtons
    virtual void SetStandardButtons(KvMessageBox::StandardButton buttons) = 0;
    /// \copydoc KvMessageBox::AddButton
    virtual void AddButton(const wchar_t* text, int id) = 0;
    /// \copydoc KvMessageBox::GetDefaultButton
    virtual int GetDefaultButton() const = 0;
    /// \copydoc KvMessageBox::SetDefaultButton
    virtual void SetDefaultButton(int id) = 0;
    /// \copydoc KvMessageBox::GetEscapeButton
    virtual int GetEscapeButton() const = 0;
    /// \copydoc KvMessageBox::SetEscapeButton
    virtual void SetEscapeButton(int id) = 0;
    /// \copydoc KvMessageBox::GetWidth
    virtual int GetWidth() const = 0;
    /// \copydoc KvMessageBox::SetWidth
    virtual void SetWidth(int width) = 0;
    /// \copydoc KvMessageBox::SetFooterText
    virtual void SetFooterText(const wchar_t* text) = 0;
    /// Copies the footer text into the buffer, cut to fit and terminated; returns the number of
    /// characters copied.
    virtual int GetFooterText(wchar_t* buffer, int capacity) const = 0;
    /// \copydoc KvMessageBox::SetFlags
    virtual void SetFlags(int flags) = 0;
    /// \copydoc KvMessageBox::GetFlags
    virtual int GetFlags() = 0;
    /// \copydoc KvMessageBox::SetCallback
    virtual int SetCallback(KvMessageBoxCallback callback) = 0;
    /// \copydoc KvMessageBox::SetCallbackData
    virtual int SetCallbackData(void* data) = 0;
    /// \copydoc KvMessageBox::GetCheckBoxText
    virtual int GetCheckBoxText(wchar_t* buffer, int capacity) const = 0;
    /// \copydoc KvMessageBox::SetCheckBoxText
    virtual void SetCheckBoxText(const wchar_t* text) = 0;
    /// \copydoc KvMessageBox::Show(HWND, bool&)
    virtual int Show(HWND parent, bool& checked) = 0;
    /// \copydoc KvMessageBox::Show(HWND)
    virtual int Show(HWND parent) = 0;
    virtual ~IMessageBox() = default;
};

} // namespace Kavrel::UICore
