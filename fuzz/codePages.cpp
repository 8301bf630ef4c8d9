// Any bytes and units in each code page: a text is converted as its characters are, and these,
// where iconv has them both ways, as iconv says.

#include "fuzz/FuzzedInput.h"
#include "pelmora/gettext/gstringUtil.h"

#include <optional>

#include <iconv.h>

using namespace Pelmora;

namespace
{

struct Page {
    unsigned number;
    const char* name;
    bool hasLeadBytes;
};

constexpr Page pages[] = {
    {0, "CP1252", false},         {437, "CP437", false},    {850, "CP850", false},
    {874, "CP874", false},        {932, "CP932", true},     {936, "CP936", true},
    {949, "CP949", true},         {950, "CP950", true},     {1250, "CP1250", false},
    {1251, "CP1251", false},      {1252, "CP1252", false},  {1253, "CP1253", false},
    {1255, "CP1255", false},      {1256, "CP1256", false},  {1258, "CP1258", false},
    {1361, "CP1361", true},       {20866, "KOI8-R", false}, {28591, "ISO-8859-1", false},
    {28605, "ISO-8859-15", false}};

std::optional<std::string> byIconv(const char* to, const char* from, std::string text)
{
    const iconv_t converter = iconv_open(to, from);
    std::string result(16, '\0');
    char* in = text.data();
    char* out = result.data();
    std::size_t inLeft = text.size();
    std::size_t outLeft = result.size();
    const bool isDone = iconv(converter, &in, &inLeft, &out, &outLeft) == 0 &&
                        iconv(converter, nullptr, nullptr, &out, &outLeft) == 0;
    iconv_close(converter);
    result.resize(result.size() - outLeft);
    return isDone ? std::optional(result) : std::nullopt;
}

std::string bytesOf(Native::WideChar unit)
{
    return {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
}

void decode(const Page& page, const std::string& bytes)
{
    const GString whole(bytes, page.number);
    WideString parts;
    for (std::size_t i = 0; i < bytes.size() && bytes[i] != 0;) {
        // What is a lead byte shows by how the library takes it: with the byte after it, or not.
        std::size_t length = 1;
        if (page.hasLeadBytes && i + 1 < bytes.size() && bytes[i + 1] != 0)
            length = GString(std::string{bytes[i], 'A', 'A'}, page.number).size() == 2 ? 2 : 1;
        parts += GString(bytes.substr(i, length), page.number).text();
        i += length;
    }
    check(whole == GString(parts));
}

void encode(const Page& page, const WideString& units)
{
    const std::string whole = GString(units).to_narrow(page.number);
    std::string parts;
    const bool hasMarks =
        page.number == 1255 || page.number == 1258; // a letter and its mark stay apart
    for (const auto unit : units.substr(0, units.find(Native::WideChar(0)))) {
        const std::string part = GString(WideString(1, unit)).to_narrow(page.number);
        check(part.size() == 1 || (part.size() == 2 && (page.hasLeadBytes || hasMarks)));
        parts += part;
        const auto expected = byIconv(page.name, "UTF-16LE", bytesOf(unit));
        if (expected && byIconv("UTF-16LE", page.name, *expected) == bytesOf(unit)) {
            check(part == *expected || part == "?" || page.number == 932);
            check(part != *expected || hasMarks ||
                  GString(part, page.number) == GString(WideString(1, unit)));
        }
    }
    check(whole == parts);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const Page& page = pages[input.below(std::size(pages))];
    const std::string bytes = input.rest().substr(0, 64); // iconv is opened for each character
    decode(page, bytes);
    encode(page, wide(bytes));

    // Those whose characters cannot be told apart here, and unknown ones. A text of more than two
    // characters of four bytes, which only 54936 has, would be cut on purpose.
    for (const unsigned other :
         {65001U, 54936U, 65000U, 50220U, 1200U, static_cast<unsigned>(37 * bytes.size())}) {
        const GString text(bytes, other);
        check(text.size() <= bytes.size());
        const std::size_t most = other == 54936 ? 2 : bytes.size();
        static_cast<void>(GString(wide(bytes).substr(0, most)).to_narrow(other));
    }
    return 0;
}
