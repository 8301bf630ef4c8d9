#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// How long the system and a program are busy until it runs, and what memory it has then. The
// programs lie beside this one.

namespace
{

std::string beside(const char* program)
{
    char self[4096];
    const ssize_t size = readlink("/proc/self/exe", self, sizeof self);
    const std::string path(self, static_cast<std::size_t>(size));
    return path.substr(0, path.rfind('/') + 1) + program;
}

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

[[noreturn]] void fail(const std::string& program)
{
    std::perror(program.c_str());
    std::exit(1);
}

/// The processor time of a program that ends at once.
double timeOf(const std::string& program)
{
    pid_t child = 0;
    char* const arguments[] = {const_cast<char*>(program.c_str()), nullptr};
    rusage usage = {};
    if (posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments, environ) != 0 ||
        wait4(child, nullptr, 0, &usage) != child)
        fail(program);
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// What the program itself says when it is asked.
double megabytesOf(const std::string& program)
{
    std::FILE* const pipe = popen((program + " memory").c_str(), "r");
    double megabytes = 0;
    if (pipe == nullptr || std::fscanf(pipe, "%lf", &megabytes) != 1)
        fail(program);
    pclose(pipe);
    return megabytes;
}

int add(const char* name, const char* file)
{
    benchmark::RegisterBenchmark(name, [program = beside(file)](benchmark::State& state) {
        for (auto _ : state)
            state.SetIterationTime(timeOf(program));
        state.counters["MB"] = megabytesOf(program);
    })->UseManualTime();
    return 0;
}

[[maybe_unused]] const int all = add("start/ours", "start_ours") + add("start/bare", "start_bare");

} // namespace
