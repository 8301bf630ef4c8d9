#pragma once

#include "pelmora/registry/RegistryKey.h"

#include <cstdint>
#include <string>

namespace Workstation
{

/// The width of a monitor in the table, entered for as long as this object lives where the table
/// has no entry for it. The table is taken away again, too, when it was not there and is empty.
class MonitorWidth
{
public:
    MonitorWidth(const std::string& monitor, std::uint32_t otherwiseMm);
    MonitorWidth(const MonitorWidth&) = delete;
    MonitorWidth& operator=(const MonitorWidth&) = delete;
    ~MonitorWidth();

    std::uint32_t mm() const { return mm_; }

    /// Why the width could not be entered; empty when it stands in the table.
    const std::string& error() const { return error_; }

private:
    std::string monitor_;
    bool hadMaker_;
    bool hadTable_;
    bool entered_ = false;
    std::uint32_t mm_;
    std::string error_;
};

} // namespace Workstation
