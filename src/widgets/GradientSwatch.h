#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QGradient>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class ColorPicker;
class GradientSwatchImp;

/// A gradient editor: a bar showing the gradient over a checkerboard, with a
/// node under the bar for each stop. The stops stay ordered by position.
///
/// Mouse: a click on the bar adds a stop there with the colour the gradient
/// has at that point; a node is selected by a press and moved by a drag (kept
/// within 0..1 and between its neighbours, so the order never changes); a
/// double-click on a node opens the colour picker for its stop; the delete
/// icon at the end of the bar removes the selected stop. Keyboard: Left and
/// Right move the selected stop by 1 % (10 % with Shift), Up and Down select
/// the previous or next stop, Delete or Backspace removes the selected stop,
/// Insert adds a stop halfway to the next one, Space or Return opens the
/// picker. There are never fewer than two stops. A right-to-left layout
/// mirrors the bar: position 0 is at the right.
///
/// Every change by the user, and by the editing operations below, emits
/// GradientChanged(); SetStops() replaces the stops silently.
class KVUICORE_EXPORT GradientSwatch : public QWidget
{
    Q_OBJECT
    /// The gradient's colour stops.
    Q_PROPERTY(QGradientStops stops READ GetStops WRITE SetStops NOTIFY StopsUpdated)

public:
    /// The fewest stops a gradient keeps.
    static constexpr int kMinimumStops = 2;

    /// A swatch with a black to white gradient.
    explicit GradientSwatch(QWidget* parent = nullptr);
    ~GradientSwatch() override;

    /// The stops, sorted by position.
    QGradientStops GetStops() const;
    /// Stops outside 0..1 are clamped, non-finite positions and invalid colours
    /// dropped, and the rest sorted; fewer than two stops become black to white.
    void SetStops(const QGradientStops& stops);

    /// The selected stop's index; -1 when none is selected.
    int GetSelectedStop() const;
    /// Selects a stop; an index out of range selects none.
    void SetSelectedStop(int index);

    /// Adds a stop at position (clamped to 0..1) with the gradient's colour
    /// there, selects it and returns its index; -1 for a position that is not
    /// finite. The other editing operations return false when they change
    /// nothing.
    int AddStop(double position);
    /// Removes a stop; refused for an index out of range or when only the fewest stops
    /// are left.
    bool RemoveStop(int index);
    /// Moves a stop, kept between its neighbours; refused for an index out of range or a
    /// position that is not finite.
    bool MoveStop(int index, double position);
    /// Sets a stop's colour; refused for an index out of range or an invalid colour.
    bool SetStopColor(int index, const QColor& color);

    /// The colour of the gradient at a position, each channel interpolated
    /// linearly between the stops around it.
    static QColor ColorAt(const QGradientStops& stops, double position);

    /// Geometry, in widget coordinates: the bar, the tip of a stop's node, the
    /// delete icon's rectangle.
    QRect BarRect() const;
    /// The tip of a stop's node; a null point for an index out of range.
    QPoint NodePoint(int index) const;
    /// The rectangle of the delete icon, beside the bar.
    QRect DeleteButtonRect() const;
    /// The gradient position under x, 0 to 1 (mirrored right to left).
    double PositionAt(int x) const;

    /// Opens a colour picker for a stop; nothing happens while disabled, for an index out
    /// of range or when a picker is open.
    void OpenStopPicker(int index);
    /// The picker open for a stop, or null.
    ColorPicker* GetPicker() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The stops changed by an edit.
    void GradientChanged(const QGradientStops& stops);
    /// Another stop was selected; -1 when none is.
    void SelectedStopChanged(int index);
    /// Emitted whenever the stops change, in code or by the user; GradientChanged reports the user's edits only.
    void StopsUpdated(const QGradientStops& stops);

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(GradientSwatch)
    friend class GradientSwatchImp;
    std::unique_ptr<GradientSwatchImp> const mpImp;
};

} // namespace Kavrel::UICore
