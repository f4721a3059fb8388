#include <KvUICore/theme/CustomStyle.h>

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/theme/ThemeManagerImp.h>

#include <QAction>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QHash>
#include <QHelpEvent>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace Kavrel::UICore {

using Internal::CosmeticPen;
using Internal::DimmedBrush;
using Internal::DimmedColor;
using Internal::DrawFocusRing;
using Internal::DrawFramedRect;
using Internal::StrokeGrid;
using Internal::StrokeGridOf;
using Internal::StrokeOutline;
using Internal::StrokeRect;

namespace {

// The progress bar is painted in fixed colours on purpose: it is the same dark
// trough with a blue fill in every theme.
const QColor kProgressGrooveOutline(31, 31, 31);
const QColor kProgressGrooveFill(50, 50, 50);
const QColor kProgressFillTop(118, 178, 240);
const QColor kProgressFillBottom(36, 110, 200);
const QColor kProgressFillEdge(24, 84, 160);

constexpr int kStandardMenuItemHeight = 20;
constexpr int kMenuColumnWidth = 16;
constexpr int kMenuTextIndent = 7;
constexpr int kSliderBarThickness = 6;
constexpr int kSliderTriangleBase = 8;
constexpr int kSliderTriangleHeight = 5;

ThemeManager* Themes()
{
    return ThemeManager::GetInstance();
}

QColor Color(const QString& key)
{
    return Themes()->GetColor(key);
}

QBrush Brush(const QString& key, const QRectF& rect)
{
    return Themes()->GetBrush(key, rect.toAlignedRect());
}

// Icons named by path in the theme, built once: a QIcon keeps its rendered
// pixmaps, so painting again neither reads nor parses the file. Emptied when
// the application goes, before pixmaps can no longer be released.
const QIcon& IconForPath(const QString& path)
{
    static QHash<QString, QIcon> icons;
    if (icons.isEmpty())
        qAddPostRoutine([] { icons.clear(); });
    auto it = icons.find(path);
    if (it == icons.end())
        it = icons.insert(path, QIcon(path));
    return it.value();
}

bool IsDropDownMenu(const QWidget* widget)
{
    return widget && (widget->inherits(CustomStyle::DropDownMenuClassName) ||
                      widget->property(CustomStyle::DropDownMenuProperty).toBool());
}

bool WidgetEnabled(const QStyleOption* option, const QWidget* widget)
{
    return widget ? widget->isEnabled() : bool(option->state & QStyle::State_Enabled);
}

bool WidgetHasFocus(const QStyleOption* option, const QWidget* widget)
{
    return widget ? widget->hasFocus() : bool(option->state & QStyle::State_HasFocus);
}

// Half the base of a spin-box arrow: at most 4, and small enough to leave the
// button a margin on every side.
qreal SpinArrowHalfWidth(const QRectF& button)
{
    return std::max(1.0, std::min({4.0, std::floor(button.width() / 4.0), std::floor(button.height() / 2.5)}));
}

void FillTriangle(QPainter* painter, const QPointF& a, const QPointF& b, const QPointF& c, const QColor& color)
{
    const QPointF points[3] = {a, b, c};
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawPolygon(points, 3);
}

} // namespace

CustomStyle::CustomStyle()
    : QProxyStyle(static_cast<QStyle*>(nullptr))
{}

CustomStyle::~CustomStyle() = default;

CustomStyle* CustomStyle::GetInstance()
{
    static CustomStyle instance;
    return &instance;
}

QRect CustomStyle::AdjustedRectToPaint(const QRect& rect, int penWidth)
{
    const int leading = penWidth / 2;
    const int trailing = (penWidth + 1) / 2;
    return rect.adjusted(leading, leading, -trailing, -trailing);
}

// ---- Dispatch --------------------------------------------------------------

void CustomStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    switch (element) {
    case PE_FrameFocusRect:
    case PE_PanelLineEdit:
    case PE_PanelItemViewItem:
        return;
    case PE_FrameMenu:
        return DrawMenuFrame(option, painter, qobject_cast<const QMenu*>(widget));
    case PE_PanelMenu:
        return DrawMenuPanel(option, painter, qobject_cast<const QMenu*>(widget));
    case PE_IndicatorCheckBox:
        return DrawCheckBoxIndicator(option, painter, qobject_cast<const QCheckBox*>(widget));
    case PE_IndicatorSpinDown:
        return DrawIndicatorSpinDown(option, painter, qobject_cast<const QDoubleSpinBox*>(widget));
    case PE_IndicatorSpinUp:
        return DrawIndicatorSpinUp(option, painter, qobject_cast<const QDoubleSpinBox*>(widget));
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void CustomStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    switch (element) {
    case CE_PushButton:
        return DrawPushButton(option, painter, qobject_cast<const QPushButton*>(widget));
    case CE_CheckBoxLabel:
        return DrawCheckBoxLabel(option, painter, qobject_cast<const QCheckBox*>(widget));
    case CE_RadioButton:
        return DrawRadioButton(option, painter, qobject_cast<const QRadioButton*>(widget));
    case CE_ProgressBarGroove:
        return DrawProgressBarGroove(option, painter, qobject_cast<const QProgressBar*>(widget));
    case CE_ProgressBarContents:
        return DrawProgressBarContents(option, painter, qobject_cast<const QProgressBar*>(widget));
    case CE_MenuItem:
        if (!IsDropDownMenu(widget))
            return QProxyStyle::drawControl(element, option, painter, widget);
        // The drop-down menu paints its own items after the standard pass.
        if (widget->property(StandardMenuPaintProperty).toBool())
            return;
        return DrawMenuItem(option, painter, qobject_cast<const QMenu*>(widget));
    case CE_MenuScroller:
        // Plain scroller arrows, whatever the base style would add.
        return QCommonStyle::drawControl(element, option, painter, widget);
    case CE_MenuEmptyArea:
        return;
    default:
        return QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void CustomStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const
{
    switch (control) {
    case CC_SpinBox:
        return DrawDoubleSpinBoxComplexControl(option, painter, qobject_cast<const QDoubleSpinBox*>(widget));
    case CC_Slider:
        return DrawSliderComplexControl(option, painter, qobject_cast<const QSlider*>(widget));
    case CC_ToolButton:
        return DrawToolButton(option, painter, widget);
    default:
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect CustomStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                                  const QWidget* widget) const
{
    switch (control) {
    case CC_Slider:
        return SubControlRectSlider(option, subControl, widget);
    case CC_SpinBox:
        return SubControlRectDoubleSpinBox(option, subControl, widget);
    default:
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
}

int CustomStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_SpinBoxFrameWidth:
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return 0;
    case PM_SliderThickness:
        return 24;
    case PM_SliderLength:
        return 4;
    case PM_MenuScrollerHeight:
    case PM_MenuTearoffHeight:
        return 16;
    case PM_MenuPanelWidth:
        return 1;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return 14;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize CustomStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contentsSize,
                                    const QWidget* widget) const
{
    switch (type) {
    case CT_ToolButton:
        return QSize(28, 24);
    case CT_MenuItem: {
        if (!IsDropDownMenu(widget))
            break;
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (!item || item->version < 1)
            return contentsSize;
        const int width = item->rect.width() - 2;
        if (item->menuItemType == QStyleOptionMenuItem::Separator)
            return QSize(width, 3);
        if (item->menuItemType == QStyleOptionMenuItem::Scroller)
            break;
        return QSize(width, kStandardMenuItemHeight);
    }
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
}

int CustomStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const
{
    if (hint == SH_Menu_Scrollable)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

// ---- Sub-control rectangles ------------------------------------------------

QRect CustomStyle::SubControlRectSlider(const QStyleOptionComplex* option, SubControl subControl,
                                        const QWidget* widget) const
{
    const QRect base = QProxyStyle::subControlRect(CC_Slider, option, subControl, widget);
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const bool vertical = slider && slider->orientation == Qt::Vertical;
    switch (subControl) {
    case SC_SliderGroove:
        return QRect(base.left() + 3, base.top() + 3, base.width() - 6, base.height() - 6);
    case SC_SliderHandle: {
        // The right edge, not the width, is halved: kept as it is.
        if (vertical) {
            const int y = std::min(std::max(base.top() + base.bottom() / 2, base.top() + 3), base.bottom() - 3);
            return QRect(base.left() + 3, y, base.width() - 6, 1);
        }
        const int x = std::min(std::max(base.left() + base.right() / 2, base.left() + 3), base.right() - 3);
        return QRect(x, base.top() + 3, 1, base.height() - 6);
    }
    default:
        return base;
    }
}

QRect CustomStyle::SubControlRectDoubleSpinBox(const QStyleOptionComplex* option, SubControl subControl,
                                               const QWidget* widget) const
{
    QRect rect = QProxyStyle::subControlRect(CC_SpinBox, option, subControl, widget);
    if (subControl == SC_SpinBoxEditField)
        rect.adjust(0, 0, -1, 0);
    return rect;
}

// ---- Check box -------------------------------------------------------------

void CustomStyle::DrawCheckBoxIndicator(const QStyleOption* option, QPainter* painter, const QCheckBox* widget) const
{
    if (!widget)
        return;
    ThemeManager* themes = Themes();
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    const QRectF ringRect = StrokeRect(painter, option->rect, grid);
    const QRectF outlineRect = StrokeRect(painter, option->rect, grid, 1);
    const QRectF fillRect = outlineRect.adjusted(grid.unit * 0.5, grid.unit * 0.5, -grid.unit * 0.5, -grid.unit * 0.5);
    const bool checked = widget->isChecked();
    const QStyle::State state = option->state;

    QColor outline;
    QBrush fill;
    QColor ring;
    if (!widget->isEnabled()) {
        outline = Color(checked ? ThemeFileKey::WidgetOutline10 : ThemeFileKey::WidgetOutline9);
        fill = DimmedBrush(Brush(checked ? ThemeFileKey::WidgetContainer11 : ThemeFileKey::WidgetContainer9, fillRect));
    } else if (widget->hasFocus()) {
        outline = Color(ThemeFileKey::FocusOutline1);
        fill = Brush(checked ? ThemeFileKey::HoverContainer5 : ThemeFileKey::HoverContainer4, fillRect);
        // A container key used as the ring colour, deliberately.
        ring = Color(checked ? ThemeFileKey::WidgetContainer11 : ThemeFileKey::WidgetOutline6);
    } else if (state & State_Sunken) {
        outline = Color(checked ? ThemeFileKey::ClickOutline2 : ThemeFileKey::ClickOutline1);
        fill = Brush(checked ? ThemeFileKey::ClickContainer2 : ThemeFileKey::ClickContainer1, fillRect);
        if (themes->Exists(ThemeFileKey::FocusOutline4))
            ring = Color(checked ? ThemeFileKey::FocusOutline2 : ThemeFileKey::FocusOutline4);
    } else if (state & State_MouseOver) {
        outline = Color(ThemeFileKey::HoverOutline7);
        fill = Brush(checked ? ThemeFileKey::HoverContainer5 : ThemeFileKey::HoverContainer4, fillRect);
        if (themes->Exists(ThemeFileKey::FocusOutline3) && themes->Exists(ThemeFileKey::FocusOutline7))
            ring = Color(checked ? ThemeFileKey::FocusOutline7 : ThemeFileKey::FocusOutline3);
    } else {
        outline = Color(checked ? ThemeFileKey::WidgetOutline10 : ThemeFileKey::WidgetOutline9);
        fill = Brush(checked ? ThemeFileKey::WidgetContainer11 : ThemeFileKey::WidgetContainer9, fillRect);
    }

    painter->save();
    StrokeOutline(painter, ringRect, ring, grid);
    DrawFramedRect(painter, outlineRect, fill, outline, grid);

    if (!(state & State_On) && widget->checkState() == Qt::PartiallyChecked) {
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->fillRect(outlineRect.adjusted(3, 3, -3, -3), Color(ThemeFileKey::CheckMark));
    } else if (state & State_On) {
        const qreal l = outlineRect.left();
        const qreal t = outlineRect.top();
        const qreal w = outlineRect.width();
        const qreal h = outlineRect.height();
        const QPointF tick[3] = {QPointF(l + 2.5, t + h / 2 + 0.5), QPointF(l + w * 0.42, t + h - 3),
                                 QPointF(l + w - 2.5, t + 3)};
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(CosmeticPen(Color(checked ? ThemeFileKey::CheckMark1 : ThemeFileKey::CheckMark), grid, 2.0,
                                    Qt::RoundCap, Qt::RoundJoin));
        painter->drawPolyline(tick, 3);
    }
    painter->restore();
}

namespace {

bool AlwaysShowsToolTip(const QWidget* widget)
{
    return widget && widget->property(CustomStyle::AlwaysShowTooltipProperty).toBool();
}

// The rectangle CE_CheckBox hands to CE_CheckBoxLabel.
QRect CheckBoxLabelRect(const QCheckBox* checkBox)
{
    QStyleOptionButton option;
    option.initFrom(checkBox);
    option.text = checkBox->text();
    option.icon = checkBox->icon();
    option.iconSize = checkBox->iconSize();
    return checkBox->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, checkBox);
}

} // namespace

QString CustomStyle::CheckBoxLabelToolTip(const QCheckBox* checkBox)
{
    if (!checkBox)
        return QString();
    if (AlwaysShowsToolTip(checkBox))
        return checkBox->toolTip();
    const QString text = checkBox->text();
    const int width = CheckBoxLabelRect(checkBox).width();
    return checkBox->fontMetrics().elidedText(text, Qt::ElideRight, width) == text ? QString() : text;
}

void CustomStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // A check box that declares the property keeps its tool tip itself.
    if (qobject_cast<QCheckBox*>(widget) && !widget->property(AlwaysShowTooltipProperty).isValid())
        widget->installEventFilter(this);
}

void CustomStyle::unpolish(QWidget* widget)
{
    if (qobject_cast<QCheckBox*>(widget))
        widget->removeEventFilter(this);
    QProxyStyle::unpolish(widget);
}

bool CustomStyle::eventFilter(QObject* watched, QEvent* event)
{
    auto* checkBox = qobject_cast<QCheckBox*>(watched);
    if (!checkBox || event->type() != QEvent::ToolTip)
        return QProxyStyle::eventFilter(watched, event);
    const QString tip = CheckBoxLabelToolTip(checkBox);
    if (tip.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, checkBox);
    return true;
}

void CustomStyle::DrawCheckBoxLabel(const QStyleOption* option, QPainter* painter, const QCheckBox* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (!button || !widget)
        return;
    painter->save();
    const int alignment =
        int(QStyle::visualAlignment(button->direction, Qt::AlignLeft | Qt::AlignVCenter)) | Qt::TextShowMnemonic;
    QString text = button->text;
    if (!AlwaysShowsToolTip(widget))
        text = widget->fontMetrics().elidedText(text, Qt::ElideRight, button->rect.width());
    proxy()->drawItemText(painter, button->rect, alignment, button->palette, bool(button->state & State_Enabled), text,
                          QPalette::WindowText);
    painter->restore();
}

// ---- Buttons ---------------------------------------------------------------

void CustomStyle::DrawRadioButton(const QStyleOption* option, QPainter* painter, const QRadioButton* widget) const
{
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    const QRectF tile = option->rect;
    const QRectF outlineRect = StrokeRect(painter, tile, grid);
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    if ((option->state & State_Enabled) && (option->state & State_MouseOver)) {
        painter->fillRect(tile, Brush(ThemeFileKey::HoverContainer1, tile));
        StrokeOutline(painter, outlineRect, Color(ThemeFileKey::HoverOutline1), grid);
    }
    if (option->state & (State_Sunken | State_On)) {
        painter->fillRect(tile, Brush(ThemeFileKey::ActiveContainer1, tile));
        StrokeOutline(painter, outlineRect, Color(ThemeFileKey::ActiveOutline1), grid);
    }
    if ((option->state & State_Enabled) && WidgetHasFocus(option, widget))
        DrawFocusRing(painter, widget, tile);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    QRect iconRect;
    if (button && widget) {
        const QSize hint = widget->sizeHint();
        const QRect r = option->rect;
        iconRect = QRect(r.left() + (r.width() - hint.width()) / 2 + 2, r.top() + 2 + (r.height() - hint.height()) / 2,
                         hint.width() - 4, hint.height() - 4);
        if (!button->icon.isNull()) {
            const QIcon::Mode mode = (option->state & State_Enabled) ? QIcon::Normal : QIcon::Disabled;
            const QPixmap pixmap = button->icon.pixmap(button->iconSize, painter->device()->devicePixelRatioF(), mode);
            // The icon leads the text: on the right in a right-to-left layout.
            painter->drawPixmap(visualRect(button->direction, iconRect, QRect(iconRect.topLeft(), button->iconSize)),
                                pixmap);
        }
    }
    painter->restore();
    if (button && widget && !button->text.isEmpty()) {
        QRect textRect = iconRect;
        if (!button->icon.isNull())
            textRect.setLeft(iconRect.left() + 4 + button->iconSize.width());
        textRect = visualRect(button->direction, iconRect, textRect);
        proxy()->drawItemText(painter, textRect, Qt::AlignCenter | Qt::TextShowMnemonic, button->palette,
                              bool(option->state & State_Enabled), button->text, QPalette::ButtonText);
    }
}

void CustomStyle::DrawPushButton(const QStyleOption* option, QPainter* painter, const QPushButton* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (!button || !widget || button->icon.isNull())
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    QRect iconRect(QPoint(), widget->sizeHint());
    iconRect.moveCenter(widget->rect().center());
    button->icon.paint(painter, iconRect, Qt::AlignCenter, QIcon::Normal, QIcon::Off);
    painter->restore();
}

void CustomStyle::DrawToolButton(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    if (!button || button->version < 1)
        return;
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    const QStyle::State state = option->state;
    const QRectF frame = QRectF(option->rect).adjusted(2, 2, -2, -2);
    const QRectF strokeRect = StrokeRect(painter, frame, grid);
    const QRectF fillRect = strokeRect.adjusted(grid.unit * 0.5, grid.unit * 0.5, -grid.unit * 0.5, -grid.unit * 0.5);

    painter->save();
    if (!(state & State_Enabled)) {
        DrawFramedRect(painter, strokeRect, Brush(ThemeFileKey::WidgetContainerDisable, fillRect),
                       Color(ThemeFileKey::WidgetOutlineDisable), grid);
    } else if (state & (State_Sunken | State_On)) {
        DrawFramedRect(painter, strokeRect, Brush(ThemeFileKey::ClickContainer1, fillRect),
                       Color(ThemeFileKey::ClickOutline1), grid);
    } else if (state & State_MouseOver) {
        DrawFramedRect(painter, strokeRect, Brush(ThemeFileKey::HoverContainer1, fillRect),
                       Color(ThemeFileKey::HoverOutline1), grid);
    }

    if (WidgetHasFocus(option, widget)) {
        // The outlines cover the pixels from top-left + (1, 1) to bottom-right
        // - (1, 1), and with a wide margin also the outermost ring.
        const QRectF r = option->rect;
        const QColor focus = Color(ThemeFileKey::DropDownButtonFocusOutline);
        StrokeOutline(painter, StrokeRect(painter, r.adjusted(1, 1, -1, -1), grid), focus, grid);
        if (Themes()->GetInt(ThemeFileKey::ButtonFocusMarginWidth) > 1)
            StrokeOutline(painter, StrokeRect(painter, r, grid), focus, grid);
    }

    QStyleOptionToolButton label = *button;
    label.rect = option->rect;
    proxy()->drawControl(CE_ToolButtonLabel, &label, painter, widget);
    painter->restore();
}

// ---- Spin box --------------------------------------------------------------

void CustomStyle::DrawDoubleSpinBoxComplexControl(const QStyleOptionComplex* option, QPainter* painter,
                                                  const QDoubleSpinBox* widget) const
{
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (!spin)
        return;
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    const bool enabled = WidgetEnabled(option, widget);
    painter->save();
    for (const SubControl sub : {SC_SpinBoxUp, SC_SpinBoxDown}) {
        if (!(spin->subControls & sub))
            continue;
        const QRect r = subControlRect(CC_SpinBox, spin, sub, widget);
        if (r.width() <= 0 || r.height() <= 0)
            continue;
        painter->fillRect(r, Brush(ThemeFileKey::WidgetContainer4, r));
        QColor outline = Color(ThemeFileKey::WidgetOutline9);
        const bool hot = spin->activeSubControls & sub;
        const bool hoverOrPress = spin->state & (State_MouseOver | State_Sunken);
        if (hot && hoverOrPress && enabled) {
            painter->fillRect(r, Brush(ThemeFileKey::WidgetContainer4, r));
            const bool pressed = (spin->state & State_MouseOver) && (spin->state & State_Sunken);
            outline = Color(pressed ? ThemeFileKey::WidgetOutline12 : ThemeFileKey::HoverOutline6);
        }
        if (!enabled)
            outline = DimmedColor(outline);
        StrokeOutline(painter, StrokeRect(painter, r, grid), outline, grid);
        QStyleOptionSpinBox arrow = *spin;
        arrow.rect = r;
        drawPrimitive(sub == SC_SpinBoxUp ? PE_IndicatorSpinUp : PE_IndicatorSpinDown, &arrow, painter, widget);
    }
    // Around the whole box: where a field paints its own focus outline over
    // it, the two meet in one colour.
    if (enabled && WidgetHasFocus(option, widget))
        DrawFocusRing(painter, widget, option->rect);
    painter->restore();
}

void CustomStyle::DrawIndicatorSpinUp(const QStyleOption* option, QPainter* painter, const QDoubleSpinBox* widget) const
{
    const QRectF r = option->rect;
    const qreal half = SpinArrowHalfWidth(r);
    const qreal cx = r.left() + r.width() / 2.0;
    const qreal cy = r.top() + r.height() / 2.0;
    QColor color = Color(ThemeFileKey::Triangle2);
    if (!WidgetEnabled(option, widget))
        color = DimmedColor(color);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    FillTriangle(painter, QPointF(cx - half, cy + half / 2), QPointF(cx + half, cy + half / 2),
                 QPointF(cx, cy - half / 2), color);
    painter->restore();
}

void CustomStyle::DrawIndicatorSpinDown(const QStyleOption* option, QPainter* painter,
                                        const QDoubleSpinBox* widget) const
{
    const QRectF r = option->rect;
    const qreal half = SpinArrowHalfWidth(r);
    const qreal cx = r.left() + r.width() / 2.0;
    const qreal cy = r.top() + r.height() / 2.0;
    QColor color = Color(ThemeFileKey::Triangle2);
    if (!WidgetEnabled(option, widget))
        color = DimmedColor(color);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    FillTriangle(painter, QPointF(cx - half, cy - half / 2), QPointF(cx + half, cy - half / 2),
                 QPointF(cx, cy + half / 2), color);
    painter->restore();
}

// ---- Slider ----------------------------------------------------------------

void CustomStyle::DrawSliderComplexControl(const QStyleOptionComplex* option, QPainter* painter,
                                           const QSlider* widget) const
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (!slider)
        return;
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    const bool horizontal = slider->orientation == Qt::Horizontal;
    const bool enabled = slider->state & State_Enabled;
    const bool focused = WidgetHasFocus(option, widget);
    const QRect groove = subControlRect(CC_Slider, slider, SC_SliderGroove, widget);
    const QRect handle = subControlRect(CC_Slider, slider, SC_SliderHandle, widget);

    // The bar is a thin framed strip across the middle of the slider, running
    // the groove's length (base styles differ in how thick their groove is).
    QRectF bar = groove;
    const QPointF centre = QRectF(slider->rect).center();
    if (horizontal) {
        bar.setTop(std::floor(centre.y() - kSliderBarThickness / 2.0));
        bar.setHeight(kSliderBarThickness);
    } else {
        bar.setLeft(std::floor(centre.x() - kSliderBarThickness / 2.0));
        bar.setWidth(kSliderBarThickness);
    }
    const QRectF barStroke = StrokeRect(painter, bar, grid);
    const QRectF barInside = barStroke.adjusted(grid.unit * 0.5, grid.unit * 0.5, -grid.unit * 0.5, -grid.unit * 0.5);

    QColor outline;
    QBrush fill;
    if (focused) {
        outline = Color(ThemeFileKey::WidgetOutline6);
        fill = Brush(ThemeFileKey::WidgetContainer10, barInside);
    } else if (slider->state & State_MouseOver) {
        outline = Color(ThemeFileKey::HoverOutline4);
        fill = Brush(ThemeFileKey::ActiveContainer2, barInside);
    } else {
        outline = Color(ThemeFileKey::WidgetOutline4);
        fill = Brush(ThemeFileKey::WidgetContainer5, barInside);
    }
    QBrush track = Brush(ThemeFileKey::WidgetContainer4, barInside);
    QColor marker = Color(ThemeFileKey::ControlActive1);
    if (!enabled) {
        outline = DimmedColor(outline);
        fill = DimmedBrush(fill);
        track = DimmedBrush(track);
        marker = DimmedColor(marker);
    }

    painter->save();
    // The bar's own focus outline is faint in some themes; the ring around the
    // whole control is what shows the focus.
    if (focused && enabled)
        DrawFocusRing(painter, widget, slider->rect);
    if (slider->subControls & SC_SliderGroove) {
        if (focused)
            StrokeOutline(painter,
                          StrokeRect(painter, bar.adjusted(-grid.unit, -grid.unit, grid.unit, grid.unit), grid),
                          Color(ThemeFileKey::FocusOutline2), grid);
        DrawFramedRect(painter, barStroke, fill, outline, grid);
        // The track runs from the minimum end to the handle.
        QRectF filled = barInside;
        const bool fromEnd = horizontal ? slider->upsideDown : !slider->upsideDown;
        if (horizontal) {
            if (fromEnd)
                filled.setLeft(std::max(filled.left(), qreal(handle.left())));
            else
                filled.setRight(std::min(filled.right(), qreal(handle.left())));
        } else if (fromEnd) {
            filled.setTop(std::max(filled.top(), qreal(handle.top())));
        } else {
            filled.setBottom(std::min(filled.bottom(), qreal(handle.top())));
        }
        if (filled.width() > 0 && filled.height() > 0) {
            painter->setRenderHint(QPainter::Antialiasing, true);
            painter->fillRect(filled, track);
        }
    }

    if (slider->subControls & SC_SliderHandle) {
        // Both markers in one path: one fill instead of two.
        const qreal half = kSliderTriangleBase / 2.0;
        QPainterPath markers;
        if (horizontal) {
            const qreal cx = 0.5;
            const qreal bottom = handle.height();
            markers.addPolygon(
                QPolygonF({QPointF(cx - half, 0), QPointF(cx + half, 0), QPointF(cx, kSliderTriangleHeight)}));
            markers.addPolygon(QPolygonF(
                {QPointF(cx - half, bottom), QPointF(cx + half, bottom), QPointF(cx, bottom - kSliderTriangleHeight)}));
        } else {
            const qreal cy = 0.5;
            const qreal right = handle.width();
            markers.addPolygon(
                QPolygonF({QPointF(0, cy - half), QPointF(0, cy + half), QPointF(kSliderTriangleHeight, cy)}));
            markers.addPolygon(QPolygonF(
                {QPointF(right, cy - half), QPointF(right, cy + half), QPointF(right - kSliderTriangleHeight, cy)}));
        }
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->translate(handle.topLeft());
        painter->fillPath(markers, marker);
    }
    painter->restore();
}

// ---- Progress bar ----------------------------------------------------------

void CustomStyle::DrawProgressBarGroove(const QStyleOption* option, QPainter* painter, const QProgressBar* widget) const
{
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    const QRectF outline = StrokeRect(painter, option->rect, grid);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(Qt::NoPen);
    painter->setBrush(kProgressGrooveFill);
    painter->drawRoundedRect(outline, 2, 2);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(CosmeticPen(kProgressGrooveOutline, grid));
    painter->drawRoundedRect(outline, 2, 2);
    painter->restore();
}

void CustomStyle::DrawProgressBarContents(const QStyleOption* option, QPainter* painter,
                                          const QProgressBar* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (!bar)
        return;
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    const bool horizontal = bar->state & State_Horizontal;
    const QRectF inside = StrokeRect(painter, option->rect, grid, 1);
    const qreal span = horizontal ? inside.width() : inside.height();
    const qint64 range = qint64(bar->maximum) - bar->minimum;
    qreal length = span;
    if (range > 0)
        length = span * double(std::clamp<qint64>(qint64(bar->progress) - bar->minimum, 0, range)) / double(range);
    if (length <= 0)
        return;

    QRectF filled = inside;
    const bool inverted = bar->invertedAppearance;
    if (horizontal) {
        const bool fromRight = inverted != (bar->direction == Qt::RightToLeft);
        if (fromRight)
            filled.setLeft(inside.right() - length);
        else
            filled.setWidth(length);
    } else if (inverted) {
        filled.setHeight(length);
    } else {
        filled.setTop(inside.bottom() - length);
    }

    QLinearGradient gradient(filled.topLeft(), horizontal ? filled.bottomLeft() : filled.topRight());
    gradient.setColorAt(0, kProgressFillTop);
    gradient.setColorAt(1, kProgressFillBottom);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    QColor edge = kProgressFillEdge;
    QBrush brush(gradient);
    if (!(bar->state & State_Enabled)) {
        brush = DimmedBrush(brush);
        edge = DimmedColor(edge);
    }
    painter->fillRect(filled, brush);
    painter->setPen(CosmeticPen(edge, grid));
    if (horizontal) {
        const qreal x = filled.left() == inside.left() ? filled.right() : filled.left();
        if (length < span)
            painter->drawLine(QPointF(x, filled.top()), QPointF(x, filled.bottom()));
    } else {
        const qreal y = filled.top() == inside.top() ? filled.bottom() : filled.top();
        if (length < span)
            painter->drawLine(QPointF(filled.left(), y), QPointF(filled.right(), y));
    }
    painter->restore();
}

// ---- Menus -----------------------------------------------------------------

void CustomStyle::DrawMenuFrame(const QStyleOption* option, QPainter* painter, const QMenu* widget) const
{
    if (!qstyleoption_cast<const QStyleOptionFrame*>(option) || option->version < 1)
        return;
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    painter->save();
    // The frame is one stroke on the very edge: clipping must not cut it.
    painter->setClipping(false);
    StrokeOutline(painter, StrokeRect(painter, option->rect, grid), Color(ThemeFileKey::DropDownMenuBorderColor), grid);
    painter->restore();
}

void CustomStyle::DrawMenuPanel(const QStyleOption* option, QPainter* painter, const QMenu* widget) const
{
    Q_UNUSED(widget)
    if (!qstyleoption_cast<const QStyleOptionMenuItem*>(option) || option->version < 1)
        return;
    painter->save();
    painter->fillRect(option->rect, Brush(ThemeFileKey::DropDownMenuBackground, option->rect));
    painter->restore();
}

void CustomStyle::DrawMenuItem(const QStyleOption* option, QPainter* painter, const QMenu* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (!item || item->version < 1 || !ThemeManagerInstanceExists())
        return;
    ThemeManager* themes = Themes();
    const StrokeGrid grid = StrokeGridOf(widget, painter);
    const QRect r = item->rect;
    const bool enabled = item->state & State_Enabled;
    bool groupLabel = item->menuItemType == QStyleOptionMenuItem::Separator && !item->text.isEmpty();
    if (!groupLabel && widget) {
        const QAction* action = widget->actionAt(r.center());
        groupLabel = action && action->property(GroupLabelProperty).toBool();
    }

    painter->save();
    if (item->menuItemType == QStyleOptionMenuItem::Separator && !groupLabel) {
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->setPen(CosmeticPen(Color(ThemeFileKey::DropDownMenuSeparator), grid));
        const qreal y =
            StrokeRect(painter, QRectF(r.left(), r.top() + r.height() / 2, r.width(), grid.unit), grid).top();
        painter->drawLine(QPointF(r.left() + 1, y), QPointF(r.right(), y));
        painter->restore();
        return;
    }

    if (groupLabel) {
        painter->fillRect(r, Brush(ThemeFileKey::DropDownGroupLabel, r));
    } else if ((item->state & State_Selected) && enabled) {
        const QRectF strokeRect = StrokeRect(painter, r, grid);
        DrawFramedRect(painter, strokeRect, Brush(ThemeFileKey::DropDownMenuHoverBackground, r),
                       Color(ThemeFileKey::DropDownMenuHoverBorder), grid);
    } else if (item->state & State_Sunken) {
        const QRectF strokeRect = StrokeRect(painter, r, grid);
        DrawFramedRect(painter, strokeRect, Brush(ThemeFileKey::DropDownMenuClickedBackground, r),
                       Color(ThemeFileKey::DropDownMenuClickedBorder), grid);
    }

    // Leading columns: the check mark, then the icon.
    int columns = 0;
    const int iconTop = r.height() > 18 ? r.top() + (r.height() - kMenuColumnWidth) / 2 : r.top();
    const qreal ratio = painter->device()->devicePixelRatioF();
    if (item->menuHasCheckableItems || item->checkType != QStyleOptionMenuItem::NotCheckable) {
        if (item->checked && item->checkType != QStyleOptionMenuItem::NotCheckable) {
            const QPixmap mark = IconForPath(themes->GetString(ThemeFileKey::CheckMarkIcon))
                                     .pixmap(QSize(kMenuColumnWidth, kMenuColumnWidth), ratio);
            painter->drawPixmap(QRect(r.left() + 2, iconTop, kMenuColumnWidth, kMenuColumnWidth), mark);
        }
        ++columns;
    }
    if (!item->icon.isNull()) {
        const QPixmap pixmap = item->icon.pixmap(QSize(kMenuColumnWidth, kMenuColumnWidth), ratio,
                                                 enabled ? QIcon::Normal : QIcon::Disabled);
        painter->drawPixmap(
            QRect(r.left() + 2 + columns * kMenuColumnWidth, iconTop, kMenuColumnWidth, kMenuColumnWidth), pixmap);
        ++columns;
    }

    QFont font = Internal::WithThemePixelSize(item->font);
    if (groupLabel && themes->GetInt(ThemeFileKey::StaticLabelFontBold) != 0)
        font.setBold(true);
    painter->setFont(font);
    const QColor textColor = !enabled     ? Color(ThemeFileKey::FontDisable)
                             : groupLabel ? Color(ThemeFileKey::FontGroupHeader)
                                          : Color(ThemeFileKey::FontNormal3);
    painter->setPen(textColor);
    QString text = item->text;
    QString shortcut;
    const int tab = text.indexOf(QLatin1Char('\t'));
    if (tab >= 0) {
        shortcut = text.mid(tab + 1);
        text.truncate(tab);
    }
    const int arrowSpace = item->menuItemType == QStyleOptionMenuItem::SubMenu ? r.height() / 2 + 6 : 4;
    QRect textRect(r.left() + kMenuTextIndent + kMenuColumnWidth * columns, r.top(),
                   r.width() - kMenuTextIndent - kMenuColumnWidth * columns - arrowSpace, r.height());
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic;
    if (!shortcut.isEmpty())
        painter->drawText(textRect, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, shortcut);
    painter->drawText(textRect, flags, text);

    if (item->menuItemType == QStyleOptionMenuItem::SubMenu) {
        const qreal size = std::max(3, r.height() / 5);
        const qreal cx = r.right() - 6 - size / 2;
        const qreal cy = r.top() + r.height() / 2.0;
        QColor arrow = Color(ThemeFileKey::DropDownTriangle);
        if (!enabled)
            arrow = DimmedColor(arrow);
        painter->setRenderHint(QPainter::Antialiasing, true);
        FillTriangle(painter, QPointF(cx - size / 2, cy - size), QPointF(cx - size / 2, cy + size),
                     QPointF(cx + size / 2, cy), arrow);
    }
    painter->restore();
}

} // namespace Kavrel::UICore
