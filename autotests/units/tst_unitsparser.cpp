#include <KvCoreUnits/UnitsFormatter.h>

#include <QTest>

#include <cmath>
#include <random>
#include <string>

using namespace kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

// Every entry is either read as the documented value or refused with the
// documented code; nothing is silently read as something else.
class tst_UnitsParser : public QObject
{
    Q_OBJECT

private:
    static void AddRow(const char* name, const QString& text, int unit, int code, double value = 0,
                       const QString& decimal = QStringLiteral("."), const QString& group = QStringLiteral(","))
    {
        QTest::newRow(name) << text << unit << code << value << decimal << group;
    }

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("unit");
        QTest::addColumn<int>("code");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("decimal");
        QTest::addColumn<QString>("group");
        const int mm = Units::eMillimeter;
        const int in = Units::eInch;
        const int deg = Units::eDegree;
        const int none = Units::eUnitless;

        // Plain numbers and units.
        AddRow("plain", QStringLiteral("12.5"), mm, kSuccess, 12.5);
        AddRow("unit glued", QStringLiteral("12.5mm"), mm, kSuccess, 12.5);
        AddRow("unit case ignored", QStringLiteral("12.5 MM"), mm, kSuccess, 12.5);
        AddRow("other unit of group", QStringLiteral("3 in"), mm, kSuccess, 76.2);
        AddRow("exact inches", QStringLiteral("1000 in"), mm, kSuccess, 25400);
        AddRow("leading separator", QStringLiteral(".5 mm"), mm, kSuccess, 0.5);
        AddRow("positive sign", QStringLiteral("+12.50 mm"), mm, kSuccess, 12.5);
        AddRow("unicode minus", QStringLiteral("\u221212 mm"), mm, kSuccess, -12);
        AddRow("exponent", QStringLiteral("1.5E+03 mm"), mm, kSuccess, 1500);
        AddRow("exponent unsigned", QStringLiteral("1.5E03"), mm, kSuccess, 1500);
        AddRow("exponent negative", QStringLiteral("1.5e-3"), mm, kSuccess, 0.0015);
        AddRow("grouped", QStringLiteral("1,234,567.5 mm"), mm, kSuccess, 1234567.5);
        AddRow("temperature offset", QStringLiteral("20 °C"), Units::eFahrenheit, kSuccess, 68);
        AddRow("fahrenheit back", QStringLiteral("212 °F"), Units::eCelsius, kSuccess, 100);
        AddRow("percent into ratio", QStringLiteral("50%"), Units::eRatio, kSuccess, 0.5);
        AddRow("area with power", QStringLiteral("2 m^2"), Units::eSquareMillimeter, kSuccess, 2e6);
        AddRow("area superscript", QStringLiteral("2 m²"), Units::eSquareMillimeter, kSuccess, 2e6);

        // Feet and inches.
        AddRow("feet blank inches", QStringLiteral("5' 6\""), in, kSuccess, 66);
        AddRow("feet words", QStringLiteral("5ft 6in"), in, kSuccess, 66);
        AddRow("feet dash inches", QStringLiteral("5'-6\""), in, kSuccess, 66);
        AddRow("glued hyphen fraction", QStringLiteral("5'6-1/2\""), in, kSuccess, 66.5);
        AddRow("hyphen fraction after dash", QStringLiteral("1'-1-1/2\""), in, kSuccess, 13.5);
        AddRow("inches without blank", QStringLiteral("6'5 1/4\""), in, kSuccess, 77.25);
        AddRow("zero inches and fraction", QStringLiteral("4' 0 3/16\""), in, kSuccess, 48.1875);
        AddRow("inch mark left out", QStringLiteral("5' 6"), in, kSuccess, 66);
        AddRow("inches below one", QStringLiteral("5' .5\""), in, kSuccess, 60.5);
        AddRow("two apostrophes", QStringLiteral("6''"), in, kSuccess, 6);
        AddRow("negative as a whole", QStringLiteral("-5'-6 1/2\""), in, kSuccess, -66.5);
        AddRow("blank before hyphen subtracts", QStringLiteral("5' -6\""), in, kSuccess, 54);
        AddRow("fraction with unit", QStringLiteral("1/2 in"), mm, kSuccess, 12.7);
        AddRow("mixed number", QStringLiteral("5 1/2"), in, kSuccess, 5.5);
        AddRow("hyphen mixed number", QStringLiteral("5-1/2"), in, kSuccess, 5.5);
        AddRow("spaced hyphen subtracts", QStringLiteral("5 - 1/2"), in, kSuccess, 4.5);
        AddRow("metric parts", QStringLiteral("1m 20cm"), mm, kSuccess, 1200);
        AddRow("larger part after smaller", QStringLiteral("20cm 1m"), mm, kInvalidText);
        AddRow("feet in metres", QStringLiteral("5' 6\""), Units::eMeter, kSuccess, 1.6764);

