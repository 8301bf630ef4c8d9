#include "pelmora/api/Init.h"
#include "pelmora/c/border.h"
#include "pelmora/gettext/TextLocale.h"

#include <stdexcept>
#include <string>
#include <vector>

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

/// The C++ translator takes no context.
struct {
    pelmora_translator translate;
    void* context;
} installed;

GString translateByCallback(std::string msgid) // NOLINT: by value, as a Translator takes it
{
    std::vector<Native::WideChar> room(256);
    for (int attempt = 0; attempt < 2; ++attempt) {
        const size_t length =
            installed.translate(msgid.c_str(), room.data(), room.size(), installed.context);
        if (length < room.size())
            return Native::WideView(room.data(), length);
        room = std::vector<Native::WideChar>(length + 1);
    }
    return {};
}

template <class Work>
pelmora_status change(const Work& work)
{
    return guarded([&] {
        work();
        return PELMORA_OK;
    });
}

} // namespace

pelmora_status pelmora_language_init(const char* path)
{
    return change([&] {
        const std::string name(requiredText(path, "path"));
        try {
            Native::gettext_locale.init(name);
        } catch (const std::out_of_range&) {
            throw Failure{PELMORA_BAD_ARGUMENT,
                          "'path' has fewer than two characters before \".mo\""};
        }
    });
}

pelmora_status pelmora_language_init_from_culture(void)
{
    return change([] { Init::init(); });
}

pelmora_status pelmora_language_set_translator(pelmora_translator translator, void* context)
{
    return change([&] {
        installed = {translator, context};
        Native::gettext_locale.set_translator(translator == nullptr ? nullptr
                                                                    : translateByCallback);
    });
}

pelmora_status pelmora_language_use_catalogue(void)
{
    return change([] { Native::gettext_locale.set_translator(Native::translate_from_catalogue); });
}

pelmora_status pelmora_language_set_log_missing(int report)
{
    return change([&] { Native::gettext_locale.set_log_missing(report != 0); });
}

pelmora_status pelmora_translate(const char* msgid, pelmora_char16* buffer, size_t capacity,
                                 size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        return Native::gettext_locale.translate(std::string(requiredText(msgid, "msgid")),
                                                Native::gettext_locale.code_page());
    });
}

pelmora_status pelmora_tr(const char* text, pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] { return Native::gettext_locale.tr(text); });
}

pelmora_status pelmora_language_code(char* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [] { return Native::gettext_locale.language(); });
}

pelmora_status pelmora_language_code_page(uint32_t* code_page)
{
    return give(code_page, "code_page", [] { return Native::gettext_locale.code_page(); });
}

pelmora_status pelmora_language_uses_non_latin_code_page(int* result)
{
    return give(result, "result", [] { return Native::gettext_locale.uses_non_latin_code_page(); });
}

pelmora_status pelmora_language_charset(char* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [] { return Native::gettext_locale.charset(); });
}

pelmora_status pelmora_language_id(uint32_t* identifier)
{
    return give(identifier, "identifier", [] { return Native::gettext_locale.lang_id(); });
}

pelmora_status pelmora_language_dump(char* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [] {
        if (Native::gettext_locale.catalogue() == nullptr)
            throw Failure{PELMORA_NOT_FOUND, "the language has no catalogue"};
        return Native::gettext_locale.dump_catalogue();
    });
}
