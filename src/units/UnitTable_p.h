#pragma once

// The one data table of the units component (UnitTable.cpp): every unit type
// with its conversion factor, every unit symbol with the way it is written, and
// the names both carry. Private to the component; the public classes answer
// from it.
//
// Numbering. A unit type is its group ORed with an index: 0x1000 unitless,
// 0x2000 length, 0x3000 area, 0x4000 volume, 0x5000 mass, 0x6000 time,
// 0x7000 temperature, 0x8000 angle, 0x9000 percent; metric units take the
// low indices, imperial ones start at 0x15 (0x2016 is the inch). A unit symbol
// is (variant << 16) | type. Variant 1 is the plain "number unit" form;
// for inches 0x30.. 0xA0 are the feet-and-inches and fractional forms (dash
// forms 0x60, 0x80, 0xA0; fractions 0x70, 0x80, 0x90, 0xA0) and for degrees
// 0x40, 0x50, 0x60 are degrees/minutes/seconds.
//
// Type rows: factor num/den to the group's base unit, zero point (temperatures),
// the smaller unit that may follow without an operator, the default symbol,
// the invariant name, the display name and the spellings Parse accepts.
// Symbol rows: layout, fraction style, number of parts, the default
// formatting string, the invariant name and the display name.

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
