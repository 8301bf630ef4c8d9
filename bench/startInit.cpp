#include "pelmora/api/Init.h"

// What a program of ours does first, and the bare one beside it does not.

namespace
{

[[maybe_unused]] const bool initialised = (Pelmora::Init::init(u"en"), true);

} // namespace