        // Degrees, minutes, seconds.
        AddRow("dms marks", QStringLiteral("45°30'15\""), deg, kSuccess, 45 + 30.0 / 60 + 15.0 / 3600);
        AddRow("dms letters", QStringLiteral("45d30m15s"), deg, kSuccess, 45 + 30.0 / 60 + 15.0 / 3600);
        AddRow("dms spaced", QStringLiteral("45° 30' 15\""), deg, kSuccess, 45 + 30.0 / 60 + 15.0 / 3600);
        AddRow("degrees minutes", QStringLiteral("45°30'"), deg, kSuccess, 45.5);
        AddRow("negative dms", QStringLiteral("-0°30'"), deg, kSuccess, -0.5);
        AddRow("radians", QStringLiteral("3.141592653589793 rad"), deg, kSuccess, 180);

        // Arithmetic.
        AddRow("sum across units", QStringLiteral("1ft 3in + 20mm"), mm, kSuccess, 401);
        AddRow("parentheses", QStringLiteral("(10+2)*3 mm"), mm, kSuccess, 36);
        AddRow("unit on parentheses", QStringLiteral("(10+2) mm * 3"), mm, kSuccess, 36);
        AddRow("precedence", QStringLiteral("2 + 3 * 4"), none, kSuccess, 14);
        AddRow("unit cancels", QStringLiteral("2 cm * 3 cm / 1 cm"), mm, kSuccess, 60);
        AddRow("plain number beside unit", QStringLiteral("10 + 2 cm"), mm, kSuccess, 30);
        AddRow("division", QStringLiteral("10 mm / 4"), mm, kSuccess, 2.5);
        AddRow("decimal over whole divides", QStringLiteral("2.5/2"), none, kSuccess, 1.25);

