#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include <windows.h>

// Internal: resources of modules.

namespace Pelmora::Native
{

/// The system's numbers of resource types.
enum class ResourceType : std::uint16_t { bitmap = 2, dialog = 5 };

/// The bytes of a resource of a module, null for the program's own; valid while the module is
/// loaded. Empty, with a null pointer, if there is none.
std::span<const std::byte> findResource(HMODULE module, std::uint16_t id, ResourceType type);

} // namespace Pelmora::Native
