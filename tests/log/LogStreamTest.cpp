#include "pelmora/log/LogStream.h"

#include "pelmora/gettext/TextLocale.h"
#include "pelmora/platform/temporaryFolder.h"
#include "tests/log/system.h"

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <iomanip>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

/// Puts "HEADER" for each header up to its first separator.
std::string withoutHeaders(std::string text)
{
    constexpr std::size_t titleLength = sizeof("Date:mm/dd/yy Time:hh:mm:ss\n") - 1;
    const std::string separator = '\n' + std::string(75, '-') + '\n';
    for (std::size_t at = text.find("Date:"); at != std::string::npos;
         at = text.find("Date:", at + 1)) {
        const std::size_t end = text.find('\n', at + titleLength);
        if (end != std::string::npos && text.compare(at + 13, 6, " Time:") == 0 &&
            text.compare(end, separator.size(), separator) == 0)
            text.replace(at, end + separator.size() - at, "HEADER\n");
    }
    return text;
}

/// Each test makes its log in a process of its own, which ends in the way that the test is about.
class LogStreamTest : public testing::Test
{
protected:
    LogStreamTest()
    {
        testing::GTEST_FLAG(death_test_style) = "threadsafe";
        log_settings().file_name = name_;
        leaveGreenwich();
    }
    ~LogStreamTest() override { std::remove(path().c_str()); }

    /// Does this in a process of its own, which must end well.
    static void inAProcess(const std::function<void()>& actions)
    {
        EXPECT_EXIT(actions(), testing::ExitedWithCode(0), "");
    }

    std::string path() const { return Platform::temporaryFolder() + name_; }

    /// The file without headers. Its date must be today's.
    std::string written() const
    {
        std::ifstream file(path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        std::tm begun = {};
        std::istringstream(text) >> std::get_time(&begun, "Date:%m/%d/%y Time:%H:%M:%S\n");
        begun.tm_isdst = -1;
        EXPECT_NEAR(std::difftime(std::mktime(&begun), start_), 300, 301) << "seconds";
        return withoutHeaders(text);
    }

private:
    std::time_t start_ = std::time(nullptr);
    std::string name_ =
        std::string("pelmora-") + testing::UnitTest::GetInstance()->current_test_info()->name();
};
using LogStreamDeathTest = LogStreamTest;

TEST_F(LogStreamDeathTest, EveryItemOutlivesAProcessThatEndsAtOnce)
{
    inAProcess([] {
        get_log() << "text " << std::string("string ") << GString(u"\u00E9 ") << 'c' << ' '
                  << short(-1) << ' ' << static_cast<unsigned short>(65535) << ' ' << -2 << ' '
                  << 4000000000U << ' ' << -3L << ' ' << 4UL << ' ' << 5LL << ' ' << 2.5F << ' '
                  << -0.125 << ' ' << reinterpret_cast<const void*>(0x1F) << ' ' << true << ' '
                  << false << ' ' << 1e300 << endl;
        std::fputs("file ", get_log().file());
        get_log().write("written");
        get_log() << reinterpret_cast<const void*>(0x123456789ABCDEF0);
        std::_Exit(0);
    });
    EXPECT_EQ(written(),
              "HEADER\ntext string \xE9 c -1 65535 -2 4000000000 -3 4 5 2.500000 -0.125000 "
              "0x1f true false " +
                  std::to_string(1e300) + "\nfile written0x123456789abcdef0");
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
    inAProcess([] {
        get_log() << "first" << endl;
        forkAndEndTheChild();
        logsLate = true;
        std::exit(0);
    });
    EXPECT_EQ(written(), "HEADER\nfirst\n-eof-\nHEADER\n"
                         "Warning: the LogStream has been destroyed once\nlate\n");
}

TEST_F(LogStreamDeathTest, TranslationsOfTheHeaderReportAfterIt)
{
    inAProcess([] {
        log_settings().header_text = "Ward 7";
        gettext_locale.init("zz");
        gettext_locale.set_translator([](std::string) {
            get_log() << "asked" << endl;
            return GString();
        });
        gettext_locale.set_log_missing(true);
        gettext_locale.tr("Dose");
        gettext_locale.tr(" ");
        std::exit(0);
    });
    const std::string missing = "asked\nTranslation missing in zz for : \"";
    EXPECT_EQ(written(), "HEADER\nWard 7\n" + std::string(75, '-') + "\n" + missing + "Date:\"\n" +
                             missing + " Time:\"\n" + missing + "Dose\"\nasked\n-eof-\n");
}

TEST_F(LogStreamDeathTest, BeginsEvenWhenTheTranslatorThrows)
{
    inAProcess([] {
        gettext_locale.set_translator([](std::string) -> GString { throw "no text"; });
        get_log() << "begun" << endl;
        std::_Exit(0);
    });
    EXPECT_EQ(written(), "HEADER\nbegun\n");
}

TEST_F(LogStreamDeathTest, EndsEvenWhenTheTranslatorEndsTheProgram)
{
    inAProcess([] {
        gettext_locale.set_translator([](std::string) -> GString { std::exit(0); });
        get_log();
    });
    std::ifstream file(path());
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "-eof-\n");
}

