#pragma once

#include "pelmora/gettext/gstringUtil.h"

#include <ostream>

namespace Pelmora::Native
{

inline void PrintTo(const GString& text, std::ostream* out)
{
    *out << '"' << text.to_utf8() << '"';
}

} // namespace Pelmora::Native
