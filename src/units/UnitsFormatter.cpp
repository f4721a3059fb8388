#include <KvCoreUnits/UnitsFormatter.h>

#include <KvCoreUnits/LocaleUtil.h>
#include <KvCoreUnits/StringUtil.h>
#include <KvCoreUnits/UnitTable_p.h>
#include <KvCoreUnits/UnitsFormatterImp.h>
#include <KvCoreUnits/UnitsManager.h>

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <cwchar>

namespace kavrel::platform::core::units {

namespace {

using Units = kvp::IDesignPropertyUnits;

constexpr int kMaxPrecision = 15;
constexpr std::size_t kMaxSignLength = 8;
constexpr std::size_t kMaxTemplateLength = 256;
// Beyond 2^53 a double has no fractional part left to split off.
constexpr double kExactIntegerLimit = 9007199254740992.0;

// A fixed text buffer: formatting never allocates.
class WBuf
{
public:
    void Put(wchar_t c)
    {
        if (miSize < kCapacity)
            mData[miSize++] = c;
        else
            mbOverflow = true;
    }
    void Put(const wchar_t* text, std::size_t length)
    {
        for (std::size_t i = 0; i < length; ++i)
            Put(text[i]);
    }
    void Put(const std::wstring& text) { Put(text.data(), text.size()); }
    void PutAscii(const char* text, std::size_t length)
    {
        for (std::size_t i = 0; i < length; ++i)
            Put(wchar_t(text[i]));
    }
    void Put(const WBuf& other) { Put(other.mData, other.miSize); }
    void TrimTrailing()
    {
        while (miSize > 0 && (mData[miSize - 1] == L' ' || mData[miSize - 1] == L'-'))
            --miSize;
    }
    std::size_t Size() const { return miSize; }
    bool Overflow() const { return mbOverflow; }
    const wchar_t* Data() const { return mData; }

private:
    static constexpr std::size_t kCapacity = 480;
    wchar_t mData[kCapacity];
    std::size_t miSize = 0;
    bool mbOverflow = false;
};

bool IsGrouped(NumberFormat format)
{
    return format == kNumberFormatDecimalGrouped || format == kNumberFormatGeneralGrouped;
}

bool IsTrimmed(NumberFormat format)
{
    return format == kNumberFormatGeneral || format == kNumberFormatGeneralGrouped;
}

bool AllZeroDigits(const char* begin, const char* end)
{
    for (const char* p = begin; p != end; ++p) {
        if (*p >= '1' && *p <= '9')
            return false;
    }
    return true;
}

// Writes ASCII digits of a whole number, with group separators when asked.
void PutIntegerDigits(WBuf& out, const char* digits, std::size_t count, const UnitsFormatterImp& s, bool grouped)
{
    // Groups marked with the decimal separator could not be read back.
    const bool group = grouped && s.msGroupSeparator != s.msDecimalSeparator;
    for (std::size_t i = 0; i < count; ++i) {
        if (group && i > 0 && (count - i) % 3 == 0)
            out.Put(s.msGroupSeparator);
        out.Put(wchar_t(digits[i]));
    }
}

// Writes a non-negative whole number held in a double.
void PutWhole(WBuf& out, double whole, const UnitsFormatterImp& s, bool grouped, int minDigits = 1)
{
    char tmp[400];
    const auto result = std::to_chars(tmp, tmp + sizeof tmp, whole, std::chars_format::fixed, 0);
    const std::size_t count = std::size_t(result.ptr - tmp);
    for (std::size_t i = count; i < std::size_t(minDigits); ++i)
        out.Put(L'0');
    PutIntegerDigits(out, tmp, count, s, grouped);
}

// Writes a non-negative number already in fixed notation ("12.50").
void PutFixedText(WBuf& out, const char* text, std::size_t length, const UnitsFormatterImp& s, bool grouped, bool trim,
                  int minIntegerDigits = 1)
{
    const char* dot = static_cast<const char*>(std::memchr(text, '.', length));
    const std::size_t intCount = dot ? std::size_t(dot - text) : length;
    for (std::size_t i = intCount; i < std::size_t(minIntegerDigits); ++i)
        out.Put(L'0');
    PutIntegerDigits(out, text, intCount, s, grouped);
    if (!dot)
        return;
    const char* frac = dot + 1;
    std::size_t fracCount = length - intCount - 1;
    if (trim) {
        while (fracCount > 0 && frac[fracCount - 1] == '0')
            --fracCount;
    }
    if (fracCount == 0)
        return;
    out.Put(s.msDecimalSeparator);
    out.PutAscii(frac, fracCount);
}

// Result of turning a magnitude into parts.
struct Parts
{
    WBuf text[3];
    int count = 0;
    bool zero = true; // the shown magnitude is zero (no sign then)
    double shown = 0; // the shown magnitude in the symbol's unit
};

void PutExponentDigits(WBuf& out, int exponent, const UnitsFormatterImp& s)
{
    out.Put(L'E');
    if (exponent < 0)
        out.Put(L'-');
    else if (s.mbSignInExponent)
        out.Put(s.msPositiveSign);
    const int magnitude = exponent < 0 ? -exponent : exponent;
    char tmp[8];
    const auto result = std::to_chars(tmp, tmp + sizeof tmp, magnitude);
    const int count = int(result.ptr - tmp);
    for (int i = count; i < (s.mbTwoDigitExponent ? 2 : 3); ++i)
        out.Put(L'0');
    out.PutAscii(tmp, std::size_t(count));
}

int ExponentOf(const char* sci, std::size_t length)
{
    const char* e = static_cast<const char*>(std::memchr(sci, 'e', length));
    int exponent = 0;
    if (e)
        std::from_chars(e + (e[1] == '+' ? 2 : 1), sci + length, exponent);
    return exponent;
}

// Exponent forms: scientific has one digit before the separator, engineering
// one to three with the exponent a multiple of three.
void PutExponentNumber(WBuf& out, double magnitude, const UnitsFormatterImp& s, bool engineering, bool& zero,
                       double& shown)
{
    const int precision = s.miPrecision;
    char sci[64];
    auto result = std::to_chars(sci, sci + sizeof sci, magnitude, std::chars_format::scientific, precision);
    std::size_t length = std::size_t(result.ptr - sci);
    int exponent = ExponentOf(sci, length);
    int shift = 0;
    if (engineering && magnitude != 0) {
        for (int attempt = 0; attempt < 2; ++attempt) {
            const int e3 = exponent >= 0 ? exponent / 3 * 3 : -((-exponent + 2) / 3) * 3;
            shift = exponent - e3;
            result = std::to_chars(sci, sci + sizeof sci, magnitude, std::chars_format::scientific, precision + shift);
            length = std::size_t(result.ptr - sci);
            const int rounded = ExponentOf(sci, length);
            if (rounded == exponent)
                break;
            exponent = rounded; // the rounding carried into the next power
        }
    }
    std::from_chars(sci, sci + length, shown);
    const char* e = static_cast<const char*>(std::memchr(sci, 'e', length));
    const std::size_t mantissaLength = e ? std::size_t(e - sci) : length;
    zero = AllZeroDigits(sci, sci + mantissaLength);
    // Mantissa digits without the point, then put the point `shift` places on.
    char digits[64];
    std::size_t count = 0;
    for (std::size_t i = 0; i < mantissaLength; ++i) {
        if (sci[i] != '.')
            digits[count++] = sci[i];
    }
    const std::size_t intDigits = std::size_t(1 + shift);
    out.PutAscii(digits, std::min(intDigits, count));
    if (count > intDigits) {
        out.Put(s.msDecimalSeparator);
        out.PutAscii(digits + intDigits, count - intDigits);
    }
    PutExponentDigits(out, exponent - shift, s);
}

// A whole part and a binary fraction: "66 1/2", "1/2", "66", "6-1/2".
void PutMixed(WBuf& out, double whole, double numerator, double denominator, const UnitsFormatterImp& s, bool grouped,
              bool hyphen, bool keepZeroWhole)
{
    while (numerator > 0 && denominator > 1 && std::fmod(numerator, 2.0) == 0) {
        numerator /= 2;
        denominator /= 2;
    }
    const bool hasFraction = numerator > 0;
    if (whole != 0 || !hasFraction || keepZeroWhole) {
        PutWhole(out, whole, s, grouped);
        if (hasFraction)
            out.Put(hyphen ? L'-' : L' ');
    }
    if (hasFraction) {
        PutWhole(out, numerator, s, false);
        out.Put(L'/');
        PutWhole(out, denominator, s, false);
    }
}

// A magnitude on the grid of `scale` steps per unit: whole part and the
// remaining steps, both exact as long as the steps fit a double's integers.
struct Grid
{
    double steps; // round(magnitude * scale)
    double scale;
};

Grid ToGrid(double magnitude, double scale)
{
    return {std::round(magnitude * scale), scale};
}

// Whether the grid's steps are exact integers. Beyond, a magnitude has no
// fraction left to show and its steps may not even be finite.
bool IsExact(const Grid& grid)
{
    return grid.steps < kExactIntegerLimit;
}

void FormatSingle(Parts& parts, double magnitude, const UnitsFormatterImp& s, const detail::SymbolRow& symbol)
{
    const NumberFormat format = s.meNumericFormat;
    const bool grouped = IsGrouped(format);
    parts.count = 1;
    if (symbol.fraction || format == kNumberFormatFractional) {
        const double scale = std::ldexp(1.0, s.miPrecision);
        Grid grid = ToGrid(magnitude, scale);
        if (!IsExact(grid)) {
            PutWhole(parts.text[0], std::round(magnitude), s, grouped);
            parts.zero = false;
            parts.shown = std::round(magnitude);
            return;
        }
        const double whole = std::floor(grid.steps / scale);
        const double numerator = grid.steps - whole * scale;
        PutMixed(parts.text[0], whole, numerator, scale, s, grouped, symbol.hyphenFraction, false);
        parts.zero = grid.steps == 0;
        parts.shown = grid.steps / scale;
        return;
    }
    char tmp[400];
    const auto result = std::to_chars(tmp, tmp + sizeof tmp, magnitude, std::chars_format::fixed, s.miPrecision);
    const std::size_t length = std::size_t(result.ptr - tmp);
    PutFixedText(parts.text[0], tmp, length, s, grouped, IsTrimmed(format));
    parts.zero = AllZeroDigits(tmp, tmp + length);
    std::from_chars(tmp, tmp + length, parts.shown);
}

void FormatFeetInches(Parts& parts, double inches, const UnitsFormatterImp& s, const detail::SymbolRow& symbol)
{
    const NumberFormat format = s.meNumericFormat;
    const bool grouped = IsGrouped(format);
    const bool fraction = symbol.fraction || format == kNumberFormatFractional;
    const double scale = fraction ? std::ldexp(1.0, s.miPrecision) : std::pow(10.0, s.miPrecision);
    parts.count = 2;
    double feet = 0;
    double steps = 0; // inch steps below one foot
    Grid grid = ToGrid(inches, scale);
    if (grid.steps < kExactIntegerLimit) {
        feet = std::floor(grid.steps / (12 * scale));
        steps = grid.steps - feet * 12 * scale;
        parts.shown = grid.steps / scale;
    } else {
        // Too large for a grid: whole feet and whole inches are all there is.
        // fmod is exact, where inches - feet * 12 may be off by far more than a foot.
        const double rest = std::fmod(inches, 12.0);
        feet = std::floor((inches - rest) / 12);
        steps = std::round(rest) * scale;
        if (steps >= 12 * scale) {
            feet += 1;
            steps = 0;
        }
        parts.shown = feet * 12 + steps / scale;
    }
    parts.zero = feet == 0 && steps == 0;
    PutWhole(parts.text[0], feet, s, grouped);
    if (fraction) {
        const double whole = std::floor(steps / scale);
        PutMixed(parts.text[1], whole, steps - whole * scale, scale, s, false, symbol.hyphenFraction, true);
        return;
    }
    char tmp[64];
    const auto result = std::to_chars(tmp, tmp + sizeof tmp, steps / scale, std::chars_format::fixed, s.miPrecision);
    PutFixedText(parts.text[1], tmp, std::size_t(result.ptr - tmp), s, false, IsTrimmed(format));
}

void FormatDegreesMinutesSeconds(Parts& parts, double degrees, const UnitsFormatterImp& s)
{
    const int precision = s.miPrecision;
    const bool grouped = IsGrouped(s.meNumericFormat);
    const bool trim = IsTrimmed(s.meNumericFormat);
    if (precision == 0) {
        const double whole = std::round(degrees);
        parts.count = 1;
        PutWhole(parts.text[0], whole, s, grouped);
        parts.zero = whole == 0;
        parts.shown = whole;
        return;
    }
    // Too large for a grid of minutes or seconds: whole degrees are all there is.
    const double wholeDegrees = std::round(degrees);
    if (precision <= 2) {
        const Grid grid = ToGrid(degrees, 60);
        const bool exact = IsExact(grid);
        const double whole = exact ? std::floor(grid.steps / 60) : wholeDegrees;
        const double minutes = exact ? grid.steps - whole * 60 : 0.0;
        parts.count = 2;
        PutWhole(parts.text[0], whole, s, grouped);
        PutWhole(parts.text[1], minutes, s, false, 2);
        parts.zero = whole == 0 && minutes == 0;
        parts.shown = exact ? grid.steps / 60 : whole;
        return;
    }
    const int secondDecimals = precision > 4 ? precision - 4 : 0;
    const double sub = std::pow(10.0, secondDecimals);
    const double perDegree = 3600 * sub;
    const Grid grid = ToGrid(degrees, perDegree);
    const bool exact = IsExact(grid);
    const double whole = exact ? std::floor(grid.steps / perDegree) : wholeDegrees;
    const double rest = exact ? grid.steps - whole * perDegree : 0.0;
    const double minutes = std::floor(rest / (60 * sub));
    const double secondSteps = rest - minutes * 60 * sub;
    parts.count = 3;
    PutWhole(parts.text[0], whole, s, grouped);
    PutWhole(parts.text[1], minutes, s, false, 2);
    char tmp[64];
    const auto result =
        std::to_chars(tmp, tmp + sizeof tmp, secondSteps / sub, std::chars_format::fixed, secondDecimals);
    PutFixedText(parts.text[2], tmp, std::size_t(result.ptr - tmp), s, false, trim, 2);
    parts.zero = exact ? grid.steps == 0 : whole == 0;
    parts.shown = exact ? grid.steps / perDegree : whole;
}

// Writes a formatting string with the parts there are. When a symbol shows
// fewer parts than its string names (45°30' at low precision, an exponent in
// feet), the text stops before the first missing part, less trailing blanks
// and hyphens.
void RenderTemplate(WBuf& out, const wchar_t* text, std::size_t length, const Parts& parts, const WBuf& sign)
{
    for (std::size_t i = 0; i < length; ++i) {
        const wchar_t c = text[i];
        if ((c == L'{' || c == L'}') && i + 1 < length && text[i + 1] == c) {
            out.Put(c);
            ++i;
        } else if (c == L'{' && i + 2 < length && text[i + 2] == L'}') {
            const int index = int(text[i + 1] - L'0');
            if (index < 0 || index >= parts.count) {
                out.TrimTrailing();
                return;
            }
            if (index == 0)
                out.Put(sign);
            out.Put(parts.text[index]);
            i += 2;
        } else {
            out.Put(c);
        }
    }
}

// Checks a formatting string: each part once, in order, as many as the symbol shows.
bool IsValidTemplate(const wchar_t* text, int partCount)
{
    const std::size_t length = std::wcslen(text);
    if (length > kMaxTemplateLength)
        return false;
    int next = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const wchar_t c = text[i];
        if ((c == L'{' || c == L'}') && i + 1 < length && text[i + 1] == c) {
            ++i;
            continue;
        }
        if (c == L'}')
            return false;
        if (c == L'{') {
            if (i + 2 >= length || text[i + 2] != L'}' || text[i + 1] != wchar_t(L'0' + next))
                return false;
            ++next;
            i += 2;
        }
    }
    return next == partCount;
}

ErrorCode CopyOut(const std::wstring& text, wchar_t* buffer, std::size_t length)
{
    if (!buffer)
        return kInvalidArgument;
    if (length < text.size() + 1) {
        if (length > 0)
            buffer[0] = L'\0';
        return kBufferTooSmall;
    }
    std::wmemcpy(buffer, text.data(), text.size());
    buffer[text.size()] = L'\0';
    return kSuccess;
}

bool IsAcceptableSeparator(const wchar_t* text)
{
    return text && *text;
}

bool IsAcceptableSign(const wchar_t* text)
{
    if (!text || !*text)
        return false;
    const std::size_t length = std::wcslen(text);
    if (length > kMaxSignLength)
        return false;
    for (std::size_t i = 0; i < length; ++i) {
        if (text[i] >= L'0' && text[i] <= L'9')
            return false;
    }
    return true;
}

QString DisplayNameOf(int symbolOrType, bool& found)
{
    found = true;
    if (const detail::SymbolRow* row = detail::FindSymbol(symbolOrType))
        return QString::fromUtf8(row->displayName);
    if (const detail::TypeRow* row = detail::FindType(symbolOrType))
        return QString::fromUtf8(row->displayName);
    found = false;
    return QString();
}

} // namespace

