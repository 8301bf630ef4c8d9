#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Pelmora::Native
{

/// Whether a path ends in ".mo", in any mixture of upper and lower case.
PELMORA_API bool endsInMo(std::string_view path) noexcept;

/// One compiled message catalogue in the ".mo" format of GNU gettext (its manual, "The Format of
/// GNU MO Files"), of either byte order, with or without hash table. The file is held whole and
/// searched in place. Contexts are not known, and of plural forms only the first is found.
///
/// The file is not trusted: entries that lead out of it are not found, and every search ends.
/// Several threads may search a loaded catalogue at once, as long as none loads it again.
class PELMORA_API Catalogue
{
public:
    /// Reads the file, with ".mo" appended to a path that does not end in it. The path is narrow
    /// text as the C library takes it. Returns false and leaves the catalogue empty if the file
    /// cannot be read, has fewer than 29 bytes or does not begin as a catalogue; without memory,
    /// the catalogue stays as it was.
    bool load(std::string path);

    /// The translation, read as text of the ANSI code page; empty when there is none.
    GString translate(std::string_view msgid) const;

    /// The translation's bytes in the catalogue's own encoding; empty when there is none. They are
    /// valid until the catalogue is loaded again or destroyed. `msgid` ends at its first NUL.
    std::string_view lookup(std::string_view msgid) const noexcept;

    /// Every entry as PO source, in the order of the hash table. From a file without a hash table,
    /// as `msgfmt --no-hash` makes it, the result means nothing.
    std::string to_po() const;

private:
    std::optional<std::uint32_t> numberAt(std::uint64_t offset) const noexcept;
    std::optional<std::string_view> fileFrom(std::uint64_t table,
                                             std::uint32_t index) const noexcept;
    bool isIdentifier(std::uint32_t index, std::string_view msgid) const noexcept;
    std::optional<std::string_view> stringAt(std::uint64_t table,
                                             std::uint32_t index) const noexcept;
    std::optional<std::uint32_t> indexOf(std::string_view msgid) const noexcept;
    std::optional<std::uint32_t> searchSorted(std::string_view msgid) const noexcept;
    std::optional<std::uint32_t> searchHashed(std::string_view msgid) const noexcept;
    bool readFile(const std::string& path);
    bool readHeader() noexcept;

    /// The whole file; empty when nothing is loaded.
    std::string_view data() const noexcept
    {
        return file_ == nullptr ? std::string_view() : std::string_view(file_.get(), size_);
    }

    std::shared_ptr<const char[]> file_; ///< shared by the catalogue's copies
    std::size_t size_ = 0;
    bool swapped_ = false;
    std::uint32_t count_ = 0;
    std::uint32_t hashSize_ = 0;
    // Offsets of the three tables.
    std::uint32_t identifiers_ = 0;
    std::uint32_t translations_ = 0;
    std::uint32_t hashTable_ = 0;
};

} // namespace Pelmora::Native
