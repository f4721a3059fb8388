#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QPushButton>

#include <memory>

namespace Kavrel::UICore {

class PushButtonImp;

/// A push button painted from the theme per mouse state. Its icon comes from
/// the theme when its object name is a theme key holding an icon path; a
/// mini-icon button shows the theme's toggle images instead. A checkable button
/// can be locked so that, once checked, the user can't uncheck it.
class KVUICORE_EXPORT PushButton : public QPushButton
{
    Q_OBJECT

public:
    /// Where the mouse stands with the button, for painting.
    enum MouseState
    {
        Idle = 0,
        Hovered = 1,
        Pressed = 2,
        Released = 3,
    };

    /// A push button painted from the theme.
    explicit PushButton(QWidget* parent = nullptr);
    ~PushButton() override;

    /// Makes the button checkable; with lockToggleOn a checked button can't be unchecked
    /// by the user.
    void SetCheckable(bool checkable, bool lockToggleOn = false);
    /// Whether a checked button stays checked when clicked.
    bool IsToggleOnStateLocked() const;
    /// Shows the theme's toggle images instead of the icon, or not.
    void SetIsMiniIcon(bool miniIcon);
    /// Whether the button shows the theme's toggle images.
    bool IsMiniIcon() const;
    /// The MouseState the button is painted in.
    int GetMouseState() const;

    ///@{
    /// Both also lay out the icon and text rectangles.
    void setGeometry(const QRect& rect);
    void updateGeometry();
    ///@}

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void nextCheckState() override;

private Q_SLOTS:
    void ThemeChanged();

private:
    Q_DISABLE_COPY_MOVE(PushButton)
    void UpdateIcon();
    void UpdateToolTip();
    QSize GetPreferredSize() const;
    void SetMouseState(int state);

    friend class PushButtonImp;
    std::unique_ptr<PushButtonImp> const mpImp;
};

} // namespace Kavrel::UICore
