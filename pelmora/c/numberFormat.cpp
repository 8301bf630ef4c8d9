#include "pelmora/c/border.h"

#include <locale>
#include <string>

using namespace Pelmora::C;

namespace
{

class NumberFormat : public std::numpunct<char>
{
public:
    NumberFormat(char decimalPoint, char separator, char group)
        : decimalPoint_(decimalPoint), separator_(separator), group_(group)
    {
    }

private:
    char do_decimal_point() const override { return decimalPoint_; }
    char do_thousands_sep() const override { return separator_; }
    std::string do_grouping() const override
    {
        return group_ == 0 ? std::string() : std::string(1, group_);
    }

    char decimalPoint_;
    char separator_;
    char group_;
};

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
        // Not the classic locale itself, to return to it: the C library's would become "C" with it.
        std::locale::global(
            std::locale(std::locale::classic(),
                        new NumberFormat(decimal_point, separator, static_cast<char>(group))));
        return PELMORA_OK;
    });
}
