#pragma once

#include "pelmora/pelmora.h"

namespace Infusions
{

/// An exact rate in mL/hr, rounded to what can be set on a pump: steps of 0.01 mL/hr below 10, of
/// 0.1 below 100 and of 1 above. Throws OrderError when no pump runs at that.
Pelmora::UnitValue pumpSetting(const Pelmora::UnitValue& exact);

/// "13.1 mL/hr": a setting as a pump shows it, in one unit and in plain digits.
Pelmora::GString pumpText(const Pelmora::UnitValue& setting);

} // namespace Infusions
