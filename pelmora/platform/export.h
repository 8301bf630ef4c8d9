#pragma once

// PELMORA_API marks what the shared library shows to its users; everything else stays hidden.
// PELMORA_BUILDING is set while the library itself is compiled, PELMORA_STATIC in programs that
// link its object files directly (the tests of internals).

#if defined(PELMORA_STATIC)
#define PELMORA_API
#elif defined(_WIN32)
#if defined(PELMORA_BUILDING)
#define PELMORA_API __declspec(dllexport)
#else
#define PELMORA_API __declspec(dllimport)
#endif
#else
#define PELMORA_API __attribute__((visibility("default")))
#endif
