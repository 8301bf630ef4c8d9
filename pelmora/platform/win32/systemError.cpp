#include "pelmora/platform/systemError.h"

#include "pelmora/base/detail/utf8.h"

#include <windows.h>

namespace Pelmora::Native::Platform
{
namespace
{

std::string ansiToUtf8(const std::string& ansi)
{
    std::wstring wide(ansi.size(), L'\0'); // no character needs more units than bytes
    const int units = MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()),
                                          wide.data(), static_cast<int>(wide.size()));
    wide.resize(static_cast<std::size_t>(units));
    return encodedUtf8(wide, Utf8Form::characters);
}

class SystemErrors : public std::error_category
{
public:
    const char* name() const noexcept override { return std::system_category().name(); }
    std::string message(int number) const override
    {
        return ansiToUtf8(std::system_category().message(number));
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
