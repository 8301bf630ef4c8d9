#include "pelmora/registry/regi.h"

#include "pelmora/registry/RegistryKey.h"
#include "pelmora/registry/systemErrorText.h"

#include "tests/LogCapture.h"
#include "tests/printing.h"
#include "tests/registry/TestKeys.h"

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(Regi, WritesReadsAndDeletesBelowEitherRoot)
{
    const TestKeys keys;
    const GString path(keys.path + "\\a");
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        EXPECT_TRUE(regiWrite(root, path, u"\u00E9", u"10 \u00B5g", true));
        EXPECT_EQ(regiRead(root, path, u"\u00E9", u"default", true), u"10 \u00B5g");
        EXPECT_TRUE(RegistryKey().openMachineOrUser(path, OpenMode::Read));
        EXPECT_TRUE(regiDelete(root, path, u"\u00E9", true) && regiDeleteKey(root, path, true));
    }
    RegistryKey key;
    regiWrite(HKEY_CURRENT_USER, keys.path, "of", "user");
    regiWrite(HKEY_LOCAL_MACHINE, keys.path, "of", "machine");
    EXPECT_TRUE(key.openMachineOrUser(keys.path, OpenMode::Read));
    EXPECT_EQ(key.readString("of", ""), "machine");
}

TEST(Regi, FailuresAreOneLineEachWhenAskedFor)
{
    const TestKeys keys;
    const HKEY root = HKEY_CURRENT_USER;
    const std::string path = keys.path + "\\a";
    const std::string notFound = systemErrorText(ERROR_FILE_NOT_FOUND) + "\n";
    const std::string lines =
        "regiRead(" + path + "\\x) - open error: " + notFound + "regiDelete(" + path +
        "\\x) - deletion error: " + notFound + "regiDeleteKey(" + path +
        ") - deletion error: " + notFound +
        "regiWrite(a\\b) = 'c' - open error: " + systemErrorText(ERROR_INVALID_HANDLE) + "\n";
    const std::string further = "regiRead(" + path + "\\absent) - read error: " + notFound +
                                "regiDelete(" + path + "\\absent) - deletion error: \n" +
                                "regiDeleteKey(" + keys.path + ") - deletion error: ";
    for (const bool wanted : {false, true}) {
        const LogCapture log;
        EXPECT_EQ(regiRead(root, path, "x", "d", wanted), "d"); // makes no key
        EXPECT_FALSE(regiDelete(root, path, "x", wanted) || regiDeleteKey(root, path, wanted));
        EXPECT_FALSE(regiWrite(reinterpret_cast<HKEY>(1), "a", "b", "c", wanted));
        EXPECT_EQ(log.text(), wanted ? lines : "");
    }
    EXPECT_TRUE(regiWrite(root, path, "text", "7"));
    const LogCapture log;
    EXPECT_EQ(regiRead(root, path, "absent", "d", true), "d");
    EXPECT_FALSE(regiDelete(root, path, "absent", true));
    EXPECT_FALSE(regiDeleteKey(root, keys.path, true)); // has a subkey
    EXPECT_TRUE(log.text().starts_with(further)) << log.text();
}

} // namespace
} // namespace Pelmora::Native
