#include "pelmora/platform/systemError.h"

#include <cstring>
#include <string>

#include <langinfo.h>
#include <locale.h>

namespace Pelmora::Native::Platform
{
namespace
{

class SystemErrors : public std::error_category
{
public:
    const char* name() const noexcept override { return std::system_category().name(); }
    std::string message(int number) const override
    {
        // The messages of other locales are in other encodings; English serves there.
        static const locale_t english = newlocale(LC_ALL_MASK, "C", locale_t());
        // Safe unless another thread changes the locale, as every use of it is.
        const bool isUtf8 = std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0; // NOLINT
        return isUtf8 ? std::system_category().message(number) : strerror_l(number, english);
    }
    std::error_condition default_error_condition(int number) const noexcept override
    {
        return std::system_category().default_error_condition(number);
    }
};

} // namespace

const std::error_category& systemErrors() noexcept
{
    static const SystemErrors errors;
    return errors;
}

} // namespace Pelmora::Native::Platform
