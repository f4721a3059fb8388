#pragma once

#include <KvCoreUnits/KvCoreUnitsExport.h>
#include <KvCoreUnits/UnitsTypes.h>

#include <cstddef>
#include <memory>

namespace kavrel::platform::core::units {

class UnitsFormatterImp;

/// Turns values with units into text and back.
///
/// Format writes a value of a unit type with a unit symbol: "12.50 mm",
/// "5'-6 1/2"", "45°30'15"", "1.23E+07 mm". The symbol decides the unit the
/// number is shown in and how it is split into parts (feet and inches; degrees,
/// minutes and seconds) and whether the last part is a fraction; the numeric
/// format, precision, separators and signs decide how each number is written.
/// Each symbol has a formatting string naming its numeric parts "{0}", "{1}",
/// "{2}"; the library's default carries the unit text, a custom one may leave it
/// out ("{0}-{1}").
///
/// Parse reads everything Format writes, in every symbol, and more: any unit of
/// the value's group ("3 in" into millimeters), feet and inches written loosely
/// (5' 6", 5ft 6in, 5'6-1/2", 1'-1-1/2"), fractions (1/2, 5 1/2, 5-1/2),
/// 45d30m15s, exponents, the formatter's separators, and arithmetic with
/// + - * / and parentheses ("1ft 3in + 20mm", "(10+2)*3 mm").
/// Rules of the notation, in the order they matter:
///  - A hyphen written directly between two whole numbers followed by a
///    fraction joins a mixed number: 5-1/2 is 5.5. Write "5 - 1/2" to subtract.
///  - A foot or degree mark followed directly by a hyphen and a number starts
///    the smaller part: 5'-6" is 5 feet 6 inches, while 5' -6" (blank before the
///    hyphen) subtracts 6 inches.
///  - A quantity may be followed, without operator, by one in a smaller unit of
///    the same group, which is added: 1m 20cm, 45°30'15". After feet, degrees and
///    minutes of arc that second unit may be left out (5' 6, 45°30).
///  - Numbers without a unit are taken in the unit asked for. Units must belong
///    to its group (kIncompatibleUnit otherwise, kUnknownUnit for unknown
///    words); a product or quotient must again be a plain value of the group
///    ("2 mm * 3 mm" is an area and is refused for a length).
///  - A group separator counts only when exactly three digits follow it; "12.3"
///    with '.' as group separator and ',' as decimal separator is refused rather
///    than read as 123.
///  - Parentheses and signs nest up to 64 deep; deeper text is refused.
///  - Asked for a plain number (the unitless type) while the default symbol has
///    a custom formatting string, Parse first reads the text in that string's
///    shape ("5-6 1/2" for "{0}-{1}" is 66.5, in the symbol's unit), so that a
///    display without unit text reads back as shown.
/// Failures are error codes, never exceptions; `value` is written only on success.
class KVCOREUNITS_EXPORT UnitsFormatter
{
public:
    /// `localeName` ("de-DE"), or null for the units manager's current locale,
    /// gives the initial decimal and group separators. Defaults: precision 2,
    /// numeric format Decimal, positive sign "+" shown in exponents but not in
    /// numbers, two-digit exponents allowed, unitless default unit and symbol.
    explicit UnitsFormatter(const wchar_t* localeName = nullptr);
    /// A formatter with the other's settings and custom formatting strings.
    UnitsFormatter(const UnitsFormatter& other);
    /// Takes over the other's settings and custom formatting strings.
    UnitsFormatter& operator=(const UnitsFormatter& other);
    ~UnitsFormatter();

    /// Writes `value`, measured in `unit`, with `symbol` into `out` (capacity
    /// `outLength` wide characters including the terminator). Unit 0 and symbol
    /// 0 stand for the defaults. A unitless symbol writes the plain number; a
    /// unitless unit takes the value as already measured in the symbol's unit.
    /// `displayed` (may be null) receives the number as shown, in the symbol's
    /// unit (5'-6 1/2" gives 66.5). Errors: kUnknownUnit, kIncompatibleUnit,
    /// kOutOfRange (not finite), kBufferTooSmall (out is then empty).
    ErrorCode Format(double value, int unit, wchar_t* out, std::size_t outLength, int symbol, double* displayed) const;
    /// Reads `text` into `value`, measured in `unit` (0 for the default unit).
    ErrorCode Parse(const wchar_t* text, double& value, int unit) const;

