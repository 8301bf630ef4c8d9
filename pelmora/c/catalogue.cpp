#include "pelmora/gettext/Catalogue.h"
#include "pelmora/c/border.h"

#include <string>

using namespace Pelmora;
using namespace Pelmora::C;

struct pelmora_catalogue {
    Native::Catalogue native;
};

namespace
{

template <class Text>
Text found(Text&& translation)
{
    if (translation.empty())
        throw Failure{PELMORA_NOT_FOUND, "the catalogue has no translation"};
    return std::forward<Text>(translation);
}

} // namespace

pelmora_status pelmora_catalogue_create(const char* path, pelmora_catalogue** catalogue)
{
    return giveHandle(catalogue, "catalogue", [&] {
        auto made = std::make_unique<pelmora_catalogue>();
        if (!made->native.load(std::string(requiredText(path, "path"))))
            throw Failure{PELMORA_NOT_FOUND, "the file cannot be read or is no catalogue"};
        return made;
    });
}

void pelmora_catalogue_destroy(pelmora_catalogue* catalogue)
{
    delete catalogue;
}

pelmora_status pelmora_catalogue_translate(const pelmora_catalogue* catalogue, const char* msgid,
                                           pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        const Native::Catalogue& native = required(catalogue, "catalogue").native;
        return found(native.translate(requiredText(msgid, "msgid")));
    });
}

pelmora_status pelmora_catalogue_lookup(const pelmora_catalogue* catalogue, const char* msgid,
                                        char* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        const Native::Catalogue& native = required(catalogue, "catalogue").native;
        return found(native.lookup(requiredText(msgid, "msgid")));
    });
}

pelmora_status pelmora_catalogue_to_po(const pelmora_catalogue* catalogue, char* buffer,
                                       size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return required(catalogue, "catalogue").native.to_po(); });
}
