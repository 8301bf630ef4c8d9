#include "pelmora/api/httpAddress.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

namespace Pelmora::Native
{
namespace
{

bool isAlphanumeric(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool startsWithIgnoringCase(std::string_view text, std::string_view start)
{
    return text.size() >= start.size() &&
           std::equal(start.begin(), start.end(), text.begin(),
                      [](char a, char b) { return a == lowered(b); });
}

std::string percentEncoded(std::string_view text)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte > 0x20 && byte < 0x7F && c != '"' && c != '<' && c != '>') {
            result += c;
            continue;
        }
        result += '%';
        result += digits[byte >> 4U];
        result += digits[byte & 0xFU];
    }
    return result;
}

std::string_view withoutSpaceAround(std::string_view text)
{
    constexpr std::string_view space = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(space), text.size()));
    return text.substr(0, text.find_last_not_of(space) + 1); // npos + 1 is 0
}

/// Letters beyond ASCII may stand there as they may in a path.
bool isUserInfo(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        return isAlphanumeric(c) || static_cast<unsigned char>(c) >= 0x80 ||
               std::string_view("-._~%!$&'()*+,;=:").find(c) != std::string_view::npos;
    });
}

bool isHost(std::string_view host)
{
    const bool isAddress6 = host.starts_with('[') && host.ends_with(']');
    if (isAddress6)
        host = host.substr(1, host.size() - 2);
    return !host.empty() && std::all_of(host.begin(), host.end(), [&](char c) {
        return isAlphanumeric(c) || c == '.' || (isAddress6 ? c == ':' : c == '-' || c == '_');
    });
}

/// Reads "user@host:port" into the address; the port stays as it is when none is given.
bool parseAuthority(std::string_view authority, HttpAddress& address)
{
    if (const auto at = authority.find('@'); at != std::string_view::npos) {
        if (!isUserInfo(authority.substr(0, at)))
            return false;
        authority.remove_prefix(at + 1);
    }
    const auto colon = authority.find(':', authority.starts_with('[') ? authority.find(']') : 0);
    const std::string_view host = authority.substr(0, colon);
    if (!isHost(host))
        return false;
    address.host.resize(host.size());
    std::transform(host.begin(), host.end(), address.host.begin(), lowered);
    if (colon == std::string_view::npos || colon + 1 == authority.size())
        return true;
    const std::string_view port = authority.substr(colon + 1);
    const auto [end, error] = std::from_chars(port.data(), port.data() + port.size(), address.port);
    return error == std::errc() && end == port.data() + port.size() && address.port != 0;
}

/// Takes "." and ".." out of a target's path.
std::string withoutDots(std::string_view target)
{
    const auto pathEnd = std::min(target.find('?'), target.size());
    std::vector<std::string_view> kept;
    bool endsInFolder = false;
    for (std::size_t start = 1; start <= pathEnd;) {
        const auto end = std::min(target.find('/', start), pathEnd);
        const std::string_view segment = target.substr(start, end - start);
        endsInFolder = segment == "." || segment == "..";
        if (segment == ".." && !kept.empty())
            kept.pop_back();
        if (!endsInFolder)
            kept.push_back(segment);
        start = end + 1;
    }
    std::string result;
    for (const std::string_view segment : kept)
        result.append("/").append(segment);
    if (endsInFolder || result.empty())
        result += '/';
    return result.append(target.substr(pathEnd));
}

bool hasScheme(std::string_view reference)
{
    const auto end = reference.find_first_of(":/?#");
    return end != std::string_view::npos && end > 0 && reference[end] == ':';
}

} // namespace

std::optional<HttpAddress> parseHttpAddress(std::string_view url)
{
    url = withoutSpaceAround(url);
    HttpAddress address;
    constexpr std::string_view plain = "http://";
    constexpr std::string_view secure = "https://";
    if (startsWithIgnoringCase(url, plain)) {
        url.remove_prefix(plain.size());
    } else if (startsWithIgnoringCase(url, secure)) {
        url.remove_prefix(secure.size());
        address.secure = true;
        address.port = 443;
    } else {
        return std::nullopt;
    }
    url = url.substr(0, url.find('#'));
    const auto authorityEnd = std::min(url.find_first_of("/?"), url.size());
    if (!parseAuthority(url.substr(0, authorityEnd), address))
        return std::nullopt;
    const std::string target = percentEncoded(url.substr(authorityEnd));
    address.target = withoutDots(target.starts_with('/') ? target : "/" + target);
    return address;
}

std::optional<HttpAddress> resolveHttpAddress(const HttpAddress& base, std::string_view reference)
{
    reference = withoutSpaceAround(reference);
    if (hasScheme(reference))
        return parseHttpAddress(reference);
    if (reference.starts_with("//"))
        return parseHttpAddress((base.secure ? "https:" : "http:") + std::string(reference));
    const std::string relative = percentEncoded(reference.substr(0, reference.find('#')));
    HttpAddress result = base;
    const std::string path = base.target.substr(0, base.target.find('?'));
    if (relative.starts_with('/'))
        result.target = withoutDots(relative);
    else if (relative.starts_with('?'))
        result.target = path + relative;
    else if (!relative.empty())
        result.target = withoutDots(path.substr(0, path.rfind('/') + 1) + relative);
    return result;
}

bool sameOrigin(const HttpAddress& a, const HttpAddress& b)
{
    return a.secure == b.secure && a.host == b.host && a.port == b.port;
}

} // namespace Pelmora::Native
