#include <KvCoreUnits/MathUtilities.h>
#include <KvCoreUnits/StringUtil.h>
#include <KvCoreUnits/UnitsConverter.h>
#include <KvCoreUnits/UnitsUtilities.h>

#include <QSet>
#include <QTest>

#include <cmath>
#include <random>

using namespace kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

constexpr double kPi = 3.14159265358979323846;

// Conversion, classification and the name tables of the units component.
class tst_UnitsConverter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exactFactors_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<double>("expected");
        QTest::newRow("1000 in") << 1000.0 << int(Units::eInch) << int(Units::eMillimeter) << 25400.0;
        QTest::newRow("1 ft") << 1.0 << int(Units::eFoot) << int(Units::eMillimeter) << 304.8;
        QTest::newRow("ft to in") << 5.5 << int(Units::eFoot) << int(Units::eInch) << 66.0;
        QTest::newRow("1 mi") << 1.0 << int(Units::eMile) << int(Units::eMeter) << 1609.344;
        QTest::newRow("1 yd") << 1.0 << int(Units::eYard) << int(Units::eInch) << 36.0;
        QTest::newRow("1 um") << 1.0 << int(Units::eMicrometer) << int(Units::eMillimeter) << 0.001;
        QTest::newRow("1 lb") << 1.0 << int(Units::ePound) << int(Units::eGram) << 453.59237;
        QTest::newRow("16 oz") << 16.0 << int(Units::eOunce) << int(Units::ePound) << 1.0;
        QTest::newRow("1 acre") << 1.0 << int(Units::eAcre) << int(Units::eSquareFoot) << 43560.0;
        QTest::newRow("1 ft2") << 1.0 << int(Units::eSquareFoot) << int(Units::eSquareInch) << 144.0;
        QTest::newRow("1 gal") << 1.0 << int(Units::eUSGallon) << int(Units::eCubicInch) << 231.0;
        QTest::newRow("1 L") << 1.0 << int(Units::eLiter) << int(Units::eCubicCentimeter) << 1000.0;
        QTest::newRow("1 h") << 1.0 << int(Units::eHour) << int(Units::eSecond) << 3600.0;
        QTest::newRow("100 C") << 100.0 << int(Units::eCelsius) << int(Units::eFahrenheit) << 212.0;
        QTest::newRow("32 F") << 32.0 << int(Units::eFahrenheit) << int(Units::eCelsius) << 0.0;
        QTest::newRow("0 K") << 0.0 << int(Units::eKelvin) << int(Units::eCelsius) << -273.15;
        QTest::newRow("-40 F") << -40.0 << int(Units::eFahrenheit) << int(Units::eCelsius) << -40.0;
        QTest::newRow("0 F in R") << 0.0 << int(Units::eFahrenheit) << int(Units::eRankine) << 459.67;
        QTest::newRow("1 turn") << 1.0 << int(Units::eTurn) << int(Units::eDegree) << 360.0;
        QTest::newRow("100 grad") << 100.0 << int(Units::eGradian) << int(Units::eDegree) << 90.0;
        QTest::newRow("1 deg in arcsec") << 1.0 << int(Units::eDegree) << int(Units::eArcSecond) << 3600.0;
        QTest::newRow("50 percent") << 50.0 << int(Units::ePercent) << int(Units::eRatio) << 0.5;
        QTest::newRow("same unit") << 0.1 << int(Units::eMillimeter) << int(Units::eMillimeter) << 0.1;
        // Radians are tied to pi, and conversions give the value one would type.
        QTest::newRow("180 deg") << 180.0 << int(Units::eDegree) << int(Units::eRadian) << kPi;
        QTest::newRow("pi rad") << kPi << int(Units::eRadian) << int(Units::eDegree) << 180.0;
        QTest::newRow("12.34 mm") << 12.34 << int(Units::eMillimeter) << int(Units::eCentimeter) << 1.234;
        QTest::newRow("0.1 m") << 0.1 << int(Units::eMeter) << int(Units::eMillimeter) << 100.0;
        QTest::newRow("3.175 mm") << 3.175 << int(Units::eMillimeter) << int(Units::eInch) << 0.125;
    }

    void exactFactors()
    {
        QFETCH(double, value);
        QFETCH(int, from);
        QFETCH(int, to);
        double out = 0;
        QCOMPARE(UnitsConverter::Convert(value, from, out, to), kSuccess);
        QTEST(out, "expected");
    }

    // Values as people type them (a few significant digits) convert there and
    // back to the identical double; arbitrary doubles come back within a few
    // units in the last place (a double cannot hold x / 10 exactly for every x).
    void thereAndBackIsIdentical_data()
    {
        QTest::addColumn<bool>("typed");
        QTest::addColumn<double>("identicalShare");
        QTest::newRow("typed values") << true << 0.99;
        QTest::newRow("arbitrary doubles") << false << 0.8;
    }

    void thereAndBackIsIdentical()
    {
        QFETCH(bool, typed);
        QFETCH(double, identicalShare);
        std::mt19937_64 rng(4711);
        std::uniform_real_distribution<double> exponent(-6.0, 9.0);
        std::uniform_int_distribution<int> mantissa(1, 999999);
        std::uniform_int_distribution<int> power(-4, 4);
        const QList<Units::teType> types = UnitsUtilities::GetAllUnits();
        int total = 0;
        int identical = 0;
        for (Units::teType from : types) {
            for (Units::teType to : types) {
                if ((from & 0xF000) != (to & 0xF000) || from == to)
                    continue;
                for (int i = 0; i < 300; ++i) {
                    double x = 0;
                    if (typed)
                        x = QStringLiteral("%1e%2").arg(mantissa(rng)).arg(power(rng)).toDouble();
                    else
                        x = std::pow(10.0, exponent(rng));
                    if (i % 2)
                        x = -x;
                    double there = 0;
                    double back = 0;
                    QCOMPARE(UnitsConverter::Convert(x, from, there, to), kSuccess);
                    QCOMPARE(UnitsConverter::Convert(there, to, back, from), kSuccess);
                    ++total;
                    if (back == x)
                        ++identical;
                    else if ((from & 0xF000) != Units::eGroupTemperature)
                        QVERIFY2(std::fabs(back - x) <= 1e-15 * std::fabs(x),
                                 qPrintable(QStringLiteral("%1 -> %2: %3").arg(from, 0, 16).arg(to, 0, 16).arg(x)));
                }
            }
        }
        QVERIFY2(identical >= total * identicalShare, qPrintable(QStringLiteral("%1 of %2").arg(identical).arg(total)));
    }

    void refusedConversionsKeepTheValue()
    {
        double out = 0;
        QCOMPARE(UnitsConverter::Convert(12.0, Units::eMillimeter, out, Units::eKilogram), kIncompatibleUnit);
        QCOMPARE(out, 12.0);
        QCOMPARE(UnitsConverter::Convert(13.0, Units::eUnitless, out, Units::eMillimeter), kIncompatibleUnit);
        QCOMPARE(out, 13.0);
        QCOMPARE(UnitsConverter::Convert(14.0, 0x2099, out, Units::eMillimeter), kUnknownUnit);
        QCOMPARE(out, 14.0);
    }

    void classification()
    {
        QVERIFY(UnitsUtilities::IsUnit(0x1001));
        QVERIFY(!UnitsUtilities::IsUnit(0x2099));
        QVERIFY(!UnitsUtilities::IsUnit(0));
        QVERIFY(!UnitsUtilities::IsUnit(-1));
        QVERIFY(UnitsUtilities::IsUnitSymbol(0x101001));
        QVERIFY(!UnitsUtilities::IsUnitSymbol(0x1001));
        for (int symbol : {0x602016, 0x702016, 0x802016, 0x902016, 0xA02016}) {
            Units::teType type = Units::eTypeNone;
            QCOMPARE(UnitsUtilities::GetUnitType(UnitSymbol(symbol), type), kSuccess);
            QCOMPARE(int(type), int(Units::eInch));
        }
        for (int symbol : {0x408002, 0x508002, 0x608002}) {
            Units::teType type = Units::eTypeNone;
            QCOMPARE(UnitsUtilities::GetUnitType(UnitSymbol(symbol), type), kSuccess);
            QCOMPARE(int(type), int(Units::eDegree));
            QCOMPARE(UnitsUtilities::GetSymbolPartCount(UnitSymbol(symbol)), 3);
        }
        QCOMPARE(UnitsUtilities::GetSymbolPartCount(UnitSymbol(0x802016)), 2);
        QCOMPARE(UnitsUtilities::GetSymbolPartCount(kSymbolMillimeter), 1);
        Units::teGroup group = Units::eGroupNone;
        QCOMPARE(UnitsUtilities::GetUnitGroup(Units::eRadian, group), kSuccess);
        QCOMPARE(int(group), 0x8000);
        QCOMPARE(UnitsUtilities::GetUnitGroup(Units::teType(0x2099), group), kUnknownUnit);
        Units::teType type = Units::eTypeNone;
        QCOMPARE(UnitsUtilities::GetUnitType(UnitSymbol(0x77), type), kUnknownUnit);
        // Every symbol writes a known type; every type has a known default symbol of its own.
        for (UnitSymbol symbol : UnitsUtilities::GetAllSymbols()) {
            QCOMPARE(UnitsUtilities::GetUnitType(symbol, type), kSuccess);
            QVERIFY(UnitsUtilities::IsUnit(type));
        }
        for (Units::teType unit : UnitsUtilities::GetAllUnits()) {
            UnitSymbol symbol = kSymbolNone;
            QCOMPARE(UnitsUtilities::GetDefaultSymbol(unit, symbol), kSuccess);
            QCOMPARE(UnitsUtilities::GetUnitType(symbol, type), kSuccess);
            QCOMPARE(type, unit);
        }
    }

    void globalNamesAreUniqueAndFoundAgain()
    {
        QSet<QString> seen;
        for (UnitSymbol symbol : UnitsUtilities::GetAllSymbols()) {
            const QString name = StringUtil::GetUnitGlobalName(symbol);
            QVERIFY(!name.isEmpty());
            QVERIFY2(!seen.contains(name.toLower()), qPrintable(name));
            seen.insert(name.toLower());
            UnitSymbol found = kSymbolNone;
            QCOMPARE(StringUtil::GetUnitSymbol(name, found), kSuccess);
            QCOMPARE(found, symbol);
        }
        for (Units::teType unit : UnitsUtilities::GetAllUnits()) {
            const QString name = StringUtil::GetUnitGlobalName(unit);
            Units::teType found = Units::eTypeNone;
            QCOMPARE(StringUtil::GetUnitType(name, found), kSuccess);
            QCOMPARE(found, unit);
        }
        QCOMPARE(StringUtil::GetUnitGlobalName(Units::eMillimeter), QStringLiteral("Millimeter"));
        QCOMPARE(StringUtil::GetUnitGlobalName(0x802016), QStringLiteral("FeetDashFractionalInches"));
        QVERIFY(StringUtil::GetUnitGlobalName(0x2099).isEmpty());
        UnitSymbol symbol = kSymbolMillimeter;
        QCOMPARE(StringUtil::GetUnitSymbol(QStringLiteral("furlong"), symbol), kUnknownName);
        QCOMPARE(symbol, kSymbolMillimeter);
        QCOMPARE(StringUtil::GetUnitSymbol(QStringLiteral("MM"), symbol), kSuccess);
        QCOMPARE(symbol, kSymbolMillimeter);
        // Exact spelling wins over a case-blind match.
        QCOMPARE(StringUtil::GetUnitSymbol(QStringLiteral("m"), symbol), kSuccess);
        QCOMPARE(symbol, kSymbolMeter);
    }

    void numberFormatNames()
    {
        for (int i = 0; i < kNumberFormatCount; ++i) {
            const QString name = StringUtil::GetGlobalName(NumberFormat(i));
            QVERIFY(!name.isEmpty());
            NumberFormat format = NumberFormat(-1);
            QCOMPARE(StringUtil::GetNumberFormatId(name.toUpper(), format), kSuccess);
            QCOMPARE(int(format), i);
        }
        QCOMPARE(StringUtil::GetGlobalName(kNumberFormatScientific), QStringLiteral("Scientific"));
        QCOMPARE(StringUtil::GetGlobalName(kNumberFormatDecimal), QStringLiteral("Decimal"));
        QVERIFY(StringUtil::GetGlobalName(NumberFormat(7)).isEmpty());
        NumberFormat format = kNumberFormatDecimal;
        QCOMPARE(StringUtil::GetNumberFormatId(QStringLiteral("Roman"), format), kUnknownName);
    }

    void wideStringCopies()
    {
        wchar_t buffer[4];
        QCOMPARE(StringUtil::QStringToWchar(QStringLiteral("abcdef"), buffer, 4), 3);
        QCOMPARE(StringUtil::WcharToQString(buffer), QStringLiteral("abc"));
        QCOMPARE(StringUtil::QStringToWchar(QStringLiteral("x"), nullptr, 4), 0);
        QVERIFY(StringUtil::WcharToQString(nullptr).isEmpty());
    }

    void mathUtilities()
    {
        QVERIFY(MathUtilities::fuzzyEqualValues(1.0, 1.0 + 1e-7, 1e-6));
        QVERIFY(!MathUtilities::fuzzyEqualValues(1.0, 1.0 + 1e-5, 1e-6));
        QVERIFY(MathUtilities::fuzzyEqualValues(0.0, 0.5, 0.5));
        QCOMPARE(MathUtilities::_round(2.5), 3.0);
        QCOMPARE(MathUtilities::_round(-2.5), -3.0);
        QCOMPARE(MathUtilities::_round(1.005, 1), 1.0);
        QCOMPARE(MathUtilities::_round(1.25, 1), 1.3);
    }
};

QTEST_MAIN(tst_UnitsConverter)
#include "tst_unitsconverter.moc"
