#include "pelmora/pelmora.h"

#include "tests/printing.h"

#include <cstdlib>
#include <stdexcept>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora
{
namespace
{

using Prio = ExceptionData::prio_enum;
using Type = ExceptionData::type_enum;

void raise()
{
    throw Exception(u"no \u00E9lan \U000103FF\xDC00\xDC00\xD83D", u"ward");
}

TEST(ExceptionData, WhatEachConstructorSets)
{
    const GString all = u"msg|src|trace|site|params|dest";
    const auto joined = [](const ExceptionData& data) {
        GString text = data.mMessage;
        for (const GString& field : {data.mSource, data.mStackTrace, data.mTargetSite,
                                     data.mParameters, data.mDestination})
            text += u"|" + field;
        return text;
    };
    const std::tuple<ExceptionData, GString, Prio, Type> rows[] = {
        {ExceptionData(), u"|||||", Prio::PRIO_NONE, Type::TYPE_EXCEPTION},
        {ExceptionData(u"msg"), u"msg|||||", Prio::PRIO_FATAL, Type::TYPE_EXCEPTION},
        {ExceptionData(u"msg", u"src", u"trace", u"site"), u"msg|src|trace|site||",
         Prio::PRIO_FATAL, Type::TYPE_EXCEPTION},
        {ExceptionData(u"msg", u"src", u"trace", u"site", Prio::PRIO_NOTE, u"params",
                       Type::TYPE_DEBUGMESSAGE, u"dest"),
         all, Prio::PRIO_NOTE, Type::TYPE_DEBUGMESSAGE},
        {ExceptionData(std::runtime_error("caf\xC3\xA9 \xF0\x9F\x98\x80")),
         u"caf\u00E9 \xD83D\xDE00|||||", Prio::PRIO_FATAL, Type::TYPE_EXCEPTION},
        {ExceptionData(std::runtime_error("\xC3\xA9\xEF\xBF\xBD")), u"\u00E9\uFFFD|||||",
         Prio::PRIO_FATAL, Type::TYPE_EXCEPTION},
        {ExceptionData(std::runtime_error("caf\xE9")), u"caf\u00E9|||||", Prio::PRIO_FATAL,
         Type::TYPE_EXCEPTION},
        {ExceptionData(std::runtime_error("\xED\xB0\xBD")), u"\u00ED\u00B0\u00BD|||||",
         Prio::PRIO_FATAL, Type::TYPE_EXCEPTION},
        {ExceptionData(std::runtime_error("\xF4\xB0\xB0\xB0")), u"\u00F4\u00B0\u00B0\u00B0|||||",
         Prio::PRIO_FATAL, Type::TYPE_EXCEPTION},
    };
    for (const auto& [data, fields, priority, type] : rows) {
        EXPECT_EQ(joined(data), fields);
        EXPECT_EQ(data.mPriority, priority);
        EXPECT_EQ(data.mType, type);
        // The local clock is at most 14 hours from the universal one.
        const auto difference =
            data.mDateTime.time_since_epoch() - std::chrono::system_clock::now().time_since_epoch();
        EXPECT_LE(std::chrono::abs(difference), std::chrono::hours(14));
    }
    // They are whole minutes apart; 20 ms for a system whose local clock ticks slowly.
    using namespace std::chrono_literals;
    const auto start = std::chrono::system_clock::now().time_since_epoch();
    EXPECT_LT((ExceptionData().mDateTime.time_since_epoch() - start + 24h + 20ms) % 1min, 5s);
}

TEST(ExceptionData, ReportsWhereAnExceptionCameFrom)
{
    try {
        raise();
        ADD_FAILURE();
    } catch (const std::exception& error) {
        const ExceptionData data(error);
        EXPECT_EQ(data.mMessage, u"no \u00E9lan \U000103FF\xDC00\xDC00\xD83D");
        EXPECT_EQ(data.mSource, u"ward");
        EXPECT_NE(data.mTargetSite.to_utf8().find("raise"), std::string::npos);
        EXPECT_FALSE(data.mStackTrace.empty());
        EXPECT_STREQ(error.what(),
                     "no \xC3\xA9lan \xF0\x90\x8F\xBF\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
    }
}

TEST(Init, TakesALanguageOrThatOfTheCulture)
{
    Init::init(u"de");
    EXPECT_EQ(Native::gettext_locale.language(), "de");
    Init::init();
    EXPECT_TRUE(Native::gettext_locale.initialised());
#ifdef _WIN32
    const std::string name = Native::gettext_locale.path(); // as in "en-US"
    EXPECT_TRUE(name.size() == 5 && name[2] == '-') << name;
#else
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"", "", "de_DE.UTF-8", "de-DE"},
        {"", "fr_CH", "de_DE", "fr-CH"},
        {"ja", "fr_CH", "de_DE", "ja"},
        {"C.UTF-8", "", "de_DE", ""},
        {"POSIX", "", "", ""},
        {"", "", "", ""},
        {"sv_SE@euro", "", "", "sv-SE"},
    };
    for (const auto& [all, messages, lang, culture] : rows) {
        setenv("LC_ALL", all, 1);
        setenv("LC_MESSAGES", messages, 1);
        setenv("LANG", lang, 1);
        Init::init();
        EXPECT_EQ(Native::gettext_locale.path(), culture);
    }
#endif
}

} // namespace
} // namespace Pelmora
