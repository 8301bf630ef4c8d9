// Escaping, its reverse and replacing, in narrow and wide texts, character by character.

#include "fuzz/FuzzedInput.h"
#include "pelmora/formatter/Formatter.h"

using namespace Pelmora;
using namespace Native::Formatter;

namespace
{

constexpr std::pair<char, std::string_view> entities[] = {
    {'&', "&amp;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&apos;"}, {'<', "&lt;"}};

template <class Text>
void compare(const Text& text, const Text& from, const Text& to)
{
    using View = std::basic_string_view<typename Text::value_type>;
    const auto widened = [](std::string_view ascii) { return Text(ascii.begin(), ascii.end()); };
    Text escaped;
    for (const auto character : text) {
        Text part(1, character);
        for (const auto& [plain, entity] : entities)
            if (part == widened({&plain, 1}))
                part = widened(entity);
        escaped += part;
    }
    check(escape(View(text)) == escaped);
    check(unescape(View(escaped)) == text);

    Text unescaped;
    for (std::size_t i = 0; i < text.size();) {
        Text part(1, text[i]);
        std::size_t length = 1;
        for (const auto& [plain, entity] : entities) {
            if (text.compare(i, entity.size(), widened(entity)) == 0) {
                part = widened({&plain, 1});
                length = entity.size();
            }
        }
        unescaped += part;
        i += length;
    }
    check(unescape(View(text)) == unescaped);

    Text replaced = text;
    if (!from.empty())
        for (std::size_t at = 0; (at = replaced.find(from, at)) != Text::npos; at += to.size())
            replaced.replace(at, from.size(), to);
    check(replaceAll(View(text), View(from), View(to)) == replaced);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const std::string from = input.line();
    const std::string to = input.line();
    const std::string text = input.rest();
    compare(text, from, to);
    compare(wide(text), wide(from), wide(to));
    return 0;
}
