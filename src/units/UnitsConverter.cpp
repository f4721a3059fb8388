#include <KvCoreUnits/UnitsConverter.h>

#include <KvCoreUnits/UnitTable_p.h>

namespace kavrel::platform::core::units {

ErrorCode UnitsConverter::Convert(double value, int fromUnit, double& out, int toUnit)
{
    const detail::TypeRow* from = detail::FindType(fromUnit);
    const detail::TypeRow* to = detail::FindType(toUnit);
    if (!from || !to) {
        out = value;
        return kUnknownUnit;
    }
    if (!detail::ConvertBetween(value, *from, *to, out)) {
        out = value;
        return kIncompatibleUnit;
    }
    return kSuccess;
}

} // namespace kavrel::platform::core::units