UnitsFormatter::UnitsFormatter(const wchar_t* localeName)
    : mpImp(std::make_unique<UnitsFormatterImp>())
{
    QString decimal;
    QString group;
    if (localeName) {
        const QString qtName = locale::LocaleUtil::LocaleNameToQtLocaleName(StringUtil::WcharToQString(localeName));
        const QLocale locale = qtName.isEmpty() ? QLocale::c() : QLocale(qtName);
        decimal = locale.decimalPoint();
        group = locale.groupSeparator();
    } else {
        const UnitsManager* manager = UnitsManager::GetInstance();
        decimal = manager->GetDecimalSeparator();
        group = manager->GetGroupSeparator();
    }
    if (!decimal.isEmpty())
        mpImp->msDecimalSeparator = decimal.toStdWString();
    if (!group.isEmpty())
        mpImp->msGroupSeparator = group.toStdWString();
}

UnitsFormatter::UnitsFormatter(const UnitsFormatter& other)
    : mpImp(std::make_unique<UnitsFormatterImp>(*other.mpImp))
{}

UnitsFormatter& UnitsFormatter::operator=(const UnitsFormatter& other)
{
    if (this != &other)
        *mpImp = *other.mpImp;
    return *this;
}

UnitsFormatter::~UnitsFormatter() = default;

