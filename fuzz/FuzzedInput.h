#pragma once

#include "pelmora/base/wideChar.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

// What the fuzzers share: how a target takes values from its input, and how it says that one is
// wrong.

namespace Pelmora
{

/// Ends the process when the library and a model differ.
inline void check(bool holds, const char* file = __builtin_FILE(), int line = __builtin_LINE())
{
    if (holds)
        return;
    std::fprintf(stderr, "%s:%d: the library and the model differ\n", file, line);
    std::abort();
}

/// Takes one value after the other from the input. At its end, numbers are 0 and texts are empty.
/// Texts are lines, so that most seeds can be read and written with an editor.
class FuzzedInput
{
public:
    FuzzedInput(const std::uint8_t* data, std::size_t size)
        : left_(reinterpret_cast<const char*>(data), size)
    {
    }

    bool empty() const { return left_.empty(); }

    /// Little-endian.
    template <class Number>
    Number number()
    {
        Number value = 0;
        const std::size_t size = std::min(sizeof value, left_.size());
        std::memcpy(&value, left_.data(), size);
        left_.remove_prefix(size);
        return value;
    }

    /// A number from 0 to count - 1, of one byte.
    std::size_t below(std::size_t count) { return number<std::uint8_t>() % count; }

    bool flag() { return below(2) != 0; }

    /// Up to the next line feed, which is dropped.
    std::string line()
    {
        const std::string text(left_.substr(0, left_.find('\n')));
        left_.remove_prefix(std::min(text.size() + 1, left_.size()));
        return text;
    }

    std::string bytes(std::size_t count)
    {
        const std::string taken(left_.substr(0, count));
        left_.remove_prefix(taken.size());
        return taken;
    }

    std::string rest() { return std::string(std::exchange(left_, {})); }

private:
    std::string_view left_;
};

/// Each byte as a unit of its own, and 0xFF followed by the two bytes of any other.
inline Native::WideString wide(std::string_view bytes)
{
    Native::WideString text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::uint16_t unit = static_cast<std::uint8_t>(bytes[i]);
        if (unit == 0xFF && bytes.size() - i > 2) {
            std::memcpy(&unit, &bytes[i + 1], sizeof unit);
            i += 2;
        }
        text += static_cast<Native::WideChar>(unit);
    }
    return text;
}

} // namespace Pelmora
