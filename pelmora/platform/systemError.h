#pragma once

#include <system_error>

// What the host must provide to say in UTF-8 why one of its functions failed.

namespace Pelmora::Native::Platform
{

/// The system's error numbers with messages in UTF-8, whatever the locale and the code page. Codes
/// of this category do not compare equal to those of std::system_category(). Safe to call from
/// several threads.
const std::error_category& systemErrors() noexcept;

} // namespace Pelmora::Native::Platform
