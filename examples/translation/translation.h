#pragma once

#include "pelmora/gettext/TextLocale.h"

#include <stdexcept>
#include <string>

// The language of the examples.

namespace Translation
{

/// A language that cannot be spoken; the message names it and says why.
class LanguageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The text in the language of the program's user.
inline Pelmora::GString tr(const char* text)
{
    return Pelmora::Native::gettext_locale.tr(text);
}

/// Makes a language code or a catalogue (.mo) the language of the user; texts that it does not
/// translate are listed in the error log. "en" is the language of the texts themselves and needs no
/// catalogue. Throws LanguageError for a name that ends in no language, and where there is no
/// catalogue that can be loaded.
void speak(const std::string& language);

/// Whether `tr` was asked for a text that the catalogue does not translate.
bool hasUntranslated() noexcept;

/// Marks a text that is translated where it is used.
constexpr const char* N_(const char* text)
{
    return text;
}

} // namespace Translation
