#include <KvUICore/platform/PlatformFiles_p.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <limits.h>
#include <unistd.h>

#include <vector>

namespace Kavrel::UICore::Platform {

QString LibraryModuleDirectory()
{
    // Any address inside this library names the shared object that holds it.
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&LibraryModuleDirectory), &info) == 0 || !info.dli_fname)
        return QString();
    const QFileInfo file(QFile::decodeName(info.dli_fname));
    return file.absolutePath();
}

QString SymbolicLinkTarget(const QString& path)
{
    const QByteArray native = QFile::encodeName(path);
    std::vector<char> buffer(PATH_MAX + 1);
    const ssize_t length = ::readlink(native.constData(), buffer.data(), buffer.size() - 1);
    if (length <= 0)
        return path;
    QString target = QDir::cleanPath(QFile::decodeName(QByteArray(buffer.data(), int(length))));
    if (QDir::isRelativePath(target)) {
        QDir dir(path);
        dir.cdUp();
        target = QDir::cleanPath(dir.absoluteFilePath(target));
    }
    return target;
}

} // namespace Kavrel::UICore::Platform
