#pragma once

#include "pelmora/api/NullReferenceError.h"
#include "pelmora/api/Vocabulary.h"
#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"
#include "pelmora/units/UnitValue.h"

#include <cstdint>
#include <memory>
#include <vector>

// The public unit objects. They hold plain data with public fields; each operation builds the
// native values of units/ from them, calculates, and returns new objects that share nothing with
// the operands.
//
// What callers share is visible in the types: a std::shared_ptr is a reference that several objects
// may hold, and a change made through one of them shows through all. An operation that only reads
// its argument takes an object or a reference to one. A null reference, as an argument or found in
// a field, throws NullReferenceError, which names it; nothing else here fails.
//
// Objects may be read by several threads at once; whoever writes one keeps other threads away.

namespace Pelmora
{

/// One factor of a unit: base unit, decimal prefix and power.
class PELMORA_API UnitElement
{
public:
    UnitTypeEnum unitType = UnitTypeEnum::UNIT_NUMBER_OF; ///< the kind
    UnitPrefix prefix = UnitPrefix::NONE;                 ///< the decimal prefix
    std::int32_t exponent = 1;                            ///< negative for a divisor

    /// `UNIT_NUMBER_OF`, `NONE`, 1: a dimensionless count.
    UnitElement() = default;
    /// These three fields.
    UnitElement(UnitTypeEnum unitType_, UnitPrefix prefix_, std::int32_t exponent_);
    /// A copy of the element, or of the native one.
    explicit UnitElement(const std::shared_ptr<UnitElement>& rhs);
    explicit UnitElement(const Native::UnitElement& ue);

    /// The same three fields as a native element.
    Native::UnitElement asNative() const;

    /// Whether all three fields are equal; kilogram and gram are different.
    bool isEqual(const UnitElement& rhs) const;
    bool isEqual(const std::shared_ptr<UnitElement>& rhs) const;
};

/// A unit: the product of its elements in the order in which they were added.
class PELMORA_API Unit
{
public:
    /// An array of references, none of which may be null when the unit is used.
    using Elements = std::vector<std::shared_ptr<UnitElement>>;

    /// Never null after construction. Copies of a unit share the array until one of them replaces
    /// it, as `addElement` and `removeElement` do.
    std::shared_ptr<Elements> elements;

    /// One default element: a dimensionless count.
    Unit();
    /// The element itself, not a copy of it.
    explicit Unit(const std::shared_ptr<UnitElement>& ue);
    /// A unit that shares the array of `rhs`, as a copy of the object does.
    explicit Unit(const std::shared_ptr<Unit>& rhs);
    /// New elements in the native unit's order.
    explicit Unit(const Native::Unit& u);

    /// The native product of the elements in their order.
    Native::Unit asNative() const;

    /// Replaces the array by one that ends in `ue` itself. Nothing is merged.
    void addElement(const std::shared_ptr<UnitElement>& ue);

    /// Replaces the array by one without the elements of this kind and returns true; returns false
    /// and keeps the array when there is none.
    bool removeElement(UnitTypeEnum unitType_);

    /// Whether the ISO form of the unit holds exactly s⁻¹, L, mol, g of body weight⁻¹, g or units:
    /// mL/min is a volume and a rate.
    bool unitIsRate() const;
    bool unitIsVolume() const;
    bool unitIsMol() const;
    bool unitIsPrPt() const;
    bool unitIsWeight() const;
    bool unitIsUnit() const;

    /// Whether the two ISO forms have equal elements, as of mg/min and g/hr. Values in the two
    /// units then convert into each other, unless the ISO form counts equal elements of one unit
    /// once, as it does on purpose: m·m and m are compatible, and their values do not convert.
    bool compatibleWith(const Unit& u) const;
    bool compatibleWith(const std::shared_ptr<Unit>& u) const;

    /// "mg/kg/min"; empty for a unit without text.
    GString ToString() const;
};

/// A measured quantity: a number in a unit.
class PELMORA_API UnitValue
{
public:
    double value = 0.0;         ///< the number
    std::shared_ptr<Unit> unit; ///< its unit, not null when the value is used

    /// 0.0 of a new default unit.
    UnitValue();
    /// Keeps the reference: the value shares the unit with whoever else holds it.
    UnitValue(double value_, const std::shared_ptr<Unit>& unit_);
    /// A value that shares the unit of `rhs`, as a copy of the object does.
    explicit UnitValue(const std::shared_ptr<UnitValue>& rhs);
    /// With a new unit of new elements.
    explicit UnitValue(const Native::UnitValue& u);

    /// The number with the unit's native product.
    Native::UnitValue asNative() const;

    /// Product and quotient, reduced; see Native::UnitValue for invalid units and zero.
    UnitValue mul(const UnitValue& rhs) const;
    UnitValue mul(const std::shared_ptr<UnitValue>& rhs) const;
    UnitValue div(const UnitValue& rhs) const;
    UnitValue div(const std::shared_ptr<UnitValue>& rhs) const;

    /// The value in another unit, in reduced form. Not checked: between units that are not
    /// compatible the number has no meaning, so ask `Unit::compatibleWith` first.
    UnitValue convertTo(const Unit& unit_) const;
    UnitValue convertTo(const std::shared_ptr<Unit>& unit_) const;

    /// With the prefix that makes the number readable: at least 0.1 and at most `significantDigits`
    /// digits before the point, as far as prefixes reach.
    UnitValue toNormalized(int significantDigits) const;

    /// "13.1 mL/hr": normalised, with so many significant digits, as Native::formatSignificant
    /// counts them.
    GString toNormalizedString(int significantDigits) const;

    /// "13.12 mL/hr": with so many digits after the point; negative for up to 6 significant digits.
    GString ToString(int displayDecimals) const;
};

} // namespace Pelmora
