// The colour wheel's repaint after a hue change against a plain conical
// gradient ring, and an image swatch's first thumbnail of a large file against
// loading the whole image and scaling it, each at two sizes.
#include "BenchRatio.h"
#include "BenchTheme.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeManager.h>
#include <KvUICore/widgets/ColorWheel.h>
#include <KvUICore/widgets/ImageSwatch.h>
#include <KvUICore/widgets/ImageThumbnailCache_p.h>

#include <QConicalGradient>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTemporaryDir>

using namespace Kavrel::UICore;

namespace {

void Setup()
{
    kvbench::UseRepositoryTheme();
}

// Photo-like content (smooth gradients and some detail), saved once per size.
QString SampleFile(int side)
{
    static QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sample-%1.jpg").arg(side));
    if (!QFile::exists(path)) {
        QImage image(side, side, QImage::Format_RGB32);
        QPainter painter(&image);
        QLinearGradient sky(0, 0, side, side);
        sky.setColorAt(0, QColor(30, 90, 200));
        sky.setColorAt(1, QColor(250, 200, 120));
        painter.fillRect(image.rect(), sky);
        painter.setPen(QPen(QColor(20, 60, 20), side / 200.0));
        for (int i = 0; i < 200; ++i)
            painter.drawLine(i * side / 200, side, (i * 37 % 200) * side / 200, side / 2);
        painter.end();
        image.save(path, "JPEG", 90);
    }
    return path;
}

void BM_WheelRepaintAfterHueChange(benchmark::State& state)
{
    Setup();
    const int side = int(state.range(0));
    ColorWheel wheel;
    wheel.resize(side, side);
    QImage target(side, side, QImage::Format_ARGB32_Premultiplied);
    wheel.render(&target);
    double hue = 0.0;
    for (auto _ : state) {
        hue = hue >= 355.0 ? 0.0 : hue + 5.0;
        wheel.SetHsv(hue, 0.8, 0.9);
        target.fill(Qt::transparent);
        wheel.render(&target);
        benchmark::DoNotOptimize(target.constBits());
    }
}
BENCHMARK(BM_WheelRepaintAfterHueChange)->Arg(256)->Arg(512)->Unit(benchmark::kMicrosecond);

void BM_ConicalGradientRing(benchmark::State& state)
{
    const int side = int(state.range(0));
    QImage target(side, side, QImage::Format_ARGB32_Premultiplied);
    const QPointF centre(side / 2.0, side / 2.0);
    const double outer = side / 2.0 - 3.0;
    const double inner = outer * 0.84;
    QPainterPath ring;
    ring.addEllipse(centre, outer, outer);
    ring.addEllipse(centre, inner, inner);
    for (auto _ : state) {
        QConicalGradient hues(centre, 0.0);
        for (int i = 0; i <= 6; ++i)
            hues.setColorAt(i / 6.0, QColor::fromHsv((i * 60) % 360, 255, 255));
        target.fill(Qt::transparent);
        QPainter painter(&target);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.fillPath(ring, hues);
        painter.end();
        benchmark::DoNotOptimize(target.constBits());
    }
}
BENCHMARK(BM_ConicalGradientRing)->Arg(256)->Arg(512)->Unit(benchmark::kMicrosecond);

void BM_ImageSwatchFirstThumbnail(benchmark::State& state)
{
    Setup();
    const QString path = SampleFile(int(state.range(0)));
    ImageSwatch swatch;
    swatch.resize(64, 64);
    for (auto _ : state) {
        Internal::ClearThumbnailCache();
        swatch.SetFilePath(QString());
        swatch.SetFilePath(path);
        benchmark::DoNotOptimize(swatch.GetThumbnail().constBits());
    }
}
BENCHMARK(BM_ImageSwatchFirstThumbnail)->Arg(2000)->Arg(4000)->Unit(benchmark::kMillisecond);

void BM_QImageLoadAndScale(benchmark::State& state)
{
    const QString path = SampleFile(int(state.range(0)));
    for (auto _ : state) {
        QImage image;
        image.load(path);
        const QImage thumbnail = image.scaled(56, 56, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        benchmark::DoNotOptimize(thumbnail.constBits());
    }
}
BENCHMARK(BM_QImageLoadAndScale)->Arg(2000)->Arg(4000)->Unit(benchmark::kMillisecond);

} // namespace

KVBENCH_RATIO("wheel repaint after hue change vs conical ring, 256 px", "BM_WheelRepaintAfterHueChange/256",
              "BM_ConicalGradientRing/256", 1.5);
KVBENCH_RATIO("wheel repaint after hue change vs conical ring, 512 px", "BM_WheelRepaintAfterHueChange/512",
              "BM_ConicalGradientRing/512", 1.5);
KVBENCH_RATIO("image swatch first thumbnail vs QImage load + scaled, 2000 px", "BM_ImageSwatchFirstThumbnail/2000",
              "BM_QImageLoadAndScale/2000", 0.5);
KVBENCH_RATIO("image swatch first thumbnail vs QImage load + scaled, 4000 px", "BM_ImageSwatchFirstThumbnail/4000",
              "BM_QImageLoadAndScale/4000", 0.5);
KVBENCH_MAIN();