    ///@{
    /// Any value is kept and read back as set; one outside the known formats
    /// writes as kNumberFormatDecimal.
    NumberFormat GetNumericFormat() const;
    ErrorCode SetNumericFormat(NumberFormat format);
    ///@}

    ///@{
    /// Any value is kept and read back as set; numbers are written with it
    /// limited to 0 to 15. Fractions use denominators up to 2^precision.
    int GetNumberDecimalPrecision() const;
    ErrorCode SetNumberDecimalPrecision(int precision);
    ///@}

    ///@{
    /// Getters copy into the caller's buffer (terminated) and report
    /// kBufferTooSmall when it cannot hold the text. The separator setters
    /// refuse only null and empty text: separators of any length are kept, and
    /// a value whose text outgrows Format's working space fails to format
    /// rather than being cut. Digits in a separator are kept too, but Parse
    /// reads digits as digits first, so text written with such a separator may
    /// not read back. The positive sign refuses null, empty, longer than 8
    /// characters and text holding digits.
    ErrorCode GetNumberDecimalSeparator(wchar_t* buffer, std::size_t length) const;
    ErrorCode SetNumberDecimalSeparator(const wchar_t* separator);
    ErrorCode GetNumberGroupSeparator(wchar_t* buffer, std::size_t length) const;
    ErrorCode SetNumberGroupSeparator(const wchar_t* separator);
    ErrorCode GetPositiveSign(wchar_t* buffer, std::size_t length) const;
    ErrorCode SetPositiveSign(const wchar_t* sign);
    ///@}

    /// Whether positive numbers are written with the positive sign; off by default.
    bool IncludePositiveSignInNumber() const;
    /// Writes positive numbers with the positive sign, or without.
    void SetIncludePositiveSignInNumber(bool include);
    /// Whether positive exponents are written with the positive sign; on by default.
    bool IncludePositiveSignInExponent() const;
    /// Writes positive exponents with the positive sign, or without.
    void SetIncludePositiveSignInExponent(bool include);
    /// Two-digit exponents ("E+07") when allowed, three digits ("E+007") otherwise.
    bool AllowTwoDigitExponent() const;
    /// Allows two-digit exponents, or asks for three digits.
    void SetAllowTwoDigitExponent(bool allow);

    /// The unit type that unit 0 of Format and Parse stands for.
    int GetDefaultUnit() const;
    /// Sets the unit type that unit 0 stands for; kUnknownUnit, the default unchanged, for a type the
    /// component does not know.
    ErrorCode SetDefaultUnit(int unit);
    /// The symbol that symbol 0 of Format stands for.
    int GetDefaultSymbol() const;
    /// Sets the symbol that symbol 0 stands for; kUnknownUnit, the default unchanged, for an unknown
    /// symbol.
    ErrorCode SetDefaultSymbol(int symbol);

    /// The formatting string in use for a symbol (custom or the library's).
    ErrorCode GetSymbolFormattingString(int symbol, wchar_t* buffer, std::size_t length) const;
    /// Installs a custom formatting string; null restores the library's. A
    /// string must name each numeric part of the symbol once and in order ("{0}"
    /// for millimeters, "{0}-{1}" for feet and inches, "{0} {1} {2}" for
    /// degrees, minutes and seconds); any other is refused with kTemplateRefused.
    /// "{{" and "}}" write braces.
    ErrorCode SetSymbolFormattingString(int symbol, const wchar_t* formattingString);

    /// Human-readable name of a symbol or unit type ("Feet and fractional
    /// inches"). The length counts the terminator.
    ErrorCode GetDisplayNameLength(int symbol, std::size_t& length) const;
    /// Copies the display name into the buffer (terminated); kUnknownUnit for an unknown symbol or
    /// type, kBufferTooSmall when the buffer cannot hold it.
    ErrorCode GetDisplayName(int symbol, wchar_t* buffer, std::size_t length) const;

private:
    std::unique_ptr<UnitsFormatterImp> const mpImp;
};

} // namespace kavrel::platform::core::units
