#pragma once

// What the host must provide to outlive whoever loaded the library.

namespace Pelmora::Native::Platform
{

/// The module that holds the library's code stays in the process from now on, also when it is
/// unloaded: for what the system may call, or still run, after a function of the library has
/// returned. The library itself stays in any case, from its start; a module of someone else's that
/// it was linked into does not. Without effect in a program, and when the system refuses. Safe to
/// call again, and from several threads.
void keepLoaded() noexcept;

} // namespace Pelmora::Native::Platform
