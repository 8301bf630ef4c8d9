#pragma once

#include <random>
#include <string>

#include <windows.h>

namespace Pelmora::Native
{

/// A key path for one test, below either root; what is made there goes with this object.
struct TestKeys {
    ~TestKeys()
    {
        for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
            RegDeleteTreeA(root, path.c_str());
    }

    const std::string path = "Software\\Pelmora-test-" + std::to_string(std::random_device()());
};

} // namespace Pelmora::Native
