#include "pelmora/pelmora.h"

#include "tests/TemporaryFolder.h"

#include <chrono>
#include <cstdlib>
#include <thread>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace ManagedHTTP
{
namespace
{

using Pelmora::TemporaryFolder;

std::string setting(const char* name)
{
    const char* const value = std::getenv(name);
    if (value == nullptr)
        throw std::runtime_error("start this program through tests/servers/withServers");
    return value;
}

std::string server(const char* portName = "PELMORA_HTTP_PORT")
{
    return "http://127.0.0.1:" + setting(portName);
}

constexpr const char* failed = "(failed)";

/// What was downloaded over an older, longer file; `failed` when that file is still there whole.
std::string downloaded(const std::string& url, int timeoutMs = 20000, const char* user = nullptr,
                       const char* pass = nullptr)
{
    const TemporaryFolder folder;
    const std::string older(6000, 'o');
    TemporaryFolder::write(folder.path(u"caf\u00E9 1.bin"), older);
    const bool done = HTTPDownloader::DownloadFile(
        url.c_str(), folder.name("caf\xE9 1.bin").c_str(), timeoutMs, user, pass);
    const std::string content = TemporaryFolder::read(folder.path(u"caf\u00E9 1.bin"));
    if (!done)
        return content == older ? failed : "(failed and harmed the file)";
    return content;
}

TEST(HTTPDownloader, FollowsFiftyRedirects)
{
    EXPECT_EQ(downloaded(server() + "/redirect/50"), "end");
    EXPECT_EQ(downloaded(server() + "/redirect/51"), failed);
}

TEST(HTTPDownloader, BodiesAndFailures)
{
    const std::string ok = "/raw?HTTP/1.1 200 OK\r\n"; // "#" keeps white space at the end
    const std::string chunks = "\r\n5\r\nin ch\r\n4\r\nunks\r\n0\r\n\r\n#";
    const std::tuple<std::string, std::string> rows[] = {
        {"/text", "text"},
        {"/none", ""},
        {ok + "\r\nuntil close", "until close"},
        {ok + "Transfer-Encoding: chunked\r\n" + chunks, "in chunks"},
        {ok + "Transfer-Encoding: chunked\r\nContent-Length: 3\r\n" + chunks, "in chunks"},
        {"/echo/a b/\xE9?q=\xE9#fragment", "/echo/a%20b/%C3%A9?q=%C3%A9 []"},
        {ok + "Content-Length: 5\r\n\r\n12345", "12345"},
        {ok + "Content-Length: 6\r\n\r\n12345", failed},
        {ok + "Content-Length: -5\r\n\r\n12345", failed},
        {ok + "Content-Length: 5x\r\n\r\n12345", failed},
        {ok + "Content-Length: 99999999999999999999999\r\n\r\n12345", failed},
        {ok + "Content-Length: 9000000000000000000\r\n\r\n12345", failed},
        {"/raw?no HTTP at all\r\n\r\n#", failed},
        {"/status/201", "not this"},
        {"/status/404", failed},
        {"/to/404?/text", failed},
        {"/status/500", failed},
        {"/status/302", failed},
        {"/status/302?", failed},
        {"/to/300?/text", "text"},
        {"/to/301?/text", "text"},
        {"/to/303?/text", "text"},
        {"/to/304?/text", failed},
        {"/to/307?/text", "text"},
        {"/to/308?/text", "text"},
        {"/to?file:///etc/hostname", failed},
        {"/to?" + server("PELMORA_OTHER_PORT") + "/redirect/2", "end"},
    };
    for (const auto& [path, content] : rows)
        EXPECT_EQ(downloaded(server() + path), content) << path;
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    std::string large;
    for (int i = 0; i < 20000; ++i)
        large += bytes;
    EXPECT_TRUE(downloaded(server() + "/large") == large);

    for (const std::string& url :
         {server("PELMORA_CLOSED_PORT") + "/text", std::string("http://nowhere.invalid/"),
          std::string("file:///etc/hostname"), std::string("/etc/hostname"), std::string()})
        EXPECT_EQ(downloaded(url), failed) << url;
}

TEST(HTTPDownloader, ConnectionsThatEndInTheHeadFail)
{
    const char* const heads[] = {
        "",
        "HTTP/1.1 200 OK",
        "HTTP/1.1 200 OK\r\n",
        "HTTP/1.1 200 OK\r\nConte",
        "HTTP/1.1 200 OK\r\nContent-Length: 5",
        "HTTP/1.1 200 OK\r\nServer: x\r\n",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n",
        "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\nServer: x\r\n",
        "HTTP/1.1 302 Found\r\nLocation: /text\r\n",
    };
    for (const char* const head : heads)
        for (const char* const end : {"/raw?", "/reset?"})
            EXPECT_EQ(downloaded(server() + end + head + "#"), failed) << end << head;
}

TEST(HTTPDownloader, CredentialsOnlyWhenAskedAndOnlyThere)
{
    const std::string other = server("PELMORA_OTHER_PORT");
    const std::tuple<std::string, const char*, const char*, std::string> rows[] = {
        {"/basic?m:s3:cret", "m", "s3:cret", "let in"},
        {"/basic?m:long password", "m", "long password", failed}, // the address has it encoded
        {"/basic?:", "", "", "let in"},
        {"/basic?m:", "m", "", "let in"},
        {"/basic?m:s", "m", "wrong", failed},
        {"/basic?:s", nullptr, "s", failed},
        {"/basic?m:", "m", nullptr, failed},
        {"/echo", "m m", "s s", "/echo []"},
        {"/echo", "m\r\nX: y", "s", failed},
        {"/echo", "m", "s\x7F", failed},
        {"/to?/basic?m:s", "m", "s", "let in"},
        {"/to?" + other + "/basic?m:s", "m", "s", failed},
        {"/to?http://localhost:" + setting("PELMORA_HTTP_PORT") + "/basic?m:s", "m", "s", failed},
        {"/to?" + other + "/to?" + server() + "/basic?m:s", "m", "s", "let in"},
    };
    for (const auto& [path, user, pass, content] : rows)
        EXPECT_EQ(downloaded(server() + path, 20000, user, pass), content) << path;
}

TEST(HTTPDownloader, TheTimeLimitIsForTheWholeDownload)
{
    EXPECT_EQ(downloaded(server() + "/late", -1), "late");
    for (const int limit : {0, -2, std::numeric_limits<int>::min()})
        EXPECT_EQ(downloaded(server() + "/text", limit), failed) << limit;
    for (const char* path : {"/silent", "/trickle", "/to?/trickle"}) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(downloaded(server() + path, 500), failed) << path;
        // The limit is what is tested; a trickling body would take 100 seconds.
        const auto taken = std::chrono::steady_clock::now() - start;
        EXPECT_GE(taken, std::chrono::milliseconds(490)) << path;
        EXPECT_LT(taken, std::chrono::seconds(5)) << path;
    }
    // Nor does a connection outlive it.
    EXPECT_EQ(downloaded(server() + "/deserted"), "nobody waits");
}

TEST(HTTPDownloader, Files)
{
    const TemporaryFolder folder;
    const std::string url = server() + "/text";
    const auto download = [&](const char* file) {
        return HTTPDownloader::DownloadFile(url.c_str(), file, 20000, nullptr, nullptr);
    };
    EXPECT_TRUE(download(folder.name("new").c_str()));
    // The file is replaced, not written over.
    TemporaryFolder::write(folder.path("old"), "older");
    std::filesystem::create_hard_link(folder.path("old"), folder.path("other name"));
    EXPECT_TRUE(download(folder.name("old").c_str()));
    EXPECT_EQ(TemporaryFolder::read(folder.path("other name")), "older");
    EXPECT_FALSE(download(folder.name("no/folder").c_str()));
    EXPECT_FALSE(download(folder.name("").c_str()));
    EXPECT_FALSE(download(""));
    EXPECT_FALSE(download(nullptr));
    EXPECT_FALSE(HTTPDownloader::DownloadFile(nullptr, folder.name("new").c_str(), 1000, "", ""));
    EXPECT_EQ(TemporaryFolder::read(folder.path("new")), "text");
}

TEST(HTTPDownloader, SeveralThreads)
{
    std::vector<std::jthread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([redirected = i % 2 == 0] {
            EXPECT_EQ(downloaded(server() + (redirected ? "/redirect/3" : "/text")),
                      redirected ? "end" : "text");
        });
}

TEST(HTTPDownloader, UntrustedCertificatesFail)
{
    EXPECT_EQ(downloaded("https://localhost:" + setting("PELMORA_HTTPS_PORT") + "/text"), failed);
}

} // namespace
} // namespace ManagedHTTP
