#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Pelmora::Native
{

/// Bytes of which nobody knows beforehand how many come. They stay where they were put: a string
/// that grew to hold them all would move them, and need room for three times as many meanwhile.
class Pieces
{
public:
    void append(std::string_view bytes)
    {
        while (!bytes.empty()) {
            if (all_.empty() || all_.back().size() == pieceSize)
                all_.emplace_back().reserve(pieceSize);
            const std::size_t room = pieceSize - all_.back().size();
            all_.back() += bytes.substr(0, room);
            bytes.remove_prefix(std::min(room, bytes.size()));
        }
    }

    std::size_t size() const noexcept
    {
        return all_.empty() ? 0 : (all_.size() - 1) * pieceSize + all_.back().size();
    }

    const std::vector<std::string>& all() const noexcept { return all_; }

private:
    static constexpr std::size_t pieceSize = 65536;

    std::vector<std::string> all_; ///< full but the last one
};

} // namespace Pelmora::Native
