#include "pelmora/c/elements.h"
#include "pelmora/units/unitText.h"

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

template <class Enumeration>
constexpr bool equal(Enumeration native, int32_t number)
{
    return static_cast<int32_t>(native) == number;
}

using enum Native::UnitTypeEnum;
using enum Native::UnitPrefix;

static_assert(equal(UNIT_G, PELMORA_UNIT_G) && equal(UNIT_L, PELMORA_UNIT_L) &&
              equal(UNIT_S, PELMORA_UNIT_S) && equal(UNIT_MIN, PELMORA_UNIT_MIN) &&
              equal(UNIT_HR, PELMORA_UNIT_HR) && equal(UNIT_M, PELMORA_UNIT_M) &&
              equal(UNIT_MIUS, PELMORA_UNIT_MIUS) && equal(UNIT_INCH, PELMORA_UNIT_INCH) &&
              equal(UNIT_CM, PELMORA_UNIT_CM) && equal(UNIT_MOL, PELMORA_UNIT_MOL) &&
              equal(UNIT_IU, PELMORA_UNIT_IU) && equal(UNIT_U, PELMORA_UNIT_U) &&
              equal(UNIT_PROCENT, PELMORA_UNIT_PROCENT) && equal(UNIT_G_PT, PELMORA_UNIT_G_PT) &&
              equal(UNIT_NUMBER_OF, PELMORA_UNIT_NUMBER_OF));
static_assert(equal(NANO, PELMORA_NANO) && equal(MICRO, PELMORA_MICRO) &&
              equal(MILLI, PELMORA_MILLI) && equal(NONE, PELMORA_NO_PREFIX) &&
              equal(KILO, PELMORA_KILO) && equal(MEGA, PELMORA_MEGA) && equal(GIGA, PELMORA_GIGA));

using Question = bool (Native::Unit::*)() const;

pelmora_status ask(const pelmora_element* unit, size_t count, int* result, Question question)
{
    return give(result, "result", [&] { return (requiredUnit(unit, count, "unit").*question)(); });
}

template <class Work>
pelmora_status giveElement(double* factor, pelmora_element* place, const char* parameter,
                           const Work& work)
{
    return guarded(
        [&] {
            const Native::ScaledElement scaled = work();
            *factor = scaled.factor;
            *native(place) = scaled.element;
            return PELMORA_OK;
        },
        Result(factor, "factor"), Result(native(place), parameter));
}

template <class Work>
pelmora_status giveUnit(pelmora_element* buffer, size_t capacity, size_t* count, const Work& work)
{
    UnitResult result(buffer, capacity, count);
    return guarded([&] { return result.put(work()); }, result);
}

} // namespace

pelmora_status pelmora_element_to_iso(const pelmora_element* element, double* factor,
                                      pelmora_element* iso)
{
    return giveElement(factor, iso, "iso",
                       [&] { return requiredElement(element, "element").toIso(); });
}

pelmora_status pelmora_element_same_dimension(const pelmora_element* a, const pelmora_element* b,
                                              int* result)
{
    return give(result, "result",
                [&] { return requiredElement(a, "a").sameDimension(requiredElement(b, "b")); });
}

pelmora_status pelmora_element_shift_prefix(const pelmora_element* element, int32_t steps,
                                            double* factor, pelmora_element* shifted)
{
    return giveElement(factor, shifted, "shifted",
                       [&] { return requiredElement(element, "element").shiftPrefix(steps); });
}

pelmora_status pelmora_element_compare(const pelmora_element* a, const pelmora_element* b,
                                       int* order)
{
    return give(order, "order", [&] {
        const auto compared = requiredElement(a, "a") <=> requiredElement(b, "b");
        return std::is_lt(compared) ? -1 : std::is_gt(compared) ? 1 : 0;
    });
}

pelmora_status pelmora_element_text(const pelmora_element* element, int absolute_exponent,
                                    pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveBuilt(buffer, capacity, length, [&](auto& text) {
        Native::appendElement(text, requiredElement(element, "element"), absolute_exponent != 0);
    });
}

pelmora_status pelmora_unit_mul(const pelmora_element* a, size_t a_count, const pelmora_element* b,
                                size_t b_count, pelmora_element* buffer, size_t capacity,
                                size_t* count)
{
    return giveUnit(buffer, capacity, count, [&] {
        return requiredUnit(a, a_count, "a").mul(requiredUnit(b, b_count, "b"));
    });
}

pelmora_status pelmora_unit_inverted(const pelmora_element* unit, size_t unit_count,
                                     pelmora_element* buffer, size_t capacity, size_t* count)
{
    return giveUnit(buffer, capacity, count,
                    [&] { return requiredUnit(unit, unit_count, "unit").inverted(); });
}

