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
    Q_PROPERTY(QIcon icon READ GetIcon WRITE SetIcon)
    Q_PROPERTY(IconPosition iconPosition READ GetIconPosition WRITE SetIconPosition)
    Q_PROPERTY(bool readOnly READ IsReadOnly WRITE SetReadOnly)
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

    struct Margins
    {
        int left;
        int top;
        int right;
        int bottom;
    };

    explicit TextBox(QWidget* parent = nullptr);
    ~TextBox() override;

    /// The editor's text; empty while the prompting text is shown.
    QString GetText() const;
    /// Sets the text; with validation on only a valid text is taken (trimmed).
    void SetText(const QString& text);

    void SetPrompt(const QString& prompt);
    void SetIsPrompting(bool prompting);
    void UnsetPrompting();

    void SetReadOnly(bool readOnly);
    bool IsReadOnly() const;
    void SetElideMode(Qt::TextElideMode mode);
    Qt::TextElideMode GetElideMode() const;
    void SetHomeAlways(bool homeAlways);
    void AllowFocusInSelectAll(bool allow);

    /// A null icon removes the icon; the first icon shows at OuterLeft.
    void SetIcon(const QIcon& icon);
    QIcon GetIcon() const;
    void SetIconPosition(IconPosition position);
    IconPosition GetIconPosition() const;
    /// Clicking the icon triggers the action; the icon follows the action's.
    void SetImageAction(QAction* action);
    QAction* GetImageAction() const;
    void SetImageLabelTooltip(const QString& tooltip);
    void SetIsTooltipEnabled(bool enabled);
    bool GetIsTooltipEnabled() const;

    void SetNeedValidate(bool needValidate);
    bool NeedValidate() const;
    /// errorMessages[0] is shown for a text longer than maxLength, [1] for a
    /// text that holds a forbidden character.
    void TextValidationInitialize(const QList<QString>& errorMessages, int maxLength);
    /// Cuts the text to 255 characters and tells whether it holds any allowed character.
    virtual bool Validate();
    /// Checks in against the forbidden characters and the maximum length; out is
    /// in, trimmed when it starts or ends with a blank.
    bool ValidateText(const QString& in, QString& out, QString& error) const;

    LineEdit* GetLineEdit() const;
    /// The label that shows the icon.
    QWidget* GetImageLabel() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The text box's outline in color over a transparent fill, or its panel
    /// filled with brush under a transparent outline, for controls that look
    /// like a text box. lineWidth is the outline's width in device pixels.
    static void DrawTextBoxFrame(QPainter* painter, const QRect& rect, const QColor& color, int lineWidth);
    static void DrawTextBoxPanel(QPainter* painter, const QRect& rect, const QBrush& brush, int lineWidth);

    virtual void ImagePressEvent(QMouseEvent* event);
    virtual void ImageReleaseEvent(QMouseEvent* event);
    virtual void ImageClickedEvent(QMouseEvent* event);
    virtual int BorderNormalWidth() const;
    virtual int BorderFocusWidth() const;
    virtual Margins TextMargins() const;
    virtual Margins ImageMargins() const;
    virtual QSize PreferredSize() const;
    virtual QColor BorderNormalColor() const;
    virtual QColor BorderHoverColor() const;
    virtual QColor BorderFocusColor() const;
    virtual QColor BorderFocusColorHalo() const;
    virtual QBrush BackgroundNormalBrush() const;
    virtual QBrush BackgroundHoverBrush() const;
    virtual QBrush BackgroundFocusedBrush() const;
    virtual QColor TextColor() const;
    virtual QColor TextFocusColor() const;
    virtual QFont TextFont() const;
    virtual QFont PromptingFont() const;
    virtual QColor PromptingColor() const;
    virtual QBrush BackgroundDisableBrush() const;
    virtual QColor BorderDisableColor() const;

Q_SIGNALS:
    void Enter();
    void TextChanged(const QString& text);
    void TextEdited(const QString& text);
    void FocusIn();
    /// Declared for users of the class; the box itself never emits them.
    void TabFocusIn();
    void ClickFocusIn();
    void FocusOut();
    void ImageClicked();
    void CursorPositionChanged(int oldPos, int newPos);
    void EditingFinished();
    void ReturnPressed();
    void EscapePressed();
    void SelectionChanged();

public Q_SLOTS:
    void UpdateText(const QString& text);
    void setTabFocus();
    void UpdateAccessibleName(const QString& name);

protected Q_SLOTS:
    void OnTextChanged(const QString& text);
    void OnEditingFinished();
    void ImageActionChanged();
    void OnTextEdited(const QString& text);
    void OnCursorPositionChanged(int oldPos, int newPos);
    void OnReturnPressed();
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
