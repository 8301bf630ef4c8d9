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

/// The number of the entity for each of the first 64 characters, which include all five; 5 for
/// none.
constexpr std::array<std::uint8_t, 64> entityNumbers = []() {
    std::array<std::uint8_t, 64> numbers{};
    numbers.fill(entities.size());
    for (std::size_t i = 0; i < entities.size(); ++i)
        numbers[static_cast<unsigned char>(entities[i].character)] = static_cast<std::uint8_t>(i);
    return numbers;
}();

template <class Char>
const Entity* entityOf(Char character)
{
    const auto value = static_cast<std::uint32_t>(std::make_unsigned_t<Char>(character));
    const std::size_t number =
        value < entityNumbers.size() ? entityNumbers[value] : entities.size();
    return number < entities.size() ? &entities[number] : nullptr;
}

constexpr std::size_t blockLength = 32; // whole vector registers, also for wide characters

/// Whether none of the next `blockLength` characters has an entity. Without branches, so that the
/// compiler tests many at once in vector registers.
template <class Char>
bool isCleanBlock(const Char* text)
{
    Char found = 0;
    for (std::size_t i = 0; i < blockLength; ++i) {
        const Char c = text[i];
        // 0x26 and 0x27, 0x3C and 0x3E differ in one bit each.
        const bool special = (c | 1) == 0x27 || (c | 2) == 0x3E || c == 0x22;
        found = static_cast<Char>(found | static_cast<Char>(special));
    }
    return found == 0;
}

/// The number of leading characters without an entity, up to the first that has one.
template <class Char>
std::size_t cleanLength(std::basic_string_view<Char> text)
{
    std::size_t length = 0;
    while (text.size() - length >= blockLength && isCleanBlock(text.data() + length))
        length += blockLength;
    while (length < text.size() && entityOf(text[length]) == nullptr)
        ++length;
    return length;
}

/// Copies leading characters that have no entity, at most one machine word, and returns how many.
/// May write beyond them, up to the length of the word. Requires: `text` is not empty.
template <class Char>
std::size_t copyPlain(std::basic_string_view<Char> text, Char* out)
{
    static_assert(std::endian::native == std::endian::little, "the first character is the lowest");
    constexpr std::size_t lanes = sizeof(std::uint64_t) / sizeof(Char);
    if (text.size() < lanes) {
        *out = text.front();
        return entityOf(text.front()) == nullptr ? 1 : 0;
    }
    std::uint64_t word = 0;
    std::memcpy(&word, text.data(), sizeof word);
    std::memcpy(out, &word, sizeof word);

    // The lowest lane whose highest bit is set is the first that equals a special character.
    constexpr std::uint64_t ones = ~std::uint64_t(0) / std::make_unsigned_t<Char>(~Char(0));
    constexpr std::uint64_t highBits = ones << (8 * sizeof(Char) - 1);
    const auto zeroLanes = [](std::uint64_t x) { return (x - ones) & ~x & highBits; };
    const std::uint64_t special = zeroLanes((word | ones) ^ (ones * 0x27)) |
                                  zeroLanes((word | ones * 2) ^ (ones * 0x3E)) |
                                  zeroLanes(word ^ (ones * 0x22));
    if (special == 0)
        return lanes;
    return static_cast<std::size_t>(std::countr_zero(special)) / (8 * sizeof(Char));
}

template <class Char>
std::basic_string<Char> escaped(std::basic_string_view<Char> text)
{
    const std::size_t clean = cleanLength(text);
    if (clean == text.size())
        return std::basic_string<Char>(text);

    constexpr std::size_t longestStep = 16; // a word and an entity
    std::basic_string<Char> result(text.size() + text.size() / 4 + longestStep, Char(0));
    std::size_t used = clean;
    std::copy_n(text.data(), clean, result.data());
    for (text.remove_prefix(clean); !text.empty();) {
        if (result.size() - used < longestStep)
            result.resize(2 * result.size());
        const std::size_t plain = copyPlain(text, result.data() + used);
        used += plain;
        text.remove_prefix(plain);
        const Entity* entity = text.empty() ? nullptr : entityOf(text.front());
        if (entity != nullptr) {
            std::copy(entity->text.begin(), entity->text.end(), result.data() + used);
            used += entity->text.size();
            text.remove_prefix(1);
        }
    }
    result.resize(used);
    return result;
}

/// The entity at the start of `text`; null if there is none.
template <class Char>
const Entity* entityAt(std::basic_string_view<Char> text)
{
    for (const Entity& entity : entities)
        if (text.size() >= entity.text.size() &&
            std::equal(entity.text.begin(), entity.text.end(), text.begin()))
            return &entity;
    return nullptr;
}

template <class Char>
std::basic_string<Char> unescaped(std::basic_string_view<Char> text)
{
    std::basic_string<Char> result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t ampersand = std::min(text.find(Char('&')), text.size());
        result.append(text.substr(0, ampersand));
        text.remove_prefix(ampersand);
        if (text.empty())
            break;
        const Entity* entity = entityAt(text);
        result += entity == nullptr ? Char('&') : static_cast<Char>(entity->character);
        text.remove_prefix(entity == nullptr ? 1 : entity->text.size());
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
    return escaped(text);
}

WideString escape(WideView text)
{
    return escaped(text);
}

std::string unescape(std::string_view text)
{
    return unescaped(text);
}

WideString unescape(WideView text)
{
    return unescaped(text);
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
