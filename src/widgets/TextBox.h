#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

class QAction;
class QPainter;

namespace Kavrel::UICore {

class LineEdit;
class TextBoxImp;
class TextBoxEventFilter;
class ImageEventFilter;

/// The library's single-line text field: a themed frame around an embedded
/// LineEdit with an optional icon. It paints its own border, background and
/// focus halo, can validate typed text against a file-name-like rule with a
/// maximum length, and re-publishes the editor's activity as its own signals.
class KVUICORE_EXPORT TextBox : public QWidget
{
    Q_OBJECT
    /// The text of the field.
    Q_PROPERTY(QString text READ GetText WRITE SetText NOTIFY TextChanged)
    /// The icon shown at the icon position.
    Q_PROPERTY(QIcon icon READ GetIcon WRITE SetIcon)
    /// Where the icon sits.
    Q_PROPERTY(IconPosition iconPosition READ GetIconPosition WRITE SetIconPosition)
    /// Whether the text can only be read.
    Q_PROPERTY(bool readOnly READ IsReadOnly WRITE SetReadOnly)
    /// The action the icon triggers.
    Q_PROPERTY(QAction* imageAction READ GetImageAction WRITE SetImageAction)

public:
    /// Outer icons sit outside the painted frame, inner icons inside it.
    enum IconPosition
    {
        NoIcon = 0,
        OuterLeft = 1,
        OuterRight = 2,
        InnerLeft = 3,
        InnerRight = 4
    };
    Q_ENUM(IconPosition)

    /// Margins in pixels at design size.
    struct Margins
    {
        /// Left margin.
        int left;
        /// Top margin.
        int top;
        /// Right margin.
        int right;
        /// Bottom margin.
        int bottom;
    };

    /// An empty text box without an icon.
    explicit TextBox(QWidget* parent = nullptr);
    ~TextBox() override;

    /// The editor's text; empty while the prompting text is shown.
    QString GetText() const;
    /// Sets the text; with validation on only a valid text is taken (trimmed).
    void SetText(const QString& text);

    /// Sets the prompting text, shown in italics while the box is empty.
    void SetPrompt(const QString& prompt);
    /// Shows the prompting text, or the text.
    void SetIsPrompting(bool prompting);
    /// Removes the prompting text.
    void UnsetPrompting();

    /// Makes the text read-only, or editable.
    void SetReadOnly(bool readOnly);
    /// Whether the text is read-only.
    bool IsReadOnly() const;
    /// Where a text that does not fit is cut with an ellipsis while the box has
    /// no focus.
    void SetElideMode(Qt::TextElideMode mode);
    /// Where a text that does not fit is cut.
    Qt::TextElideMode GetElideMode() const;
    /// When true, the cursor goes to the start of the text when it is set and when the
    /// box takes focus without a click.
    void SetHomeAlways(bool homeAlways);
    /// Whether the first click into the box selects the whole text; true by default.
    void AllowFocusInSelectAll(bool allow);

    /// A null icon removes the icon; the first icon shows at OuterLeft.
    void SetIcon(const QIcon& icon);
    /// The icon; null when there is none.
    QIcon GetIcon() const;
    /// Moves the icon and lays the box out again.
    void SetIconPosition(IconPosition position);
    /// Where the icon sits.
    IconPosition GetIconPosition() const;
    /// Clicking the icon triggers the action; the icon follows the action's.
    void SetImageAction(QAction* action);
    /// The action the icon triggers; null when none.
    QAction* GetImageAction() const;
    /// Sets the icon's tool tip; ignored while tool tips are disabled.
    void SetImageLabelTooltip(const QString& tooltip);
    /// Enables tool tips, or disables them and clears the icon's and the editor's.
    void SetIsTooltipEnabled(bool enabled);
    /// Whether tool tips are enabled.
    bool GetIsTooltipEnabled() const;

    /// Turns validation of typed text on or off (see TextValidationInitialize).
    void SetNeedValidate(bool needValidate);
    /// Whether typed text is validated.
    bool NeedValidate() const;
    /// errorMessages[0] is shown for a text longer than maxLength, [1] for a
    /// text that holds a forbidden character.
    void TextValidationInitialize(const QList<QString>& errorMessages, int maxLength);
    /// Cuts the text to 255 characters and tells whether it holds any allowed character.
    virtual bool Validate();
    /// Checks in against the forbidden characters and the maximum length; out is
    /// in, trimmed when it starts or ends with a blank.
    bool ValidateText(const QString& in, QString& out, QString& error) const;

