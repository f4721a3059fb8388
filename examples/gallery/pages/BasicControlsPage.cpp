// The basic controls side by side in their states: enabled, disabled, hovered
// (as the pointer would leave them), checked and focused, plus cut labels with
// their tool tips, a busy meter and progress bars.
#include "GalleryPage.h"

#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/ImageLabel.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/ProgressBar.h>
#include <KvUICore/widgets/ProgressMeter.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RadioButton.h>
#include <KvUICore/widgets/TextLabel.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QEnterEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

using namespace Kavrel::UICore;

namespace {

enum Column
{
    Enabled,
    Disabled,
    Hovered,
    Checked,
    Focused,
    ColumnCount,
};

const char* const kColumnTitles[ColumnCount] = {
    QT_TRANSLATE_NOOP("BasicControlsPage", "Enabled"), QT_TRANSLATE_NOOP("BasicControlsPage", "Disabled"),
    QT_TRANSLATE_NOOP("BasicControlsPage", "Hovered"), QT_TRANSLATE_NOOP("BasicControlsPage", "Checked"),
    QT_TRANSLATE_NOOP("BasicControlsPage", "Focused"),
};

QString Tr(const char* text)
{
    return QCoreApplication::translate("BasicControlsPage", text);
}

// Shows a control as if the pointer rested on it.
void LookHovered(QWidget* widget)
{
    widget->setAttribute(Qt::WA_UnderMouse, true);
    const QPointF inside(2, 2);
    QEnterEvent enter(inside, inside, widget->mapToGlobal(inside));
    QCoreApplication::sendEvent(widget, &enter);
}

void LookChecked(QWidget* widget)
{
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->setCheckable(true);
        button->setChecked(true);
    }
}

QSlider* NewSlider(QWidget* parent)
{
    auto* slider = new QSlider(Qt::Horizontal, parent);
    slider->setStyle(CustomStyle::GetInstance());
    slider->setAttribute(Qt::WA_Hover);
    slider->setFocusPolicy(Qt::StrongFocus);
    slider->setRange(0, 100);
    slider->setValue(35);
    slider->setMinimumWidth(120);
    return slider;
}

QDoubleSpinBox* NewSpinBox(QWidget* parent)
{
    auto* spin = new QDoubleSpinBox(parent);
    spin->setStyle(CustomStyle::GetInstance());
    spin->setAttribute(Qt::WA_Hover);
    spin->setValue(12.5);
    spin->setMinimumWidth(90);
    return spin;
}

class BasicControlsPage : public QWidget
{
public:
    explicit BasicControlsPage(QWidget* parent)
        : QWidget(parent)
    {
        auto* layout = new QVBoxLayout(this);
        AddDividedSection(layout, Tr("Controls in their states"), [this] { return StateGrid(); });
        AddDividedSection(layout, Tr("Cut texts explain themselves on hover"), [this] { return CutTexts(); });
        AddDividedSection(layout, Tr("Tiles, images and progress"), [this] { return TilesAndProgress(); });
        layout->addStretch(1);
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        QWidget::showEvent(event);
        // One control of the focused column holds the focus; Tab moves it on.
        if (mpFocusTarget)
            QTimer::singleShot(0, mpFocusTarget, [target = mpFocusTarget] { target->setFocus(Qt::OtherFocusReason); });
    }

private:
    QGridLayout* StateGrid()
    {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(18);
        grid->setVerticalSpacing(8);
        for (int column = 0; column < ColumnCount; ++column)
            grid->addWidget(new TextLabel(Tr(kColumnTitles[column]), this), 0, column + 1);

        using Factory = std::function<QWidget*(QWidget*)>;
        const std::pair<const char*, Factory> rows[] = {
            {QT_TRANSLATE_NOOP("BasicControlsPage", "Label"),
             [](QWidget* p) { return new Label(Tr("Label text"), p); }},
            {QT_TRANSLATE_NOOP("BasicControlsPage", "Check box"),
             [](QWidget* p) { return new CheckBox(Tr("Check box"), p); }},
            {QT_TRANSLATE_NOOP("BasicControlsPage", "Push button"),
             [](QWidget* p) {
                 auto* button = new PushButton(p);
                 button->setText(Tr("Apply"));
                 return button;
             }},
            {QT_TRANSLATE_NOOP("BasicControlsPage", "With icon"),
             [](QWidget* p) {
                 auto* button = new PushButton(p);
                 button->setObjectName(ThemeFileKey::DownloadIcon);
                 button->setText(Tr("Download"));
                 button->setFocusPolicy(Qt::StrongFocus);
                 return button;
             }},
            {QT_TRANSLATE_NOOP("BasicControlsPage", "Mini toggle"),
             [](QWidget* p) {
                 auto* button = new PushButton(p);
                 button->setIconSize(ThemeFileKey::NormalIconSize);
                 button->SetCheckable(true);
                 button->SetIsMiniIcon(true);
                 return button;
             }},
            {QT_TRANSLATE_NOOP("BasicControlsPage", "Tool button"),
             [](QWidget* p) {
                 auto* button = new ToolButton(p);
                 button->SetIconThemeKey(ThemeFileKey::DeleteNodeIcon);
                 return button;
             }},
            {QT_TRANSLATE_NOOP("BasicControlsPage", "Tile"),
             [](QWidget* p) {
                 auto* tile = new RadioButton(Tr("Hue"), p);
                 tile->SetIconThemeKey(ThemeFileKey::HueWheelIcon);
                 tile->setAutoExclusive(false);
                 return tile;
             }},
            {QT_TRANSLATE_NOOP("BasicControlsPage", "Slider"), [](QWidget* p) { return NewSlider(p); }},
            {QT_TRANSLATE_NOOP("BasicControlsPage", "Spin box"), [](QWidget* p) { return NewSpinBox(p); }},
        };

        int row = 1;
        for (const auto& [title, create] : rows) {
            grid->addWidget(new TextLabel(Tr(title), this), row, 0);
            for (int column = 0; column < ColumnCount; ++column) {
                QWidget* control = create(this);
                switch (column) {
                case Disabled:
                    control->setEnabled(false);
                    break;
                case Hovered:
                    LookHovered(control);
                    break;
                case Checked:
                    LookChecked(control);
                    break;
                case Focused:
                    if (!mpFocusTarget && qobject_cast<CheckBox*>(control))
                        mpFocusTarget = control;
                    ShowFocusedInScreenshots(control);
                    break;
                default:
                    break;
                }
                grid->addWidget(control, row, column + 1, Qt::AlignLeft | Qt::AlignVCenter);
            }
            ++row;
        }
        grid->setColumnStretch(ColumnCount + 1, 1);
        return grid;
    }

