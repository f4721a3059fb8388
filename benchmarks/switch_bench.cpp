// Theme switching with a window full of the library's controls, against the
// same number of plain Qt widgets restyled through the application style
// sheet; the paint cost of the custom style against Fusion.

#include "BenchRatio.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/CustomStyle.h>
#include <KvUICore/theme/ThemeFileKey.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/CheckBox.h>
#include <KvUICore/widgets/Divider.h>
#include <KvUICore/widgets/Label.h>
#include <KvUICore/widgets/ProgressBar.h>
#include <KvUICore/widgets/PushButton.h>
#include <KvUICore/widgets/RadioButton.h>
#include <KvUICore/widgets/TextLabel.h>
#include <KvUICore/widgets/ToolButton.h>

#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFrame>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleFactory>
#include <QToolButton>

#include <malloc.h>

#include <chrono>
#include <functional>
#include <memory>

using namespace Kavrel::UICore;

namespace {

constexpr int kControlCount = 1000;

ThemeManager* Themes()
{
    static bool ready = false;
    ThemeManager* themes = ThemeManager::GetInstance();
    if (!ready) {
        themes->SetThemeFilesPath(QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
        themes->SetCurrentTheme(QStringLiteral("Light"));
        ready = true;
    }
    return themes;
}

// Counts the first paint of every control after each change.
class RepaintWatch : public QObject
{
public:
    void Watch(QWidget* widget)
    {
        mIndex.insert(widget, int(mPainted.size()));
        mPainted.push_back(-1);
        widget->installEventFilter(this);
    }

    // Runs change, then the event loop until every control has painted again.
    bool ChangeAndWait(const std::function<void()>& change)
    {
        ++miGeneration;
        miWaiting = int(mPainted.size());
        change();
        QElapsedTimer guard;
        guard.start();
        while (miWaiting > 0) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            if (guard.elapsed() > 10000)
                return false;
        }
        return true;
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            int& painted = mPainted[mIndex.value(object)];
            if (painted != miGeneration) {
                painted = miGeneration;
                --miWaiting;
            }
        }
        return false;
    }

private:
    QHash<QObject*, int> mIndex;
    std::vector<int> mPainted;
    int miGeneration = 0;
    int miWaiting = 0;
};

enum class Kind
{
    Label,
    CheckBox,
    PushButton,
    ToolButton,
    Tile,
    ProgressBar,
    Header,
    Divider,
};

// A realistic mix in every twenty: six labels, four check boxes, four push
// buttons, two tool buttons, a tile, a progress bar, a header and a divider.
Kind KindOf(int i)
{
    static const Kind mix[20] = {Kind::Label,      Kind::Label,       Kind::Label,      Kind::Label,
                                 Kind::Label,      Kind::Label,       Kind::CheckBox,   Kind::CheckBox,
                                 Kind::CheckBox,   Kind::CheckBox,    Kind::PushButton, Kind::PushButton,
                                 Kind::PushButton, Kind::PushButton,  Kind::ToolButton, Kind::ToolButton,
                                 Kind::Tile,       Kind::ProgressBar, Kind::Header,     Kind::Divider};
    return mix[i % 20];
}

QWidget* NewLibraryControl(int i, QWidget* parent)
{
    switch (KindOf(i)) {
    case Kind::Label:
        return new Label(QStringLiteral("Property %1").arg(i), parent);
    case Kind::CheckBox:
        return new CheckBox(QStringLiteral("Option %1").arg(i), parent);
    case Kind::PushButton: {
        auto* button = new PushButton(parent);
        button->setText(QStringLiteral("Apply %1").arg(i));
        return button;
    }
    case Kind::ToolButton:
        return new ToolButton(parent);
    case Kind::Tile:
        return new RadioButton(QStringLiteral("Tile"), parent);
    case Kind::ProgressBar: {
        auto* bar = new ProgressBar(parent);
        bar->setValue(40);
        bar->setTextVisible(false);
        return bar;
    }
    case Kind::Header:
        return new TextLabel(QStringLiteral("Group %1").arg(i), parent);
    case Kind::Divider:
        break;
    }
    return new Divider(Qt::Horizontal, parent);
}

