#pragma once

// Shared test support. Pixel probes for the painting tests: rendered widgets are
// compared against theme colours in device pixels, so that the checks hold at
// any scale. Below them, the files the reading tests feed the library.

#include <KvUICore/core/CoreUIUtil_p.h>
#include <KvUICore/core/DrawingHelpers_p.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QList>
#include <QPainter>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

#include <cmath>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace Probe {

inline void UseRepositoryThemes(const QString& theme = QStringLiteral("Light"))
{
    Kavrel::UICore::Internal::SetWarningHook([](const QString&, const QString&) { return true; });
    auto* themes = Kavrel::UICore::ThemeManager::GetInstance();
    // KVUICORE_TEST_THEMES_DIR lets a developer run the probes against themes
    // being worked on; by default the repository's themes are used.
    const QString folder = qEnvironmentVariable("KVUICORE_TEST_THEMES_DIR", QStringLiteral(KVUICORE_THEMES_DIR));
    themes->SetThemeFilesPath(folder.toStdWString().c_str());
    QVERIFY(themes->SetCurrentTheme(theme) || themes->GetCurrentTheme() == theme);
}

inline QImage Grab(QWidget* widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

// The bucket: how many device pixels wide a one-line stroke is at this image's scale.
inline int Bucket(const QImage& image)
{
    using namespace Kavrel::UICore::Internal;
    return int(ResolutionBucket(DeviceScaleFactorForRatio(float(image.devicePixelRatio()))));
}

inline QColor ThemeColor(const QString& key)
{
    return Kavrel::UICore::ThemeManager::GetInstance()->GetColor(key);
}

// The colour at a logical point of a grabbed image, whatever its pixel ratio.
inline QColor PixelAt(const QImage& image, QPoint logical)
{
    const qreal ratio = image.devicePixelRatio();
    return image.pixelColor(qRound(logical.x() * ratio), qRound(logical.y() * ratio));
}

inline int DeviceFloor(const QImage& image, qreal logical)
{
    return int(std::floor(logical * image.devicePixelRatio() + 1e-6));
}

inline int DeviceCeil(const QImage& image, qreal logical)
{
    return int(std::ceil(logical * image.devicePixelRatio() - 0.01));
}

inline QColor Pixel(const QImage& image, int deviceX, int deviceY)
{
    return QColor::fromRgba(image.pixel(deviceX, deviceY));
}

// A colour painted over an opaque background, as the widget would show it.
inline QColor Composite(const QColor& background, const QBrush& brush)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(background);
    QPainter painter(&image);
    painter.fillRect(QRect(0, 0, 1, 1), brush.gradient() ? QBrush(brush.gradient()->stops().first().second) : brush);
    painter.end();
    return QColor::fromRgba(image.pixel(0, 0));
}

// The colour a brush (a gradient too) gives at a device pixel of an image of
// the given size when it fills logicalRect over background.
inline QColor Reference(const QImage& like, const QColor& background, const QBrush& brush, const QRectF& logicalRect,
                        int deviceX, int deviceY)
{
    QImage image(like.size(), QImage::Format_ARGB32);
    image.setDevicePixelRatio(like.devicePixelRatio());
    image.fill(background);
    QPainter painter(&image);
    painter.fillRect(logicalRect, brush);
    painter.end();
    return QColor::fromRgba(image.pixel(deviceX, deviceY));
}

// How many pixels of an image pass a test of their colour.
template <class Test> int Count(const QImage& image, Test test)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += test(QColor::fromRgba(image.pixel(x, y))) ? 1 : 0;
    }
    return count;
}

// Long enough for a sanitizer build sharing two cores; every wait ends as
// soon as its state is reached.
constexpr int kTimeoutMs = 30000;

// Shows a widget and waits until it is on screen.
inline bool Shown(QWidget* widget)
{
    widget->show();
    return QTest::qWaitForWindowExposed(widget, kTimeoutMs);
}

// Shows the window and makes it the active one. Under load the platform may
// confirm activation late or never; then the window is activated on Qt's
// side, which is what focus handling looks at.
inline bool ShowActive(QWidget* window)
{
    if (!Shown(window))
        return false;
    window->activateWindow();
    window->raise();
    if (QTest::qWaitForWindowActive(window, 3000))
        return true;
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(window);
    QT_WARNING_POP
    return QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }, kTimeoutMs);
}

