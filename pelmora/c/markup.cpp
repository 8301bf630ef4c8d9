#include "pelmora/c/border.h"
#include "pelmora/formatter/Formatter.h"
#include "pelmora/gui/textUtil.h"

#include <vector>

using namespace Pelmora;
using namespace Pelmora::C;
namespace Formatter = Pelmora::Native::Formatter;

pelmora_status pelmora_escape(const pelmora_char16* text, size_t text_length,
                              pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return Formatter::escape(requiredText(text, text_length, "text")); });
}

pelmora_status pelmora_escape_narrow(const char* text, size_t text_length, char* buffer,
                                     size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return Formatter::escape(requiredText(text, text_length, "text")); });
}

pelmora_status pelmora_unescape(const pelmora_char16* text, size_t text_length,
                                pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return Formatter::unescape(requiredText(text, text_length, "text")); });
}

pelmora_status pelmora_unescape_narrow(const char* text, size_t text_length, char* buffer,
                                       size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return Formatter::unescape(requiredText(text, text_length, "text")); });
}

pelmora_status pelmora_replace_all(const pelmora_char16* text, size_t text_length,
                                   const pelmora_char16* from, const pelmora_char16* to,
                                   pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        return Formatter::replaceAll(requiredText(text, text_length, "text"),
                                     requiredText(from, "from"), requiredText(to, "to"));
    });
}

pelmora_status pelmora_replace_all_narrow(const char* text, size_t text_length, const char* from,
                                          const char* to, char* buffer, size_t capacity,
                                          size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        return Formatter::replaceAll(requiredText(text, text_length, "text"),
                                     requiredText(from, "from"), requiredText(to, "to"));
    });
}

pelmora_status pelmora_make_link(const pelmora_char16* text, const pelmora_char16* target,
                                 pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        return Native::makeLink(requiredText(text, "text"), requiredText(target, "target"));
    });
}

pelmora_status pelmora_split(const char* text, size_t text_length, char separator, int skip_empty,
                             pelmora_field* buffer, size_t capacity, size_t* count)
{
    BufferResult<pelmora_field, false> result(buffer, capacity, count);
    return guarded(
        [&] {
            std::vector<pelmora_field> fields;
            size_t offset = 0;
            for (const std::string& field :
                 Native::split(requiredText(text, text_length, "text"), separator, false)) {
                if (!field.empty() || skip_empty == 0)
                    fields.push_back({offset, field.size()});
                offset += field.size() + 1;
            }
            return result.put(fields);
        },
        result);
}