QWidget* NewPlainControl(int i, QWidget* parent)
{
    switch (KindOf(i)) {
    case Kind::Label:
        return new QLabel(QStringLiteral("Property %1").arg(i), parent);
    case Kind::CheckBox:
        return new QCheckBox(QStringLiteral("Option %1").arg(i), parent);
    case Kind::PushButton:
        return new QPushButton(QStringLiteral("Apply %1").arg(i), parent);
    case Kind::ToolButton:
        return new QToolButton(parent);
    case Kind::Tile:
        return new QRadioButton(QStringLiteral("Tile"), parent);
    case Kind::ProgressBar: {
        auto* bar = new QProgressBar(parent);
        bar->setValue(40);
        bar->setTextVisible(false);
        return bar;
    }
    case Kind::Header: {
        auto* label = new QLabel(QStringLiteral("Group %1").arg(i), parent);
        label->setObjectName(QStringLiteral("header"));
        return label;
    }
    case Kind::Divider:
        break;
    }
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    return line;
}

// Controls in panels of twenty, as property pages and tool panels hold them.
struct ControlWindow
{
    static constexpr int kPerPanel = 20;

    explicit ControlWindow(const std::function<QWidget*(int, QWidget*)>& create)
    {
        auto* panels = new QGridLayout(&mWindow);
        panels->setSpacing(4);
        for (int p = 0; p < kControlCount / kPerPanel; ++p) {
            auto* panel = new QWidget(&mWindow);
            auto* grid = new QGridLayout(panel);
            grid->setContentsMargins(2, 2, 2, 2);
            grid->setSpacing(2);
            for (int i = 0; i < kPerPanel; ++i) {
                QWidget* control = create(p * kPerPanel + i, panel);
                grid->addWidget(control, i / 2, i % 2);
                mWatch.Watch(control);
            }
            panels->addWidget(panel, p / kPanelColumns, p % kPanelColumns);
        }
        mWindow.resize(kPanelColumns * 190, (kControlCount / kPerPanel / kPanelColumns) * 270);
        mWindow.show();
        mWatch.ChangeAndWait([] {});
    }

    static constexpr int kPanelColumns = 10;
    QWidget mWindow;
    RepaintWatch mWatch;
};

// The same colours as the theme, written as a style sheet the way an
// application without the library would restyle plain widgets.
QString StyleSheetFor(const QString& theme)
{
    ThemeManager* themes = Themes();
    themes->SetCurrentTheme(theme);
    const auto c = [themes](const QString& key) { return themes->GetColor(key).name(); };
    QString sheet =
        QStringLiteral("QWidget { background: %1; }"
                       "QLabel { color: %2; }"
                       "QLabel#header { color: %3; font-weight: bold; }"
                       "QCheckBox, QRadioButton { color: %2; }"
                       "QCheckBox::indicator { width: 12px; height: 12px; border: 1px solid %4; background: %5; }"
                       "QCheckBox::indicator:hover { border-color: %6; }"
                       "QCheckBox::indicator:checked { background: %7; }"
                       "QPushButton { color: %2; background: %5; border: 1px solid %8; padding: 2px 8px; }"
                       "QPushButton:hover { background: %9; border-color: %6; }"
                       "QPushButton:pressed { background: %10; }"
                       "QToolButton { background: transparent; border: none; }"
                       "QToolButton:hover { background: %9; border: 1px solid %6; }"
                       "QProgressBar { background: #323232; border: 1px solid #1f1f1f; }"
                       "QProgressBar::chunk { background: %11; }"
                       "QFrame[frameShape=\"4\"] { color: %12; }");
    sheet =
        sheet
            .arg(c(ThemeFileKey::Container1), c(ThemeFileKey::FontNormal1), c(ThemeFileKey::FontGroupHeader),
                 c(ThemeFileKey::WidgetOutline9), c(ThemeFileKey::WidgetContainer9), c(ThemeFileKey::HoverOutline1),
                 c(ThemeFileKey::WidgetContainer11), c(ThemeFileKey::WidgetOutline1), c(ThemeFileKey::HoverContainer1))
            .arg(c(ThemeFileKey::ClickContainer1), c(ThemeFileKey::ActiveOutline1), c(ThemeFileKey::Separator1));
    return sheet;
}

