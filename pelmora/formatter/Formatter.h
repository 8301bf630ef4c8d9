#pragma once

#include "pelmora/base/wideChar.h"
#include "pelmora/export.h"

#include <string>
#include <string_view>

// Escapes texts for markup, XML or HTML, and reads them back. Narrow and wide texts are treated
// alike. Bytes from 0x80 up are not changed. The functions fail only if memory runs out, and may
// run in several threads at once.

namespace Pelmora::Native::Formatter
{

/// Replaces `&`, `>`, `"`, the apostrophe and `<` by the entities `&amp; &gt; &quot; &apos; &lt;`.
/// Text that is already escaped is escaped again: `unescape(escape(s))` is s for every s.
PELMORA_API std::string escape(std::string_view text);
PELMORA_API WideString escape(WideView text);

/// Replaces these five entities by their characters, once: `&amp;lt;` gives `&lt;`. Character
/// references such as `&#60;` and a lone `&` stay as they are.
PELMORA_API std::string unescape(std::string_view text);
PELMORA_API WideString unescape(WideView text);

/// Replaces every occurrence of `from` in `text` by `to`, from the start and without overlap; `to`
/// is not searched. An empty `from` occurs nowhere.
PELMORA_API std::string replaceAll(std::string_view text, std::string_view from,
                                   std::string_view to);
PELMORA_API WideString replaceAll(WideView text, WideView from, WideView to);

} // namespace Pelmora::Native::Formatter
