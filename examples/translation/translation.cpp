#include "translation.h"

#include "pelmora/api/Init.h"

namespace Translation
{
namespace
{

using Pelmora::GString;
using Pelmora::Native::gettext_locale;

bool untranslated = false;

GString translate(std::string text)
{
    GString translation = Pelmora::Native::translate_from_catalogue(std::move(text));
    untranslated = untranslated || translation.empty();
    return translation;
}

} // namespace

void speak(const std::string& language)
{
    try {
        Pelmora::Init::init(GString(language));
    } catch (const std::out_of_range&) {
        throw LanguageError(language + ": the file's name does not end in a language");
    }
    if (language == "en")
        return;
    if (gettext_locale.catalogue() == nullptr)
        throw LanguageError(language + ": there is no such catalogue of texts");
    gettext_locale.set_translator(translate);
    gettext_locale.set_log_missing(true);
}

bool hasUntranslated() noexcept
{
    return untranslated;
}

} // namespace Translation
