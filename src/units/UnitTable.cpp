#include <KvCoreUnits/UnitTable_p.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cwctype>
#include <numeric>
#include <string>
#include <vector>

namespace kavrel::platform::core::units::detail {

namespace {

using T = kvp::IDesignPropertyUnits;

constexpr double kPi = 3.14159265358979323846;

// Base units: millimetre, square millimetre, cubic millimetre, gram, second,
// degree Celsius, degree of arc, ratio. Factors are exact by definition:
// 1 in = 25.4 mm = 127/5 mm, 1 lb = 0.45359237 kg, 1 US gal = 231 in³,
// 1° F = 5/9 K with 32 °F at 0 °C, 1 rad = 180/π degrees.
const TypeRow kTypes[] = {
    {T::eUnitless, 1, 1, 0, 0, kSymbolUnitless, "Unitless", "", L""},

    {T::eMillimeter, 1, 1, 0, 0, kSymbolMillimeter, "Millimeter", "Millimeters",
     L"mm|millimeter|millimeters|millimetre|millimetres"},
    {T::eCentimeter, 10, 1, 0, 0, kSymbolCentimeter, "Centimeter", "Centimeters",
     L"cm|centimeter|centimeters|centimetre|centimetres"},
    {T::eMeter, 1000, 1, 0, 0, kSymbolMeter, "Meter", "Meters", L"m|meter|meters|metre|metres"},
    {T::eKilometer, 1000000, 1, 0, 0, kSymbolKilometer, "Kilometer", "Kilometers",
     L"km|kilometer|kilometers|kilometre|kilometres"},
    {T::eMicrometer, 1, 1000, 0, 0, kSymbolMicrometer, "Micrometer", "Micrometers",
     L"\u00B5m|\u03BCm|um|micron|microns|micrometer|micrometers|micrometre|micrometres"},
    {T::eFoot, 1524, 5, 0, T::eInch, kSymbolFoot, "Foot", "Feet", L"ft|'|\u2032|\u2019|foot|feet"},
    {T::eInch, 127, 5, 0, 0, kSymbolInch, "Inch", "Inches", L"in|\"|\u2033|\u201D|''|inch|inches"},
    {T::eYard, 4572, 5, 0, 0, kSymbolYard, "Yard", "Yards", L"yd|yard|yards"},
    {T::eMile, 1609344, 1, 0, 0, kSymbolMile, "Mile", "Miles", L"mi|mile|miles"},

    {T::eSquareMillimeter, 1, 1, 0, 0, kSymbolSquareMillimeter, "SquareMillimeter", "Square millimeters", L"mm\u00B2|mm^2"},
    {T::eSquareCentimeter, 100, 1, 0, 0, kSymbolSquareCentimeter, "SquareCentimeter", "Square centimeters",
     L"cm\u00B2|cm^2"},
    {T::eSquareMeter, 1000000, 1, 0, 0, kSymbolSquareMeter, "SquareMeter", "Square meters", L"m\u00B2|m^2"},
    {T::eSquareKilometer, 1e12, 1, 0, 0, kSymbolSquareKilometer, "SquareKilometer", "Square kilometers", L"km\u00B2|km^2"},
    {T::eHectare, 1e10, 1, 0, 0, kSymbolHectare, "Hectare", "Hectares", L"ha|hectare|hectares"},
    {T::eSquareFoot, 2322576, 25, 0, 0, kSymbolSquareFoot, "SquareFoot", "Square feet", L"ft\u00B2|ft^2|sqft"},
    {T::eSquareInch, 16129, 25, 0, 0, kSymbolSquareInch, "SquareInch", "Square inches", L"in\u00B2|in^2|sqin"},
    {T::eSquareYard, 20903184, 25, 0, 0, kSymbolSquareYard, "SquareYard", "Square yards", L"yd\u00B2|yd^2"},
    {T::eSquareMile, 2589988110336.0, 1, 0, 0, kSymbolSquareMile, "SquareMile", "Square miles", L"mi\u00B2|mi^2"},
    {T::eAcre, 20234282112.0, 5, 0, 0, kSymbolAcre, "Acre", "Acres", L"ac|acre|acres"},

    {T::eCubicMillimeter, 1, 1, 0, 0, kSymbolCubicMillimeter, "CubicMillimeter", "Cubic millimeters", L"mm\u00B3|mm^3"},
    {T::eCubicCentimeter, 1000, 1, 0, 0, kSymbolCubicCentimeter, "CubicCentimeter", "Cubic centimeters",
     L"cm\u00B3|cm^3|cc"},
    {T::eCubicMeter, 1e9, 1, 0, 0, kSymbolCubicMeter, "CubicMeter", "Cubic meters", L"m\u00B3|m^3"},
    {T::eLiter, 1e6, 1, 0, 0, kSymbolLiter, "Liter", "Liters", L"L|l|liter|liters|litre|litres"},
    {T::eMilliliter, 1000, 1, 0, 0, kSymbolMilliliter, "Milliliter", "Milliliters",
     L"mL|ml|milliliter|milliliters|millilitre|millilitres"},
    {T::eCubicFoot, 3539605824.0, 125, 0, 0, kSymbolCubicFoot, "CubicFoot", "Cubic feet", L"ft\u00B3|ft^3"},
    {T::eCubicInch, 2048383, 125, 0, 0, kSymbolCubicInch, "CubicInch", "Cubic inches", L"in\u00B3|in^3"},
    {T::eCubicYard, 95569357248.0, 125, 0, 0, kSymbolCubicYard, "CubicYard", "Cubic yards", L"yd\u00B3|yd^3"},
    {T::eUSGallon, 473176473, 125, 0, 0, kSymbolUSGallon, "USGallon", "US gallons", L"gal|gallon|gallons"},

    {T::eMilligram, 1, 1000, 0, 0, kSymbolMilligram, "Milligram", "Milligrams", L"mg|milligram|milligrams"},
    {T::eGram, 1, 1, 0, 0, kSymbolGram, "Gram", "Grams", L"g|gram|grams"},
    {T::eKilogram, 1000, 1, 0, 0, kSymbolKilogram, "Kilogram", "Kilograms", L"kg|kilogram|kilograms"},
    {T::eTonne, 1000000, 1, 0, 0, kSymbolTonne, "Tonne", "Tonnes", L"t|tonne|tonnes"},
    {T::eOunce, 45359237, 1600000, 0, 0, kSymbolOunce, "Ounce", "Ounces", L"oz|ounce|ounces"},
    {T::ePound, 45359237, 100000, 0, 0, kSymbolPound, "Pound", "Pounds", L"lb|lbs|pound|pounds"},

    {T::eMillisecond, 1, 1000, 0, 0, kSymbolMillisecond, "Millisecond", "Milliseconds", L"ms|millisecond|milliseconds"},
    {T::eSecond, 1, 1, 0, 0, kSymbolSecond, "Second", "Seconds", L"s|sec|second|seconds"},
    {T::eMinute, 60, 1, 0, 0, kSymbolMinute, "Minute", "Minutes", L"min|minute|minutes"},
    {T::eHour, 3600, 1, 0, 0, kSymbolHour, "Hour", "Hours", L"h|hr|hour|hours"},
    {T::eDay, 86400, 1, 0, 0, kSymbolDay, "Day", "Days", L"d|day|days"},

    {T::eCelsius, 1, 1, 0, 0, kSymbolCelsius, "Celsius", "Degrees Celsius", L"\u00B0C|\u2103|C|degC|celsius"},
    {T::eKelvin, 1, 1, 273.15, 0, kSymbolKelvin, "Kelvin", "Kelvins", L"K|kelvin"},
    {T::eFahrenheit, 5, 9, 32, 0, kSymbolFahrenheit, "Fahrenheit", "Degrees Fahrenheit", L"\u00B0F|\u2109|F|degF|fahrenheit"},
    {T::eRankine, 5, 9, 491.67, 0, kSymbolRankine, "Rankine", "Degrees Rankine", L"\u00B0R|R|degR|rankine"},

    {T::eRadian, 180, kPi, 0, 0, kSymbolRadian, "Radian", "Radians", L"rad|radian|radians"},
    {T::eDegree, 1, 1, 0, T::eArcMinute, kSymbolDegree, "Degree", "Degrees", L"\u00B0|deg|d|degree|degrees"},
    {T::eGradian, 9, 10, 0, 0, kSymbolGradian, "Gradian", "Gradians", L"grad|gon|gradian|gradians"},
    {T::eTurn, 360, 1, 0, 0, kSymbolTurn, "Turn", "Turns", L"tr|turn|turns|rev"},
    {T::eArcMinute, 1, 60, 0, T::eArcSecond, kSymbolArcMinute, "ArcMinute", "Minutes of arc", L"'|\u2032|\u2019|m|arcmin"},
    {T::eArcSecond, 1, 3600, 0, 0, kSymbolArcSecond, "ArcSecond", "Seconds of arc", L"\"|\u2033|\u201D|''|s|arcsec"},

    {T::ePercent, 1, 100, 0, 0, kSymbolPercent, "Percent", "Percent", L"%|percent"},
    {T::eRatio, 1, 1, 0, 0, kSymbolRatio, "Ratio", "Ratio", L""},
    {T::ePerMille, 1, 1000, 0, 0, kSymbolPerMille, "PerMille", "Per mille", L"\u2030|permille"},
};

constexpr Layout S = Layout::Single;
constexpr Layout FI = Layout::FeetInches;
constexpr Layout DMS = Layout::DegreesMinutesSeconds;

// Placeholders {0}, {1}, {2} stand for the numeric parts in order; everything
// else is written as it stands.
const SymbolRow kSymbols[] = {
    {kSymbolUnitless, S, false, false, 1, L"{0}", "Unitless", ""},

    {kSymbolMillimeter, S, false, false, 1, L"{0} mm", "mm", "Millimeters"},
    {kSymbolCentimeter, S, false, false, 1, L"{0} cm", "cm", "Centimeters"},
    {kSymbolMeter, S, false, false, 1, L"{0} m", "m", "Meters"},
    {kSymbolKilometer, S, false, false, 1, L"{0} km", "km", "Kilometers"},
    {kSymbolMicrometer, S, false, false, 1, L"{0} \u00B5m", "um", "Micrometers"},
    {kSymbolFoot, S, false, false, 1, L"{0} ft", "ft", "Feet"},
    {kSymbolFootMark, S, false, false, 1, L"{0}'", "FootMark", "Feet"},
    {kSymbolInch, S, false, false, 1, L"{0} in", "in", "Inches"},
    {kSymbolInchMark, S, false, false, 1, L"{0}\"", "InchMark", "Inches"},
    {kSymbolFeetInches, FI, false, false, 2, L"{0}' {1}\"", "FeetInches", "Feet and inches"},
    {kSymbolFeetInchesWords, FI, false, false, 2, L"{0} ft {1} in", "FeetInchesWords", "Feet and inches"},
    {kSymbolFeetDashInches, FI, false, false, 2, L"{0}'-{1}\"", "FeetDashInches", "Feet and inches"},
    {kSymbolFractionalInches, S, true, false, 1, L"{0}\"", "FractionalInches", "Fractional inches"},
    {kSymbolFeetDashFractionalInches, FI, true, false, 2, L"{0}'-{1}\"", "FeetDashFractionalInches",
     "Feet and fractional inches"},
    {kSymbolFractionalInchesWords, S, true, false, 1, L"{0} in", "FractionalInchesWords", "Fractional inches"},
    {kSymbolFeetDashHyphenFractionalInches, FI, true, true, 2, L"{0}'-{1}\"", "FeetDashHyphenFractionalInches",
     "Feet and fractional inches"},
    {kSymbolYard, S, false, false, 1, L"{0} yd", "yd", "Yards"},
    {kSymbolMile, S, false, false, 1, L"{0} mi", "mi", "Miles"},

    {kSymbolSquareMillimeter, S, false, false, 1, L"{0} mm\u00B2", "mm2", "Square millimeters"},
    {kSymbolSquareCentimeter, S, false, false, 1, L"{0} cm\u00B2", "cm2", "Square centimeters"},
    {kSymbolSquareMeter, S, false, false, 1, L"{0} m\u00B2", "m2", "Square meters"},
    {kSymbolSquareKilometer, S, false, false, 1, L"{0} km\u00B2", "km2", "Square kilometers"},
    {kSymbolHectare, S, false, false, 1, L"{0} ha", "ha", "Hectares"},
    {kSymbolSquareFoot, S, false, false, 1, L"{0} ft\u00B2", "ft2", "Square feet"},
    {kSymbolSquareInch, S, false, false, 1, L"{0} in\u00B2", "in2", "Square inches"},
    {kSymbolSquareYard, S, false, false, 1, L"{0} yd\u00B2", "yd2", "Square yards"},
    {kSymbolSquareMile, S, false, false, 1, L"{0} mi\u00B2", "mi2", "Square miles"},
    {kSymbolAcre, S, false, false, 1, L"{0} ac", "acre", "Acres"},

    {kSymbolCubicMillimeter, S, false, false, 1, L"{0} mm\u00B3", "mm3", "Cubic millimeters"},
    {kSymbolCubicCentimeter, S, false, false, 1, L"{0} cm\u00B3", "cm3", "Cubic centimeters"},
    {kSymbolCubicMeter, S, false, false, 1, L"{0} m\u00B3", "m3", "Cubic meters"},
    {kSymbolLiter, S, false, false, 1, L"{0} L", "L", "Liters"},
    {kSymbolMilliliter, S, false, false, 1, L"{0} mL", "mL", "Milliliters"},
    {kSymbolCubicFoot, S, false, false, 1, L"{0} ft\u00B3", "ft3", "Cubic feet"},
    {kSymbolCubicInch, S, false, false, 1, L"{0} in\u00B3", "in3", "Cubic inches"},
    {kSymbolCubicYard, S, false, false, 1, L"{0} yd\u00B3", "yd3", "Cubic yards"},
    {kSymbolUSGallon, S, false, false, 1, L"{0} gal", "gal", "US gallons"},

    {kSymbolMilligram, S, false, false, 1, L"{0} mg", "mg", "Milligrams"},
    {kSymbolGram, S, false, false, 1, L"{0} g", "g", "Grams"},
    {kSymbolKilogram, S, false, false, 1, L"{0} kg", "kg", "Kilograms"},
    {kSymbolTonne, S, false, false, 1, L"{0} t", "t", "Tonnes"},
    {kSymbolOunce, S, false, false, 1, L"{0} oz", "oz", "Ounces"},
    {kSymbolPound, S, false, false, 1, L"{0} lb", "lb", "Pounds"},

    {kSymbolMillisecond, S, false, false, 1, L"{0} ms", "ms", "Milliseconds"},
    {kSymbolSecond, S, false, false, 1, L"{0} s", "s", "Seconds"},
    {kSymbolMinute, S, false, false, 1, L"{0} min", "min", "Minutes"},
    {kSymbolHour, S, false, false, 1, L"{0} h", "h", "Hours"},
    {kSymbolDay, S, false, false, 1, L"{0} d", "d", "Days"},

    {kSymbolCelsius, S, false, false, 1, L"{0} \u00B0C", "degC", "Degrees Celsius"},
    {kSymbolKelvin, S, false, false, 1, L"{0} K", "K", "Kelvins"},
    {kSymbolFahrenheit, S, false, false, 1, L"{0} \u00B0F", "degF", "Degrees Fahrenheit"},
    {kSymbolRankine, S, false, false, 1, L"{0} \u00B0R", "degR", "Degrees Rankine"},

    {kSymbolRadian, S, false, false, 1, L"{0} rad", "rad", "Radians"},
    {kSymbolDegree, S, false, false, 1, L"{0}\u00B0", "deg", "Degrees"},
    {kSymbolDegreeWord, S, false, false, 1, L"{0} deg", "DegreeWord", "Degrees"},
    {kSymbolDegreesMinutesSeconds, DMS, false, false, 3, L"{0}\u00B0{1}'{2}\"", "DMS", "Degrees, minutes, seconds"},
    {kSymbolDegreesMinutesSecondsLetters, DMS, false, false, 3, L"{0}d{1}m{2}s", "DMSLetters",
     "Degrees, minutes, seconds"},
    {kSymbolDegreesMinutesSecondsSpaced, DMS, false, false, 3, L"{0}\u00B0 {1}' {2}\"", "DMSSpaced",
     "Degrees, minutes, seconds"},
    {kSymbolGradian, S, false, false, 1, L"{0} grad", "grad", "Gradians"},
    {kSymbolTurn, S, false, false, 1, L"{0} tr", "turn", "Turns"},
    {kSymbolArcMinute, S, false, false, 1, L"{0}'", "arcmin", "Minutes of arc"},
    {kSymbolArcSecond, S, false, false, 1, L"{0}\"", "arcsec", "Seconds of arc"},

    {kSymbolPercent, S, false, false, 1, L"{0}%", "percent", "Percent"},
    {kSymbolRatio, S, false, false, 1, L"{0}", "ratio", "Ratio"},
    {kSymbolPerMille, S, false, false, 1, L"{0}\u2030", "permille", "Per mille"},
};

constexpr int kGroupSlots = 16;
constexpr int kIndexSlots = 64;

struct Ratio
{
    double num = 1;
    double den = 1;
};

struct NameEntry
{
    std::wstring name;
    int type;
};

struct Tables
{
    std::array<const TypeRow*, kGroupSlots * kIndexSlots> types {};
    std::vector<const SymbolRow*> symbols; // sorted by symbol
    // Conversion ratio between any two types of a group, reduced where exact.
    std::array<int, kGroupSlots * kIndexSlots> dense {}; // slot -> row index
    std::vector<Ratio> ratios;                           // [dense(from) * rows + dense(to)]
    std::vector<NameEntry> names[kGroupSlots];

