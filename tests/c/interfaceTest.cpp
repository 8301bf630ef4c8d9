#include "pelmora/base/wideChar.h"
#include "pelmora/c/pelmora.h"

#include "tests/TemporaryFolder.h"

#include <future>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(CInterface, EachThreadHasItsOwnLastError)
{
    const auto failWith = [](const char* format) {
        std::size_t length = 0;
        EXPECT_EQ(PELMORA_NULL_ARGUMENT, pelmora_from_signed(0, format, nullptr, 9, &length));
    };
    failWith("%d");
    std::async(std::launch::async, [&] {
        EXPECT_STREQ("", pelmora_last_error());
        EXPECT_EQ(PELMORA_NULL_ARGUMENT, pelmora_unit_valid(nullptr, 1, nullptr));
        EXPECT_STREQ("'result' is null", pelmora_last_error());
    }).get();
    EXPECT_STREQ("'buffer' is null", pelmora_last_error());
    EXPECT_EQ(PELMORA_OK, pelmora_log_show_in_notepad(0));
    EXPECT_STREQ("", pelmora_last_error());
}

TEST(CInterface, AppendsToTheLogOfAnEarlierProcessWhenTold)
{
    const auto log = std::filesystem::temp_directory_path() / "pelmora-c-appended.txt";
    TemporaryFolder::write(log, "earlier\n");
    pelmora_log_configure("pelmora-c-appended.txt", nullptr, 1);
    pelmora_log_line("later");
    EXPECT_EQ(TemporaryFolder::read(log).find("earlier\n"), 0U);
}

TEST(CInterface, CutsLongMessagesBetweenCharacters)
{
    using Text = std::basic_string<WideChar>;
    for (std::size_t size = 300; size < 900; ++size) {
        const Text text = Text(size % 3, u'x') + Text(size / 3, u'\u4E00'); // of three bytes
        pelmora_xml* xml = nullptr;
        ASSERT_EQ(PELMORA_OK, pelmora_xml_create(&xml));
        EXPECT_EQ(PELMORA_SYSTEM, pelmora_xml_parse_file(xml, text.c_str()));
        const std::string message = pelmora_last_error();
        pelmora_xml_destroy(xml);
        EXPECT_LE(message.size(), 511U);
        if (size < 600)
            continue; // other text is cut, or none
        EXPECT_GT(message.size(), 508U);
        EXPECT_EQ(0, (message.size() - message.find("\xE4")) % 3);
    }
}

} // namespace
} // namespace Pelmora::Native
