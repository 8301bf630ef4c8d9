#include "pelmora/api/HTTPDownloader.h"
#include "pelmora/c/border.h"

using namespace Pelmora::C;

pelmora_status pelmora_download(const char* url, const char* path, int32_t milliseconds,
                                const char* user, const char* password)
{
    return guarded([&] {
        if (!ManagedHTTP::HTTPDownloader::DownloadFile(
                &required(url, "url"), &required(path, "path"), milliseconds, user, password))
            throw Failure{PELMORA_SYSTEM, "the address was not downloaded to the file"};
        return PELMORA_OK;
    });
}
