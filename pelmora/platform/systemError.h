#pragma once

#include <system_error>

// What the host must provide to say in UTF-8 why one of its functions failed.

namespace Pelmora::Native::Platform
{

/// The system's error numbers, with messages that are UTF-8 in every locale and code page;
/// otherwise as std::system_category(), whose codes are other ones to a comparison. Safe to call
/// from several threads.
const std::error_category& systemErrors() noexcept;

} // namespace Pelmora::Native::Platform
