#include <KvUICore/widgets/WidgetUnits.h>

#include <KvCoreUnits/MathUtilities.h>
#include <KvCoreUnits/StringUtil.h>
#include <KvCoreUnits/UnitsConverter.h>
#include <KvCoreUnits/UnitsUtilities.h>

#include <QLocale>

#include <string>
#include <vector>

namespace Kavrel::UICore {

namespace {

namespace units = kavrel::platform::core::units;
using units::MathUtilities;
using units::StringUtil;
using units::UnitsConverter;
using units::UnitsUtilities;
using Units = kvp::IDesignPropertyUnits;

constexpr Units::teType kUnitlessType = Units::eUnitless;             // 0x1001
constexpr units::UnitSymbol kUnitlessSymbol = units::kSymbolUnitless; // 0x101001
constexpr Units::teGroup kAngleGroup = Units::eGroupAngle;            // 0x8000
constexpr std::size_t kTextBufferLength = 1024;
constexpr std::size_t kTemplateBufferLength = 50;
constexpr std::size_t kSignBufferLength = 10;
constexpr int kTemplateAttempts = 10;
// Shown numbers beyond these switch plain forms to exponent text.
constexpr double kExponentAbove = 1e7;
constexpr double kExponentBelow = 1e-8;

std::size_t WideLength(const QString& text)
{
    return text.toStdWString().size() + 1;
}

QString ReadSeparator(units::ErrorCode (units::UnitsFormatter::*getter)(wchar_t*, std::size_t) const,
                      const units::UnitsFormatter& formatter, std::size_t length)
{
    std::vector<wchar_t> buffer(length > 0 ? length : 1, L'\0');
    units::ErrorCode code = (formatter.*getter)(buffer.data(), buffer.size());
    // Set directly on the formatter, bypassing the stored length: grow until it fits.
    while (code == units::kBufferTooSmall) {
        buffer.assign(buffer.size() * 2, L'\0');
        code = (formatter.*getter)(buffer.data(), buffer.size());
    }
    if (code != units::kSuccess)
        return QString();
    return StringUtil::WcharToQString(buffer.data());
}

} // namespace

WidgetUnits::WidgetUnits()
    : mFormatter(nullptr)
    , mdValue(0.0)
    , meUnitType(kUnitlessType)
    , meUnitSymbol(kUnitlessSymbol)
    , mbUnitSymbolDisplayEnabled(true)
    , mnDecimalSeparatorLength(2)
    , mnGroupSeparatorLength(2)
{
    const QLocale system = QLocale::system();
    SetDecimalSeparator(system.decimalPoint());
    SetGroupSeparator(system.groupSeparator());
    mFormatter.SetPositiveSign(L"+");
    const bool oldNumberSign = mFormatter.IncludePositiveSignInNumber();
    mFormatter.SetIncludePositiveSignInNumber(false);
    OnChanged_NumberSign(oldNumberSign, false);
    const bool oldExponentSign = mFormatter.IncludePositiveSignInExponent();
    mFormatter.SetIncludePositiveSignInExponent(false);
    OnChanged_ExponentSign(oldExponentSign, false);
}

WidgetUnits::~WidgetUnits() = default;

void WidgetUnits::OnChanged_DecimalPrecision(int, int) {}
void WidgetUnits::OnChanged_UnitType(UnitType, UnitType) {}
void WidgetUnits::OnChanged_UnitSymbol(UnitSymbol, UnitSymbol) {}
void WidgetUnits::OnChanged_NumberFormat(NumberFormat, NumberFormat) {}
void WidgetUnits::OnChanged_Value(double, double) {}
void WidgetUnits::OnChanged_DecimalSeparator(QString, QString) {}
void WidgetUnits::OnChanged_GroupSeparator(QString, QString) {}
void WidgetUnits::OnChanged_NumberSign(bool, bool) {}
void WidgetUnits::OnChanged_ExponentSign(bool, bool) {}
void WidgetUnits::OnChanged_UnitSymbolDisplayEnabled(bool, bool) {}

double WidgetUnits::GetValue() const
{
    return mdValue;
}

void WidgetUnits::SetValue(double value)
{
    SetValue(value, true);
}

bool WidgetUnits::SetValue(double value, bool notify)
{
    const double old = mdValue;
    if (MathUtilities::fuzzyEqualValues(value, old, GetTolerance()))
        return false;
    // Residues and negative zero never reach the display.
    if (MathUtilities::fuzzyEqualValues(value, 0.0, GetTolerance()))
        value = 0.0;
    mdValue = value;
    if (notify)
        OnChanged_Value(old, value);
    return true;
}

WidgetUnits::UnitType WidgetUnits::GetUnitType() const
{
    return meUnitType;
}

void WidgetUnits::SetUnitType(UnitType type)
{
    if (type == meUnitType || !UnitsUtilities::IsUnit(type))
        return;
    const UnitType old = meUnitType;
    meUnitType = type;
    mFormatter.SetDefaultUnit(type);
    OnChanged_UnitType(old, type);
}

QString WidgetUnits::GetUnit() const
{
    return StringUtil::GetUnitGlobalName(meUnitType);
}

WidgetUnits::UnitSymbol WidgetUnits::GetUnitSymbolType() const
{
    return meUnitSymbol;
}

void WidgetUnits::SetUnitSymbolType(UnitSymbol symbol)
{
    if (symbol == meUnitSymbol || !UnitsUtilities::IsUnitSymbol(symbol))
        return;
    const UnitSymbol old = meUnitSymbol;
    meUnitSymbol = symbol;
    mFormatter.SetDefaultSymbol(symbol);
    mFormatter.SetSymbolFormattingString(old, nullptr);
    // Deliberately the opposite of SetUnitSymbolDisplayEnabled: a new symbol
    // with the display flag set gets the number-only template.
    if (mbUnitSymbolDisplayEnabled)
        ApplyCustomSymbolString(symbol);
    else
        RemoveCustomSymbolString(symbol);
    OnChanged_UnitSymbol(old, symbol);
}

QString WidgetUnits::GetUnitSymbol() const
{
    return StringUtil::GetUnitGlobalName(meUnitSymbol);
}

void WidgetUnits::SetUnitSymbol(const QString& name)
{
    UnitSymbol symbol = kUnitlessSymbol;
    if (StringUtil::GetUnitSymbol(name, symbol) == units::kSuccess)
        SetUnitSymbolType(symbol);
}

QString WidgetUnits::GetUnitDisplayName(int symbol) const
{
    std::size_t length = 0;
    if (mFormatter.GetDisplayNameLength(symbol, length) != units::kSuccess || length == 0)
        return QString();
    std::vector<wchar_t> buffer(length, L'\0');
    if (mFormatter.GetDisplayName(symbol, buffer.data(), length) != units::kSuccess)
        return QString();
    return StringUtil::WcharToQString(buffer.data());
}

bool WidgetUnits::GetUnitSymbolDisplayEnabled() const
{
    return mbUnitSymbolDisplayEnabled;
}

void WidgetUnits::SetUnitSymbolDisplayEnabled(bool enabled)
{
    const bool old = mbUnitSymbolDisplayEnabled;
    mbUnitSymbolDisplayEnabled = enabled;
    const bool accepted = enabled ? RemoveCustomSymbolString(meUnitSymbol) : ApplyCustomSymbolString(meUnitSymbol);
    if (accepted)
        OnChanged_UnitSymbolDisplayEnabled(old, enabled);
}

int WidgetUnits::GetDecimalPrecision() const
{
    return mFormatter.GetNumberDecimalPrecision();
}

void WidgetUnits::SetDecimalPrecision(int precision)
{
    const int old = mFormatter.GetNumberDecimalPrecision();
    if (precision == old)
        return;
    if (mFormatter.SetNumberDecimalPrecision(precision) != units::kSuccess)
        return;
    OnChanged_DecimalPrecision(old, precision);
}

QString WidgetUnits::GetDecimalSeparator() const
{
    return ReadSeparator(&UnitsFormatter::GetNumberDecimalSeparator, mFormatter, mnDecimalSeparatorLength);
}

QString WidgetUnits::GetGroupSeparator() const
{
    return ReadSeparator(&UnitsFormatter::GetNumberGroupSeparator, mFormatter, mnGroupSeparatorLength);
}

void WidgetUnits::SetDecimalSeparator(const QString& separator)
{
    const QString old = GetDecimalSeparator();
    if (separator == old)
        return;
    const QString used = separator.isEmpty() ? QLocale::system().decimalPoint() : separator;
    if (mFormatter.SetNumberDecimalSeparator(used.toStdWString().c_str()) != units::kSuccess)
        return;
    mnDecimalSeparatorLength = WideLength(used);
    OnChanged_DecimalSeparator(old, separator);
}

void WidgetUnits::SetGroupSeparator(const QString& separator)
{
    const QString old = GetGroupSeparator();
    if (separator == old)
        return;
    const QString used = separator.isEmpty() ? QLocale::system().groupSeparator() : separator;
    if (mFormatter.SetNumberGroupSeparator(used.toStdWString().c_str()) != units::kSuccess)
        return;
    mnGroupSeparatorLength = WideLength(used);
    OnChanged_GroupSeparator(old, separator);
}

void WidgetUnits::SetSeparators(const QString& decimalSeparator, const QString& groupSeparator)
{
    SetDecimalSeparator(decimalSeparator);
    SetGroupSeparator(groupSeparator);
}

WidgetUnits::NumberFormat WidgetUnits::GetNumberFormatId() const
{
    return mFormatter.GetNumericFormat();
}

void WidgetUnits::SetNumberFormatId(NumberFormat format)
{
    const NumberFormat old = mFormatter.GetNumericFormat();
    if (format == old)
        return;
    if (mFormatter.SetNumericFormat(format) != units::kSuccess)
        return;
    OnChanged_NumberFormat(old, format);
}

QString WidgetUnits::GetNumberFormatW() const
{
    return StringUtil::GetGlobalName(mFormatter.GetNumericFormat());
}

void WidgetUnits::SetNumberFormat(const QString& name)
{
    NumberFormat format = units::kNumberFormatDecimal;
    if (StringUtil::GetNumberFormatId(name, format) != units::kSuccess)
        return;
    SetNumberFormatId(format);
}

void WidgetUnits::ShowPositiveNumberSign(bool show)
{
    const bool old = mFormatter.IncludePositiveSignInNumber();
    mFormatter.SetIncludePositiveSignInNumber(show);
    OnChanged_NumberSign(old, show);
}

void WidgetUnits::ShowPositiveExponentSign(bool show)
{
    const bool old = mFormatter.IncludePositiveSignInExponent();
    mFormatter.SetIncludePositiveSignInExponent(show);
    OnChanged_ExponentSign(old, show);
}

WidgetUnits::UnitsFormatter& WidgetUnits::GetFormatter()
{
    return mFormatter;
}

const WidgetUnits::UnitsFormatter& WidgetUnits::GetFormatter() const
{
    return mFormatter;
}

bool WidgetUnits::ValidateValue(const QString& text, double& value)
{
    bool plain = false;
    const double number = text.toDouble(&plain);
    UnitType symbolType = kUnitlessType;
    if (UnitsUtilities::GetUnitType(meUnitSymbol, symbolType) != units::kSuccess)
        symbolType = kUnitlessType;

    if (plain) {
        // A bare number always validates, even where the conversion is refused.
        UnitsConverter::Convert(number, symbolType == kUnitlessType ? meUnitType : symbolType, value, meUnitType);
        return true;
    }
    const std::wstring wide = text.toStdWString();
    if (meUnitType == kUnitlessType)
        return mFormatter.Parse(wide.c_str(), value, kUnitlessType) == units::kSuccess;
    if (symbolType == kUnitlessType)
        return false;

    // Text ending in a digit carries no trailing unit and is read as a plain
    // number of the symbol's unit, unless a "^" shows a unit with a power.
    const QString trimmed = text.trimmed();
    int parseUnit = symbolType;
    if (!trimmed.isEmpty() && trimmed.back().isDigit() && !trimmed.contains(QLatin1Char('^')))
        parseUnit = kUnitlessType;
    double parsed = 0.0;
    const units::ErrorCode code = mFormatter.Parse(wide.c_str(), parsed, parseUnit);
    UnitsConverter::Convert(parsed, symbolType, value, meUnitType);
    return code == units::kSuccess;
}

WidgetUnits::NumberFormat WidgetUnits::GetLocaleStringFromValue(double value, QString& text) const
{
    return GetLocaleStringFromValue(mFormatter, value, text, nullptr);
}

double WidgetUnits::GetTolerance() const
{
    if (meUnitType == kUnitlessType)
        return MathUtilities::defaultTolerance(GetDecimalPrecision());
    Units::teGroup group = Units::eGroupNone;
    if (UnitsUtilities::GetUnitGroup(meUnitType, group) == units::kSuccess && group == kAngleGroup)
        return MathUtilities::angleTolerance();
    return MathUtilities::distanceTolerance();
}

WidgetUnits::NumberFormat WidgetUnits::GetLocaleStringFromValue(const UnitsFormatter& formatter, double value,
                                                                QString& text, double* displayed) const
{
    wchar_t buffer[kTextBufferLength];
    const int symbol = meUnitSymbol;
    int unit = meUnitType;
    if (symbol == kUnitlessSymbol && unit != kUnitlessType)
        unit = kUnitlessType;
    if (unit == kUnitlessType) {
        UnitType symbolType = kUnitlessType;
        if (UnitsUtilities::GetUnitType(meUnitSymbol, symbolType) == units::kSuccess)
            unit = symbolType;
    }
    const NumberFormat format = formatter.GetNumericFormat();
    double shown = 0.0;
    units::ErrorCode code = units::kSuccess;
    if (unit == kUnitlessType && format == units::kNumberFormatFractional) {
        // Plain numbers have no fractional form: write them as decimals.
        UnitsFormatter decimal(formatter);
        decimal.SetNumericFormat(units::kNumberFormatDecimal);
        code = decimal.Format(value, unit, buffer, kTextBufferLength, symbol, &shown);
    } else {
        code = formatter.Format(value, unit, buffer, kTextBufferLength, symbol, &shown);
    }
    if (code != units::kSuccess) {
        text = QString();
        return NumberFormat(-1);
    }
    text = StringUtil::WcharToQString(buffer);
    if (displayed)
        *displayed = shown;
    const double magnitude = MathUtilities::_fabs(shown);
    if (format > units::kNumberFormatEngineering && shown != 0.0
        && (magnitude > kExponentAbove || magnitude < kExponentBelow))
        return GetExponentStringFromValue(value, text);
    return format;
}

WidgetUnits::NumberFormat WidgetUnits::GetExponentStringFromValue(double value, QString& text) const
{
    const NumberFormat format = mFormatter.GetNumericFormat();
    if (format == units::kNumberFormatScientific || format == units::kNumberFormatEngineering)
        return format;
    UnitsFormatter exponent(nullptr);
    ApplyFormatterProperties(exponent);
    exponent.SetNumericFormat(units::kNumberFormatScientific);
    wchar_t buffer[kTextBufferLength];
    if (exponent.Format(value, meUnitType, buffer, kTextBufferLength, meUnitSymbol, nullptr) != units::kSuccess)
        return NumberFormat(-1);
    text = StringUtil::WcharToQString(buffer);
    return units::kNumberFormatScientific;
}

void WidgetUnits::ApplyFormatterProperties(UnitsFormatter& target) const
{
    target.SetAllowTwoDigitExponent(mFormatter.AllowTwoDigitExponent());
    target.SetDefaultSymbol(meUnitSymbol);
    target.SetDefaultUnit(meUnitType);
    target.SetIncludePositiveSignInNumber(mFormatter.IncludePositiveSignInNumber());
    target.SetIncludePositiveSignInExponent(mFormatter.IncludePositiveSignInExponent());
    target.SetNumberDecimalPrecision(mFormatter.GetNumberDecimalPrecision());
    target.SetNumberDecimalSeparator(GetDecimalSeparator().toStdWString().c_str());
    target.SetNumberGroupSeparator(GetGroupSeparator().toStdWString().c_str());
    wchar_t formattingString[kTemplateBufferLength];
    if (mFormatter.GetSymbolFormattingString(meUnitSymbol, formattingString, kTemplateBufferLength) == units::kSuccess)
        target.SetSymbolFormattingString(meUnitSymbol, formattingString);
    wchar_t sign[kSignBufferLength];
    if (mFormatter.GetPositiveSign(sign, kSignBufferLength) == units::kSuccess)
        target.SetPositiveSign(sign);
}

bool WidgetUnits::ApplyCustomSymbolString(UnitSymbol symbol)
{
    mFormatter.SetSymbolFormattingString(symbol, nullptr);
    // Grow "{0}", "{0} {1}", "{0} {1} {2}" (a hyphen before part 1 for dashed
    // symbols) until the formatter accepts as many parts as the symbol shows.
    QString formattingString = QStringLiteral("{0}");
    wchar_t buffer[kTextBufferLength];
    for (int attempt = 0; attempt < kTemplateAttempts; ++attempt) {
        StringUtil::QStringToWchar(formattingString, buffer, int(kTextBufferLength));
        if (mFormatter.SetSymbolFormattingString(meUnitSymbol, buffer) == units::kSuccess)
            return true;
        if (attempt == 0 && HasDash(meUnitSymbol))
            formattingString += QStringLiteral("-{%0}").replace(QLatin1String("%0"), QString::number(1));
        else
            formattingString += QStringLiteral(" {%0}").replace(QLatin1String("%0"), QString::number(attempt + 1));
    }
    return false;
}

bool WidgetUnits::RemoveCustomSymbolString(UnitSymbol symbol)
{
    return mFormatter.SetSymbolFormattingString(symbol, nullptr) == units::kSuccess;
}

bool WidgetUnits::HasDash(UnitSymbol symbol) const
{
    return symbol == 0x602016 || symbol == 0x802016 || symbol == 0xA02016;
}

bool WidgetUnits::HasDegreeMinuteSecond(UnitSymbol symbol) const
{
    return symbol == 0x408002 || symbol == 0x508002 || symbol == 0x608002;
}

bool WidgetUnits::HasFraction(UnitSymbol symbol) const
{
    return symbol == 0x702016 || symbol == 0x802016 || symbol == 0x902016 || symbol == 0xA02016;
}

double WidgetUnits::CalculateStepForDegreeMinuteSecond(int precision) const
{
    if (precision == 0)
        return 1.0;
    if (precision == 1 || precision == 2)
        return 1.0 / 60.0;
    if (precision == 3 || precision == 4)
        return 1.0 / 3600.0;
    return 1.0 / (MathUtilities::_pow(10.0, precision - 4) * 3600.0);
}

double WidgetUnits::CalculateStepForFraction(int precision) const
{
    if (precision == 0)
        return 1.0;
    return 1.0 / MathUtilities::_pow(2.0, precision);
}

} // namespace Kavrel::UICore
