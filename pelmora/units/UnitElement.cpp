#include "pelmora/units/UnitElement.h"

#include "pelmora/units/isoFactor.h"

#include <algorithm>

namespace Pelmora::Native
{
namespace
{

UnitPrefix movedPrefix(UnitPrefix prefix, int steps)
{
    constexpr auto lowest = static_cast<std::int64_t>(UnitPrefix::UNIT_PREFIX_MIN);
    constexpr auto highest = static_cast<std::int64_t>(UnitPrefix::UNIT_PREFIX_MAX);
    const std::int64_t moved = static_cast<std::int64_t>(prefix) + steps;
    return static_cast<UnitPrefix>(std::clamp(moved, lowest, highest));
}

} // namespace

ScaledElement UnitElement::toIso() const noexcept
{
    return {isoFactor(prefix, unitType, exponent),
            {kindRow(unitType).isoKind, UnitPrefix::NONE, exponent}};
}

bool UnitElement::sameDimension(const UnitElement& other) const noexcept
{
    return haveSameDimension(unitType, other.unitType);
}

ScaledElement UnitElement::shiftPrefix(int steps) const noexcept
{
    if (kindRow(unitType).prefixRule == PrefixRule::fixed)
        return {1, *this};
    const UnitElement moved(unitType, movedPrefix(prefix, steps), exponent);
    // The division would give NaN instead of 1 if the power overflows.
    if (moved == *this)
        return {1, *this};
    return {toIso().factor / moved.toIso().factor, moved};
}

} // namespace Pelmora::Native
