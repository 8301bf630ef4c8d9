#include "pelmora/gettext/TextLocale.h"

#include "pelmora/base/detail/NeverDestroyed.h"
#include "pelmora/log/LogStream.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <string_view>

namespace Pelmora::Native
{
namespace
{

struct CodePageRow {
    std::string_view language;
    unsigned int codePage;
    const char* charset;
};

constexpr CodePageRow codePages[] = {
    {"ja", 932, "Shift_JIS"},
    {"ko", 949, "ISO-2022-KR"},
    {"zh", 936, "gb2312"},
};
constexpr CodePageRow latin = {"", 1252, "iso-8859-1"};

struct LanguageRow {
    std::string_view language;
    unsigned int identifier;
};

/// "us" and "uk" are what the applications call American and British English.
constexpr LanguageRow languages[] = {
    {"en", 0x409}, {"us", 0x409}, {"uk", 0x809}, {"da", 0x406}, {"de", 0x407}, {"es", 0x40a},
    {"fr", 0x40c}, {"hi", 0x439}, {"it", 0x410}, {"ja", 0x411}, {"kn", 0x44b}, {"ko", 0x412},
    {"ml", 0x44c}, {"nl", 0x413}, {"no", 0x414}, {"pl", 0x415}, {"pt", 0x416}, {"ru", 0x419},
    {"fi", 0x40b}, {"sv", 0x41d}, {"ta", 0x449}, {"zh", 0x4},
};
constexpr unsigned int processDefaultLanguage = 0x400;

const CodePageRow& codePageRow(std::string_view language)
{
    for (const CodePageRow& row : codePages)
        if (row.language == language)
            return row;
    return latin;
}

std::string languageOf(const std::string& path)
{
    if (path.size() < 2)
        return {};
    if (path.size() == 2)
        return path;
    const std::size_t afterLanguage = path.size() - (endsInMo(path) ? 3 : 0);
    if (afterLanguage < 2)
        throw std::out_of_range("invalid string position");
    return path.substr(afterLanguage - 2, 2);
}

bool isLetter(char character)
{
    return std::isalpha(static_cast<unsigned char>(character)) != 0;
}

bool isLetterOrDigit(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

std::string_view withoutTag(std::string_view text)
{
    constexpr std::size_t longestTag = 3;
    const std::size_t bar = text.substr(0, longestTag + 1).find('|');
    if (bar == std::string_view::npos || !isLetter(text[0]))
        return text;
    const std::string_view tag = text.substr(0, bar);
    return std::all_of(tag.begin(), tag.end(), isLetterOrDigit) ? text.substr(bar + 1) : text;
}

bool isUtf8(const Catalogue& catalogue)
{
    std::string header(catalogue.lookup(""));
    std::transform(header.begin(), header.end(), header.begin(), [](char character) {
        return static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    });
    return header.find("charset=utf-8") != std::string::npos;
}

/// Never destroyed, because destructors of static objects may still translate.
TextLocale& processLocale()
{
    static NeverDestroyed<TextLocale> locale;
    return locale.value;
}

} // namespace

TextLocale& gettext_locale = processLocale();

void TextLocale::init(const std::string& path)
{
    std::string kept = path;
    std::string language;
    try {
        language = languageOf(path);
    } catch (const std::out_of_range&) {
        path_ = std::move(kept); // the argument of the last call, whatever came of it
        throw;
    }
    auto catalogue = std::make_unique<Catalogue>();
    if (path.empty() || !catalogue->load(path))
        catalogue = nullptr;
    const bool utf8 = catalogue != nullptr && isUtf8(*catalogue);
    // Nothing throws from here on.
    path_ = std::move(kept);
    language_ = std::move(language);
    catalogue_ = std::move(catalogue);
    catalogueIsUtf8_ = utf8;
    initialised_ = true;
}

GString TextLocale::translate(const std::string& msgid, unsigned int /*codePage*/) const
{
    return translated(msgid);
}

GString TextLocale::translated(std::string_view msgid) const
{
    if (msgid.empty())
        return {};
    if (translator_ == nullptr && catalogue_ == nullptr)
        return GString(msgid);
    if (translator_ != nullptr)
        if (GString translation = translator_(std::string(msgid)); !translation.empty())
            return translation;
    if (logMissing_ && msgid != " ")
        get_log() << "Translation missing in " << language_ << " for : \"" << std::string(msgid)
                  << "\"" << endl;
    return GString(msgid);
}

GString TextLocale::tr(const char* text) const
{
    return text == nullptr ? GString() : translated(withoutTag(text));
}

unsigned int TextLocale::code_page() const noexcept
{
    return codePageRow(language_).codePage;
}

bool TextLocale::uses_non_latin_code_page() const noexcept
{
    return code_page() != latin.codePage;
}

const char* TextLocale::charset() const noexcept
{
    return codePageRow(language_).charset;
}

unsigned int TextLocale::lang_id() const noexcept
{
    for (const LanguageRow& row : languages)
        if (row.language == language_)
            return row.identifier;
    return processDefaultLanguage;
}

GString translate_from_catalogue(std::string msgid) // NOLINT: by value, as a Translator takes it
{
    const Catalogue* catalogue = gettext_locale.catalogue();
    if (catalogue == nullptr)
        return {};
    return GString(catalogue->lookup(msgid), gettext_locale.catalogue_code_page());
}

} // namespace Pelmora::Native
