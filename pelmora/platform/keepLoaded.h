#pragma once

// What the host must provide to outlive whoever loaded the library.

namespace Pelmora::Native::Platform
{

/// The library stays in the process from now on, also when it is unloaded: for what the system may
/// call, or still run, after a function of the library has returned. Without effect in a program
/// that holds the library's code itself, and when the system refuses. Safe to call again, and from
/// several threads.
void keepLoaded() noexcept;

} // namespace Pelmora::Native::Platform
