// Any units and values: factors against exact ones, forms and arithmetic against plain rewrites of
// what the headers say.

#include "fuzz/FuzzedInput.h"
#include "pelmora/units/UnitValue.h"
#include "pelmora/units/unitTables.h"

#include <cmath>
#include <map>
#include <set>
#include <vector>

using namespace Pelmora;
using namespace Native;

namespace
{

bool same(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

/// For factors that are products in another order.
bool near(double a, double b)
{
    return same(a, b) || std::abs(a - b) <= 1e-13 * std::abs(a);
}

/// Mostly what units have, sometimes anything.
UnitElement element(FuzzedInput& input)
{
    const auto first = input.number<std::uint8_t>();
    if (first == 0xFF)
        return {UnitTypeEnum(input.number<std::int32_t>()),
                UnitPrefix(input.number<std::int32_t>()), input.number<std::int32_t>()};
    const auto second = input.number<std::int8_t>();
    return {UnitTypeEnum(first % 16), UnitPrefix(first / 16 % 8 - 3), second % 10};
}

Unit unit(FuzzedInput& input)
{
    Unit result;
    for (std::size_t left = input.below(12); left > 0; --left)
        result.elements.push_back(element(input));
    return result;
}

void compareFactor(const UnitElement& e)
{
    const std::size_t prefix = prefixIndex(e.prefix);
    if (prefix >= prefixRows.size() || e.exponent < -16 || e.exponent > 16)
        return;
    __float128 power = 1;
    const double base = prefixRows[prefix].factor * kindRow(e.unitType).factor;
    for (int i = 0; i < std::abs(e.exponent); ++i)
        power *= base;
    check(e.toIso().factor == static_cast<double>(e.exponent < 0 ? 1 / power : power));
}

using Exponents = std::map<UnitTypeEnum, std::uint32_t>;

Exponents isoForm(const Unit& unit)
{
    std::set<std::pair<UnitTypeEnum, std::int32_t>> distinct;
    for (const UnitElement& e : unit.elements)
        distinct.insert({kindRow(e.unitType).isoKind, e.exponent});
    Exponents sums;
    for (const auto& [kind, exponent] : distinct)
        sums[kind] += static_cast<std::uint32_t>(exponent);
    std::erase_if(sums, [](const auto& sum) { return sum.second == 0; });
    return sums;
}

void compareForms(const Unit& a, const Unit& b)
{
    const ScaledUnit iso = a.getAsIsoUnit();
    Exponents found;
    double factor = 1;
    for (const UnitElement& e : iso.unit.elements)
        found[e.unitType] = static_cast<std::uint32_t>(e.exponent);
    for (const UnitElement& e : a.elements)
        factor *= e.toIso().factor;
    check(found == isoForm(a) && iso.unit.elements.size() == found.size());
    check(same(iso.factor, factor));
    check(a.compatibleWith(b) == (isoForm(a) == isoForm(b)));
    check(a.compatibleWith(a) && (a.isEquivalent(a) || std::isnan(a.getReduced().factor)));
    check(a.mul(b).inverted() == a.inverted().mul(b.inverted()));
    check(a.inverted().inverted() == a);
}

void compareReduced(const Unit& unit)
{
    if (!unit.isValid())
        return;
    double factor = 1;
    double range = 0; // where an order may over- or underflow, others give other factors
    Unit reduced;
    std::vector<UnitElement> left(unit.elements.begin(), unit.elements.end());
    while (!left.empty()) {
        const UnitElement first = left.front();
        std::uint32_t total = 0;
        double product = 1;
        const auto isMerged = [&](const UnitElement& e) {
            if (!first.sameDimension(e))
                return false;
            total += static_cast<std::uint32_t>(e.exponent);
            product *= e.toIso().factor;
            range += std::abs(std::log2(e.toIso().factor));
            return true;
        };
        const std::size_t merged = std::erase_if(left, isMerged);
        const auto exponent = static_cast<std::int32_t>(total);
        if (merged == 1)
            reduced.elements.push_back(first);
        else if (exponent != 0)
            reduced.elements.push_back(
                {kindRow(first.unitType).isoKind, UnitPrefix::NONE, exponent});
        if (merged > 1)
            factor *= product;
    }
    check(unit.getReduced().unit == reduced);
    check(!(range < 1000) || near(unit.getReduced().factor, factor));
}

void compareValues(const UnitValue& a, const UnitValue& b)
{
    const bool bCounts = b.unit.isValid();
    const bool aCounts = a.unit.isValid() || !bCounts;
    const UnitValue product = a.mul(b);
    check(same(product.value, (aCounts ? a.value : 1) * (bCounts ? b.value : 1)));
    check(product.unit == (!bCounts ? a.unit : !aCounts ? b.unit : a.unit.mul(b.unit)));
    check(b.value != 0 || same(a.div(b).value, a.unit.isValid() ? a.value * 0.0 : 0.0));

    UnitValue converted = a;
    converted.convertTo(b.unit);
    check(same(converted.value, a.getConvertedValue(b.unit)) && converted.unit == b.unit);
    check(same(converted.value, a.value * a.unit.isoFactor() / b.unit.isoFactor()));
}

int magnitude(double x)
{
    if (x == 0)
        return 0;
    if (!(x > 0))
        return -12;
    if (std::isinf(x))
        return 11;
    char text[32]; // "1.2345678901234567e-05"
    std::snprintf(text, sizeof text, "%.16e", x);
    const int exponent = std::atoi(std::strchr(text, 'e') + 1);
    return exponent >= 0 ? std::min(exponent + 1, 11) : std::max(exponent, -12);
}

void compareNormalized(const UnitValue& value, int most)
{
    check(decimalMagnitude(value.value) == magnitude(value.value));
    UnitValue expected = value;
    for (UnitElement& e : expected.unit.elements) {
        if (e.exponent <= 0)
            continue;
        const auto move = [&](int steps) {
            const double factor = e.shiftPrefix(steps).factor;
            e = e.shiftPrefix(steps).element;
            expected.value *= factor;
            return factor != 1;
        };
        while (magnitude(expected.value) < -1 && move(-1)) {
        }
        while (magnitude(expected.value) > most && move(1)) {
        }
        break;
    }
    const UnitValue found = value.toNormalized(most);
    check(same(found.value, expected.value) && found.unit == expected.unit);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const UnitValue a(input.number<double>(), unit(input));
    const UnitValue b(input.number<double>(), unit(input));
    for (const UnitElement& e : a.unit.elements)
        compareFactor(e);
    compareForms(a.unit, b.unit);
    compareReduced(a.unit);
    compareValues(a, b);
    compareNormalized(a, input.number<std::int8_t>());
    return 0;
}
