#include "pelmora/c/systemBorder.h"
#include "pelmora/gui/FontUtil.h"

using namespace Pelmora;
using namespace Pelmora::C;
namespace FontUtil = Pelmora::Native::FontUtil;

struct pelmora_font {
    Native::Font native;
};

namespace
{

/// The measures of a font, or a failure where the system has none.
TEXTMETRICA measured(void* font, void* dc)
{
    TEXTMETRICA metrics = {};
    FontUtil::textMetrics(metrics, static_cast<HFONT>(font), static_cast<HDC>(dc));
    if (metrics.tmHeight == 0)
        throw Failure{PELMORA_SYSTEM, "the system does not measure the font"};
    return metrics;
}

} // namespace

pelmora_status pelmora_font_create(const char* face, int32_t height, int bold, int italic,
                                   pelmora_font** font)
{
    return giveHandle(font, "font", [&] {
        auto made = std::make_unique<pelmora_font>();
        if (!FontUtil::create(made->native, requiredText(face, "face"), height, bold != 0,
                              italic != 0))
            throw Failure{PELMORA_SYSTEM, "the system has no font"};
        return made;
    });
}

void pelmora_font_destroy(pelmora_font* font)
{
    delete font;
}

pelmora_status pelmora_font_handle(const pelmora_font* font, void** handle)
{
    return give(handle, "handle", [&] { return required(font, "font").native.get(); });
}

pelmora_status pelmora_create_font_handle(const char* face, int32_t height, int bold, int italic,
                                          void** handle)
{
    return give(handle, "handle", [&] {
        const HFONT made =
            FontUtil::createHandle(requiredText(face, "face"), height, bold != 0, italic != 0);
        if (made == nullptr)
            throw Failure{PELMORA_SYSTEM, "the system cannot create the font"};
        return made;
    });
}

pelmora_status pelmora_system_charset(uint8_t* charset)
{
    return give(charset, "charset", FontUtil::systemCharset);
}

pelmora_status pelmora_is_non_ansi_system(int* result)
{
    return give(result, "result", FontUtil::isNonAnsiSystem);
}

pelmora_status pelmora_has_small_fonts(int* result)
{
    return give(result, "result", FontUtil::hasSmallFonts);
}

pelmora_status pelmora_font_exists(const char* face, uint8_t charset, void* dc, int* result)
{
    return give(result, "result", [&] {
        return FontUtil::exists(requiredText(face, "face"), charset, static_cast<HDC>(dc));
    });
}

pelmora_status pelmora_font_exists_any_charset(const char* face, void* dc, int* result)
{
    return give(result, "result", [&] {
        return FontUtil::existsAnyCharset(requiredText(face, "face"), static_cast<HDC>(dc));
    });
}

pelmora_status pelmora_text_height(void* font, void* dc, int32_t* height)
{
    return give(height, "height", [&] { return measured(font, dc).tmHeight; });
}

pelmora_status pelmora_text_metrics(void* font, void* dc, void* metrics)
{
    return give(static_cast<TEXTMETRICA*>(metrics), "metrics", [&] { return measured(font, dc); });
}

pelmora_status pelmora_decipoints_to_height(int32_t decipoints, void* dc, int32_t* height)
{
    return give(height, "height",
                [&] { return FontUtil::decipointsToHeight(decipoints, static_cast<HDC>(dc)); });
}

pelmora_status pelmora_height_to_decipoints(int32_t height, void* dc, int32_t* decipoints)
{
    return give(decipoints, "decipoints",
                [&] { return FontUtil::heightToDecipoints(height, static_cast<HDC>(dc)); });
}