    QVBoxLayout* CutTexts()
    {
        auto* column = new QVBoxLayout;
        auto* row = new QHBoxLayout;
        column->addLayout(row);
        auto* label = new Label(Tr("A label whose text is much too long for its width"), this);
        label->setFixedWidth(150);
        auto* withPixmap = new Label(Tr("Label with a right pixmap that is cut"), this);
        withPixmap->setFixedWidth(170);
        const auto readOnlyPixmap = [withPixmap] {
            withPixmap->SetRightPixmap(
                QIcon(ThemeManager::GetInstance()->GetString(ThemeFileKey::TreeReadOnlyIcon)).pixmap(16, 16));
        };
        readOnlyPixmap();
        connect(ThemeManager::GetInstance(), &ThemeManager::ThemeChanged, withPixmap, readOnlyPixmap);
        withPixmap->SetRightPixmapTooltip(Tr("Read only"));
        auto* check = new CheckBox(Tr("A check box whose label does not fit"), this);
        check->setFixedWidth(160);
        auto* button = new PushButton(this);
        button->setText(Tr("A button with a long caption"));
        button->setFixedWidth(110);
        auto* fits = new Label(Tr("Fits"), this);
        fits->SetReservedToolTip(Tr("A label that fits shows its reserved tool tip"));
        for (QWidget* widget :
             {static_cast<QWidget*>(label), static_cast<QWidget*>(withPixmap), static_cast<QWidget*>(check),
              static_cast<QWidget*>(button), static_cast<QWidget*>(fits)})
            row->addWidget(widget);
        row->addStretch(1);

        // What hovering the cut check box would show, kept in view.
        auto* tip = new TextLabel(this);
        tip->SetTextColorThemeKey(ThemeFileKey::FontNormal3);
        const auto showTip = [tip, check] {
            tip->setText(Tr("Tool tip of the cut check box: %1").arg(check->toolTip()));
        };
        connect(check, &CheckBox::ToolTipChanged, tip, showTip);
        showTip();
        column->addWidget(tip);
        return column;
    }

    QHBoxLayout* TilesAndProgress()
    {
        auto* row = new QHBoxLayout;
        auto* tiles = new QHBoxLayout;
        tiles->setSpacing(0);
        const QString tileIcons[] = {ThemeFileKey::GradientDiamondIcon, ThemeFileKey::HueWheelIcon,
                                     ThemeFileKey::KavrelCloud_16_newIcon};
        for (const QString& key : tileIcons) {
            auto* tile = new RadioButton(this);
            tile->SetIconThemeKey(key);
            tile->setChecked(key == tileIcons[0]);
            tiles->addWidget(tile);
        }
        row->addLayout(tiles);
        row->addWidget(new Divider(Qt::Vertical, this));
        row->addWidget(new ImageLabel(ThemeFileKey::InvalidLibraryIcon, QSize(16, 16), this));

        auto* meter = new ProgressMeter(this);
        meter->setFixedHeight(24);
        meter->SetText(Tr("Rendering…"));
        meter->setMinimumWidth(meter->width());
        meter->Start();
        row->addWidget(meter);

        auto* bars = new QVBoxLayout;
        for (const int value : {0, 40, 100}) {
            auto* bar = new ProgressBar(this);
            bar->setRange(0, 100);
            bar->setValue(value);
            bar->setTextVisible(false);
            bar->setFixedSize(160, 10);
            bars->addWidget(bar);
        }
        auto* disabled = new ProgressBar(this);
        disabled->setRange(0, 100);
        disabled->setValue(60);
        disabled->setTextVisible(false);
        disabled->setFixedSize(160, 10);
        disabled->setEnabled(false);
        bars->addWidget(disabled);
        row->addLayout(bars);
        row->addStretch(1);
        return row;
    }

    QWidget* mpFocusTarget = nullptr;
};

GalleryPageRegistration registration(200, QStringLiteral("Basic controls"), [](QWidget* parent) {
    QScrollArea* area = NewPageArea(parent);
    area->setWidget(new BasicControlsPage(area));
    return area;
});

} // namespace
