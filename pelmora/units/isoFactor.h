#pragma once

#include "pelmora/units/ElementList.h"
#include "pelmora/units/unitTables.h"

#include <array>
#include <cstddef>
#include <span>

// The powers of the factors of prefixes and kinds. Internal to the units and c folders.
//
// They are correctly rounded for every prefix, kind and exponent, and calculated with nothing but
// IEEE double arithmetic. `pow` of the C runtimes differs in the last bits, and with it the digits
// that the two builds would print.

namespace Pelmora::Native
{

/// The largest exponent in the table of powers, and minus the smallest. Units of measure have
/// smaller ones, and 15 entries leave one of the row's 16 unused.
inline constexpr std::int32_t powerTableReach = 7;

/// By kind, prefix and exponent. Padded to powers of two so that indexing is a shift.
using PowerRow = std::array<double, 16>;
using PowerTable = std::array<std::array<PowerRow, 8>, 16>;

extern const PowerTable powerTable;

/// `isoFactor` for what is not in the table.
double rareIsoFactor(UnitPrefix prefix, UnitTypeEnum kind, std::int32_t exponent) noexcept;

/// (prefix factor x kind factor) to the power `exponent`, by which a value in the element is
/// multiplied to be in its ISO form. A prefix out of range has the factor 0, whose negative powers
/// are infinite; a kind out of range has the factor 1.
inline double isoFactor(UnitPrefix prefix, UnitTypeEnum kind, std::int32_t exponent) noexcept
{
    const std::size_t prefixAt = prefixIndex(prefix);
    const auto exponentAt =
        static_cast<std::uint32_t>(exponent) + static_cast<std::uint32_t>(powerTableReach);
    if (prefixAt >= prefixRows.size() || exponentAt > 2 * powerTableReach) [[unlikely]]
        return rareIsoFactor(prefix, kind, exponent);
    return powerTable[kindIndex(kind)][prefixAt][exponentAt];
}

/// The elements of a unit, in an `ElementList` or in a caller's array.
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

/// See Unit::getReduced; changes the unit in place.
void reduce(ElementList& elements, double& factor);

/// See UnitValue::toNormalized; changes value and unit in place.
void normalize(double& value, std::span<UnitElement> unit, int maxMagnitude) noexcept;

} // namespace Pelmora::Native
