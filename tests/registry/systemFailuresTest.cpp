// The import pointers of the registry functions are defined here, so that the library calls these
// instead, which refuse what a test says and otherwise call the system.

#include "pelmora/registry/RegistryKey.h"
#include "pelmora/registry/regi.h"
#include "pelmora/registry/systemErrorText.h"

#include "tests/LogCapture.h"
#include "tests/registry/TestKeys.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace
{

template <class Function>
Function* real(const char* name)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("advapi32"), name)));
}

bool deniesWriting = false;
LSTATUS readStatus = ERROR_SUCCESS; ///< what reading data ends with
DWORD sizeShortBy = 0;              ///< what a value has grown by when it is read
int opened = 0;
int closed = 0;
std::string calls; ///< what opening asked for

LSTATUS settled(LSTATUS status)
{
    opened += status == ERROR_SUCCESS ? 1 : 0;
    return status;
}

bool isDenied(const char* function, REGSAM access)
{
    char text[32];
    std::snprintf(text, sizeof text, "%s %lX,", function, access);
    calls += text;
    return deniesWriting && (access & KEY_SET_VALUE) != 0;
}

LSTATUS WINAPI openKey(HKEY root, const char* path, DWORD options, REGSAM access, HKEY* key)
{
    if (isDenied("open", access))
        return ERROR_ACCESS_DENIED;
    return settled(real<decltype(openKey)>("RegOpenKeyExA")(root, path, options, access, key));
}

LSTATUS WINAPI createKey(HKEY root, const char* path, DWORD reserved, char* keyClass, DWORD options,
                         REGSAM access, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* made)
{
    if (isDenied("create", access))
        return ERROR_ACCESS_DENIED;
    return settled(real<decltype(createKey)>("RegCreateKeyExA")(
        root, path, reserved, keyClass, options, access, security, key, made));
}

LSTATUS WINAPI closeKey(HKEY key)
{
    ++closed;
    return real<decltype(closeKey)>("RegCloseKey")(key);
}

LSTATUS WINAPI queryValue(HKEY key, const char* name, DWORD* reserved, DWORD* type, BYTE* data,
                          DWORD* size)
{
    if (data != nullptr && readStatus != ERROR_SUCCESS)
        return readStatus;
    const LSTATUS status =
        real<decltype(queryValue)>("RegQueryValueExA")(key, name, reserved, type, data, size);
    if (data == nullptr)
        *size -= sizeShortBy;
    return status;
}

} // namespace

extern "C" {
void* __imp_RegOpenKeyExA = reinterpret_cast<void*>(openKey);
void* __imp_RegCreateKeyExA = reinterpret_cast<void*>(createKey);
void* __imp_RegCloseKey = reinterpret_cast<void*>(closeKey);
void* __imp_RegQueryValueExA = reinterpret_cast<void*>(queryValue);
}

namespace Pelmora::Native
{
namespace
{

TEST(RegistryFailures, ModesAskForTheirAccess)
{
    using enum OpenMode;
    const TestKeys keys;
    const std::tuple<OpenMode, const char*, const char*> rows[] = {
        // mode, calls when everything is allowed, calls when writing is denied
        {Create | Write, "create 20006,", "create 20006,"},
        {Read, "open 20019,", "open 20019,"},
        {Read | Write, "open 2001F,", "open 2001F,"},
        {AllAccess, "open F003F,", "open F003F,"},
        {Read | WriteOrRead | Create, "create 2001F,", "create 2001F,create 20019,"},
        {WriteOrRead | AllAccess, "open 20006,", "open 20006,open 20019,"},
        {Read | WriteOrRead, "open 2001F,", "open 2001F,open 20019,"},
        {OpenMode(), "open 0,", "open 0,"},
    };
    for (const auto& [mode, allowed, denied] : rows) {
        for (const bool denies : {false, true}) {
            RegistryKey key;
            deniesWriting = denies;
            calls.clear();
            key.open(HKEY_CURRENT_USER, keys.path, mode);
            EXPECT_EQ(calls, denies ? denied : allowed);
        }
    }
    deniesWriting = false;
    EXPECT_EQ(opened, closed);
}

TEST(RegistryFailures, AKeyThatMayOnlyBeReadIsRead)
{
    const TestKeys keys;
    ASSERT_TRUE(regiWrite(HKEY_CURRENT_USER, keys.path, "name", "value"));
    const std::string denied = systemErrorText(ERROR_ACCESS_DENIED);
    const LogCapture log;
    RegistryKey key;
    deniesWriting = true;
    EXPECT_TRUE(key.open(HKEY_CURRENT_USER, keys.path, OpenMode::Read | OpenMode::WriteOrRead));
    EXPECT_EQ(key.readString("name", ""), "value");
    EXPECT_FALSE(key.writeString("name", "other"));
    EXPECT_EQ(key.lastError(), denied);
    EXPECT_FALSE(key.open(HKEY_CURRENT_USER, keys.path, OpenMode::Write));
    EXPECT_FALSE(regiWrite(HKEY_CURRENT_USER, keys.path, "name", "other", true));
    deniesWriting = false;
    EXPECT_EQ(log.text(),
              "regiWrite(" + keys.path + "\\name) = 'other' - open error: " + denied + "\n");
}

TEST(RegistryFailures, AFailedReadGivesTheDefault)
{
    const TestKeys keys;
    RegistryKey key;
    ASSERT_TRUE(key.open(HKEY_CURRENT_USER, keys.path, OpenMode::AllAccess | OpenMode::Create));
    ASSERT_TRUE(key.writeString("name", "value"));
    for (const auto& [status, shortBy] : {std::pair(ERROR_CRC, DWORD(0)), {ERROR_SUCCESS, 1}}) {
        readStatus = status;
        sizeShortBy = shortBy;
        EXPECT_EQ(key.readString("name", "default"), "default");
        EXPECT_EQ(key.lastError(),
                  systemErrorText(status == ERROR_SUCCESS ? ERROR_MORE_DATA : ERROR_CRC));
    }
    readStatus = ERROR_SUCCESS;
    sizeShortBy = 0;
}

TEST(RegistryFailures, AHandleIsClosedOnce)
{
    const TestKeys keys;
    opened = closed = 0;
    {
        RegistryKey first;
        first.open(HKEY_CURRENT_USER, keys.path, OpenMode::AllAccess | OpenMode::Create);
        RegistryKey second(std::move(first));
        EXPECT_TRUE(second.writeDword("number", 1));
        EXPECT_FALSE(first.writeDword("number", 1)); // NOLINT: a key that is not open
        EXPECT_EQ(first.lastError(), "key not opened");
        first.open(HKEY_CURRENT_USER, keys.path, OpenMode::Read);
        first = std::move(second);
        EXPECT_EQ(closed, 1);
        EXPECT_EQ(first.readDword("number", 0), 1U);
        EXPECT_TRUE(first.open(HKEY_CURRENT_USER, keys.path, OpenMode::Read));
        EXPECT_FALSE(first.open(HKEY_CURRENT_USER, keys.path + "\\absent", OpenMode::Read));
        EXPECT_EQ(closed, 3);
    }
    EXPECT_EQ(opened, 3);
    EXPECT_EQ(closed, 3);
}

} // namespace
} // namespace Pelmora::Native
