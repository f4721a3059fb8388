#include <KvUICore/platform/PlatformFiles_p.h>

#include <QDir>

#include <windows.h>
#include <winioctl.h>

#include <vector>

namespace Kavrel::UICore::Platform {

namespace {
// The symbolic-link reparse buffer; declared in the DDK only.
struct SymlinkReparseBuffer
{
    ULONG ReparseTag;
    USHORT ReparseDataLength;
    USHORT Reserved;
    USHORT SubstituteNameOffset;
    USHORT SubstituteNameLength;
    USHORT PrintNameOffset;
    USHORT PrintNameLength;
    ULONG Flags;
    WCHAR PathBuffer[1];
};
constexpr ULONG kSymlinkTag = 0xA000000C;
constexpr DWORD kMaximumReparseDataBufferSize = 16384;
} // namespace

QString LibraryModuleDirectory()
{
    HMODULE module = GetModuleHandleW(L"KvUICore.dll");
    if (!module)
        return QString();
    wchar_t buffer[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameW(module, buffer, MAX_PATH);
    if (length == 0)
        return QString();
    QDir dir(QDir::cleanPath(QString::fromWCharArray(buffer, int(length))));
    dir.cdUp();
    return dir.path();
}

QString SymbolicLinkTarget(const QString& path)
{
    wchar_t name[MAX_PATH] = {};
    path.left(MAX_PATH - 1).toWCharArray(name);
    HANDLE file = CreateFileW(name, GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                              FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return path;
    std::vector<char> data(kMaximumReparseDataBufferSize);
    DWORD returned = 0;
    const BOOL ok = DeviceIoControl(file, FSCTL_GET_REPARSE_POINT, nullptr, 0, data.data(),
                                    DWORD(data.size()), &returned, nullptr);
    CloseHandle(file);
    if (!ok)
        return path;
    const auto* reparse = reinterpret_cast<const SymlinkReparseBuffer*>(data.data());
    if (reparse->ReparseTag != kSymlinkTag)
        return path;
    const int characters = qMin(int(reparse->PrintNameLength / 2), MAX_PATH);
    const wchar_t* printName = reparse->PathBuffer + reparse->PrintNameOffset / 2;
    QString target = QDir::cleanPath(QString::fromWCharArray(printName, characters));
    if (QDir::isRelativePath(target)) {
        QDir dir(path);
        dir.cdUp();
        target = QDir::cleanPath(dir.absoluteFilePath(target));
    }
    return target;
}

} // namespace Kavrel::UICore::Platform
