#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QProxyStyle>

class QCheckBox;
class QDoubleSpinBox;
class QMenu;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QSlider;

namespace Kavrel::UICore {

/// The library's look of check boxes, radio tiles, push-button icons, tool
/// buttons, spin-box arrows, sliders, progress bars and menus, painted from the
/// theme. Everything else goes to the base style (the application's style).
///
/// Controls install the shared instance on themselves:
///     widget->setStyle(CustomStyle::GetInstance());
/// It is never meant to be set for the whole application. It holds no state:
/// every paint asks the theme manager again, so theme switches need no notice.
///
/// Menu items and their sizes are painted by this style only for the drop-down
/// menu of the library: a widget whose class is "Kavrel::UICore::DropDownMenu",
/// or any menu carrying the dynamic property named by DropDownMenuProperty set
/// to true (a host's own menu that wants the same look).
/// That menu paints its items itself after the standard menu painting; while it
/// runs the standard painting it sets the dynamic property named by
/// StandardMenuPaintProperty to true, and CE_MenuItem then paints nothing. An
/// item is a group label when it is a separator with a text, or when its action
/// carries the dynamic property named by GroupLabelProperty set to true.
///
/// A check box label that does not fit is cut at the right and explains itself
/// on hover with its full text; one that fits shows no tool tip. A check box
/// whose property named by AlwaysShowTooltipProperty is true is drawn whole and
/// keeps its own tool tip. The style never writes a tool tip: a check box that
/// declares that property keeps its tool tip itself (CheckBoxLabelToolTip tells
/// it which); for any other check box the style answers the hover event.
class KVUICORE_EXPORT CustomStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// The shared style that controls install on themselves; created on first use.
    static CustomStyle* GetInstance();

    /// The class name of the library's drop-down menu, whose items this style paints.
    static constexpr const char* DropDownMenuClassName = "Kavrel::UICore::DropDownMenu";
    /// A menu with this dynamic property set to true gets the drop-down menu's look.
    static constexpr const char* DropDownMenuProperty = "kvDropDownMenu";
    /// Set to true by the drop-down menu while the standard menu painting runs;
    /// CE_MenuItem then paints nothing.
    static constexpr const char* StandardMenuPaintProperty = "kvStandardMenuPaint";
    /// An action with this dynamic property set to true is painted as a group label.
    static constexpr const char* GroupLabelProperty = "kvGroupLabel";
    /// A check box with this property true is drawn whole and keeps its own tool tip.
    static constexpr const char* AlwaysShowTooltipProperty = "alwaysShowTooltip";

    /// The tool tip the label rule gives a check box painted by this style: ""
    /// when its label fits, the full text when it is cut, and the box's own
    /// tool tip when it always shows it.
    static QString CheckBoxLabelToolTip(const QCheckBox* checkBox);

    /// The rectangle in which a pen of penWidth strokes inside rect: left and top
    /// move in by penWidth / 2, right and bottom by (penWidth + 1) / 2.
    static QRect AdjustedRectToPaint(const QRect& rect, int penWidth);

    ~CustomStyle() override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                         const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contentsSize,
                           const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CustomStyle();
    Q_DISABLE_COPY_MOVE(CustomStyle)

    void DrawCheckBoxIndicator(const QStyleOption* option, QPainter* painter, const QCheckBox* widget) const;
    void DrawCheckBoxLabel(const QStyleOption* option, QPainter* painter, const QCheckBox* widget) const;
    void DrawRadioButton(const QStyleOption* option, QPainter* painter, const QRadioButton* widget) const;
    void DrawPushButton(const QStyleOption* option, QPainter* painter, const QPushButton* widget) const;
    void DrawToolButton(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const;
    void DrawDoubleSpinBoxComplexControl(const QStyleOptionComplex* option, QPainter* painter,
                                         const QDoubleSpinBox* widget) const;
    void DrawIndicatorSpinUp(const QStyleOption* option, QPainter* painter, const QDoubleSpinBox* widget) const;
    void DrawIndicatorSpinDown(const QStyleOption* option, QPainter* painter, const QDoubleSpinBox* widget) const;
    void DrawSliderComplexControl(const QStyleOptionComplex* option, QPainter* painter, const QSlider* widget) const;
    void DrawProgressBarGroove(const QStyleOption* option, QPainter* painter, const QProgressBar* widget) const;
    void DrawProgressBarContents(const QStyleOption* option, QPainter* painter, const QProgressBar* widget) const;
    void DrawMenuFrame(const QStyleOption* option, QPainter* painter, const QMenu* widget) const;
    void DrawMenuPanel(const QStyleOption* option, QPainter* painter, const QMenu* widget) const;
    void DrawMenuItem(const QStyleOption* option, QPainter* painter, const QMenu* widget) const;

    QRect SubControlRectDoubleSpinBox(const QStyleOptionComplex* option, SubControl subControl,
                                      const QWidget* widget) const;
    QRect SubControlRectSlider(const QStyleOptionComplex* option, SubControl subControl, const QWidget* widget) const;
};

} // namespace Kavrel::UICore
