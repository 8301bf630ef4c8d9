#include "pelmora/c/dialogTemplate.h"

#include "pelmora/c/border.h"

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

template <class Work>
pelmora_status change(pelmora_dialog_template* dialog, const Work& work)
{
    return guarded([&] {
        if (!work(required(dialog, "dialog").native))
            throw Failure{PELMORA_BAD_ARGUMENT, "the template does not take it"};
        return PELMORA_OK;
    });
}

} // namespace

pelmora_status pelmora_dialog_template_create(const void* bytes, size_t size,
                                              pelmora_dialog_template** dialog)
{
    return giveHandle(dialog, "dialog", [&] {
        auto made = std::make_unique<pelmora_dialog_template>();
        made->native = Native::DialogTemplateBytes(
            required(static_cast<const std::byte*>(bytes), size, "bytes"));
        if (!made->native.valid())
            throw Failure{PELMORA_MALFORMED, "the bytes are not a whole dialog template"};
        return made;
    });
}

void pelmora_dialog_template_destroy(pelmora_dialog_template* dialog)
{
    delete dialog;
}

pelmora_status pelmora_dialog_template_bytes(const pelmora_dialog_template* dialog, void* buffer,
                                             size_t capacity, size_t* size)
{
    BytesResult result(static_cast<std::byte*>(buffer), capacity, size);
    return guarded([&] { return result.put(required(dialog, "dialog").native.bytes()); }, result);
}

pelmora_status pelmora_dialog_template_caption(const pelmora_dialog_template* dialog,
                                               pelmora_char16* buffer, size_t capacity,
                                               size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return required(dialog, "dialog").native.getCaption(); });
}

pelmora_status pelmora_dialog_template_set_caption(pelmora_dialog_template* dialog,
                                                   const pelmora_char16* caption)
{
    return change(dialog, [&](Native::DialogTemplateBytes& native) {
        constexpr size_t longest = 255;
        const Native::WideView text = requiredText(caption, "caption");
        native.setCaption(text);
        return Native::WideView(native.getCaption()) == text.substr(0, longest);
    });
}

pelmora_status pelmora_dialog_template_font(const pelmora_dialog_template* dialog, int32_t* points,
                                            char* buffer, size_t capacity, size_t* length)
{
    TextResult<char> face(buffer, capacity, length);
    return guarded(
        [&] {
            const auto font = required(dialog, "dialog").native.getFont();
            *points = font.second;
            return face.put(font.first);
        },
        Result(points, "points"), face);
}

pelmora_status pelmora_dialog_template_set_font(pelmora_dialog_template* dialog, const char* face,
                                                int16_t points)
{
    return change(dialog, [&](Native::DialogTemplateBytes& native) {
        return native.setFont(std::string(requiredText(face, "face")), points);
    });
}

pelmora_status pelmora_dialog_template_set_font_size(pelmora_dialog_template* dialog,
                                                     int16_t points)
{
    return change(dialog,
                  [&](Native::DialogTemplateBytes& native) { return native.setFontSize(points); });
}

pelmora_status pelmora_dialog_template_set_position(pelmora_dialog_template* dialog, int32_t x,
                                                    int32_t y)
{
    return change(dialog, [&](Native::DialogTemplateBytes& native) {
        native.setPosition({x, y});
        return true;
    });
}

pelmora_status pelmora_dialog_template_set_size(pelmora_dialog_template* dialog, int32_t width,
                                                int32_t height)
{
    return change(dialog, [&](Native::DialogTemplateBytes& native) {
        native.setSize({width, height});
        return true;
    });
}
