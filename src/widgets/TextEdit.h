#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QPlainTextEdit>

#include <memory>

namespace Kavrel::UICore {

class TextEditImp;

/// The library's multi-line text editor: a plain-text editor in the text box's
/// frame (background, border and focus halo from the same theme keys), with a
/// prompt shown while it is empty, themed scroll bars and an optional maximum
/// length. Like the single-line editors it commits when editing finishes: on
/// losing focus (and on Ctrl+Return) a changed text is announced through
/// TextCommitted(); Escape returns to the last committed text.
///
/// With a maximum length, typing stops at the limit and a paste or drop
/// inserts only what still fits (nothing when nothing does), leaving the caret
/// where the inserted text ends.
class KVUICORE_EXPORT TextEdit : public QPlainTextEdit
{
    Q_OBJECT
    /// The text; notified on every change, in code or by the user.
    Q_PROPERTY(QString text READ GetText WRITE SetText NOTIFY textChanged USER true)
    /// The text shown while the editor is empty.
    Q_PROPERTY(QString prompt READ GetPrompt WRITE SetPrompt)
    /// The most characters the text may hold; 0 for no limit.
    Q_PROPERTY(int maximumLength READ GetMaximumLength WRITE SetMaximumLength)

public:
    /// An empty editor without a length limit.
    explicit TextEdit(QWidget* parent = nullptr);
    ~TextEdit() override;

    /// The text as it stands, committed or not.
    QString GetText() const;
    /// Sets the text (cut to the maximum length) as the committed text; no signal.
    void SetText(const QString& text);
    /// The text last committed or set.
    QString GetCommittedText() const;
    /// Announces the text when it differs from the committed one.
    void Commit();

    /// The text shown while the editor is empty.
    QString GetPrompt() const;
    /// Sets the text shown while the editor is empty; it also names the editor for
    /// assistive technology.
    void SetPrompt(const QString& prompt);

    /// 0 (the default) for no limit; a lower limit cuts the present text.
    int GetMaximumLength() const;
    /// Sets the most characters the text may hold (negative counts as 0, no limit).
    void SetMaximumLength(int length);
    /// The length as the limit counts it (characters, line breaks included).
    int GetLength() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Editing finished with a text different from the committed one.
    void TextCommitted(const QString& text);

public Q_SLOTS:
    /// Applies the theme's colours again.
    void OnThemeChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(TextEdit)
    friend class TextEditImp;
    std::unique_ptr<TextEditImp> const mpImp;
};

} // namespace Kavrel::UICore
