#include "MonitorWidth.h"

#include "pelmora/registry/regi.h"

namespace Workstation
{
namespace
{

using Pelmora::Native::OpenMode;
using Pelmora::Native::RegistryKey;

constexpr const char* maker = "SOFTWARE\\Tavelin";
constexpr const char* table = "SOFTWARE\\Tavelin\\MonitorWidthsMM";

} // namespace

MonitorWidth::MonitorWidth(const std::string& monitor, std::uint32_t otherwiseMm)
    : monitor_(monitor), hadTable_(RegistryKey().open(HKEY_LOCAL_MACHINE, table, OpenMode::Read))
{
    RegistryKey key;
    key.open(HKEY_LOCAL_MACHINE, table, OpenMode::Read);
    mm_ = key.readDword(monitor_, 0);
    if (mm_ != 0)
        return;
    mm_ = otherwiseMm;
    entered_ = key.open(HKEY_LOCAL_MACHINE, table, OpenMode::Write | OpenMode::Create) &&
               key.writeDword(monitor_, mm_);
    error_ = key.lastError();
}

MonitorWidth::~MonitorWidth()
{
    if (entered_)
        Pelmora::Native::regiDelete(HKEY_LOCAL_MACHINE, table, monitor_);
    if (!hadTable_ && Pelmora::Native::regiDeleteKey(HKEY_LOCAL_MACHINE, table))
        Pelmora::Native::regiDeleteKey(HKEY_LOCAL_MACHINE, maker); // only if nothing else is there
}

} // namespace Workstation
