#pragma once

#include "pelmora/export.h"
#include "pelmora/units/unitKinds.h"

#include <compare>
#include <cstdint>

namespace Pelmora::Native
{

class GString;
struct ScaledElement;

/// One factor of a unit: a base unit with a decimal prefix, raised to an integer power, such as
/// the kg⁻¹ of mg/kg. A plain value; any field may hold any number, and every operation is defined
/// for it. Safe to use from several threads at once as far as nobody writes.
struct PELMORA_API UnitElement {
    UnitPrefix prefix;
    UnitTypeEnum unitType;
    std::int32_t exponent; ///< negative for a divisor; 0 marks an element that counts for nothing

    constexpr UnitElement(UnitTypeEnum kind, UnitPrefix decimalPrefix, std::int32_t power) noexcept
        : prefix(decimalPrefix), unitType(kind), exponent(power)
    {
    }

    /// The element in its ISO kind without prefix, and the factor by which a value in this
    /// element's unit is multiplied to be expressed in that one: mL gives 0.001 and L.
    /// A prefix out of range gives the factor 0, or infinity for a negative exponent.
    ScaledElement toIso() const noexcept;

    /// Whether both measure the same quantity and so may be merged: equal kinds, two times or two
    /// lengths. Prefix and exponent play no part.
    bool sameDimension(const UnitElement& other) const noexcept;

    /// The element with its prefix moved by `steps`, at most to `NANO` or `GIGA`, and the factor by
    /// which a value is multiplied to keep its magnitude: mg moved by -1 gives 1000 and mcg.
    /// The factor is exactly 1.0 and the element unchanged when the prefix cannot move.
    ScaledElement shiftPrefix(int steps) const noexcept;

    /// Prefix symbol, kind symbol and power: "kg", "m²", "min^-1". Empty for the exponent 0. With
    /// `absoluteExponent` the power's sign is left out. Declared with its type in unitText.h.
    GString toString(bool absoluteExponent) const;

    friend constexpr bool operator==(const UnitElement&, const UnitElement&) noexcept = default;

    /// By kind, then exponent, then prefix.
    friend constexpr std::strong_ordering operator<=>(const UnitElement& a,
                                                      const UnitElement& b) noexcept
    {
        if (const auto kinds = a.unitType <=> b.unitType; std::is_neq(kinds))
            return kinds;
        if (const auto exponents = a.exponent <=> b.exponent; std::is_neq(exponents))
            return exponents;
        return a.prefix <=> b.prefix;
    }
};

/// A value in the unit that was asked, times `factor`, is the value in `element`'s unit.
struct ScaledElement {
    double factor;
    UnitElement element;
};

} // namespace Pelmora::Native
