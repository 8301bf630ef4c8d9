#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The texts that both sides of a row are given.

namespace Pelmora::Bench
{

/// Ends the program when the operands of a row are not what it says.
void require(bool condition);

constexpr std::size_t mebibyte = std::size_t(1) << 20;

struct Language {
    std::string_view name;
    std::string_view sentence; ///< in UTF-8
};

constexpr std::array<Language, 3> languages = {{
    {"ASCII",
     "Set the upper limit of the heart rate, then start the infusion at 2.5 mg per hour. "},
    {"German",
     "Obere Grenze der Herzfrequenz wählen, dann die Infusion für zwölf Stunden öffnen. "},
    {"Japanese", "心拍数の上限を設定してから、毎時二・五ミリグラムで点滴を開始してください。"},
}};

/// The language's sentence again and again, cut between two characters: at most so many bytes.
std::string sample(const Language& language, std::size_t bytes);

/// As above, in UTF-16.
std::u16string wideSample(const Language& language, std::size_t bytes);

/// So many bytes of markup's text, in which every twentieth character is one of `special`.
std::string markup(std::string_view special, std::size_t bytes);

/// The catalogue that makeCatalogue.py made, and its identifiers.
constexpr const char* catalogueFolder = CATALOGUE_FOLDER;
constexpr const char* catalogueFile = CATALOGUE_FOLDER "/de/LC_MESSAGES/labels_de.mo";
const std::vector<std::string>& identifiers();

/// Such that no catalogue has them.
const std::vector<std::string>& missingIdentifiers();

/// Takes the elements in turn.
template <class T>
class InTurn
{
public:
    explicit InTurn(const std::vector<T>& elements) : elements_(&elements) {}
    const T& next() { return (*elements_)[index_++ % elements_->size()]; }

private:
    const std::vector<T>* elements_;
    std::size_t index_ = 0;
};

} // namespace Pelmora::Bench
