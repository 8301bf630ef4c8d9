#include "pelmora/c/border.h"
#include "pelmora/platform/codePages.h"

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

pelmora_status ask(pelmora_char16 unit, int* result, bool (*test)(Native::WideChar) noexcept)
{
    return give(result, "result", [&] { return test(unit); });
}

/// What a text means, and whether it is a whole one of its kind.
template <class T, class Read>
pelmora_status giveMeaning(const pelmora_char16* text, T* place, const char* parameter, int* whole,
                           const Read& read)
{
    return guarded(
        [&] {
            bool isWhole = false;
            *place = read(GString(requiredText(text, "text")), &isWhole);
            if (whole != nullptr)
                *whole = isWhole ? 1 : 0;
            return PELMORA_OK;
        },
        Result(place, parameter), Result(whole, optional));
}

/// The text of a number by a format.
template <class Number>
pelmora_status giveFormatted(Number number, const char* format, pelmora_char16* buffer,
                             size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return GString::from_number(number, requiredText(format, "format")); });
}

/// Gives on what a conversion made of a text, where nothing can mean that the code page is unknown.
template <class Text>
Text knownConversion(Text&& converted, bool hadText, unsigned int codePage)
{
    if (converted.empty() && hadText) {
        std::array<Native::WideChar, 8> room;
        if (Native::Platform::decode(codePage, "", room) ==
            Native::Platform::ConversionStatus::failed)
            throw Failure{PELMORA_NOT_FOUND, "the system does not know the code page"};
    }
    return std::forward<Text>(converted);
}

} // namespace

pelmora_status pelmora_text_from_narrow(const char* narrow, size_t narrow_length,
                                        uint32_t code_page, pelmora_char16* buffer, size_t capacity,
                                        size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        const auto text = requiredText(narrow, narrow_length, "narrow");
        return knownConversion(GString(text, code_page), !text.empty(), code_page);
    });
}

pelmora_status pelmora_text_to_narrow(const pelmora_char16* text, size_t text_length,
                                      uint32_t code_page, char* buffer, size_t capacity,
                                      size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        const GString whole(requiredText(text, text_length, "text"));
        return knownConversion(whole.to_narrow(code_page), !whole.empty(), code_page);
    });
}

pelmora_status pelmora_text_from_utf8(const char* utf8, size_t utf8_length, pelmora_char16* buffer,
                                      size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return GString::from_utf8(requiredText(utf8, utf8_length, "utf8")); });
}

pelmora_status pelmora_text_to_utf8(const pelmora_char16* text, size_t text_length, char* buffer,
                                    size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return GString(requiredText(text, text_length, "text")).to_utf8(); });
}

pelmora_status pelmora_text_to_lower(const pelmora_char16* text, size_t text_length,
                                     pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return GString(requiredText(text, text_length, "text")).to_lower(); });
}

pelmora_status pelmora_text_to_upper(const pelmora_char16* text, size_t text_length,
                                     pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return GString(requiredText(text, text_length, "text")).to_upper(); });
}

pelmora_status pelmora_is_alpha(pelmora_char16 unit, int* result)
{
    return ask(unit, result, &GString::is_alpha);
}

pelmora_status pelmora_is_punct(pelmora_char16 unit, int* result)
{
    return ask(unit, result, &GString::is_punct);
}

pelmora_status pelmora_is_space(pelmora_char16 unit, int* result)
{
    return ask(unit, result, &GString::is_space);
}

pelmora_status pelmora_is_digit(pelmora_char16 unit, int* result)
{
    return ask(unit, result, &GString::is_digit);
}

pelmora_status pelmora_to_long(const pelmora_char16* text, int32_t* number, int* whole)
{
    return giveMeaning(text, number, "number", whole,
                       [](const GString& all, bool* ok) { return all.to_long(ok); });
}

pelmora_status pelmora_to_bool(const pelmora_char16* text, int* value, int* valid)
{
    return giveMeaning(text, value, "value", valid,
                       [](const GString& all, bool* ok) { return all.to_bool(ok) ? 1 : 0; });
}

pelmora_status pelmora_from_bool(int value, pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] { return GString::from_bool(value != 0); });
}

pelmora_status pelmora_from_signed(int64_t number, const char* format, pelmora_char16* buffer,
                                   size_t capacity, size_t* length)
{
    return giveFormatted(number, format, buffer, capacity, length);
}

pelmora_status pelmora_from_unsigned(uint64_t number, const char* format, pelmora_char16* buffer,
                                     size_t capacity, size_t* length)
{
    return giveFormatted(number, format, buffer, capacity, length);
}

pelmora_status pelmora_from_double(double number, const char* format, pelmora_char16* buffer,
                                   size_t capacity, size_t* length)
{
    return giveFormatted(number, format, buffer, capacity, length);
}

pelmora_status pelmora_default_char(uint16_t* character)
{
    return give(character, "character", [] { return GString::default_char(); });
}
