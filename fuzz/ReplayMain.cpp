// Feeds every file of the folders (or the files) named on the command line to
// a fuzz target, one after another, so saved findings and seed inputs run in
// the ordinary test build without a fuzzing compiler. A finding that comes
// back crashes this program, which fails the test.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

QStringList InputFiles(const QString& argument)
{
    const QFileInfo info(argument);
    if (info.isFile())
        return {info.filePath()};
    QStringList files;
    const QDir folder(argument);
    // Sorted, so a failure names the same input on every run.
    for (const QFileInfo& entry : folder.entryInfoList(QDir::Files | QDir::Hidden, QDir::Name)) {
        if (!entry.fileName().startsWith(QLatin1String("README")))
            files.append(entry.filePath());
    }
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        for (const QString& path : InputFiles(QString::fromLocal8Bit(argv[i]))) {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
                return 1;
            }
            const QByteArray data = file.readAll();
            std::fprintf(stderr, "%s\n", qPrintable(path));
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(data.constData()), std::size_t(data.size()));
            ++replayed;
        }
    }
    std::printf("replayed %d inputs\n", replayed);
    return 0;
}
