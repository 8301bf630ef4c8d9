#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"

namespace Pelmora
{

/// Four values that the parts of a program share. There is one object, made by the first `get` and
/// never replaced; its fields are read and written directly, without a lock or a check.
class PELMORA_API AliveDataStorage
{
public:
    /// Empty and false at first; what they mean is up to the program.
    GString mMasterClientId;
    GString mServerUserId;
    GString mLastPhysicalCheck;
    bool mUpdated = false;

    /// Always the same object; may be called by several threads at once.
    static AliveDataStorage& get();

    AliveDataStorage(const AliveDataStorage&) = delete;
    AliveDataStorage& operator=(const AliveDataStorage&) = delete;

private:
    AliveDataStorage() = default;
};

} // namespace Pelmora
