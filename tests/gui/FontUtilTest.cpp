#include "pelmora/gui/FontUtil.h"

#include "pelmora/gui/DialogTemplate.h"
#include "pelmora/gui/drawing.h"
#include "pelmora/gui/gdi.h"

#include "tests/gui/sampleDialogs.h"

#include <algorithm>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(FontUtil, FontsAreWhatWasAskedFor)
{
    const Gdi::MemoryDc memory;
    const HGDIOBJ selected = GetCurrentObject(memory.get(), OBJ_FONT);
    for (const auto& [height, bold] : {std::pair(-13, false), {20, true}}) {
        Font font;
        EXPECT_TRUE(FontUtil::create(font, GString(u"Tahoma"), height, bold, !bold));
        LOGFONTA found = {};
        GetObjectA(font.get(), sizeof found, &found);
        EXPECT_STREQ(found.lfFaceName, "Tahoma");
        EXPECT_EQ(found.lfWeight, bold ? 700 : 400);
        EXPECT_EQ(found.lfItalic, bold ? 0 : 1);
        EXPECT_EQ(found.lfPitchAndFamily, 32);
        EXPECT_EQ(found.lfCharSet, FontUtil::systemCharset());
        TEXTMETRICA metrics;
        FontUtil::textMetrics(metrics, font.get());
        EXPECT_EQ(height > 0 ? metrics.tmHeight : metrics.tmInternalLeading - metrics.tmHeight,
                  height);
        EXPECT_EQ(FontUtil::textHeight(font.get(), memory.get()), metrics.tmHeight);
        EXPECT_EQ(GetCurrentObject(memory.get(), OBJ_FONT), selected);
    }
}

TEST(FontUtil, FacesThatAreInstalled)
{
    const char* const smallFonts = "Z:\\usr\\share\\wine\\fonts\\smalle.fon";
    EXPECT_GT(AddFontResourceA(smallFonts), 0);
    EXPECT_TRUE(FontUtil::existsAnyCharset(u"Small Fonts"));
    const bool first = FontUtil::hasSmallFonts(); // or asked earlier, by another test
    RemoveFontResourceA(smallFonts);
    EXPECT_EQ(FontUtil::hasSmallFonts(), first);
    EXPECT_EQ(FontUtil::systemCharset(), ANSI_CHARSET); // of Wine's code page 1252
    EXPECT_FALSE(FontUtil::isNonAnsiSystem());
    EXPECT_FALSE(FontUtil::exists("Liberation Sans", SHIFTJIS_CHARSET));
    EXPECT_FALSE(FontUtil::existsAnyCharset("No such face"));
}

TEST(FontUtil, SizesAndHeights)
{
    const std::tuple<int, int, int> rows[] = {
        // number, as a size in height, as a height in size, with 96 dots an inch
        {100, -13, 750},
        {13, -1, 97},
        {-13, -1, -97},
    };
    for (const auto& [number, height, decipoints] : rows) {
        EXPECT_EQ(FontUtil::decipointsToHeight(number), height);
        EXPECT_EQ(FontUtil::heightToDecipoints(number), decipoints);
    }
    const Gdi::MemoryDc memory;
    SetMapMode(memory.get(), MM_TWIPS); // 15 logical units a pixel, upside down
    EXPECT_EQ(FontUtil::heightToDecipoints(195, memory.get()), -97);
    SetViewportOrgEx(memory.get(), 0, 30, nullptr);
    EXPECT_EQ(FontUtil::decipointsToHeight(100, memory.get()), -195);
}

TEST(FontUtil, NothingLeaks)
{
    // With nearly all handles of a process in use, one kept in every round would soon be missing.
    std::vector<HBRUSH> taken;
    while (const HBRUSH brush = CreateSolidBrush(0))
        taken.push_back(brush);
    constexpr std::size_t rounds = 300;
    ASSERT_GT(taken.size(), rounds);
    for (std::size_t i = 0; i < rounds; ++i)
        DeleteObject(taken[i]);
    const DialogTemplate dialog(built({.face = u"Tahoma"}));
    const int line = dialog.getBaseUnits().y;
    Font font;
    for (std::size_t round = 0; round < rounds; ++round) {
        ASSERT_TRUE(font.attach(FontUtil::createHandle("Tahoma", -13, false, false)));
        ASSERT_GT(FontUtil::textHeight(font.get()), 0);
        ASSERT_EQ(FontUtil::decipointsToHeight(100), -13);
        ASSERT_EQ(dialog.getBaseUnits().y, line);
        drawSolidRect(Gdi::MemoryDc().get(), 0, 0, 9, 9, RGB(1, 2, 3));
    }
    std::for_each(taken.begin() + rounds, taken.end(), DeleteObject);
    Font other(std::move(font));
    font = std::move(other);
    EXPECT_TRUE(font.attach(font.get()));
    EXPECT_EQ(GetObjectType(font.get()), DWORD(OBJ_FONT));
}

} // namespace
} // namespace Pelmora::Native
