#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QColor>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class ColorWheelImp;

/// A hue ring around a saturation/value square. The ring picks the hue; in the
/// square saturation grows to the right (to the left in a right-to-left layout)
/// and value grows upwards.
///
/// Mouse: a press in the ring or the square moves its marker there and a drag
/// follows the pointer; ColorChanged() is emitted for every new colour while
/// the button is held and ColorCommitted() once on release. Keyboard: the
/// arrow keys move the square's marker by 1 % (10 % with Shift), Page Up and
/// Page Down turn the hue by 5° (1° with Shift); a key's changes are committed
/// when it is released. SetColor() and SetHsv() change the colour silently.
///
/// The colour is held as hue, saturation and value in full precision, so that
/// every 8-bit colour set comes back unchanged from GetColor(), a grey keeps
/// the hue the user had, and the alpha of the colour set is kept. The ring and
/// the square are rendered into images kept per size and screen scale; the
/// square is rendered again only when the hue changes.
class KVUICORE_EXPORT ColorWheel : public QWidget
{
    Q_OBJECT
    /// The colour shown.
    Q_PROPERTY(QColor color READ GetColor WRITE SetColor NOTIFY ColorUpdated)

public:
    /// A colour wheel, opaque.
    explicit ColorWheel(QWidget* parent = nullptr);
    ~ColorWheel() override;

    /// The colour, with the alpha set last.
    QColor GetColor() const;
    /// Shows a colour without signals; an invalid colour is ignored.
    void SetColor(const QColor& color);

    /// Hue in degrees (0 up to 360), saturation and value from 0 to 1.
    double GetHue() const;
    /// The saturation, 0 to 1.
    double GetSaturation() const;
    /// The value, 0 to 1.
    double GetValue() const;
    /// Shows a colour by hue, saturation and value, without signals.
    void SetHsv(double hue, double saturation, double value);

    /// Where the ring's marker stands for a hue, and the square's marker for a
    /// saturation and value, in widget coordinates.
    QPointF PointForHue(double hue) const;
    /// The square's marker position for a saturation and value (clamped to 0..1).
    QPointF PointForSaturationValue(double saturation, double value) const;
    /// The square of saturation and value, in widget coordinates.
    QRectF SquareRect() const;

    /// How often the ring and the square images were rendered.
    int GetRingRenderCount() const;
    /// How often the square image was rendered.
    int GetSquareRenderCount() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The colour changed by an edit in the wheel.
    void ColorChanged(const QColor& color);
    /// An edit that changed the colour was finished.
    void ColorCommitted(const QColor& color);
    /// Emitted whenever the colour changes, in code or by the user; ColorChanged reports the user's edits only.
    void ColorUpdated(const QColor& color);

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(ColorWheel)
    friend class ColorWheelImp;
    std::unique_ptr<ColorWheelImp> const mpImp;
};

} // namespace Kavrel::UICore
