#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/platform/NativeHandle.h>

namespace Kavrel::UICore {

class IMessageBox;

// Layouts of these belong to the host; the library only names them in the
// callback signature.
struct KvActiveTaskDialog;
struct KvMessageBoxNotificationArgs;

/// A host provider's notification callback; the library's own box never calls it.
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

    /// Takes a new box from the core manager's message-box provider; when the provider
    /// hands out none, every member keeps its default and Show returns 8 (Cancel).
    KvMessageBox();
    ~KvMessageBox();
    KvMessageBox(const KvMessageBox&) = delete;
    KvMessageBox& operator=(const KvMessageBox&) = delete;

    /// A different style drops the installed provider: the next box comes
    /// from a fresh default provider.
    static void SetStyle(Style style);
    /// The style set with SetStyle; StyleDefault unless set.
    static Style GetStyle();

    /// Copies the window title into the buffer, cut to fit and terminated; returns the
    /// number of characters copied.
    int GetWindowTitle(wchar_t* buffer, int capacity) const;
    /// Sets the window title; null clears it.
    void SetWindowTitle(const wchar_t* text);
    /// The icon; IconNone unless set.
    Icon GetIcon() const;
    /// Sets the icon shown beside the texts.
    void SetIcon(Icon icon);
    /// Copies the main instruction into the buffer, cut to fit and terminated; returns
    /// the number of characters copied.
    int GetMainInstruction(wchar_t* buffer, int capacity) const;
    /// Sets the main instruction, the box's leading text; null clears it.
    void SetMainInstruction(const wchar_t* text);
    /// Copies the content text into the buffer, cut to fit and terminated; returns the
    /// number of characters copied.
    int GetContentText(wchar_t* buffer, int capacity) const;
    /// Sets the content text shown below the main instruction; null clears it.
    void SetContentText(const wchar_t* text);
    /// Copies the expanded text into the buffer, cut to fit and terminated; returns the
    /// number of characters copied.
    int GetExpandedText(wchar_t* buffer, int capacity) const;
    /// Sets the expanded text, shown on request as the box's details; null clears it.
    void SetExpandedText(const wchar_t* text);
    /// The standard buttons set; ButtonNone unless set.
    StandardButton GetStandardButtons() const;
    /// A combination of StandardButton bits; none at all shows a single OK button.
    void SetStandardButtons(StandardButton buttons);
    /// A button of the host's own; `Show` returns `id` when it is pressed. A
    /// second text for the same id replaces the first.
    void AddButton(const wchar_t* text, int id);
    /// The default button's id; 0 for none.
    int GetDefaultButton() const;
    /// A custom button id or a StandardButton value; 0 for none.
    void SetDefaultButton(int id);
    /// The id of the button that Escape presses; 0 for none.
    int GetEscapeButton() const;
    /// A custom button id or a StandardButton value that Escape presses; 0 for none.
    void SetEscapeButton(int id);
    /// The width set, in pixels; 0 for the natural width.
    int GetWidth() const;
    /// Pixels; 0 keeps the natural width.
    void SetWidth(int width);
    /// Sets the footer text for host providers; the library's own box keeps it but does
    /// not show it.
    void SetFooterText(const wchar_t* text);
    /// Stores flags for host providers; the library's own box does not read them.
    void SetFlags(int flags);
    /// The flags stored; 0 unless set.
    int GetFlags();
    /// The library's own box calls no callback; both return 0.
    int SetCallback(KvMessageBoxCallback callback);
    /// Stores the data passed to a host provider's callback; the library's own box
    /// returns 0.
    int SetCallbackData(void* data);
    /// Copies the verification check box text into the buffer, cut to fit and terminated;
    /// returns the number of characters copied.
    int GetCheckBoxText(wchar_t* buffer, int capacity) const;
    /// Sets the text of a verification check box for host providers; the library's own
    /// box shows no check box and reports it unchecked.
    void SetCheckBoxText(const wchar_t* text);

    /// Shows the box modally over `parent` (may be null) and returns the id of
    /// the pressed button: a StandardButton value or a custom id; 8 (Cancel)
    /// when the box went away without a button.
    int Show(HWND parent, bool& checked);
    /// Shows the box as the other overload, without asking for the check box.
    int Show(HWND parent);

private:
    IMessageBox* const mpMessageBox;
};

/// Combines two sets of standard buttons.
inline KvMessageBox::StandardButton operator|(KvMessageBox::StandardButton a, KvMessageBox::StandardButton b)
{
    return KvMessageBox::StandardButton(int(a) | int(b));
}

} // namespace Kavrel::UICore