    static int Slot(int type) { return ((type >> 12) & 0xF) * kIndexSlots + (type & 0xFFF); }

    Tables()
    {
        for (std::size_t i = 0; i < std::size(kTypes); ++i) {
            types[std::size_t(Slot(kTypes[i].type))] = &kTypes[i];
            dense[std::size_t(Slot(kTypes[i].type))] = int(i);
        }
        for (const SymbolRow& row : kSymbols)
            symbols.push_back(&row);
        std::sort(symbols.begin(), symbols.end(),
                  [](const SymbolRow* a, const SymbolRow* b) { return a->symbol < b->symbol; });

        const std::size_t rows = std::size(kTypes);
        ratios.resize(rows * rows);
        for (std::size_t i = 0; i < rows; ++i) {
            for (std::size_t j = 0; j < rows; ++j) {
                if (GroupOf(kTypes[i].type) == GroupOf(kTypes[j].type))
                    ratios[i * rows + j] = MakeRatio(kTypes[i], kTypes[j]);
            }
        }

        for (const TypeRow& row : kTypes) {
            const std::wstring all(row.parseNames);
            std::size_t start = 0;
            while (start < all.size()) {
                std::size_t end = all.find(L'|', start);
                if (end == std::wstring::npos)
                    end = all.size();
                if (end > start)
                    names[(row.type >> 12) & 0xF].push_back({all.substr(start, end - start), row.type});
                start = end + 1;
            }
        }
    }

