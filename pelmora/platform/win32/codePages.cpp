#include "pelmora/platform/codePages.h"

#include <limits>

#include <windows.h>

namespace Pelmora::Native::Platform
{
namespace
{

int clampedSize(std::size_t size)
{
    constexpr int most = std::numeric_limits<int>::max();
    return size > static_cast<std::size_t>(most) ? most : static_cast<int>(size);
}

ConversionStatus status(int written)
{
    if (written > 0)
        return ConversionStatus::done;
    return GetLastError() == ERROR_INSUFFICIENT_BUFFER ? ConversionStatus::bufferTooSmall
                                                       : ConversionStatus::failed;
}

} // namespace

ConversionStatus decode(unsigned int codePage, const char* text, std::span<WideChar> buffer)
{
    return status(
        MultiByteToWideChar(codePage, 0, text, -1, buffer.data(), clampedSize(buffer.size())));
}

ConversionStatus encode(unsigned int codePage, const WideChar* text, std::span<char> buffer)
{
    return status(WideCharToMultiByte(codePage, 0, text, -1, buffer.data(),
                                      clampedSize(buffer.size()), nullptr, nullptr));
}

char16_t ansiDefaultCharacter() noexcept
{
    CPINFO info = {};
    if (GetCPInfo(CP_ACP, &info) == 0)
        return u'?';
    return static_cast<char16_t>(info.DefaultChar[0] | info.DefaultChar[1] << 8);
}

} // namespace Pelmora::Native::Platform
