#include "pelmora/api/HTTPDownloader.h"

#include "pelmora/api/httpAddress.h"
#include "pelmora/gettext/gstringUtil.h"
#include "pelmora/platform/httpGet.h"
#include "pelmora/platform/keepLoaded.h"
#include "pelmora/platform/wholeFile.h"

#include <algorithm>
#include <charconv>
#include <exception>

namespace ManagedHTTP
{
namespace
{

using namespace Pelmora::Native;
using Platform::Deadline;
using Platform::HttpCredentials;
using Platform::HttpResponse;

bool isRedirect(int status)
{
    return status == 300 || status == 301 || status == 302 || status == 303 || status == 307 ||
           status == 308;
}

/// Whether the body has the length that the server states; the platforms disagree on what to do
/// with a length that lies or is no number.
bool hasStatedLength(const HttpResponse& response)
{
    if (!response.contentLength)
        return true;
    const std::string& stated = *response.contentLength;
    std::uint64_t length = 0;
    const auto [end, error] = std::from_chars(stated.data(), stated.data() + stated.size(), length);
    return error == std::errc() && end == stated.data() + stated.size() &&
           length == response.body.size();
}

std::optional<Pieces> download(const HttpAddress& origin, const HttpCredentials* credentials,
                               const Deadline& deadline)
{
    constexpr int mostRedirects = 50;
    HttpAddress address = origin;
    for (int redirects = 0; redirects <= mostRedirects; ++redirects) {
        // Another server has no business with them.
        const bool mayHaveCredentials = sameOrigin(address, origin);
        auto response =
            Platform::httpGet(address, mayHaveCredentials ? credentials : nullptr, deadline);
        if (!response || !hasStatedLength(*response))
            return std::nullopt;
        if (response->status >= 200 && response->status < 300)
            return std::move(response->body);
        if (!isRedirect(response->status) || response->location.empty())
            return std::nullopt;
        const auto next = resolveHttpAddress(address, response->location);
        if (!next || (address.secure && !next->secure))
            return std::nullopt;
        address = *next;
    }
    return std::nullopt;
}

bool hasControlCharacters(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F;
    });
}

bool replaceFile(const GString& name, const Pieces& content)
{
    return !Platform::deleteFile(name.text()) &&
           !Platform::writeWholeFile(name.text(), content.all());
}

Deadline deadlineIn(int milliseconds)
{
    if (milliseconds < 0)
        return std::nullopt;
    return std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
}

} // namespace

bool HTTPDownloader::DownloadFile(const char* url, const char* filepath, int timeoutMs,
                                  const char* user, const char* pass)
{
    if (url == nullptr || filepath == nullptr || timeoutMs < -1 || timeoutMs == 0)
        return false;
    try {
        const auto address = parseHttpAddress(GString(std::string_view(url)).to_utf8());
        if (!address)
            return false;
        std::optional<HttpCredentials> credentials;
        if (user != nullptr && pass != nullptr) {
            if (hasControlCharacters(user) || hasControlCharacters(pass))
                return false;
            credentials = {user, pass};
        }
        // A thread of the system's client may still be at work when the time has run out.
        Platform::keepLoaded();
        const auto body =
            download(*address, credentials ? &*credentials : nullptr, deadlineIn(timeoutMs));
        return body && replaceFile(GString(std::string_view(filepath)), *body);
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace ManagedHTTP
