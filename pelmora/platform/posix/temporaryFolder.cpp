#include "pelmora/platform/temporaryFolder.h"

#include "pelmora/platform/environment.h"

namespace Pelmora::Native::Platform
{

std::string temporaryFolder()
{
    std::string folder = firstOfEnvironment({"TMPDIR", "TEMP", "TMP"}, "/tmp");
    if (folder.back() != '/')
        folder += '/';
    return folder;
}

} // namespace Pelmora::Native::Platform
