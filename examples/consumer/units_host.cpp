// A host that uses the units library alone: formats and parses a length.
#include <KvCoreUnits/UnitsFormatter.h>

#include <cmath>
#include <cstdio>
#include <cwchar>

using namespace kavrel::platform::core::units;

int main()
{
    // A unit symbol's low 16 bits are its unit type.
    const int millimeter = kSymbolMillimeter & 0xffff;
    UnitsFormatter formatter(L"en-US");
    wchar_t text[64] = {};
    if (formatter.Format(12.5, millimeter, text, 64, kSymbolMillimeter, nullptr) != kSuccess)
        return 1;
    double value = 0.0;
    if (formatter.Parse(text, value, millimeter) != kSuccess || std::fabs(value - 12.5) > 1e-9)
        return 1;
    std::printf("%ls\n", text);
    return 0;
}
