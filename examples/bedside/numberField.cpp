#include "numberField.h"

#include "infusions/quantity.h"
#include "translation/translation.h"

#include <algorithm>
#include <array>

#include <windows.h>

namespace Bedside
{
namespace
{

using Infusions::QuantityError;
using Pelmora::GString;
using Pelmora::WideView;
using Translation::tr;

WideView trimmed(const GString& text)
{
    return Infusions::trimmed(WideView(text), GString::is_space);
}

/// Where the decimal sign is a comma, a point may separate thousands.
bool hasDecimalComma()
{
    const auto language = static_cast<LCID>(Pelmora::Native::gettext_locale.lang_id());
    std::array<wchar_t, 8> sign = {};
    GetLocaleInfoW(language, LOCALE_SDECIMAL, sign.data(), static_cast<int>(sign.size()));
    return sign.front() == L',';
}

/// "2.500" and "70.000", but not "0.125": no thousands begin with a nought.
bool looksLikeThousands(WideView number)
{
    constexpr std::size_t digitsOfThousands = 3;
    const std::size_t point = number.find(u'.');
    return point != WideView::npos && point > 0 && number.front() != u'0' &&
           number.size() - point - 1 == digitsOfThousands;
}

template <class... Texts>
[[noreturn]] void refuse(const char* reason, const Texts&... texts)
{
    throw QuantityError(GString::format(tr(reason), texts...));
}

} // namespace

bool isBlank(const GString& text)
{
    return trimmed(text).empty();
}

std::string plainNumber(const GString& text)
{
    const WideView view = trimmed(text);
    const GString number = view;
    if (view.find(u',') != WideView::npos)
        refuse("'%s' has a comma; write numbers like 2500 or 2.5", number);
    const auto digits = std::count_if(view.begin(), view.end(), GString::is_digit);
    const auto points = std::count(view.begin(), view.end(), u'.');
    const bool begins = GString::is_digit(view.front()) || (view.front() == u'.' && digits > 0);
    if (!begins)
        refuse("'%s' does not begin with a number", number);
    if (points > 1 || digits + points != static_cast<std::ptrdiff_t>(view.size()))
        refuse("'%s' is more than one number", number);
    if (hasDecimalComma() && looksLikeThousands(view)) {
        const std::size_t point = view.find(u'.');
        const GString thousands = GString(view.substr(0, point)) + view.substr(point + 1);
        refuse("'%s' can be read as thousands; write %s or %s", number, thousands, number + u"0");
    }
    return number.to_narrow();
}

} // namespace Bedside
