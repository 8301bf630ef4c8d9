#pragma once

#include "pelmora/base/wideChar.h"
#include "pelmora/export.h"

#include <string>
#include <string_view>

// Escaping of texts that are put into markup, XML or HTML, and back. Narrow and wide texts are
// treated alike, character for character; bytes from 0x80 up pass untouched. Nothing here fails,
// and all functions may run in several threads at once.

namespace Pelmora::Native::Formatter
{

/// The characters & > " ' < replaced by the entities &amp; &gt; &quot; &apos; &lt;. Text that is
/// escaped already is escaped again: `unescape(escape(s))` is s for every s.
PELMORA_API std::string escape(std::string_view text);
PELMORA_API WideString escape(WideView text);

/// These five entities replaced by their characters, once: "&amp;lt;" gives "&lt;". Character
/// references such as "&#60;" and a lone "&" stay as they are.
PELMORA_API std::string unescape(std::string_view text);
PELMORA_API WideString unescape(WideView text);

/// Every occurrence of `from` in `text` replaced by `to`, searched from the start, without overlap
/// and not in what was put in. An empty `from` occurs nowhere.
PELMORA_API std::string replaceAll(std::string_view text, std::string_view from,
                                   std::string_view to);
PELMORA_API WideString replaceAll(WideView text, WideView from, WideView to);

} // namespace Pelmora::Native::Formatter
