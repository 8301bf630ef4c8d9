#include "pump.h"

#include "Order.h"
#include "units.h"

#include "translation/translation.h"

#include <cmath>

namespace Infusions
{
namespace
{

using Pelmora::GString;
using Pelmora::UnitValue;
using Translation::tr;

int decimals(double millilitresPerHour)
{
    if (millilitresPerHour < 10)
        return 2;
    return millilitresPerHour < 100 ? 1 : 0;
}

UnitValue rate(double millilitresPerHour)
{
    return {millilitresPerHour, millilitrePerHour()};
}

/// Of any rate: those of mistyped orders would have hundreds of digits.
GString refusedText(const UnitValue& setting)
{
    constexpr double least = 0.01;
    constexpr double most = 1e6;
    if (setting.value > most)
        return GString::format(tr("more than %s"), pumpText(rate(most)));
    if (!(setting.value >= least))
        return GString::format(tr("less than %s"), pumpText(rate(least)));
    return pumpText(setting);
}

} // namespace

UnitValue pumpSetting(const UnitValue& exact)
{
    const UnitValue slowest = rate(0.1);
    const UnitValue fastest = rate(1200);
    const double steps = std::pow(10.0, decimals(exact.value));
    UnitValue setting = rate(std::nearbyint(exact.value * steps) / steps);
    if (setting.value >= slowest.value && setting.value <= fastest.value)
        return setting;
    throw OrderError(GString::format(tr("a pump cannot run at %s, only at %s to %s"),
                                     refusedText(setting), slowest.ToString(1),
                                     fastest.ToString(0)));
}

GString pumpText(const UnitValue& setting)
{
    return setting.ToString(decimals(setting.value));
}

} // namespace Infusions
