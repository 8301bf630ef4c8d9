#pragma once

#include "pelmora/platform/export.h"

#include <string>

// The date and time on the user's clock as the user's region writes them, in the ANSI code page;
// empty when the system fails. May run in several threads at once.

namespace Pelmora::Native
{

/// In the short format, "11/15/2026", or the long one, "Sunday, November 15, 2026".
PELMORA_API std::string currentDateText(bool longFormat);

/// "1:39 PM", or with seconds "1:39:25 PM".
PELMORA_API std::string currentTimeText(bool withSeconds);

} // namespace Pelmora::Native
