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
    Q_PROPERTY(QColor color READ GetColor WRITE SetColor)
    Q_PROPERTY(bool alphaEnabled READ IsAlphaEnabled WRITE SetAlphaEnabled)

public:
    explicit ColorSwatch(QWidget* parent = nullptr);
    ~ColorSwatch() override;

    QColor GetColor() const;
    void SetColor(const QColor& color);

    /// Whether the picker offers alpha; without it colours are made opaque.
    bool IsAlphaEnabled() const;
    void SetAlphaEnabled(bool enabled);

    void OpenPicker();
    bool IsPickerOpen() const;
    /// The open pop-up's picker, or null.
    ColorPicker* GetPicker() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void ColorChanged(const QColor& color);
    void ColorCommitted(const QColor& color);

public Q_SLOTS:
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
