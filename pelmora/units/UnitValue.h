#pragma once

#include "pelmora/units/Unit.h"

namespace Pelmora::Native
{

/// A measured quantity: a number in a unit, such as 2.5 mg/kg. A plain value; only `convertTo`
/// changes it. Nothing here reports an error: a conversion between incompatible units gives a
/// number without meaning, so ask `Unit::compatibleWith` first where that can happen. Several
/// threads may read a value at once, as long as none writes it.
struct PELMORA_API UnitValue {
    double value; ///< the number
    Unit unit;    ///< its unit

    /// A number in a unit.
    UnitValue(double number, const Unit& unitOfNumber) : value(number), unit(unitOfNumber) {}
    UnitValue(const UnitValue&) = default;
    UnitValue(UnitValue&&) noexcept = default;
    /// Number and unit change together or, without memory for the unit, not at all.
    UnitValue& operator=(const UnitValue& other) { return *this = UnitValue(other); }
    UnitValue& operator=(UnitValue&&) noexcept = default;
    ~UnitValue() = default;

    /// The product, in the product of the units, which is not reduced. A value with an invalid unit
    /// is a neutral operand: the result is the other value, and this one if both units are invalid.
    UnitValue mul(const UnitValue& other) const;

    /// 1 / value in the inverted unit. The value 0.0 gives 0.0 with the empty unit, not infinity. A
    /// value with an invalid unit is returned as it is, on purpose.
    UnitValue inverted() const;

    /// `mul(other.inverted())`, so that dividing by 0 gives 0 in this unit.
    UnitValue div(const UnitValue& other) const;

    /// The value in the reduced unit; see `Unit::getReduced`.
    UnitValue getReduced() const;

    /// The number in `target`, without meaning if the units are not compatible.
    double getConvertedValue(const Unit& target) const noexcept;

    /// Converts this value to `target`, number and unit together or, without memory, not at all.
    void convertTo(const Unit& target);

    /// The value with the prefix of its unit's first positive element moved until the number is at
    /// least 0.1 and has at most `maxMagnitude` digits before the point, as far as prefixes reach.
    /// With 3, 0.05 mg becomes 50 mcg and 1500 mg/hr becomes 1.5 g/hr. A negative number moves down
    /// to nano, on purpose.
    UnitValue toNormalized(int maxMagnitude) const;

    /// "2.5 mg/kg": fixed notation with `precision` digits after the point, or with a negative
    /// precision general notation of 6 significant digits; then a blank and the unit, if it has a
    /// text. The number follows the global C++ locale.
    /// GString is incomplete here; include unitText.h to call this.
    GString toString(int precision) const;

    /// "50.0 mcg": the value normalised with `digits` as the largest magnitude and written with
    /// `digits` significant digits; see `formatSignificant` in unitText.h.
    GString toNormalizedString(int digits) const;
};

/// For x >= 1, the number of digits before the decimal point, 11 from 1e10 up. For x < 1, minus the
/// position of the first significant digit after the point, -12 below 1e-11. For zero 0; for
/// negative numbers and NaN -12.
PELMORA_API int decimalMagnitude(double x) noexcept;

} // namespace Pelmora::Native
