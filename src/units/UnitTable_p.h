#pragma once

// The one data table of the units component: every unit type with its
// conversion factor, every unit symbol with the way it is written, and the
// names both carry. Private to the component; the public classes answer from it.

#include <KvCoreUnits/UnitsTypes.h>

#include <cstddef>

namespace kavrel::platform::core::units::detail {

// How a symbol splits a value into displayed parts.
enum class Layout
{
    Single,               // one number: 12.50 mm, 66 1/2"
    FeetInches,           // feet and inches: 5'-6 1/2"; the value is in inches
    DegreesMinutesSeconds // degrees, minutes, seconds: 45°30'15"; the value is in degrees
};

struct TypeRow
{
    int type;
    // One unit is num/den base units of its group. Both are exact integers
    // except where the definition itself is irrational (the radian).
    double num;
    double den;
    // The unit's reading at the group's zero; only temperatures have one.
    double zero;
    // The next smaller unit that may follow this one without an operator
    // (5' 6 is 5 feet 6 inches), 0 for none.
    int compoundNext;
    int primarySymbol;
    const char* globalName;    // invariant, never translated
    const char* displayName;   // UTF-8
    const wchar_t* parseNames; // '|'-separated spellings Parse accepts
};

struct SymbolRow
{
    int symbol;
    Layout layout;
    bool fraction;       // the last part is written as a binary fraction
    bool hyphenFraction; // 6-1/2 rather than 6 1/2
    int parts;           // numeric parts a formatting string must name
    const wchar_t* defaultTemplate;
    const char* globalName;
    const char* displayName; // UTF-8
};

inline int GroupOf(int type)
{
    return type & 0xF000;
}

inline int TypeOfSymbol(int symbol)
{
    return symbol & 0xFFFF;
}

const TypeRow* FindType(int type);
const SymbolRow* FindSymbol(int symbol);

const TypeRow* TypeRows(std::size_t& count);
const SymbolRow* SymbolRows(std::size_t& count);

// The type that a spelling names inside a group, 0 when the group has no such
// name. `otherGroup` (may be null) tells whether some other group knows it.
int LookupUnitName(int group, const wchar_t* name, std::size_t length, bool* otherGroup);

// Converts between two types of one group; false for different groups.
bool ConvertBetween(double value, const TypeRow& from, const TypeRow& to, double& out);

} // namespace kavrel::platform::core::units::detail
