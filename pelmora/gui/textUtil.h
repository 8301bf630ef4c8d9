#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"

#include <string>
#include <string_view>
#include <vector>

// Texts for windows. Nothing here fails, and all functions may run in several threads at once.

namespace Pelmora::Native
{

/// The markup of a link, an element `a` with the target as its `href` around the text, or the text
/// alone for an empty target. Neither is escaped: see Formatter::escape.
PELMORA_API GString makeLink(const GString& text, const GString& target);

/// Splits at each `separator` byte, whatever the code page. An empty text gives one empty field;
/// `skipEmpty` drops empty ones.
PELMORA_API std::vector<std::string> split(std::string_view text, char separator, bool skipEmpty);

} // namespace Pelmora::Native
