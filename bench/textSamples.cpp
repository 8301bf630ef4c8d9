#include "bench/textSamples.h"

#include <cstdlib>
#include <fstream>

namespace Pelmora::Bench
{
namespace
{

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

} // namespace

void require(bool condition)
{
    if (!condition)
        std::abort();
}

std::string sample(const Language& language, std::size_t bytes)
{
    std::string text;
    while (text.size() <= bytes)
        text += language.sentence;
    while (continuesCharacter(text[bytes]))
        --bytes;
    text.resize(bytes);
    return text;
}

std::u16string wideSample(const Language& language, std::size_t bytes)
{
    std::u16string wide;
    for (const char byte : sample(language, bytes)) {
        // No sentence has characters beyond U+FFFF.
        const auto bits = static_cast<unsigned char>(byte);
        if (continuesCharacter(byte))
            wide.back() = static_cast<char16_t>(wide.back() << 6 | (bits & 0x3FU));
        else
            wide += static_cast<char16_t>(bits < 0xC0   ? bits
                                          : bits < 0xE0 ? bits & 0x1FU
                                                        : bits & 0x0FU);
    }
    return wide;
}

std::string markup(std::string_view special, std::size_t bytes)
{
    std::string text = sample(languages[0], bytes);
    // At irregular places, one in each twenty characters.
    for (std::size_t i = 0; i + 20 <= bytes; i += 20)
        text[i + i / 20 * 7 % 20] = special[i / 20 % special.size()];
    return text;
}

const std::vector<std::string>& identifiers()
{
    static const std::vector<std::string> all = [] {
        std::vector<std::string> lines;
        std::ifstream file(CATALOGUE_FOLDER "/identifiers");
        for (std::string line; std::getline(file, line);)
            lines.push_back(line);
        return lines;
    }();
    return all;
}

const std::vector<std::string>& missingIdentifiers()
{
    static const std::vector<std::string> all = [] {
        std::vector<std::string> lines = identifiers();
        for (std::string& line : lines)
            line += '?';
        return lines;
    }();
    return all;
}

} // namespace Pelmora::Bench
