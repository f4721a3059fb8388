#include <KvCoreUnits/MathUtilities.h>

#include <cmath>

namespace kavrel::platform::core::units {

bool MathUtilities::fuzzyEqualValues(double a, double b, double tolerance)
{
    return tolerance >= std::fabs(a - b);
}

double MathUtilities::defaultTolerance(int precision)
{
    return std::pow(10.0, -4.0 - precision);
}

double MathUtilities::angleTolerance()
{
    return 1e-8;
}

double MathUtilities::distanceTolerance()
{
    return 1e-10;
}

double MathUtilities::_round(double value)
{
    return std::round(value);
}

double MathUtilities::_round(double value, int decimals)
{
    if (!std::isfinite(value))
        return value;
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    // Beyond 2^52 every double is already whole at this scale.
    if (!std::isfinite(scaled) || std::fabs(scaled) >= 4503599627370496.0)
        return value;
    return std::round(scaled) / scale;
}

double MathUtilities::_pow(double base, double exponent)
{
    return std::pow(base, exponent);
}

double MathUtilities::_fabs(double value)
{
    return std::fabs(value);
}

} // namespace kavrel::platform::core::units