    static bool IsWhole(double v) { return v == std::floor(v) && std::fabs(v) < 9007199254740992.0; }

    static Ratio MakeRatio(const TypeRow& from, const TypeRow& to)
    {
        // value_to = value_from * (from.num * to.den) / (from.den * to.num)
        if (IsWhole(from.num) && IsWhole(from.den) && IsWhole(to.num) && IsWhole(to.den)) {
            std::uint64_t a = std::uint64_t(from.num), b = std::uint64_t(to.den);
            std::uint64_t c = std::uint64_t(from.den), d = std::uint64_t(to.num);
            std::uint64_t g = std::gcd(a, d);
            a /= g;
            d /= g;
            g = std::gcd(c, b);
            c /= g;
            b /= g;
            constexpr std::uint64_t kLimit = std::uint64_t(1) << 53;
            if (b != 0 && d != 0 && a <= kLimit / b && c <= kLimit / d) {
                const std::uint64_t n = a * b;
                const std::uint64_t m = c * d;
                const std::uint64_t h = std::gcd(n, m);
                return {double(n / h), double(m / h)};
            }
        }
        return {from.num * to.den, from.den * to.num};
    }
};

const Tables& GetTables()
{
    static const Tables tables;
    return tables;
}

// x * n / d with one rounding in practice: the product's error is carried by fma
// so that converting there and back gives the starting value for nearly all x.
double MulDiv(double x, double n, double d, bool* exact)
{
    const double p = x * n;
    const double e = std::fma(x, n, -p);
    const double q = p / d;
    const double r = std::fma(-q, d, p);
    if (exact)
        *exact = e == 0 && r == 0;
    if (d == 1)
        return p;
    if (n == 1)
        return q;
    return q + (r + e) / d;
}

int ShortestLength(double v)
{
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, v);
    return int(result.ptr - buffer);
}

// An inexact conversion lands within a rounding or two of the true result.
// Of the doubles that close, the one with the shortest decimal form is taken:
// values people type (12.34 mm) then convert to the value they would type in
// the other unit (1.234 cm) and back to exactly what they typed.
double Tidy(double v)
{
    if (!std::isfinite(v) || v == 0)
        return v;
    const int length = ShortestLength(v);
    if (length <= 8)
        return v;
    double best = v;
    int bestLength = length;
    double below = v;
    double above = v;
    for (int step = 0; step < 2; ++step) {
        below = std::nextafter(below, -HUGE_VAL);
        above = std::nextafter(above, HUGE_VAL);
        for (const double candidate : {below, above}) {
            const int candidateLength = ShortestLength(candidate);
            if (candidateLength < bestLength) {
                best = candidate;
                bestLength = candidateLength;
            }
        }
    }
    // Only a clearly shorter form counts; otherwise keep the rounded result.
    return bestLength + 3 <= length ? best : v;
}

wchar_t FoldCase(wchar_t c)
{
    if (c >= L'A' && c <= L'Z')
        return wchar_t(c - L'A' + L'a');
    return c;
}

bool EqualsFolded(const std::wstring& a, const wchar_t* b, std::size_t length)
{
    if (a.size() != length)
        return false;
    for (std::size_t i = 0; i < length; ++i) {
        if (FoldCase(a[i]) != FoldCase(b[i]))
            return false;
    }
    return true;
}

int LookupInGroup(int groupSlot, const wchar_t* name, std::size_t length)
{
    const auto& list = GetTables().names[groupSlot];
    for (const NameEntry& entry : list) {
        if (entry.name.size() == length && entry.name.compare(0, length, name, length) == 0)
            return entry.type;
    }
    for (const NameEntry& entry : list) {
        if (EqualsFolded(entry.name, name, length))
            return entry.type;
    }
    return 0;
}

} // namespace

