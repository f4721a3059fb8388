#include <KvUICore/platform/NativeWindow_p.h>
#include <KvUICore/platform/WinWidget_p.h>

#include <QMoveEvent>
#include <QWindow>

namespace Kavrel::UICore::Platform {

WinWidget::WinWidget(HWND parentWindow, Qt::WindowFlags flags)
    : QWidget(nullptr, flags)
    , mhParentWindow(parentWindow)
{
    if (!parentWindow)
        return;
    // Foreign windows are a platform capability; without it (offscreen,
    // some Wayland setups) the widget stays top-level.
    mpForeignParent = QWindow::fromWinId(WIdFromHandle(parentWindow));
    if (!mpForeignParent)
        return;
    setAttribute(Qt::WA_NativeWindow);
    winId();
    if (QWindow* window = windowHandle())
        window->setParent(mpForeignParent);
}

WinWidget::~WinWidget()
{
    // The foreign window is the parent of our native window, so ours must go
    // first; the host's window itself is never destroyed.
    destroy();
    delete mpForeignParent;
}

HWND WinWidget::parentWindow() const
{
    return mhParentWindow;
}

bool WinWidget::IsEmbedded() const
{
    return mpForeignParent != nullptr;
}

QPoint WinWidget::PositionInParentWindow() const
{
    QPoint position;
    if (mpForeignParent && TranslateToAncestor(internalWinId(), mhParentWindow, &position))
        return position;
    return pos();
}

QSize WinWidget::ParentWindowSize() const
{
    return NativeClientSize(mhParentWindow);
}

void WinWidget::FocusParentWindow()
{
    SetNativeFocus(mhParentWindow);
}

bool WinWidget::focusNextPrevChild(bool next)
{
    QWidget* current = focusWidget();
    if (!mpForeignParent || !current || HasTabStopBeyond(current, next))
        return QWidget::focusNextPrevChild(next);
    FocusParentWindow();
    return true;
}

void WinWidget::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    // A plain move of a visible top-level widget does not always reach a
    // window with a foreign parent; the widget's position is the one that counts.
    QWindow* window = windowHandle();
    if (mpForeignParent && window && window->position() != pos())
        window->setPosition(pos());
}

bool WinWidget::HasTabStopBeyond(QWidget* current, bool next) const
{
    // The focus chain of a window starts and ends at the window itself, so
    // reaching it again means the walk would wrap around.
    QWidget* candidate = current;
    for (;;) {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        if (!candidate || candidate == this || candidate == current)
            return false;
        if (candidate->window() == this && (candidate->focusPolicy() & Qt::TabFocus) && candidate->isVisible()
            && candidate->isEnabled())
            return true;
    }
}

} // namespace Kavrel::UICore::Platform