using Clock = std::chrono::steady_clock;

double Seconds(Clock::duration d)
{
    return std::chrono::duration<double>(d).count();
}

// Light -> Dark -> Light through the theme manager, until every control repainted.
void SwitchThemes(benchmark::State& state, bool globalStyleSheet)
{
    ThemeManager* themes = Themes();
    CoreUIManager::EnableGlobalStyleSheet(globalStyleSheet);
    qApp->setStyleSheet(QString());
    themes->SetCurrentTheme(QStringLiteral("Light"));
    ControlWindow window(NewLibraryControl);

    // The cost of the theme file alone: the same switches with no control listening.
    const auto loadOnce = [themes] {
        QSignalBlocker blocker(themes);
        themes->SetCurrentTheme(QStringLiteral("Dark"));
        themes->SetCurrentTheme(QStringLiteral("Light"));
    };
    loadOnce();
    QCoreApplication::processEvents();
    Clock::duration loadTime{};
    constexpr int kLoadRuns = 5;
    for (int i = 0; i < kLoadRuns; ++i) {
        const auto start = Clock::now();
        loadOnce();
        loadTime += Clock::now() - start;
    }
    QCoreApplication::processEvents();

    Clock::duration switchTime{};
    std::int64_t switches = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        for (const char* theme : {"Dark", "Light"}) {
            if (!window.mWatch.ChangeAndWait([themes, theme] { themes->SetCurrentTheme(QLatin1String(theme)); })) {
                state.SkipWithError("controls did not repaint");
                return;
            }
        }
        switchTime += Clock::now() - start;
        ++switches;
    }
    const double perSwitch = Seconds(switchTime) / double(2 * switches);
    const double loadPerSwitch = Seconds(loadTime) / double(2 * kLoadRuns);
    state.counters["ms_per_switch"] = perSwitch * 1e3;
    state.counters["ms_file_load"] = loadPerSwitch * 1e3;
    state.counters["us_per_control"] = (perSwitch - loadPerSwitch) * 1e6 / kControlCount;
    CoreUIManager::EnableGlobalStyleSheet(true);
}

void BM_SwitchLibrary(benchmark::State& state)
{
    SwitchThemes(state, false);
}

void BM_SwitchLibraryWithGlobalStyleSheet(benchmark::State& state)
{
    SwitchThemes(state, true);
}

// The floor under any switch: the window's panels, and with them every
// control, repaint with nothing changed.
void BM_RepaintOnly(benchmark::State& state)
{
    ThemeManager* themes = Themes();
    CoreUIManager::EnableGlobalStyleSheet(false);
    qApp->setStyleSheet(QString());
    themes->SetCurrentTheme(QStringLiteral("Light"));
    ControlWindow window(NewLibraryControl);
    const QList<QWidget*> panels = window.mWindow.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto _ : state) {
        for (int i = 0; i < 2; ++i) {
            window.mWatch.ChangeAndWait([&panels] {
                for (QWidget* panel : panels)
                    panel->update();
            });
        }
    }
    CoreUIManager::EnableGlobalStyleSheet(true);
}

void BM_SwitchStyleSheet(benchmark::State& state)
{
    const QString light = StyleSheetFor(QStringLiteral("Light"));
    const QString dark = StyleSheetFor(QStringLiteral("Dark"));
    CoreUIManager::EnableGlobalStyleSheet(false);
    qApp->setStyleSheet(light);
    {
        ControlWindow window(NewPlainControl);
        for (auto _ : state) {
            for (const QString* sheet : {&dark, &light}) {
                if (!window.mWatch.ChangeAndWait([sheet] { qApp->setStyleSheet(*sheet); })) {
                    state.SkipWithError("widgets did not repaint");
                    break;
                }
            }
        }
    }
    qApp->setStyleSheet(QString());
    CoreUIManager::EnableGlobalStyleSheet(true);
}

