#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QAbstractButton>

namespace Kavrel::UICore {

/// The grip in a PaletteWindow's bottom corner (the right one, the left one
/// right to left). Dragging it resizes the palette from its top edge and
/// leading side; with keyboard focus the arrow keys resize in steps.
class KVUICORE_EXPORT PaletteResizeButton : public QAbstractButton
{
    Q_OBJECT

public:
    /// How far one arrow key press resizes, in pixels.
    static constexpr int KeyboardStep = 10;

    /// A resize grip for the palette that is its parent.
    explicit PaletteResizeButton(QWidget* parent = nullptr);
    ~PaletteResizeButton() override;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The size the palette should take, in logical pixels.
    void ResizeRequested(const QSize& size);
    /// A resize by mouse or keyboard ended.
    void ResizeFinished();

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(PaletteResizeButton)
    QWidget* Palette() const;

    QPoint mPressGlobal;
    QSize mPressSize;
    bool mbDragging = false;
};

} // namespace Kavrel::UICore
