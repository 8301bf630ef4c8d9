#include "bench/measure.h"

#include "pelmora/api/HTTPDownloader.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <thread>

#include <curl/curl.h>
#include <malloc.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

// A download from a server in another thread, whose time does not count.

namespace
{

using Pelmora::Bench::Measured;

constexpr std::size_t bodySize = 10'000'000;

void answer(int connection, const std::string& response)
{
    char request[4096];
    if (read(connection, request, sizeof request) <= 0)
        return;
    for (std::size_t sent = 0; sent < response.size();) {
        const ssize_t now = write(connection, response.data() + sent, response.size() - sent);
        if (now <= 0)
            return;
        sent += static_cast<std::size_t>(now);
    }
}

/// Answers every request for as long as the program runs; returns the address.
std::string startServer()
{
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener, generic, size) != 0 || listen(listener, 8) != 0 ||
        getsockname(listener, generic, &size) != 0) {
        std::perror("the server");
        std::exit(1);
    }
    std::thread([listener] {
        const std::string response =
            "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + std::to_string(bodySize) +
            "\r\n\r\n" + std::string(bodySize, 'x');
        for (;;) {
            const int connection = accept(listener, nullptr, nullptr);
            answer(connection, response);
            close(connection);
        }
    }).detach();
    return "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/";
}

const std::string& server()
{
    static const std::string address = startServer();
    return address;
}

std::string target(const char* name)
{
    // As in a program that has freed no block of this size before: afterwards malloc would give
    // pages that it had already, to whoever comes second.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    mallopt(M_TRIM_THRESHOLD, 128 * 1024);
    return std::filesystem::temp_directory_path() / name;
}

const Measured ours("download 10 MB/ours", [file = target("pelmora-bench.download")] {
    const bool done = ManagedHTTP::HTTPDownloader::DownloadFile(server().c_str(), file.c_str(),
                                                                60000, nullptr, nullptr);
    std::filesystem::remove(file);
    return done;
});

std::size_t append(char* data, std::size_t one, std::size_t size, void* body)
{
    static_cast<std::string*>(body)->append(data, size);
    return one * size;
}

/// Holds the body until it is whole, too, in a buffer whose size was known.
const Measured peer("download 10 MB/libcurl", [file = target("pelmora-bench-peer.download")] {
    std::string body;
    body.reserve(bodySize);
    CURL* const handle = curl_easy_init();
    curl_easy_setopt(handle, CURLOPT_URL, server().c_str());
    curl_easy_setopt(handle, CURLOPT_PROXY, "");
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, append);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &body);
    const CURLcode result = curl_easy_perform(handle);
    curl_easy_cleanup(handle);
    std::FILE* const output = std::fopen(file.c_str(), "wb");
    std::fwrite(body.data(), 1, body.size(), output);
    std::fclose(output);
    std::filesystem::remove(file);
    return result;
});

} // namespace
