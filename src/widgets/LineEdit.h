#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QColor>
#include <QFont>
#include <QLineEdit>

#include <memory>

namespace Kavrel::UICore {

class LineEditImp;

// The library's single-line editor: a QLineEdit with a prompting text (a hint
// shown while empty and unfocused), eliding of long text, home-always cursor
// placement and select-all on the first click. TextBox embeds one; it is also
// usable on its own.
class KVUICORE_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEdit(QWidget* parent = nullptr, bool embedded = false);
    ~LineEdit() override;

    // The text as set (not elided); empty while the prompting text is shown.
    QString GetText() const;

    void SetPrompting(const QString& prompting);
    QString GetPrompting() const;
    void SetIsPrompting(bool prompting);
    bool IsPrompting() const;
    // Removes the prompting text (and clears it from the display when shown).
    void UnsetPrompting();

    void SetPromptingFont(const QFont& font);
    QFont GetPromptingFont() const;
    // A custom prompting colour; an invalid colour returns to the themed one.
    void SetPromptingColor(const QColor& color);
    QColor GetPromptingColor() const;
    void SetTextFont(const QFont& font);
    QFont GetTextFont() const;
    // A colour set here replaces the themed default and survives theme
    // switches; an invalid colour returns to the themed default. While the
    // editor is disabled it shows the theme's disabled colour either way.
    void SetTextColor(const QColor& color);
    QColor GetTextColor() const;
    // The prompting font while prompting, else the text font.
    QFont GetCurrentFont() const;
    bool IsUseDefaultTextColor() const;

    void SetElideMode(Qt::TextElideMode mode);
    Qt::TextElideMode GetElideMode() const;
    void SetHomeAlways(bool homeAlways);
    void AllowFocusInSelectAll(bool allow);
    void SetPreventContextMenu(bool prevent);

    // Switches the prompting text on or off after a focus change.
    void UpdateText();

    // 0 outside, 1 hovered, 2 pressed.
    int HoverState() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void Enter();

public Q_SLOTS:
    void UpdateAccessibleName(const QString& name);
    void SetText(const QString& text);
    void OnThemeChanged();
    void OnTextEdited(const QString& text);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Paints the line edit, and around it the focus ring when it stands alone and has the focus.
    void paintEvent(QPaintEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(LineEdit)
    friend class LineEditImp;
    std::unique_ptr<LineEditImp> const mpImp;
};

} // namespace Kavrel::UICore
