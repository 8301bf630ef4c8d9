#include "pelmora/api/Init.h"

#include "pelmora/gettext/TextLocale.h"
#include "pelmora/platform/culture.h"

namespace Pelmora
{

void Init::init(const GString& lang)
{
    Native::gettext_locale.init(lang.to_narrow());
}

void Init::init()
{
    init(GString(Native::Platform::cultureName()));
}

} // namespace Pelmora
