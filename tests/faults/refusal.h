#pragma once

#include <atomic>
#include <cstddef>
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

/// A text that is made when it is asked for, by something that lives until then. For hundreds of
/// operations std::function takes several times as long to compile.
class Text
{
public:
    template <class Maker>
    Text(const Maker& maker)
        : maker_(&maker),
          make_([](const void* made) { return std::string((*static_cast<const Maker*>(made))()); })
    {
    }
    std::string operator()() const { return make_(maker_); }

private:
    const void* maker_;
    std::string (*make_)(const void*);
};

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
    void (*run)(Trial&);
};

std::vector<Operation> operations(const std::string& catalogues, const std::string& folder);

} // namespace Pelmora::Faults
