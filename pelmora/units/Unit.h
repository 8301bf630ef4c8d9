#pragma once

#include "pelmora/units/ElementList.h"

#include <string>
#include <utility>

namespace Pelmora::Native
{

struct ScaledUnit;

/// A composite unit: the product of its elements, such as mg · kg⁻¹ · min⁻¹. The empty list is the
/// dimensionless unit. The order of the elements is kept, since text and normalisation depend on
/// it. A plain value that owns its list. Only `removeUnitType` changes it. For up to eight elements
/// only the operations that make texts allocate, and none throws unless memory runs out. Sums of
/// exponents and negated exponents wrap around at 32 bits. Several threads may read a unit at once,
/// as long as none writes it.
struct PELMORA_API Unit {
    ElementList elements; ///< in the order in which they were multiplied

    /// The dimensionless unit.
    Unit() noexcept = default;
    /// The unit of this one element.
    Unit(const UnitElement& element) // NOLINT(google-explicit-constructor): an element is a unit
        : elements{element}
    {
    }

    /// A copy of the list.
    ElementList getElementList() const { return elements; }

    /// The product: these elements, then the other's. Nothing is merged or reordered.
    Unit mul(const Unit& other) const;

    /// The unit with every exponent negated.
    Unit inverted() const;

    /// Merges elements of the same dimension into one of the ISO kind, in the place of the first,
    /// or cancels them. Other elements keep prefix and kind. mg · kg⁻¹ gives the factor 1e-6 and
    /// the empty unit; mL · hr⁻¹ stays as it is, with the factor 1.
    ScaledUnit getReduced() const;

    /// The form in which units are compared: only ISO kinds without prefix, sorted by kind, one
    /// element a kind, none with exponent 0. Elements of equal ISO form count once, on purpose:
    /// m · m gives m¹.
    ScaledUnit getAsIsoUnit() const;

    /// The factor of `getAsIsoUnit` alone.
    double isoFactor() const noexcept;

    /// Whether the ISO forms have equal elements, whatever their factors.
    bool compatibleWith(const Unit& other) const;

    /// Whether the reduced forms have exactly equal factors, and equal elements in any order.
    bool isEquivalent(const Unit& other) const;

    /// Whether no element is of the kind `UNIT_NUMBER_OF` and none has the exponent 0. The empty
    /// unit is valid.
    bool isValid() const noexcept;

    /// Whether some element has exactly this kind and exponent, with any prefix.
    bool hasUnitType(UnitTypeEnum kind, std::int32_t exponent) const noexcept;

    /// Removes every element of this kind.
    void removeUnitType(UnitTypeEnum kind);

    /// Seconds in the time unit of a rate: 1 for s⁻¹, otherwise 60 for min⁻¹, otherwise 3600 for
    /// hr⁻¹, otherwise 0. The prefix is ignored.
    unsigned int getRateDivisor() const noexcept;

    // What the ISO form holds; exponents match exactly, so mL/min is a volume and a rate, and the
    // square litre is neither.
    bool unitIsRate() const;   ///< s⁻¹
    bool unitIsVolume() const; ///< L
    bool unitIsMol() const;    ///< mol
    bool unitIsPrPt() const;   ///< g of body weight⁻¹
    bool unitIsWeight() const; ///< g
    bool unitIsUnit() const;   ///< units

    /// The unit with `UnitElement::shiftPrefix` applied to its first element of positive exponent,
    /// and the factor for a value in it. Without such an element, the unit unchanged and 1.0.
    ScaledUnit shiftPrefix(int steps) const;

    /// "mg/kg/min": the numerator's elements, then "/" and each of the denominator's, with powers
    /// as "²", "³", "^4". Empty for the empty unit.
    /// GString is incomplete here; include unitText.h to call this.
    GString toString() const;

    /// "{ mg, kg^-1 }": every element with its signed power; narrow text in the ANSI code page.
    std::string toDebugString() const;

    friend bool operator==(const Unit&, const Unit&) noexcept = default;
};

/// A value in the original unit, multiplied by `factor`, is the value in `unit`.
struct ScaledUnit {
    double factor; ///< for values
    Unit unit;     ///< of the value times the factor

    /// These two.
    ScaledUnit(double scale, Unit unitOfScaled) noexcept
        : factor(scale), unit(std::move(unitOfScaled))
    {
    }
    ScaledUnit(const ScaledUnit&) = default;
    ScaledUnit(ScaledUnit&&) noexcept = default;
    /// Factor and unit change together or, without memory for the unit, not at all.
    ScaledUnit& operator=(const ScaledUnit& other) { return *this = ScaledUnit(other); }
    ScaledUnit& operator=(ScaledUnit&&) noexcept = default;
    ~ScaledUnit() = default;
};

} // namespace Pelmora::Native
