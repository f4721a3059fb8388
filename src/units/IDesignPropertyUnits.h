#pragma once

#include <KvCoreUnits/KvCoreUnitsExport.h>

#include <cstdint>

namespace kvp {

/// Unit types and groups of design properties. A unit type is its group ORed
/// with an index inside the group; the group sits in bits 12..15.
struct KVCOREUNITS_EXPORT IDesignPropertyUnits
{
    /// The unit groups; a group's value sits in bits 12..15.
    enum teGroup : std::int32_t
    {
        eGroupNone = 0,
        eGroupUnitless = 0x1000,
        eGroupLength = 0x2000,
        eGroupArea = 0x3000,
        eGroupVolume = 0x4000,
        eGroupMass = 0x5000,
        eGroupTime = 0x6000,
        eGroupTemperature = 0x7000,
        eGroupAngle = 0x8000,
        eGroupPercent = 0x9000,
    };

    /// The unit types: a group ORed with an index inside the group.
    enum teType : std::int32_t
    {
        eTypeNone = 0,
        eUnitless = 0x1001,

        eMillimeter = 0x2001,
        eCentimeter = 0x2002,
        eMeter = 0x2003,
        eKilometer = 0x2004,
        eMicrometer = 0x2005,
        eFoot = 0x2015,
        eInch = 0x2016,
        eYard = 0x2017,
        eMile = 0x2018,

        eSquareMillimeter = 0x3001,
        eSquareCentimeter = 0x3002,
        eSquareMeter = 0x3003,
        eSquareKilometer = 0x3004,
        eHectare = 0x3005,
        eSquareFoot = 0x3015,
        eSquareInch = 0x3016,
        eSquareYard = 0x3017,
        eSquareMile = 0x3018,
        eAcre = 0x3019,

        eCubicMillimeter = 0x4001,
        eCubicCentimeter = 0x4002,
        eCubicMeter = 0x4003,
        eLiter = 0x4004,
        eMilliliter = 0x4005,
        eCubicFoot = 0x4015,
        eCubicInch = 0x4016,
        eCubicYard = 0x4017,
        eUSGallon = 0x4018,

        eMilligram = 0x5001,
        eGram = 0x5002,
        eKilogram = 0x5003,
        eTonne = 0x5004,
        eOunce = 0x5015,
        ePound = 0x5016,

        eMillisecond = 0x6001,
        eSecond = 0x6002,
        eMinute = 0x6003,
        eHour = 0x6004,
        eDay = 0x6005,

        eCelsius = 0x7001,
        eKelvin = 0x7002,
        eFahrenheit = 0x7003,
        eRankine = 0x7004,

        eRadian = 0x8001,
        eDegree = 0x8002,
        eGradian = 0x8003,
        eTurn = 0x8004,
        eArcMinute = 0x8005,
        eArcSecond = 0x8006,

        ePercent = 0x9001,
        eRatio = 0x9002,
        ePerMille = 0x9003,
    };
};

} // namespace kvp
