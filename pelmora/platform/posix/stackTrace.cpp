#include "pelmora/platform/stackTrace.h"

#include <array>
#include <cstdlib>
#include <memory>

#include <execinfo.h>

namespace Pelmora::Native::Platform
{

std::string stackTrace()
{
    struct Free {
        void operator()(char** memory) const { std::free(static_cast<void*>(memory)); } // NOLINT
    };
    std::array<void*, 64> addresses = {};
    const int count = backtrace(addresses.data(), static_cast<int>(addresses.size()));
    const std::unique_ptr<char*, Free> symbols(backtrace_symbols(addresses.data(), count));
    std::string text;
    for (int i = 1; symbols != nullptr && i < count; ++i) // 0 is this function
        text += std::string(symbols.get()[i]) + "\n";
    return text;
}

} // namespace Pelmora::Native::Platform
