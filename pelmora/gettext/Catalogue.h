#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/gstringUtil.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Pelmora::Native
{

/// Whether a path ends in ".mo", in upper or lower case.
PELMORA_API bool endsInMo(std::string_view path) noexcept;

/// One compiled message catalogue in the ".mo" format of GNU gettext (its manual, "The Format of
/// GNU MO Files"), of either byte order, with or without hash table. The file is held whole and
/// searched in place; contexts and plural forms are not known, so that of plural forms the first is
/// found.
///
/// The file is not trusted: entries that lead out of it are not found, and every search ends. A
/// loaded catalogue may be searched by several threads at once, while nobody loads.
class PELMORA_API Catalogue
{
public:
    /// Reads the file, with ".mo" appended where the name does not end so. False, and an empty
    /// catalogue, when it cannot be read, has fewer than 29 bytes or is no such file.
    bool load(std::string path);

    /// The translation as text of the ANSI code page; empty when there is none.
    GString translate(std::string_view msgid) const;

    /// The translation's bytes in the catalogue's own encoding, valid while the catalogue is
    /// neither loaded again nor destroyed; empty when there is none. `msgid` ends at its first NUL.
    std::string_view lookup(std::string_view msgid) const noexcept;

    /// Every entry as PO source, in the order of the hash table. Requires for a sensible result:
    /// the file has a hash table; without one, as `msgfmt --no-hash` makes it, it is not to be
    /// dumped.
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
    bool readHeader() noexcept;

    std::string data_; ///< the whole file; empty when nothing is loaded
    bool swapped_ = false;
    std::uint32_t count_ = 0;
    std::uint32_t hashSize_ = 0;
    std::uint32_t identifiers_ = 0; ///< offsets of the three tables
    std::uint32_t translations_ = 0;
    std::uint32_t hashTable_ = 0;
};

} // namespace Pelmora::Native
