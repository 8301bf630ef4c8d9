#pragma once

#include "pelmora/export.h"

#include <cstdint>
#include <string>

namespace Pelmora::Native
{

/// The system's text for one of its status codes, in the user's language and the ANSI code page,
/// including the line end that the system appends. If the system has no text, "Unknown error: " and
/// the code as a signed number. May run in several threads at once.
PELMORA_API std::string systemErrorText(std::uint32_t code);

} // namespace Pelmora::Native
