#pragma once

#include <utility>

namespace Pelmora::Native
{

/// Holds a process-wide object whose destructor never runs, so that other static objects may use
/// it from theirs. Only for objects whose memory the end of the process may release.
template <class T>
union NeverDestroyed {
    T value;

    template <class... Arguments>
    constexpr explicit NeverDestroyed(Arguments&&... arguments)
        : value(std::forward<Arguments>(arguments)...)
    {
    }
    ~NeverDestroyed() {} // NOLINT(modernize-use-equals-default): would be deleted
    NeverDestroyed(const NeverDestroyed&) = delete;
    NeverDestroyed& operator=(const NeverDestroyed&) = delete;
};

} // namespace Pelmora::Native
