#include "pelmora/gui/files.h"
#include "pelmora/c/border.h"

using namespace Pelmora;
using namespace Pelmora::C;

pelmora_status pelmora_path_exists(const char* path, int* result)
{
    return give(result, "result", [&] { return Native::pathExists(requiredText(path, "path")); });
}

pelmora_status pelmora_remove_read_only(const char* path, int log_success)
{
    return guarded([&] {
        Native::removeReadOnly(requiredText(path, "path"), log_success != 0);
        return PELMORA_OK;
    });
}
