#pragma once

#include <KvCoreUnits/IDesignPropertyUnits.h>

#include <cstdint>

namespace kavrel::platform::core::units {

/// Result of every fallible operation of the units component; 0 is success.
enum ErrorCode : std::int32_t
{
    kSuccess = 0,
    kInvalidArgument = 1,  ///< null pointer, unknown enumeration value
    kBufferTooSmall = 2,   ///< the caller's buffer cannot hold the text and its terminator
    kUnknownUnit = 3,      ///< a unit, symbol or unit name nobody knows
    kInvalidText = 4,      ///< text that cannot be interpreted in the requested unit
    kIncompatibleUnit = 5, ///< a unit of another group, or unit algebra that leaves the group
    kDivisionByZero = 6,
    kOutOfRange = 7,      ///< not finite, or an exponent beyond the range of a double
    kNestingTooDeep = 8,  ///< parentheses or signs nested beyond the parser's limit
    kTemplateRefused = 9, ///< a formatting string whose parts do not fit the symbol
    kEmptyText = 10,
    kUnknownName = 11, ///< a global name that no unit, symbol or format carries
};

/// How the numbers of a value are written. 0 and 1 write an exponent, the rest
/// are plain forms.
enum NumberFormat : std::int32_t
{
    kNumberFormatScientific = 0,     ///< 1.23E+07
    kNumberFormatEngineering = 1,    ///< 12.30E+06, exponent a multiple of three
    kNumberFormatDecimal = 2,        ///< 12345678.00
    kNumberFormatDecimalGrouped = 3, ///< 12,345,678.00
    kNumberFormatGeneral = 4,        ///< decimals up to the precision, trailing zeros dropped
    kNumberFormatGeneralGrouped = 5, ///< the same with group separators
    kNumberFormatFractional = 6,     ///< 12 1/2: binary fractions down to 1/2^precision
    kNumberFormatCount = 7,
};

/// A unit symbol: (variant << 16) | unit type. The variant chooses how a value of
/// that type is written (mm, feet-dash-inches, degrees/minutes/seconds, ...).
enum UnitSymbol : std::int32_t
{
    kSymbolNone = 0,
    kSymbolUnitless = 0x101001,

    kSymbolMillimeter = 0x012001,
    kSymbolCentimeter = 0x012002,
    kSymbolMeter = 0x012003,
    kSymbolKilometer = 0x012004,
    kSymbolMicrometer = 0x012005,
    kSymbolFoot = 0x012015,                           ///< 5.50 ft
    kSymbolFootMark = 0x022015,                       ///< 5.50'
    kSymbolInch = 0x012016,                           ///< 12.50 in
    kSymbolInchMark = 0x022016,                       ///< 12.50"
    kSymbolFeetInches = 0x302016,                     ///< 5' 6.50"
    kSymbolFeetInchesWords = 0x402016,                ///< 5 ft 6.50 in
    kSymbolFeetDashInches = 0x602016,                 ///< 5'-6.50"
    kSymbolFractionalInches = 0x702016,               ///< 66 1/2"
    kSymbolFeetDashFractionalInches = 0x802016,       ///< 5'-6 1/2"
    kSymbolFractionalInchesWords = 0x902016,          ///< 66 1/2 in
    kSymbolFeetDashHyphenFractionalInches = 0xA02016, ///< 5'-6-1/2"
    kSymbolYard = 0x012017,
    kSymbolMile = 0x012018,

    kSymbolSquareMillimeter = 0x013001,
    kSymbolSquareCentimeter = 0x013002,
    kSymbolSquareMeter = 0x013003,
    kSymbolSquareKilometer = 0x013004,
    kSymbolHectare = 0x013005,
    kSymbolSquareFoot = 0x013015,
    kSymbolSquareInch = 0x013016,
    kSymbolSquareYard = 0x013017,
    kSymbolSquareMile = 0x013018,
    kSymbolAcre = 0x013019,

    kSymbolCubicMillimeter = 0x014001,
    kSymbolCubicCentimeter = 0x014002,
    kSymbolCubicMeter = 0x014003,
    kSymbolLiter = 0x014004,
    kSymbolMilliliter = 0x014005,
    kSymbolCubicFoot = 0x014015,
    kSymbolCubicInch = 0x014016,
    kSymbolCubicYard = 0x014017,
    kSymbolUSGallon = 0x014018,

    kSymbolMilligram = 0x015001,
    kSymbolGram = 0x015002,
    kSymbolKilogram = 0x015003,
    kSymbolTonne = 0x015004,
    kSymbolOunce = 0x015015,
    kSymbolPound = 0x015016,

    kSymbolMillisecond = 0x016001,
    kSymbolSecond = 0x016002,
    kSymbolMinute = 0x016003,
    kSymbolHour = 0x016004,
    kSymbolDay = 0x016005,

    kSymbolCelsius = 0x017001,
    kSymbolKelvin = 0x017002,
    kSymbolFahrenheit = 0x017003,
    kSymbolRankine = 0x017004,

    kSymbolRadian = 0x018001,
    kSymbolDegree = 0x018002,                       ///< 45.50°
    kSymbolDegreeWord = 0x028002,                   ///< 45.50 deg
    kSymbolDegreesMinutesSeconds = 0x408002,        ///< 45°30'15"
    kSymbolDegreesMinutesSecondsLetters = 0x508002, ///< 45d30m15s
    kSymbolDegreesMinutesSecondsSpaced = 0x608002,  ///< 45° 30' 15"
    kSymbolGradian = 0x018003,
    kSymbolTurn = 0x018004,
    kSymbolArcMinute = 0x018005,
    kSymbolArcSecond = 0x018006,

    kSymbolPercent = 0x019001,
    kSymbolRatio = 0x019002,
    kSymbolPerMille = 0x019003,
};

} // namespace kavrel::platform::core::units
