#pragma once

#include "pelmora/gettext/TextLocale.h"

namespace Infusions
{

/// The text in the language of the program's user.
inline Pelmora::GString tr(const char* text)
{
    return Pelmora::Native::gettext_locale.tr(text);
}

/// Marks a text that is translated where it is used.
constexpr const char* N_(const char* text)
{
    return text;
}

} // namespace Infusions
