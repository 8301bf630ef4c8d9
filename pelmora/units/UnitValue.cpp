#include "pelmora/units/UnitValue.h"

#include "pelmora/units/isoFactor.h"

#include <algorithm>
#include <array>

namespace Pelmora::Native
{

UnitValue UnitValue::mul(const UnitValue& other) const
{
    const bool isNeutral = !unit.isValid();
    const bool otherIsNeutral = !other.unit.isValid();
    UnitValue product = isNeutral && !otherIsNeutral ? other : *this;
    if (!isNeutral && !otherIsNeutral) {
        product.value *= other.value;
        product.unit.elements.append(other.unit.elements);
    }
    return product;
}

UnitValue UnitValue::inverted() const
{
    if (value == 0.0)
        return {0.0, Unit()};
    if (!unit.isValid())
        return *this;
    return {1 / value, unit.inverted()};
}

UnitValue UnitValue::div(const UnitValue& other) const
{
    return mul(other.inverted());
}

UnitValue UnitValue::getReduced() const
{
    UnitValue result = *this;
    double factor = 1;
    reduce(result.unit.elements, factor);
    result.value *= factor;
    return result;
}

double UnitValue::getConvertedValue(const Unit& target) const noexcept
{
    return convertedValue(value, unit.elements, target.elements);
}

void UnitValue::convertTo(const Unit& target)
{
    *this = UnitValue(getConvertedValue(target), target);
}

UnitValue UnitValue::toNormalized(int maxMagnitude) const
{
    UnitValue result = *this;
    normalize(result.value, result.unit.elements, maxMagnitude);
    return result;
}

void normalize(double& value, std::span<UnitElement> unit, int maxMagnitude) noexcept
{
    constexpr int smallestMagnitude = -1;
    const auto element =
        std::find_if(unit.begin(), unit.end(), [](const UnitElement& x) { return x.exponent > 0; });
    if (element == unit.end())
        return;
    int magnitude = decimalMagnitude(value);
    const auto shift = [&](int steps) {
        const ScaledElement shifted = element->shiftPrefix(steps);
        *element = shifted.element;
        if (shifted.factor == 1.0)
            return false;
        value *= shifted.factor;
        magnitude = decimalMagnitude(value);
        return true;
    };
    while (magnitude < smallestMagnitude && shift(-1)) {
    }
    while (magnitude > maxMagnitude && shift(+1)) {
    }
}

int decimalMagnitude(double x) noexcept
{
    struct Threshold {
        double least;
        int magnitude;
    };
    static constexpr std::array<Threshold, 22> thresholds = {{
        {1e10, 11}, {1e9, 10},  {1e8, 9},     {1e7, 8},     {1e6, 7},   {1e5, 6},
        {1e4, 5},   {1000, 4},  {100, 3},     {10, 2},      {1, 1},     {0.1, -1},
        {0.01, -2}, {1e-3, -3}, {1e-4, -4},   {1e-5, -5},   {1e-6, -6}, {1e-7, -7},
        {1e-8, -8}, {1e-9, -9}, {1e-10, -10}, {1e-11, -11},
    }};
    if (x == 0)
        return 0;
    for (const Threshold& row : thresholds)
        if (x >= row.least)
            return row.magnitude;
    return -12;
}

} // namespace Pelmora::Native
