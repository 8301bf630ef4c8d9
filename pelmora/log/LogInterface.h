#pragma once

#include "pelmora/export.h"

namespace Pelmora::Native
{

/// What a log is to those who write to it. Each log says which threads may.
class PELMORA_API LogInterface
{
public:
    LogInterface() = default;
    LogInterface(const LogInterface&) = delete;
    LogInterface& operator=(const LogInterface&) = delete;
    virtual ~LogInterface();

    /// Whether the log can be used; always true.
    virtual bool is_ok();

    /// Requires: `text` is not null.
    virtual void write(const char* text) = 0;
};

} // namespace Pelmora::Native