ErrorCode UnitsFormatter::Format(double value, int unit, wchar_t* out, std::size_t outLength, int symbol,
                                 double* displayed) const
{
    const UnitsFormatterImp& s = *mpImp;
    if (!out || outLength == 0)
        return kInvalidArgument;
    out[0] = L'\0';
    if (unit == 0)
        unit = s.miDefaultUnit;
    if (symbol == 0)
        symbol = s.miDefaultSymbol;
    const detail::TypeRow* unitRow = detail::FindType(unit);
    const detail::SymbolRow* symbolRow = detail::FindSymbol(symbol);
    if (!unitRow || !symbolRow)
        return kUnknownUnit;
    if (!std::isfinite(value))
        return kOutOfRange;

    // The number in the unit the symbol shows.
    double x = value;
    const int symbolType = detail::TypeOfSymbol(symbol);
    if (symbol != kSymbolUnitless && unit != Units::eUnitless) {
        if (!detail::ConvertBetween(value, *unitRow, *detail::FindType(symbolType), x))
            return kIncompatibleUnit;
        if (!std::isfinite(x))
            return kOutOfRange;
    }

    Parts parts;
    const bool negative = std::signbit(x);
    const double magnitude = std::fabs(x);
    const NumberFormat format = s.meNumericFormat;
    if (format == kNumberFormatScientific || format == kNumberFormatEngineering) {
        // Composite symbols write one number in the unit of their first part.
        const double firstPartFactor = symbolRow->layout == detail::Layout::FeetInches ? 12.0 : 1.0;
        double shown = 0;
        PutExponentNumber(parts.text[0], magnitude / firstPartFactor, s, format == kNumberFormatEngineering, parts.zero,
                          shown);
        parts.count = 1;
        parts.shown = shown * firstPartFactor;
    } else if (symbolRow->layout == detail::Layout::FeetInches) {
        FormatFeetInches(parts, magnitude, s, *symbolRow);
    } else if (symbolRow->layout == detail::Layout::DegreesMinutesSeconds) {
        FormatDegreesMinutesSeconds(parts, magnitude, s);
    } else {
        FormatSingle(parts, magnitude, s, *symbolRow);
    }

    WBuf sign;
    if (!parts.zero) {
        if (negative)
            sign.Put(L'-');
        else if (s.mbSignInNumber)
            sign.Put(s.msPositiveSign);
    }

    WBuf text;
    if (const std::wstring* custom = s.CustomTemplate(symbol))
        RenderTemplate(text, custom->data(), custom->size(), parts, sign);
    else
        RenderTemplate(text, symbolRow->defaultTemplate, std::wcslen(symbolRow->defaultTemplate), parts, sign);

    if (text.Overflow() || text.Size() + 1 > outLength)
        return kBufferTooSmall;
    std::wmemcpy(out, text.Data(), text.Size());
    out[text.Size()] = L'\0';
    if (displayed)
        *displayed = parts.zero ? 0.0 : (negative ? -parts.shown : parts.shown);
    return kSuccess;
}

