#include "pelmora/c/pelmora.h"
#include "pelmora/pelmora.h"

#include "tests/LogCapture.h"
#include "tests/TemporaryFolder.h"

#include <atomic>
#include <cstdlib>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

// What the headers let several threads do at once, for ThreadSanitizer above all. What a thread got
// is compared with what one thread alone gets.

namespace Pelmora
{
namespace
{

constexpr int threadCount = 8;

/// Runs the work in several threads that begin together; each is told its number.
template <class Work>
void together(const Work& work)
{
    std::atomic<int> missing = threadCount; // std::latch of g++ 12 loses wake-ups on Windows
    std::vector<std::jthread> threads;
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back([&, i] {
            for (--missing; missing > 0;)
                std::this_thread::yield();
            work(i);
        });
}

GString eventOf(int number)
{
    ManagedXML::ManagedXMLParser parser;
    const GString text = GString::format(u"<Action><Event id='\u65E5%d'/></Action>", number);
    EXPECT_TRUE(parser.parseFromString(text));
    EXPECT_FALSE(number < REFUSED && ManagedXML::ManagedXMLParser().parseFromString(u"<a>"));
    return parser.getElementWithAttributeValue(u"id", GString::format(u"\u65E5%d", number));
}

bool download(const TemporaryFolder& folder, int number)
{
    const std::string name = folder.name("file" + std::to_string(number));
    const std::string url = std::string("http://127.0.0.1:") + std::getenv("PELMORA_HTTP_PORT");
    return ManagedHTTP::HTTPDownloader::DownloadFile((url + "/text").c_str(), name.c_str(), 20000,
                                                     nullptr, nullptr) &&
           TemporaryFolder::read(name) == "text";
}

GString everythingElse(int number)
{
    const UnitValue value(number * 0.5, std::make_shared<Unit>(std::make_shared<UnitElement>(
                                            UnitTypeEnum::UNIT_G, UnitPrefix::MICRO, 1)));
    const GString text = value.toNormalizedString(3) + GString(u"\u00E9\u65E5\u672C");
    return text + GString(text.to_narrow(932), 932) + GString(text.to_utf8(), 65001) +
           GString(Native::Formatter::escape(text.text())) + Native::gettext_locale.tr("r|mg/dL");
}

// First, so that it is each service's first use in the process.
TEST(Threads, FirstUsesOfEveryService)
{
    const TemporaryFolder folder;
    std::mutex mutex;
    std::set<const void*> shared;
    together([&](int number) {
        EXPECT_NE(eventOf(number), u"");
        EXPECT_TRUE(download(folder, number));
        EXPECT_NE(everythingElse(number), u"");
        EXPECT_STREQ(GString(u"once").to_temp_c_str(), "once"); // the ring has sixteen places
        const std::lock_guard<std::mutex> lock(mutex);
        shared.insert({&ManagedXML::ManagedXMLParser::sGet(), &AliveDataStorage::get()});
    });
    EXPECT_EQ(shared.size(), 2U);
}

TEST(Threads, LaterUsesAnswerAsInOneThread)
{
    const TemporaryFolder folder;
    std::vector<GString> expected;
    for (int i = 0; i < threadCount; ++i)
        expected.push_back(everythingElse(i) + eventOf(i));
    together([&](int number) {
        for (int i = 0; i < 20; ++i)
            EXPECT_EQ(everythingElse(number) + eventOf(number),
                      expected[static_cast<std::size_t>(number)]);
        EXPECT_TRUE(download(folder, number));
    });
}

TEST(Threads, EachItemIsWholeInTheLog)
{
    const LogCapture log;
    Native::gettext_locale.set_translator([](std::string) { return GString(); });
    Native::gettext_locale.set_log_missing(true);
    together([](int number) {
        for (int i = 0; i < 50; ++i)
            Native::get_log() << "item " + std::to_string(100 * number + i) + "\n";
        Native::gettext_locale.tr("missing");
    });
    Native::gettext_locale.set_log_missing(false);
    Native::gettext_locale.set_translator(nullptr);
    const std::string text = log.text();
    for (int number = 0; number < threadCount; ++number)
        for (int i = 0; i < 50; ++i)
            EXPECT_NE(text.find("item " + std::to_string(100 * number + i)), std::string::npos);
}

TEST(Threads, EachHasItsOwnLastError)
{
    together([](int number) {
        for (int i = number; i < number + 1000; ++i) {
            int valid = 0;
            const auto status = pelmora_unit_valid(nullptr, i % 2 == 0 ? 0U : 1U, &valid);
            EXPECT_EQ(status != PELMORA_OK, *pelmora_last_error() != '\0') << status;
        }
    });
}

} // namespace
} // namespace Pelmora
