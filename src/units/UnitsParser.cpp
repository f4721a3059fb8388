// Reading text into values: a small recursive-descent parser over wide text.
//
//   expression := term { ('+' | '-') term }
//   term       := signed { ('*' | '/') signed }
//   signed     := { '+' | '-' } primary
//   primary    := '(' expression ')' [unit] | quantity
//   quantity   := number [unit] { smaller-part }
//   number     := digits [decimal] [exponent] | whole '/' whole
//               | whole ' ' whole '/' whole | whole '-' whole '/' whole
//
// Every value carries the power of the group's dimension it has (a plain
// number 0, a length 1, a length times a length 2); only 0 and 1 are results.

#include <KvCoreUnits/UnitTable_p.h>
#include <KvCoreUnits/UnitsFormatterImp.h>

#include <QChar>

#include <charconv>
#include <cmath>
#include <cstring>
#include <cwchar>

namespace kavrel::platform::core::units::detail {

namespace {

constexpr int kMaxDepth = 64;
constexpr int kMaxDimension = 3;
constexpr std::size_t kMaxNumberLength = 400;

struct Value
{
    double v = 0; // in the target unit when dim is 1
    int dim = 0;
};

bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool IsSpace(wchar_t c)
{
    return c == L' ' || c == L'\t' || c == L'\n' || c == L'\r' || c == 0x00A0 || c == 0x2007 || c == 0x2009
           || c == 0x202F;
}

bool IsUnitChar(wchar_t c)
{
    if ((c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'))
        return true;
    switch (c) {
    case L'\'':
    case L'"':
    case L'%':
    case 0x00B0: // °
    case 0x00B5: // µ
    case 0x03BC: // μ
    case 0x00B2: // ²
    case 0x00B3: // ³
    case 0x2030: // ‰
    case 0x2032: // ′
    case 0x2033: // ″
    case 0x2019: // ’
    case 0x201D: // ”
    case 0x2103: // ℃
    case 0x2109: // ℉
        return true;
    default:
        break;
    }
    return c > 0x7F && QChar::isLetter(char32_t(c));
}

bool IsMinus(wchar_t c)
{
    return c == L'-' || c == 0x2212;
}

class Parser
{
public:
    Parser(const UnitsFormatterImp& settings, const wchar_t* text, int target)
        : mS(settings)
        , mpText(text)
        , mpEnd(text + std::wcslen(text))
        , mpTarget(FindType(target))
        , miGroup(GroupOf(target))
    {
        mbDotIsDecimal = mS.msDecimalSeparator != L"." && mS.msGroupSeparator != L".";
        mbGroupUsable = !mS.msGroupSeparator.empty() && mS.msGroupSeparator != mS.msDecimalSeparator;
    }

    ErrorCode Run(double& result)
    {
        mp = mpText;
        SkipSpaces();
        if (mp == mpEnd)
            return kEmptyText;
        Value value;
        if (!Expression(value))
            return meError;
        SkipSpaces();
        if (mp != mpEnd)
            return kInvalidText;
        if (value.dim != 0 && value.dim != 1)
            return kIncompatibleUnit;
        if (!std::isfinite(value.v))
            return kOutOfRange;
        result = value.v;
        return kSuccess;
    }

    // Reads text in the shape of a number-only formatting string ("{0}-{1}",
    // "{0} {1} {2}"), as written when a control hides the unit text: the parts
    // combine as the symbol's layout says, in the symbol's unit. Fewer parts
    // than the string names are allowed; anything else fails.
    bool RunTemplate(const std::wstring& shape, Layout layout, double& result)
    {
        mp = mpText;
        SkipSpaces();
        bool negative = false;
        if (mp != mpEnd && IsMinus(*mp)) {
            negative = true;
            ++mp;
        }
        double parts[3] = {0, 0, 0};
        int count = 0;
        std::size_t i = 0;
        // Literal text before the first part.
        while (i < shape.size() && shape[i] != L'{')
            ++i;
        while (i < shape.size() && count < 3) {
            i += 3; // "{k}"
            SkipSpaces();
            if (!Number(parts[count]))
                return false;
            ++count;
            const std::size_t literalStart = i;
            while (i < shape.size() && shape[i] != L'{')
                ++i;
            SkipSpaces();
            if (mp == mpEnd)
                break;
            // The literal between parts, blanks matching any run of blanks.
            for (std::size_t k = literalStart; k < i; ++k) {
                if (IsSpace(shape[k]))
                    continue;
                if (mp == mpEnd || *mp != shape[k])
                    return false;
                ++mp;
                SkipSpaces();
            }
        }
        SkipSpaces();
        if (mp != mpEnd || count == 0)
            return false;
        double total = parts[0];
        if (layout == Layout::FeetInches)
            total = parts[0] * 12 + parts[1];
        else if (layout == Layout::DegreesMinutesSeconds)
            total = parts[0] + parts[1] / 60 + parts[2] / 3600;
        if (!std::isfinite(total))
            return false;
        result = negative ? -total : total;
        return true;
    }

private:
    bool Fail(ErrorCode code)
    {
        if (meError == kSuccess)
            meError = code;
        return false;
    }

    void SkipSpaces()
    {
        while (mp != mpEnd && IsSpace(*mp))
            ++mp;
    }

    bool At(const std::wstring& token, const wchar_t* at) const
    {
        return !token.empty() && std::size_t(mpEnd - at) >= token.size()
               && std::wmemcmp(at, token.data(), token.size()) == 0;
    }

    // --- numbers ---------------------------------------------------------

    bool StartsNumber(const wchar_t* at) const
    {
        if (at == mpEnd)
            return false;
        if (IsDigit(*at))
            return true;
        std::size_t separator = 0;
        if (At(mS.msDecimalSeparator, at))
            separator = mS.msDecimalSeparator.size();
        else if (mbDotIsDecimal && *at == L'.')
            separator = 1;
        return separator > 0 && std::size_t(mpEnd - at) > separator && IsDigit(at[separator]);
    }

    // Digits with group separators; a separator counts only before exactly
    // three digits that are not followed by a further digit or a fraction bar.
    bool ScanDigits(char* buffer, std::size_t& length, bool allowGroups)
    {
        const wchar_t* start = mp;
        std::size_t run = 0;
        while (mp != mpEnd) {
            if (IsDigit(*mp)) {
                if (length >= kMaxNumberLength)
                    return Fail(kOutOfRange);
                buffer[length++] = char(*mp++);
                ++run;
                continue;
            }
            if (allowGroups && mbGroupUsable && run > 0 && run <= 3 && At(mS.msGroupSeparator, mp)) {
                const wchar_t* after = mp + mS.msGroupSeparator.size();
                if (mpEnd - after >= 3 && IsDigit(after[0]) && IsDigit(after[1]) && IsDigit(after[2])
                    && (after + 3 == mpEnd || (!IsDigit(after[3]) && after[3] != L'/'))) {
                    mp = after;
                    run = 0;
                    allowGroups = true;
                    continue;
                }
            }
            break;
        }
        return mp != start;
    }

    // A decimal number; `whole` tells whether it was written without decimals
    // or exponent (only such numbers form fractions).
    bool ScanDecimal(double& number, bool& whole)
    {
        char buffer[kMaxNumberLength + 16];
        std::size_t length = 0;
        whole = true;
        const bool intDigits = ScanDigits(buffer, length, true);
        if (meError != kSuccess)
            return false;
        std::size_t separatorLength = 0;
        if (At(mS.msDecimalSeparator, mp))
            separatorLength = mS.msDecimalSeparator.size();
        else if (mbDotIsDecimal && mp != mpEnd && *mp == L'.')
            separatorLength = 1;
        if (separatorLength > 0 && (intDigits || (mp + separatorLength != mpEnd && IsDigit(mp[separatorLength])))) {
            mp += separatorLength;
            buffer[length++] = '.';
            whole = false;
            ScanDigits(buffer, length, false);
            if (meError != kSuccess)
                return false;
        } else if (!intDigits) {
            return Fail(kInvalidText);
        }
        if (mp != mpEnd && (*mp == L'e' || *mp == L'E')) {
            const wchar_t* after = mp + 1;
            bool negative = false;
            if (after != mpEnd && (*after == L'+' || IsMinus(*after))) {
                negative = IsMinus(*after);
                ++after;
            } else if (At(mS.msPositiveSign, after)) {
                after += mS.msPositiveSign.size();
            }
            if (after != mpEnd && IsDigit(*after)) {
                mp = after;
                buffer[length++] = 'e';
                if (negative)
                    buffer[length++] = '-';
                whole = false;
                ScanDigits(buffer, length, false);
                if (meError != kSuccess)
                    return false;
            }
        }
        const auto result = std::from_chars(buffer, buffer + length, number);
        if (result.ec == std::errc::result_out_of_range || !std::isfinite(number))
            return Fail(kOutOfRange);
        if (result.ec != std::errc())
            return Fail(kInvalidText);
        return true;
    }

    // "/d" right after a whole number, no blanks: the fraction bar.
    bool TryFraction(double numerator, double& number)
    {
        if (mp == mpEnd || *mp != L'/' || mp + 1 == mpEnd || !IsDigit(mp[1]))
            return false;
        const wchar_t* save = mp;
        ++mp;
        double denominator = 0;
        bool whole = false;
        if (!ScanDecimal(denominator, whole))
            return false;
        if (!whole) {
            mp = save; // 1/2.5 is a division, left to the term
            return false;
        }
        if (denominator == 0)
            return Fail(kDivisionByZero);
        number = numerator / denominator;
        return true;
    }

    bool Number(double& number)
    {
        bool whole = false;
        if (!ScanDecimal(number, whole))
            return false;
        if (!whole)
            return true;
        double fraction = 0;
        if (TryFraction(number, fraction)) {
            number = fraction;
            return true;
        }
        if (meError != kSuccess)
            return false;
        // A mixed number: "5 1/2" or "5-1/2".
        const wchar_t* save = mp;
        const wchar_t* q = mp;
        if (q != mpEnd && *q == L'-') {
            ++q;
        } else {
            while (q != mpEnd && IsSpace(*q))
                ++q;
            if (q == mp)
                return true;
        }
        if (q == mpEnd || !IsDigit(*q))
            return true;
        mp = q;
        double numerator = 0;
        bool numeratorWhole = false;
        if (ScanDecimal(numerator, numeratorWhole) && numeratorWhole && TryFraction(numerator, fraction)) {
            number += fraction;
            return true;
        }
        if (meError != kSuccess)
            return false;
        mp = save;
        return true;
    }

    // --- units -----------------------------------------------------------

    // The unit written at the current position (after blanks), 0 when none is
    // written; fails for words that are no unit of the group.
    bool Unit(int& type)
    {
        type = 0;
        const wchar_t* save = mp;
        SkipSpaces();
        const wchar_t* start = mp;
        while (mp != mpEnd && IsUnitChar(*mp))
            ++mp;
        if (mp == start) {
            mp = save;
            return true;
        }
        if (mp != mpEnd && *mp == L'^' && mp + 1 != mpEnd && IsDigit(mp[1])) {
            mp += 2;
            while (mp != mpEnd && IsDigit(*mp))
                ++mp;
        }
        bool otherGroup = false;
        type = LookupUnitName(miGroup, start, std::size_t(mp - start), &otherGroup);
        if (type == 0)
            return Fail(otherGroup ? kIncompatibleUnit : kUnknownUnit);
        return true;
    }

    bool ToTarget(double number, int unit, double& out)
    {
        const TypeRow* row = FindType(unit);
        if (!row || !ConvertBetween(number, *row, *mpTarget, out))
            return Fail(kIncompatibleUnit);
        return true;
    }

    // --- grammar ---------------------------------------------------------

    bool Quantity(Value& out)
    {
        double number = 0;
        if (!Number(number))
            return false;
        int unit = 0;
        if (!Unit(unit))
            return false;
        if (unit == 0) {
            out = {number, 0};
            return true;
        }
        // Further parts in smaller units are added, counted in the smallest.
        double total = number;
        const TypeRow* current = FindType(unit);
        while (mp != mpEnd) {
            const wchar_t* save = mp;
            const bool hyphen = IsMinus(*mp) && current->compoundNext != 0 && mp + 1 != mpEnd && IsDigit(mp[1]);
            if (hyphen)
                ++mp;
            else
                SkipSpaces();
            if (!StartsNumber(mp)) {
                mp = save;
                break;
            }
            double part = 0;
            int partUnit = 0;
            if (!Number(part) || !Unit(partUnit))
                return false;
            if (partUnit == 0)
                partUnit = current->compoundNext;
            const TypeRow* next = FindType(partUnit);
            if (!next || next->zero != 0 || current->zero != 0 || next->num * current->den >= current->num * next->den)
                return Fail(kInvalidText);
            double carried = 0;
            ConvertBetween(total, *current, *next, carried);
            total = carried + part;
            current = next;
        }
        out.dim = 1;
        return ToTarget(total, current->type, out.v);
    }

    bool Primary(Value& out)
    {
        if (mp != mpEnd && *mp == L'(') {
            if (++miDepth > kMaxDepth)
                return Fail(kNestingTooDeep);
            ++mp;
            if (!Expression(out))
                return false;
            SkipSpaces();
            if (mp == mpEnd || *mp != L')')
                return Fail(kInvalidText);
            ++mp;
            --miDepth;
            int unit = 0;
            if (!Unit(unit))
                return false;
            if (unit != 0) {
                if (out.dim != 0)
                    return Fail(kIncompatibleUnit);
                out.dim = 1;
                return ToTarget(out.v, unit, out.v);
            }
            return true;
        }
        if (!StartsNumber(mp))
            return Fail(kInvalidText);
        return Quantity(out);
    }

    bool Signed(Value& out)
    {
        SkipSpaces();
        if (mp != mpEnd && (IsMinus(*mp) || *mp == L'+' || At(mS.msPositiveSign, mp))) {
            const bool negative = IsMinus(*mp);
            mp += (IsMinus(*mp) || *mp == L'+') ? 1 : mS.msPositiveSign.size();
            if (++miDepth > kMaxDepth)
                return Fail(kNestingTooDeep);
            if (!Signed(out))
                return false;
            --miDepth;
            if (negative)
                out.v = -out.v;
            return true;
        }
        return Primary(out);
    }

    bool Term(Value& out)
    {
        if (!Signed(out))
            return false;
        for (;;) {
            SkipSpaces();
            if (mp == mpEnd)
                return true;
            const wchar_t op = *mp;
            const bool multiply = op == L'*' || op == 0x00D7 || op == 0x00B7;
            const bool divide = op == L'/' || op == 0x00F7;
            if (!multiply && !divide)
                return true;
            ++mp;
            Value right;
            if (!Signed(right))
                return false;
            if (multiply) {
                out.v *= right.v;
                out.dim += right.dim;
            } else {
                if (right.v == 0)
                    return Fail(kDivisionByZero);
                out.v /= right.v;
                out.dim -= right.dim;
            }
            if (out.dim > kMaxDimension || out.dim < -kMaxDimension)
                return Fail(kIncompatibleUnit);
        }
    }

    bool Expression(Value& out)
    {
        if (!Term(out))
            return false;
        for (;;) {
            SkipSpaces();
            if (mp == mpEnd || !(IsMinus(*mp) || *mp == L'+'))
                return true;
            const bool subtract = IsMinus(*mp);
            ++mp;
            Value right;
            if (!Term(right))
                return false;
            // A plain number beside a quantity is taken in the target unit.
            if (out.dim != right.dim && out.dim != 0 && right.dim != 0)
                return Fail(kIncompatibleUnit);
            out.dim = out.dim != 0 ? out.dim : right.dim;
            out.v = subtract ? out.v - right.v : out.v + right.v;
        }
    }

    const UnitsFormatterImp& mS;
    const wchar_t* mpText;
    const wchar_t* mpEnd;
    const wchar_t* mp = nullptr;
    const TypeRow* mpTarget;
    int miGroup;
    int miDepth = 0;
    bool mbDotIsDecimal = false;
    bool mbGroupUsable = true;
    ErrorCode meError = kSuccess;
};

} // namespace

ErrorCode ParseText(const UnitsFormatterImp& settings, const wchar_t* text, double& value, int unit)
{
    // A plain number asked for while the default symbol shows its numbers
    // without unit text: read the text in that shape first.
    if (unit == kvp::IDesignPropertyUnits::eUnitless && settings.miDefaultSymbol != kSymbolUnitless) {
        const SymbolRow* symbol = FindSymbol(settings.miDefaultSymbol);
        const std::wstring* shape = settings.CustomTemplate(settings.miDefaultSymbol);
        if (symbol && shape && (symbol->parts > 1 || symbol->fraction)) {
            Parser shaped(settings, text, unit);
            double result = 0;
            if (shaped.RunTemplate(*shape, symbol->layout, result)) {
                value = result;
                return kSuccess;
            }
        }
    }
    Parser parser(settings, text, unit);
    return parser.Run(value);
}

} // namespace kavrel::platform::core::units::detail
