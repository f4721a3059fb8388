#pragma once

#include <KvCoreUnits/KvCoreUnitsExport.h>

namespace kavrel::platform::core::units {

/// Numeric helpers shared by the units component and the controls built on it.
class KVCOREUNITS_EXPORT MathUtilities
{
public:
    MathUtilities() = delete;

    /// True when tolerance >= |a - b|.
    static bool fuzzyEqualValues(double a, double b, double tolerance);
    /// 10^(-4 - precision): a tenth of a thousandth of the smallest shown step.
    static double defaultTolerance(int precision);
    /// Equality tolerance of angles, 1e-8.
    static double angleTolerance();
    /// Equality tolerance of lengths and other measured values, 1e-10.
    static double distanceTolerance();

    /// Rounds half away from zero.
    static double _round(double value);
    /// Rounds to the given number of decimals, half away from zero.
    static double _round(double value, int decimals);
    /// base raised to exponent, as std::pow.
    static double _pow(double base, double exponent);
    /// The absolute value, as std::fabs.
    static double _fabs(double value);
};

} // namespace kavrel::platform::core::units
