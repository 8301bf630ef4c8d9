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

    /// The empty list.
    ElementList() noexcept {} // NOLINT(modernize-use-equals-default): `few_` is not initialised
    /// Copies of these elements, in their order.
    ElementList(std::initializer_list<UnitElement> elements)
        : ElementList(std::span(elements.begin(), elements.size()))
    {
    }
    explicit ElementList(std::span<const UnitElement> elements)
    {
        if (elements.size() > mostFew)
            many_ = std::make_unique<Heap>(elements.begin(), elements.end());
        else
            appendFew(elements.data(), elements.size());
    }
    ElementList(const ElementList& other) : ElementList(std::span(other.begin(), other.size())) {}
    ElementList(ElementList&& other) noexcept : many_(std::move(other.many_))
    {
        appendFew(other.few(), other.fewSize_);
    }
    ElementList& operator=(const ElementList& other)
    {
        ElementList copy(other);
        return *this = std::move(copy);
    }
    ElementList& operator=(ElementList&& other) noexcept
    {
        many_ = std::move(other.many_);
        const std::size_t count = other.fewSize_; // of this list, if it is moved to itself
        fewSize_ = 0;
        appendFew(other.few(), count);
        return *this;
    }
    ~ElementList() = default;

    std::size_t size() const noexcept { return many_ == nullptr ? fewSize_ : many_->size(); }
    bool empty() const noexcept { return size() == 0; }

    UnitElement* begin() noexcept { return many_ == nullptr ? few() : many_->data(); }
    UnitElement* end() noexcept { return begin() + size(); }
    const UnitElement* begin() const noexcept { return many_ == nullptr ? few() : many_->data(); }
    const UnitElement* end() const noexcept { return begin() + size(); }

    /// The element at a position. Requires: index < size().
    UnitElement& operator[](std::size_t index) noexcept { return begin()[index]; }
    const UnitElement& operator[](std::size_t index) const noexcept { return begin()[index]; }

    /// Adds an element at the end; it may be one of this list.
    void push_back(const UnitElement& element)
    {
        if (many_ == nullptr && fewSize_ < mostFew) {
            few()[fewSize_++] = element;
            return;
        }
        const UnitElement kept = element; // may be an element of this list, which moves
        if (many_ == nullptr)
            many_ = std::make_unique<Heap>(begin(), end());
        many_->push_back(kept);
    }

    /// Adds elements at the end. Requires: they are not of this list.
    void append(std::span<const UnitElement> elements)
    {
        if (many_ == nullptr && elements.size() <= mostFew - fewSize_)
            return appendFew(elements.data(), elements.size());
        for (const UnitElement& element : elements)
            push_back(element);
    }

    /// Removes every element from position `count` on. Requires: count <= size().
    void truncate(std::size_t count)
    {
        if (many_ == nullptr)
            fewSize_ = count;
        else
            many_->erase(many_->begin() + static_cast<std::ptrdiff_t>(count), many_->end());
    }

    /// Whether both have equal elements in the same order.
    friend bool operator==(const ElementList& a, const ElementList& b) noexcept
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    using Heap = std::vector<UnitElement>;
    static constexpr std::size_t mostFew = 8;

    UnitElement* few() noexcept { return reinterpret_cast<UnitElement*>(few_.data()); }
    const UnitElement* few() const noexcept
    {
        return reinterpret_cast<const UnitElement*>(few_.data());
    }

    /// By the fields, lest the compiler makes a memcpy of it: its wide loads wait for the narrow
    /// stores of elements that were just written. Requires: they fit.
    void appendFew(const UnitElement* elements, std::size_t count) noexcept
    {
        UnitElement* const place = few() + fewSize_;
        for (std::size_t i = 0; i < count; ++i)
            place[i] = {elements[i].unitType, elements[i].prefix, elements[i].exponent};
        fewSize_ += count;
    }

    /// Room for elements, which are written as they come.
    alignas(UnitElement) std::array<std::byte, mostFew * sizeof(UnitElement)> few_;
    std::size_t fewSize_ = 0;
    std::unique_ptr<Heap> many_; ///< all elements, once they no longer fit into `few_`
};

} // namespace Pelmora::Native
