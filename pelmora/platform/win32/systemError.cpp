#include "pelmora/platform/systemError.h"

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
    std::string utf8(3 * static_cast<std::size_t>(units), '\0');
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(),
                                          static_cast<int>(utf8.size()), nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(bytes));
    return utf8;
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
