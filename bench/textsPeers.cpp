#include "bench/measure.h"
#include "bench/textSamples.h"

#include <array>
#include <clocale>
#include <cstdlib>
#include <locale>
#include <memory>

#include <absl/strings/str_replace.h>
#include <boost/locale/gnu_gettext.hpp>
#include <iconv.h>
#include <libintl.h>
#include <libxml/entities.h>
#include <libxml/parserInternals.h>
#include <pugixml.hpp>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

// What a user would take instead for texts: Boost.Locale and glibc for catalogues, ICU and iconv
// for conversions, Abseil, pugixml and libxml2 for markup.

namespace
{

using namespace Pelmora::Bench;

using BoostMessages = boost::locale::message_format<char>;

std::locale boostLocale()
{
    boost::locale::gnu_gettext::messages_info info;
    info.language = "de";
    info.encoding = "UTF-8";
    info.paths = {catalogueFolder};
    info.domains = {boost::locale::gnu_gettext::messages_info::domain("labels_de")};
    return {std::locale::classic(), boost::locale::gnu_gettext::create_messages_facet<char>(info)};
}

/// It gives a pointer, so its text is read, too.
std::size_t boostLookup(const std::locale& locale, const std::string& identifier)
{
    const char* const text =
        std::use_facet<BoostMessages>(locale).get(0, nullptr, identifier.c_str());
    return text == nullptr ? 0 : std::string_view(text).size();
}

const Measured boostFound("look-up, found/Boost.Locale",
                          [locale = boostLocale(), ids = InTurn(identifiers())]() mutable {
                              return boostLookup(locale, ids.next());
                          });
const Measured boostMissing("look-up, missing/Boost.Locale",
                            [locale = boostLocale(), ids = InTurn(missingIdentifiers())]() mutable {
                                return boostLookup(locale, ids.next());
                            });
const Measured boostLoad("load 10,000 messages/Boost.Locale", boostLocale);

/// dgettext of a domain that is found.
class Glibc
{
public:
    Glibc()
    {
        std::setlocale(LC_ALL, "C.UTF-8");
        setenv("LANGUAGE", "de", 1);
        bindtextdomain("labels_de", catalogueFolder);
        require(lookup(identifiers().front()) != identifiers().front());
    }

    static std::string_view lookup(const std::string& identifier)
    {
        return dgettext("labels_de", identifier.c_str());
    }
};

const Measured glibcFound("look-up, found/glibc",
                          [messages = Glibc(), ids = InTurn(identifiers())]() mutable {
                              return messages.lookup(ids.next()).size();
                          });
const Measured glibcMissing("look-up, missing/glibc",
                            [messages = Glibc(), ids = InTurn(missingIdentifiers())]() mutable {
                                return messages.lookup(ids.next()).size();
                            });

std::string icuToUtf8(const std::u16string& text)
{
    std::string utf8(3 * text.size(), '\0');
    std::int32_t length = 0;
    UErrorCode error = U_ZERO_ERROR;
    u_strToUTF8(utf8.data(), static_cast<std::int32_t>(utf8.size()), &length, text.data(),
                static_cast<std::int32_t>(text.size()), &error);
    utf8.resize(static_cast<std::size_t>(length));
    return utf8;
}

/// A converter that stays open.
class Iconv
{
public:
    Iconv(const char* to, const char* from) : handle_(iconv_open(to, from)) {}

