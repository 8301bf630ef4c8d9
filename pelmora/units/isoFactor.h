#pragma once

#include "pelmora/units/UnitElement.h"
#include "pelmora/units/unitTables.h"

#include <array>
#include <cstddef>
#include <span>

// The powers of the prefixes' and kinds' factors. Internal to the units and c folders.
//
// They are correctly rounded for every prefix, kind and exponent, with nothing but IEEE double
// arithmetic: the C runtimes' `pow` differ in the last bits, and with them the two builds would
// print different digits.

namespace Pelmora::Native
{

/// The powers by kind, prefix and exponent, for exponents of at most `powerTableReach` either way.
/// The rows are as long as powers of two, so that shifts find an entry.
inline constexpr std::int32_t powerTableReach = 7;

using PowerRow = std::array<double, 16>;
using PowerTable = std::array<std::array<PowerRow, 8>, 16>;

extern const PowerTable powerTable;

/// `isoFactor` of what is not in the table.
double rareIsoFactor(UnitPrefix prefix, UnitTypeEnum kind, std::int32_t exponent) noexcept;

/// (prefix factor x kind factor) to the power `exponent`: the factor from one prefixed unit to its
/// ISO kind. A prefix out of range has the factor 0, whose negative powers are infinite; a kind out
/// of range has the factor 1.
inline double isoFactor(UnitPrefix prefix, UnitTypeEnum kind, std::int32_t exponent) noexcept
{
    const std::size_t prefixAt = prefixIndex(prefix);
    const auto exponentAt =
        static_cast<std::uint32_t>(exponent) + static_cast<std::uint32_t>(powerTableReach);
    if (prefixAt >= prefixRows.size() || exponentAt > 2 * powerTableReach) [[unlikely]]
        return rareIsoFactor(prefix, kind, exponent);
    return powerTable[kindIndex(kind)][prefixAt][exponentAt];
}

/// The elements of a unit, wherever they lie.
using Elements = std::span<const UnitElement>;

/// The factor of the unit's ISO form.
inline double isoFactor(Elements unit) noexcept
{
    double factor = 1;
    for (const UnitElement& element : unit)
        factor *= isoFactor(element.prefix, element.unitType, element.exponent);
    return factor;
}

inline double convertedValue(double value, Elements from, Elements to) noexcept
{
    return value * isoFactor(from) / isoFactor(to);
}

/// See Unit::compatibleWith.
bool areCompatible(Elements a, Elements b);

/// See UnitValue::toNormalized; changes value and unit in place.
void normalize(double& value, std::span<UnitElement> unit, int maxMagnitude) noexcept;

} // namespace Pelmora::Native
