#include "tests/faults/refusal.h"

#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>

// refused_memory CATALOGUES FOLDER once|onward [OPERATION NTH [cold]]: runs every operation with
// its first allocation refused, then with its second, and so on until it needs no more; `onward`
// refuses all after it, too. Begins with OPERATION and NTH, after a crash, or with `cold` runs only
// these, as the first thing that the process does. refuse.py reads what it prints.

using namespace Pelmora::Faults;

void Trial::attempt(const Text& work, const Text& state)
{
    const std::string before = state();
    std::string result;
    hasRefused = false;
    allocationsLeft = nth;
    try {
        result = work();
        allocationsLeft = 0;
    } catch (const std::bad_alloc&) {
        allocationsLeft = 0;
        if (!hasRefused || state() != before)
            complaint = hasRefused ? "the object has changed" : "std::bad_alloc with memory";
        wasRefused = hasRefused.exchange(false);
        result = work();
    } catch (...) {
        allocationsLeft = 0;
        complaint = "another exception";
    }
    wasRefused = wasRefused || hasRefused;
    outcome = std::hash<std::string>()(result + state());
}

namespace
{

/// A line, which a crash ends.
void begin(const Operation& operation, long nth)
{
    std::printf("%s\t%ld\t", operation.name.c_str(), nth);
    std::fflush(stdout);
}

void tryCold(const Operation& operation, long nth)
{
    begin(operation, nth);
    Trial trial = {nth};
    operation.run(trial);
    std::printf("%s\nend\t%d\t%zx\n", trial.complaint, trial.wasRefused ? 1 : 0, trial.outcome);
}

/// How many allocations were refused.
long tryAll(const Operation& operation, long nth)
{
    constexpr int mostFindings = 100;
    Trial expected = {0};
    operation.run(expected);
    operation.run(expected);
    long refusals = 0;
    for (int findings = 0; findings < mostFindings; ++nth, ++refusals) {
        begin(operation, nth);
        Trial trial = {nth};
        long before = liveBlocks;
        operation.run(trial);
        if (liveBlocks > before) {
            // Something may be kept once, such as the last error. What grows again is a leak.
            before = liveBlocks;
            operation.run(trial);
            if (liveBlocks > before)
                trial.complaint = "leaks";
        }
        if (trial.outcome != expected.outcome && *trial.complaint == '\0')
            trial.complaint = "another result";
        findings += *trial.complaint == '\0' ? 0 : 1;
        std::printf("%s\n", trial.complaint);
        if (!trial.wasRefused)
            break;
    }
    return refusals;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4)
        return 2;
    refusesOnward = argv[3] == std::string_view("onward");
    const std::string_view first = argc > 5 ? argv[4] : "";
    long nth = argc > 5 ? std::atol(argv[5]) : 1;
    const auto all = operations(argv[1], argv[2]);
    watchCrashes();
    bool hasBegun = first.empty();
    long refusals = 0;
    for (const Operation& operation : all) {
        hasBegun = hasBegun || operation.name == first;
        if (!hasBegun)
            continue;
        if (nth < 0) { // crashes too often
            nth = 1;
            continue;
        }
        if (argc > 6) {
            tryCold(operation, nth);
            return 0;
        }
        refusals += tryAll(operation, nth);
        nth = 1;
    }
    std::printf("end\t%ld\t\n", refusals);
    return 0;
}
