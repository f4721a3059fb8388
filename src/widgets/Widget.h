#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/platform/NativeHandle.h>

#include <memory>

class WidgetImp;

namespace Kavrel::UICore {

/// The handle through which a host that does not deal in Qt types places,
/// sizes, shows and persists a piece of library UI, also inside a native
/// window of its own.
///
/// Copies are shallow: a copy shares the implementation of the handle it was
/// made from, and assignment does not release what the target held. Keep one
/// owning handle and treat copies as views; whichever handle goes first
/// deletes the implementation, the others then see none.
class KVUICORE_EXPORT Widget
{
public:
    /// A top-level widget.
    Widget();
    /// A handle sharing the other's implementation (see the class description).
    Widget(const Widget& other);
    /// Makes this handle share the other's implementation; what it held before is not
    /// released.
    Widget& operator=(const Widget& other);
    virtual ~Widget();

    /// The position in the host's pixels (native pixels of the parent window
    /// when the widget sits in one).
    int GetX() const;
    /// The vertical position, as GetX; 0 without an implementation.
    int GetY() const;
    /// The width in the host's pixels; 0 without an implementation.
    int GetWidth() const;
    /// The height in the host's pixels; 0 without an implementation.
    int GetHeight() const;
    /// The implementation's minimum height; 0 without an implementation.
    int GetMinimumHeight();
    /// The native handle of the window that carries the widget; null without an
    /// implementation.
    HWND GetWinId() const;
    /// Whether the widget is enabled; false without an implementation.
    bool IsEnabled() const;
    /// Whether the widget is visible; false without an implementation.
    bool IsVisible() const;

    /// Moves the widget to (x, y); nothing happens without an implementation.
    void Move(int x, int y);
    /// Resizes the widget; nothing happens without an implementation.
    void Resize(int width, int height);
    /// The position is native pixels of the parent window; the size is used as given.
    void Resize(int x, int y, int width, int height);
    /// Shows the widget; nothing happens without an implementation.
    void Show();
    /// Hides the widget; nothing happens without an implementation.
    void Hide();
    /// Shows or hides the widget; nothing happens without an implementation.
    void SetVisible(bool visible);
    /// Enables or disables the widget; nothing happens without an implementation.
    void SetEnabled(bool enabled);
    /// Shows or hides the implementation's border (see WidgetImp::ShowBorder).
    void ShowBorder(bool show);
    /// Gives the widget keyboard focus; nothing happens without an implementation.
    void SetFocus();

    /// State in the element at `nodePath` ("Dialogs/Options") of an XML state file.
    bool LoadState(const wchar_t* filePath, const wchar_t* nodePath);
    /// Writes the state into the element at `nodePath` of an XML state file (see
    /// WidgetImp::SaveState); false on failure or without an implementation.
    bool SaveState(const wchar_t* filePath, const wchar_t* nodePath) const;
    /// State as one self-contained XML string.
    bool LoadState(const wchar_t* xml);
    /// Copies the string form into the buffer; returns the number of characters copied.
    int SaveState(wchar_t* buffer, int size) const;

protected:
    /// Takes ownership of an implementation (a WidgetImp or subclass).
    explicit Widget(void* imp);
    /// The implementation (a WidgetImp); null when there is none.
    void* GetImpObj();
    /// The implementation (a WidgetImp); null when there is none.
    const void* GetConstImpObj() const;
    /// Deletes the current implementation and takes ownership of `imp`.
    void SetImpObj(void* imp);

private:
    struct ImpRef;
    std::unique_ptr<ImpRef> const mpImp;
};

} // namespace Kavrel::UICore
