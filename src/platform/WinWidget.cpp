#include <KvUICore/platform/NativeWindow_p.h>
#include <KvUICore/platform/WinWidget_p.h>

#include <QChildEvent>
#include <QGuiApplication>
#include <QMoveEvent>
#include <QScreen>
#include <QWindow>

namespace Kavrel::UICore::Platform {

WinWidget::WinWidget(HWND parentWindow, Qt::WindowFlags flags, Role role)
    : QWidget(nullptr, flags)
    , mhParentWindow(parentWindow)
    , meRole(role)
{
    if (!parentWindow)
        return;
    // Foreign windows are a platform capability; without it (offscreen,
    // some Wayland setups) the widget stays top-level.
    mpForeignParent = QWindow::fromWinId(WIdFromHandle(parentWindow));
    if (role == Role::DialogOwner) {
        CoverParentWindow();
        return;
    }
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
    return meRole == Role::Embedded && mpForeignParent != nullptr;
}

WinWidget::Role WinWidget::GetRole() const
{
    return meRole;
}

QWindow* WinWidget::ForeignParent() const
{
    return mpForeignParent;
}

void WinWidget::CoverParentWindow()
{
    QPoint nativeOrigin;
    const QSize nativeSize = NativeClientSize(mhParentWindow);
    if (!nativeSize.isValid() || !ScreenPosition(mhParentWindow, &nativeOrigin))
        return;
    // Not created, so the device pixel ratio comes from the screen the host
    // is on. Screens keep their origin in both pixel kinds; only the offset
    // within a screen scales.
    QScreen* screen = QGuiApplication::primaryScreen();
    for (QScreen* candidate : QGuiApplication::screens()) {
        const QRect native(candidate->geometry().topLeft(), candidate->size() * candidate->devicePixelRatio());
        if (native.contains(nativeOrigin)) {
            screen = candidate;
            break;
        }
    }
    if (!screen)
        return;
    const qreal ratio = screen->devicePixelRatio() > 0 ? screen->devicePixelRatio() : 1.0;
    const QPoint screenOrigin = screen->geometry().topLeft();
    const QPoint offset = nativeOrigin - screenOrigin;
    setGeometry(screenOrigin.x() + qRound(offset.x() / ratio), screenOrigin.y() + qRound(offset.y() / ratio),
                qMax(1, qRound(nativeSize.width() / ratio)), qMax(1, qRound(nativeSize.height() / ratio)));
}

QPoint WinWidget::PositionInParentWindow() const
{
    QPoint position;
    if (IsEmbedded() && TranslateToAncestor(internalWinId(), mhParentWindow, &position))
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
    if (!IsEmbedded() || !current || HasTabStopBeyond(current, next))
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
    if (IsEmbedded() && window && window->position() != pos())
        window->setPosition(pos());
}

void WinWidget::childEvent(QChildEvent* event)
{
    QWidget::childEvent(event);
    if (event->type() == QEvent::ChildAdded && event->child()->isWidgetType())
        event->child()->installEventFilter(this);
    else if (event->type() == QEvent::ChildRemoved)
        event->child()->removeEventFilter(this);
    // Nobody deletes a dialog owner: it goes once the last dialog over it has gone.
    // (A child being destroyed no longer tells whether it was a widget.)
    if (event->type() == QEvent::ChildRemoved && meRole == Role::DialogOwner
        && findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).isEmpty())
        deleteLater();
}

bool WinWidget::eventFilter(QObject* watched, QEvent* event)
{
    // A dialog shown over the host stays above the host's window. The native
    // window exists by now and is mapped only after this event.
    if (event->type() == QEvent::Show && mpForeignParent) {
        auto* child = static_cast<QWidget*>(watched);
        QWindow* window = child->isWindow() ? child->windowHandle() : nullptr;
        if (window && window->transientParent() != mpForeignParent)
            window->setTransientParent(mpForeignParent);
    }
    return QWidget::eventFilter(watched, event);
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