const TypeRow* FindType(int type)
{
    if (type <= 0 || type > 0xFFFF || (type & 0xFFF) >= kIndexSlots)
        return nullptr;
    return GetTables().types[std::size_t(Tables::Slot(type))];
}

const SymbolRow* FindSymbol(int symbol)
{
    const auto& symbols = GetTables().symbols;
    auto it = std::lower_bound(symbols.begin(), symbols.end(), symbol,
                               [](const SymbolRow* row, int value) { return row->symbol < value; });
    if (it == symbols.end() || (*it)->symbol != symbol)
        return nullptr;
    return *it;
}

const TypeRow* TypeRows(std::size_t& count)
{
    count = std::size(kTypes);
    return kTypes;
}

const SymbolRow* SymbolRows(std::size_t& count)
{
    count = std::size(kSymbols);
    return kSymbols;
}

int LookupUnitName(int group, const wchar_t* name, std::size_t length, bool* otherGroup)
{
    if (otherGroup)
        *otherGroup = false;
    if (!name || length == 0)
        return 0;
    const int slot = (group >> 12) & 0xF;
    if (const int type = LookupInGroup(slot, name, length))
        return type;
    if (otherGroup) {
        for (int other = 0; other < kGroupSlots; ++other) {
            if (other != slot && LookupInGroup(other, name, length)) {
                *otherGroup = true;
                break;
            }
        }
    }
    return 0;
}

bool ConvertBetween(double value, const TypeRow& from, const TypeRow& to, double& out)
{
    if (GroupOf(from.type) != GroupOf(to.type))
        return false;
    if (from.type == to.type) {
        out = value;
        return true;
    }
    const Tables& tables = GetTables();
    const std::size_t rows = std::size(kTypes);
    const std::size_t i = std::size_t(tables.dense[std::size_t(Tables::Slot(from.type))]);
    const std::size_t j = std::size_t(tables.dense[std::size_t(Tables::Slot(to.type))]);
    const Ratio& ratio = tables.ratios[i * rows + j];
    bool exact = false;
    if (from.zero == 0 && to.zero == 0)
        out = MulDiv(value, ratio.num, ratio.den, &exact);
    else
        out = MulDiv(value - from.zero, ratio.num, ratio.den, nullptr) + to.zero;
    if (!exact)
        out = Tidy(out);
    return true;
}

} // namespace kavrel::platform::core::units::detail
