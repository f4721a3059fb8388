#include <KvCoreUnits/UnitsConverter.h>
#include <KvCoreUnits/UnitsFormatter.h>
#include <KvCoreUnits/UnitsUtilities.h>

#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <random>

using namespace kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

// Format then Parse must give back the value on the grid the display shows,
// for every symbol and precision, and carried displays must never show a
// full 60 minutes or seconds, or a full 12 inches.
class tst_UnitsRoundTrip : public QObject
{
    Q_OBJECT

private:
    static bool IsFraction(int symbol)
    {
        return symbol == 0x702016 || symbol == 0x802016 || symbol == 0x902016 || symbol == 0xA02016;
    }
    static bool IsFeetInches(int symbol)
    {
        return symbol == 0x302016 || symbol == 0x402016 || symbol == 0x602016 || symbol == 0x802016
               || symbol == 0xA02016;
    }
    static bool IsDegreesMinutesSeconds(int symbol)
    {
        return symbol == 0x408002 || symbol == 0x508002 || symbol == 0x608002;
    }

    // The display step in the symbol's unit.
    static double Step(int symbol, int precision, int format)
    {
        if (IsFraction(symbol) || format == kNumberFormatFractional)
            return std::ldexp(1.0, -precision);
        if (IsDegreesMinutesSeconds(symbol)) {
            if (precision == 0)
                return 1.0;
            if (precision <= 2)
                return 1.0 / 60;
            if (precision <= 4)
                return 1.0 / 3600;
            return 1.0 / (std::pow(10.0, precision - 4) * 3600);
        }
        return std::pow(10.0, -precision);
    }

    static QList<double> Samples()
    {
        std::mt19937_64 rng(20261121);
        std::uniform_real_distribution<double> exponent(-3.0, 5.0);
        std::uniform_int_distribution<int> sign(0, 1);
        QList<double> values {0.0,      0.5,   -0.5, 59.9999 / 3600.0, 11.0 + 15.0 / 16 + 1.0 / 16,
                              71.99999, -66.5, 12.0, 1.0 / 3,          -1.0 / 3};
        while (values.size() < 160) {
            const double v = std::pow(10.0, exponent(rng));
            values.append(sign(rng) ? -v : v);
        }
        return values;
    }

private Q_SLOTS:
    void formatThenParseGivesTheGridValue_data()
    {
        QTest::addColumn<int>("symbol");
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("locale");
        const QString english = QStringLiteral("en-US");
        for (UnitSymbol symbol : UnitsUtilities::GetAllSymbols()) {
            const QByteArray name = QByteArray::number(symbol, 16);
            QTest::newRow(name + "/decimal") << int(symbol) << int(kNumberFormatDecimal) << english;
            QTest::newRow(name + "/grouped/de")
                << int(symbol) << int(kNumberFormatDecimalGrouped) << QStringLiteral("de-DE");
            QTest::newRow(name + "/general-grouped/fr")
                << int(symbol) << int(kNumberFormatGeneralGrouped) << QStringLiteral("fr-FR");
            if (!IsFraction(symbol) && !IsDegreesMinutesSeconds(symbol)) {
                QTest::newRow(name + "/general-grouped") << int(symbol) << int(kNumberFormatGeneralGrouped) << english;
                QTest::newRow(name + "/fractional") << int(symbol) << int(kNumberFormatFractional) << english;
            }
        }
    }

    void formatThenParseGivesTheGridValue()
    {
        QFETCH(int, symbol);
        QFETCH(int, format);
        QFETCH(QString, locale);
        UnitsFormatter formatter(locale.toStdWString().c_str());
        formatter.SetNumericFormat(NumberFormat(format));
        formatter.SetIncludePositiveSignInNumber(true);
        Units::teType type = Units::eTypeNone;
        QCOMPARE(UnitsUtilities::GetUnitType(UnitSymbol(symbol), type), kSuccess);
        // Also through a different unit of the group where there is one.
        const int base = (type & 0xF000) | 1;
        // A symbol without unit text (the ratio) reads back in whatever unit is asked for.
        const bool convert =
            UnitsUtilities::IsUnit(base) && base != type && (type & 0xF000) != 0x7000 && symbol != kSymbolRatio;

        const QRegularExpression fullMinute(QStringLiteral("(^|[^0-9.,])60(['\"ms′″]|[.,]0+[\"s″])"));
        const QRegularExpression inchesPart(QStringLiteral("(?:'|ft)[- ]?\\s*(\\d+)"));
        wchar_t buffer[256];
        const QList<double> samples = Samples();
        for (int precision = 0; precision <= 8; ++precision) {
            QCOMPARE(formatter.SetNumberDecimalPrecision(precision), kSuccess);
            const double step = Step(symbol, precision, format);
            for (double x : samples) {
                double displayed = 0;
                QCOMPARE(formatter.Format(x, type, buffer, 256, symbol, &displayed), kSuccess);
                const QString text = QString::fromWCharArray(buffer);
                double parsed = 0;
                QVERIFY2(formatter.Parse(buffer, parsed, type) == kSuccess, qPrintable(text));
                const QString where = QStringLiteral("%1 p%2 x=%3 -> %4 -> %5")
                                          .arg(symbol, 0, 16)
                                          .arg(precision)
                                          .arg(x, 0, 'g', 17)
                                          .arg(text)
                                          .arg(parsed, 0, 'g', 17);
                // On the grid, and within half a step of the value.
                const double steps = parsed / step;
                QVERIFY2(std::fabs(steps - std::round(steps)) < 1e-6 + std::fabs(steps) * 1e-12, qPrintable(where));
                QVERIFY2(std::fabs(parsed - x) <= step / 2 * (1 + 1e-9) + 1e-12, qPrintable(where));
                QVERIFY2(parsed == displayed || std::fabs(parsed - displayed) <= 1e-12 * std::fabs(parsed),
                         qPrintable(where));
                if (IsDegreesMinutesSeconds(symbol))
                    QVERIFY2(!fullMinute.match(text).hasMatch(), qPrintable(where));
                if (IsFeetInches(symbol)) {
                    const auto match = inchesPart.match(text);
                    QVERIFY2(match.hasMatch() && match.captured(1).toInt() < 12, qPrintable(where));
                }
                if (convert) {
                    double inBase = 0;
                    QCOMPARE(UnitsConverter::Convert(x, type, inBase, base), kSuccess);
                    QCOMPARE(formatter.Format(inBase, base, buffer, 256, symbol, nullptr), kSuccess);
                    double back = 0;
                    QVERIFY2(formatter.Parse(buffer, back, base) == kSuccess, qPrintable(where));
                    // Ties may round either way after the conversion; the grid holds.
                    double backInSymbolUnit = 0;
                    UnitsConverter::Convert(back, base, backInSymbolUnit, type);
                    const double backSteps = backInSymbolUnit / step;
                    const QString via = where + QStringLiteral(" via %1: %2").arg(base, 0, 16).arg(back, 0, 'g', 17);
                    QVERIFY2(std::fabs(backSteps - std::round(backSteps)) < 1e-6 + std::fabs(backSteps) * 1e-9,
                             qPrintable(via));
                    QVERIFY2(std::fabs(backInSymbolUnit - x) <= step / 2 * (1 + 1e-6) + std::fabs(x) * 1e-12,
                             qPrintable(via));
                }
            }
        }
    }