ErrorCode UnitsFormatter::Parse(const wchar_t* text, double& value, int unit) const
{
    if (!text)
        return kInvalidArgument;
    if (unit == 0)
        unit = mpImp->miDefaultUnit;
    if (!detail::FindType(unit))
        return kUnknownUnit;
    return detail::ParseText(*mpImp, text, value, unit);
}

NumberFormat UnitsFormatter::GetNumericFormat() const
{
    return mpImp->meRequestedFormat;
}

ErrorCode UnitsFormatter::SetNumericFormat(NumberFormat format)
{
    mpImp->meRequestedFormat = format;
    mpImp->meNumericFormat = (format < 0 || format >= kNumberFormatCount) ? kNumberFormatDecimal : format;
    return kSuccess;
}

int UnitsFormatter::GetNumberDecimalPrecision() const
{
    return mpImp->miRequestedPrecision;
}

ErrorCode UnitsFormatter::SetNumberDecimalPrecision(int precision)
{
    mpImp->miRequestedPrecision = precision;
    mpImp->miPrecision = std::clamp(precision, 0, kMaxPrecision);
    return kSuccess;
}

ErrorCode UnitsFormatter::GetNumberDecimalSeparator(wchar_t* buffer, std::size_t length) const
{
    return CopyOut(mpImp->msDecimalSeparator, buffer, length);
}