        // Hostile input.
        AddRow("unit algebra", QStringLiteral("cm+cm"), mm, kInvalidText);
        AddRow("unit without number", QStringLiteral("2 cm * cm"), mm, kInvalidText);
        AddRow("area into length", QStringLiteral("2 mm * 3 mm"), mm, kIncompatibleUnit);
        AddRow("inverse length", QStringLiteral("2 / 3 mm"), mm, kIncompatibleUnit);
        AddRow("empty", QString(), mm, kEmptyText);
        AddRow("blanks", QStringLiteral("   "), mm, kEmptyText);
        AddRow("lone plus", QStringLiteral("+"), mm, kInvalidText);
        AddRow("lone minus", QStringLiteral("-"), mm, kInvalidText);
        AddRow("lone star", QStringLiteral("*"), mm, kInvalidText);
        AddRow("trailing operator", QStringLiteral("5 +"), mm, kInvalidText);
        AddRow("double operator", QStringLiteral("5 * / 2"), mm, kInvalidText);
        AddRow("unclosed", QStringLiteral("(1+2"), mm, kInvalidText);
        AddRow("unopened", QStringLiteral("1+2)"), mm, kInvalidText);
        AddRow("two numbers", QStringLiteral("5 6"), mm, kInvalidText);
        AddRow("number after metric unit", QStringLiteral("5mm 6"), mm, kInvalidText);
        AddRow("two decimal points", QStringLiteral("1.2.3"), mm, kInvalidText);
        AddRow("unknown unit", QStringLiteral("3 foo"), mm, kUnknownUnit);
        AddRow("hex-looking", QStringLiteral("0x10"), mm, kUnknownUnit);
        AddRow("unit of another group", QStringLiteral("3 kg"), mm, kIncompatibleUnit);
        AddRow("angle into length", QStringLiteral("45d30m15s"), in, kIncompatibleUnit);
        AddRow("unit into plain number", QStringLiteral("12 mm"), none, kIncompatibleUnit);
        AddRow("nan", QStringLiteral("nan"), none, kInvalidText);
        AddRow("inf", QStringLiteral("inf"), none, kInvalidText);
        AddRow("division by zero", QStringLiteral("3 mm / (2-2)"), mm, kDivisionByZero);
        AddRow("zero denominator", QStringLiteral("3/0"), mm, kDivisionByZero);
        AddRow("huge exponent", QStringLiteral("1e999"), mm, kOutOfRange);
        AddRow("tiny exponent", QStringLiteral("1e-999"), mm, kOutOfRange);
        AddRow("endless exponent", QStringLiteral("1e99999999999999999999999"), mm, kOutOfRange);
        AddRow("overflow by arithmetic", QStringLiteral("1e300 * 1e300"), none, kOutOfRange);
        AddRow("nesting too deep", QString(65, QLatin1Char('(')) + QLatin1Char('1') + QString(65, QLatin1Char(')')),
               none, kNestingTooDeep);
        AddRow("nesting at the limit", QString(64, QLatin1Char('(')) + QLatin1Char('1') + QString(64, QLatin1Char(')')),
               none, kSuccess, 1);
        AddRow("signs too deep", QString(200, QLatin1Char('-')) + QLatin1Char('1'), none, kNestingTooDeep);
        AddRow("signs", QStringLiteral("--1"), none, kSuccess, 1);