    // Controls that hide the unit text show only the numbers ("5-6 1/2",
    // "45 30 15"); reading such text as a plain number gives it back in the
    // symbol's unit.
    void numberOnlyTextRoundTrip_data()
    {
        QTest::addColumn<int>("symbol");
        QTest::addColumn<QString>("shape");
        QTest::newRow("feet inches") << 0x302016 << "{0} {1}";
        QTest::newRow("feet dash inches") << 0x602016 << "{0}-{1}";
        QTest::newRow("fractional inches") << 0x702016 << "{0}";
        QTest::newRow("feet dash fraction") << 0x802016 << "{0}-{1}";
        QTest::newRow("feet dash hyphen fraction") << 0xA02016 << "{0}-{1}";
        QTest::newRow("dms") << 0x408002 << "{0} {1} {2}";
    }

    void numberOnlyTextRoundTrip()
    {
        QFETCH(int, symbol);
        QFETCH(QString, shape);
        UnitsFormatter formatter(L"en-US");
        QCOMPARE(formatter.SetDefaultSymbol(symbol), kSuccess);
        QCOMPARE(formatter.SetSymbolFormattingString(symbol, shape.toStdWString().c_str()), kSuccess);
        Units::teType type = Units::eTypeNone;
        UnitsUtilities::GetUnitType(UnitSymbol(symbol), type);
        wchar_t buffer[256];
        for (int precision = 0; precision <= 8; ++precision) {
            formatter.SetNumberDecimalPrecision(precision);
            for (double x : Samples()) {
                double displayed = 0;
                QCOMPARE(formatter.Format(x, type, buffer, 256, symbol, &displayed), kSuccess);
                double parsed = 0;
                const QString text = QString::fromWCharArray(buffer);
                QVERIFY2(formatter.Parse(buffer, parsed, Units::eUnitless) == kSuccess, qPrintable(text));
                QVERIFY2(std::fabs(parsed - displayed) <= 1e-12 * std::max(1.0, std::fabs(displayed)),
                         qPrintable(text + QStringLiteral(" -> %1").arg(parsed, 0, 'g', 17)));
            }
        }
        // Plain arithmetic still works where the text has another shape.
        double parsed = 0;
        QCOMPARE(formatter.Parse(L"(1+2)*3", parsed, Units::eUnitless), kSuccess);
        QCOMPARE(parsed, 9.0);
    }

    void exponentFormsRoundTrip_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("scientific") << int(kNumberFormatScientific);
        QTest::newRow("engineering") << int(kNumberFormatEngineering);
    }

    void exponentFormsRoundTrip()
    {
        QFETCH(int, format);
        UnitsFormatter formatter(L"de-DE");
        formatter.SetNumericFormat(NumberFormat(format));
        wchar_t buffer[256];
        for (UnitSymbol symbol : UnitsUtilities::GetAllSymbols()) {
            Units::teType type = Units::eTypeNone;
            UnitsUtilities::GetUnitType(symbol, type);
            for (int precision = 0; precision <= 8; ++precision) {
                formatter.SetNumberDecimalPrecision(precision);
                for (double x : Samples()) {
                    double displayed = 0;
                    QCOMPARE(formatter.Format(x * 1e4, type, buffer, 256, symbol, &displayed), kSuccess);
                    double parsed = 0;
                    QVERIFY2(formatter.Parse(buffer, parsed, type) == kSuccess,
                             qPrintable(QString::fromWCharArray(buffer)));
                    QVERIFY2(std::fabs(parsed - displayed) <= 1e-12 * std::fabs(displayed),
                             qPrintable(QString::fromWCharArray(buffer)));
                    // Significant digits: precision + 1 at least.
                    QVERIFY(std::fabs(parsed - x * 1e4)
                            <= std::fabs(x * 1e4) * std::pow(10.0, -precision) * 0.5 + 1e-300);
                }
            }
        }
    }
};

QTEST_MAIN(tst_UnitsRoundTrip)
#include "tst_unitsroundtrip.moc"