ErrorCode UnitsFormatter::SetNumberDecimalSeparator(const wchar_t* separator)
{
    if (!IsAcceptableSeparator(separator))
        return kInvalidArgument;
    mpImp->msDecimalSeparator = separator;
    return kSuccess;
}

ErrorCode UnitsFormatter::GetNumberGroupSeparator(wchar_t* buffer, std::size_t length) const
{
    return CopyOut(mpImp->msGroupSeparator, buffer, length);
}

ErrorCode UnitsFormatter::SetNumberGroupSeparator(const wchar_t* separator)
{
    if (!IsAcceptableSeparator(separator))
        return kInvalidArgument;
    mpImp->msGroupSeparator = separator;
    return kSuccess;
}

ErrorCode UnitsFormatter::GetPositiveSign(wchar_t* buffer, std::size_t length) const
{
    return CopyOut(mpImp->msPositiveSign, buffer, length);
}

ErrorCode UnitsFormatter::SetPositiveSign(const wchar_t* sign)
{
    if (!IsAcceptableSign(sign))
        return kInvalidArgument;
    mpImp->msPositiveSign = sign;
    return kSuccess;
}

bool UnitsFormatter::IncludePositiveSignInNumber() const
{
    return mpImp->mbSignInNumber;
}

void UnitsFormatter::SetIncludePositiveSignInNumber(bool include)
{
    mpImp->mbSignInNumber = include;
}

