#pragma once

#include "pelmora/units/ElementList.h"

#include <string>

namespace Pelmora::Native
{

struct ScaledUnit;

/// A composite unit: the product of its elements, such as mg · kg⁻¹ · min⁻¹. The empty list is the
/// dimensionless unit. The order of the elements is kept, since text and normalisation depend on
/// it. A plain value that owns its list; no operation but `removeUnitType` changes it, none
/// but those that make texts allocates for up to eight elements, and none throws unless memory runs
/// out. Sums of exponents and negated exponents wrap around at 32 bits. Several threads may read
/// one unit at once while nobody writes it.
struct PELMORA_API Unit {
    ElementList elements;

    Unit() noexcept = default;
    Unit(const UnitElement& element); // NOLINT(google-explicit-constructor): an element is a unit

    /// A copy of the list.
    ElementList getElementList() const { return elements; }

    /// This list followed by the other's; nothing is merged or reordered.
    Unit mul(const Unit& other) const;

    /// Every exponent negated.
    Unit inverted() const;

    /// Elements of the same dimension merged into one in the ISO kind of the first, or cancelled;
    /// elements that stand alone keep prefix and kind. mg · kg⁻¹ of the same kind gives 1e-6 and
    /// the empty unit, mL · hr⁻¹ stays as it is with the factor 1.
    ScaledUnit getReduced() const;

    /// The canonical form for comparison: ISO kinds only, sorted by kind, one element a kind, none
    /// with exponent 0. Elements whose ISO forms are equal count once, on purpose: m · m gives m¹.
    ScaledUnit getAsIsoUnit() const;

    /// The factor of `getAsIsoUnit` alone.
    double isoFactor() const noexcept;

    /// Whether the ISO forms have equal elements; the factors are ignored.
    bool compatibleWith(const Unit& other) const;

    /// Whether the reduced forms have exactly equal factors and the same elements in any order.
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

    /// The unit with the prefix of its first element of positive exponent moved by `steps`, and the
    /// factor that keeps a value's magnitude; 1.0 and the unit unchanged when there is none or its
    /// prefix cannot move.
    ScaledUnit shiftPrefix(int steps) const;

    /// "mg/kg/min": the numerator's elements, then "/" and each of the denominator's, with powers
    /// as "²", "³", "^4". Empty for the empty unit. Declared with its type in unitText.h.
    GString toString() const;

    /// "{ mg, kg^-1 }": every element with its signed power, in the ANSI code page.
    std::string toDebugString() const;

    friend bool operator==(const Unit&, const Unit&) noexcept = default;
};

/// A value in the unit that was asked, times `factor`, is the value in `unit`.
struct ScaledUnit {
    double factor;
    Unit unit;
};

} // namespace Pelmora::Native
