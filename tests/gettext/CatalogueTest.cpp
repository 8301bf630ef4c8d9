#include "pelmora/gettext/Catalogue.h"

#include "tests/TemporaryFolder.h"
#include "tests/printing.h"

#include <algorithm>
#include <cstring>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

std::string content(const std::string& name)
{
    return TemporaryFolder::read(CATALOGUES + name);
}

bool load(Catalogue& catalogue, const std::string& bytes)
{
    static const TemporaryFolder folder;
    TemporaryFolder::write(folder.path("temporary.mo"), bytes);
    return catalogue.load(folder.name("temporary.mo"));
}

TEST(Catalogue, EveryFormGivesTheSameTexts)
{
    for (const std::string form : {"little", "big", "nohash"}) {
        SCOPED_TRACE(form);
        Catalogue catalogue;
        ASSERT_TRUE(catalogue.load(CATALOGUES "small." + form));
        EXPECT_EQ(catalogue.lookup("Dose"), "Dosis");
        EXPECT_EQ(catalogue.lookup(std::string_view("Dose\0x", 6)), "Dosis");
        EXPECT_EQ(catalogue.lookup("a"), "ein");
        EXPECT_EQ(catalogue.lookup("ab"), "zwei");
        EXPECT_EQ(catalogue.lookup("abc"), "");
        EXPECT_EQ(catalogue.lookup("one drug"), "ein Mittel");
        EXPECT_EQ(catalogue.lookup("Caf\xC3\xA9"), "Kaffeeh\xC3\xA4user");
        EXPECT_EQ(catalogue.translate("Caf\xC3\xA9"), u"Kaffeeh\u00C3\u00A4user"); // as ANSI
        EXPECT_EQ(catalogue.translate("Dose"), u"Dosis");
        EXPECT_EQ(catalogue.translate("dose"), u"");
    }
}

TEST(Catalogue, FindsWhatMsgunfmtShows)
{
    for (const std::string language : {"de", "ja", "es", "ru", "pl"}) {
        Catalogue catalogue;
        ASSERT_TRUE(catalogue.load(CATALOGUES "real." + language));
        const std::string pairs = content("real." + language + ".pairs");
        int count = 0;
        for (std::size_t at = 0; at < pairs.size(); ++count) {
            const std::string msgid = pairs.c_str() + at;
            at += msgid.size() + 1;
            const std::string msgstr = pairs.c_str() + at;
            at += msgstr.size() + 1;
            ASSERT_EQ(catalogue.lookup(msgid), msgstr) << language << ": " << msgid;
        }
        EXPECT_GT(count, 20) << language;
    }
}

TEST(Catalogue, SearchGoesOnAtTheStartOfTheHashTable)
{
    // "c" belongs into the last of five slots. Since "x" has taken it, it is one further.
    const std::uint32_t numbers[] = {0x950412de, 0,  2, 28, 44, 5,  60,     // header
                                     1,          86, 1, 80, 1,  82, 1,  84, // "c", "x", "C", "X"
                                     1,          3,  0, 0,  2}; // "c", nothing known, "x"
    std::string bytes(reinterpret_cast<const char*>(numbers), sizeof numbers);
    bytes.append("x\0C\0X\0c", 8);
    Catalogue catalogue;
    ASSERT_TRUE(load(catalogue, bytes));
    EXPECT_EQ(catalogue.lookup("c"), "C");
    const std::string po = catalogue.to_po();
    EXPECT_EQ(std::count(po.begin(), po.end(), '\r'), 3 * 2);
    bytes.pop_back(); // its NUL
    ASSERT_TRUE(load(catalogue, bytes));
    EXPECT_EQ(catalogue.lookup("c"), "");
}

TEST(Catalogue, PoTextHasEveryEntryEscaped)
{
    Catalogue catalogue;
    ASSERT_TRUE(catalogue.load(CATALOGUES "small.big.mo"));
    const std::string po = catalogue.to_po();
    EXPECT_NE(po.find("msgid\t\"say \\\"hi\\\"\\nnow\"\r\n"
                      "msgstr\t\"sag\\t\\\\\\\"hallo\\\"\\njetzt\"\r\n\r\n"),
              std::string::npos)
        << po;
    EXPECT_EQ(std::count(po.begin(), po.end(), '\r'), 3 * 7); // an entry has three line ends
}

