#include "pelmora/gettext/TextLocale.h"

#include "tests/printing.h"

#include <sstream>
#include <stdexcept>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

GString echo(std::string msgid)
{
    return msgid == "silent" ? GString() : u"<" + GString(msgid) + u">";
}

TEST(TextLocale, LanguageIsTheLastTwoCharactersBeforeTheEnding)
{
    const std::tuple<const char*, const char*> rows[] = {
        {"", ""},        {"d", ""},        {"de", "de"},           {"de-DE", "DE"},
        {"ab.MO", "ab"}, {"xde.mo", "de"}, {"C:\\l\\de.mo", "de"}, {"lang/de.mox", "ox"},
    };
    TextLocale locale;
    for (const auto& [path, language] : rows) {
        locale.init(path);
        EXPECT_EQ(locale.language(), language) << path;
        EXPECT_EQ(locale.catalogue(), nullptr) << path;
    }
    locale.init(CATALOGUES "small.little.mo");
    for (const char* path : {".mo", "x.mo"}) {
        EXPECT_THROW(locale.init(path), std::out_of_range) << path;
        EXPECT_EQ(locale.path(), path);
        EXPECT_EQ(locale.language(), "le");
        EXPECT_NE(locale.catalogue(), nullptr) << path;
    }
}

TEST(TextLocale, CodePageAndIdentifierFollowTheLanguage)
{
    const std::tuple<const char*, unsigned int, const char*, unsigned int> rows[] = {
        {"ja", 932, "Shift_JIS", 0x411},   {"ko", 949, "ISO-2022-KR", 0x412},
        {"zh", 936, "gb2312", 0x4},        {"us", 1252, "iso-8859-1", 0x409},
        {"uk", 1252, "iso-8859-1", 0x809}, {"ta", 1252, "iso-8859-1", 0x449},
        {"JA", 1252, "iso-8859-1", 0x400}, {"", 1252, "iso-8859-1", 0x400},
    };
    TextLocale locale;
    for (const auto& [language, codePage, charset, identifier] : rows) {
        locale.init(language);
        EXPECT_EQ(locale.code_page(), codePage) << language;
        EXPECT_EQ(locale.uses_non_latin_code_page(), codePage != 1252) << language;
        EXPECT_STREQ(locale.charset(), charset) << language;
        EXPECT_EQ(locale.lang_id(), identifier) << language;
    }
    std::ostringstream identifiers;
    for (const char* language : {"en", "da", "de", "es", "fr", "hi", "it", "kn", "ml", "nl", "no",
                                 "pl", "pt", "ru", "fi", "sv"}) {
        locale.init(language);
        identifiers << std::hex << locale.lang_id() << ' ';
    }
    EXPECT_EQ(identifiers.str(),
              "409 406 407 40a 40c 439 410 44b 44c 413 414 415 416 419 40b 41d ");
}

TEST(TextLocale, TranslatorIsTheOneSource)
{
    TextLocale locale;
    EXPECT_EQ(locale.translate("caf\xE9", 1252), u"caf\u00E9");
    locale.init(CATALOGUES "small.little.mo");
    EXPECT_EQ(locale.translate("Dose", 1252), u"Dose"); // the catalogue is not searched
    locale.set_translator(echo);
    EXPECT_EQ(locale.translate("Dose", 1252), u"<Dose>");
    EXPECT_EQ(locale.translate("silent", 1252), u"silent");
    EXPECT_EQ(locale.translate("", 1252), u"");
    locale.init("");
    EXPECT_EQ(locale.tr("Dose"), u"<Dose>"); // the translator outlives the language
}

TEST(TextLocale, TagsAreRemovedBeforeTheLookUp)
{
    TextLocale locale;
    locale.set_translator(echo);
    const std::tuple<const char*, GString> rows[] = {
        {"r|mg/dL", u"<mg/dL>"}, {"ab|x", u"<x>"},          {"a1c|x", u"<x>"},
        {"abcd|x", u"<abcd|x>"}, {"1|x", u"<1|x>"},         {"a-|x", u"<a-|x>"},
        {"|x", u"<|x>"},         {"r|a|b", u"<a|b>"},       {"r|", u""},
        {nullptr, u""},          {"\xE9|x", u"<\u00E9|x>"},
    };
    for (const auto& [text, translated] : rows)
        EXPECT_EQ(locale.tr(text), translated) << (text ? text : "null");
}

TEST(TextLocale, TranslatorFromTheCatalogueReadsItsEncoding)
{
    gettext_locale.set_translator(translate_from_catalogue);
    gettext_locale.init(CATALOGUES "small.big.mo");
    EXPECT_EQ(gettext_locale.tr("c|Dose"), u"Dosis");
    EXPECT_EQ(gettext_locale.tr("Unknown"), u"Unknown");
    gettext_locale.init(CATALOGUES "real.ja.mo"); // UTF-8
    const GString japanese = gettext_locale.tr("memory exhausted");
    EXPECT_EQ(japanese[0] >> 8, 0x30) << testing::PrintToString(japanese); // katakana
    gettext_locale.init(CATALOGUES "real.es.mo");                          // iso-8859-1
    EXPECT_EQ(gettext_locale.tr("Continuing anyway."), u"Se contin\u00FAa de todas formas.");
    gettext_locale.init("");
    gettext_locale.set_translator(nullptr);
}

} // namespace
} // namespace Pelmora::Native
