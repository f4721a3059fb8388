#include <KvUICore/widgets/WidgetUnits.h>

#include <KvCoreUnits/UnitsTypes.h>

#include <QLocale>
#include <QTest>

#include <cmath>
#include <type_traits>

using Kavrel::UICore::WidgetUnits;
using namespace kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

constexpr double kPi = 3.14159265358979323846;

namespace {

// Records every notification as "Name(old,new)" in call order and opens the
// protected operations to the test.
class Recorder : public WidgetUnits
{
public:
    // Each notification also checks that the new state is already stored.
    void OnChanged_DecimalPrecision(int o, int n) override
    {
        Note(GetDecimalPrecision() == n, "DecimalPrecision", o, n);
    }
    void OnChanged_UnitType(UnitType o, UnitType n) override { Note(GetUnitType() == n, "UnitType", int(o), int(n)); }
    void OnChanged_UnitSymbol(UnitSymbol o, UnitSymbol n) override
    {
        Note(GetUnitSymbolType() == n, "UnitSymbol", int(o), int(n));
    }
    void OnChanged_NumberFormat(NumberFormat o, NumberFormat n) override
    {
        Note(GetNumberFormatId() == n, "NumberFormat", int(o), int(n));
    }
    void OnChanged_Value(double o, double n) override { Note(GetValue() == n, "Value", o, n); }
    void OnChanged_DecimalSeparator(QString o, QString n) override
    {
        Note(n.isEmpty() || GetDecimalSeparator() == n, "DecimalSeparator", o, n);
    }
    void OnChanged_GroupSeparator(QString o, QString n) override
    {
        Note(n.isEmpty() || GetGroupSeparator() == n, "GroupSeparator", o, n);
    }
    void OnChanged_NumberSign(bool o, bool n) override
    {
        Note(GetFormatter().IncludePositiveSignInNumber() == n, "NumberSign", o, n);
    }
    void OnChanged_ExponentSign(bool o, bool n) override
    {
        Note(GetFormatter().IncludePositiveSignInExponent() == n, "ExponentSign", o, n);
    }
    void OnChanged_UnitSymbolDisplayEnabled(bool o, bool n) override
    {
        Note(GetUnitSymbolDisplayEnabled() == n, "UnitSymbolDisplayEnabled", o, n);
    }

    using WidgetUnits::ApplyCustomSymbolString;
    using WidgetUnits::ApplyFormatterProperties;
    using WidgetUnits::CalculateStepForDegreeMinuteSecond;
    using WidgetUnits::CalculateStepForFraction;
    using WidgetUnits::GetExponentStringFromValue;
    using WidgetUnits::GetTolerance;
    using WidgetUnits::HasDash;
    using WidgetUnits::HasDegreeMinuteSecond;
    using WidgetUnits::HasFraction;
    using WidgetUnits::SetValue;
    using WidgetUnits::ValidateValue;

    QString Text(double value)
    {
        QString text;
        GetLocaleStringFromValue(value, text);
        return text;
    }
    NumberFormat FormatUsed(double value, QString& text) const { return GetLocaleStringFromValue(value, text); }

    QStringList mCalls;
    bool mbNotifiedBeforeStoring = false;

private:
    template <typename T> void Note(bool stored, const char* name, T o, T n)
    {
        mbNotifiedBeforeStoring |= !stored;
        if constexpr (std::is_same_v<T, bool>)
            mCalls << QStringLiteral("%1(%2,%3)")
                          .arg(QLatin1String(name), QLatin1String(o ? "true" : "false"),
                               QLatin1String(n ? "true" : "false"));
        else
            mCalls << QStringLiteral("%1(%2,%3)").arg(QLatin1String(name)).arg(o).arg(n);
    }
};

QString SymbolString(const WidgetUnits& units, int symbol)
{
    wchar_t buffer[64];
    if (units.GetFormatter().GetSymbolFormattingString(symbol, buffer, 64) != kSuccess)
        return QString();
    return QString::fromWCharArray(buffer);
}

} // namespace