    /// The line edit inside the box.
    LineEdit* GetLineEdit() const;
    /// The label that shows the icon.
    QWidget* GetImageLabel() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The text box's outline in color over a transparent fill, or its panel
    /// filled with brush under a transparent outline, for controls that look
    /// like a text box. lineWidth is the outline's width in device pixels.
    static void DrawTextBoxFrame(QPainter* painter, const QRect& rect, const QColor& color, int lineWidth);
    /// Fills a text box's panel with brush under a transparent outline; see
    /// DrawTextBoxFrame.
    static void DrawTextBoxPanel(QPainter* painter, const QRect& rect, const QBrush& brush, int lineWidth);

    /// Called when the icon is pressed; the default does nothing.
    virtual void ImagePressEvent(QMouseEvent* event);
    /// Called when the icon is released; the default does nothing.
    virtual void ImageReleaseEvent(QMouseEvent* event);
    /// Called when the icon was clicked, before ImageClicked is emitted and the action
    /// triggered; the default does nothing.
    virtual void ImageClickedEvent(QMouseEvent* event);
    /// The outline width without focus; 1.
    virtual int BorderNormalWidth() const;
    /// The outline width with focus; 1.
    virtual int BorderFocusWidth() const;
    /// The margins around the text; 4 on each side.
    virtual Margins TextMargins() const;
    /// The margins around the icon; 3 on each side.
    virtual Margins ImageMargins() const;
    /// The size the box prefers at design size: 120 wide, the standard control height.
    virtual QSize PreferredSize() const;
    /// The outline colour without focus or hover, from the theme.
    virtual QColor BorderNormalColor() const;
    /// The outline colour under the mouse, from the theme.
    virtual QColor BorderHoverColor() const;
    /// The outline colour with focus, from the theme.
    virtual QColor BorderFocusColor() const;
    /// The colour of the focus halo, from the theme.
    virtual QColor BorderFocusColorHalo() const;
    /// The panel brush without focus or hover, from the theme.
    virtual QBrush BackgroundNormalBrush() const;
    /// The panel brush under the mouse, from the theme.
    virtual QBrush BackgroundHoverBrush() const;
    /// The panel brush with focus, from the theme.
    virtual QBrush BackgroundFocusedBrush() const;
    /// The text colour, from the theme.
    virtual QColor TextColor() const;
    /// The text colour with focus, from the theme.
    virtual QColor TextFocusColor() const;
    /// The text font: the application font for item views.
    virtual QFont TextFont() const;
    /// The prompting text's font: the default font in italics.
    virtual QFont PromptingFont() const;
    /// The prompting text's colour, from the theme.
    virtual QColor PromptingColor() const;
    /// The panel brush while disabled, from the theme.
    virtual QBrush BackgroundDisableBrush() const;
    /// The outline colour while disabled, from the theme.
    virtual QColor BorderDisableColor() const;

Q_SIGNALS:
    /// The mouse entered the box.
    void Enter();
    /// The text changed, by an edit or in code.
    void TextChanged(const QString& text);
    /// The user edited the text.
    void TextEdited(const QString& text);
    /// The box took focus by mouse or Tab, or was clicked while it had focus.
    void FocusIn();
    ///@{
    /// Declared for users of the class; the box itself never emits them.
    void TabFocusIn();
    void ClickFocusIn();
    ///@}
    /// The box lost focus.
    void FocusOut();
    /// The icon was clicked.
    void ImageClicked();
    /// The cursor moved from oldPos to newPos.
    void CursorPositionChanged(int oldPos, int newPos);
    /// Editing finished (Return or focus lost); with validation on, an invalid text has
    /// been replaced by the last valid one.
    void EditingFinished();
    /// Return was pressed.
    void ReturnPressed();
    /// Escape was pressed.
    void EscapePressed();
    /// The selection changed.
    void SelectionChanged();

public Q_SLOTS:
    /// Sets the text, as SetText.
    void UpdateText(const QString& text);
    /// Gives the box focus as Tab would.
    void setTabFocus();
    /// Sets the accessible name.
    void UpdateAccessibleName(const QString& name);

protected Q_SLOTS:
    /// Emits TextChanged; with validation on, shows the validation error as a tool tip.
    void OnTextChanged(const QString& text);
    /// Validates the text when validation is on, then emits EditingFinished.
    void OnEditingFinished();
    /// Takes the action's new icon.
    void ImageActionChanged();
    /// Emits TextEdited.
    void OnTextEdited(const QString& text);
    /// Emits CursorPositionChanged.
    void OnCursorPositionChanged(int oldPos, int newPos);
    /// Emits ReturnPressed.
    void OnReturnPressed();
    /// Emits SelectionChanged.
    void OnSelectionChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;

    /// Rebuilds the layout for the icon position and the box height.
    void UpdateLayout();

private:
    Q_DISABLE_COPY_MOVE(TextBox)
    friend class TextBoxImp;
    friend class TextBoxEventFilter;
    friend class ImageEventFilter;
    std::unique_ptr<TextBoxImp> const mpImp;
};

} // namespace Kavrel::UICore
