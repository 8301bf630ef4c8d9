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
/// the kg⁻¹ of mg/kg. A plain value. Any field may hold any number, and every operation is defined
/// for it. Several threads may read an element at once, as long as none writes it.
struct PELMORA_API UnitElement {
    UnitPrefix prefix;     ///< the decimal prefix
    UnitTypeEnum unitType; ///< the kind
    std::int32_t exponent; ///< negative for a divisor; 0 marks an element that counts for nothing

    /// Mind the order: kind, prefix, exponent.
    constexpr UnitElement(UnitTypeEnum kind, UnitPrefix decimalPrefix, std::int32_t power) noexcept
        : prefix(decimalPrefix), unitType(kind), exponent(power)
    {
    }

    /// The element in its ISO kind without prefix, and the factor for a value in it: mL gives L
    /// and 0.001. With a prefix out of range, the factor is 0, or infinity for a negative exponent.
    ScaledElement toIso() const noexcept;

    /// Whether both may be merged: the kinds are equal, or both are times or both lengths. Prefix
    /// and exponent do not matter.
    bool sameDimension(const UnitElement& other) const noexcept;

    /// The element with its prefix moved by `steps`, at most to `NANO` or `GIGA`, and the factor
    /// for a value in it: mg moved by -1 gives mcg and 1000. If the prefix cannot move, the element
    /// is unchanged and the factor exactly 1.0.
    ScaledElement shiftPrefix(int steps) const noexcept;

    /// Prefix symbol, kind symbol and power: "kg", "m²", "min^-1". Empty for the exponent 0. With
    /// `absoluteExponent` the power's sign is left out.
    /// GString is incomplete here; include unitText.h to call this.
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

/// A value in the original element, multiplied by `factor`, is the value in `element`.
struct ScaledElement {
    double factor;       ///< for values
    UnitElement element; ///< of the value times the factor
};

} // namespace Pelmora::Native