    template <class To, class From>
    std::basic_string<To> convert(std::basic_string_view<From> text) const
    {
        std::array<To, 64> buffer;
        auto* in = const_cast<char*>(reinterpret_cast<const char*>(text.data())); // NOLINT
        std::size_t inLeft = text.size() * sizeof(From);
        auto* out = reinterpret_cast<char*>(buffer.data());
        std::size_t outLeft = sizeof buffer;
        iconv(handle_, &in, &inLeft, &out, &outLeft);
        return {buffer.data(), buffer.size() - outLeft / sizeof(To)};
    }

private:
    iconv_t handle_; // closed by the end of the program
};

const Iconv fromUtf8("UTF-16LE", "UTF-8");
const Iconv toUtf8("UTF-8", "UTF-16LE");
const Iconv from1252("UTF-16LE", "CP1252");
const Iconv to1252("CP1252", "UTF-16LE");

const bool conversions = [] {
    for (const Language& language : languages) {
        const std::string name = std::string(language.name);
        Measured("UTF-8 to UTF-16, 1 MiB " + name + "/ICU", [text = sample(language, mebibyte)] {
            return icu::UnicodeString::fromUTF8(text);
        });
        Measured("UTF-16 to UTF-8, 1 MiB " + name + "/ICU",
                 [text = wideSample(language, mebibyte)] { return icuToUtf8(text); });
        for (const std::size_t bytes : {std::size_t(12), std::size_t(40)}) {
            const std::string length = ", " + std::to_string(bytes) + " bytes ";
            Measured("UTF-8 to UTF-16" + length + name + "/iconv",
                     [text = sample(language, bytes)] {
                         return fromUtf8.convert<char16_t>(std::string_view(text));
                     });
            Measured("UTF-16 to UTF-8" + length + name + "/iconv",
                     [text = wideSample(language, bytes)] {
                         return toUtf8.convert<char>(std::u16string_view(text));
                     });
        }
    }
    return true;
}();

const Measured
    fromPage("code page 1252 to UTF-16/iconv",
             [text = to1252.convert<char>(std::u16string_view(wideSample(languages[1], 40)))] {
                 return from1252.convert<char16_t>(std::string_view(text));
             });
const Measured toPage("UTF-16 to code page 1252/iconv", [text = wideSample(languages[1], 40)] {
    return to1252.convert<char>(std::u16string_view(text));
});

std::string abslEscape(const std::string& text)
{
    return absl::StrReplaceAll(
        text, {{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}, {"\"", "&quot;"}, {"'", "&apos;"}});
}

std::string abslUnescape(const std::string& text)
{
    return absl::StrReplaceAll(
        text, {{"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}});
}

const Measured abslEscapeClean("escape, 1 MiB clean/Abseil",
                               [text = sample(languages[1], mebibyte)] {
                                   return abslEscape(text);
                               });
const Measured abslUnescapeClean("unescape, 1 MiB clean/Abseil",
                                 [text = sample(languages[1], mebibyte)] {
                                     return abslUnescape(text);
                                 });
const Measured abslEscapeSpecial("escape, 1 MiB 5 % special/Abseil",
                                 [text = markup("<>&", mebibyte)] { return abslEscape(text); });
const Measured abslUnescapeSpecial("unescape, 1 MiB 5 % special/Abseil",
                                   [text = abslEscape(markup("<>&\"'", mebibyte))] {
                                       return abslUnescape(text);
                                   });

struct StringWriter : pugi::xml_writer {
    std::string text;

    void write(const void* data, std::size_t size) override
    {
        text.append(static_cast<const char*>(data), size);
    }
};

std::shared_ptr<pugi::xml_document> withText(const std::string& text)
{
    auto document = std::make_shared<pugi::xml_document>();
    document->append_child(pugi::node_pcdata).set_value(text.c_str());
    return document;
}

const Measured pugixmlEscape("escape, 1 MiB 5 % special/pugixml",
                             [document = withText(markup("<>&", mebibyte))] {
                                 StringWriter writer;
                                 document->first_child().print(writer, "", pugi::format_raw,
                                                               pugi::encoding_utf8);
                                 return writer.text;
                             });
const Measured pugixmlUnescape("unescape, 1 MiB 5 % special/pugixml",
                               [text = "<a>" + abslEscape(markup("<>&\"'", mebibyte)) + "</a>"] {
                                   pugi::xml_document document;
                                   document.load_buffer(text.data(), text.size(),
                                                        pugi::parse_escapes, pugi::encoding_utf8);
                                   return document.first_child().first_child().value()[0];
                               });

struct XmlFree {
    void operator()(xmlChar* text) const { xmlFree(text); }
};
using XmlText = std::unique_ptr<xmlChar, XmlFree>;

const xmlChar* xml(const std::string& text)
{
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

const Measured libxml2Escape("escape, 40 bytes/libxml2", [text = markup("<\"&", 40)] {
    return XmlText(xmlEncodeSpecialChars(nullptr, xml(text)));
});
const Measured libxml2Unescape("unescape, 40 bytes/libxml2", [text = abslEscape(markup("<\"&", 40)),
                                                              context = xmlNewParserCtxt()] {
    return XmlText(xmlStringDecodeEntities(context, xml(text), XML_SUBSTITUTE_REF, 0, 0, 0));
});

} // namespace
