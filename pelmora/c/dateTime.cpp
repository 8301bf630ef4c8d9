#include "pelmora/gui/dateTime.h"
#include "pelmora/c/border.h"

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

std::string known(std::string text)
{
    if (text.empty())
        throw Failure{PELMORA_SYSTEM, "the system does not write date and time"};
    return text;
}

} // namespace

pelmora_status pelmora_current_date_text(int long_format, char* buffer, size_t capacity,
                                         size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return known(Native::currentDateText(long_format != 0)); });
}

pelmora_status pelmora_current_time_text(int with_seconds, char* buffer, size_t capacity,
                                         size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return known(Native::currentTimeText(with_seconds != 0)); });
}
