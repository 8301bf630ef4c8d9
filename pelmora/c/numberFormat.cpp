#include "pelmora/base/detail/NeverDestroyed.h"
#include "pelmora/c/border.h"

#include <locale>
#include <new>
#include <string>
#include <utility>

using namespace Pelmora::C;

namespace
{

struct Punctuation {
    char decimalPoint;
    char separator;
    char group;
};

/// A facet that no locale deletes: the standard library's constructor of locales, without memory,
/// either deletes a facet or forgets it.
class NumberFormat : public std::numpunct<char>
{
public:
    NumberFormat() : numpunct(1) {}

    Punctuation punctuation = {'.', ',', 0};

private:
    char do_decimal_point() const override { return punctuation.decimalPoint; }
    char do_thousands_sep() const override { return punctuation.separator; }
    std::string do_grouping() const override
    {
        return punctuation.group == 0 ? std::string() : std::string(1, punctuation.group);
    }
};

/// Makes the global locale anew, because a locale asks its facets once and keeps the answers.
void setGlobally(const Punctuation& punctuation)
{
    static Pelmora::Native::NeverDestroyed<NumberFormat> format;
    const Punctuation before = std::exchange(format.value.punctuation, punctuation);
    try {
        // Not the classic locale itself, to return to it: the C library's would become "C" with it.
        std::locale::global(std::locale(std::locale::classic(), &format.value));
    } catch (const std::bad_alloc&) {
        format.value.punctuation = before;
        throw;
    }
}

bool isPunctuation(char character)
{
    return character > 0 && (character < '0' || character > '9');
}

} // namespace

pelmora_status pelmora_set_number_format(char decimal_point, char separator, int32_t group)
{
    return guarded([&] {
        constexpr int32_t largestGroup = 126; // the next one means "no more groups"
        if (!isPunctuation(decimal_point) || group < 0 || group > largestGroup ||
            (group > 0 && (!isPunctuation(separator) || separator == decimal_point)))
            throw Failure{PELMORA_BAD_ARGUMENT,
                          "numbers cannot be written with these characters and groups"};
        if (decimal_point == '.' && group == 0 && std::locale() == std::locale::classic())
            return PELMORA_OK;
        setGlobally({decimal_point, separator, static_cast<char>(group)});
        return PELMORA_OK;
    });
}
