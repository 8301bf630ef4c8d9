// Any text as an address, and any reference from it; where a plain reading of RFC 3986, 5.2, is
// enough, against that.

#include "pelmora/api/httpAddress.h"
#include "fuzz/FuzzedInput.h"

using namespace Pelmora;
using namespace Native;

namespace
{

std::string written(const HttpAddress& address)
{
    return std::string(address.secure ? "https" : "http") + "://" + address.host + ":" +
           std::to_string(address.port) + address.target;
}

bool isOneOf(char c, std::string_view characters)
{
    return characters.find(c) != std::string_view::npos;
}

/// Whatever was read, a server can be asked for it.
void checkSound(const HttpAddress& address)
{
    check(!address.host.empty() && address.port != 0 && address.target.starts_with('/'));
    for (const char c : address.host)
        check(isOneOf(c, "abcdefghijklmnopqrstuvwxyz0123456789.-_:[]"));
    for (const char c : address.target)
        check(c > 0x20 && c < 0x7F && !isOneOf(c, "\"<>#"));
    const std::string path = address.target.substr(0, address.target.find('?')) + "/";
    check(path.find("/./") == std::string::npos && path.find("/../") == std::string::npos);

    const auto again = parseHttpAddress(written(address));
    check(again && sameOrigin(*again, address) && again->target == address.target);
}

/// As the RFC writes it, rule by rule.
std::string withoutDots(std::string in)
{
    std::string out;
    while (!in.empty()) {
        if (in.starts_with("/./") || in == "/.") {
            in = "/" + in.substr(std::min<std::size_t>(3, in.size()));
        } else if (in.starts_with("/../") || in == "/..") {
            in = "/" + in.substr(std::min<std::size_t>(4, in.size()));
            out.erase(std::min(out.rfind('/'), out.size()));
        } else {
            const std::string segment = in.substr(0, in.find('/', 1));
            out += segment;
            in.erase(0, segment.size());
        }
    }
    return out;
}

void compareResolved(const HttpAddress& base, const std::string& reference)
{
    const bool isPlain = std::all_of(reference.begin(), reference.end(),
                                     [](char c) { return isOneOf(c, "abcxyz019./?=&"); });
    const auto found = resolveHttpAddress(base, reference);
    if (found)
        checkSound(*found);
    if (!isPlain || reference.starts_with("//"))
        return;
    const std::string query =
        reference.find('?') == std::string::npos ? "" : reference.substr(reference.find('?'));
    const std::string path = reference.substr(0, reference.find('?'));
    const std::string basePath = base.target.substr(0, base.target.find('?'));
    std::string expected = base.target;
    if (path.starts_with('/'))
        expected = withoutDots(path) + query;
    else if (!path.empty())
        expected = withoutDots(basePath.substr(0, basePath.rfind('/') + 1) + path) + query;
    else if (!query.empty())
        expected = basePath + query;
    check(found && sameOrigin(*found, base) && found->target == expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const std::string url = input.line();
    auto address = parseHttpAddress(url);
    for (int i = 0; address && i < 4; ++i) {
        checkSound(*address);
        const std::string reference = input.line();
        compareResolved(*address, reference);
        if (const auto next = resolveHttpAddress(*address, reference))
            address = next;
    }
    return 0;
}
