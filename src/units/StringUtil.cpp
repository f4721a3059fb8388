#include <KvCoreUnits/StringUtil.h>

#include <algorithm>
#include <cwchar>

namespace kavrel::platform::core::units {

int StringUtil::QStringToWchar(const QString& text, wchar_t* buffer, int capacity)
{
    if (!buffer || capacity < 1)
        return 0;
    // toWCharArray writes whole code points; convert fully, then cut.
    const std::wstring wide = text.toStdWString();
    const int count = std::min<int>(int(wide.size()), capacity - 1);
    std::copy_n(wide.data(), count, buffer);
    buffer[count] = L'\0';
    return count;
}

QString StringUtil::WcharToQString(const wchar_t* text)
{
    if (!text)
        return QString();
    return QString::fromWCharArray(text, int(std::wcslen(text)));
}

} // namespace kavrel::platform::core::units
