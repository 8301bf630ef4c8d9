#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace Pelmora::Faults
{

inline std::atomic<long> liveBlocks = 0;
inline std::atomic<long> allocationsLeft = 0; ///< up to the one that is refused; 0 when none is
inline std::atomic<bool> refusesOnward = false;
inline std::atomic<bool> hasRefused = false;

/// Asked by the allocator for each block.
inline bool isRefused() noexcept
{
    if (allocationsLeft == 0 || --allocationsLeft > 0)
        return false;
    allocationsLeft = refusesOnward ? 1 : 0;
    return hasRefused = true;
}

/// Has a crash print the module where it happened, where the system tells.
void watchCrashes();

using Text = std::function<std::string()>;

/// One run of an operation, with its `nth` allocation refused; with 0 none.
struct Trial {
    long nth;
    bool wasRefused = false;
    std::size_t outcome = 0; ///< the result and the state after it, hashed
    const char* complaint = "";

    /// Runs the operation, and once more if it was refused its memory. Then what `state` tells must
    /// have been as before.
    void attempt(
        const Text& work, const Text& state = [] { return std::string(); });
};

struct Operation {
    std::string name;
    std::function<void(Trial&)> run;
};

std::vector<Operation> operations(const std::string& catalogues, const std::string& folder);

} // namespace Pelmora::Faults
