#pragma once

#include "pelmora/export.h"

#include <string>

// The date and time on the user's clock as the user's region writes them; empty when the system
// fails. In the code page of that region (LOCALE_IDEFAULTANSICODEPAGE), which is not always the
// ANSI code page. May run in several threads at once.

namespace Pelmora::Native
{

/// In the short format, "11/15/2026", or the long one, "Sunday, November 15, 2026".
PELMORA_API std::string currentDateText(bool longFormat);

/// "1:39 PM", or with seconds "1:39:25 PM".
PELMORA_API std::string currentTimeText(bool withSeconds);

} // namespace Pelmora::Native
