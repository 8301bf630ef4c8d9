#pragma once

#include "pelmora/gettext/TextLocale.h"

#include <string>

namespace Infusions
{

/// The text in the language of the program's user.
inline Pelmora::GString tr(const char* text)
{
    return Pelmora::Native::gettext_locale.tr(text);
}

/// Makes a language code or a catalogue (.mo) the language of the user; texts that it does not
/// translate are listed in the error log. Throws as Pelmora::Init::init does.
void speak(const std::string& language);

/// Marks a text that is translated where it is used.
constexpr const char* N_(const char* text)
{
    return text;
}

} // namespace Infusions
