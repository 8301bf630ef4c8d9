#include "pelmora/gui/resources.h"

namespace Pelmora::Native
{
namespace
{

/// A number in place of a name, as the system wants it.
const char* asName(std::uint16_t number)
{
    return reinterpret_cast<const char*>(static_cast<std::uintptr_t>(number)); // NOLINT: it is one
}

} // namespace

std::span<const std::byte> findResource(HMODULE module, std::uint16_t id, ResourceType type)
{
    const HRSRC found = FindResourceA(module, asName(id), asName(static_cast<std::uint16_t>(type)));
    if (found == nullptr)
        return {};
    const void* bytes = LockResource(LoadResource(module, found));
    const DWORD size = bytes == nullptr ? 0 : SizeofResource(module, found);
    return {static_cast<const std::byte*>(bytes), size};
}

} // namespace Pelmora::Native
