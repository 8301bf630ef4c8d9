#include "pelmora/c/elements.h"
#include "pelmora/units/unitText.h"

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

Native::UnitValue requiredValue(double number, const pelmora_element* unit, size_t count,
                                const char* parameter)
{
    Native::UnitValue value(number, Native::Unit());
    value.unit.elements = Native::ElementList(requiredElements(unit, count, parameter));
    return value;
}

template <class Work>
pelmora_status giveValue(double* number, pelmora_element* buffer, size_t capacity, size_t* count,
                         const Work& work)
{
    return giveScaled(number, "number", buffer, capacity, count, work);
}

} // namespace

pelmora_status pelmora_value_mul(double a, const pelmora_element* a_unit, size_t a_count, double b,
                                 const pelmora_element* b_unit, size_t b_count, double* number,
                                 pelmora_element* buffer, size_t capacity, size_t* count)
{
    return giveValue(number, buffer, capacity, count, [&] {
        return requiredValue(a, a_unit, a_count, "a_unit")
            .mul(requiredValue(b, b_unit, b_count, "b_unit"));
    });
}

pelmora_status pelmora_value_div(double a, const pelmora_element* a_unit, size_t a_count, double b,
                                 const pelmora_element* b_unit, size_t b_count, double* number,
                                 pelmora_element* buffer, size_t capacity, size_t* count)
{
    return giveValue(number, buffer, capacity, count, [&] {
        return requiredValue(a, a_unit, a_count, "a_unit")
            .div(requiredValue(b, b_unit, b_count, "b_unit"));
    });
}

pelmora_status pelmora_value_inverted(double a, const pelmora_element* unit, size_t unit_count,
                                      double* number, pelmora_element* buffer, size_t capacity,
                                      size_t* count)
{
    return giveValue(number, buffer, capacity, count,
                     [&] { return requiredValue(a, unit, unit_count, "unit").inverted(); });
}

pelmora_status pelmora_value_reduced(double a, const pelmora_element* unit, size_t unit_count,
                                     double* number, pelmora_element* buffer, size_t capacity,
                                     size_t* count)
{
    return giveValue(number, buffer, capacity, count,
                     [&] { return requiredValue(a, unit, unit_count, "unit").getReduced(); });
}

pelmora_status pelmora_value_mul_reduced(double a, const pelmora_element* a_unit, size_t a_count,
                                         double b, const pelmora_element* b_unit, size_t b_count,
                                         double* number, pelmora_element* buffer, size_t capacity,
                                         size_t* count)
{
    return giveValue(number, buffer, capacity, count, [&] {
        return requiredValue(a, a_unit, a_count, "a_unit")
            .mul(requiredValue(b, b_unit, b_count, "b_unit"))
            .getReduced();
    });
}

pelmora_status pelmora_value_div_reduced(double a, const pelmora_element* a_unit, size_t a_count,
                                         double b, const pelmora_element* b_unit, size_t b_count,
                                         double* number, pelmora_element* buffer, size_t capacity,
                                         size_t* count)
{
    return giveValue(number, buffer, capacity, count, [&] {
        return requiredValue(a, a_unit, a_count, "a_unit")
            .div(requiredValue(b, b_unit, b_count, "b_unit"))
            .getReduced();
    });
}

pelmora_status pelmora_value_convert_reduced(double a, const pelmora_element* from,
                                             size_t from_count, const pelmora_element* to,
                                             size_t to_count, double* number,
                                             pelmora_element* buffer, size_t capacity,
                                             size_t* count)
{
    return giveValue(number, buffer, capacity, count, [&] {
        Native::UnitValue value = requiredValue(a, from, from_count, "from");
        value.convertTo(requiredUnit(to, to_count, "to"));
        return value.getReduced();
    });
}

pelmora_status pelmora_value_convert(double a, const pelmora_element* from, size_t from_count,
                                     const pelmora_element* to, size_t to_count, double* number)
{
    return give(number, "number", [&] {
        return Native::convertedValue(a, requiredElements(from, from_count, "from"),
                                      requiredElements(to, to_count, "to"));
    });
}

pelmora_status pelmora_value_normalized(double a, const pelmora_element* unit, size_t unit_count,
                                        int32_t max_magnitude, double* number,
                                        pelmora_element* buffer, size_t capacity, size_t* count)
{
    return giveValue(number, buffer, capacity, count, [&] {
        return requiredValue(a, unit, unit_count, "unit").toNormalized(max_magnitude);
    });
}

pelmora_status pelmora_value_text(double a, const pelmora_element* unit, size_t unit_count,
                                  int32_t precision, pelmora_char16* buffer, size_t capacity,
                                  size_t* length)
{
    return giveBuilt(buffer, capacity, length, [&](auto& text) {
        Native::appendValue(text, a, requiredElements(unit, unit_count, "unit"), precision);
    });
}

pelmora_status pelmora_value_normalized_text(double a, const pelmora_element* unit,
                                             size_t unit_count, int32_t digits,
                                             pelmora_char16* buffer, size_t capacity,
                                             size_t* length)
{
    return giveBuilt(buffer, capacity, length, [&](auto& text) {
        Native::appendNormalized(
            text, a, Native::ElementList(requiredElements(unit, unit_count, "unit")), digits);
    });
}

pelmora_status pelmora_format_significant(double a, int32_t digits, char* buffer, size_t capacity,
                                          size_t* length)
{
    return giveBuilt(buffer, capacity, length,
                     [&](auto& text) { Native::appendSignificant(text, a, digits); });
}

pelmora_status pelmora_count_significant_digits(const char* text, int* has_point, int32_t* digits)
{
    return guarded(
        [&] {
            bool hasPoint = false;
            *digits = Native::countSignificantDigits(requiredText(text, "text"), hasPoint);
            if (has_point != nullptr)
                *has_point = hasPoint ? 1 : 0;
            return PELMORA_OK;
        },
        Result(has_point, optional), Result(digits, "digits"));
}

pelmora_status pelmora_decimal_magnitude(double a, int32_t* magnitude)
{
    return give(magnitude, "magnitude", [&] { return Native::decimalMagnitude(a); });
}
