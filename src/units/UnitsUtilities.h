#pragma once

#include <KvCoreUnits/KvCoreUnitsExport.h>
#include <KvCoreUnits/UnitsTypes.h>

#include <QList>

namespace kavrel::platform::core::units {

/// Validation and classification of unit types and symbols.
class KVCOREUNITS_EXPORT UnitsUtilities
{
public:
    UnitsUtilities() = delete;

    /// Whether the component knows the unit type.
    static bool IsUnit(int type);
    /// Whether the component knows the symbol.
    static bool IsUnitSymbol(int symbol);
    /// The unit type a symbol writes; kUnknownUnit for an unknown symbol.
    static ErrorCode GetUnitType(UnitSymbol symbol, kvp::IDesignPropertyUnits::teType& type);
    /// The group of a unit type; kUnknownUnit for an unknown type.
    static ErrorCode GetUnitGroup(kvp::IDesignPropertyUnits::teType type, kvp::IDesignPropertyUnits::teGroup& group);
    /// The symbol a type is written with unless told otherwise ("mm" for millimeters).
    static ErrorCode GetDefaultSymbol(kvp::IDesignPropertyUnits::teType type, UnitSymbol& symbol);
    /// How many numeric parts a symbol shows (2 for feet and inches, 3 for
    /// degrees, minutes and seconds); 0 for an unknown symbol.
    static int GetSymbolPartCount(UnitSymbol symbol);

    /// Every unit type and every symbol the component knows, in table order.
    static QList<kvp::IDesignPropertyUnits::teType> GetAllUnits();
    /// Every symbol the component knows, in table order.
    static QList<UnitSymbol> GetAllSymbols();
};

} // namespace kavrel::platform::core::units
