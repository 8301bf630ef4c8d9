#pragma once

#include <source_location>

namespace Pelmora::Native
{

#if defined(__cpp_lib_source_location)

/// Where a call stands in its source.
using SourceLocation = std::source_location;

#else

/// The part of std::source_location that the library uses. Before version 16, clang lacks what
/// GCC's library needs to provide the class itself.
class SourceLocation
{
public:
    static constexpr SourceLocation current(const char* function = __builtin_FUNCTION()) noexcept
    {
        return SourceLocation(function);
    }
    constexpr const char* function_name() const noexcept { return function_; }

private:
    explicit constexpr SourceLocation(const char* function) noexcept : function_(function) {}

    const char* function_;
};

#endif

} // namespace Pelmora::Native