pelmora_status pelmora_unit_reduced(const pelmora_element* unit, size_t unit_count, double* factor,
                                    pelmora_element* buffer, size_t capacity, size_t* count)
{
    return giveScaled(factor, "factor", buffer, capacity, count,
                      [&] { return requiredUnit(unit, unit_count, "unit").getReduced(); });
}

pelmora_status pelmora_unit_as_iso(const pelmora_element* unit, size_t unit_count, double* factor,
                                   pelmora_element* buffer, size_t capacity, size_t* count)
{
    return giveScaled(factor, "factor", buffer, capacity, count,
                      [&] { return requiredUnit(unit, unit_count, "unit").getAsIsoUnit(); });
}

pelmora_status pelmora_unit_compatible(const pelmora_element* a, size_t a_count,
                                       const pelmora_element* b, size_t b_count, int* result)
{
    return give(result, "result", [&] {
        return Native::areCompatible(requiredElements(a, a_count, "a"),
                                     requiredElements(b, b_count, "b"));
    });
}

pelmora_status pelmora_unit_equivalent(const pelmora_element* a, size_t a_count,
                                       const pelmora_element* b, size_t b_count, int* result)
{
    return give(result, "result", [&] {
        return requiredUnit(a, a_count, "a").isEquivalent(requiredUnit(b, b_count, "b"));
    });
}

pelmora_status pelmora_unit_valid(const pelmora_element* unit, size_t unit_count, int* result)
{
    return ask(unit, unit_count, result, &Native::Unit::isValid);
}

pelmora_status pelmora_unit_has_kind(const pelmora_element* unit, size_t unit_count, int32_t kind,
                                     int32_t exponent, int* result)
{
    return give(result, "result", [&] {
        return requiredUnit(unit, unit_count, "unit")
            .hasUnitType(static_cast<Native::UnitTypeEnum>(kind), exponent);
    });
}

pelmora_status pelmora_unit_remove_kind(const pelmora_element* unit, size_t unit_count,
                                        int32_t kind, pelmora_element* buffer, size_t capacity,
                                        size_t* count)
{
    return giveUnit(buffer, capacity, count, [&] {
        Native::Unit rest = requiredUnit(unit, unit_count, "unit");
        rest.removeUnitType(static_cast<Native::UnitTypeEnum>(kind));
        return rest;
    });
}

pelmora_status pelmora_unit_rate_divisor(const pelmora_element* unit, size_t unit_count,
                                         uint32_t* seconds)
{
    return give(seconds, "seconds",
                [&] { return requiredUnit(unit, unit_count, "unit").getRateDivisor(); });
}

pelmora_status pelmora_unit_is_rate(const pelmora_element* unit, size_t unit_count, int* result)
{
    return ask(unit, unit_count, result, &Native::Unit::unitIsRate);
}

pelmora_status pelmora_unit_is_volume(const pelmora_element* unit, size_t unit_count, int* result)
{
    return ask(unit, unit_count, result, &Native::Unit::unitIsVolume);
}

pelmora_status pelmora_unit_is_mol(const pelmora_element* unit, size_t unit_count, int* result)
{
    return ask(unit, unit_count, result, &Native::Unit::unitIsMol);
}

pelmora_status pelmora_unit_is_per_patient(const pelmora_element* unit, size_t unit_count,
                                           int* result)
{
    return ask(unit, unit_count, result, &Native::Unit::unitIsPrPt);
}

pelmora_status pelmora_unit_is_weight(const pelmora_element* unit, size_t unit_count, int* result)
{
    return ask(unit, unit_count, result, &Native::Unit::unitIsWeight);
}

pelmora_status pelmora_unit_is_unit(const pelmora_element* unit, size_t unit_count, int* result)
{
    return ask(unit, unit_count, result, &Native::Unit::unitIsUnit);
}

pelmora_status pelmora_unit_shift_prefix(const pelmora_element* unit, size_t unit_count,
                                         int32_t steps, double* factor, pelmora_element* buffer,
                                         size_t capacity, size_t* count)
{
    return giveScaled(factor, "factor", buffer, capacity, count,
                      [&] { return requiredUnit(unit, unit_count, "unit").shiftPrefix(steps); });
}

pelmora_status pelmora_unit_text(const pelmora_element* unit, size_t unit_count,
                                 pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveBuilt(buffer, capacity, length, [&](auto& text) {
        Native::appendUnit(text, requiredElements(unit, unit_count, "unit"));
    });
}

pelmora_status pelmora_unit_debug_text(const pelmora_element* unit, size_t unit_count, char* buffer,
                                       size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return requiredUnit(unit, unit_count, "unit").toDebugString(); });
}
