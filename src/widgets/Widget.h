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
    Widget(const Widget& other);
    Widget& operator=(const Widget& other);
    virtual ~Widget();

    /// The position in the host's pixels (native pixels of the parent window
    /// when the widget sits in one).
    int GetX() const;
    int GetY() const;
    int GetWidth() const;
    int GetHeight() const;
    int GetMinimumHeight();
    HWND GetWinId() const;
    bool IsEnabled() const;
    bool IsVisible() const;

    void Move(int x, int y);
    void Resize(int width, int height);
    /// The position is native pixels of the parent window; the size is used as given.
    void Resize(int x, int y, int width, int height);
    void Show();
    void Hide();
    void SetVisible(bool visible);
    void SetEnabled(bool enabled);
    void ShowBorder(bool show);
    void SetFocus();

    /// State in the element at `nodePath` ("Dialogs/Options") of an XML state file.
    bool LoadState(const wchar_t* filePath, const wchar_t* nodePath);
    bool SaveState(const wchar_t* filePath, const wchar_t* nodePath) const;
    /// State as one self-contained XML string.
    bool LoadState(const wchar_t* xml);
    /// Copies the string form into the buffer; returns the number of characters copied.
    int SaveState(wchar_t* buffer, int size) const;

protected:
    /// Takes ownership of an implementation (a WidgetImp or subclass).
    explicit Widget(void* imp);
    void* GetImpObj();
    const void* GetConstImpObj() const;
    /// Deletes the current implementation and takes ownership of `imp`.
    void SetImpObj(void* imp);

private:
    struct ImpRef;
    std::unique_ptr<ImpRef> const mpImp;
};

} // namespace Kavrel::UICore
