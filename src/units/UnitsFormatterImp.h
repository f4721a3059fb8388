#pragma once

#include <KvCoreUnits/UnitsTypes.h>

#include <string>
#include <utility>
#include <vector>

namespace kavrel::platform::core::units {

class UnitsFormatterImp
{
public:
    const std::wstring* CustomTemplate(int symbol) const
    {
        for (const auto& entry : mCustomTemplates) {
            if (entry.first == symbol)
                return &entry.second;
        }
        return nullptr;
    }

    // What formatting uses; the Requested values are what was set.
    NumberFormat meNumericFormat = kNumberFormatDecimal;
    int miPrecision = 2;
    NumberFormat meRequestedFormat = kNumberFormatDecimal;
    int miRequestedPrecision = 2;
    std::wstring msDecimalSeparator = L".";
    std::wstring msGroupSeparator = L",";
    std::wstring msPositiveSign = L"+";
    bool mbSignInNumber = false;
    bool mbSignInExponent = true;
    bool mbTwoDigitExponent = true;
    int miDefaultUnit = kvp::IDesignPropertyUnits::eUnitless;
    int miDefaultSymbol = kSymbolUnitless;
    std::vector<std::pair<int, std::wstring>> mCustomTemplates;
};

namespace detail {
// Parses text for UnitsFormatter::Parse; `unit` is already resolved and valid.
ErrorCode ParseText(const UnitsFormatterImp& settings, const wchar_t* text, double& value, int unit);
} // namespace detail

} // namespace kavrel::platform::core::units
