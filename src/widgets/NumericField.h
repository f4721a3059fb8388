#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QLineEdit>

#include <memory>

namespace Kavrel::UICore {

class NumericFieldImp;

/// The themed single-line editor of the numeric controls (the spin box's line
/// edit, the slider's text field). It paints its own frame and background from
/// the theme, selects all of its text on the first click after gaining focus,
/// and keeps a sticky modified flag: set whenever the user has edited the text
/// (checked after every key press and on focus-out), cleared on focus-in and by
/// ClearModified(), so that an owner can tell a typed value from a value it
/// wrote itself.
class KVUICORE_EXPORT NumericField : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty field, not modified.
    explicit NumericField(QWidget* parent = nullptr);
    ~NumericField() override;

    /// The sticky modified flag: set by an edit, kept until ClearModified.
    bool IsModified() const;
    /// Clears the sticky modified flag.
    void ClearModified();

    /// 0 pointer outside, 1 pointer over the field, 2 pressed.
    int HoverState() const;

Q_SIGNALS:
    /// The field lost focus.
    void FocusOut();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    /// Takes the line edit's own modified state into the sticky flag.
    void UpdateModified();

private:
    Q_DISABLE_COPY_MOVE(NumericField)
    std::unique_ptr<NumericFieldImp> const mpImp;
};

} // namespace Kavrel::UICore
