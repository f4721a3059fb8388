// Shared by the fuzz targets and their replay programs: the application
// object the library needs, and a scratch folder for targets that read files.
#pragma once

#include <KvUICore/core/CoreUIManager.h>
#include <KvUICore/theme/ThemeManager.h>

#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace KvFuzz {

// One application for the whole run, on the offscreen platform unless the
// caller chose another; the library is initialised with the tree's themes.
inline void EnsureApplication()
{
    if (QCoreApplication::instance())
        return;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    new QApplication(argc, argv);
    // Hostile inputs make the library log a warning each: formatted (so the
    // run covers that code) but not printed, which would slow the run down.
    static QtMessageHandler previous = nullptr;
    previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (context.category && std::strncmp(context.category, "kvuicore.", 9) == 0)
            return;
        if (previous)
            previous(type, context, text);
    });
    Kavrel::UICore::CoreUIManager::Initialize(nullptr);
    Kavrel::UICore::ThemeManager::GetInstance()->SetThemeFilesPath(
        QStringLiteral(KVUICORE_THEMES_DIR).toStdWString().c_str());
}

// A folder that lives as long as the process; every input reuses the same
// file names so the folder does not grow.
inline QString ScratchPath(const QString& fileName)
{
    static QTemporaryDir folder;
    return QDir(folder.path()).filePath(fileName);
}

inline QString WriteScratchFile(const QString& fileName, const std::uint8_t* data, std::size_t size)
{
    const QString path = ScratchPath(fileName);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    return path;
}

inline QByteArray Bytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

// Splits the input at the first NUL into a short control part and the rest.
struct Split
{
    QByteArray head;
    QByteArray body;
};

inline Split SplitAtNul(const std::uint8_t* data, std::size_t size)
{
    const QByteArray all = Bytes(data, size);
    const qsizetype nul = all.indexOf('\0');
    if (nul < 0)
        return {QByteArray(), all};
    return {all.left(nul), all.mid(nul + 1)};
}

// An input broke a promise of the code under test: says which, then stops
// the run the way a crash does, so the input is kept as a finding.
[[noreturn]] inline void Fail(const char* promise)
{
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

} // namespace KvFuzz
