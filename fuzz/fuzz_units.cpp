// Arbitrary text parsed as a value with units, with expressions, in a
// formatter set up from the first bytes; whatever parses is formatted again,
// and what the formatter wrote must parse.
#include "FuzzSupport.h"

#include <KvCoreUnits/UnitsFormatter.h>

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

using namespace kavrel::platform::core::units;

namespace {

struct Setup
{
    int unit;
    int symbol;
};

using T = kvp::IDesignPropertyUnits;

// One unit of each group with symbols of every layout the formatter writes.
constexpr std::array<Setup, 12> kSetups{{
    {T::eUnitless, kSymbolUnitless},
    {T::eMillimeter, kSymbolMillimeter},
    {T::eInch, kSymbolFeetDashFractionalInches},
    {T::eInch, kSymbolFeetDashHyphenFractionalInches},
    {T::eInch, kSymbolFeetInches},
    {T::eFoot, kSymbolFootMark},
    {T::eSquareMeter, kSymbolSquareMeter},
    {T::eLiter, kSymbolLiter},
    {T::eFahrenheit, kSymbolFahrenheit},
    {T::eSecond, kSymbolSecond},
    {T::eDegree, kSymbolDegreesMinutesSeconds},
    {T::ePercent, kSymbolPercent},
}};

constexpr std::array<const wchar_t*, 4> kDecimalSeparators{L".", L",", L"\u066B", L"dot"};
constexpr std::array<const wchar_t*, 4> kGroupSeparators{L",", L".", L" ", L"'"};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 4)
        return 0;
    UnitsFormatter formatter(L"en-US");
    formatter.SetNumericFormat(NumberFormat(data[0] % kNumberFormatCount));
    formatter.SetNumberDecimalPrecision(data[1] % 16);
    formatter.SetNumberDecimalSeparator(kDecimalSeparators[data[2] % kDecimalSeparators.size()]);
    formatter.SetNumberGroupSeparator(kGroupSeparators[(data[2] >> 2) % kGroupSeparators.size()]);
    formatter.SetIncludePositiveSignInNumber(data[2] & 0x10);
    const Setup setup = kSetups[data[3] % kSetups.size()];
    formatter.SetDefaultUnit(setup.unit);
    if (setup.symbol)
        formatter.SetDefaultSymbol(setup.symbol);
    // A formatting string without unit text reads back only as a plain number.
    const bool customTemplate = (data[3] & 0x80) != 0;
    if (customTemplate)
        formatter.SetSymbolFormattingString(formatter.GetDefaultSymbol(), L"{0}-{1}");

    const std::wstring text =
        QString::fromUtf8(reinterpret_cast<const char*>(data + 4), qsizetype(size - 4)).toStdWString();
    double value = 0;
    if (formatter.Parse(text.c_str(), value, 0) != kSuccess)
        return 0;
    wchar_t out[256];
    if (formatter.Format(value, 0, out, sizeof out / sizeof *out, 0, nullptr) != kSuccess)
        return 0;
    double again = 0;
    if (formatter.Parse(out, again, 0) != kSuccess && !customTemplate)
        KvFuzz::Fail("what Format wrote parses");
    return 0;
}
