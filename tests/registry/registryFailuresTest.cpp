// The import pointers of registry functions are defined here: these answer in the system's place.

#include "pelmora/registry/RegistryKey.h"

#include "pelmora/registry/regi.h"
#include "pelmora/registry/systemErrorText.h"

#include "tests/LogCapture.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace
{

bool deniesWriting = false;
int closed = 0;
constexpr REGSAM creates = 0x80000000; ///< beside the access that creating asks for
std::vector<REGSAM> calls;             ///< what opening asked for

LSTATUS answer(REGSAM asked, HKEY* key)
{
    calls.push_back(asked);
    if (deniesWriting && (asked & KEY_SET_VALUE) != 0)
        return ERROR_ACCESS_DENIED;
    *key = reinterpret_cast<HKEY>(1);
    return ERROR_SUCCESS;
}

LSTATUS WINAPI openKey(HKEY, const char*, DWORD, REGSAM access, HKEY* key)
{
    return answer(access, key);
}

LSTATUS WINAPI createKey(HKEY, const char*, DWORD, char*, DWORD, REGSAM access,
                         SECURITY_ATTRIBUTES*, HKEY* key, DWORD*)
{
    return answer(creates | access, key);
}

/// Fills the buffer without a NUL.
LSTATUS WINAPI enumerateValue(HKEY, DWORD, char* name, DWORD* size, DWORD*, DWORD*, BYTE*, DWORD*)
{
    std::fill_n(name, *size, 'n');
    return ERROR_MORE_DATA;
}

LSTATUS WINAPI closeKey(HKEY)
{
    ++closed;
    return ERROR_SUCCESS;
}

/// A value that grows, shrinks or becomes another, when it is read.
LSTATUS WINAPI queryValue(HKEY, const char* name, DWORD*, DWORD* type, BYTE* data, DWORD* size)
{
    const bool grows = *name == 'g';
    const bool shrinks = *name == 's';
    *type = data == nullptr || grows || shrinks ? REG_SZ : REG_DWORD;
    *size = data != nullptr && shrinks ? 2 : 4;
    return data != nullptr && grows ? ERROR_MORE_DATA : ERROR_SUCCESS;
}

} // namespace

extern "C" {
void* __imp_RegOpenKeyExA = reinterpret_cast<void*>(openKey);
void* __imp_RegCreateKeyExA = reinterpret_cast<void*>(createKey);
void* __imp_RegEnumValueA = reinterpret_cast<void*>(enumerateValue);
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
    constexpr REGSAM both = KEY_READ | KEY_WRITE;
    const std::tuple<OpenMode, std::vector<REGSAM>, std::vector<REGSAM>> rows[] = {
        // mode, calls when everything is allowed, calls when writing is denied
        {Create | Write, {creates | KEY_WRITE}, {creates | KEY_WRITE}},
        {AllAccess, {KEY_ALL_ACCESS}, {KEY_ALL_ACCESS}},
        {Read | WriteOrRead | Create, {creates | both}, {creates | both, creates | KEY_READ}},
        {WriteOrRead | AllAccess, {KEY_WRITE}, {KEY_WRITE, KEY_READ}},
    };
    for (const auto& [mode, allowed, denied] : rows) {
        for (const bool denies : {false, true}) {
            deniesWriting = denies;
            calls.clear();
            RegistryKey().open(HKEY_CURRENT_USER, "path", mode);
            EXPECT_EQ(calls, denies ? denied : allowed);
        }
    }
}

TEST(RegistryFailures, WhatCannotBeWrittenOrNamedIsReportedOrCut)
{
    deniesWriting = false;
    const LogCapture log;
    EXPECT_FALSE(regiWrite(HKEY_CURRENT_USER, "a", "b", "c", true)); // opens no real key
    EXPECT_EQ(log.text(), "regiWrite(a\\b) = 'c' - write error: " +
                              systemErrorText(ERROR_INVALID_HANDLE) + "\n");
    EXPECT_EQ(*RegistryKey().valueNamesBegin(), std::string(255, 'n'));
}

TEST(RegistryFailures, AHandleIsClosedOnceAndAChangingValueIsNotRead)
{
    closed = 0;
    {
        RegistryKey first;
        first.open(HKEY_CURRENT_USER, "path", OpenMode::Read);
        RegistryKey second(std::move(first));
        EXPECT_EQ(second.readString("grows", "default"), "default");
        EXPECT_EQ(second.lastError(), systemErrorText(ERROR_MORE_DATA));
        EXPECT_EQ(second.readString("shrinks", "default").size(), 1U);
        EXPECT_EQ(second.readString("changes", "default"), "default");
        EXPECT_EQ(second.lastError(), "The value: 'changes' has type: << 4, type expected:1");
        first.open(HKEY_CURRENT_USER, "path", OpenMode::Read); // NOLINT: as a new one
        first = std::move(second);
        EXPECT_EQ(first.lastStatus(), DWORD(ERROR_DATATYPE_MISMATCH));
        EXPECT_EQ(closed, 1);
    }
    EXPECT_EQ(closed, 2);
}

} // namespace
} // namespace Pelmora::Native
