#pragma once

#include <string>

// What the tests of the log ask of the system, with one source for each in win32/ and posix/.

namespace Pelmora
{

/// Gives the process a local time other than UTC, where processes may have one of their own.
void leaveGreenwich();

/// Forks a child that ends as a program does, and waits for it; where there is no fork, nothing.
void forkAndEndTheChild();

/// Release and processor included, where a command prints them; otherwise the beginning.
std::string nameOfSystem();

void* loadLibrary(const char* path);
void* symbolOf(void* library, const char* name);
void unloadLibrary(void* library);

} // namespace Pelmora
