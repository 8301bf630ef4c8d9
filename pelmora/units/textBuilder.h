#pragma once

#include "pelmora/base/wideChar.h"
#include "pelmora/units/UnitValue.h"
#include "pelmora/units/isoFactor.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

// Builds the texts of numbers, units and values. Internal to the units and c folders.

namespace Pelmora::Native
{

/// Collects a text in a buffer that everyday texts of units fit into, and longer ones on the heap.
template <class Char>
class TextBuilder
{
public:
    using Text = std::basic_string<Char>;
    using View = std::basic_string_view<Char>;

    void append(Char unit)
    {
        if (used_ == units_.size())
            flush();
        units_[used_++] = unit;
    }

    void append(std::size_t count, Char unit)
    {
        for (; count > 0; --count)
            append(unit);
    }

    /// Requires: `text` is of the same code units, or ASCII.
    template <class Unit>
    void append(std::basic_string_view<Unit> text)
    {
        for (const Unit unit : text)
            append(static_cast<Char>(unit));
    }

    std::size_t size() const { return flushed_.size() + used_; }

    /// Requires: the last call appended something.
    void dropLast() { --used_; }

    /// Valid until the next change.
    View view()
    {
        if (flushed_.empty())
            return {units_.data(), used_};
        flush();
        return flushed_;
    }

    Text take()
    {
        if (flushed_.empty())
            return Text(units_.data(), used_);
        flush();
        return std::move(flushed_);
    }

private:
    void flush()
    {
        flushed_.append(units_.data(), used_);
        used_ = 0;
    }

    std::array<Char, 128> units_;
    std::size_t used_ = 0;
    Text flushed_;
};

using NarrowBuilder = TextBuilder<char>;
using WideBuilder = TextBuilder<WideChar>;

/// See formatSignificant in unitText.h.
void appendSignificant(NarrowBuilder& text, double value, int digits);

/// See toString of UnitElement, Unit and UnitValue, and UnitValue::toNormalizedString.
void appendElement(WideBuilder& text, const UnitElement& element, bool absoluteExponent);
void appendUnit(WideBuilder& text, Elements unit);
void appendValue(WideBuilder& text, double value, Elements unit, int precision);
void appendNormalized(WideBuilder& text, double value, ElementList unit, int digits);

} // namespace Pelmora::Native
