// Splitting at a separator, and links.

#include "fuzz/FuzzedInput.h"
#include "pelmora/gui/textUtil.h"

using namespace Pelmora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const auto separator = input.number<char>();
    const std::string text = input.rest();

    std::vector<std::string> all = {""};
    std::vector<std::string> filled;
    for (const char c : text) {
        if (c == separator)
            all.emplace_back();
        else
            all.back() += c;
    }
    for (const std::string& field : all)
        if (!field.empty())
            filled.push_back(field);
    check(Native::split(text, separator, false) == all);
    check(Native::split(text, separator, true) == filled);

    const GString target(wide(all.front()));
    const GString shown(wide(all.back()));
    const GString link =
        GString(u"<a href=\"") + target + GString(u"\">") + shown + GString(u"</a>");
    check(Native::makeLink(shown, target) == (target.empty() ? shown : link));
    return 0;
}
