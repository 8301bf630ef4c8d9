#include "Infusion.h"

#include "infusions/units.h"
#include "translation/translation.h"

#include <algorithm>
#include <cmath>

namespace Bedside
{

using Infusions::makeUnit;
using Infusions::millilitre;
using Pelmora::GString;
using Pelmora::UnitValue;
using Translation::tr;
using enum Pelmora::UnitTypeEnum;
using enum Pelmora::UnitPrefix;

UnitValue Infusion::givenAfter(std::chrono::duration<double> elapsed) const
{
    const UnitValue time(elapsed.count(), makeUnit({{UNIT_S, NONE, 1}}));
    UnitValue given = rate.mul(time).convertTo(millilitre());
    given.value = std::min(given.value, volume.value);
    return given;
}

bool Infusion::isEmptyAfter(std::chrono::duration<double> elapsed) const
{
    return givenAfter(elapsed).value >= volume.value;
}

GString Infusion::lastsAfter(std::chrono::duration<double> elapsed) const
{
    constexpr double minutesInHour = 60;
    if (isEmptyAfter(elapsed))
        return tr("empty");
    const auto hour = makeUnit({{UNIT_HR, NONE, 1}});
    const auto minute = makeUnit({{UNIT_MIN, NONE, 1}});
    const UnitValue rest(volume.value - givenAfter(elapsed).value, millilitre());
    const double minutes = std::round(rest.div(rate).convertTo(minute).value);
    if (minutes < 1)
        return GString::format(tr("less than %s"), UnitValue(1, minute).ToString(0));
    const double hours = std::floor(minutes / minutesInHour);
    return UnitValue(hours, hour).ToString(0) + u" " +
           UnitValue(minutes - hours * minutesInHour, minute).ToString(0);
}

} // namespace Bedside
