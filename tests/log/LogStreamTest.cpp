#include "pelmora/log/LogStream.h"

#include "pelmora/gettext/TextLocale.h"
#include "pelmora/platform/temporaryFolder.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Pelmora::Native
{
namespace
{

/// Each test makes its log in a process of its own, which ends in the way that the test is about.
class LogStreamTest : public testing::Test
{
protected:
    LogStreamTest()
    {
        testing::GTEST_FLAG(death_test_style) = "threadsafe";
        log_settings().file_name = name_;
    }
    ~LogStreamTest() override { std::remove(path().c_str()); }

    std::string path() const { return Platform::temporaryFolder() + name_; }

    /// The file, with each header up to its first separator as "HEADER".
    std::string written() const
    {
        const std::string dateLine = "Date:00/00/00 Time:00:00:00\n";
        const std::string separator = std::string(75, '-') + "\n";
        std::ifstream file(path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        std::string result;
        for (std::size_t at = 0; at < text.size();) {
            std::string line = text.substr(at, dateLine.size());
            std::replace_if(line.begin(), line.end(), isDigit, '0');
            const std::size_t end = text.find("\n" + separator, at + dateLine.size() + 1);
            if (line == dateLine && end != std::string::npos) {
                result += "HEADER\n";
                at = end + 1 + separator.size();
            } else {
                result += text[at++];
            }
        }
        return result;
    }

    static bool isDigit(char character) { return character >= '0' && character <= '9'; }

private:
    std::string name_ =
        std::string("pelmora-") + testing::UnitTest::GetInstance()->current_test_info()->name();
};
using LogStreamDeathTest = LogStreamTest;

void killThisProcess()
{
#ifdef _WIN32
    TerminateProcess(GetCurrentProcess(), 1);
#else
    std::raise(SIGKILL);
#endif
}

bool endedAtAll(int)
{
    return true;
}

TEST_F(LogStreamDeathTest, EveryItemOutlivesTheProcessThatIsKilled)
{
    EXPECT_EXIT(
        {
            get_log() << "text " << std::string("string ") << std::string() << 'c' << ' '
                      << short(-1) << ' ' << static_cast<unsigned short>(65535) << ' ' << -2 << ' '
                      << 4000000000U << ' ' << -3L << ' ' << 4UL << ' ' << 5LL << ' ' << 2.5F << ' '
                      << -0.125 << ' ' << reinterpret_cast<const void*>(0x1F) << ' ' << true << ' '
                      << false << endl;
            get_log().write("written");
            get_log() << reinterpret_cast<const void*>(0x123456789ABCDEF0);
            killThisProcess();
        },
        endedAtAll, "");
    EXPECT_EQ(written(), "HEADER\ntext string c -1 65535 -2 4000000000 -3 4 5 2.500000 -0.125000 "
                         "0x1f true false\nwritten0x123456789abcdef0");
}

bool logsLate = false;

/// Is destroyed after the log's end.
struct LateLogger {
    ~LateLogger()
    {
        if (logsLate)
            get_log() << gettext_locale.tr("late").to_temp_c_str() << endl;
    }
} lateLogger;

TEST_F(LogStreamDeathTest, WhatIsLoggedAfterTheEndIsAppended)
{
    EXPECT_EXIT(
        {
            logsLate = true;
            get_log() << "first" << endl;
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(written(), "HEADER\nfirst\n-eof-\nHEADER\n"
                         "Warning: the LogStream has been destroyed once\nlate\n");
}

GString answerNothing(std::string)
{
    get_log() << "asked" << endl;
    return {};
}

TEST_F(LogStreamDeathTest, TranslationsOfTheHeaderReportBehindIt)
{
    EXPECT_EXIT(
        {
            log_settings().header_text = "Ward 7";
            gettext_locale.init("zz");
            gettext_locale.set_translator(answerNothing);
            gettext_locale.set_log_missing(true);
            gettext_locale.tr("Dose");
            gettext_locale.tr(" ");
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
    const std::string missing = "asked\nTranslation missing in zz for : \"";
    EXPECT_EQ(written(), "HEADER\nWard 7\n" + std::string(75, '-') + "\n" + missing + "Date:\"\n" +
                             missing + " Time:\"\n" + missing + "Dose\"\nasked\n-eof-\n");
}

TEST_F(LogStreamDeathTest, FirstLogOfAProcessTruncatesUnlessToldOtherwise)
{
    for (const bool appends : {false, true}) {
        EXPECT_EXIT(
            {
                log_settings().append_mode = appends;
                get_log() << appends << endl;
                std::exit(0);
            },
            testing::ExitedWithCode(0), "");
    }
    EXPECT_EQ(written(), "HEADER\nfalse\n-eof-\nHEADER\ntrue\n-eof-\n");
}

TEST_F(LogStreamDeathTest, AFileThatCannotBeMadeDropsEverything)
{
    EXPECT_EXIT(
        {
            testing::internal::CaptureStdout();
            log_settings().file_name = "no such folder/errors.txt";
            get_log() << "dropped" << 5 << endl;
            get_log().write_separator();
            const bool dropped = get_log().file() == nullptr && get_log().is_ok();
            std::fputs((testing::internal::GetCapturedStdout() + (dropped ? "|" : "")).c_str(),
                       stderr);
            std::exit(set_show_in_notepad(false) ? 1 : 0);
        },
        testing::ExitedWithCode(0), "unable to open .*no such folder/errors.txt\\|");
}

} // namespace
} // namespace Pelmora::Native
