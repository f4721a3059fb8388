#pragma once

#include <KvCoreUnits/KvCoreUnitsExport.h>
#include <KvCoreUnits/UnitsTypes.h>

#include <QString>

namespace kavrel::platform::core::units {

/// String conversions and name lookups shared by the units component and its users.
class KVCOREUNITS_EXPORT StringUtil
{
public:
    StringUtil() = delete;

    /// Copies text into a caller buffer of `capacity` wide characters, always
    /// terminated; returns the number of characters copied (without the terminator).
    /// A null buffer or a capacity below 1 copies nothing and returns 0.
    static int QStringToWchar(const QString& text, wchar_t* buffer, int capacity);

    /// A null pointer gives the empty string.
    static QString WcharToQString(const wchar_t* text);

    /// The invariant name of a unit type ("Millimeter") or of a unit symbol
    /// ("mm", "FeetDashFractionalInches"); empty for an unknown value.
    static QString GetUnitGlobalName(int unitOrSymbol);
    /// The invariant name of a numeric format ("Decimal"); empty for an unknown one.
    static QString GetGlobalName(NumberFormat format);
    /// The symbol with that invariant name; an exact match wins over one that
    /// ignores case. kUnknownName leaves `symbol` alone.
    static ErrorCode GetUnitSymbol(const QString& name, UnitSymbol& symbol);
    /// The unit type with that invariant name, matched as GetUnitSymbol does.
    static ErrorCode GetUnitType(const QString& name, kvp::IDesignPropertyUnits::teType& type);
    /// The numeric format with that invariant name, case ignored.
    static ErrorCode GetNumberFormatId(const QString& name, NumberFormat& format);
};

} // namespace kavrel::platform::core::units
