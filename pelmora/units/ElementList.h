#pragma once

#include "pelmora/units/UnitElement.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace Pelmora::Native
{

/// The elements of a unit in the order in which they were added; duplicates are allowed. Up to
/// eight elements, more than units of everyday use have, are held inside the object without
/// allocating; a longer list is held on the heap whole. Any change invalidates iterators and
/// references.
class ElementList
{
public:
    using value_type = UnitElement;

    ElementList() noexcept = default;
    ElementList(std::initializer_list<UnitElement> elements)
        : ElementList(std::span(elements.begin(), elements.size()))
    {
    }
    explicit ElementList(std::span<const UnitElement> elements)
    {
        if (elements.size() > few_.size()) {
            many_ = std::make_unique<Heap>(elements.begin(), elements.end());
        } else {
            std::copy(elements.begin(), elements.end(), few_.begin());
            fewSize_ = elements.size();
        }
    }
    ElementList(const ElementList& other)
        : few_(other.few_),
          fewSize_(other.fewSize_),
          many_(other.many_ == nullptr ? nullptr : std::make_unique<Heap>(*other.many_))
    {
    }
    ElementList(ElementList&& other) noexcept = default;
    ElementList& operator=(const ElementList& other)
    {
        ElementList copy(other);
        return *this = std::move(copy);
    }
    ElementList& operator=(ElementList&& other) noexcept = default;
    ~ElementList() = default;

    std::size_t size() const noexcept { return many_ == nullptr ? fewSize_ : many_->size(); }
    bool empty() const noexcept { return size() == 0; }

    UnitElement* begin() noexcept { return many_ == nullptr ? few_.data() : many_->data(); }
    UnitElement* end() noexcept { return begin() + size(); }
    const UnitElement* begin() const noexcept
    {
        return many_ == nullptr ? few_.data() : many_->data();
    }
    const UnitElement* end() const noexcept { return begin() + size(); }

    /// Requires: index < size().
    UnitElement& operator[](std::size_t index) noexcept { return begin()[index]; }
    const UnitElement& operator[](std::size_t index) const noexcept { return begin()[index]; }

    void push_back(const UnitElement& element)
    {
        if (many_ == nullptr && fewSize_ < few_.size()) {
            few_[fewSize_++] = element;
            return;
        }
        const UnitElement kept = element; // may be an element of this list, which moves
        if (many_ == nullptr)
            many_ = std::make_unique<Heap>(begin(), end());
        many_->push_back(kept);
    }

    /// Removes every element from position `count` on. Requires: count <= size().
    void truncate(std::size_t count)
    {
        if (many_ == nullptr)
            fewSize_ = count;
        else
            many_->erase(many_->begin() + static_cast<std::ptrdiff_t>(count), many_->end());
    }

    friend bool operator==(const ElementList& a, const ElementList& b) noexcept
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    using Heap = std::vector<UnitElement>;
    static constexpr UnitElement unused{UnitTypeEnum::UNIT_G, UnitPrefix::NONE, 0};

    std::array<UnitElement, 8> few_ = {unused, unused, unused, unused,
                                       unused, unused, unused, unused};
    std::size_t fewSize_ = 0;
    std::unique_ptr<Heap> many_; ///< all elements, once they no longer fit into `few_`
};

} // namespace Pelmora::Native
