// The units component against QLocale: formatting lengths and reading numbers,
// numbers with a unit, feet-and-inches fractions and expressions.

#include "BenchRatio.h"

#include <KvCoreUnits/UnitsFormatter.h>

#include <QLocale>
#include <QString>

#include <array>
#include <string>
#include <vector>

using namespace kavrel::platform::core::units;
using Units = kvp::IDesignPropertyUnits;

namespace {

std::array<double, 64> Lengths()
{
    std::array<double, 64> values {};
    double v = 0.37;
    for (double& value : values) {
        value = v;
        v = v * 3.7 + 1.3;
        if (v > 1e6)
            v -= 999983.0;
    }
    return values;
}

template <typename Make>
std::vector<std::wstring> Texts(Make make)
{
    std::vector<std::wstring> texts;
    const auto values = Lengths();
    for (double value : values)
        texts.push_back(make(value).toStdWString());
    return texts;
}

std::vector<QString> QTexts(const std::vector<std::wstring>& wide)
{
    std::vector<QString> texts;
    for (const std::wstring& text : wide)
        texts.push_back(QString::fromStdWString(text));
    return texts;
}

const QLocale& English()
{
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

std::vector<std::wstring> PlainNumbers()
{
    return Texts([](double v) { return QString::number(v, 'f', 3); });
}

void BM_FormatMillimeters(benchmark::State& state)
{
    UnitsFormatter formatter(L"en-US");
    const auto values = Lengths();
    wchar_t buffer[1024];
    std::size_t i = 0;
    for (auto _ : state) {
        formatter.Format(values[i++ & 63], Units::eMillimeter, buffer, 1024, kSymbolMillimeter, nullptr);
        benchmark::DoNotOptimize(buffer);
    }
}

void BM_QLocaleToString(benchmark::State& state)
{
    const QLocale& locale = English();
    const auto values = Lengths();
    std::size_t i = 0;
    for (auto _ : state) {
        QString text = locale.toString(values[i++ & 63], 'f', 2);
        benchmark::DoNotOptimize(text);
    }
}

void BM_QLocaleToDouble(benchmark::State& state)
{
    const QLocale& locale = English();
    const std::vector<QString> texts = QTexts(PlainNumbers());
    std::size_t i = 0;
    for (auto _ : state) {
        double value = locale.toDouble(texts[i++ & 63]);
        benchmark::DoNotOptimize(value);
    }
}

void RunParse(benchmark::State& state, const std::vector<std::wstring>& texts, int unit)
{
    UnitsFormatter formatter(L"en-US");
    std::size_t i = 0;
    double value = 0;
    for (auto _ : state) {
        const ErrorCode code = formatter.Parse(texts[i++ & 63].c_str(), value, unit);
        benchmark::DoNotOptimize(code);
        benchmark::DoNotOptimize(value);
    }
}

void BM_ParsePlainNumber(benchmark::State& state)
{
    RunParse(state, PlainNumbers(), Units::eMillimeter);
}

void BM_ParseMillimeters(benchmark::State& state)
{
    RunParse(state, Texts([](double v) { return QString::number(v, 'f', 1) + QStringLiteral(" mm"); }),
             Units::eMillimeter);
}

void BM_ParseFeetInchesFraction(benchmark::State& state)
{
    RunParse(state, Texts([](double v) {
                 const int feet = int(v) % 100;
                 const int sixteenths = int(v * 16) % (12 * 16);
                 return QStringLiteral("%1'-%2 %3/16\"").arg(feet).arg(sixteenths / 16).arg(sixteenths % 16 | 1);
             }),
             Units::eInch);
}

void BM_ParseExpression(benchmark::State& state)
{
    RunParse(state, Texts([](double v) {
                 return QStringLiteral("%1ft %2in + %3mm").arg(int(v) % 50).arg(int(v) % 12).arg(int(v * 7) % 100);
             }),
             Units::eMillimeter);
}

} // namespace

BENCHMARK(BM_FormatMillimeters);
BENCHMARK(BM_QLocaleToString);
BENCHMARK(BM_ParsePlainNumber);
BENCHMARK(BM_ParseMillimeters);
BENCHMARK(BM_ParseFeetInchesFraction);
BENCHMARK(BM_ParseExpression);
BENCHMARK(BM_QLocaleToDouble);

KVBENCH_RATIO("Format mm vs QLocale::toString('f', 2)", "BM_FormatMillimeters", "BM_QLocaleToString", 2.0);
KVBENCH_RATIO("Parse plain number vs QLocale::toDouble", "BM_ParsePlainNumber", "BM_QLocaleToDouble", 1.5);
KVBENCH_RATIO("Parse \"12.5 mm\" vs QLocale::toDouble", "BM_ParseMillimeters", "BM_QLocaleToDouble", 2.0);
KVBENCH_RATIO("Parse feet-inches fraction vs QLocale::toDouble", "BM_ParseFeetInchesFraction", "BM_QLocaleToDouble",
              4.0);
KVBENCH_RATIO("Parse expression vs QLocale::toDouble", "BM_ParseExpression", "BM_QLocaleToDouble", 4.0);

KVBENCH_MAIN();
