#include "pelmora/gettext/Catalogue.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <limits>
#include <new>

namespace Pelmora::Native
{
namespace
{

constexpr std::uint32_t magic = 0x950412de;
constexpr std::uint32_t swappedMagic = 0xde120495;
constexpr std::size_t smallestFile = 29; // the header and one byte more
// The step of the search is taken modulo the size minus 2. Smaller tables count as none.
constexpr std::uint32_t smallestHashTable = 3;

struct FileCloser {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

std::uint32_t byteSwapped(std::uint32_t value)
{
    return value >> 24 | (value >> 8 & 0xFF00U) | (value << 8 & 0xFF0000U) | value << 24;
}

/// The string hash of GNU gettext, P. J. Weinberger's.
std::uint32_t hashOf(std::string_view text)
{
    std::uint32_t hash = 0;
    for (const char character : text) {
        hash = (hash << 4) + static_cast<unsigned char>(character);
        const std::uint32_t overflow = hash & 0xF0000000U;
        hash ^= overflow >> 24 ^ overflow;
    }
    return hash;
}

void appendEscaped(std::string& po, std::string_view text)
{
    for (const char character : text) {
        switch (character) {
        case '\\':
            po += "\\\\";
            break;
        case '"':
            po += "\\\"";
            break;
        case '\n':
            po += "\\n";
            break;
        case '\t':
            po += "\\t";
            break;
        default:
            po += character;
        }
    }
}

} // namespace

bool endsInMo(std::string_view path) noexcept
{
    if (path.size() < 3)
        return false;
    const std::string_view ending = path.substr(path.size() - 3);
    return ending[0] == '.' && (ending[1] | 0x20) == 'm' && (ending[2] | 0x20) == 'o';
}

bool Catalogue::load(std::string path)
{
    if (path.size() <= 3 || !endsInMo(path))
        path += ".mo";
    Catalogue loaded;
    const bool isCatalogue = loaded.readFile(path) && loaded.readHeader();
    *this = isCatalogue ? std::move(loaded) : Catalogue();
    return isCatalogue;
}

/// Platform::readWholeFile takes UTF-16, into which a narrow path outside the code page could not
/// be converted.
bool Catalogue::readFile(const std::string& path)
{
    errno = 0;
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr && errno == ENOMEM)
        throw std::bad_alloc();
    if (file == nullptr || std::fseek(file.get(), 0, SEEK_END) != 0)
        return false;
    const long length = std::ftell(file.get());
    std::rewind(file.get());
    constexpr long lengthOfFolder = std::numeric_limits<long>::max(); // on Linux
    if (length == -1 || length == lengthOfFolder)
        return false;
    // A string would be filled with zeros before, which takes a third of the whole time.
    const auto bytes = std::make_shared_for_overwrite<char[]>(static_cast<std::size_t>(length));
    size_ = std::fread(bytes.get(), 1, static_cast<std::size_t>(length), file.get());
    file_ = bytes;
    return true;
}

bool Catalogue::readHeader() noexcept
{
    if (data().size() < smallestFile)
        return false;
    const std::optional<std::uint32_t> first = numberAt(0);
    swapped_ = first == swappedMagic;
    if (!swapped_ && first != magic)
        return false;
    count_ = *numberAt(8);
    identifiers_ = *numberAt(12);
    translations_ = *numberAt(16);
    hashSize_ = *numberAt(20);
    hashTable_ = *numberAt(24);
    return true;
}

GString Catalogue::translate(std::string_view msgid) const
{
    return GString(lookup(msgid));
}

std::string_view Catalogue::lookup(std::string_view msgid) const noexcept
{
    const std::optional<std::uint32_t> index = indexOf(msgid.substr(0, msgid.find('\0')));
    return index ? stringAt(translations_, *index).value_or(std::string_view())
                 : std::string_view();
}

std::string Catalogue::to_po() const
{
    std::string po;
    // A sound file names each of its strings once or a few times, so that all strings together are
    // not much longer than the file: 16 times as long, and 1 MiB for small files, cuts none short.
    // A hostile one could name the same long string in every slot.
    std::size_t budget = 16 * data().size() + (std::size_t(1) << 20);
    const std::uint32_t slots = hashSize_ >= smallestHashTable ? hashSize_ : count_;
    for (std::uint32_t slot = 0; slot < slots; ++slot) {
        const std::optional<std::uint32_t> entry = numberAt(hashTable_ + std::uint64_t(slot) * 4);
        if (!entry)
            break;
        if (*entry == 0 || *entry > count_)
            continue;
        const auto identifier = stringAt(identifiers_, *entry - 1);
        const auto translation = stringAt(translations_, *entry - 1);
        // A string without a NUL was searched to the end of the file; less than that is counted
        // as the whole file.
        const std::size_t searched =
            identifier.value_or(data()).size() + translation.value_or(data()).size();
        if (searched > budget)
            break;
        budget -= searched;
        if (!identifier || !translation)
            continue;
        po += "msgid\t\"";
        appendEscaped(po, *identifier);
        po += "\"\r\nmsgstr\t\"";
        appendEscaped(po, *translation);
        po += "\"\r\n\r\n";
    }
    return po;
}

// What the searches call for each slot is inline: calls took nearly half of their time.

/// The number at `offset`, read in the file's byte order; nothing outside the file.
inline std::optional<std::uint32_t> Catalogue::numberAt(std::uint64_t offset) const noexcept
{
    const std::string_view file = data();
    std::uint32_t value = 0;
    if (offset > file.size() || file.size() - offset < sizeof value)
        return std::nullopt;
    std::memcpy(&value, file.data() + offset, sizeof value);
    return swapped_ ? byteSwapped(value) : value;
}

/// The file from the start of the string that a descriptor names; nothing if that is outside.
inline std::optional<std::string_view> Catalogue::fileFrom(std::uint64_t table,
                                                           std::uint32_t index) const noexcept
{
    constexpr std::uint64_t descriptorSize = 8;
    constexpr std::uint64_t offsetInDescriptor = 4;
    const auto offset = numberAt(table + index * descriptorSize + offsetInDescriptor);
    if (!offset || *offset >= data().size())
        return std::nullopt;
    return data().substr(*offset);
}

/// The string that a descriptor names, up to its NUL; nothing if the file ends before.
std::optional<std::string_view> Catalogue::stringAt(std::uint64_t table,
                                                    std::uint32_t index) const noexcept
{
    const auto rest = fileFrom(table, index);
    const std::size_t length = rest ? rest->find('\0') : std::string_view::npos;
    if (length == std::string_view::npos)
        return std::nullopt;
    return rest->substr(0, length);
}

/// Compares only as much of the file as `msgid` is long: in a hostile file, every slot may name the
/// same long string.
inline bool Catalogue::isIdentifier(std::uint32_t index, std::string_view msgid) const noexcept
{
    const auto rest = fileFrom(identifiers_, index);
    return rest && rest->size() > msgid.size() && rest->starts_with(msgid) &&
           (*rest)[msgid.size()] == '\0';
}

std::optional<std::uint32_t> Catalogue::indexOf(std::string_view msgid) const noexcept
{
    return hashSize_ < smallestHashTable ? searchSorted(msgid) : searchHashed(msgid);
}

std::optional<std::uint32_t> Catalogue::searchSorted(std::string_view msgid) const noexcept
{
    std::uint64_t low = 0;
    std::uint64_t high = count_;
    while (low < high) {
        const std::uint64_t middle = (low + high) / 2;
        const auto identifier = stringAt(identifiers_, static_cast<std::uint32_t>(middle));
        if (!identifier)
            return std::nullopt;
        const int order = msgid.compare(*identifier);
        if (order == 0)
            return static_cast<std::uint32_t>(middle);
        if (order < 0)
            high = middle;
        else
            low = middle + 1;
    }
    return std::nullopt;
}

std::optional<std::uint32_t> Catalogue::searchHashed(std::string_view msgid) const noexcept
{
    const std::uint32_t hash = hashOf(msgid);
    const std::uint32_t step = 1 + hash % (hashSize_ - 2);
    std::uint32_t slot = hash % hashSize_;
    // Counted, because a table without an empty slot would be searched for ever.
    for (std::uint32_t tried = 0; tried < hashSize_; ++tried) {
        const auto entry = numberAt(hashTable_ + std::uint64_t(slot) * 4);
        if (!entry || *entry == 0)
            return std::nullopt;
        if (*entry <= count_ && isIdentifier(*entry - 1, msgid))
            return *entry - 1;
        slot = slot < hashSize_ - step ? slot + step : slot + step - hashSize_;
    }
    return std::nullopt;
}

} // namespace Pelmora::Native
