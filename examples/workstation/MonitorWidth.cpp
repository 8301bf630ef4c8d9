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

bool exists(const char* path)
{
    return RegistryKey().open(HKEY_LOCAL_MACHINE, path, OpenMode::Read);
}

bool hasEntry(const RegistryKey& key, const std::string& name)
{
    const auto end = key.valueNamesEnd();
    for (auto found = key.valueNamesBegin(); found != end; ++found)
        if (*found == name)
            return true;
    return false;
}

/// Deleting a key takes its values along, so it must have none.
void deleteIfEmpty(const char* path)
{
    RegistryKey key;
    if (key.open(HKEY_LOCAL_MACHINE, path, OpenMode::Read) &&
        key.valueNamesBegin() == key.valueNamesEnd())
        Pelmora::Native::regiDeleteKey(HKEY_LOCAL_MACHINE, path);
}

} // namespace

MonitorWidth::MonitorWidth(const std::string& monitor, std::uint32_t otherwiseMm)
    : monitor_(monitor), hadMaker_(exists(maker)), hadTable_(exists(table)), mm_(otherwiseMm)
{
    RegistryKey key;
    if (key.open(HKEY_LOCAL_MACHINE, table, OpenMode::Read) && hasEntry(key, monitor_)) {
        mm_ = key.readDword(monitor_, 0);
        return;
    }
    entered_ = key.open(HKEY_LOCAL_MACHINE, table, OpenMode::Write | OpenMode::Create) &&
               key.writeDword(monitor_, mm_);
    error_ = key.lastError();
}

MonitorWidth::~MonitorWidth()
{
    if (entered_)
        Pelmora::Native::regiDelete(HKEY_LOCAL_MACHINE, table, monitor_);
    if (!hadTable_)
        deleteIfEmpty(table);
    if (!hadMaker_)
        deleteIfEmpty(maker);
}

} // namespace Workstation
