#include "pelmora/log/LogInterface.h"

namespace Pelmora::Native
{

LogInterface::~LogInterface() = default;

bool LogInterface::is_ok()
{
    return true;
}

} // namespace Pelmora::Native
