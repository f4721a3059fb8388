// Window activation and keyboard focus for tests that need them. On a machine
// under load (sanitizer runs side by side) the platform may report a window's
// activation late or not at all; these helpers wait generously, then make the
// window active through QApplication, and always wait for the state itself
// rather than for a fixed time.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

namespace Focus {

// Long enough for a sanitizer build sharing two cores; the waits end as soon
// as the state is reached.
constexpr int kTimeoutMs = 30000;
constexpr int kPlatformActivationMs = 3000;

// Shows the window and makes it the active window.
inline bool ShowActive(QWidget* window)
{
    window->show();
    if (!QTest::qWaitForWindowExposed(window, kTimeoutMs))
        return false;
    window->activateWindow();
    window->raise();
    if (QTest::qWaitForWindowActive(window, kPlatformActivationMs))
        return true;
    // The platform did not confirm in time: activate on Qt's side, which is
    // what focus handling looks at.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(window);
    QT_WARNING_POP
    return QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }, kTimeoutMs);
}

// Gives the widget the keyboard focus, activating its window first when
// another window took over meanwhile.
inline bool Give(QWidget* widget, Qt::FocusReason reason = Qt::OtherFocusReason)
{
    QWidget* window = widget->window();
    if (QApplication::activeWindow() != window && !ShowActive(window))
        return false;
    widget->setFocus(reason);
    return QTest::qWaitFor([widget] { return widget->hasFocus(); }, kTimeoutMs);
}

// Takes the focus away from the widget and waits until it has gone.
inline bool Take(QWidget* widget)
{
    widget->clearFocus();
    return QTest::qWaitFor([widget] { return !widget->hasFocus(); }, kTimeoutMs);
}

} // namespace Focus
