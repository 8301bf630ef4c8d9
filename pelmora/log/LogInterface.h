#pragma once

#include "pelmora/export.h"

namespace Pelmora::Native
{

/// What a writer needs to know of a log. Each log says which threads may write to it.
class PELMORA_API LogInterface
{
public:
    /// A log belongs to whoever makes it.
    LogInterface() = default;
    LogInterface(const LogInterface&) = delete;
    LogInterface& operator=(const LogInterface&) = delete;
    virtual ~LogInterface();

    /// Whether the log can be used; always true.
    virtual bool is_ok();

    /// Writes narrow text as it is. Requires: `text` is not null.
    virtual void write(const char* text) = 0;
};

} // namespace Pelmora::Native
