#include "Infusion.h"

#include "units.h"

#include "infusions/translation.h"

#include <algorithm>

namespace Bedside
{

using Pelmora::UnitValue;
using enum Pelmora::UnitTypeEnum;
using enum Pelmora::UnitPrefix;

UnitValue Infusion::givenAfter(std::chrono::duration<double> elapsed) const
{
    const UnitValue time(elapsed.count(), makeUnit({{UNIT_S, NONE, 1}}));
    UnitValue given = rate.mul(time).convertTo(millilitre());
    given.value = std::min(given.value, volume.value);
    return given;
}

Pelmora::GString Infusion::lastsAfter(std::chrono::duration<double> elapsed) const
{
    constexpr int significantDigits = 3;
    constexpr double hoursShownAsMinutes = 2;
    const UnitValue rest(volume.value - givenAfter(elapsed).value, millilitre());
    if (rest.value <= 0)
        return Infusions::tr("empty");
    const UnitValue hours = rest.div(rate).convertTo(makeUnit({{UNIT_HR, NONE, 1}}));
    const bool isLong = hours.value >= hoursShownAsMinutes;
    return (isLong ? hours : hours.convertTo(makeUnit({{UNIT_MIN, NONE, 1}})))
        .toNormalizedString(significantDigits);
}

} // namespace Bedside
