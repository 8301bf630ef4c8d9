#include "pelmora/platform/httpGet.h"

#include "pelmora/platform/posix/curl.h"

#include <cstdlib>
#include <limits>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

namespace Pelmora::Native::Platform
{
namespace
{

struct HandleCleanup {
    void operator()(CURL* handle) const { curl().cleanup(handle); }
};
using Handle = std::unique_ptr<CURL, HandleCleanup>;

Handle newHandle()
{
    Handle handle(curl().init());
    if (handle == nullptr)
        throw std::bad_alloc();
    return handle;
}

template <class Value>
void set(CURL* handle, CURLoption option, Value value)
{
    // Of what is set here nothing else can fail; without it the download would be another one.
    if (curl().setopt(handle, option, value) != CURLE_OK)
        throw std::bad_alloc();
}

/// What curl hands over. A transfer may have several responses: an interim one, or a demand for
/// authentication, comes before the last.
struct Arrivals {
    Pieces body;
    std::size_t bodySize = 0; ///< of the last response, with what exceeds the stated length
    bool inHead = false;
    bool headCutShort = false; ///< of a response before the last
};

/// Called with a piece of the body; another number than the piece's size ends the transfer.
std::size_t keepBody(char* data, std::size_t one, std::size_t size, void* arrivals) noexcept
{
    try {
        static_cast<Arrivals*>(arrivals)->body.append({data, size});
        return size * one;
    } catch (const std::exception&) {
        return 0;
    }
}

/// Called with each whole line of a head. curl takes a head for whole when the connection ends
/// inside it; only the blank line proves it.
std::size_t watchHead(char* data, std::size_t one, std::size_t size, void* arrivals) noexcept
{
    auto& seen = *static_cast<Arrivals*>(arrivals);
    const std::string_view line(data, size);
    if (line.starts_with("HTTP/")) {
        seen.headCutShort = seen.headCutShort || seen.inHead;
        seen.inHead = true;
        seen.bodySize = 0;
    } else if (line == "\r\n" || line == "\n") {
        seen.inHead = false;
    }
    return size * one;
}

/// Called with everything that passes. Counts the body's bytes, because curl silently drops what
/// exceeds the stated length.
int countBody(CURL*, curl_infotype type, char*, std::size_t size, void* arrivals) noexcept
{
    if (type == CURLINFO_DATA_IN)
        static_cast<Arrivals*>(arrivals)->bodySize += size;
    return 0;
}

void setCertificates(CURL* handle)
{
    // OpenSSL's own settings, which libcurl leaves to its callers.
    if (const char* file = std::getenv("SSL_CERT_FILE")) // NOLINT(concurrency-mt-unsafe)
        set(handle, CURLOPT_CAINFO, file);
    if (const char* folder = std::getenv("SSL_CERT_DIR")) // NOLINT(concurrency-mt-unsafe)
        set(handle, CURLOPT_CAPATH, folder);
}

void setDirectConnection(CURL* handle)
{
    set(handle, CURLOPT_PROXY, "");
    set(handle, CURLOPT_NOPROXY, "*");
}

void setTimeLimit(CURL* handle, long milliseconds, bool limited)
{
    set(handle, CURLOPT_NOSIGNAL, 1L);
    set(handle, CURLOPT_TIMEOUT_MS, limited ? milliseconds : 0L);
    // Without it, clean-up would wait for a name that is still being resolved.
    set(handle, CURLOPT_QUICK_EXIT, 1L);
    // curl's default is five minutes.
    set(handle, CURLOPT_CONNECTTIMEOUT_MS, milliseconds);
}

std::optional<std::string> header(CURL* handle, const char* name)
{
    curl_header* found = nullptr;
    const CURLHcode result = curl().header(handle, name, 0, CURLH_HEADER, -1, &found);
    if (result == CURLHE_OUT_OF_MEMORY)
        throw std::bad_alloc();
    if (result != CURLHE_OK)
        return std::nullopt;
    return found->value;
}

} // namespace

std::optional<HttpResponse> httpGet(const HttpAddress& address, const HttpCredentials* credentials,
                                    const Deadline& deadline)
{
    const Handle owner = newHandle();
    CURL* const handle = owner.get();
    const std::string url = (address.secure ? "https://" : "http://") + address.host + ":" +
                            std::to_string(address.port) + address.target;
    Arrivals arrivals;
    set(handle, CURLOPT_URL, url.c_str());
    set(handle, CURLOPT_PROTOCOLS_STR, "http,https");
    set(handle, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
    set(handle, CURLOPT_WRITEFUNCTION, keepBody);
    set(handle, CURLOPT_WRITEDATA, &arrivals);
    set(handle, CURLOPT_HEADERFUNCTION, watchHead);
    set(handle, CURLOPT_HEADERDATA, &arrivals);
    set(handle, CURLOPT_VERBOSE, 1L);
    set(handle, CURLOPT_DEBUGFUNCTION, countBody);
    set(handle, CURLOPT_DEBUGDATA, &arrivals);
    setCertificates(handle);
    setDirectConnection(handle);
    if (credentials != nullptr) {
        // More than one scheme makes curl wait for the server's choice.
        set(handle, CURLOPT_HTTPAUTH, CURLAUTH_BASIC | CURLAUTH_DIGEST);
        set(handle, CURLOPT_USERNAME, credentials->user.c_str());
        set(handle, CURLOPT_PASSWORD, credentials->password.c_str());
    }
    const int left = deadline ? millisecondsUntil(*deadline) : std::numeric_limits<int>::max();
    if (left == 0)
        return std::nullopt;
    setTimeLimit(handle, left, deadline.has_value());

    if (curl().perform(handle) != CURLE_OK || arrivals.inHead || arrivals.headCutShort)
        return std::nullopt;
    HttpResponse response;
    long status = 0;
    curl().getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
    response.status = static_cast<int>(status);
    response.location = header(handle, "Location").value_or("");
    if (!header(handle, "Transfer-Encoding"))
        response.contentLength = header(handle, "Content-Length");
    if (response.contentLength && arrivals.bodySize > arrivals.body.size())
        return std::nullopt;
    response.body = std::move(arrivals.body);
    return response;
}

} // namespace Pelmora::Native::Platform
