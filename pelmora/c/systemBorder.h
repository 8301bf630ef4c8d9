#pragma once

#include "pelmora/c/border.h"
#include "pelmora/registry/systemErrorText.h"

#include <string>

// What the groups for Windows alone share: the system's handles and its texts. Internal to the c
// folder.

namespace Pelmora::C
{

template <class Handle>
Handle requiredHandle(void* handle, const char* parameter)
{
    if (handle == nullptr)
        throw NullArgument{parameter};
    return static_cast<Handle>(handle);
}

/// The system's text for a failure as a message: in UTF-8, without the line end that it brings.
inline std::string systemMessage(const std::string& text)
{
    return GString(text.substr(0, text.find_last_not_of("\r\n") + 1)).to_utf8();
}

inline std::string systemMessage(std::uint32_t code)
{
    return systemMessage(Native::systemErrorText(code));
}

} // namespace Pelmora::C