bool UnitsFormatter::IncludePositiveSignInExponent() const
{
    return mpImp->mbSignInExponent;
}

void UnitsFormatter::SetIncludePositiveSignInExponent(bool include)
{
    mpImp->mbSignInExponent = include;
}

bool UnitsFormatter::AllowTwoDigitExponent() const
{
    return mpImp->mbTwoDigitExponent;
}

void UnitsFormatter::SetAllowTwoDigitExponent(bool allow)
{
    mpImp->mbTwoDigitExponent = allow;
}

int UnitsFormatter::GetDefaultUnit() const
{
    return mpImp->miDefaultUnit;
}

ErrorCode UnitsFormatter::SetDefaultUnit(int unit)
{
    if (!detail::FindType(unit))
        return kUnknownUnit;
    mpImp->miDefaultUnit = unit;
    return kSuccess;
}

int UnitsFormatter::GetDefaultSymbol() const
{
    return mpImp->miDefaultSymbol;
}

ErrorCode UnitsFormatter::SetDefaultSymbol(int symbol)
{
    if (!detail::FindSymbol(symbol))
        return kUnknownUnit;
    mpImp->miDefaultSymbol = symbol;
    return kSuccess;
}

ErrorCode UnitsFormatter::GetSymbolFormattingString(int symbol, wchar_t* buffer, std::size_t length) const
{
    const detail::SymbolRow* row = detail::FindSymbol(symbol);
    if (!row)
        return kUnknownUnit;
    if (const std::wstring* custom = mpImp->CustomTemplate(symbol))
        return CopyOut(*custom, buffer, length);
    return CopyOut(std::wstring(row->defaultTemplate), buffer, length);
}

