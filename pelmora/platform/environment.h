#pragma once

#include <cstdlib>
#include <initializer_list>
#include <string>

namespace Pelmora::Native::Platform
{

/// The first of the environment variables that is set to something; `otherwise` when none is.
inline std::string firstOfEnvironment(std::initializer_list<const char*> names,
                                      const char* otherwise)
{
    for (const char* name : names)
        // NOLINTNEXTLINE(concurrency-mt-unsafe): only races with a program that sets variables
        if (const char* value = std::getenv(name); value != nullptr && *value != '\0')
            return value;
    return otherwise;
}

} // namespace Pelmora::Native::Platform
