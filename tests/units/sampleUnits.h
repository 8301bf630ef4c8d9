#pragma once

#include "pelmora/units/Unit.h"

#include <initializer_list>
#include <limits>
#include <ostream>

namespace Pelmora::Native
{

using enum UnitTypeEnum;
using enum UnitPrefix;

inline constexpr UnitElement g{UNIT_G, NONE, 1}, mg{UNIT_G, MILLI, 1}, perKg{UNIT_G, KILO, -1};
inline constexpr UnitElement mL{UNIT_L, MILLI, 1}, m{UNIT_M, NONE, 1}, cm{UNIT_CM, NONE, 1};
inline constexpr UnitElement perMin{UNIT_MIN, NONE, -1}, perHr{UNIT_HR, NONE, -1};
inline constexpr UnitElement perS{UNIT_S, NONE, -1}, s{UNIT_S, NONE, 1}, hr{UNIT_HR, NONE, 1};
inline constexpr UnitElement perKgBody{UNIT_G_PT, KILO, -1}, count{UNIT_NUMBER_OF, NONE, 1};
inline constexpr int lowest = std::numeric_limits<int>::min();
inline constexpr int highest = std::numeric_limits<int>::max();

inline Unit unitOf(std::initializer_list<UnitElement> elements)
{
    Unit unit;
    unit.elements = elements;
    return unit;
}

inline void PrintTo(const Unit& unit, std::ostream* out)
{
    *out << unit.toDebugString();
}

inline void PrintTo(const UnitElement& element, std::ostream* out)
{
    PrintTo(Unit(element), out);
}

} // namespace Pelmora::Native
