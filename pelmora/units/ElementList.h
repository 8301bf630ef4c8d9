#pragma once

#include "pelmora/units/UnitElement.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace Pelmora::Native
{

/// The elements of a unit in the order in which they were added; duplicates are allowed. Up to
/// eight elements are held inside the object, so that the units of everyday use never allocate;
/// longer lists move to the heap whole. Any change ends the life of iterators and references.
class ElementList
{
public:
    using value_type = UnitElement;

    ElementList() noexcept = default;
    ElementList(std::initializer_list<UnitElement> elements)
    {
        for (const UnitElement& element : elements)
            push_back(element);
    }

    std::size_t size() const noexcept { return many_.empty() ? fewSize_ : many_.size(); }
    bool empty() const noexcept { return size() == 0; }

    UnitElement* begin() noexcept { return many_.empty() ? few_.data() : many_.data(); }
    UnitElement* end() noexcept { return begin() + size(); }
    const UnitElement* begin() const noexcept { return many_.empty() ? few_.data() : many_.data(); }
    const UnitElement* end() const noexcept { return begin() + size(); }

    /// Requires: index < size().
    UnitElement& operator[](std::size_t index) noexcept { return begin()[index]; }
    const UnitElement& operator[](std::size_t index) const noexcept { return begin()[index]; }

    void push_back(const UnitElement& element)
    {
        if (many_.empty() && fewSize_ < few_.size()) {
            few_[fewSize_++] = element;
            return;
        }
        const UnitElement kept = element; // may stand in the list that moves
        if (many_.empty())
            many_.assign(few_.begin(), few_.end());
        many_.push_back(kept);
    }

    /// Drops every element from position `count` on. Requires: count <= size().
    void truncate(std::size_t count)
    {
        if (!many_.empty() && count > few_.size()) {
            many_.erase(many_.begin() + static_cast<std::ptrdiff_t>(count), many_.end());
            return;
        }
        if (!many_.empty())
            std::copy_n(many_.begin(), count, few_.begin());
        many_.clear();
        fewSize_ = count;
    }

    friend bool operator==(const ElementList& a, const ElementList& b) noexcept
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    static constexpr UnitElement unused{UnitTypeEnum::UNIT_NUMBER_OF, UnitPrefix::NONE, 0};

    std::array<UnitElement, 8> few_ = {unused, unused, unused, unused,
                                       unused, unused, unused, unused};
    std::size_t fewSize_ = 0;
    std::vector<UnitElement> many_; ///< all elements, once there are more than `few_` can hold
};

} // namespace Pelmora::Native
