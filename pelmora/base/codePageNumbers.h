#pragma once

namespace Pelmora::Native
{

/// The Windows code pages that the library names itself; every operation takes any number.
inline constexpr unsigned int ansiCodePage = 0; ///< the system's ANSI code page; 1252 on Linux
inline constexpr unsigned int utf8CodePage = 65001;

} // namespace Pelmora::Native