TEST_F(LogStreamDeathTest, FirstLogOfAProcessTruncatesUnlessToldOtherwiseAndThenAppends)
{
    for (const bool appends : {false, true}) {
        inAProcess([&] {
            log_settings().append_mode = appends;
            get_log() << appends << endl;
            std::ofstream(path(), std::ios::app) << "another program's\n";
            std::exit(0);
        });
    }
    EXPECT_EQ(written(), "HEADER\nfalse\nanother program's\n-eof-\n"
                         "HEADER\ntrue\nanother program's\n-eof-\n");
}

/// Logs through a copy of the library that is loaded for this call.
void logAndUnload(const std::string& fileName, const char* line)
{
    void* const library = loadLibrary(PELMORA_LIBRARY);
    const auto settings = reinterpret_cast<decltype(&log_settings)>(
        symbolOf(library, "_ZN7Pelmora6Native12log_settingsEv"));
    settings().file_name = fileName;
    LogInterface& log =
        reinterpret_cast<decltype(&get_log)>(symbolOf(library, "_ZN7Pelmora6Native7get_logEv"))();
    log.write(line);
    unloadLibrary(library);
}

TEST_F(LogStreamDeathTest, GoesOnWhenTheLibraryIsUnloadedAndLoadedAgain)
{
    inAProcess([] {
        logAndUnload(log_settings().file_name, "first\n");
        logAndUnload(log_settings().file_name, "second\n");
        std::exit(0);
    });
    EXPECT_EQ(written(), "HEADER\nfirst\nsecond\n-eof-\n");
}

TEST_F(LogStreamDeathTest, HeaderIsTranslatedAndNamesTheSystem)
{
    inAProcess([] {
        gettext_locale.set_translator(
            [](std::string id) { return GString(id == "Date:" ? u"Dat\u00E9:" : u" Heure:"); });
        get_log();
        std::_Exit(0);
    });
    std::ifstream file(path());
    std::string line;
    std::getline(file, line);
    EXPECT_EQ(line.substr(0, 5) + line.substr(13, 7), "Dat\xE9: Heure:");
    std::getline(file, line);
    EXPECT_TRUE(line.starts_with(nameOfSystem())) << line;
}

TEST_F(LogStreamDeathTest, AFileThatCannotBeMadeDropsEverything)
{
    const std::pair<const char*, const char*> rows[] = {
        // the file's name and where it is then, in a temporary folder or not
        {"none/errors.txt", ".*else.none/errors.txt"},
        {"q:/none/errors.txt", "q:/none/errors.txt"},
    };
    for (const auto& [name, place] : rows)
        EXPECT_EXIT(
            {
                testing::internal::CaptureStdout(); // into a file in the temporary folder
                for (const char* const variable : {"TMPDIR=", "TEMP=", "TMP=/else"})
                    putenv(const_cast<char*>(variable));
                log_settings().file_name = name;
                get_log() << "dropped" << 5 << endl;
                get_log().write_separator();
                const bool dropped = get_log().file() == nullptr && get_log().is_ok();
                std::fputs((testing::internal::GetCapturedStdout() + (dropped ? "|" : "")).c_str(),
                           stderr);
                std::exit(set_show_in_notepad(false) ? 1 : 0);
            },
            testing::ExitedWithCode(0), std::string("unable to open ") + place + "\\|");
}

} // namespace
} // namespace Pelmora::Native
