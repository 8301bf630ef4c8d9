#include "pelmora/platform/codePages.h"

#include "pelmora/base/codePageNumbers.h"
#include "pelmora/platform/posix/bestFit.h"
#include "pelmora/platform/posix/converters.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>

namespace Pelmora::Native::Platform
{
namespace
{

constexpr unsigned int ansiPage = 1252;
constexpr unsigned int oemPage = 437;
constexpr unsigned int gb18030Page = 54936;

/// Resolves CP_ACP, CP_THREAD_ACP and CP_OEMCP.
unsigned int actualPage(unsigned int codePage)
{
    switch (codePage) {
    case ansiCodePage:
    case 3: // CP_THREAD_ACP
        return ansiPage;
    case 1: // CP_OEMCP
        return oemPage;
    default:
        return codePage;
    }
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

/// Whether iconv joins a letter and the mark after it into one character, which Windows does not.
bool joinsMarks(unsigned int page)
{
    return page == 1255 || page == 1258;
}

struct LeadBytes {
    unsigned int page;
    unsigned char first;
    unsigned char last;
};

constexpr LeadBytes leadBytes[] = {
    {932, 0x81, 0x9F}, {932, 0xE0, 0xFC},  {936, 0x81, 0xFE},  {949, 0x81, 0xFE},
    {950, 0x81, 0xFE}, {1361, 0x84, 0xD3}, {1361, 0xD8, 0xDE}, {1361, 0xE0, 0xF9},
};

bool hasLeadBytes(unsigned int page)
{
    return std::any_of(std::begin(leadBytes), std::end(leadBytes),
                       [page](const LeadBytes& row) { return row.page == page; });
}

bool isLeadByte(unsigned int page, unsigned char byte)
{
    return std::any_of(std::begin(leadBytes), std::end(leadBytes), [=](const LeadBytes& row) {
        return row.page == page && byte >= row.first && byte <= row.last;
    });
}

/// The place after a number of characters, each of which is one byte or a lead byte and another.
char* afterCharacters(unsigned int page, char* text, std::size_t characters)
{
    for (; characters > 0; --characters)
        text += isLeadByte(page, static_cast<unsigned char>(*text)) ? 2 : 1;
    return text;
}

/// A single byte that Windows maps to a unit, and back, although its page leaves it undefined.
struct UndefinedByte {
    unsigned int page;
    unsigned char byte;
    WideChar unit;
};

constexpr UndefinedByte undefinedBytes[] = {
    {932, 0x80, 0x0080},  {932, 0xA0, 0xF8F0},  {932, 0xFD, 0xF8F1},  {932, 0xFE, 0xF8F2},
    {932, 0xFF, 0xF8F3},  {936, 0xFF, 0xF8F5},  {949, 0x80, 0x0080},  {949, 0xFF, 0xF8F7},
    {1252, 0x81, 0x0081}, {1252, 0x8D, 0x008D}, {1252, 0x8F, 0x008F}, {1252, 0x90, 0x0090},
    {1252, 0x9D, 0x009D},
};

struct Replacement {
    WideChar unit;
    std::size_t length; ///< of the bytes that it replaces
};

/// Requires: `text` ends in a NUL and does not begin with it.
Replacement replacementFor(unsigned int page, const unsigned char* text)
{
    if (page == utf8CodePage)
        return {0xFFFD, malformedUtf8Length(text)};
    if (isLeadByte(page, text[0])) {
        const WideChar unit = page == 932 ? u'\u30FB' : u'?';
        return {unit, text[1] == 0 ? 1U : 2U};
    }
    for (const UndefinedByte& row : undefinedBytes)
        if (row.page == page && row.byte == text[0])
            return {row.unit, 1};
    // Most other pages map what they leave undefined here to the C1 controls.
    const bool isControl = text[0] >= 0x80 && text[0] <= 0x9F;
    return {isControl ? static_cast<WideChar>(text[0]) : u'?', 1};
}

std::optional<char> undefinedByteOf(unsigned int page, wchar_t character)
{
    for (const UndefinedByte& row : undefinedBytes)
        if (row.page == page && row.unit == character) // NOLINT: neither is a char
            return static_cast<char>(row.byte);
    return std::nullopt;
}

/// Whether iconv converts a unit to a page that, to Windows, does not have it. Some supplementary
/// characters it drops from every page.
bool isForeign(unsigned int page, WideChar unit)
{
    constexpr WideView foreignTo932 = u"\u2014\u2016\u203E\u2212\u301C";
    const bool isSurrogate = (unit & 0xF800U) == 0xD800U;
    return isSurrogate || (page == 932 && foreignTo932.find(unit) != WideView::npos);
}

/// Takes the next character from the start of `text`: a surrogate pair in the pages that have a
/// counterpart for it, otherwise one unit.
wchar_t takeCharacter(unsigned int page, WideView& text)
{
    const WideChar unit = text.front();
    text.remove_prefix(1);
    const bool isPair = (page == gb18030Page || page == utf8CodePage) &&
                        (unit & 0xFC00U) == 0xD800U && !text.empty() &&
                        (text.front() & 0xFC00U) == 0xDC00U;
    if (isPair) {
        const WideChar low = text.front();
        text.remove_prefix(1);
        return static_cast<wchar_t>(0x10000U + ((unit & 0x3FFU) << 10U) + (low & 0x3FFU));
    }
    return isForeign(page, unit) ? L'?' : static_cast<wchar_t>(unit);
}

/// Remembers the fits of characters that a page was found to lack; of those that share a slot, the
/// latest. Asking here is much quicker than letting iconv fail again.
class KnownFits
{
public:
    void add(wchar_t character, wchar_t fit) { placeOf(character) = {character, fit}; }

    /// The fit, or the character itself when none is known.
    wchar_t fitOr(wchar_t character)
    {
        const Entry& entry = placeOf(character);
        return entry.character == character ? entry.fit : character;
    }

private:
    struct Entry {
        wchar_t character = 0;
        wchar_t fit = 0;
    };

    Entry& placeOf(wchar_t character)
    {
        return entries_[static_cast<std::size_t>(character) % entries_.size()];
    }

    std::array<Entry, 512> entries_;
};

/// Writes text into a buffer in one code page.
class Encoder
{
public:
    Encoder(unsigned int page, std::span<char> buffer)
        : page_(page),
          converter_(borrowConverter(page, Direction::encoding)),
          out_(buffer.data()),
          outLeft_(buffer.size())
    {
    }

    ConversionStatus encode(WideView text)
    {
        if (converter_ == nullptr)
            return ConversionStatus::failed;
        std::array<wchar_t, 256> characters;
        auto status = ConversionStatus::done;
        while (!text.empty() && status == ConversionStatus::done) {
            std::size_t count = 0;
            while (count < characters.size() && !text.empty()) {
                const wchar_t character = takeCharacter(page_, text);
                characters[count++] = knownFits_ ? knownFits_->fitOr(character) : character;
            }
            status = convert(std::span(characters).first(count));
        }
        return status;
    }

private:
    ConversionStatus convert(std::span<wchar_t> characters)
    {
        char* in = reinterpret_cast<char*>(characters.data());
        std::size_t inLeft = characters.size_bytes();
        while (const int error = converter_->convert(in, inLeft, out_, outLeft_)) {
            if (error == E2BIG || outLeft_ == 0)
                return ConversionStatus::bufferTooSmall;
            wchar_t& missing = characters[characters.size() - inLeft / sizeof(wchar_t)];
            if (missing == L'?')
                return ConversionStatus::failed;
            if (const std::optional<char> byte = undefinedByteOf(page_, missing)) {
                *out_++ = *byte;
                --outLeft_;
                in += sizeof(wchar_t);
                inLeft -= sizeof(wchar_t);
            } else {
                const wchar_t fit = bestFit(page_, missing);
                if (!knownFits_)
                    knownFits_.emplace();
                knownFits_->add(missing, fit);
                missing = fit;
            }
        }
        return ConversionStatus::done;
    }

    unsigned int page_;
    BorrowedConverter converter_;
    std::optional<KnownFits> knownFits_; // most texts need none
    char* out_;
    std::size_t outLeft_;
};

} // namespace

ConversionStatus decode(unsigned int codePage, const char* text, std::span<WideChar> buffer)
{
    const unsigned int page = actualPage(codePage);
    const BorrowedConverter converter = borrowConverter(page, Direction::decoding);
    if (converter == nullptr)
        return ConversionStatus::failed;

    char* in = const_cast<char*>(text); // NOLINT: iconv reads only
    const char* const end = in + std::strlen(text) + 1;
    char* out = reinterpret_cast<char*>(buffer.data());
    std::size_t outLeft = buffer.size_bytes();
    while (in < end) {
        char* const start = in;
        const std::size_t leftBefore = outLeft;
        std::size_t offered = joinsMarks(page) ? 1 : static_cast<std::size_t>(end - in);
        int error = converter->convert(in, offered, out, outLeft);
        if (error == 0)
            error = converter->flush(out, outLeft);
        if (error == 0)
            continue;
        if (error == E2BIG || outLeft < sizeof(WideChar))
            return ConversionStatus::bufferTooSmall;
        // iconv itself may have moved on already, as after A2 E8 in code page 949.
        if (hasLeadBytes(page))
            in = afterCharacters(page, start, (leftBefore - outLeft) / sizeof(WideChar));
        const Replacement replacement =
            replacementFor(page, reinterpret_cast<const unsigned char*>(in));
        std::memcpy(out, &replacement.unit, sizeof(WideChar));
        out += sizeof(WideChar);
        outLeft -= sizeof(WideChar);
        in += replacement.length;
    }
    return ConversionStatus::done;
}

ConversionStatus encode(unsigned int codePage, const WideChar* text, std::span<char> buffer)
{
    return Encoder(actualPage(codePage), buffer)
        .encode({text, std::char_traits<WideChar>::length(text) + 1});
}

char16_t ansiDefaultCharacter() noexcept
{
    return u'?';
}

} // namespace Pelmora::Native::Platform
