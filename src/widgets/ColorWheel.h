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
    Q_PROPERTY(QColor color READ GetColor WRITE SetColor)

public:
    explicit ColorWheel(QWidget* parent = nullptr);
    ~ColorWheel() override;

    QColor GetColor() const;
    void SetColor(const QColor& color);

    /// Hue in degrees (0 up to 360), saturation and value from 0 to 1.
    double GetHue() const;
    double GetSaturation() const;
    double GetValue() const;
    void SetHsv(double hue, double saturation, double value);

    /// Where the ring's marker stands for a hue, and the square's marker for a
    /// saturation and value, in widget coordinates.
    QPointF PointForHue(double hue) const;
    QPointF PointForSaturationValue(double saturation, double value) const;
    QRectF SquareRect() const;

    /// How often the ring and the square images were rendered.
    int GetRingRenderCount() const;
    int GetSquareRenderCount() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void ColorChanged(const QColor& color);
    void ColorCommitted(const QColor& color);

public Q_SLOTS:
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
