#pragma once

#include <QProxyStyle>

namespace Kavrel::UICore {

// The style shared by every TextBox. The box paints its own panel, frame and
// focus halo from the theme, so the style keeps the base style from painting a
// second frame or a focus rectangle over it.
class TextBoxStyle : public QProxyStyle
{
    Q_OBJECT

public:
    static TextBoxStyle* GetInstance();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;

protected:
    TextBoxStyle();
};

// The style of a LineEdit embedded in a TextBox: what the box's style leaves
// out, plus a thin cursor that does not blink over a selection.
class LineEditStyle : public TextBoxStyle
{
    Q_OBJECT

public:
    static LineEditStyle* GetInstance();

    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;

private:
    LineEditStyle();
};

} // namespace Kavrel::UICore
