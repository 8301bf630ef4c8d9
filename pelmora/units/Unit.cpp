#include "pelmora/units/Unit.h"

#include "pelmora/units/isoFactor.h"

#include <algorithm>
#include <array>
#include <optional>

namespace Pelmora::Native
{
namespace
{

std::int32_t wrappedSum(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

std::int32_t wrappedNegation(std::int32_t a)
{
    return static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(a));
}

/// The ISO forms of the elements, sorted and without duplicates.
ElementList isoSet(Elements elements)
{
    ElementList set;
    for (const UnitElement& element : elements)
        set.push_back({kindRow(element.unitType).isoKind, UnitPrefix::NONE, element.exponent});
    std::sort(set.begin(), set.end());
    set.truncate(static_cast<std::size_t>(std::unique(set.begin(), set.end()) - set.begin()));
    return set;
}

ElementList isoElements(Elements elements)
{
    const ElementList set = isoSet(elements);
    ElementList result;
    for (std::size_t i = 0; i < set.size();) {
        UnitElement sum = set[i];
        for (++i; i < set.size() && set[i].unitType == sum.unitType; ++i)
            sum.exponent = wrappedSum(sum.exponent, set[i].exponent);
        if (sum.exponent != 0)
            result.push_back(sum);
    }
    return result;
}

/// For each kind, a number of its ISO kind; ISO kinds are counted from 0.
constexpr std::array<std::uint8_t, kindRows.size()> isoNumbers = []() {
    std::array<std::uint8_t, kindRows.size()> numbers{};
    for (std::size_t kind = 0; kind < kindRows.size(); ++kind)
        for (std::size_t i = 0; i < static_cast<std::size_t>(kindRows[kind].isoKind); ++i)
            if (static_cast<std::size_t>(kindRows[i].isoKind) == i)
                ++numbers[kind];
    return numbers;
}();

std::uint8_t isoNumber(const UnitElement& element) noexcept
{
    return isoNumbers[kindIndex(element.unitType)];
}

bool haveEqualIsoForms(const UnitElement& x, const UnitElement& y) noexcept
{
    return x.exponent == y.exponent && (x.unitType == y.unitType || isoNumber(x) == isoNumber(y));
}

/// Whether the elements pair off, each with one of an equal ISO form, as those of mg/min and g/hr
/// do. Tries the same places first. Not for long units, which would take too many tries.
bool isoFormsPairOff(Elements a, Elements b) noexcept
{
    constexpr std::size_t mostElements = 8;
    const std::size_t size = a.size();
    if (size != b.size() || size > mostElements)
        return false;
    const UnitElement* theirs = b.data();
    unsigned int taken = 0; // a bit for each of theirs
    std::size_t place = 0;
    for (const UnitElement& element : a) {
        std::size_t k = place;
        while ((taken >> k & 1U) != 0 || !haveEqualIsoForms(element, theirs[k])) {
            k = k + 1 < size ? k + 1 : 0;
            if (k == place)
                return false;
        }
        taken |= 1U << k;
        ++place;
    }
    return true;
}

/// Packs the ISO form into one integer, a digit of base 16 for each ISO kind. Distinct exponents of
/// at most 3 sum to 6 at most, so digits never carry. Nothing for larger exponents.
std::optional<std::int64_t> isoSignature(Elements elements) noexcept
{
    constexpr std::int32_t largestExponent = 3;
    constexpr int digitBits = 4;
    static_assert(*std::max_element(isoNumbers.begin(), isoNumbers.end()) < 64 / digitBits);
    std::int64_t signature = 0;
    std::array<std::uint8_t, isoNumbers.size()> seen{}; // a bit for each exponent, by ISO kind
    for (const UnitElement& element : elements) {
        if (element.exponent < -largestExponent || element.exponent > largestExponent)
            return std::nullopt;
        const std::uint8_t number = isoNumber(element);
        const auto bit = static_cast<std::uint8_t>(1 << (element.exponent + largestExponent));
        if ((seen[number] & bit) == 0) // Equal ISO elements count once.
            signature += static_cast<std::int64_t>(element.exponent) << (digitBits * number);
        seen[number] |= bit;
    }
    return signature;
}

bool isoHas(const Unit& unit, UnitTypeEnum kind, std::int32_t exponent)
{
    return unit.getAsIsoUnit().unit.hasUnitType(kind, exponent);
}

} // namespace

bool areCompatible(Elements a, Elements b)
{
    if (isoFormsPairOff(a, b))
        return true;
    const auto signature = isoSignature(a);
    const auto otherSignature = isoSignature(b);
    if (signature && otherSignature)
        return *signature == *otherSignature;
    return isoElements(a) == isoElements(b);
}

Unit Unit::mul(const Unit& other) const
{
    Unit product = *this;
    product.elements.append(other.elements);
    return product;
}

Unit Unit::inverted() const
{
    Unit result = *this;
    for (UnitElement& element : result.elements)
        element.exponent = wrappedNegation(element.exponent);
    return result;
}

void reduce(ElementList& elements, double& factor)
{
    factor = 1;
    if (elements.empty())
        return;
    UnitElement* const last = elements.end() - 1;
    UnitElement* kept = elements.begin(); // overtakes nobody, since at most one is kept of each
    constexpr UnitElement consumed(UnitTypeEnum::UNIT_NUMBER_OF, UnitPrefix::NONE, 0);

    for (UnitElement* position = elements.begin(); position != last; ++position) {
        const UnitElement element = *position;
        if (element.exponent == 0)
            continue;
        bool merged = false;
        std::int32_t total = element.exponent;
        for (UnitElement* later = position + 1; later <= last; ++later) {
            if (!haveSameDimension(element.unitType, later->unitType))
                continue;
            merged = true;
            factor *= isoFactor(later->prefix, later->unitType, later->exponent);
            total = wrappedSum(total, later->exponent);
            *later = consumed;
        }
        if (!merged) {
            *kept++ = element;
            continue;
        }
        factor *= isoFactor(element.prefix, element.unitType, element.exponent);
        if (total != 0)
            *kept++ = {kindRow(element.unitType).isoKind, UnitPrefix::NONE, total};
    }
    if (last->exponent != 0)
        *kept++ = *last;
    elements.truncate(static_cast<std::size_t>(kept - elements.begin()));
}

ScaledUnit Unit::getReduced() const
{
    ScaledUnit result(1, *this);
    reduce(result.unit.elements, result.factor);
    return result;
}

ScaledUnit Unit::getAsIsoUnit() const
{
    ScaledUnit result = {isoFactor(), {}};
    result.unit.elements = isoElements(elements);
    return result;
}

double Unit::isoFactor() const noexcept
{
    return Native::isoFactor(elements);
}

bool Unit::compatibleWith(const Unit& other) const
{
    return areCompatible(elements, other.elements);
}

bool Unit::isEquivalent(const Unit& other) const
{
    ScaledUnit a = getReduced();
    ScaledUnit b = other.getReduced();
    if (a.factor != b.factor)
        return false;
    std::sort(a.unit.elements.begin(), a.unit.elements.end());
    std::sort(b.unit.elements.begin(), b.unit.elements.end());
    return a.unit == b.unit;
}

bool Unit::isValid() const noexcept
{
    return std::none_of(elements.begin(), elements.end(), [](const UnitElement& element) {
        return element.unitType == UnitTypeEnum::UNIT_NUMBER_OF || element.exponent == 0;
    });
}

bool Unit::hasUnitType(UnitTypeEnum kind, std::int32_t exponent) const noexcept
{
    return std::any_of(elements.begin(), elements.end(), [=](const UnitElement& element) {
        return element.unitType == kind && element.exponent == exponent;
    });
}

void Unit::removeUnitType(UnitTypeEnum kind)
{
    const auto kept =
        std::remove_if(elements.begin(), elements.end(),
                       [=](const UnitElement& element) { return element.unitType == kind; });
    elements.truncate(static_cast<std::size_t>(kept - elements.begin()));
}

unsigned int Unit::getRateDivisor() const noexcept
{
    struct TimeUnit {
        UnitTypeEnum kind;
        unsigned int seconds;
    };
    constexpr std::array<TimeUnit, 3> timeUnits = {
        {{UnitTypeEnum::UNIT_S, 1}, {UnitTypeEnum::UNIT_MIN, 60}, {UnitTypeEnum::UNIT_HR, 3600}}};
    for (const TimeUnit& time : timeUnits)
        if (hasUnitType(time.kind, -1))
            return time.seconds;
    return 0;
}

bool Unit::unitIsRate() const
{
    return isoHas(*this, UnitTypeEnum::UNIT_S, -1);
}

bool Unit::unitIsVolume() const
{
    return isoHas(*this, UnitTypeEnum::UNIT_L, 1);
}

bool Unit::unitIsMol() const
{
    return isoHas(*this, UnitTypeEnum::UNIT_MOL, 1);
}

bool Unit::unitIsPrPt() const
{
    return isoHas(*this, UnitTypeEnum::UNIT_G_PT, -1);
}

bool Unit::unitIsWeight() const
{
    return isoHas(*this, UnitTypeEnum::UNIT_G, 1);
}

bool Unit::unitIsUnit() const
{
    return isoHas(*this, UnitTypeEnum::UNIT_U, 1);
}

ScaledUnit Unit::shiftPrefix(int steps) const
{
    ScaledUnit result = {1, *this};
    for (UnitElement& element : result.unit.elements) {
        if (element.exponent > 0) {
            const ScaledElement shifted = element.shiftPrefix(steps);
            result.factor = shifted.factor;
            element = shifted.element;
            break;
        }
    }
    return result;
}

} // namespace Pelmora::Native
