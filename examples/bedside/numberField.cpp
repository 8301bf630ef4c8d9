#include "numberField.h"

#include "infusions/quantity.h"
#include "infusions/translation.h"

#include <algorithm>

namespace Bedside
{
namespace
{

using Infusions::QuantityError;
using Infusions::tr;
using Pelmora::GString;

GString trimmed(const GString& text)
{
    const auto isSpace = [](auto unit) { return GString::is_space(unit); };
    const GString::View view = text;
    const auto first = std::find_if_not(view.begin(), view.end(), isSpace);
    const auto last = std::find_if_not(view.rbegin(), std::make_reverse_iterator(first), isSpace);
    return GString::Text(first, last.base());
}

[[noreturn]] void refuse(const char* reason, const GString& text)
{
    throw QuantityError(GString::format(tr(reason), text));
}

} // namespace

bool isBlank(const GString& text)
{
    return trimmed(text).empty();
}

std::string plainNumber(const GString& text)
{
    const GString number = trimmed(text);
    const GString::View view = number;
    if (view.find(u',') != GString::View::npos)
        refuse("'%s' has a comma; write the decimal point as '.'", number);
    const auto digits = std::count_if(view.begin(), view.end(), GString::is_digit);
    const auto points = std::count(view.begin(), view.end(), u'.');
    const bool begins = GString::is_digit(view.front()) || (view.front() == u'.' && digits > 0);
    if (!begins)
        refuse("'%s' does not begin with a number", number);
    if (points > 1 || digits + points != static_cast<std::ptrdiff_t>(view.size()))
        refuse("'%s' is more than one number", number);
    return number.to_narrow();
}

} // namespace Bedside
