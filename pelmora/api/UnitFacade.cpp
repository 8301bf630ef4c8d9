#include "pelmora/api/UnitFacade.h"

#include "pelmora/units/unitText.h"

#include <string>

namespace Pelmora
{
namespace
{

const Unit::Elements& elementsOf(const Unit& unit)
{
    return *requireReference(unit.elements, "Unit::elements");
}

const UnitElement& elementAt(const Unit::Elements& elements, std::size_t index)
{
    if (elements[index] == nullptr)
        throw NullReferenceError("Unit::elements[" + std::to_string(index) + "]");
    return *elements[index];
}

} // namespace

UnitElement::UnitElement(UnitTypeEnum unitType_, UnitPrefix prefix_, std::int32_t exponent_)
    : unitType(unitType_), prefix(prefix_), exponent(exponent_)
{
}

UnitElement::UnitElement(const std::shared_ptr<UnitElement>& rhs)
    : UnitElement(*requireReference(rhs, "rhs"))
{
}

UnitElement::UnitElement(const Native::UnitElement& ue)
    : UnitElement(ue.unitType, ue.prefix, ue.exponent)
{
}

Native::UnitElement UnitElement::asNative() const
{
    return {unitType, prefix, exponent};
}

bool UnitElement::isEqual(const UnitElement& rhs) const
{
    return asNative() == rhs.asNative();
}

bool UnitElement::isEqual(const std::shared_ptr<UnitElement>& rhs) const
{
    return isEqual(*requireReference(rhs, "rhs"));
}

Unit::Unit() : Unit(std::make_shared<UnitElement>()) {}

Unit::Unit(const std::shared_ptr<UnitElement>& ue)
    : elements(std::make_shared<Elements>(1, requireReference(ue, "ue")))
{
}

Unit::Unit(const std::shared_ptr<Unit>& rhs) : Unit(*requireReference(rhs, "rhs")) {}

Unit::Unit(const Native::Unit& u) : elements(std::make_shared<Elements>())
{
    // One block for all of them, which lives as long as anybody refers to one.
    const auto block = std::make_shared<UnitElement[]>(u.elements.size());
    elements->reserve(u.elements.size());
    UnitElement* place = block.get();
    for (const Native::UnitElement& element : u.elements) {
        *place = UnitElement(element);
        elements->emplace_back(block, place++);
    }
}

Native::Unit Unit::asNative() const
{
    const Elements& all = elementsOf(*this);
    Native::Unit product;
    for (std::size_t i = 0; i < all.size(); ++i)
        product.elements.push_back(
            elementAt(all, i).asNative()); // what mul does, without its copies
    return product;
}

void Unit::addElement(const std::shared_ptr<UnitElement>& ue)
{
    requireReference(ue, "ue");
    const Elements& all = elementsOf(*this);
    auto longer = std::make_shared<Elements>();
    longer->reserve(all.size() + 1);
    longer->assign(all.begin(), all.end());
    longer->push_back(ue);
    elements = longer;
}

bool Unit::removeElement(UnitTypeEnum unitType_)
{
    const Elements& all = elementsOf(*this);
    auto rest = std::make_shared<Elements>();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (elementAt(all, i).unitType != unitType_)
            rest->push_back(all[i]);
    if (rest->size() == all.size())
        return false;
    elements = rest;
    return true;
}

bool Unit::unitIsRate() const
{
    return asNative().unitIsRate();
}

bool Unit::unitIsVolume() const
{
    return asNative().unitIsVolume();
}

bool Unit::unitIsMol() const
{
    return asNative().unitIsMol();
}

bool Unit::unitIsPrPt() const
{
    return asNative().unitIsPrPt();
}

bool Unit::unitIsWeight() const
{
    return asNative().unitIsWeight();
}

bool Unit::unitIsUnit() const
{
    return asNative().unitIsUnit();
}

bool Unit::compatibleWith(const Unit& u) const
{
    return asNative().compatibleWith(u.asNative());
}

bool Unit::compatibleWith(const std::shared_ptr<Unit>& u) const
{
    return compatibleWith(*requireReference(u, "u"));
}

GString Unit::ToString() const
{
    return asNative().toString();
}

UnitValue::UnitValue() : unit(std::make_shared<Unit>()) {}

UnitValue::UnitValue(double value_, const std::shared_ptr<Unit>& unit_)
    : value(value_), unit(requireReference(unit_, "unit_"))
{
}

UnitValue::UnitValue(const std::shared_ptr<UnitValue>& rhs)
    : UnitValue(*requireReference(rhs, "rhs"))
{
}

UnitValue::UnitValue(const Native::UnitValue& u)
    : value(u.value), unit(std::make_shared<Unit>(u.unit))
{
}

Native::UnitValue UnitValue::asNative() const
{
    return {value, requireReference(unit, "UnitValue::unit")->asNative()};
}

UnitValue UnitValue::mul(const UnitValue& rhs) const
{
    return UnitValue(asNative().mul(rhs.asNative()).getReduced());
}

UnitValue UnitValue::mul(const std::shared_ptr<UnitValue>& rhs) const
{
    return mul(*requireReference(rhs, "rhs"));
}

UnitValue UnitValue::div(const UnitValue& rhs) const
{
    return UnitValue(asNative().div(rhs.asNative()).getReduced());
}

UnitValue UnitValue::div(const std::shared_ptr<UnitValue>& rhs) const
{
    return div(*requireReference(rhs, "rhs"));
}

UnitValue UnitValue::convertTo(const Unit& unit_) const
{
    const Native::Unit target = unit_.asNative();
    return UnitValue(Native::UnitValue(asNative().getConvertedValue(target), target).getReduced());
}

UnitValue UnitValue::convertTo(const std::shared_ptr<Unit>& unit_) const
{
    return convertTo(*requireReference(unit_, "unit_"));
}

UnitValue UnitValue::toNormalized(int significantDigits) const
{
    return UnitValue(asNative().toNormalized(significantDigits));
}

GString UnitValue::toNormalizedString(int significantDigits) const
{
    return asNative().toNormalizedString(significantDigits);
}

GString UnitValue::ToString(int displayDecimals) const
{
    return asNative().toString(displayDecimals);
}

} // namespace Pelmora
