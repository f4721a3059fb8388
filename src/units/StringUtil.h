#pragma once

#include <KvCoreUnits/KvCoreUnitsExport.h>

#include <QString>

namespace kavrel::platform::core::units {

// String conversions and name lookups shared by the units component and its users.
class KVCOREUNITS_EXPORT StringUtil
{
public:
    StringUtil() = delete;

    // Copies text into a caller buffer of `capacity` wide characters, always
    // terminated; returns the number of characters copied (without the terminator).
    // A null buffer or a capacity below 1 copies nothing and returns 0.
    static int QStringToWchar(const QString& text, wchar_t* buffer, int capacity);

    // A null pointer gives the empty string.
    static QString WcharToQString(const wchar_t* text);
};

} // namespace kavrel::platform::core::units
