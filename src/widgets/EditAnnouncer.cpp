#include <KvUICore/widgets/EditAnnouncer_p.h>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

namespace Kavrel::UICore::Internal {

EditAnnouncer::EditAnnouncer(QLineEdit* edit)
    : QObject(edit)
    , mpEdit(edit)
{
    connect(edit, &QLineEdit::textEdited, this, [this] { mbEdited = true; });
    connect(edit, &QLineEdit::editingFinished, this, [this] { mbEdited = false; });
}

bool EditAnnouncer::RunSilenced(const std::function<void()>& base)
{
    const QPointer<QLineEdit> edit(mpEdit);
    const QString text = mpEdit->text();
    const bool selected = mpEdit->hasSelectedText();
    const bool wasBlocked = mpEdit->blockSignals(true);
    base();
    mpEdit->blockSignals(wasBlocked);
    if (mpEdit->text() != text) {
        Q_EMIT mpEdit->textChanged(mpEdit->text());
        if (!edit)
            return false;
    }
    if (selected != mpEdit->hasSelectedText()) {
        Q_EMIT mpEdit->selectionChanged();
        if (!edit)
            return false;
    }
    return true;
}

bool EditAnnouncer::KeyPress(QKeyEvent* event, const std::function<void()>& base)
{
    const int key = event->key();
    if ((key != Qt::Key_Return && key != Qt::Key_Enter) || mpEdit->signalsBlocked()) {
        base();
        return true;
    }
    const QPointer<QLineEdit> edit(mpEdit);
    if (!RunSilenced(base))
        return false;
    // Qt finishes on Return whenever the text is acceptable (after its fixup).
    if (!mpEdit->hasAcceptableInput())
        return true;
    Q_EMIT mpEdit->returnPressed();
    if (!edit)
        return false;
    Q_EMIT mpEdit->editingFinished();
    return !edit.isNull();
}

bool EditAnnouncer::FocusOut(QFocusEvent* event, const std::function<void()>& base)
{
    if (mpEdit->signalsBlocked()) {
        base();
        return true;
    }
    const QPointer<QLineEdit> edit(mpEdit);
    // Losing the focus to the edit's own popup (its context menu) finishes nothing.
    const QWidget* popup = QApplication::activePopupWidget();
    const bool ownPopup = event->reason() == Qt::PopupFocusReason && popup && popup->parentWidget() == mpEdit;
    if (!RunSilenced(base))
        return false;
    if (ownPopup || !mbEdited || !mpEdit->hasAcceptableInput())
        return true;
    Q_EMIT mpEdit->editingFinished();
    return !edit.isNull();
}

} // namespace Kavrel::UICore::Internal
