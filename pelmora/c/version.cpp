#include "pelmora/version.h"
#include "pelmora/c/pelmora.h"

const char* pelmora_version(void)
{
    return PELMORA_VERSION;
}

int32_t pelmora_abi(void)
{
    return PELMORA_ABI;
}
