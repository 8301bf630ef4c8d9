#pragma once

// On Linux a thread that is cancelled (`pthread_cancel`) unwinds its stack by an exception that
// must go on: whoever catches everything catches this first, and throws it again.

#if !defined(_WIN32)
#include <cxxabi.h>
#endif

namespace Pelmora::Native::Platform
{

#if defined(_WIN32)
struct ForcedUnwind { // nobody throws it
};
#else
using ForcedUnwind = abi::__forced_unwind;
#endif

} // namespace Pelmora::Native::Platform
