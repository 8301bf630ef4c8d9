#pragma once

#include <cstdint>

namespace Pelmora::Native
{

/// The kinds of base units. Their numbers are stored and exchanged, and never change. Every other
/// number counts as `UNIT_NUMBER_OF`.
enum class UnitTypeEnum : std::int32_t {
    UNIT_G = 0,          ///< gram
    UNIT_L = 1,          ///< litre
    UNIT_S = 2,          ///< second
    UNIT_MIN = 3,        ///< minute
    UNIT_HR = 4,         ///< hour
    UNIT_M = 5,          ///< metre
    UNIT_MIUS = 6,       ///< U.S. survey mile, 1609.34721869 m
    UNIT_INCH = 7,       ///< inch, 0.0254 m
    UNIT_CM = 8,         ///< centimetre
    UNIT_MOL = 9,        ///< mole
    UNIT_IU = 10,        ///< international unit
    UNIT_U = 11,         ///< unit, as in units of insulin
    UNIT_PROCENT = 12,   ///< percent
    UNIT_G_PT = 13,      ///< gram of the patient's body weight; never merges with `UNIT_G`
    UNIT_NUMBER_OF = 14, ///< the number of kinds; as a kind, it stands for nothing
};

/// The decimal prefixes. Each number is the power of 1000 by which the base unit is multiplied. A
/// number outside -3 ... 3 has the factor 0 and no symbol.
enum class UnitPrefix : std::int32_t {
    NANO = -3,
    MICRO = -2,
    MILLI = -1,
    NONE = 0,
    KILO = 1,
    MEGA = 2,
    GIGA = 3,
    UNIT_PREFIX_MIN = NANO,
    UNIT_PREFIX_MAX = GIGA,
};

} // namespace Pelmora::Native
