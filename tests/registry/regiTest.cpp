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

class RegiTest : public testing::TestWithParam<HKEY>
{
protected:
    const HKEY root = GetParam();
    TestKeys keys;
    const std::string path = keys.path + "\\a\\b";
    LogCapture log;
};

TEST_P(RegiTest, WritesReadsAndDeletes)
{
    EXPECT_EQ(regiRead(root, path, "name", "default"), "default");
    EXPECT_TRUE(regiWrite(root, path, "name", "caf\xE9", true));
    EXPECT_EQ(regiRead(root, path, "name", "default", true), "caf\xE9");
    EXPECT_TRUE(regiWrite(root, GString(path), u"\u00E9", u"10 \u00B5g", true));
    EXPECT_EQ(regiRead(root, GString(path), u"\u00E9", u"default", true), u"10 \u00B5g");
    EXPECT_EQ(regiRead(root, path, "\xE9", "default", true), "10 \xB5g");
    EXPECT_TRUE(regiDelete(root, path, "name", true));
    EXPECT_TRUE(regiDelete(root, GString(path), u"\u00E9", true));
    EXPECT_TRUE(regiDeleteKey(root, path, true));
    EXPECT_TRUE(regiDeleteKey(root, GString(keys.path + "\\a"), true));
    EXPECT_EQ(log.text(), "");
}

TEST_P(RegiTest, FailuresAreOneLineEachWhenAskedFor)
{
    const std::string notFound = systemErrorText(ERROR_FILE_NOT_FOUND) + "\n";
    std::string expected;
    for (const bool wanted : {false, true}) {
        EXPECT_EQ(regiRead(root, path, "x", "d", wanted), "d");
        EXPECT_EQ(regiRead(root, GString(path), u"x", u"d", wanted), u"d");
        EXPECT_FALSE(regiDelete(root, path, "x", wanted));
        EXPECT_FALSE(regiDeleteKey(root, path, wanted));
        RegistryKey key;
        EXPECT_FALSE(key.open(root, path, OpenMode::Read)); // none of these has made it
        expected = "regiRead(" + path + "\\x) - open error: " + notFound + //
                   "regiRead(" + path + "\\x) - open error: " + notFound + //
                   "regiDelete(" + path + "\\x) - deletion error: " + notFound + "regiDeleteKey(" +
                   path + ") - deletion error: " + notFound;
        EXPECT_EQ(log.text(), wanted ? expected : "");
    }
    EXPECT_TRUE(regiWrite(root, path, "text", "7"));
    RegistryKey number;
    EXPECT_TRUE(number.open(root, path, OpenMode::Write) && number.writeDword("number", 7));
    const LogCapture further;
    EXPECT_EQ(regiRead(root, path, "absent", "d", true), "d");
    EXPECT_EQ(regiRead(root, GString(path), u"number", u"d", true), u"d");
    EXPECT_FALSE(regiDelete(root, path, "absent", true));
    EXPECT_FALSE(regiDeleteKey(root, GString(keys.path), true));
    const std::string text = further.text();
    const std::string lines = "regiRead(" + path + "\\absent) - read error: " + notFound +
                              "regiRead(" + path + "\\number) - read error: The value: 'number' " +
                              "has type: << 4, type expected:1\n" + //
                              "regiDelete(" + path + "\\absent) - deletion error: \n" +
                              "regiDeleteKey(" + keys.path + ") - deletion error: ";
    EXPECT_EQ(text.substr(0, lines.size()), lines);
    EXPECT_GT(text.size(), lines.size() + 4);
}

INSTANTIATE_TEST_SUITE_P(Roots, RegiTest, testing::Values(HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE),
                         [](const auto& root) {
                             return root.param == HKEY_CURRENT_USER ? "User" : "Machine";
                         });

} // namespace
} // namespace Pelmora::Native
