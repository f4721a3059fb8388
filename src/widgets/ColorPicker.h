#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QColor>
#include <QList>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class ColorPickerImp;
class ColorWheel;

/// A colour editor: the colour wheel beside fields for red, green and blue
/// (0 to 255), hue (degrees), saturation and value (percent) and the hex text
/// ("#rrggbb", or "#rrggbbaa" while alpha is enabled), an optional alpha field
/// and slider over a checkerboard, the old and the new colour side by side (a
/// click on the old one brings it back), a row of the colours recently chosen
/// in this process, and a screen eyedropper.
///
/// Every user change emits ColorChanged(); a change that is complete (a
/// released drag, a field whose editing finished, a recent colour or an
/// eyedropper click) also emits ColorCommitted(). Hex text that does not parse
/// is replaced by the current colour's text. Six hex digits keep the alpha.
///
/// The eyedropper needs a platform that lets an application read the screen;
/// elsewhere (offscreen, Wayland) its button is disabled and says why. While
/// picking, the colour under the pointer is shown live, a click takes it and
/// Escape restores the colour from before.
///
/// A committed colour enters the recent colours. An embedded picker's commits
/// replace the entry it made last while no other picker has added one since,
/// so that one session of dragging leaves one entry.
class KVUICORE_EXPORT ColorPicker : public QWidget
{
    Q_OBJECT
    /// The colour edited.
    Q_PROPERTY(QColor color READ GetColor WRITE SetColor NOTIFY ColorUpdated)

public:
    /// How many recent colours are kept.
    static constexpr int kMaxRecentColors = 12;

    /// A colour picker without alpha.
    explicit ColorPicker(QWidget* parent = nullptr);
    ~ColorPicker() override;

    /// The colour edited.
    QColor GetColor() const;
    /// Sets the colour without signals; the old colour shown follows it.
    void SetColor(const QColor& color);
    /// The colour shown as the one before editing.
    QColor GetOldColor() const;
    /// Sets the colour shown as the one before editing.
    void SetOldColor(const QColor& color);

    /// Whether the alpha can be edited.
    bool IsAlphaEnabled() const;
    /// Shows or hides the alpha controls.
    void SetAlphaEnabled(bool enabled);

    /// The colour wheel of the picker.
    ColorWheel* GetWheel() const;

    /// Whether the platform lets the eyedropper read the screen.
    static bool IsEyedropperSupported();
    /// Whether the eyedropper is running.
    bool IsPicking() const;
    /// Starts picking a colour from the screen; nothing happens while picking, when the
    /// platform can't read the screen or when the picker is disabled.
    void StartEyedropper();
    /// Stops picking and returns to the colour from before; nothing happens when not
    /// picking.
    void CancelEyedropper();

    /// The colours recently chosen in this process, newest first.
    static QList<QColor> GetRecentColors();
    /// Puts a colour in front of the recent colours; an invalid colour is ignored.
    static void AddRecentColor(const QColor& color);
    /// Forgets the recent colours.
    static void ClearRecentColors();

Q_SIGNALS:
    /// The colour changed by an edit in the picker.
    void ColorChanged(const QColor& color);
    /// An edit was finished: the colour is the one chosen.
    void ColorCommitted(const QColor& color);
    /// Emitted whenever the colour changes, in code or by the user; ColorChanged reports the user's edits only.
    void ColorUpdated(const QColor& color);

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(ColorPicker)
    friend class ColorPickerImp;
    friend class ColorPickerPopup;
    // The eyedropper's view of the pointer: a move previews, a click takes.
    void PickAt(const QPoint& globalPosition, bool take);
    // A pop-up records its colour once, when it closes accepted.
    void SetRecordsOnCommit(bool records);
    std::unique_ptr<ColorPickerImp> const mpImp;
};

} // namespace Kavrel::UICore
