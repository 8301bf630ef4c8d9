#pragma once

#include <utility>

namespace Pelmora::Native
{

/// Holds a process-wide object whose destructor never runs, so that the destructors of other static
/// objects may use it. Only for objects that own nothing but memory, which the system takes back.
template <class T>
union NeverDestroyed {
    T value;

    template <class... Arguments>
    constexpr explicit NeverDestroyed(Arguments&&... arguments)
        : value(std::forward<Arguments>(arguments)...)
    {
    }
    ~NeverDestroyed() {} // NOLINT(modernize-use-equals-default): that would be deleted
    NeverDestroyed(const NeverDestroyed&) = delete;
    NeverDestroyed& operator=(const NeverDestroyed&) = delete;
};

} // namespace Pelmora::Native
