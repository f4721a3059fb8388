#pragma once

#include <KvUICore/widgets/TextBox.h>

#include <QLabel>
#include <QObject>
#include <QPointer>

class QBoxLayout;

namespace Kavrel::UICore {

// Hands the editor's focus and mouse-button events to the box's own handlers
// before the editor handles them.
class TextBoxEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit TextBoxEventFilter(TextBox* box);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TextBox* const mpBox;
};

// Turns left-button presses and releases on the icon into the box's image
// hooks, ImageClicked() and the image action.
class ImageEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit ImageEventFilter(TextBox* box);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TextBox* const mpBox;
};

// The icon beside the editor; a class of its own so that it can tell screen
// readers what it is and does.
class TextBoxIcon : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};

class TextBoxImp
{
public:
    explicit TextBoxImp(TextBox* owner);

    QRect FrameRect() const;
    void PushEditorLook(const QColor& textColor);
    void UpdateEditorTooltip(const QString& text);
    void ShowIcon();

    TextBox* const mpOwner;
    LineEdit* mpTextBoxControl = nullptr;
    QLabel* mpImageControl = nullptr;
    TextBox::IconPosition mIconPosition = TextBox::NoIcon;
    QIcon mIcon;
    QSize mIconSize = QSize(32, 32);
    QPointer<QAction> mpImageAction;
    QList<QString> mErrorMessages;
    int miMaxLength = 0;
    QString msLastValidText;
    TextBoxEventFilter* mpTextBoxFilter = nullptr;
    ImageEventFilter* mpImageFilter = nullptr;
    bool mbImagePressed = false;
    bool mbNeedValidate = false;
    bool mbTooltipEnabled = true;

    QBoxLayout* mpLayout = nullptr;
};

} // namespace Kavrel::UICore
