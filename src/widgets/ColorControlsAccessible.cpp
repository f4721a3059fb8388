// The accessible interfaces of the colour and image controls: what a screen
// reader is told (role, name, value) and the values it can set.
#include <KvUICore/widgets/ColorMath_p.h>

#include <KvUICore/widgets/ColorPicker.h>
#include <KvUICore/widgets/ColorPickerParts_p.h>
#include <KvUICore/widgets/ColorSwatch.h>
#include <KvUICore/widgets/ColorWheel.h>
#include <KvUICore/widgets/GradientSwatch.h>
#include <KvUICore/widgets/ImageSwatch.h>

#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace Kavrel::UICore::Internal {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Kavrel::UICore::ColorControlsAccessible)
};

// A widget interface with a value a screen reader can read and set.
class ValueAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    ValueAccessible(QWidget* widget, QAccessible::Role role, const QString& fallbackName)
        : QAccessibleWidget(widget, role)
        , msFallbackName(fallbackName)
    {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name) {
            const QString name = QAccessibleWidget::text(t);
            return name.isEmpty() ? msFallbackName : name;
        }
        if (t == QAccessible::Value)
            return ValueText();
        return QAccessibleWidget::text(t);
    }

    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

protected:
    virtual QString ValueText() const = 0;

private:
    QString msFallbackName;
};

class ColorWheelAccessible : public ValueAccessible
{
public:
    explicit ColorWheelAccessible(ColorWheel* wheel)
        : ValueAccessible(wheel, QAccessible::ColorChooser, Text::tr("Colour wheel"))
    {}

    ColorWheel* Wheel() const { return static_cast<ColorWheel*>(widget()); }

    QString ValueText() const override
    {
        return Text::tr("%1, hue %2°, saturation %3 %, value %4 %")
            .arg(AccessibleColorText(Wheel()->GetColor()))
            .arg(std::lround(Wheel()->GetHue()) % 360)
            .arg(std::lround(Wheel()->GetSaturation() * 100))
            .arg(std::lround(Wheel()->GetValue() * 100));
    }

    // The value is the hue, which the Page keys also change.
    QVariant currentValue() const override { return Wheel()->GetHue(); }
    QVariant maximumValue() const override { return 360; }
    void setCurrentValue(const QVariant& value) override
    {
        bool ok = false;
        const double hue = value.toDouble(&ok);
        ColorWheel* wheel = Wheel();
        if (!ok || !std::isfinite(hue) || !wheel->isEnabled())
            return;
        const QColor before = wheel->GetColor();
        wheel->SetHsv(hue, wheel->GetSaturation(), wheel->GetValue());
        if (wheel->GetColor() != before) {
            Q_EMIT wheel->ColorChanged(wheel->GetColor());
            Q_EMIT wheel->ColorCommitted(wheel->GetColor());
        }
    }
};

class AlphaBarAccessible : public ValueAccessible
{
public:
    explicit AlphaBarAccessible(AlphaBar* bar)
        : ValueAccessible(bar, QAccessible::Slider, Text::tr("Alpha"))
    {}

    AlphaBar* Bar() const { return static_cast<AlphaBar*>(widget()); }
    QString ValueText() const override { return QString::number(Bar()->GetAlpha()); }
    QVariant currentValue() const override { return Bar()->GetAlpha(); }
    QVariant maximumValue() const override { return 255; }
    void setCurrentValue(const QVariant& value) override
    {
        bool ok = false;
        const int alpha = value.toInt(&ok);
        AlphaBar* bar = Bar();
        if (!ok || !bar->isEnabled() || alpha == bar->GetAlpha())
            return;
        bar->SetAlpha(alpha);
        Q_EMIT bar->AlphaChanged(bar->GetAlpha());
        Q_EMIT bar->AlphaCommitted(bar->GetAlpha());
    }
};

class GradientSwatchAccessible : public ValueAccessible
{
public:
    explicit GradientSwatchAccessible(GradientSwatch* swatch)
        : ValueAccessible(swatch, QAccessible::ColorChooser, Text::tr("Gradient"))
    {}

    GradientSwatch* Swatch() const { return static_cast<GradientSwatch*>(widget()); }

    QString ValueText() const override
    {
        const QGradientStops stops = Swatch()->GetStops();
        QString text = stops.size() == 1 ? Text::tr("1 stop") : Text::tr("%n stops", nullptr, int(stops.size()));
        const int selected = Swatch()->GetSelectedStop();
        if (selected >= 0 && selected < stops.size())
            text += Text::tr(", stop %1 at %2 %: %3")
                        .arg(selected + 1)
                        .arg(std::lround(stops.at(selected).first * 100))
                        .arg(AccessibleColorText(stops.at(selected).second));
        return text;
    }

