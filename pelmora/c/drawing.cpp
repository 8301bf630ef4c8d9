#include "pelmora/gui/drawing.h"
#include "pelmora/c/systemBorder.h"

using namespace Pelmora;
using namespace Pelmora::C;

static_assert(sizeof(pelmora_area) == 16);

namespace
{

Native::Area requiredArea(const pelmora_area* area, const char* parameter)
{
    const pelmora_area& given = required(area, parameter);
    return {given.x, given.y, given.width, given.height};
}

pelmora_status drawn(bool done)
{
    if (!done)
        throw Failure{PELMORA_SYSTEM, "the bitmap is not drawn; the error log says why"};
    return PELMORA_OK;
}

} // namespace

pelmora_status pelmora_show_dib_resource(void* dc, uint16_t resource,
                                         const pelmora_area* destination,
                                         const pelmora_area* source, void* module)
{
    return guarded([&] {
        return drawn(Native::showDib(requiredHandle<HDC>(dc, "dc"), resource,
                                     requiredArea(destination, "destination"),
                                     requiredArea(source, "source"), static_cast<HMODULE>(module)));
    });
}

pelmora_status pelmora_show_dib(void* dc, const void* information, const void* bits,
                                const pelmora_area* destination, const pelmora_area* source)
{
    return guarded([&] {
        const auto& header = required(static_cast<const BITMAPINFO*>(information), "information");
        const auto& pixels = required(static_cast<const std::byte*>(bits), "bits");
        return drawn(Native::showDib(requiredHandle<HDC>(dc, "dc"), &header, &pixels,
                                     requiredArea(destination, "destination"),
                                     requiredArea(source, "source")));
    });
}

pelmora_status pelmora_draw_solid_rect(void* dc, int32_t left, int32_t top, int32_t right,
                                       int32_t bottom, uint32_t colour)
{
    return guarded([&] {
        Native::drawSolidRect(requiredHandle<HDC>(dc, "dc"), left, top, right, bottom, colour);
        return PELMORA_OK;
    });
}
