#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QColor>
#include <QFont>
#include <QLineEdit>

#include <memory>

namespace Kavrel::UICore {

class LineEditImp;

/// The library's single-line editor: a QLineEdit with a prompting text (a hint
/// shown while empty and unfocused), eliding of long text, home-always cursor
/// placement and select-all on the first click. TextBox embeds one; it is also
/// usable on its own.
class KVUICORE_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty line edit in the theme's colours. `embedded` marks one built into a text
    /// box; it changes nothing in the editor itself.
    explicit LineEdit(QWidget* parent = nullptr, bool embedded = false);
    ~LineEdit() override;

    /// The text as set (not elided); empty while the prompting text is shown.
    QString GetText() const;

    /// Sets the prompting text, shown in the prompting font and colour while the editor
    /// is empty.
    void SetPrompting(const QString& prompting);
    /// The prompting text.
    QString GetPrompting() const;
    /// Shows the prompting text, or the text.
    void SetIsPrompting(bool prompting);
    /// Whether the prompting text is shown.
    bool IsPrompting() const;
    /// Removes the prompting text (and clears it from the display when shown).
    void UnsetPrompting();

    /// Sets the prompting text's font.
    void SetPromptingFont(const QFont& font);
    /// The prompting text's font.
    QFont GetPromptingFont() const;
    /// A custom prompting colour; an invalid colour returns to the themed one.
    void SetPromptingColor(const QColor& color);
    /// The prompting text's colour: the custom one, else the themed one.
    QColor GetPromptingColor() const;
    /// Sets the text's font.
    void SetTextFont(const QFont& font);
    /// The text's font.
    QFont GetTextFont() const;
    /// A colour set here replaces the themed default and survives theme
    /// switches; an invalid colour returns to the themed default. While the
    /// editor is disabled it shows the theme's disabled colour either way.
    void SetTextColor(const QColor& color);
    /// The text colour: the custom one, else the themed default.
    QColor GetTextColor() const;
    /// The prompting font while prompting, else the text font.
    QFont GetCurrentFont() const;
    /// Whether the text shows in the themed default colour (no custom colour set).
    bool IsUseDefaultTextColor() const;

    /// Where a text that does not fit is cut with an ellipsis while the editor
    /// has no focus; Qt::ElideNone (the default) shows it whole.
    void SetElideMode(Qt::TextElideMode mode);
    /// Where a text that does not fit is cut.
    Qt::TextElideMode GetElideMode() const;
    /// When true, the cursor goes to the start of the text when it is set and when the
    /// editor takes focus without a click.
    void SetHomeAlways(bool homeAlways);
    /// Whether the first click into the editor selects the whole text; true by default.
    void AllowFocusInSelectAll(bool allow);
    /// Suppresses the context menu, or lets it show.
    void SetPreventContextMenu(bool prevent);

    /// Switches the prompting text on or off after a focus change.
    void UpdateText();

    /// 0 outside, 1 hovered, 2 pressed.
    int HoverState() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The mouse entered the editor.
    void Enter();

public Q_SLOTS:
    /// Sets the accessible name.
    void UpdateAccessibleName(const QString& name);
    /// Sets the full text; without focus an empty text shows the prompting
    /// text.
    void SetText(const QString& text);
    /// Applies the theme's colours again.
    void OnThemeChanged();
    /// Takes typed text as the full text and ends prompting.
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