// Gives a widget the focus, activating its window first when another window
// took over meanwhile, and waits until it has it.
inline bool Focus(QWidget* widget, Qt::FocusReason reason = Qt::OtherFocusReason)
{
    if (QApplication::activeWindow() != widget->window() && !ShowActive(widget->window()))
        return false;
    widget->setFocus(reason);
    return QTest::qWaitFor([widget] { return widget->hasFocus(); }, kTimeoutMs);
}

// Takes the focus away from a widget and waits until it has gone.
inline bool Unfocus(QWidget* widget)
{
    widget->clearFocus();
    return QTest::qWaitFor([widget] { return !widget->hasFocus(); }, kTimeoutMs);
}

// Builds a control in an active window of the given size, above a line edit
// named "other" that holds the focus, so a test can move the focus in and out.
// The window goes into owned (the test deletes it); null when it never became active.
template <class Control, class... Args> Control* ShownWithOther(QList<QWidget*>& owned, QSize size, Args&&... args)
{
    auto* window = new QWidget;
    owned << window;
    auto* layout = new QVBoxLayout(window);
    auto* control = new Control(std::forward<Args>(args)..., window);
    layout->addWidget(control);
    auto* other = new QLineEdit(window);
    other->setObjectName(QStringLiteral("other"));
    layout->addWidget(other);
    window->resize(size);
    if (!ShowActive(window) || !Focus(other))
        return nullptr;
    return control;
}

// WCAG's relative luminance and contrast ratio, worked out here rather than
// taken from the library, so that a fault there cannot hide a poor theme.
inline double Luminance(const QColor& c)
{
    auto linear = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

inline double Contrast(const QColor& a, const QColor& b)
{
    const double la = Luminance(a), lb = Luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

inline bool Near(const QColor& a, const QColor& b, int tolerance = 2)
{
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance && std::abs(a.alpha() - b.alpha()) <= tolerance;
}

struct Run
{
    QRgb color;
    int start;
    int length;
};

// Runs of equal pixels along a device column (or row), from first to last.
inline QList<Run> Runs(const QImage& image, int fixed, int first, int last, bool vertical = true)
{
    QList<Run> runs;
    for (int i = first; i <= last; ++i) {
        const QRgb pixel = vertical ? image.pixel(fixed, i) : image.pixel(i, fixed);
        if (!runs.isEmpty() && runs.last().color == pixel)
            ++runs.last().length;
        else
            runs.append(Run{pixel, i, 1});
    }
    return runs;
}

// The runs whose colour is not the background's.
inline QList<Run> Foreground(const QList<Run>& runs, QRgb background)
{
    QList<Run> result;
    for (const Run& run : runs) {
        if (run.color != background)
            result.append(run);
    }
    return result;
}

inline QString Describe(const QList<Run>& runs)
{
    QStringList parts;
    for (const Run& run : runs)
        parts << QStringLiteral("%1x%2@%3")
                     .arg(QColor::fromRgba(run.color).name(QColor::HexArgb))
                     .arg(run.length)
                     .arg(run.start);
    return parts.join(QLatin1Char(' '));
}

inline bool WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

inline QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Puts a file of the given kind at path and gives the path to read, or an empty
// string when it could not be made: "" holds content, "missing" is not there,
// "folder" is a folder,
// "fifo" a named pipe (Unix), "device" is /dev/zero, "missing folder" a path
// inside a folder that does not exist, "sparse" a file of sparseSize bytes
// that take no room on disk.
inline QString HostileFile(const QString& path, const QString& kind, const QByteArray& content = {},
                           qint64 sparseSize = 0)
{
    if (kind == QLatin1String("missing"))
        return path;
    if (kind == QLatin1String("folder"))
        return QDir().mkpath(path) ? path : QString();
    if (kind == QLatin1String("device"))
        return QStringLiteral("/dev/zero");
    if (kind == QLatin1String("missing folder"))
        return QFileInfo(path).dir().filePath(QStringLiteral("missing/") + QFileInfo(path).fileName());
#ifdef Q_OS_UNIX
    if (kind == QLatin1String("fifo"))
        return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0 ? path : QString();
#endif
    if (kind == QLatin1String("sparse")) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.resize(sparseSize) ? path : QString();
    }
    return kind.isEmpty() && WriteFile(path, content) ? path : QString();
}

} // namespace Probe

#define PROBE_COMPARE_COLOR(actual, expected)                                                                          \
    QVERIFY2(                                                                                                          \
        Probe::Near((actual), (expected)),                                                                             \
        qPrintable(QStringLiteral("%1 != %2").arg((actual).name(QColor::HexArgb), (expected).name(QColor::HexArgb))))
