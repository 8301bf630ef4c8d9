// Any bytes as a catalogue, and sound catalogues of any texts in each form of the format.

#include "pelmora/gettext/Catalogue.h"
#include "fuzz/FuzzedInput.h"
#include "tests/TemporaryFolder.h"

#include <map>
#include <optional>
#include <vector>

using namespace Pelmora;
using Native::Catalogue;

namespace
{

std::string beforeNul(const std::string& text)
{
    return text.substr(0, text.find('\0'));
}

/// A catalogue's file, read without any thought of speed.
class File
{
public:
    explicit File(std::string bytes) : bytes_(std::move(bytes)) {}

    std::optional<std::uint32_t> number(std::uint64_t at) const
    {
        if (at + 4 > bytes_.size())
            return std::nullopt;
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            const bool isSwapped = bytes_[0] == '\x95';
            value = value << 8 | static_cast<unsigned char>(bytes_[at + (isSwapped ? i : 3 - i)]);
        }
        return value;
    }

    std::optional<std::string> text(std::uint64_t table, std::uint64_t index) const
    {
        const auto at = number(table + 8 * index + 4);
        if (!at || *at >= bytes_.size() || bytes_.find('\0', *at) == std::string::npos)
            return std::nullopt;
        return beforeNul(bytes_.substr(*at));
    }

private:
    std::string bytes_;
};

bool loaded(Catalogue& catalogue, const std::string& bytes)
{
    static const TemporaryFolder folder;
    TemporaryFolder::write(folder.path("any.mo"), bytes);
    return catalogue.load(folder.name("any.mo"));
}

/// What is found stands in the file, as the translation of what was asked for.
void searchAnyFile(const std::string& bytes)
{
    Catalogue catalogue;
    if (!loaded(catalogue, bytes)) {
        check(catalogue.lookup("").empty() && catalogue.to_po().empty());
        return;
    }
    const File file(bytes);
    const auto identifiers = *file.number(12);
    const auto translations = *file.number(16);
    std::map<std::string, std::vector<std::string>> known = {{"", {}}, {"none", {}}};
    for (std::uint32_t i = 0; i < *file.number(8) && file.number(identifiers + 8ULL * i); ++i)
        if (const auto identifier = file.text(identifiers, i))
            if (const auto translation = file.text(translations, i))
                known[*identifier].push_back(*translation);
    for (const auto& [identifier, answers] : known) {
        const std::string found(catalogue.lookup(identifier));
        check(found.empty() || std::find(answers.begin(), answers.end(), found) != answers.end());
    }
    constexpr std::size_t escapedEntry = 64; // what stands around two texts, and more
    check(catalogue.to_po().size() <= (32 + escapedEntry) * bytes.size() + (1U << 22U));
}

std::uint32_t hashOf(const std::string& text) // as GNU gettext's manual has it
{
    std::uint32_t hash = 0;
    for (const char c : text) {
        hash = (hash << 4) + static_cast<unsigned char>(c);
        if (const std::uint32_t high = hash & 0xF0000000; high != 0)
            hash = (hash ^ (high >> 24)) & ~high;
    }
    return hash;
}

bool isPrime(std::uint32_t number)
{
    for (std::uint32_t i = 2; i * i <= number; ++i)
        if (number % i == 0)
            return false;
    return true;
}

std::string escaped(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        const std::size_t place = std::string_view("\\\"\n\t").find(c);
        result += place == std::string_view::npos
                      ? std::string(1, c)
                      : std::string("\\") + std::string_view("\\\"nt")[place];
    }
    return result;
}

/// Everything in a sound catalogue is found, and nothing else.
void searchSoundFile(FuzzedInput input)
{
    const bool isSwapped = input.flag();
    const bool isHashed = input.flag();
    std::map<std::string, std::pair<std::string, std::string>> entries; // with plural forms
    while (!input.empty()) {
        const std::string identifier = input.line();
        entries[beforeNul(identifier)] = {identifier, input.line()};
    }
    const auto count = static_cast<std::uint32_t>(entries.size());
    std::uint32_t slots = isHashed ? 2 * count + 3 : 0;
    while (!isPrime(slots))
        ++slots;
    const std::uint32_t texts = 28 + 16 * count + 4 * slots;
    std::vector<std::uint32_t> identifiers;
    std::vector<std::uint32_t> translations;
    std::vector<std::uint32_t> table(slots);
    std::vector<std::string> po(slots);
    std::string stored(1, '\0');
    const auto store = [&](std::vector<std::uint32_t>& list, const std::string& text) {
        list.push_back(static_cast<std::uint32_t>(text.size()));
        list.push_back(static_cast<std::uint32_t>(texts + stored.size()));
        stored += text + '\0';
    };
    for (const auto& [identifier, entry] : entries) {
        store(identifiers, entry.first);
        store(translations, entry.second);
        if (!isHashed)
            continue;
        const std::uint32_t hash = hashOf(identifier);
        std::uint32_t slot = hash % slots;
        while (table[slot] != 0)
            slot = (slot + 1 + hash % (slots - 2)) % slots;
        table[slot] = static_cast<std::uint32_t>(identifiers.size() / 2);
        po[slot] = "msgid\t\"" + escaped(identifier) + "\"\r\nmsgstr\t\"" +
                   escaped(beforeNul(entry.second)) + "\"\r\n\r\n";
    }
    std::vector<std::uint32_t> words = {0x950412de,     0,     count,          28,
                                        28 + 8 * count, slots, 28 + 16 * count};
    for (const auto* list : {&identifiers, &translations, &table})
        words.insert(words.end(), list->begin(), list->end());
    std::string bytes;
    for (const std::uint32_t word : words)
        for (unsigned i = 0; i < 4; ++i)
            bytes += static_cast<char>(word >> 8 * (isSwapped ? 3 - i : i));

    Catalogue catalogue;
    check(loaded(catalogue, bytes + stored));
    std::string wholePo;
    for (const std::string& slot : po)
        wholePo += slot;
    check(!isHashed || catalogue.to_po() == wholePo);
    for (const auto& [identifier, entry] : entries) {
        check(catalogue.lookup(identifier) == beforeNul(entry.second));
        if (!entries.contains(identifier + "x"))
            check(catalogue.lookup(identifier + "x").empty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size > 0 && data[0] >= 0x80) // the magic number of either byte order
        searchAnyFile(std::string(reinterpret_cast<const char*>(data), size));
    else
        searchSoundFile(FuzzedInput(data, size));
    return 0;
}