TEST(Catalogue, OtherFilesAreRefusedAndLeaveItEmpty)
{
    const std::string good = content("small.little.mo");
    Catalogue catalogue;
    ASSERT_TRUE(load(catalogue, good));
    EXPECT_FALSE(load(catalogue, good.substr(0, 28)));
    EXPECT_EQ(catalogue.lookup("Dose"), ""); // what was loaded before is gone
    EXPECT_TRUE(load(catalogue, good.substr(0, 29)));
    EXPECT_EQ(catalogue.lookup("Dose"), "");
    EXPECT_FALSE(load(catalogue, "x" + good));
    EXPECT_FALSE(load(catalogue, ""));
    EXPECT_FALSE(catalogue.load(CATALOGUES "no such file"));
    EXPECT_FALSE(catalogue.load("."));
    EXPECT_EQ(catalogue.to_po(), "");
    const TemporaryFolder folder;
    TemporaryFolder::write(folder.path(".mo.mo"), good);
    const auto previous = std::filesystem::current_path();
    std::filesystem::current_path(folder.path(""));
    EXPECT_TRUE(catalogue.load(".mo")); // a name, not an ending
    std::filesystem::current_path(previous);
}

TEST(Catalogue, HostileFilesHarmNothing)
{
    for (const std::string form : {"little", "big", "nohash"}) {
        const std::string good = content("small." + form + ".mo");
        const auto size = static_cast<std::uint32_t>(good.size());
        const std::uint32_t values[] = {0,        1,        2,          3,          7,         8,
                                        size - 4, size - 1, 0x7FFFFFFF, 0xFFFFFFFF, 0xFFFFFFFE};
        // Every number of header, descriptors and hash table is replaced, in either byte order.
        for (std::size_t at = 4; at + 4 <= std::min<std::size_t>(good.size(), 250); at += 4) {
            for (const std::uint32_t value : values) {
                std::string bad = good;
                std::memcpy(bad.data() + at, &value, sizeof value);
                if (form == "big")
                    std::reverse(bad.begin() + static_cast<std::ptrdiff_t>(at),
                                 bad.begin() + static_cast<std::ptrdiff_t>(at) + 4);
                Catalogue catalogue;
                ASSERT_TRUE(load(catalogue, bad)) << form << " with " << value << " at " << at;
                for (const char* msgid : {"Dose", "a", "ab", "zz", ""})
                    catalogue.lookup(msgid);
                EXPECT_LE(catalogue.to_po().size(), 3U << 20);
            }
        }
    }
    // A smallest hash table, and a large one whose slots all name one long string.
    std::string three = content("small.little.mo");
    const std::uint32_t smallest = 3;
    std::memcpy(three.data() + 20, &smallest, 4);
    Catalogue few;
    ASSERT_TRUE(load(few, three));
    const std::string po = few.to_po();
    EXPECT_EQ(std::count(po.begin(), po.end(), '\r') % 3, 0);
    EXPECT_LE(std::count(po.begin(), po.end(), '\r'), 3 * 3);
    const std::uint32_t header[] = {0x950412de, 0, 1, 28, 36, 20000, 44, 5, 80044, 5, 80044};
    std::string shared(reinterpret_cast<const char*>(header), sizeof header);
    for (int slot = 0; slot < 20000; ++slot)
        shared += std::string_view("\1\0\0\0", 4);
    shared.append(100000, 'x').append(1, '\0');
    ASSERT_TRUE(load(few, shared));
    EXPECT_LE(few.to_po().size(), 20U << 20);
    // A full hash table of slots beyond the strings, and a last string without its NUL.
    std::string full = content("small.little.mo");
    std::uint32_t hashTable = 0;
    std::uint32_t slots = 0;
    std::memcpy(&slots, full.data() + 20, 4);
    std::memcpy(&hashTable, full.data() + 24, 4);
    std::fill_n(full.begin() + hashTable, 4 * slots, '\x7F');
    Catalogue catalogue;
    ASSERT_TRUE(load(catalogue, full));
    EXPECT_EQ(catalogue.lookup("Dose"), "");
    std::string unterminated = content("small.nohash.mo");
    unterminated.pop_back();
    ASSERT_TRUE(load(catalogue, unterminated));
    EXPECT_EQ(catalogue.lookup("say \"hi\"\nnow"), "");
}

} // namespace
} // namespace Pelmora::Native
