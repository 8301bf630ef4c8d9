#pragma once

#include <curl/curl.h>

namespace Pelmora::Native::Platform
{

/// What the library uses of libcurl, which is loaded when it is first needed: it brings some thirty
/// libraries along, and few runs of a program download anything.
struct Curl {
    decltype(&curl_global_init) globalInit;
    decltype(&curl_easy_init) init;
    decltype(&curl_easy_cleanup) cleanup;
    decltype(&curl_easy_setopt) setopt;
    decltype(&curl_easy_perform) perform;
    decltype(&curl_easy_getinfo) getinfo;
    decltype(&curl_easy_header) header;
};

/// libcurl, ready to be used; it stays loaded. Throws std::runtime_error, also when there is no
/// memory for it; a later call tries again. Safe to call from several threads.
const Curl& curl();

} // namespace Pelmora::Native::Platform
