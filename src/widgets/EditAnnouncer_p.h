#pragma once

#include <QObject>

#include <functional>

class QFocusEvent;
class QKeyEvent;
class QLineEdit;

namespace Kavrel::UICore::Internal {

// QLineEdit announces returnPressed() and editingFinished() in the middle of
// its own handling of Return and of a focus loss, and goes on using itself
// afterwards: a handler that deletes the edit makes Qt read freed memory.
// The announcer runs Qt's handling with the edit's signals held back, then
// makes the same announcements itself, with a check after each, so a handler
// may delete the edit. It keeps Qt's rule that a focus loss finishes editing
// only after an edit since editing last finished.
class EditAnnouncer : public QObject
{
public:
    explicit EditAnnouncer(QLineEdit* edit);

    // For Return and Enter; other keys go to `base` as they are. False when a
    // handler deleted the edit.
    bool KeyPress(QKeyEvent* event, const std::function<void()>& base);
    // False when a handler deleted the edit.
    bool FocusOut(QFocusEvent* event, const std::function<void()>& base);

private:
    // Runs `base` silenced, then announces text and selection changes it made.
    bool RunSilenced(const std::function<void()>& base);

    QLineEdit* const mpEdit;
    bool mbEdited = false;
};

} // namespace Kavrel::UICore::Internal