        // Separators of the locale.
        const QString comma = QStringLiteral(",");
        const QString dot = QStringLiteral(".");
        AddRow("comma decimal", QStringLiteral("12,3"), mm, kSuccess, 12.3, comma, dot);
        AddRow("dot under comma locale refused", QStringLiteral("12.3"), mm, kInvalidText, 0, comma, dot);
        AddRow("dot groups under comma locale", QStringLiteral("1.234,5"), mm, kSuccess, 1234.5, comma, dot);
        AddRow("whole groups", QStringLiteral("12.300"), mm, kSuccess, 12300, comma, dot);
        AddRow("comma after one digit refused", QStringLiteral("1,5"), mm, kInvalidText);
        AddRow("comma before four digits refused", QStringLiteral("1,2345"), mm, kInvalidText);
        AddRow("dot allowed when no group", QStringLiteral("12.3"), mm, kSuccess, 12.3, comma,
               QStringLiteral("\u202F"));
        AddRow("narrow blank groups", QStringLiteral("1\u202F234,5"), mm, kSuccess, 1234.5, comma,
               QStringLiteral("\u202F"));
        const QString apostrophe = QStringLiteral("'");
        AddRow("foot-mark group separator groups", QStringLiteral("1'234.5 mm"), mm, kSuccess, 1234.5, dot, apostrophe);
        AddRow("foot-mark group separator still feet", QStringLiteral("5'6\""), in, kSuccess, 66, dot, apostrophe);
        AddRow("foot-mark group separator dash", QStringLiteral("5'-6 1/2\""), in, kSuccess, 66.5, dot, apostrophe);
    }

    void parse()
    {
        QFETCH(QString, text);
        QFETCH(int, unit);
        QFETCH(int, code);
        QFETCH(double, value);
        QFETCH(QString, decimal);
        QFETCH(QString, group);

        UnitsFormatter formatter(L"en-US");
        QCOMPARE(formatter.SetNumberDecimalSeparator(decimal.toStdWString().c_str()), kSuccess);
        QCOMPARE(formatter.SetNumberGroupSeparator(group.toStdWString().c_str()), kSuccess);
        const std::wstring wide = text.toStdWString();
        double parsed = -7777;
        QCOMPARE(int(formatter.Parse(wide.c_str(), parsed, unit)), code);
        if (code == kSuccess)
            QVERIFY2(std::fabs(parsed - value) <= 1e-12 * std::max(1.0, std::fabs(value)),
                     qPrintable(QString::number(parsed, 'g', 17)));
        else
            QCOMPARE(parsed, -7777.0); // untouched on failure
    }

    void exactInchesIntoMillimeters()
    {
        UnitsFormatter formatter(L"en-US");
        double parsed = 0;
        QCOMPARE(formatter.Parse(L"1000 in", parsed, Units::eMillimeter), kSuccess);
        QCOMPARE(parsed, 25400.0);
        QCOMPARE(formatter.Parse(L"5'-6 1/2\"", parsed, Units::eMillimeter), kSuccess);
        QCOMPARE(parsed, 1689.1); // 66.5 in converted once, not part by part
    }

    void nullTextAndUnknownUnitAreRefused()
    {
        UnitsFormatter formatter(L"en-US");
        double parsed = 1;
        QCOMPARE(formatter.Parse(nullptr, parsed, Units::eMillimeter), kInvalidArgument);
        QCOMPARE(formatter.Parse(L"1", parsed, 0x2099), kUnknownUnit);
        QCOMPARE(parsed, 1.0);
    }

    void defaultUnitIsUsedForZero()
    {
        UnitsFormatter formatter(L"en-US");
        QCOMPARE(formatter.SetDefaultUnit(Units::eInch), kSuccess);
        double parsed = 0;
        QCOMPARE(formatter.Parse(L"2 ft", parsed, 0), kSuccess);
        QCOMPARE(parsed, 24.0);
    }

    void customPositiveSignIsRead()
    {
        UnitsFormatter formatter(L"en-US");
        QCOMPARE(formatter.SetPositiveSign(L"pos"), kSuccess);
        double parsed = 0;
        QCOMPARE(formatter.Parse(L"pos12 mm", parsed, Units::eMillimeter), kSuccess);
        QCOMPARE(parsed, 12.0);
    }

    // Text assembled from the characters the parser cares about is always
    // answered with a code, and a success always carries a finite value.
    void randomTextIsAnsweredWithACode()
    {
        const QString alphabet =
            QStringLiteral("0123456789 ..,,''\"\"--++*/()eE^mcinftd\u00B0%\u00B5\u00B2\u202F\u2212kgsx");
        std::mt19937 rng(99);
        std::uniform_int_distribution<int> length(0, 30);
        std::uniform_int_distribution<int> pick(0, int(alphabet.size()) - 1);
        UnitsFormatter english(L"en-US");
        UnitsFormatter swiss(L"de-DE");
        QCOMPARE(swiss.SetNumberGroupSeparator(L"'"), kSuccess);
        const int units[] = {Units::eUnitless, Units::eMillimeter, Units::eInch, Units::eDegree, Units::eCelsius};
        for (int i = 0; i < 20000; ++i) {
            QString text;
            const int n = length(rng);
            for (int k = 0; k < n; ++k)
                text += alphabet.at(pick(rng));
            const std::wstring wide = text.toStdWString();
            for (const UnitsFormatter* formatter : {&english, &swiss}) {
                double value = 0;
                const int code = formatter->Parse(wide.c_str(), value, units[i % 5]);
                QVERIFY2(code >= kSuccess && code <= kUnknownName, qPrintable(text));
                if (code == kSuccess)
                    QVERIFY2(std::isfinite(value), qPrintable(text));
            }
        }
    }

    void longInputDoesNotHang()
    {
        UnitsFormatter formatter(L"en-US");
        QString sum = QStringLiteral("1");
        for (int i = 0; i < 20000; ++i)
            sum += QStringLiteral(" + 1");
        double parsed = 0;
        QCOMPARE(formatter.Parse(sum.toStdWString().c_str(), parsed, Units::eUnitless), kSuccess);
        QCOMPARE(parsed, 20001.0);
        const QString digits(100000, QLatin1Char('9'));
        QCOMPARE(formatter.Parse(digits.toStdWString().c_str(), parsed, Units::eUnitless), kOutOfRange);
    }
};

QTEST_MAIN(tst_UnitsParser)
#include "tst_unitsparser.moc"