    // The value is the selected stop's position in percent.
    QVariant currentValue() const override
    {
        const int selected = Swatch()->GetSelectedStop();
        const QGradientStops stops = Swatch()->GetStops();
        return selected >= 0 && selected < stops.size() ? stops.at(selected).first * 100.0 : 0.0;
    }
    QVariant maximumValue() const override { return 100; }
    void setCurrentValue(const QVariant& value) override
    {
        bool ok = false;
        const double percent = value.toDouble(&ok);
        if (ok && Swatch()->isEnabled())
            Swatch()->MoveStop(Swatch()->GetSelectedStop(), percent / 100.0);
    }
};

class ColorSwatchAccessible : public QAccessibleWidget
{
public:
    explicit ColorSwatchAccessible(ColorSwatch* swatch)
        : QAccessibleWidget(swatch, QAccessible::Button)
    {
        addControllingSignal(QStringLiteral("ColorChanged(QColor)"));
    }

    ColorSwatch* Swatch() const { return static_cast<ColorSwatch*>(widget()); }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name) {
            const QString name = QAccessibleWidget::text(t);
            return name.isEmpty() ? Text::tr("Colour") : name;
        }
        if (t == QAccessible::Value)
            return AccessibleColorText(Swatch()->GetColor());
        return QAccessibleWidget::text(t);
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (Swatch()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction())
            Swatch()->OpenPicker();
        else
            QAccessibleWidget::doAction(name);
    }
};

class ImageSwatchAccessible : public QAccessibleWidget
{
public:
    explicit ImageSwatchAccessible(ImageSwatch* swatch)
        : QAccessibleWidget(swatch, QAccessible::Graphic)
    {}

    ImageSwatch* Swatch() const { return static_cast<ImageSwatch*>(widget()); }

    QString text(QAccessible::Text t) const override
    {
        const QString path = Swatch()->GetFilePath();
        switch (t) {
        case QAccessible::Name: {
            const QString name = QAccessibleWidget::text(t);
            if (!name.isEmpty())
                return name;
            return path.isEmpty() ? Text::tr("No image") : QFileInfo(path).fileName();
        }
        case QAccessible::Value:
            switch (Swatch()->GetState()) {
            case ImageSwatch::NoImage:
                return Text::tr("No image");
            case ImageSwatch::Loaded:
                return Text::tr("%1 × %2 pixels")
                    .arg(Swatch()->GetImageSize().width())
                    .arg(Swatch()->GetImageSize().height());
            case ImageSwatch::Missing:
            case ImageSwatch::Unreadable:
                return Swatch()->GetStateText();
            }
            return QString();
        case QAccessible::Description:
            return QDir::toNativeSeparators(path);
        default:
            return QAccessibleWidget::text(t);
        }
    }
};

// The old and new colour chips of the picker; the old one answers a click.
class ColorChipAccessible : public QAccessibleWidget
{
public:
    explicit ColorChipAccessible(ColorChip* chip)
        : QAccessibleWidget(chip, QAccessible::Graphic)
    {}

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name && widget()->accessibleName().isEmpty())
            return Text::tr("Colour");
        if (t == QAccessible::Value)
            return AccessibleColorText(static_cast<ColorChip*>(widget())->GetColor());
        return QAccessibleWidget::text(t);
    }
};

// A group of controls with a name of its own or the given one.
class GroupAccessible : public QAccessibleWidget
{
public:
    GroupAccessible(QWidget* widget, const QString& fallbackName)
        : QAccessibleWidget(widget, QAccessible::Grouping)
        , msFallbackName(fallbackName)
    {}

    QString text(QAccessible::Text t) const override
    {
        const QString text = QAccessibleWidget::text(t);
        return t == QAccessible::Name && text.isEmpty() ? msFallbackName : text;
    }

private:
    QString msFallbackName;
};

QAccessibleInterface* ColorControlsFactory(const QString&, QObject* object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    if (auto* wheel = qobject_cast<ColorWheel*>(object))
        return new ColorWheelAccessible(wheel);
    if (auto* swatch = qobject_cast<ColorSwatch*>(object))
        return new ColorSwatchAccessible(swatch);
    if (auto* gradient = qobject_cast<GradientSwatch*>(object))
        return new GradientSwatchAccessible(gradient);
    if (auto* image = qobject_cast<ImageSwatch*>(object))
        return new ImageSwatchAccessible(image);
    if (auto* bar = qobject_cast<AlphaBar*>(object))
        return new AlphaBarAccessible(bar);
    if (auto* chip = qobject_cast<ColorChip*>(object))
        return new ColorChipAccessible(chip);
    if (auto* row = qobject_cast<RecentColorsRow*>(object))
        return new GroupAccessible(row, Text::tr("Recent colours"));
    if (auto* picker = qobject_cast<ColorPicker*>(object))
        return new GroupAccessible(picker, Text::tr("Colour picker"));
    return nullptr;
}

} // namespace

void InstallColorControlsAccessibility()
{
    static bool installed = false;
    if (installed)
        return;
    installed = true;
    QAccessible::installFactory(ColorControlsFactory);
}

} // namespace Kavrel::UICore::Internal
