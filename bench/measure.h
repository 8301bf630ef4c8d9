#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

// What the benchmark programs are made of. A program is a list of `Measured` objects at namespace
// scope and one of the main programs: runGoogle.cpp, or runPlain.cpp where Google Benchmark is not
// to be had.

namespace Pelmora::Bench
{

/// Makes the compiler believe that somebody looks at the object and changes it.
template <class T>
inline void expose(T& object)
{
    __asm__ volatile("" : : "g"(&object) : "memory");
}

/// Does the work so many times.
using Batch = std::function<void(std::int64_t count)>;

/// Lists a work to be measured. The main program defines it.
void add(std::string name, Batch batch);

/// A row's side, named WORK/SIDE, where SIDE is "ours" or the peer's name. `work` is called again
/// and again; what it captures are its operands, which the compiler cannot see through, and what it
/// returns counts as used. It belongs to goals.txt, too.
class Measured
{
public:
    template <class Work>
    Measured(std::string name, Work work)
    {
        add(std::move(name), [work](std::int64_t count) mutable {
            for (; count > 0; --count) {
                expose(work);
                const auto result = work();
                expose(result);
            }
        });
    }
};

} // namespace Pelmora::Bench
