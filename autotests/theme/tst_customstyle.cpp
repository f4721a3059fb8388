// test-options: SCALES 1.25 1.5 2 LABELS visual
#include "../PaintProbe.h"

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/CustomStylePainting_p.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopeGuard>
#include <QSlider>
#include <QStyleFactory>
#include <QStyleOption>
#include <QtTest>

using namespace Kavrel::UICore;

namespace {

// A menu the style treats as the drop-down's menu.
class DropDownMenu : public QMenu
{
public:
    DropDownMenu() { setProperty(CustomStyle::DropDownMenuProperty, true); }
    using QMenu::initStyleOption;
};

enum class Look
{
    Normal,
    Hovered,
    Sunken,
    Focused,
    Disabled,
    Checked
};

// Widgets whose style options the probes need.
template <class Widget> struct Probed : Widget
{
    using Widget::initStyleOption;
    using Widget::Widget;
};
using ProbeCheckBox = Probed<CheckBox>;
using ProbeSlider = Probed<QSlider>;
using ProbeSpinBox = Probed<QDoubleSpinBox>;

ThemeManager* Themes()
{
    return ThemeManager::GetInstance();
}

using Probe::ThemeColor;

CustomStyle* Style()
{
    return CustomStyle::GetInstance();
}

// A sub-control rectangle from our style and from its base style, for a widget.
template <class Option, class Widget>
std::pair<QRect, QRect> SubControl(Widget* widget, QStyle::ComplexControl control, QStyle::SubControl sub)
{
    Option option;
    widget->initStyleOption(&option);
    return {Style()->subControlRect(control, &option, sub, widget),
            Style()->baseStyle()->subControlRect(control, &option, sub, widget)};
}

// A menu item as a style paints it over white.
QImage PaintMenuItem(const QStyle* style, const QStyleOptionMenuItem& option, const QWidget* menu)
{
    QImage image(option.rect.size(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    style->drawControl(QStyle::CE_MenuItem, &option, &painter, menu);
    return image;
}

QRect IndicatorRect(ProbeCheckBox* box)
{
    QStyleOptionButton option;
    box->initStyleOption(&option);
    return box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
}

bool IsFilledWith(const QImage& image, QRgb color)
{
    QImage expected(image.size(), image.format());
    expected.fill(color);
    return image == expected;
}

// Brings a window up and gives the widget keyboard focus.
bool Focus(QWidget* widget)
{
    if (!Probe::Shown(widget))
        return false;
    widget->activateWindow();
    return QTest::qWaitForWindowActive(widget) && Probe::Focus(widget);
}

void Prepare(QWidget* widget, Look look)
{
    switch (look) {
    case Look::Hovered:
        widget->setAttribute(Qt::WA_UnderMouse);
        break;
    case Look::Disabled:
        widget->setEnabled(false);
        break;
    case Look::Focused:
        QVERIFY(Focus(widget));
        break;
    default:
        break;
    }
}

using Probe::Foreground;

// A base style whose slider handle is wherever the test puts it.
class FixedHandleStyle : public QProxyStyle
{
public:
    explicit FixedHandleStyle(QRect handle)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
        , mHandle(handle)
    {}
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl sub,
                         const QWidget* widget) const override
    {
        if (control == CC_Slider && sub == SC_SliderHandle)
            return mHandle;
        return QProxyStyle::subControlRect(control, option, sub, widget);
    }
    QRect mHandle;
};
} // namespace

class tst_CustomStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Probe::UseRepositoryThemes(); }

    void focusRectIsNeverPainted_data()
    {
        QTest::addColumn<QString>("widgetKind");
        QTest::newRow("no widget") << QString();
        QTest::newRow("push button") << QStringLiteral("button");
        QTest::newRow("line edit") << QStringLiteral("edit");
        QTest::newRow("library check box") << QStringLiteral("check");
    }

    void focusRectIsNeverPainted()
    {
        QFETCH(QString, widgetKind);
        std::unique_ptr<QWidget> widget;
        if (widgetKind == QLatin1String("button"))
            widget = std::make_unique<QPushButton>(QStringLiteral("Go"));
        else if (widgetKind == QLatin1String("edit"))
            widget = std::make_unique<QLineEdit>();
        else if (widgetKind == QLatin1String("check"))
            widget = std::make_unique<CheckBox>(QStringLiteral("Check"));

        QImage image(40, 20, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        QStyleOptionFocusRect option;
        option.rect = image.rect();
        option.state = QStyle::State_HasFocus | QStyle::State_Enabled | QStyle::State_KeyboardFocusChange;
        Style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, widget.get());
        painter.end();
        QVERIFY(IsFilledWith(image, 0u));
    }

    void toolButtonIsAlways28By24()
    {
        ToolButton button;
        button.setIconSize(QSize(64, 64));
        button.setText(QStringLiteral("A long tool button text"));
        button.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        QStyleOptionToolButton option;
        option.initFrom(&button);
        option.iconSize = QSize(64, 64);
        QCOMPARE(Style()->sizeFromContents(QStyle::CT_ToolButton, &option, QSize(200, 90), &button), QSize(28, 24));
        QCOMPARE(button.sizeHint(), QSize(28, 24));
    }

    void adjustedRectToPaint_data()
    {
        QTest::addColumn<int>("penWidth");
        QTest::addColumn<QRect>("expected");
        QTest::newRow("one") << 1 << QRect(QPoint(10, 20), QPoint(58, 38));
        QTest::newRow("two") << 2 << QRect(QPoint(11, 21), QPoint(58, 38));
        QTest::newRow("three") << 3 << QRect(QPoint(11, 21), QPoint(57, 37));
    }

    void adjustedRectToPaint()
    {
        QFETCH(int, penWidth);
        QTEST(CustomStyle::AdjustedRectToPaint(QRect(10, 20, 50, 20), penWidth), "expected");
    }

    void subControlsAdjustTheBaseStyle()
    {
        // The slider groove shrinks by three, the spin box edit field loses a pixel.
        ProbeSlider slider(Qt::Horizontal);
        slider.setStyle(Style());
        slider.resize(200, 24);
        slider.setRange(0, 100);
        slider.setValue(40);
        const auto groove = SubControl<QStyleOptionSlider>(&slider, QStyle::CC_Slider, QStyle::SC_SliderGroove);
        QCOMPARE(groove.first, groove.second.adjusted(3, 3, -3, -3));
        ProbeSpinBox spin;
        spin.setStyle(Style());
        spin.resize(120, 24);
        const auto edit = SubControl<QStyleOptionSpinBox>(&spin, QStyle::CC_SpinBox, QStyle::SC_SpinBoxEditField);
        QCOMPARE(edit.first, edit.second.adjusted(0, 0, -1, 0));

        // The slider handle is a one pixel line inside the base handle.
        const auto [handle, base] = SubControl<QStyleOptionSlider>(&slider, QStyle::CC_Slider, QStyle::SC_SliderHandle);
        QCOMPARE(handle.width(), 1);
        QCOMPARE(handle.top(), base.top() + 3);
        QCOMPARE(handle.height(), base.height() - 6);
        QVERIFY(handle.left() >= base.left() && handle.left() <= base.right());
    }

    void sliderHandleClamps_data()
    {
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("right");
        QTest::addColumn<int>("expectedX");
        // x = left + right / 2, kept inside [left + 3, right - 3].
        QTest::newRow("inside") << 10 << 30 << 25;
        QTest::newRow("clamped to the right") << 20 << 30 << 27;
        QTest::newRow("from zero") << 0 << 30 << 15;
        QTest::newRow("narrow handle") << 10 << 12 << 9;
    }

    void sliderHandleClamps()
    {
        QFETCH(int, left);
        QFETCH(int, right);
        QFETCH(int, expectedX);
        CustomStyle* style = Style();
        style->setBaseStyle(new FixedHandleStyle(QRect(QPoint(left, 0), QPoint(right, 23))));
        QStyleOptionSlider option;
        option.orientation = Qt::Horizontal;
        option.rect = QRect(0, 0, 200, 24);
        const QRect handle = style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, nullptr);
        style->setBaseStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QCOMPARE(handle, QRect(expectedX, 3, 1, 18));
    }

    void checkBoxIndicatorFollowsState_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<Look>("look");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QString>("outlineKey");
        QTest::addColumn<QString>("fillKey");
        QTest::addColumn<QString>("ringKey");
        using K = ThemeFileKey;
        // HIGLight defines the optional ring colours, Light does not.
        for (const QString& theme : {QStringLiteral("Light"), QStringLiteral("HIGLight")}) {
            const bool rings = theme == QStringLiteral("HIGLight");
            const auto row = [&theme](const char* name) -> QTestData& {
                return QTest::addRow("%s, %s", name, qPrintable(theme)) << theme;
            };
            row("normal unchecked") << Look::Normal << false << K::WidgetOutline9 << K::WidgetContainer9 << QString();
            row("normal checked") << Look::Normal << true << K::WidgetOutline10 << K::WidgetContainer11 << QString();
            row("hovered unchecked") << Look::Hovered << false << K::HoverOutline7 << K::HoverContainer4
                                     << (rings ? K::FocusOutline3 : QString());
            row("hovered checked") << Look::Hovered << true << K::HoverOutline7 << K::HoverContainer5
                                   << (rings ? K::FocusOutline7 : QString());
            row("sunken unchecked") << Look::Sunken << false << K::ClickOutline1 << K::ClickContainer1
                                    << (rings ? K::FocusOutline4 : QString());
            row("sunken checked") << Look::Sunken << true << K::ClickOutline2 << K::ClickContainer2
                                  << (rings ? K::FocusOutline2 : QString());
            row("focused unchecked") << Look::Focused << false << K::FocusOutline1 << K::HoverContainer4
                                     << K::WidgetOutline6;
            row("focused checked") << Look::Focused << true << K::FocusOutline1 << K::HoverContainer5
                                   << K::WidgetContainer11;
            row("disabled unchecked") << Look::Disabled << false << K::WidgetOutline9 << K::WidgetContainer9
                                      << QString();
            row("disabled checked") << Look::Disabled << true << K::WidgetOutline10 << K::WidgetContainer11
                                    << QString();
        }
    }

    void checkBoxIndicatorFollowsState()
    {
        QFETCH(QString, theme);
        QFETCH(Look, look);
        QFETCH(bool, checked);
        QFETCH(QString, outlineKey);
        QFETCH(QString, fillKey);
        QFETCH(QString, ringKey);
        QVERIFY(Themes()->SetCurrentTheme(theme));
        const auto restore = qScopeGuard([] { Themes()->SetCurrentTheme(QStringLiteral("Light")); });
        ProbeCheckBox box(QStringLiteral("Probe"));
        box.setChecked(checked);
        box.resize(120, 24);
        Prepare(&box, look);
        if (look == Look::Sunken)
            box.setDown(true);

        const QColor outline = ThemeColor(outlineKey);
        QVERIFY2(outline.isValid(), qPrintable(outlineKey));
        QVERIFY2(Themes()->GetBrush(fillKey, QRect(0, 0, 10, 10)).style() != Qt::NoBrush, qPrintable(fillKey));

        const QRect indicator = IndicatorRect(&box);
        const QImage image = Probe::Grab(&box);
        const int b = Probe::Bucket(image);
        const int left = Probe::DeviceCeil(image, indicator.left());
        const int top = Probe::DeviceCeil(image, indicator.top());
        const int column = Probe::DeviceFloor(image, indicator.center().x() + 0.5) - 1;
        const QColor background = box.palette().color(QPalette::Window);

        // The ring, then the outline, each one stroke, then the fill.
        const QColor ring = Probe::Pixel(image, column, top);
        if (ringKey.isEmpty())
            PROBE_COMPARE_COLOR(ring, background);
        else
            PROBE_COMPARE_COLOR(ring, ThemeColor(ringKey));
        for (int i = 0; i < b; ++i)
            PROBE_COMPARE_COLOR(Probe::Pixel(image, column, top + b + i), outline);

        const int fillY = top + 2 * b;
        const int right = Probe::DeviceFloor(image, indicator.left() + indicator.width() + 0.01);
        const int bottom = Probe::DeviceFloor(image, indicator.top() + indicator.height() + 0.01);
        const qreal ratio = image.devicePixelRatio();
        const QRectF fillRect(QPointF((left + 2 * b) / ratio, fillY / ratio),
                              QPointF((right - 2 * b) / ratio, (bottom - 2 * b) / ratio));
        QBrush fill = Themes()->GetBrush(fillKey, fillRect.toAlignedRect());
        if (look == Look::Disabled) {
            if (const QGradient* gradient = fill.gradient()) {
                QGradient dimmed = *gradient;
                QGradientStops stops = dimmed.stops();
                for (auto& stop : stops)
                    stop.second = Internal::DimmedColor(stop.second);
                dimmed.setStops(stops);
                fill = QBrush(dimmed);
            } else {
                fill.setColor(Internal::DimmedColor(fill.color()));
            }
        }
        const QColor expectedFill = Probe::Reference(image, background, fill, fillRect, column, fillY + 1);
        QVERIFY2(Probe::Near(Probe::Pixel(image, column, fillY + 1), expectedFill, fill.gradient() ? 8 : 2),
                 qPrintable(Probe::Pixel(image, column, fillY + 1).name(QColor::HexArgb) + " vs " +
                            expectedFill.name(QColor::HexArgb)));
    }

    void checkBoxOutlinesAreCrisp()
    {
        // Along a column through the box, every pixel is exactly one of the
        // colours painted: no blended half pixels, and each edge one stroke wide.
        ProbeCheckBox box(QStringLiteral("Probe"));
        box.resize(120, 24);
        const QRect indicator = IndicatorRect(&box);
        const QImage image = Probe::Grab(&box);
        const int b = Probe::Bucket(image);
        const int column = Probe::DeviceFloor(image, indicator.center().x() + 0.5) - 1;
        const QRgb background = box.palette().color(QPalette::Window).rgba();
        const QList<Probe::Run> runs = Foreground(Probe::Runs(image, column, 0, image.height() - 1), background);
        QVERIFY2(runs.size() >= 3, qPrintable(Probe::Describe(runs)));
        const QColor outline = ThemeColor(ThemeFileKey::WidgetOutline9);
        PROBE_COMPARE_COLOR(QColor::fromRgba(runs.first().color), outline);
        QCOMPARE(runs.first().length, b);
        PROBE_COMPARE_COLOR(QColor::fromRgba(runs.last().color), outline);
        QCOMPARE(runs.last().length, b);
        // The edges lie on the device grid where the indicator starts.
        QCOMPARE(runs.first().start, Probe::DeviceCeil(image, indicator.top()) + b);

        // The same along a row.
        const int row = Probe::DeviceFloor(image, indicator.center().y() + 0.5) - 1;
        const QList<Probe::Run> across =
            Foreground(Probe::Runs(image, row, 0, Probe::DeviceFloor(image, indicator.right() + 2), false), background);
        QVERIFY2(across.size() >= 3, qPrintable(Probe::Describe(across)));
        QCOMPARE(across.first().length, b);
        QCOMPARE(across.last().length, b);
    }

    void toolButtonFollowsState_data()
    {
        QTest::addColumn<Look>("look");
        QTest::addColumn<QString>("outlineKey");
        QTest::addColumn<QString>("fillKey");
        QTest::newRow("disabled") << Look::Disabled << ThemeFileKey::WidgetOutlineDisable
                                  << ThemeFileKey::WidgetContainerDisable;
        QTest::newRow("sunken") << Look::Sunken << ThemeFileKey::ClickOutline1 << ThemeFileKey::ClickContainer1;
        QTest::newRow("checked") << Look::Checked << ThemeFileKey::ClickOutline1 << ThemeFileKey::ClickContainer1;
        QTest::newRow("hovered") << Look::Hovered << ThemeFileKey::HoverOutline1 << ThemeFileKey::HoverContainer1;
        QTest::newRow("idle") << Look::Normal << QString() << QString();
    }

    void toolButtonFollowsState()
    {
        QFETCH(Look, look);
        QFETCH(QString, outlineKey);
        QFETCH(QString, fillKey);
        ToolButton button;
        button.resize(28, 24);
        Prepare(&button, look);
        if (look == Look::Sunken)
            button.setDown(true);
        if (look == Look::Checked) {
            button.setCheckable(true);
            button.setChecked(true);
        }
        const QImage image = Probe::Grab(&button);
        const int b = Probe::Bucket(image);
        const QColor background = button.palette().color(QPalette::Window);
        const int column = image.width() / 2;
        const int top = Probe::DeviceCeil(image, 2);
        if (outlineKey.isEmpty()) {
            for (int y = 0; y < image.height(); ++y)
                PROBE_COMPARE_COLOR(Probe::Pixel(image, column, y), background);
            return;
        }
        const QColor outline = ThemeColor(outlineKey);
        QVERIFY2(outline.isValid(), qPrintable(outlineKey));
        const QBrush fill = Themes()->GetBrush(fillKey, QRect(2, 2, 24, 20));
        QVERIFY2(fill.style() != Qt::NoBrush, qPrintable(fillKey));
        PROBE_COMPARE_COLOR(Probe::Pixel(image, column, top - 1), background);
        for (int i = 0; i < b; ++i)
            PROBE_COMPARE_COLOR(Probe::Pixel(image, column, top + i), outline);
        PROBE_COMPARE_COLOR(Probe::Pixel(image, column, top + b + 1), Probe::Composite(background, fill));
    }

    void toolButtonFocusOutline()
    {
        ToolButton button;
        button.resize(28, 24);
        QVERIFY(Focus(&button));
        const QColor focus = ThemeColor(ThemeFileKey::DropDownButtonFocusOutline);
        QVERIFY(focus.isValid());
        const QImage image = Probe::Grab(&button);
        const int b = Probe::Bucket(image);
        const int column = image.width() / 2;
        const int top = Probe::DeviceCeil(image, 1);
        for (int i = 0; i < b; ++i)
            PROBE_COMPARE_COLOR(Probe::Pixel(image, column, top + i), focus);
        // One pixel in from the right edge too.
        const int right = Probe::DeviceFloor(image, button.width() - 1) - 1;
        const int middle = image.height() / 2;
        PROBE_COMPARE_COLOR(Probe::Pixel(image, right, middle), focus);
        PROBE_COMPARE_COLOR(Probe::Pixel(image, Probe::DeviceCeil(image, 1), middle), focus);
        const bool wideMargin = Themes()->GetInt(ThemeFileKey::ButtonFocusMarginWidth) > 1;
        const QColor outer = Probe::Pixel(image, column, 0);
        if (wideMargin)
            PROBE_COMPARE_COLOR(outer, focus);
        else if (top > 0)
            PROBE_COMPARE_COLOR(outer, button.palette().color(QPalette::Window));
    }

    void sliderGrooveFollowsState_data()
    {
        QTest::addColumn<Look>("look");
        QTest::addColumn<QString>("outlineKey");
        QTest::addColumn<QString>("fillKey");
        QTest::newRow("normal") << Look::Normal << ThemeFileKey::WidgetOutline4 << ThemeFileKey::WidgetContainer5;
        QTest::newRow("hovered") << Look::Hovered << ThemeFileKey::HoverOutline4 << ThemeFileKey::ActiveContainer2;
        QTest::newRow("focused") << Look::Focused << ThemeFileKey::WidgetOutline6 << ThemeFileKey::WidgetContainer10;
        QTest::newRow("disabled") << Look::Disabled << ThemeFileKey::WidgetOutline4 << ThemeFileKey::WidgetContainer5;
    }

    void sliderGrooveFollowsState()
    {
        QFETCH(Look, look);
        QFETCH(QString, outlineKey);
        QFETCH(QString, fillKey);
        ProbeSlider slider(Qt::Horizontal);
        slider.setStyle(Style());
        slider.setAttribute(Qt::WA_Hover);
        slider.setFocusPolicy(Qt::StrongFocus);
        slider.setRange(0, 100);
        slider.setValue(0);
        slider.resize(200, 24);
        Prepare(&slider, look);

        QColor outline = ThemeColor(outlineKey);
        QColor fill = ThemeColor(fillKey);
        QVERIFY2(outline.isValid(), qPrintable(outlineKey));
        QVERIFY2(fill.isValid(), qPrintable(fillKey));
        const QColor background = slider.palette().color(QPalette::Window);
        if (look == Look::Disabled) {
            outline = Probe::Composite(background, Internal::DimmedColor(outline));
            fill = Probe::Composite(background, Internal::DimmedColor(fill));
        }

        QStyleOptionSlider option;
        slider.initStyleOption(&option);
        const QRect groove =
            slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, &slider);
        const QImage image = Probe::Grab(&slider);
        const int b = Probe::Bucket(image);
        const int column = Probe::DeviceFloor(image, groove.right() - 10);
        const QList<Probe::Run> runs = Foreground(Probe::Runs(image, column, 0, image.height() - 1), background.rgba());
        QList<QColor> expected{outline, fill, outline};
        if (look == Look::Focused) {
            // The bar's own outline, and the two-stroke ring along the control's edges.
            const QColor ring = ThemeColor(ThemeFileKey::FocusOutline2);
            const QColor focus = Internal::FocusRingColor();
            QVERIFY(ring.isValid());
            expected = {focus, ring, outline, fill, outline, ring, focus};
        }
        QVERIFY2(runs.size() == expected.size(), qPrintable(Probe::Describe(runs)));
        for (int i = 0; i < expected.size(); ++i) {
            PROBE_COMPARE_COLOR(QColor::fromRgba(runs.at(i).color), expected.at(i));
            const bool edge = look == Look::Focused && (i == 0 || i == expected.size() - 1);
            if (expected.at(i) != fill)
                QCOMPARE(runs.at(i).length, edge ? 2 * b : b);
        }
    }

    void spinBoxArrowButtonsUseTheme()
    {
        ProbeSpinBox spin;
        spin.setStyle(Style());
        spin.resize(120, 24);
        QStyleOptionSpinBox option;
        spin.initStyleOption(&option);
        const QRect up = spin.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &spin);
        QVERIFY(up.width() > 4 && up.height() > 4);
        const QColor outline = ThemeColor(ThemeFileKey::WidgetOutline9);
        const QBrush fill = Themes()->GetBrush(ThemeFileKey::WidgetContainer4, up);
        QVERIFY(outline.isValid());
        QVERIFY(fill.style() != Qt::NoBrush);
        const QImage image = Probe::Grab(&spin);
        const int b = Probe::Bucket(image);
        const int left = Probe::DeviceCeil(image, up.left());
        const int middle = Probe::DeviceFloor(image, up.top() + up.height() / 2.0);
        PROBE_COMPARE_COLOR(Probe::Pixel(image, left, middle), outline);
        PROBE_COMPARE_COLOR(Probe::Pixel(image, left + b, Probe::DeviceCeil(image, up.top()) + b + 1),
                            Probe::Composite(spin.palette().color(QPalette::Window), fill));
    }

    void dropDownMenuItemSizes_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("item") << 0 << QSize(148, 20);
        QTest::newRow("separator") << 1 << QSize(148, 3);
        QTest::newRow("separator with a text") << 2 << QSize(148, 3);
    }

    void dropDownMenuItemSizes()
    {
        QFETCH(int, kind);
        DropDownMenu menu;
        menu.setStyle(Style());
        QAction* action = kind == 0   ? menu.addAction(QStringLiteral("Item"))
                          : kind == 1 ? menu.addSeparator()
                                      : menu.addSection(QStringLiteral("Section"));
        QStyleOptionMenuItem option;
        menu.initStyleOption(&option, action);
        option.rect = QRect(0, 0, 150, 30);
        QTEST(Style()->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(40, 10), &menu), "expected");
        // Without a menu-item option the contents size comes back unchanged.
        QStyleOption plain;
        QCOMPARE(Style()->sizeFromContents(QStyle::CT_MenuItem, &plain, QSize(40, 10), &menu), QSize(40, 10));
    }

    void dropDownMenuPaintsItsItems()
    {
        DropDownMenu menu;
        QAction* action = menu.addAction(QStringLiteral("Item"));
        QStyleOptionMenuItem option;
        menu.initStyleOption(&option, action);
        option.rect = QRect(0, 0, 150, 20);
        option.state |= QStyle::State_Selected | QStyle::State_Enabled;
        const QColor hover =
            Probe::Composite(Qt::white, Themes()->GetBrush(ThemeFileKey::DropDownMenuHoverBackground, option.rect));
        QVERIFY(Themes()->Exists(ThemeFileKey::DropDownMenuHoverBackground));

        PROBE_COMPARE_COLOR(Probe::Pixel(PaintMenuItem(Style(), option, &menu), 3, 3), hover);

        // While the menu runs the standard painting, items are left to it.
        menu.setProperty(CustomStyle::StandardMenuPaintProperty, true);
        QVERIFY(IsFilledWith(PaintMenuItem(Style(), option, &menu), QColor(Qt::white).rgba()));
    }

    void plainMenuItemIsPaintedByBaseStyle()
    {
        class ProbeMenu : public QMenu
        {
        public:
            using QMenu::initStyleOption;
        } menu;
        QAction* action = menu.addAction(QStringLiteral("Plain item"));
        QStyleOptionMenuItem option;
        menu.initStyleOption(&option, action);
        option.rect = QRect(0, 0, 150, 22);
        option.state |= QStyle::State_Selected;
        QCOMPARE(PaintMenuItem(Style(), option, &menu), PaintMenuItem(Style()->baseStyle(), option, &menu));
        QCOMPARE(Style()->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(60, 12), &menu),
                 Style()->baseStyle()->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(60, 12), &menu));
    }

    void themeSwitchNeedsNoNotice()
    {
        // The style keeps nothing: after a switch the next paint shows the new theme.
        ToolButton button;
        button.resize(28, 24);
        button.setAttribute(Qt::WA_UnderMouse);
        const int top = Probe::DeviceCeil(Probe::Grab(&button), 2);
        QVERIFY(Themes()->SetCurrentTheme(QStringLiteral("Dark")));
        const QColor dark = ThemeColor(ThemeFileKey::HoverOutline1);
        const QImage darkImage = Probe::Grab(&button);
        QVERIFY(Themes()->SetCurrentTheme(QStringLiteral("Light")));
        const QColor light = ThemeColor(ThemeFileKey::HoverOutline1);
        const QImage lightImage = Probe::Grab(&button);
        QVERIFY(dark.isValid() && light.isValid());
        PROBE_COMPARE_COLOR(Probe::Pixel(darkImage, darkImage.width() / 2, top), dark);
        PROBE_COMPARE_COLOR(Probe::Pixel(lightImage, lightImage.width() / 2, top), light);
    }
};

QTEST_MAIN(tst_CustomStyle)
#include "tst_customstyle.moc"