ErrorCode UnitsFormatter::SetSymbolFormattingString(int symbol, const wchar_t* formattingString)
{
    const detail::SymbolRow* row = detail::FindSymbol(symbol);
    if (!row)
        return kUnknownUnit;
    auto& templates = mpImp->mCustomTemplates;
    if (!formattingString) {
        for (auto it = templates.begin(); it != templates.end(); ++it) {
            if (it->first == symbol) {
                templates.erase(it);
                break;
            }
        }
        return kSuccess;
    }
    if (!IsValidTemplate(formattingString, row->parts))
        return kTemplateRefused;
    for (auto& entry : templates) {
        if (entry.first == symbol) {
            entry.second = formattingString;
            return kSuccess;
        }
    }
    templates.emplace_back(symbol, formattingString);
    return kSuccess;
}

ErrorCode UnitsFormatter::GetDisplayNameLength(int symbol, std::size_t& length) const
{
    bool found = false;
    const QString name = DisplayNameOf(symbol, found);
    if (!found)
        return kUnknownUnit;
    length = name.toStdWString().size() + 1;
    return kSuccess;
}

ErrorCode UnitsFormatter::GetDisplayName(int symbol, wchar_t* buffer, std::size_t length) const
{
    bool found = false;
    const QString name = DisplayNameOf(symbol, found);
    if (!found)
        return kUnknownUnit;
    return CopyOut(name.toStdWString(), buffer, length);
}

} // namespace kavrel::platform::core::units