std::size_t ResidentBytes()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = statm.readAll().split(' ');
    return fields.size() > 1 ? std::size_t(fields.at(1).toULongLong()) * 4096 : 0;
}

void BM_SwitchMemoryGrowth(benchmark::State& state)
{
    ThemeManager* themes = Themes();
    CoreUIManager::EnableGlobalStyleSheet(false);
    themes->SetCurrentTheme(QStringLiteral("Light"));
    ControlWindow window(NewLibraryControl);
    const auto backAndForth = [&window, themes](int count) {
        for (int i = 0; i < count; ++i) {
            for (const char* theme : {"Dark", "Light"})
                window.mWatch.ChangeAndWait([themes, theme] { themes->SetCurrentTheme(QLatin1String(theme)); });
        }
    };
    for (auto _ : state) {
        backAndForth(5); // caches and pools reach their working size
        malloc_trim(0);
        const std::size_t heapBefore = mallinfo2().uordblks;
        const std::size_t rssBefore = ResidentBytes();
        backAndForth(100);
        malloc_trim(0);
        state.counters["heap_growth_kb"] = (double(mallinfo2().uordblks) - double(heapBefore)) / 1024.0;
        state.counters["rss_growth_kb"] = (double(ResidentBytes()) - double(rssBefore)) / 1024.0;
    }
    CoreUIManager::EnableGlobalStyleSheet(true);
}

void PaintWidget(benchmark::State& state, QWidget* widget)
{
    widget->resize(widget->sizeHint().expandedTo(QSize(140, 24)));
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        image.fill(Qt::transparent);
        widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        benchmark::DoNotOptimize(image.constBits());
    }
}

std::unique_ptr<QStyle>& FusionStyle()
{
    static std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Fusion")));
    return style;
}

void BM_PaintCheckBoxCustom(benchmark::State& state)
{
    Themes();
    CheckBox box(QStringLiteral("Check box"));
    box.setChecked(true);
    PaintWidget(state, &box);
}

void BM_PaintCheckBoxFusion(benchmark::State& state)
{
    QCheckBox box(QStringLiteral("Check box"));
    box.setStyle(FusionStyle().get());
    box.setChecked(true);
    PaintWidget(state, &box);
}

void BM_PaintSliderCustom(benchmark::State& state)
{
    Themes();
    QSlider slider(Qt::Horizontal);
    slider.setStyle(CustomStyle::GetInstance());
    slider.setValue(40);
    PaintWidget(state, &slider);
}

void BM_PaintSliderFusion(benchmark::State& state)
{
    QSlider slider(Qt::Horizontal);
    slider.setStyle(FusionStyle().get());
    slider.setValue(40);
    PaintWidget(state, &slider);
}

} // namespace

BENCHMARK(BM_SwitchLibrary)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);
BENCHMARK(BM_SwitchLibraryWithGlobalStyleSheet)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);
BENCHMARK(BM_RepaintOnly)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);
BENCHMARK(BM_SwitchStyleSheet)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);
BENCHMARK(BM_SwitchMemoryGrowth)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK(BM_PaintCheckBoxCustom)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_PaintCheckBoxFusion)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_PaintSliderCustom)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_PaintSliderFusion)->Unit(benchmark::kMicrosecond);

KVBENCH_RATIO("1000 controls: theme switch vs style sheet (goal 10x faster)", "BM_SwitchLibrary", "BM_SwitchStyleSheet",
              0.1);
KVBENCH_RATIO("... with the global scroll-bar style sheet on", "BM_SwitchLibraryWithGlobalStyleSheet",
              "BM_SwitchStyleSheet", 0.1);
KVBENCH_RATIO("repainting alone vs style sheet switch", "BM_RepaintOnly", "BM_SwitchStyleSheet", 0.1);
KVBENCH_RATIO("check box paint: custom style vs Fusion", "BM_PaintCheckBoxCustom", "BM_PaintCheckBoxFusion", 1.5);
KVBENCH_RATIO("slider paint: custom style vs Fusion", "BM_PaintSliderCustom", "BM_PaintSliderFusion", 1.5);

KVBENCH_MAIN();
