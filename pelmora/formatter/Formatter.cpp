#include "pelmora/formatter/Formatter.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace Pelmora::Native::Formatter
{
namespace
{

// One pass gives the same result as replacing one character after the other, the ampersand first
// (for unescaping last): apart from its ampersand, no entity contains a character that has an
// entity.

struct Entity {
    char character;
    std::string_view text;
};

constexpr std::array<Entity, 5> entities = {{
    {'&', "&amp;"},
    {'>', "&gt;"},
    {'"', "&quot;"},
    {'\'', "&apos;"},
    {'<', "&lt;"},
}};

/// So many characters are copied and compared at once: no entity is longer.
constexpr std::size_t paddedLength = 8;
template <class Char>
using Padded = std::array<Char, paddedLength>;

/// An entity with its text filled up with NULs, and a mask of what is not filling. Without an
/// entity, it matches nothing that begins with an ampersand.
template <class Char>
struct Pattern {
    Padded<Char> text{};
    Padded<Char> mask = {static_cast<Char>(~Char(0))};
    std::size_t length = 0;
    Char character = 0;

    constexpr Pattern() = default;
    constexpr explicit Pattern(const Entity& entity)
        : length(entity.text.size()), character(static_cast<Char>(entity.character))
    {
        std::copy(entity.text.begin(), entity.text.end(), text.begin());
        std::fill_n(mask.begin(), length, static_cast<Char>(~Char(0)));
    }

    bool matches(const Padded<Char>& start) const
    {
        using Words = std::array<std::uint64_t, sizeof start / sizeof(std::uint64_t)>;
        const auto given = std::bit_cast<Words>(start);
        const auto wanted = std::bit_cast<Words>(text);
        const auto compared = std::bit_cast<Words>(mask);
        std::uint64_t difference = 0;
        for (std::size_t i = 0; i < given.size(); ++i)
            difference |= (given[i] ^ wanted[i]) & compared[i];
        return difference == 0;
    }
};

/// The entities' patterns, each at its place.
template <class Char, std::size_t size, class Place>
constexpr std::array<Pattern<Char>, size> patternsBy(Place place)
{
    std::array<Pattern<Char>, size> patterns{};
    for (const Entity& entity : entities) {
        Pattern<Char>& pattern = patterns[place(entity)];
        if (pattern.length != 0)
            throw "two entities share a place"; // NOLINT: an error of the compilation
        pattern = Pattern<Char>(entity);
    }
    return patterns;
}

/// By the two characters after the ampersand.
constexpr std::size_t slotOf(std::size_t second, std::size_t third)
{
    return (second ^ third) % 16;
}

template <class Char>
constexpr auto patternsByText = patternsBy<Char, 16>([](const Entity& entity) {
    return slotOf(static_cast<unsigned char>(entity.text[1]),
                  static_cast<unsigned char>(entity.text[2]));
});

template <class Char>
constexpr auto patternsByCharacter = patternsBy<Char, 64>([](const Entity& entity) {
    return static_cast<unsigned char>(entity.character);
});

/// The characters of a machine word, or those that are left of a text and NULs.
template <class Char>
class Word
{
public:
    static constexpr std::size_t length = sizeof(std::uint64_t) / sizeof(Char);

    explicit Word(std::basic_string_view<Char> text)
    {
        if (text.size() >= length)
            std::memcpy(&bits_, text.data(), sizeof bits_);
        else
            std::memcpy(&bits_, text.data(), text.size() * sizeof(Char));
    }

    void copyTo(Char* out) const
    {
        const auto characters = std::bit_cast<std::array<Char, length>>(bits_);
        std::copy(characters.begin(), characters.end(), out); // memcpy would be checked each time
    }

    // What is found is the highest bit of the first lane with such a character, which is the
    // lowest, and perhaps bits of lanes behind it.
    std::uint64_t equalTo(char character) const { return zeroLanes(bits_ ^ all(character)); }
    /// Of two characters that differ in one bit.
    std::uint64_t equalToEither(char smaller, char larger) const
    {
        return zeroLanes((bits_ | (all(smaller) ^ all(larger))) ^ all(larger));
    }

    static std::size_t firstOf(std::uint64_t found)
    {
        static_assert(std::endian::native == std::endian::little);
        return static_cast<std::size_t>(std::countr_zero(found)) / (8 * sizeof(Char));
    }

private:
    static constexpr std::uint64_t ones = ~std::uint64_t(0) / std::make_unsigned_t<Char>(~Char(0));
    static constexpr std::uint64_t highBits = ones << (8 * sizeof(Char) - 1);

    static constexpr std::uint64_t all(char character)
    {
        return ones * static_cast<unsigned char>(character);
    }
    static std::uint64_t zeroLanes(std::uint64_t x) { return (x - ones) & ~x & highBits; }

    std::uint64_t bits_ = 0;
};

constexpr std::size_t blockLength = 256;

/// The length of the blocks at the start of a text in which nothing is to be replaced. Tested
/// without branches, so that the compiler takes vector registers.
template <class Replacing, class Char>
std::size_t cleanBlocks(std::basic_string_view<Char> text)
{
    std::size_t length = 0;
    for (; text.size() - length >= blockLength; length += blockLength) {
        const Char* const block = text.data() + length; // a view would check each place
        Char stops = 0;
        for (std::size_t i = 0; i < blockLength; ++i) {
            const bool isStop = Replacing::isStop(block[i]);
            stops = static_cast<Char>(stops | static_cast<Char>(isStop));
        }
        if (stops != 0)
            break;
    }
    return length;
}

/// What was replaced: so many characters by so many others.
struct Step {
    std::size_t read;
    std::size_t written;
};

/// Replaces the five characters.
struct Escaping {
    static constexpr std::size_t usualGrowth = 5; // quarters of the length
    template <class Char>
    static bool isStop(Char c)
    {
        return (c | 1) == '\'' || (c | 2) == '>' || c == '"';
    }

    template <class Char>
    static std::uint64_t stopsIn(const Word<Char>& word)
    {
        return word.equalToEither('&', '\'') | word.equalToEither('<', '>') | word.equalTo('"');
    }

    template <class Char>
    static std::size_t cleanLength(std::basic_string_view<Char> text)
    {
        return cleanBlocks<Escaping>(text);
    }

    template <class Char>
    static Step replace(std::basic_string_view<Char> text, Char* out)
    {
        const auto& pattern = patternsByCharacter<Char>[std::make_unsigned_t<Char>(text.front())];
        std::copy(pattern.text.begin(), pattern.text.end(), out);
        return {1, pattern.length};
    }
};

/// Replaces the five entities.
struct Unescaping {
    static constexpr std::size_t usualGrowth = 4;
    template <class Char>
    static bool isStop(Char c)
    {
        return c == '&';
    }

    template <class Char>
    static std::uint64_t stopsIn(const Word<Char>& word)
    {
        return word.equalTo('&');
    }

    template <class Char>
    static std::size_t cleanLength(std::basic_string_view<Char> text)
    {
        if constexpr (sizeof(Char) == 1)
            return std::min(text.find('&'), text.size()); // memchr
        else
            return cleanBlocks<Unescaping>(text);
    }

    template <class Char>
    static Step replace(std::basic_string_view<Char> text, Char* out)
    {
        Padded<Char> start{};
        if (text.size() >= start.size())
            std::memcpy(start.data(), text.data(), sizeof start);
        else
            std::copy(text.begin(), text.end(), start.begin());
        const std::size_t slot =
            slotOf(std::make_unsigned_t<Char>(start[1]), std::make_unsigned_t<Char>(start[2]));
        const auto& pattern = patternsByText<Char>[slot];
        *out = text.front();
        if (!pattern.matches(start))
            return {1, 1};
        *out = pattern.character;
        return {pattern.length, 1};
    }
};

/// One pass over a text: long clean parts as a whole, the others by words into an array on the
/// stack, since a string's own room cannot be written before it was filled with zeros.
template <class Replacing, class Char>
std::basic_string<Char> converted(std::basic_string_view<Char> text)
{
    constexpr std::size_t pieceLength = 512;
    constexpr std::size_t longestStep = Word<Char>::length + paddedLength;
    std::array<Char, pieceLength + longestStep> piece;
    std::basic_string<Char> result;
    if (text.size() > pieceLength)
        result.reserve(text.size() / 4 * Replacing::usualGrowth);
    while (!text.empty()) {
        const std::size_t clean = Replacing::cleanLength(text);
        result.append(text.substr(0, clean));
        text.remove_prefix(clean);
        Char* out = piece.data();
        while (!text.empty() && out < piece.data() + pieceLength) {
            const Word<Char> word(text);
            word.copyTo(out);
            const std::uint64_t stops = Replacing::stopsIn(word);
            const std::size_t plain =
                stops == 0 ? std::min(text.size(), Word<Char>::length) : Word<Char>::firstOf(stops);
            text.remove_prefix(plain);
            out += plain;
            if (stops != 0) {
                const Step step = Replacing::replace(text, out);
                text.remove_prefix(step.read);
                out += step.written;
            }
        }
        result.append(piece.data(), out);
    }
    return result;
}

template <class Char>
std::basic_string<Char> replaced(std::basic_string_view<Char> text,
                                 std::basic_string_view<Char> from, std::basic_string_view<Char> to)
{
    constexpr std::size_t nowhere = std::basic_string_view<Char>::npos;
    std::size_t found = from.empty() ? nowhere : text.find(from);
    if (found == nowhere)
        return std::basic_string<Char>(text);
    std::basic_string<Char> result;
    result.reserve(text.size() + (to.size() > from.size() ? 2 * (to.size() - from.size()) : 0));
    std::size_t position = 0;
    for (; found != nowhere; found = text.find(from, position)) {
        result.append(text.substr(position, found - position)).append(to);
        position = found + from.size();
    }
    return result.append(text.substr(position));
}

} // namespace

std::string escape(std::string_view text)
{
    return converted<Escaping>(text);
}

WideString escape(WideView text)
{
    return converted<Escaping>(text);
}

std::string unescape(std::string_view text)
{
    return converted<Unescaping>(text);
}

WideString unescape(WideView text)
{
    return converted<Unescaping>(text);
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to)
{
    return replaced(text, from, to);
}

WideString replaceAll(WideView text, WideView from, WideView to)
{
    return replaced(text, from, to);
}

} // namespace Pelmora::Native::Formatter
