#include "pelmora/gui/FontUtil.h"

#include "pelmora/gui/gdi.h"
#include "pelmora/log/LogStream.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <utility>

namespace Pelmora::Native
{

Font& Font::operator=(Font&& other) noexcept
{
    if (this != &other)
        attach(other.detach());
    return *this;
}

bool Font::attach(HFONT font) noexcept
{
    if (font != handle_)
        reset();
    handle_ = font;
    return font != nullptr;
}

HFONT Font::detach() noexcept
{
    return std::exchange(handle_, nullptr);
}

void Font::reset() noexcept
{
    if (const HFONT font = detach(); font != nullptr)
        DeleteObject(font);
}

namespace FontUtil
{
namespace
{

using Gdi::MemoryDc;
using Gdi::ScreenDc;
using Gdi::withDc;

constexpr int decipointsPerInch = 720;

/// a * b / c, rounded towards 0 and clamped to an int; 0 if c is 0, as some device contexts answer.
int scaled(std::int64_t a, int b, int c)
{
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    return c == 0 ? 0 : static_cast<int>(std::clamp(a * b / c, -most, most));
}

int CALLBACK noteFound(const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM found)
{
    *reinterpret_cast<bool*>(found) = true; // NOLINT: the system hands the address through
    return 0;
}

} // namespace

bool create(Font& font, const AnsiText& face, int height, bool bold, bool italic)
{
    HFONT handle = createHandle(face, height, bold, italic);
    if (handle == nullptr) {
        get_log() << "FontUtil::create( .., " << face.narrow() << ", " << height << ", " << bold
                  << ", " << italic << ") : can't create font." << endl;
        handle = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    }
    return font.attach(handle);
}

HFONT createHandle(const AnsiText& face, int height, bool bold, bool italic)
{
    return CreateFontA(height, 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, italic ? TRUE : FALSE, FALSE,
                       FALSE, systemCharset(), OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                       DEFAULT_QUALITY, DWORD(FF_SWISS) | DWORD(DEFAULT_PITCH), face.c_str());
}

BYTE systemCharset()
{
    CHARSETINFO information = {};
    const std::uintptr_t codePage = GetACP();
    auto* const asAddress = reinterpret_cast<DWORD*>(codePage); // NOLINT: the flag says number
    TranslateCharsetInfo(asAddress, &information, TCI_SRCCODEPAGE);
    return static_cast<BYTE>(information.ciCharset);
}

bool isNonAnsiSystem()
{
    static const bool answer = systemCharset() != ANSI_CHARSET;
    return answer;
}

bool hasSmallFonts()
{
    static const bool answer = exists("Small Fonts", systemCharset());
    return answer;
}

bool exists(const AnsiText& face, BYTE charset, HDC dc)
{
    LOGFONTA wanted = {};
    const std::size_t length = std::min(face.narrow().size(), std::size(wanted.lfFaceName) - 1);
    std::copy_n(face.c_str(), length, wanted.lfFaceName);
    wanted.lfCharSet = charset;
    return withDc<MemoryDc>(dc, [&wanted](HDC used) {
        bool found = false;
        EnumFontFamiliesExA(used, &wanted, noteFound, reinterpret_cast<LPARAM>(&found), 0);
        return found;
    });
}

bool existsAnyCharset(const AnsiText& face, HDC dc)
{
    return exists(face, DEFAULT_CHARSET, dc);
}

int textHeight(HFONT font, HDC dc)
{
    TEXTMETRICA metrics;
    textMetrics(metrics, font, dc);
    return metrics.tmHeight;
}

void textMetrics(TEXTMETRICA& metrics, HFONT font, HDC dc)
{
    metrics = {};
    withDc<MemoryDc>(dc, [&](HDC used) {
        const Gdi::Selection selected(used, font);
        GetTextMetricsA(used, &metrics);
    });
}

int decipointsToHeight(int decipoints, HDC dc)
{
    return withDc<ScreenDc>(dc, [decipoints](HDC used) {
        POINT points[] = {
            {0, scaled(GetDeviceCaps(used, LOGPIXELSY), decipoints, decipointsPerInch)},
            {0, 0},
        };
        DPtoLP(used, points, 2);
        return -std::abs(static_cast<int>(points[0].y - points[1].y));
    });
}

int heightToDecipoints(int height, HDC dc)
{
    return withDc<ScreenDc>(dc, [height](HDC used) {
        POINT point = {0, height};
        LPtoDP(used, &point, 1);
        return scaled(point.y, decipointsPerInch, GetDeviceCaps(used, LOGPIXELSY));
    });
}

} // namespace FontUtil

} // namespace Pelmora::Native
