#pragma once

#include <string>

namespace Pelmora::Native::Platform
{

/// The user's culture as language, hyphen and region, "de-DE"; empty for the invariant one. On
/// Linux from LC_ALL, LC_MESSAGES or LANG, whichever is set first; "C" and "POSIX" are invariant.
std::string cultureName();

} // namespace Pelmora::Native::Platform