class tst_WidgetUnits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }

    void valueSnapsToZeroWithinTolerance()
    {
        Recorder units;
        units.SetValue(5.0);
        units.SetValue(1e-12);
        QCOMPARE(units.GetValue(), 0.0);
        QCOMPARE(units.mCalls, QStringList({"Value(0,5)", "Value(5,0)"}));
        units.mCalls.clear();
        units.SetValue(0.5e-6); // within 1e-6 of the stored 0
        QCOMPARE(units.GetValue(), 0.0);
        QVERIFY(units.mCalls.isEmpty());
        units.SetValue(3.0);
        units.SetValue(-0.0);
        QVERIFY(!std::signbit(units.GetValue()));
        units.mCalls.clear();
        QVERIFY(units.SetValue(2.0, false));
        QCOMPARE(units.GetValue(), 2.0);
        QVERIFY(!units.SetValue(2.0 + 1e-9, false));
        QVERIFY(units.mCalls.isEmpty());
    }

    void tolerance_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("precision");
        QTest::addColumn<double>("tolerance");
        QTest::newRow("unitless 2 decimals") << 0x1001 << 2 << 1e-6;
        QTest::newRow("unitless 3 decimals") << 0x1001 << 3 << 1e-7;
        QTest::newRow("angle") << int(Units::eDegree) << 3 << 1e-8;
        QTest::newRow("angle in radians") << int(Units::eRadian) << 0 << 1e-8;
        QTest::newRow("length") << int(Units::eMillimeter) << 3 << 1e-10;
        QTest::newRow("mass") << int(Units::eKilogram) << 1 << 1e-10;
    }

    void tolerance()
    {
        QFETCH(int, type);
        QFETCH(int, precision);
        Recorder units;
        units.SetUnitType(Units::teType(type));
        units.SetDecimalPrecision(precision);
        QTEST(units.GetTolerance(), "tolerance");
    }

    void signSettersAlwaysNotify()
    {
        Recorder units;
        units.ShowPositiveNumberSign(false);
        units.ShowPositiveNumberSign(true);
        units.ShowPositiveExponentSign(false);
        units.ShowPositiveExponentSign(true);
        QCOMPARE(units.mCalls, QStringList({"NumberSign(false,false)", "NumberSign(false,true)",
                                            "ExponentSign(false,false)", "ExponentSign(false,true)"}));
        QCOMPARE(units.Text(1.5), QStringLiteral("+1.50"));
    }

    void emptySeparatorTakesTheSystemOne()
    {
        Recorder units;
        const QString system = QLocale::system().decimalPoint();
        QCOMPARE(units.GetDecimalSeparator(), system);
        QCOMPARE(units.GetGroupSeparator(), QLocale::system().groupSeparator());
        // Notifications from inside the constructor reach only the base class.
        QVERIFY(units.mCalls.isEmpty());
        units.SetDecimalSeparator(QStringLiteral(","));
        units.SetDecimalSeparator(QString());
        QCOMPARE(units.GetDecimalSeparator(), system);
        units.SetDecimalSeparator(QString());
        QCOMPARE(units.mCalls, QStringList({QStringLiteral("DecimalSeparator(%1,,)").arg(system),
                                            QStringLiteral("DecimalSeparator(,,)"),
                                            QStringLiteral("DecimalSeparator(%1,)").arg(system)}));
        units.mCalls.clear();
        units.SetDecimalSeparator(system); // same text: nothing
        QVERIFY(units.mCalls.isEmpty());
    }

    void separatorsInOrder()
    {
        Recorder units;
        units.SetSeparators(QStringLiteral("*"), QStringLiteral("~~"));
        QCOMPARE(units.mCalls.size(), 2);
        QVERIFY(units.mCalls.at(0).startsWith(QStringLiteral("DecimalSeparator(")));
        QVERIFY(units.mCalls.at(1).startsWith(QStringLiteral("GroupSeparator(")));
        QCOMPARE(units.GetDecimalSeparator(), QStringLiteral("*"));
        QCOMPARE(units.GetGroupSeparator(), QStringLiteral("~~"));
        units.SetNumberFormatId(kNumberFormatDecimalGrouped);
        QCOMPARE(units.Text(1234.5), QStringLiteral("1~~234*50"));
        double value = 0;
        QVERIFY(units.ValidateValue(QStringLiteral("1~~234*5 "), value));
        QCOMPARE(value, 1234.5);
        // Separators of any length and with digits are stored and notified.
        units.mCalls.clear();
        const QString longSeparator = QStringLiteral("decimal separator 10");
        units.SetDecimalSeparator(longSeparator);
        QCOMPARE(units.mCalls, QStringList({QStringLiteral("DecimalSeparator(*,%1)").arg(longSeparator)}));
        QCOMPARE(units.GetDecimalSeparator(), longSeparator);
        // A separator set on the formatter directly is read back in full.
        QCOMPARE(units.GetFormatter().SetNumberDecimalSeparator(L"<a decimal separator of 32 chars>"), kSuccess);
        QCOMPARE(units.GetDecimalSeparator(), QStringLiteral("<a decimal separator of 32 chars>"));
    }

    void unitTypeAndSymbol()
    {
        Recorder units;
        units.SetUnitType(Units::teType(0x2099)); // unknown
        units.SetUnitType(Units::eUnitless);      // same
        QVERIFY(units.mCalls.isEmpty());
        units.SetUnitType(Units::eMillimeter);
        QCOMPARE(units.GetUnit(), QStringLiteral("Millimeter"));
        QCOMPARE(units.GetFormatter().GetDefaultUnit(), int(Units::eMillimeter));
        units.SetUnitSymbolType(UnitSymbol(0x77)); // unknown
        units.SetUnitSymbol(QStringLiteral("furlong"));
        units.SetUnitSymbol(QStringLiteral("mm"));
        QCOMPARE(units.mCalls, QStringList({"UnitType(4097,8193)", "UnitSymbol(1052673,73729)"}));
        QCOMPARE(units.GetUnitSymbol(), QStringLiteral("mm"));
        QCOMPARE(units.GetFormatter().GetDefaultSymbol(), int(kSymbolMillimeter));
        QCOMPARE(units.GetUnitDisplayName(kSymbolMillimeter), QStringLiteral("Millimeters"));
        QVERIFY(units.GetUnitDisplayName(0x77).isEmpty());
    }

    // With the display flag set, a new symbol gets the number-only string;
    // enabling the display removes it again (kept asymmetric on purpose).
    void symbolTemplateRules()
    {
        Recorder units;
        units.SetUnitType(Units::eInch);
        units.SetDecimalPrecision(4);
        units.SetUnitSymbolType(UnitSymbol(0x802016));
        QCOMPARE(SymbolString(units, 0x802016), QStringLiteral("{0}-{1}"));
        units.SetValue(66.5);
        QCOMPARE(units.Text(66.5), QStringLiteral("5-6 1/2"));
        units.mCalls.clear();
        units.SetUnitSymbolDisplayEnabled(true);
        units.SetUnitSymbolDisplayEnabled(true);
        QCOMPARE(units.mCalls,
                 QStringList({"UnitSymbolDisplayEnabled(true,true)", "UnitSymbolDisplayEnabled(true,true)"}));
        QCOMPARE(units.Text(66.5), QStringLiteral("5'-6 1/2\""));
        units.SetUnitSymbolDisplayEnabled(false);
        QCOMPARE(SymbolString(units, 0x802016), QStringLiteral("{0}-{1}"));

        // Changing the symbol drops the old one's string; display off removes any for the new one.
        units.SetUnitSymbolType(UnitSymbol(0x702016));
        QCOMPARE(SymbolString(units, 0x802016), QStringLiteral("{0}'-{1}\""));
        QCOMPARE(SymbolString(units, 0x702016), QStringLiteral("{0}\""));
    }

    void templateGrowsToThePartCount_data()
    {
        QTest::addColumn<int>("symbol");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("expected");
        QTest::newRow("millimeters") << int(kSymbolMillimeter) << int(Units::eMillimeter) << "{0}";
        QTest::newRow("feet inches blank") << 0x302016 << int(Units::eInch) << "{0} {1}";
        QTest::newRow("feet dash inches") << 0x602016 << int(Units::eInch) << "{0}-{1}";
        QTest::newRow("hyphen fraction") << 0xA02016 << int(Units::eInch) << "{0}-{1}";
        QTest::newRow("dms") << 0x408002 << int(Units::eDegree) << "{0} {1} {2}";
        QTest::newRow("dms letters") << 0x508002 << int(Units::eDegree) << "{0} {1} {2}";
    }

    void templateGrowsToThePartCount()
    {
        QFETCH(int, symbol);
        QFETCH(int, type);
        Recorder units;
        units.SetUnitType(Units::teType(type));
        units.SetUnitSymbolType(UnitSymbol(symbol));
        units.mCalls.clear();
        units.SetUnitSymbolDisplayEnabled(false);
        QTEST(SymbolString(units, symbol), "expected");
        QCOMPARE(units.mCalls, QStringList({"UnitSymbolDisplayEnabled(true,false)"}));
    }

    void dmsWithoutUnitText()
    {
        Recorder units;
        units.SetUnitType(Units::eDegree);
        units.SetUnitSymbolType(UnitSymbol(0x408002));
        units.SetDecimalPrecision(4);
        QCOMPARE(units.Text(45.5 + 15.0 / 3600), QStringLiteral("45 30 15"));
        units.SetUnitSymbolDisplayEnabled(true);
        QCOMPARE(units.Text(45.5 + 15.0 / 3600), QStringLiteral("45°30'15\""));
        QCOMPARE(units.Text(-0.5), QStringLiteral("-0°30'00\""));
    }

    void numberFormatByName()
    {
        Recorder units;
        units.SetNumberFormat(QStringLiteral("Roman"));
        units.SetNumberFormat(QStringLiteral("decimal")); // same as now
        QVERIFY(units.mCalls.isEmpty());
        units.SetNumberFormat(QStringLiteral("Scientific"));
        QCOMPARE(units.GetNumberFormatW(), QStringLiteral("Scientific"));
        // Ids and precisions out of range are stored and notified like any other.
        units.SetNumberFormatId(NumberFormat(9));
        units.SetDecimalPrecision(2);
        units.SetDecimalPrecision(-3);
        QCOMPARE(units.mCalls, QStringList({"NumberFormat(2,0)", "NumberFormat(0,9)", "DecimalPrecision(2,-3)"}));
        QCOMPARE(int(units.GetNumberFormatId()), 9);
        QCOMPARE(units.GetDecimalPrecision(), -3);
    }

    void exponentFallback_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("used");
        QTest::addColumn<int>("precision");
        QTest::newRow("large switches") << 12345678.0 << 2 << "1.23E07" << 0 << 2;
        QTest::newRow("1e7 stays plain") << 1e7 << 2 << "10000000.00" << 2 << 2;
        QTest::newRow("zero stays plain") << 0.0 << 2 << "0.00" << 2 << 2;
        QTest::newRow("tiny rounds to zero") << 1e-9 << 2 << "0.00" << 2 << 2;
        QTest::newRow("small with many decimals switches") << 5e-9 << 2 << "5.0000000000E-09" << 0 << 10;
        QTest::newRow("grouped switches") << -2e8 << 3 << "-2.00E08" << 0 << 2;
        QTest::newRow("exponent form stays") << 12345678.0 << 1 << "12.35E06" << 1 << 2;
        QTest::newRow("fraction as decimal for plain numbers") << 12.5 << 6 << "12.50" << 6 << 2;
    }

    void exponentFallback()
    {
        QFETCH(double, value);
        QFETCH(int, format);
        QFETCH(int, precision);
        Recorder units;
        units.SetNumberFormatId(NumberFormat(format));
        units.SetDecimalPrecision(precision);
        QString result;
        QTEST(int(units.FormatUsed(value, result)), "used");
        QTEST(result, "text");
        QCOMPARE(int(units.GetNumberFormatId()), format);
    }

    void formattingCases()
    {
        Recorder units;
        units.SetUnitType(Units::eMillimeter);
        // A unitless symbol on a length writes the plain number.
        QCOMPARE(units.Text(12.5), QStringLiteral("12.50"));
        units.SetUnitSymbolType(kSymbolInch);
        units.SetUnitSymbolDisplayEnabled(true);
        QCOMPARE(units.Text(25.4), QStringLiteral("1.00 in"));
        // Unknown unit combinations give no text.
        Recorder unitless;
        unitless.SetUnitSymbolType(kSymbolMillimeter);
        unitless.SetUnitSymbolDisplayEnabled(true);
        QCOMPARE(unitless.Text(3.0), QStringLiteral("3.00 mm"));
    }

    void exponentTextKeepsSettings()
    {
        Recorder units;
        units.SetUnitType(Units::eMillimeter);
        units.SetUnitSymbolType(kSymbolMillimeter);
        units.SetUnitSymbolDisplayEnabled(true);
        units.SetSeparators(QStringLiteral(","), QStringLiteral("."));
        units.SetDecimalPrecision(3);
        QString text = QStringLiteral("unchanged");
        QCOMPARE(int(units.GetExponentStringFromValue(12345678.0, text)), 0);
        QCOMPARE(text, QStringLiteral("1,235E07 mm"));
        units.SetNumberFormatId(kNumberFormatEngineering);
        text = QStringLiteral("unchanged");
        QCOMPARE(int(units.GetExponentStringFromValue(12345678.0, text)), 1);
        QCOMPARE(text, QStringLiteral("unchanged"));

        WidgetUnits::UnitsFormatter copy(nullptr);
        units.ApplyFormatterProperties(copy);
        wchar_t buffer[64];
        QCOMPARE(copy.Format(12.5, 0, buffer, 64, 0, nullptr), kSuccess);
        QCOMPARE(QString::fromWCharArray(buffer), QStringLiteral("12,500 mm"));
    }

    void validate_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("symbol");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<double>("value");
        const int mm = Units::eMillimeter;
        QTest::newRow("bare number") << mm << int(kSymbolMillimeter) << "12" << true << 12.0;
        QTest::newRow("bare number in symbol unit") << mm << int(kSymbolInch) << "12 " << true << 304.8;
        QTest::newRow("bare number on unitless symbol") << mm << int(kSymbolUnitless) << "12" << true << 12.0;
        QTest::newRow("bare number on foreign symbol") << mm << int(kSymbolDegree) << "12" << true << 12.0;
        QTest::newRow("number with unit") << mm << int(kSymbolMillimeter) << "3 in " << true << 76.2;
        QTest::newRow("feet inches") << mm << 0x802016 << "5'-6 1/2\" " << true << 1689.1;
        QTest::newRow("ends in digit read as plain") << mm << int(kSymbolInch) << "1+2" << true << 76.2;
        QTest::newRow("ends in digit with unit fails") << mm << int(kSymbolInch) << "5' 6" << false << 0.0;
        QTest::newRow("power read in symbol unit")
            << int(Units::eSquareMeter) << int(kSymbolSquareMillimeter) << "2 m^2" << true << 2.0;
        QTest::newRow("unit on unitless symbol") << mm << int(kSymbolUnitless) << "3 mm" << false << 0.0;
        QTest::newRow("unitless expression") << 0x1001 << int(kSymbolUnitless) << "(1+2)*3" << true << 9.0;
        QTest::newRow("unitless with unit") << 0x1001 << int(kSymbolUnitless) << "3 mm" << false << 0.0;
        QTest::newRow("garbage") << mm << int(kSymbolMillimeter) << "abc" << false << 0.0;
        QTest::newRow("empty") << mm << int(kSymbolMillimeter) << "" << false << 0.0;
        QTest::newRow("exponent") << mm << int(kSymbolMillimeter) << "1.5E+03" << true << 1500.0;
    }

    // With the unit text hidden the field shows "5-6 1/2"; typed back in that
    // shape it must not be read as the difference 5 - 6 1/2.
    void numberOnlyTextReadsBack()
    {
        Recorder units;
        units.SetUnitType(Units::eMillimeter);
        units.SetDecimalPrecision(4);
        units.SetUnitSymbolType(UnitSymbol(0x802016));
        units.SetValue(1689.1);
        QCOMPARE(units.Text(units.GetValue()), QStringLiteral("5-6 1/2"));
        double value = 0;
        QVERIFY(units.ValidateValue(QStringLiteral("5-6 1/2 "), value));
        QCOMPARE(value, 1689.1);
        QVERIFY(units.ValidateValue(QStringLiteral("-5-6 1/2"), value));
        QCOMPARE(value, -1689.1);

        Recorder angle;
        angle.SetUnitType(Units::eRadian);
        angle.SetDecimalPrecision(4);
        angle.SetUnitSymbolType(UnitSymbol(0x408002));
        QVERIFY(angle.ValidateValue(QStringLiteral("45 30 15 "), value));
        QVERIFY(std::fabs(value - (45 + 30.0 / 60 + 15.0 / 3600) * kPi / 180) < 1e-15);
    }

    void validate()
    {
        QFETCH(int, type);
        QFETCH(int, symbol);
        QFETCH(QString, text);
        QFETCH(bool, valid);
        QFETCH(double, value);
        Recorder units;
        units.SetSeparators(QStringLiteral("."), QStringLiteral(","));
        units.SetUnitType(Units::teType(type));
        units.SetUnitSymbolType(UnitSymbol(symbol));
        double parsed = -1;
        QCOMPARE(units.ValidateValue(text, parsed), valid);
        if (valid)
            QVERIFY2(std::fabs(parsed - value) <= 1e-9 * std::max(1.0, std::fabs(value)),
                     qPrintable(QString::number(parsed, 'g', 17)));
    }

    void families()
    {
        Recorder units;
        for (int s : {0x602016, 0x802016, 0xA02016})
            QVERIFY(units.HasDash(UnitSymbol(s)));
        for (int s : {0x408002, 0x508002, 0x608002})
            QVERIFY(units.HasDegreeMinuteSecond(UnitSymbol(s)));
        for (int s : {0x702016, 0x802016, 0x902016, 0xA02016})
            QVERIFY(units.HasFraction(UnitSymbol(s)));
        QVERIFY(!units.HasDash(UnitSymbol(0x702016)));
        QVERIFY(!units.HasFraction(UnitSymbol(0x602016)));
        QVERIFY(!units.HasDegreeMinuteSecond(kSymbolDegree));
    }

    void steps()
    {
        Recorder units;
        const double dms[] = {1.0,         1.0 / 60,    0.016666666666666666, 1.0 / 3600, 0.0002777777777777778,
                              1.0 / 36000, 1.0 / 360000};
        for (int precision = 0; precision < 7; ++precision)
            QCOMPARE(units.CalculateStepForDegreeMinuteSecond(precision), dms[precision]);
        for (int precision : {0, 1, 3, 8})
            QCOMPARE(units.CalculateStepForFraction(precision), std::ldexp(1.0, -precision));
    }

    void notificationOrderAcrossSetters()
    {
        Recorder units;
        units.SetDecimalPrecision(3);
        units.SetUnitType(Units::eDegree);
        units.SetUnitSymbolType(kSymbolDegree);
        units.SetNumberFormatId(kNumberFormatGeneral);
        units.SetValue(10.0);
        units.SetDecimalSeparator(QStringLiteral(";"));
        units.SetGroupSeparator(QStringLiteral("_"));
        units.ShowPositiveNumberSign(true);
        units.ShowPositiveExponentSign(true);
        units.SetUnitSymbolDisplayEnabled(true);
        const QStringList calls = units.mCalls;
        QVERIFY(!units.mbNotifiedBeforeStoring);
        QCOMPARE(calls.size(), 10);
        const char* expected[] = {"DecimalPrecision(2,3)",
                                  "UnitType(4097,32770)",
                                  "UnitSymbol(1052673,98306)",
                                  "NumberFormat(2,4)",
                                  "Value(0,10)",
                                  "DecimalSeparator(",
                                  "GroupSeparator(",
                                  "NumberSign(false,true)",
                                  "ExponentSign(false,true)",
                                  "UnitSymbolDisplayEnabled(true,true)"};
        for (int i = 0; i < 10; ++i)
            QVERIFY2(calls.at(i).startsWith(QLatin1String(expected[i])), qPrintable(calls.at(i)));
        QCOMPARE(units.Text(10.25), QStringLiteral("+10;25°"));
    }
};

QTEST_MAIN(tst_WidgetUnits)
#include "tst_widgetunits.moc"
