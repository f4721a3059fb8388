#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QColor>
#include <QWidget>

#include <memory>

namespace Kavrel::UICore {

class ColorPicker;
class ColorSwatchImp;

/// A button that shows a colour and edits it in a pop-up colour picker. A
/// translucent colour shows opaque in its leading half and over a checkerboard
/// in the other; an invalid colour shows the hue wheel icon ("no colour").
///
/// A click, Space, Return or Alt+Down opens the picker on the colour. While it
/// is open every change is shown and announced with ColorChanged(); Escape
/// closes it and gives the old colour back (announced with ColorChanged() too);
/// a click outside or Return keeps the new colour and emits ColorCommitted()
/// when it differs from the old one. SetColor() changes the colour silently.
class KVUICORE_EXPORT ColorSwatch : public QWidget
{
    Q_OBJECT
    /// The colour shown.
    Q_PROPERTY(QColor color READ GetColor WRITE SetColor NOTIFY ColorUpdated)
    /// Whether the picker offers alpha.
    Q_PROPERTY(bool alphaEnabled READ IsAlphaEnabled WRITE SetAlphaEnabled)

public:
    /// A swatch without a colour.
    explicit ColorSwatch(QWidget* parent = nullptr);
    ~ColorSwatch() override;

    /// The colour; invalid when none is set.
    QColor GetColor() const;
    /// Shows a colour without signals; made opaque unless alpha is enabled. An invalid
    /// colour shows none.
    void SetColor(const QColor& color);

    /// Whether the picker offers alpha; without it colours are made opaque.
    bool IsAlphaEnabled() const;
    /// Lets the picker offer alpha; turning it off makes the colour opaque.
    void SetAlphaEnabled(bool enabled);

    /// Opens the pop-up picker on the colour (white when none); nothing happens while
    /// disabled or when it is open.
    void OpenPicker();
    /// Whether the pop-up picker is open.
    bool IsPickerOpen() const;
    /// The open pop-up's picker, or null.
    ColorPicker* GetPicker() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The colour changed by an edit in the picker.
    void ColorChanged(const QColor& color);
    /// The picker closed accepted with a colour other than the one it opened with.
    void ColorCommitted(const QColor& color);
    /// Emitted whenever the colour changes, in code or by the user; ColorChanged reports the user's edits only.
    void ColorUpdated(const QColor& color);

public Q_SLOTS:
    /// Repaints in the new theme.
    void OnThemeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Q_DISABLE_COPY_MOVE(ColorSwatch)
    friend class ColorSwatchImp;
    std::unique_ptr<ColorSwatchImp> const mpImp;
};

} // namespace Kavrel::UICore
