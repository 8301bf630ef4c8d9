#include "pelmora/registry/regi.h"

#include "pelmora/log/LogStream.h"
#include "pelmora/registry/RegistryKey.h"
#include "pelmora/registry/systemErrorText.h"

namespace Pelmora::Native
{
namespace
{

void report(bool log, const std::string& message)
{
    if (log)
        get_log() << message << endl;
}

/// "regiRead(path\name)"
std::string call(const char* function, const AnsiText& path, const AnsiText& name)
{
    return std::string(function) + "(" + path.narrow() + "\\" + name.narrow() + ")";
}

} // namespace

std::string regiRead(HKEY root, const std::string& path, const std::string& name,
                     const std::string& fallback, bool log)
{
    RegistryKey key;
    if (!key.open(root, path, OpenMode::Read)) {
        report(log, call("regiRead", path, name) + " - open error: " + key.lastError());
        return fallback;
    }
    std::string value = key.readString(name, fallback);
    if (const std::string error = key.lastError(); !error.empty())
        report(log, call("regiRead", path, name) + " - read error: " + error);
    return value;
}

GString regiRead(HKEY root, const GString& path, const GString& name, const GString& fallback,
                 bool log)
{
    return GString(regiRead(root, path.to_narrow(), name.to_narrow(), fallback.to_narrow(), log));
}

bool regiWrite(HKEY root, const AnsiText& path, const AnsiText& name, const AnsiText& value,
               bool log)
{
    const auto failed = [&](const char* step, const RegistryKey& key) {
        report(log, call("regiWrite", path, name) + " = '" + value.narrow() + "' - " + step +
                        " error: " + key.lastError());
        return false;
    };
    RegistryKey key;
    if (!key.open(root, path, OpenMode::Create | OpenMode::Write))
        return failed("open", key);
    return key.writeString(name, value) || failed("write", key);
}

bool regiDelete(HKEY root, const AnsiText& path, const AnsiText& name, bool log)
{
    RegistryKey key;
    if (key.open(root, path, OpenMode::Write) && key.deleteValue(name))
        return true;
    report(log, call("regiDelete", path, name) + " - deletion error: " + key.lastError());
    return false;
}

bool regiDeleteKey(HKEY root, const AnsiText& path, bool log)
{
    const LSTATUS status = RegDeleteKeyA(root, path.c_str());
    if (status == ERROR_SUCCESS)
        return true;
    report(log, "regiDeleteKey(" + path.narrow() +
                    ") - deletion error: " + systemErrorText(static_cast<std::uint32_t>(status)));
    return false;
}

} // namespace Pelmora::Native
