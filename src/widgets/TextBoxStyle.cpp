#include <KvUICore/widgets/TextBoxStyle_p.h>

#include <QApplication>

namespace Kavrel::UICore {

namespace {

// The styles live as long as the application: widgets keep pointers to them
// until they are destroyed, so they are parented to the application object.
template <typename Style> Style* MakeAppOwnedStyle(Style* style)
{
    if (QCoreApplication::instance())
        style->setParent(QCoreApplication::instance());
    return style;
}

} // namespace

TextBoxStyle::TextBoxStyle()
    : QProxyStyle()
{}

TextBoxStyle* TextBoxStyle::GetInstance()
{
    static TextBoxStyle* const instance = MakeAppOwnedStyle(new TextBoxStyle());
    return instance;
}

void TextBoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    switch (element) {
    case PE_FrameFocusRect:
    case PE_PanelLineEdit:
    case PE_FrameLineEdit:
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

int TextBoxStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    if (metric == PM_DefaultFrameWidth)
        return 0;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

LineEditStyle::LineEditStyle()
    : TextBoxStyle()
{}

LineEditStyle* LineEditStyle::GetInstance()
{
    static LineEditStyle* const instance = MakeAppOwnedStyle(new LineEditStyle());
    return instance;
}

int LineEditStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_TextCursorWidth:
        return 1;
    default:
        return TextBoxStyle::pixelMetric(metric, option, widget);
    }
}

int LineEditStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returnData) const
{
    if (hint == SH_BlinkCursorWhenTextSelected)
        return 0;
    return TextBoxStyle::styleHint(hint, option, widget, returnData);
}

} // namespace Kavrel::UICore
