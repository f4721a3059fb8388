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
class KVUICORE_EXPORT WinWidget : public QWidget
{
    Q_OBJECT

public:
    explicit WinWidget(HWND parentWindow, Qt::WindowFlags flags = {});
    ~WinWidget() override;

    // The host window this widget sits in.
    HWND parentWindow() const;
    bool IsEmbedded() const;

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

private:
    bool HasTabStopBeyond(QWidget* current, bool next) const;

    HWND mhParentWindow;
    QWindow* mpForeignParent = nullptr;
};

} // namespace Kavrel::UICore::Platform
