#pragma once

#include "pelmora/c/border.h"
#include "pelmora/units/textBuilder.h"

#include <cstddef>
#include <type_traits>

// The elements of units in the caller's memory. Internal to the c folder.

namespace Pelmora::C
{

// They are the library's own, so that nothing is copied to look at them.
static_assert(sizeof(pelmora_element) == 12 && sizeof(Native::UnitElement) == 12);
static_assert(alignof(pelmora_element) == alignof(Native::UnitElement));
static_assert(std::is_standard_layout_v<Native::UnitElement> &&
              std::is_trivially_copyable_v<Native::UnitElement>);
static_assert(offsetof(pelmora_element, prefix) == 0 && offsetof(Native::UnitElement, prefix) == 0);
static_assert(offsetof(pelmora_element, kind) == 4 && offsetof(Native::UnitElement, unitType) == 4);
static_assert(offsetof(pelmora_element, exponent) == 8 &&
              offsetof(Native::UnitElement, exponent) == 8);

/// Nothing here may read or write a caller's element by its C type: the compiler would take the two
/// for different objects.
inline const Native::UnitElement* native(const pelmora_element* elements) noexcept
{
    return reinterpret_cast<const Native::UnitElement*>(elements);
}

inline Native::UnitElement* native(pelmora_element* elements) noexcept
{
    return reinterpret_cast<Native::UnitElement*>(elements);
}

inline const Native::UnitElement& requiredElement(const pelmora_element* element,
                                                  const char* parameter)
{
    return required(native(element), parameter);
}

inline Native::Elements requiredElements(const pelmora_element* first, std::size_t count,
                                         const char* parameter)
{
    return required(native(first), count, parameter);
}

inline Native::Unit requiredUnit(const pelmora_element* first, std::size_t count,
                                 const char* parameter)
{
    Native::Unit unit;
    unit.elements = Native::ElementList(requiredElements(first, count, parameter));
    return unit;
}

/// A unit as a result.
class UnitResult : public BufferResult<Native::UnitElement, false>
{
public:
    UnitResult(pelmora_element* buffer, std::size_t capacity, std::size_t* count)
        : BufferResult(native(buffer), capacity, count)
    {
    }

    pelmora_status put(const Native::Unit& unit)
    {
        return BufferResult::put({unit.elements.begin(), unit.elements.end()});
    }
};

/// Where a number and a unit go, the value or the factor that `work` gives with its unit.
template <class Work>
pelmora_status giveScaled(double* place, const char* parameter, pelmora_element* buffer,
                          std::size_t capacity, std::size_t* count, const Work& work)
{
    UnitResult result(buffer, capacity, count);
    return guarded(
        [&] {
            const auto [number, unit] = work();
            *place = number;
            return result.put(unit);
        },
        Result(place, parameter), result);
}

/// The text that `work` appends to a builder as the one result.
template <class Char, class Work>
// NOLINTNEXTLINE(readability-non-const-parameter): the result writes it
pelmora_status giveBuilt(Char* buffer, std::size_t capacity, std::size_t* length, const Work& work)
{
    TextResult<Char> result(buffer, capacity, length);
    return guarded(
        [&] {
            Native::TextBuilder<Char> text;
            work(text);
            return result.put(text.view());
        },
        result);
}

} // namespace Pelmora::C
