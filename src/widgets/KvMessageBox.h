#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/platform/NativeHandle.h>

namespace Kavrel::UICore {

class IMessageBox;

// Layouts of these belong to the host; the library only names them in the
// callback signature.
struct KvActiveTaskDialog;
struct KvMessageBoxNotificationArgs;

using KvMessageBoxCallback = bool (*)(KvActiveTaskDialog*, const KvMessageBoxNotificationArgs&, void*);

/// A modal message box for hosts that work with native window handles and
/// wide strings: texts, an icon, standard and custom buttons, default and
/// escape buttons and a width.
///
/// The box itself comes from the message-box provider of the core manager, so
/// a host that installs its own provider takes over every message box of the
/// library. Text getters copy into (buffer, capacity) and return the number of
/// characters copied.
class KVUICORE_EXPORT KvMessageBox
{
public:
    /// Interpreted by host providers; the library's own box looks the same in every style.
    enum Style : int
    {
        StyleDefault = 0,
        StyleTaskDialog = 1,
        StyleClassic = 2,
    };

    /// Values other than these show no icon.
    enum Icon : int
    {
        IconNone = 0,
        IconQuestion = 1,
        IconInformation = 2,
        IconWarning = 3,
    };

    /// Bits of the standard button set, and the values Show returns for them.
    enum StandardButton : int
    {
        ButtonNone = 0,
        ButtonOk = 1,
        ButtonYes = 2,
        ButtonNo = 4,
        ButtonCancel = 8,
        ButtonRetry = 16,
        ButtonClose = 32,
    };

    KvMessageBox();
    ~KvMessageBox();
    KvMessageBox(const KvMessageBox&) = delete;
    KvMessageBox& operator=(const KvMessageBox&) = delete;

    /// A different style drops the installed provider: the next box comes
    /// from a fresh default provider.
    static void SetStyle(Style style);
    static Style GetStyle();

    int GetWindowTitle(wchar_t* buffer, int capacity) const;
    void SetWindowTitle(const wchar_t* text);
    Icon GetIcon() const;
    void SetIcon(Icon icon);
    int GetMainInstruction(wchar_t* buffer, int capacity) const;
    void SetMainInstruction(const wchar_t* text);
    int GetContentText(wchar_t* buffer, int capacity) const;
    void SetContentText(const wchar_t* text);
    int GetExpandedText(wchar_t* buffer, int capacity) const;
    void SetExpandedText(const wchar_t* text);
    StandardButton GetStandardButtons() const;
    /// A combination of StandardButton bits; none at all shows a single OK button.
    void SetStandardButtons(StandardButton buttons);
    /// A button of the host's own; `Show` returns `id` when it is pressed. A
    /// second text for the same id replaces the first.
    void AddButton(const wchar_t* text, int id);
    int GetDefaultButton() const;
    /// A custom button id or a StandardButton value; 0 for none.
    void SetDefaultButton(int id);
    int GetEscapeButton() const;
    void SetEscapeButton(int id);
    int GetWidth() const;
    /// Pixels; 0 keeps the natural width.
    void SetWidth(int width);
    void SetFooterText(const wchar_t* text);
    void SetFlags(int flags);
    int GetFlags();
    /// The library's own box calls no callback; both return 0.
    int SetCallback(KvMessageBoxCallback callback);
    int SetCallbackData(void* data);
    int GetCheckBoxText(wchar_t* buffer, int capacity) const;
    void SetCheckBoxText(const wchar_t* text);

    /// Shows the box modally over `parent` (may be null) and returns the id of
    /// the pressed button: a StandardButton value or a custom id; 8 (Cancel)
    /// when the box went away without a button.
    int Show(HWND parent, bool& checked);
    int Show(HWND parent);

private:
    IMessageBox* const mpMessageBox;
};

inline KvMessageBox::StandardButton operator|(KvMessageBox::StandardButton a, KvMessageBox::StandardButton b)
{
    return KvMessageBox::StandardButton(int(a) | int(b));
}

} // namespace Kavrel::UICore
