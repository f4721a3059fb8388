#pragma once

#include <KvUICore/KvUICoreExport.h>
#include <KvUICore/platform/NativeHandle.h>

#include <QPoint>
#include <QSize>
#include <QWidget>

class QWindow;

namespace Kavrel::UICore::Platform {

// A top-level widget whose native window lives inside a native window of a
// host that is not a Qt application. It plays the part of the MFC migration
// framework's QWinWidget, with the operations the library relies on.
//
// The widget gets a native window at once, and that window is parented to the
// foreign one, so moving and sizing it places it in the host's client area.
// On a platform without foreign windows the widget stays an ordinary
// top-level widget and IsEmbedded() is false.
//
// As the owner of dialogs (message boxes over a host window) the wrapper is
// not embedded and never gets a native window: it only covers the host
// window's area, so dialogs centre on it, and makes the host window the
// transient parent of every dialog shown over it. It deletes itself later
// when the last widget parented to it is gone.
class KVUICORE_EXPORT WinWidget : public QWidget
{
    Q_OBJECT

public:
    enum class Role
    {
        Embedded,
        DialogOwner,
    };

    explicit WinWidget(HWND parentWindow, Qt::WindowFlags flags = {}, Role role = Role::Embedded);
    ~WinWidget() override;

    // The host window this widget sits in.
    HWND parentWindow() const;
    bool IsEmbedded() const;
    Role GetRole() const;
    // The host window as Qt sees it; null where foreign windows are not supported.
    QWindow* ForeignParent() const;

    // The origin of this widget's native window in the client pixels of the
    // parent window: native pixels, as the host sees them.
    QPoint PositionInParentWindow() const;
    // The client size of the parent window in native pixels; invalid when unknown.
    QSize ParentWindowSize() const;

    // Hands native keyboard focus back to the host window.
    void FocusParentWindow();

protected:
    // Leaving the last (or, backwards, the first) tab stop inside gives focus
    // back to the host, so the host's own tab order continues from here.
    bool focusNextPrevChild(bool next) override;
    void moveEvent(QMoveEvent* event) override;
    void childEvent(QChildEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HasTabStopBeyond(QWidget* current, bool next) const;
    void CoverParentWindow();

    HWND mhParentWindow;
    Role meRole;
    QWindow* mpForeignParent = nullptr;
};

} // namespace Kavrel::UICore::Platform
