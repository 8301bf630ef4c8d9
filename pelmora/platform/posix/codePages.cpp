#include "pelmora/platform/codePages.h"

#include "pelmora/platform/posix/bestFit1252.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include <iconv.h>

namespace Pelmora::Native::Platform
{
namespace
{

constexpr unsigned int ansiPage = 1252;
constexpr unsigned int oemPage = 437;
constexpr unsigned int utf8Page = 65001;

/// The page behind the numbers that stand for a default.
unsigned int actualPage(unsigned int codePage)
{
    switch (codePage) {
    case 0: // CP_ACP
    case 3: // CP_THREAD_ACP
        return ansiPage;
    case 1: // CP_OEMCP
        return oemPage;
    default:
        return codePage;
    }
}

std::string iconvName(unsigned int page)
{
    if (page == utf8Page)
        return "UTF-8";
    if (page == 54936)
        return "GB18030";
    if (page == 20866)
        return "KOI8-R";
    if (page >= 28591 && page <= 28605)
        return "ISO-8859-" + std::to_string(page - 28590);
    return "CP" + std::to_string(page);
}

class Converter
{
public:
    Converter(const std::string& to, const std::string& from)
        : handle_(iconv_open(to.c_str(), from.c_str()))
    {
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter()
    {
        if (valid())
            iconv_close(handle_);
    }

    bool valid() const
    {
        return handle_ != reinterpret_cast<iconv_t>(-1); // NOLINT: iconv's own error value
    }

    /// As much as possible; 0 when all is converted, otherwise the error number.
    int convert(char*& in, std::size_t& inLeft, char*& out, std::size_t& outLeft)
    {
        const auto irreversible = iconv(handle_, &in, &inLeft, &out, &outLeft);
        return irreversible == static_cast<std::size_t>(-1) ? errno : 0;
    }

    /// Gives out what is held back until more comes.
    int flush(char*& out, std::size_t& outLeft)
    {
        const auto irreversible = iconv(handle_, nullptr, nullptr, &out, &outLeft);
        return irreversible == static_cast<std::size_t>(-1) ? errno : 0;
    }

private:
    iconv_t handle_;
};

const char* utf16Name()
{
    return std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";
}

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0U) == 0x80;
}

/// Bytes of the malformed UTF-8 sequence at `text` that one U+FFFD replaces.
std::size_t malformedUtf8Length(const unsigned char* text)
{
    const unsigned char lead = text[0];
    if (lead < 0xC2 || lead > 0xF4 || !isContinuation(text[1]))
        return 1;
    const bool inRange = (lead != 0xF0 || text[1] >= 0x90) && (lead != 0xF4 || text[1] < 0x90);
    return lead >= 0xF0 && inRange && isContinuation(text[2]) ? 3 : 2;
}

/// Whether iconv joins a letter and the mark behind it into one character, which Windows does not.
bool joinsMarks(unsigned int page)
{
    return page == 1255 || page == 1258;
}

bool isLeadByte(unsigned int page, unsigned char byte)
{
    switch (page) {
    case 932:
        return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
    case 936:
    case 949:
    case 950:
        return byte >= 0x81 && byte <= 0xFE;
    default:
        return false;
    }
}

struct Replacement {
    WideChar unit;
    std::size_t length; ///< of the bytes that it replaces
};

/// Requires: `text` ends in a NUL and does not begin with it.
Replacement replacementFor(unsigned int page, const unsigned char* text)
{
    if (page == utf8Page)
        return {0xFFFD, malformedUtf8Length(text)};
    if (isLeadByte(page, text[0])) {
        const WideChar unit = page == 932 ? u'\u30FB' : u'?';
        return {unit, text[1] == 0 ? 1U : 2U};
    }
    // Windows maps the bytes that its pages leave undefined here to the C1 controls.
    const bool isControl = text[0] >= 0x80 && text[0] <= 0x9F;
    return {isControl ? static_cast<WideChar>(text[0]) : u'?', 1};
}

char bestFit(unsigned int page, WideChar unit)
{
    if (page != ansiPage)
        return '?';
    if (unit >= 0xFF01 && unit <= 0xFF5E)
        return static_cast<char>(unit - 0xFF01 + 0x21);
    for (const BestFitRow& row : bestFit1252)
        if (const auto at = row.characters.find(unit); at != std::u16string_view::npos)
            return row.bytes[at];
    return '?';
}

} // namespace

ConversionStatus decode(unsigned int codePage, const char* text, std::span<WideChar> buffer)
{
    const unsigned int page = actualPage(codePage);
    Converter converter(utf16Name(), iconvName(page));
    if (!converter.valid())
        return ConversionStatus::failed;

    char* in = const_cast<char*>(text); // NOLINT: iconv reads only
    std::size_t inLeft = std::strlen(text) + 1;
    char* out = reinterpret_cast<char*>(buffer.data());
    std::size_t outLeft = buffer.size_bytes();
    while (inLeft > 0) {
        const std::size_t offered = joinsMarks(page) ? 1 : inLeft;
        std::size_t left = offered;
        int error = converter.convert(in, left, out, outLeft);
        inLeft -= offered - left;
        if (error == 0)
            error = converter.flush(out, outLeft);
        if (error == 0)
            continue;
        if (error == E2BIG || outLeft < sizeof(WideChar))
            return ConversionStatus::bufferTooSmall;
        const Replacement replacement =
            replacementFor(page, reinterpret_cast<const unsigned char*>(in));
        std::memcpy(out, &replacement.unit, sizeof(WideChar));
        out += sizeof(WideChar);
        outLeft -= sizeof(WideChar);
        in += replacement.length;
        inLeft -= replacement.length;
    }
    return ConversionStatus::done;
}

ConversionStatus encode(unsigned int codePage, const WideChar* text, std::span<char> buffer)
{
    const unsigned int page = actualPage(codePage);
    Converter converter(iconvName(page), utf16Name());
    if (!converter.valid())
        return ConversionStatus::failed;

    const std::size_t units = std::char_traits<WideChar>::length(text) + 1;
    char* in = reinterpret_cast<char*>(const_cast<WideChar*>(text)); // NOLINT: iconv reads only
    std::size_t inLeft = units * sizeof(WideChar);
    char* out = buffer.data();
    std::size_t outLeft = buffer.size();
    while (const int error = converter.convert(in, inLeft, out, outLeft)) {
        if (error == E2BIG || outLeft == 0)
            return ConversionStatus::bufferTooSmall;
        WideChar unit = 0;
        std::memcpy(&unit, in, sizeof(WideChar));
        *out++ = bestFit(page, unit);
        --outLeft;
        in += sizeof(WideChar);
        inLeft -= sizeof(WideChar);
    }
    return ConversionStatus::done;
}

char16_t ansiDefaultCharacter() noexcept
{
    return u'?';
}

} // namespace Pelmora::Native::Platform
