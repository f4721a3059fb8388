#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QColor>
#include <QFrame>
#include <QPointer>
#include <QWidget>

namespace Kavrel::UICore {

class ColorPicker;

// The colour picker's alpha slider: a checkerboard under a ramp from the
// transparent to the opaque colour, with a marker at the alpha. Drag or use
// the arrow keys (16 steps with Shift), Home and End.
class KVUICORE_EXPORT AlphaBar : public QWidget
{
    Q_OBJECT

public:
    explicit AlphaBar(QWidget* parent = nullptr);

    int GetAlpha() const;
    void SetAlpha(int alpha);
    void SetColor(const QColor& color);
    // The ramp; alpha 0 at its left end (right end when right-to-left).
    QRectF TrackRect() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void AlphaChanged(int alpha);
    void AlphaCommitted(int alpha);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    int AlphaAt(qreal x) const;
    void Change(int alpha);

    QColor mColor = Qt::black;
    int miAlpha = 255;
    bool mbDragging = false;
    bool mbPendingCommit = false;
};

// A colour shown over a checkerboard; the old colour of the picker answers a
// click.
class KVUICORE_EXPORT ColorChip : public QWidget
{
    Q_OBJECT

public:
    explicit ColorChip(QWidget* parent = nullptr);

    QColor GetColor() const;
    void SetColor(const QColor& color);

    QSize sizeHint() const override;

Q_SIGNALS:
    void Clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QColor mColor;
};

// The row of recent colours; a click on one chooses it.
class KVUICORE_EXPORT RecentColorsRow : public QWidget
{
    Q_OBJECT

public:
    explicit RecentColorsRow(QWidget* parent = nullptr);
    ~RecentColorsRow() override;

    QRect CellRect(int index) const;
    int CellAt(const QPoint& point) const;
    // Takes the process's recent colours again.
    void Refresh();

    QSize sizeHint() const override;

Q_SIGNALS:
    void ColorChosen(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    QList<QColor> mColors;
};

// A colour picker in a pop-up under a control (the colour swatch, a gradient
// stop). Escape closes it and gives the old colour back; a click outside or
// Return closes it keeping the new colour.
class KVUICORE_EXPORT ColorPickerPopup : public QFrame
{
    Q_OBJECT

public:
    explicit ColorPickerPopup(QWidget* anchor);
    ~ColorPickerPopup() override;

    ColorPicker* GetPicker() const;
    // Shows the picker on color, below (or above, where the screen ends) the
    // anchor's rectangle in global coordinates.
    void Open(const QColor& color, bool alphaEnabled, const QRect& anchorRect);
    void Accept();
    void Reject();
    bool IsOpen() const;

Q_SIGNALS:
    void ColorChanged(const QColor& color);
    void Finished(bool accepted, const QColor& color);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Finish(bool accepted);

    ColorPicker* mpPicker = nullptr;
    QColor mOldColor;
    bool mbOpen = false;
    bool mbRejected = false;
};

} // namespace Kavrel::UICore

namespace Kavrel::UICore::Internal {

// The recent colours of the process, newest first, each once. A recorder that
// adds again while it made the newest entry replaces that entry.
KVUICORE_EXPORT void RecordRecentColor(const QColor& color, const void* recorder);
KVUICORE_EXPORT QList<QColor> RecentColors();
KVUICORE_EXPORT void ClearRecentColors();

} // namespace Kavrel::UICore::Internal
