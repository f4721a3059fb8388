#include <KvCoreUnits/UnitsFormatter.h>

#include <QTest>

#include <cmath>
#include <string>

using namespace kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

class tst_UnitsFormatter : public QObject
{
    Q_OBJECT

private:
    static QString Format(const UnitsFormatter& formatter, double value, int unit, int symbol,
                          double* displayed = nullptr)
    {
        wchar_t buffer[256];
        if (formatter.Format(value, unit, buffer, 256, symbol, displayed) != kSuccess)
            return QStringLiteral("<error>");
        return QString::fromWCharArray(buffer);
    }

private Q_SLOTS:
    void textForms_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("unit");
        QTest::addColumn<int>("symbol");
        QTest::addColumn<int>("precision");
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("expected");
        const int mm = Units::eMillimeter;
        const int in = Units::eInch;
        const int deg = Units::eDegree;
        const int dec = kNumberFormatDecimal;

        QTest::newRow("millimeters") << 12.5 << mm << int(kSymbolMillimeter) << 2 << dec << "12.50 mm";
        QTest::newRow("feet dash inches") << 66.0 << in << 0x602016 << 0 << dec << "5'-6\"";
        QTest::newRow("feet dash inches decimal") << 66.5 << in << 0x602016 << 2 << dec << "5'-6.50\"";
        QTest::newRow("feet dash fraction") << 66.5 << in << 0x802016 << 4 << dec << "5'-6 1/2\"";
        QTest::newRow("feet dash hyphen fraction") << 66.5 << in << 0xA02016 << 4 << dec << "5'-6-1/2\"";
        QTest::newRow("fractional inches") << 66.5 << in << 0x702016 << 4 << dec << "66 1/2\"";
        QTest::newRow("fractional inches words") << 66.5 << in << 0x902016 << 4 << dec << "66 1/2 in";
        QTest::newRow("feet inches words") << 66.5 << in << 0x402016 << 2 << dec << "5 ft 6.50 in";
        QTest::newRow("feet inches blank") << 66.5 << in << 0x302016 << 1 << dec << "5' 6.5\"";
        QTest::newRow("fraction reduced") << 0.5 << in << 0x702016 << 3 << dec << "1/2\"";
        QTest::newRow("fraction reduced 3/8") << 0.375 << in << 0x702016 << 8 << dec << "3/8\"";
        QTest::newRow("fraction carries to feet") << 71.99 << in << 0x802016 << 4 << dec << "6'-0\"";
        QTest::newRow("15/16 plus 1/16 carries")
            << 11.0 + 15.0 / 16 + 1.0 / 16 << in << 0x802016 << 4 << dec << "1'-0\"";
        QTest::newRow("decimal inches carry") << 71.999 << in << 0x602016 << 2 << dec << "6'-0.00\"";
        QTest::newRow("zero inches with fraction") << 60.5 << in << 0x802016 << 1 << dec << "5'-0 1/2\"";
        QTest::newRow("negative feet inches") << -66.5 << in << 0x802016 << 4 << dec << "-5'-6 1/2\"";
        QTest::newRow("dms") << 45 + 30.0 / 60 + 15.0 / 3600 << deg << 0x408002 << 4 << dec << "45°30'15\"";
        QTest::newRow("dms letters") << 45 + 30.0 / 60 + 15.0 / 3600 << deg << 0x508002 << 3 << dec << "45d30m15s";
        QTest::newRow("dms spaced") << 45 + 30.0 / 60 + 15.0 / 3600 << deg << 0x608002 << 4 << dec << "45° 30' 15\"";
        QTest::newRow("dms minutes only") << 45.5 << deg << 0x408002 << 2 << dec << "45°30'";
        QTest::newRow("dms degrees only") << 45.6 << deg << 0x408002 << 0 << dec << "46°";
        QTest::newRow("dms decimal seconds") << 45 + 15.25 / 3600 << deg << 0x408002 << 6 << dec << "45°00'15.25\"";
        QTest::newRow("dms seconds carry") << 10 + 59.9999 / 3600 << deg << 0x408002 << 4 << dec << "10°01'00\"";
        QTest::newRow("dms negative half") << -0.5 << deg << 0x408002 << 4 << dec << "-0°30'00\"";
        QTest::newRow("scientific") << 12345678.0 << mm << int(kSymbolMillimeter) << 2 << 0 << "1.23E+07 mm";
        QTest::newRow("scientific small") << 0.000123 << mm << int(kSymbolMillimeter) << 1 << 0 << "1.2E-04 mm";
        QTest::newRow("scientific carry") << 9.999e6 << mm << int(kSymbolMillimeter) << 2 << 0 << "1.00E+07 mm";
        QTest::newRow("engineering") << 12345678.0 << mm << int(kSymbolMillimeter) << 2 << 1 << "12.35E+06 mm";
        QTest::newRow("engineering carry") << 999999.0 << mm << int(kSymbolMillimeter) << 2 << 1 << "1.00E+06 mm";
        QTest::newRow("engineering negative exponent")
            << 0.0123 << mm << int(kSymbolMillimeter) << 2 << 1 << "12.30E-03 mm";
        QTest::newRow("exponent in feet") << 1e9 << in << 0x602016 << 2 << 0 << "8.33E+07'";
        QTest::newRow("grouped") << 1234567.891 << mm << int(kSymbolMillimeter) << 2 << 3 << "1,234,567.89 mm";
        QTest::newRow("general trims") << 12.5 << mm << int(kSymbolMillimeter) << 4 << 4 << "12.5 mm";
        QTest::newRow("general whole") << 12.0 << mm << int(kSymbolMillimeter) << 4 << 4 << "12 mm";
        QTest::newRow("fractional format") << 12.5 << mm << int(kSymbolMillimeter) << 3 << 6 << "12 1/2 mm";
        QTest::newRow("no negative zero") << -0.001 << mm << int(kSymbolMillimeter) << 2 << dec << "0.00 mm";
        QTest::newRow("converted to inches") << 25.4 << mm << 0x022016 << 2 << dec << "1.00\"";
        QTest::newRow("exact conversion") << 1000.0 << in << int(kSymbolMillimeter) << 0 << dec << "25400 mm";
        QTest::newRow("radians") << 180.0 << deg << int(kSymbolRadian) << 5 << dec << "3.14159 rad";
        QTest::newRow("fahrenheit") << 100.0 << int(Units::eCelsius) << int(kSymbolFahrenheit) << 2 << dec
                                    << "212.00 °F";
        QTest::newRow("percent") << 0.125 << int(Units::eRatio) << int(kSymbolPercent) << 1 << dec << "12.5%";
        QTest::newRow("unitless symbol keeps the number") << 12.5 << mm << int(kSymbolUnitless) << 2 << dec << "12.50";
        QTest::newRow("unitless unit takes symbol unit")
            << 12.5 << int(Units::eUnitless) << 0x022016 << 1 << dec << "12.5\"";
    }

    void textForms()
    {
        QFETCH(double, value);
        QFETCH(int, unit);
        QFETCH(int, symbol);
        QFETCH(int, precision);
        QFETCH(int, format);
        UnitsFormatter formatter(L"en-US");
        QCOMPARE(formatter.SetNumberDecimalPrecision(precision), kSuccess);
        QCOMPARE(formatter.SetNumericFormat(NumberFormat(format)), kSuccess);
        QTEST(Format(formatter, value, unit, symbol), "expected");
    }

    void signsAndExponentWidth()
    {
        UnitsFormatter formatter(L"en-US");
        formatter.SetIncludePositiveSignInNumber(true);
        QCOMPARE(Format(formatter, 12.5, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("+12.50 mm"));
        QCOMPARE(Format(formatter, 0.0, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("0.00 mm"));
        formatter.SetNumericFormat(kNumberFormatScientific);
        formatter.SetIncludePositiveSignInNumber(false);
        formatter.SetIncludePositiveSignInExponent(false);
        QCOMPARE(Format(formatter, 12345678.0, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("1.23E07 mm"));
        formatter.SetAllowTwoDigitExponent(false);
        formatter.SetIncludePositiveSignInExponent(true);
        QCOMPARE(Format(formatter, 12345678.0, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("1.23E+007 mm"));
        QCOMPARE(Format(formatter, 0.0, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("0.00E+000 mm"));
    }

    void localeSeparators()
    {
        UnitsFormatter german(L"de-DE");
        german.SetNumericFormat(kNumberFormatDecimalGrouped);
        QCOMPARE(Format(german, 1234567.891, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("1.234.567,89 mm"));
        wchar_t separator[8];
        QCOMPARE(german.GetNumberDecimalSeparator(separator, 8), kSuccess);
        QCOMPARE(QString::fromWCharArray(separator), QStringLiteral(","));
        QCOMPARE(german.GetNumberDecimalSeparator(separator, 1), kBufferTooSmall);
        QCOMPARE(german.SetNumberDecimalSeparator(L""), kInvalidArgument);
        QCOMPARE(german.SetNumberDecimalSeparator(nullptr), kInvalidArgument);
        // Any length and any characters are kept.
        QCOMPARE(german.SetNumberDecimalSeparator(L" decimal-1 "), kSuccess);
        QCOMPARE(german.GetNumberDecimalSeparator(separator, 8), kBufferTooSmall);
        wchar_t wide[16];
        QCOMPARE(german.GetNumberDecimalSeparator(wide, 12), kSuccess);
        QCOMPARE(QString::fromWCharArray(wide), QStringLiteral(" decimal-1 "));
        QCOMPARE(Format(german, 1.5, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("1 decimal-1 50 mm"));
        // Text beyond the formatter's working space fails instead of being cut.
        const std::wstring huge(600, L'~');
        QCOMPARE(german.SetNumberDecimalSeparator(huge.c_str()), kSuccess);
        QCOMPARE(Format(german, 1.5, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("<error>"));
    }

    void displayedNumberIsInTheSymbolUnit()
    {
        UnitsFormatter formatter(L"en-US");
        formatter.SetNumberDecimalPrecision(4);
        double displayed = 0;
        Format(formatter, 1689.1, Units::eMillimeter, 0x802016, &displayed);
        QCOMPARE(displayed, 66.5);
        formatter.SetNumberDecimalPrecision(2);
        Format(formatter, -0.001, Units::eMillimeter, kSymbolMillimeter, &displayed);
        QCOMPARE(displayed, 0.0);
        QVERIFY(!std::signbit(displayed));
    }

    void failuresLeaveAnEmptyText()
    {
        UnitsFormatter formatter(L"en-US");
        wchar_t buffer[8] = L"junk";
        QCOMPARE(formatter.Format(1.0, 0x2099, buffer, 8, kSymbolMillimeter, nullptr), kUnknownUnit);
        QCOMPARE(buffer[0], L'\0');
        QCOMPARE(formatter.Format(1.0, Units::eMillimeter, buffer, 8, 0x77, nullptr), kUnknownUnit);
        QCOMPARE(formatter.Format(1.0, Units::eKilogram, buffer, 8, kSymbolMillimeter, nullptr), kIncompatibleUnit);
        QCOMPARE(formatter.Format(qQNaN(), Units::eMillimeter, buffer, 8, kSymbolMillimeter, nullptr), kOutOfRange);
        QCOMPARE(formatter.Format(qInf(), Units::eMillimeter, buffer, 8, kSymbolMillimeter, nullptr), kOutOfRange);
        QCOMPARE(formatter.Format(12345.0, Units::eMillimeter, buffer, 8, kSymbolMillimeter, nullptr), kBufferTooSmall);
        QCOMPARE(buffer[0], L'\0');
        QCOMPARE(formatter.Format(1.0, Units::eMillimeter, nullptr, 8, kSymbolMillimeter, nullptr), kInvalidArgument);
        // Huge values still fit a reasonable buffer in fixed notation.
        wchar_t large[1024];
        QCOMPARE(formatter.Format(1e300, Units::eMillimeter, large, 1024, kSymbolMillimeter, nullptr), kSuccess);
        QCOMPARE(formatter.Format(1e300, Units::eInch, large, 1024, 0x802016, nullptr), kSuccess);
    }

    void formattingStrings_data()
    {
        QTest::addColumn<int>("symbol");
        QTest::addColumn<QString>("formattingString");
        QTest::addColumn<int>("code");
        QTest::newRow("one part on mm") << int(kSymbolMillimeter) << "{0}" << int(kSuccess);
        QTest::newRow("two parts on mm") << int(kSymbolMillimeter) << "{0} {1}" << int(kTemplateRefused);
        QTest::newRow("dash on feet inches") << 0x802016 << "{0}-{1}" << int(kSuccess);
        QTest::newRow("one part on feet inches") << 0x802016 << "{0}" << int(kTemplateRefused);
        QTest::newRow("three parts on dms") << 0x408002 << "{0} {1} {2}" << int(kSuccess);
        QTest::newRow("two parts on dms") << 0x408002 << "{0} {1}" << int(kTemplateRefused);
        QTest::newRow("four parts on dms") << 0x408002 << "{0} {1} {2} {3}" << int(kTemplateRefused);
        QTest::newRow("out of order") << 0x802016 << "{1}-{0}" << int(kTemplateRefused);
        QTest::newRow("repeated") << int(kSymbolMillimeter) << "{0}{0}" << int(kTemplateRefused);
        QTest::newRow("unclosed") << int(kSymbolMillimeter) << "{0" << int(kTemplateRefused);
        QTest::newRow("stray brace") << int(kSymbolMillimeter) << "{0}}" << int(kTemplateRefused);
        QTest::newRow("escaped braces") << int(kSymbolMillimeter) << "{{x}} {0}" << int(kSuccess);
        QTest::newRow("unknown symbol") << 0x77 << "{0}" << int(kUnknownUnit);
    }

    void formattingStrings()
    {
        QFETCH(int, symbol);
        QFETCH(QString, formattingString);
        UnitsFormatter formatter(L"en-US");
        QTEST(int(formatter.SetSymbolFormattingString(symbol, formattingString.toStdWString().c_str())), "code");
    }

    void customStringsChangeTheText()
    {
        UnitsFormatter formatter(L"en-US");
        formatter.SetNumberDecimalPrecision(4);
        QCOMPARE(formatter.SetSymbolFormattingString(0x802016, L"{0}-{1}"), kSuccess);
        QCOMPARE(Format(formatter, 66.5, Units::eInch, 0x802016), QStringLiteral("5-6 1/2"));
        QCOMPARE(formatter.SetSymbolFormattingString(0x408002, L"{0} {1} {2}"), kSuccess);
        QCOMPARE(Format(formatter, 45.5, Units::eDegree, 0x408002), QStringLiteral("45 30 00"));
        formatter.SetNumberDecimalPrecision(2);
        QCOMPARE(Format(formatter, 45.5, Units::eDegree, 0x408002), QStringLiteral("45 30"));
        QCOMPARE(formatter.SetSymbolFormattingString(kSymbolMillimeter, L"{{{0}}}"), kSuccess);
        QCOMPARE(Format(formatter, 1.0, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("{1.00}"));

        wchar_t buffer[50];
        QCOMPARE(formatter.GetSymbolFormattingString(0x802016, buffer, 50), kSuccess);
        QCOMPARE(QString::fromWCharArray(buffer), QStringLiteral("{0}-{1}"));
        QCOMPARE(formatter.GetSymbolFormattingString(0x802016, buffer, 3), kBufferTooSmall);
        // Null restores the library's string.
        QCOMPARE(formatter.SetSymbolFormattingString(0x802016, nullptr), kSuccess);
        QCOMPARE(formatter.GetSymbolFormattingString(0x802016, buffer, 50), kSuccess);
        QCOMPARE(QString::fromWCharArray(buffer), QStringLiteral("{0}'-{1}\""));
        formatter.SetNumberDecimalPrecision(4);
        QCOMPARE(Format(formatter, 66.5, Units::eInch, 0x802016), QStringLiteral("5'-6 1/2\""));

        // Copies are independent.
        UnitsFormatter copy(formatter);
        QCOMPARE(copy.SetSymbolFormattingString(0x802016, L"{0}-{1}"), kSuccess);
        QCOMPARE(Format(formatter, 66.5, Units::eInch, 0x802016), QStringLiteral("5'-6 1/2\""));
        QCOMPARE(Format(copy, 66.5, Units::eInch, 0x802016), QStringLiteral("5-6 1/2"));
    }

    void displayNames()
    {
        UnitsFormatter formatter(L"en-US");
        std::size_t length = 0;
        QCOMPARE(formatter.GetDisplayNameLength(0x802016, length), kSuccess);
        const QString expected = QStringLiteral("Feet and fractional inches");
        QCOMPARE(length, std::size_t(expected.size() + 1));
        std::wstring buffer(length, L'x');
        QCOMPARE(formatter.GetDisplayName(0x802016, buffer.data(), length), kSuccess);
        QCOMPARE(QString::fromWCharArray(buffer.c_str()), expected);
        QCOMPARE(formatter.GetDisplayName(0x802016, buffer.data(), length - 1), kBufferTooSmall);
        QCOMPARE(formatter.GetDisplayNameLength(kSymbolUnitless, length), kSuccess);
        QCOMPARE(length, std::size_t(1));
        QCOMPARE(formatter.GetDisplayNameLength(0x77, length), kUnknownUnit);
        QCOMPARE(formatter.GetDisplayNameLength(Units::eMillimeter, length), kSuccess);
    }

    void settersRefuseUnknownValues()
    {
        UnitsFormatter formatter(L"en-US");
        // Formats and precisions out of range are kept as set and written as
        // the plain decimal form, with the precision limited to 0 to 15.
        QCOMPARE(formatter.SetNumericFormat(NumberFormat(7)), kSuccess);
        QCOMPARE(formatter.GetNumericFormat(), NumberFormat(7));
        QCOMPARE(formatter.SetNumberDecimalPrecision(-1), kSuccess);
        QCOMPARE(formatter.GetNumberDecimalPrecision(), -1);
        QCOMPARE(Format(formatter, 2.25, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("2 mm"));
        QCOMPARE(formatter.SetNumericFormat(NumberFormat(-1)), kSuccess);
        QCOMPARE(formatter.SetNumberDecimalPrecision(40), kSuccess);
        QCOMPARE(formatter.GetNumberDecimalPrecision(), 40);
        QCOMPARE(Format(formatter, 0.5, Units::eMillimeter, kSymbolMillimeter), QStringLiteral("0.500000000000000 mm"));
        QCOMPARE(formatter.SetDefaultUnit(0x2099), kUnknownUnit);
        QCOMPARE(formatter.SetDefaultSymbol(0x2099), kUnknownUnit);
        QCOMPARE(formatter.GetDefaultUnit(), int(Units::eUnitless));
        QCOMPARE(formatter.GetDefaultSymbol(), int(kSymbolUnitless));
    }
};

QTEST_MAIN(tst_UnitsFormatter)
#include "tst_unitsformatter.moc"
