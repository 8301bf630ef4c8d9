// replay FOLDER: runs each fuzzer once on every file in the folder of its name, without libFuzzer.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#define PELMORA_FUZZER(name)                                                                       \
    extern "C" int name##TestOneInput(const std::uint8_t* data, std::size_t size);
#include "fuzz/fuzzers.inc"
#undef PELMORA_FUZZER

namespace
{

struct Fuzzer {
    const char* name;
    int (*run)(const std::uint8_t*, std::size_t);
};

constexpr Fuzzer fuzzers[] = {
#define PELMORA_FUZZER(name) {#name, name##TestOneInput},
#include "fuzz/fuzzers.inc"
#undef PELMORA_FUZZER
};

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    const std::filesystem::path seeds = std::filesystem::absolute(arguments[1]);
    for (const auto& [name, run] : fuzzers) {
        int files = 0;
        for (const auto& entry : std::filesystem::directory_iterator(seeds / name)) {
            std::fprintf(stderr, "%s\n", entry.path().c_str()); // the last one is what failed
            std::ifstream stream(entry.path(), std::ios::binary);
            const std::string content(std::istreambuf_iterator<char>(stream), {});
            run(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
            ++files;
        }
        if (files == 0)
            return 1;
    }
    return 0;
}
