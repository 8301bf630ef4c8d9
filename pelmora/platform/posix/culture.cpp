#include "pelmora/platform/culture.h"

#include "pelmora/platform/environment.h"

#include <algorithm>

namespace Pelmora::Native::Platform
{

std::string cultureName()
{
    // A locale's name is language_REGION.encoding@variant, each part but the first optional.
    std::string name = firstOfEnvironment({"LC_ALL", "LC_MESSAGES", "LANG"}, "C");
    name.resize(std::min(name.find_first_of(".@"), name.size()));
    if (name == "C" || name == "POSIX")
        return {};
    std::replace(name.begin(), name.end(), '_', '-');
    return name;
}

} // namespace Pelmora::Native::Platform
