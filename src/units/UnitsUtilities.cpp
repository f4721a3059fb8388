#include <KvCoreUnits/UnitsUtilities.h>

#include <KvCoreUnits/UnitTable_p.h>

namespace kavrel::platform::core::units {

using Units = kvp::IDesignPropertyUnits;

bool UnitsUtilities::IsUnit(int type)
{
    return detail::FindType(type) != nullptr;
}

bool UnitsUtilities::IsUnitSymbol(int symbol)
{
    return detail::FindSymbol(symbol) != nullptr;
}

ErrorCode UnitsUtilities::GetUnitType(UnitSymbol symbol, Units::teType& type)
{
    if (!detail::FindSymbol(symbol))
        return kUnknownUnit;
    type = Units::teType(detail::TypeOfSymbol(symbol));
    return kSuccess;
}

ErrorCode UnitsUtilities::GetUnitGroup(Units::teType type, Units::teGroup& group)
{
    if (!detail::FindType(type))
        return kUnknownUnit;
    group = Units::teGroup(detail::GroupOf(type));
    return kSuccess;
}

ErrorCode UnitsUtilities::GetDefaultSymbol(Units::teType type, UnitSymbol& symbol)
{
    const detail::TypeRow* row = detail::FindType(type);
    if (!row)
        return kUnknownUnit;
    symbol = UnitSymbol(row->primarySymbol);
    return kSuccess;
}

int UnitsUtilities::GetSymbolPartCount(UnitSymbol symbol)
{
    const detail::SymbolRow* row = detail::FindSymbol(symbol);
    return row ? row->parts : 0;
}

QList<Units::teType> UnitsUtilities::GetAllUnits()
{
    std::size_t count = 0;
    const detail::TypeRow* rows = detail::TypeRows(count);
    QList<Units::teType> result;
    result.reserve(qsizetype(count));
    for (std::size_t i = 0; i < count; ++i)
        result.append(Units::teType(rows[i].type));
    return result;
}

QList<UnitSymbol> UnitsUtilities::GetAllSymbols()
{
    std::size_t count = 0;
    const detail::SymbolRow* rows = detail::SymbolRows(count);
    QList<UnitSymbol> result;
    result.reserve(qsizetype(count));
    for (std::size_t i = 0; i < count; ++i)
        result.append(UnitSymbol(rows[i].symbol));
    return result;
}

} // namespace kavrel::platform::core::units
