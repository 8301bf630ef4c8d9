#pragma once

#include "pelmora/platform/httpGet.h"

#include <optional>
#include <string_view>

// Addresses of resources, as RFC 3986 writes them. Internal to the downloader.

namespace Pelmora::Native
{

using Platform::HttpAddress;

/// Reads an absolute "http" or "https" address in UTF-8; characters that an address may not have
/// are percent-encoded. White space around it, a user name in it and a fragment are dropped.
/// Returns nothing for any other text.
std::optional<HttpAddress> parseHttpAddress(std::string_view url);

/// The address that `reference` means in a response from `base`; nothing when that is not an HTTP
/// address.
std::optional<HttpAddress> resolveHttpAddress(const HttpAddress& base, std::string_view reference);

/// Whether the server is the same: scheme, host and port.
bool sameOrigin(const HttpAddress& a, const HttpAddress& b);

} // namespace Pelmora::Native
