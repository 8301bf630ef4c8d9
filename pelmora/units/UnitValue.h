#pragma once

#include "pelmora/units/Unit.h"

namespace Pelmora::Native
{

/// A measured quantity: a number in a unit, such as 2.5 mg/kg. A plain value; only `convertTo`
/// changes it. Nothing here reports an error: incompatible conversions give a number without
/// meaning, so ask `Unit::compatibleWith` first where that can happen. Several threads may read one
/// value at once while nobody writes it.
struct PELMORA_API UnitValue {
    double value;
    Unit unit;

    UnitValue(double number, const Unit& unitOfNumber) : value(number), unit(unitOfNumber) {}

    /// The product, its unit concatenated and not reduced. An invalid unit makes its value a
    /// neutral operand: the other one is returned untouched (this one, when the other's is
    /// invalid).
    UnitValue mul(const UnitValue& other) const;

    /// 1 / value in the inverted unit; 0.0 gives 0.0 with the empty unit, not infinity. With an
    /// invalid unit a copy of this, on purpose not inverted.
    UnitValue inverted() const;

    /// `mul(other.inverted())`: dividing by 0 gives 0 in this unit.
    UnitValue div(const UnitValue& other) const;

    /// The value in the reduced unit, see `Unit::getReduced`.
    UnitValue getReduced() const;

    /// The number in `target`. Requires for a meaningful result: compatible units.
    double getConvertedValue(const Unit& target) const noexcept;

    /// Sets value and unit to those of the conversion.
    void convertTo(const Unit& target);

    /// The value with the prefix of its unit's first positive element moved until the number is at
    /// least 0.1 and has at most `maxMagnitude` digits before the point, as far as prefixes reach:
    /// with 3, 0.05 mg becomes 50 mcg and 1500 mg/hr becomes 1.5 g/hr. A negative number, on
    /// purpose, moves down to nano.
    UnitValue toNormalized(int maxMagnitude) const;

    /// "2.5 mg/kg": fixed notation with `precision` digits after the point, or with a negative
    /// precision general notation of 6 significant digits; then a blank and the unit, if it has a
    /// text. The number follows the global C++ locale. Declared with its type in unitText.h.
    GString toString(int precision) const;

    /// "50.0 mcg": normalised with `digits` as the largest magnitude, and with `digits` significant
    /// digits. See `formatSignificant` in unitText.h.
    GString toNormalizedString(int digits) const;
};

/// Digits before the decimal point of x >= 1 (11 from 1e10 up), minus the position of the first
/// significant digit after it for x < 1 (-12 below 1e-11, and for negative numbers and NaN), 0 for
/// zero.
PELMORA_API int decimalMagnitude(double x) noexcept;

} // namespace Pelmora::Native
