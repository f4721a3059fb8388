#pragma once

#include <KvCoreUnits/UnitsTypes.h>

namespace kavrel::platform::core::units {

/// Converts values between unit types of one group. Factors are exact
/// (1 in = 25.4 mm, 1 lb = 0.45359237 kg); temperatures convert with their offsets.
class KVCOREUNITS_EXPORT UnitsConverter
{
public:
    UnitsConverter() = delete;

    /// On success `out` holds the converted value. On failure (kUnknownUnit,
    /// kIncompatibleUnit for types of different groups) `out` receives the value
    /// unchanged, so a caller that ignores the code keeps the plain number.
    static ErrorCode Convert(double value, int fromUnit, double& out, int toUnit);
};

} // namespace kavrel::platform::core::units
