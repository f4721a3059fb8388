#pragma once

#include <KvUICore/widgets/ImageSwatch.h>

namespace Kavrel::UICore {

class TextureSwatchImp;

/// An image swatch that shows its image as a texture: tiled across the swatch,
/// each tile the swatch's size times the tile scale. With the floating preview
/// enabled, resting the pointer on the swatch (or Shift+Space) shows a larger
/// tiled view beside it until the pointer leaves (or Escape).
class KVUICORE_EXPORT TextureSwatch : public ImageSwatch
{
    Q_OBJECT
    /// One tile's side as a share of the swatch's.
    Q_PROPERTY(double tileScale READ GetTileScale WRITE SetTileScale)
    /// Whether hovering shows a larger preview.
    Q_PROPERTY(bool floatingPreviewEnabled READ IsFloatingPreviewEnabled WRITE SetFloatingPreviewEnabled)

public:
    /// The smallest tile scale.
    static constexpr double kMinimumTileScale = 0.05;
    /// The largest tile scale.
    static constexpr double kMaximumTileScale = 1.0;

    /// A texture swatch without an image.
    explicit TextureSwatch(QWidget* parent = nullptr);
    ~TextureSwatch() override;

    /// One tile's side as a share of the swatch's (clamped to 0.05 ... 1).
    double GetTileScale() const;
    /// Sets the tile scale, clamped; a value that is not finite is ignored.
    void SetTileScale(double scale);

    /// Whether hovering shows a larger preview; false by default.
    bool IsFloatingPreviewEnabled() const;
    /// Turns the hover preview on, or off (hiding it).
    void SetFloatingPreviewEnabled(bool enabled);
    /// Shows the preview; nothing happens when it is off, no image is loaded or the
    /// swatch is hidden.
    void ShowFloatingPreview();
    /// Hides the preview.
    void HideFloatingPreview();
    /// The preview window while it is shown, or null.
    QWidget* GetFloatingPreview() const;

protected:
    void DrawImage(QPainter& painter, const QRect& content) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(TextureSwatch)
    friend class TextureSwatchImp;
    std::unique_ptr<TextureSwatchImp> const mpImp;
};

} // namespace Kavrel::UICore
