#include "translation.h"

#include "pelmora/api/Init.h"

namespace Infusions
{

void speak(const std::string& language)
{
    Pelmora::Init::init(Pelmora::GString(language));
    Pelmora::Native::gettext_locale.set_translator(Pelmora::Native::translate_from_catalogue);
    Pelmora::Native::gettext_locale.set_log_missing(true);
}

} // namespace Infusions
