#include "pelmora/gui/textUtil.h"

#include <algorithm>

namespace Pelmora::Native
{

GString makeLink(const GString& text, const GString& target)
{
    if (target.empty())
        return text;
    return u"<a href=\"" + target + u"\">" + text + u"</a>";
}

std::vector<std::string> split(std::string_view text, char separator, bool skipEmpty)
{
    std::vector<std::string> fields;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        if (end > start || !skipEmpty)
            fields.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return fields;
}

} // namespace Pelmora::Native
