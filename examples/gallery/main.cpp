#include "GalleryPage.h"
#include "GalleryWindow.h"

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QImage>
#include <QScrollArea>
#include <QTimer>

#include <cstdio>

using Kavrel::UICore::CoreUIManager;
using Kavrel::UICore::ThemeManager;

namespace {

QString slug(const QString& title)
{
    QString s = title.toLower();
    for (QChar& c : s) {
        if (!c.isLetterOrNumber())
            c = QLatin1Char('-');
    }
    return s;
}

bool save(const QImage& shot, const QString& path)
{
    if (!shot.save(path)) {
        std::fprintf(stderr, "gallery: could not write %s\n", qPrintable(path));
        return false;
    }
    std::printf("%s\n", qPrintable(path));
    return true;
}

// Renders every page in every built-in theme into folder, left to right and
// right to left, then returns.
int writeScreenshots(GalleryWindow& window, const QString& folder)
{
    QDir().mkpath(folder);
    int written = 0;
    for (const QString& theme : {QStringLiteral("Light"), QStringLiteral("Dark"), QStringLiteral("HIGLight")}) {
        if (!window.SwitchTheme(theme)) {
            std::fprintf(stderr, "gallery: theme %s could not be loaded\n", qPrintable(theme));
            return 1;
        }
        for (int page = 0; page < window.PageCount(); ++page) {
            window.ShowPage(page);
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            QImage shot = window.grab().toImage();
            QWidget* pageWidget = window.PageWidget(page);
            QRect visible(pageWidget->mapTo(&window, QPoint()), pageWidget->size());
            if (auto* area = qobject_cast<QScrollArea*>(pageWidget))
                visible = QRect(area->viewport()->mapTo(&window, QPoint()), area->viewport()->size());
            PaintFocusedLooks(shot, FocusedPlaces(&window), visible);
            if (!save(shot, QStringLiteral("%1/%2-%3.png").arg(folder, theme, slug(window.PageTitle(page)))))
                return 1;
            ++written;
            // A scrolling page is also written whole, as tall as its contents.
            if (auto* area = qobject_cast<QScrollArea*>(window.PageWidget(page)); area && area->widget()) {
                QWidget* contents = area->widget();
                const int width = area->viewport()->width();
                const int height =
                    contents->hasHeightForWidth() ? contents->heightForWidth(width) : contents->sizeHint().height();
                if (height > area->viewport()->height()) {
                    // Out of the scroll area for the moment, so that nothing sizes it back.
                    area->takeWidget();
                    contents->resize(width, height);
                    QImage shot = contents->grab().toImage();
                    const QList<FocusedPlace> places = FocusedPlaces(contents);
                    area->setWidget(contents);
                    QCoreApplication::processEvents();
                    PaintFocusedLooks(shot, places, QRect(0, 0, width, height));
                    if (!save(shot,
                              QStringLiteral("%1/%2-%3-full.png").arg(folder, theme, slug(window.PageTitle(page)))))
                        return 1;
                }
            }
        }
        // Every page once more, mirrored as a right-to-left host shows it.
        window.setLayoutDirection(Qt::RightToLeft);
        for (int page = 0; page < window.PageCount(); ++page) {
            window.ShowPage(page);
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            if (!save(window.grab().toImage(),
                      QStringLiteral("%1/%2-%3-rtl.png").arg(folder, theme, slug(window.PageTitle(page)))))
                return 1;
            ++written;
        }
        window.setLayoutDirection(Qt::LeftToRight);
    }
    return written > 0 ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("KvUICore gallery"));
    CoreUIManager::Initialize();

    QCommandLineParser parser;
    parser.addHelpOption();
    QCommandLineOption screenshots(
        QStringLiteral("screenshots"),
        QStringLiteral("Write a screenshot of every page in every theme to <folder> and exit."),
        QStringLiteral("folder"));
    QCommandLineOption themes(QStringLiteral("themes"), QStringLiteral("Folder of the theme files."),
                              QStringLiteral("folder"));
    parser.addOption(screenshots);
    parser.addOption(themes);
    parser.process(app);

    if (parser.isSet(themes))
        CoreUIManager::GetInstance()->SetThemeFilesPath(parser.value(themes).toStdWString().c_str());

    int result = 0;
    {
        GalleryWindow window;
        window.show();
        if (parser.isSet(screenshots)) {
            QCoreApplication::processEvents();
            result = writeScreenshots(window, parser.value(screenshots));
        } else {
            result = app.exec();
        }
    }
    CoreUIManager::Uninitialize();
    return result;
}
