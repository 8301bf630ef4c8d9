#include "pelmora/log/osVersion.h"

#include "pelmora/log/LogStream.h"
#include "pelmora/platform/systemVersion.h"

#include <variant>

namespace Pelmora::Native
{
namespace
{

constexpr std::uint32_t platformWindowsNt = 2;

/// Both ends included.
struct Range {
    std::uint32_t first;
    std::uint32_t last;

    bool holds(std::uint32_t value) const { return value >= first && value <= last; }
};

constexpr Range any = {0, 0xFFFFFFFF};
constexpr Range exactly(std::uint32_t value)
{
    return {value, value};
}

struct NameRow {
    const char* name;
    std::uint32_t platform;
    Range major = any;
    Range minor = any;
    bool appendsNumbers = false;
    const char* revisions = ""; ///< each marks a revision as the service pack's second character
    const char* revisionName = "";
};

constexpr bool withNumbers = true;
constexpr bool withoutNumbers = false;

/// The first row that fits counts.
constexpr NameRow names[] = {
    {"Win32s", 0},
    {"Windows 95", 1, exactly(4), exactly(0), withoutNumbers, "CB", " OSR2"},
    {"Windows 98", 1, exactly(4), exactly(10), withoutNumbers, "A", " SE"},
    {"Windows ME", 1, exactly(4), exactly(90)},
    {"Windows 9x ", 1, any, any, withNumbers},
    {"Windows Vista", 2, exactly(6)},
    {"Windows Server 2003", 2, exactly(5), exactly(2)},
    {"Windows XP", 2, exactly(5), exactly(1)},
    {"Windows 2000", 2, exactly(5), exactly(0)},
    {"Windows NT ", 2, {0, 4}, any, withNumbers},
    {"Windows ", 2, any, any, withNumbers},
};

std::string nameOf(const OsVersion& version)
{
    for (const NameRow& row : names) {
        if (row.platform != version.platform || !row.major.holds(version.major) ||
            !row.minor.holds(version.minor))
            continue;
        std::string name = row.name;
        if (row.appendsNumbers)
            name += std::to_string(version.major) + "." + std::to_string(version.minor);
        const char second = version.servicePack.size() < 2 ? '\0' : version.servicePack[1];
        if (second != '\0' && std::string_view(row.revisions).find(second) != std::string::npos)
            name += row.revisionName;
        return name;
    }
    return "Platform " + std::to_string(version.platform);
}

} // namespace

std::string osDescription(const OsVersion& version)
{
    std::string text = nameOf(version);
    if (version.platform == platformWindowsNt)
        text +=
            " " + version.servicePack + " (Build " + std::to_string(version.build & 0xFFFFU) + ")";
    return text;
}

void write_os_version(LogStream& log)
{
    const Platform::SystemVersion version = Platform::systemVersion();
    if (const auto* record = std::get_if<OsVersion>(&version))
        log << osDescription(*record) << endl;
    else if (const auto* line = std::get_if<std::string>(&version))
        log << *line << endl;
}

} // namespace Pelmora::Native
