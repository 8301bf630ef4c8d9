// The import pointers of some functions are defined here, so that the library calls these, which
// fail, instead.

#include "pelmora/gui/DialogTemplate.h"
#include "pelmora/gui/FontUtil.h"
#include "pelmora/gui/dateTime.h"
#include "pelmora/gui/drawing.h"
#include "pelmora/gui/gdi.h"
#include "pelmora/registry/systemErrorText.h"

#include "tests/LogCapture.h"
#include "tests/gui/sampleDialogs.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace
{

// Functions for x86-64 need not name what they are called with.
HFONT failingCreateFont()
{
    return nullptr;
}

int failingStretch()
{
    SetLastError(ERROR_ACCESS_DENIED);
    return static_cast<int>(GDI_ERROR);
}

void WINAPI nearlyTheYear2000(SYSTEMTIME* time)
{
    *time = {1999, 12, 5, 31, 23, 59, 58, 0};
}

} // namespace

extern "C" {
void* __imp_GetLocalTime = reinterpret_cast<void*>(nearlyTheYear2000);
void* __imp_CreateFontA = reinterpret_cast<void*>(failingCreateFont);
void* __imp_StretchDIBits = reinterpret_cast<void*>(failingStretch);
}

namespace Pelmora::Native
{
namespace
{

TEST(GuiFailures, TheSystemsFontTakesThePlaceOfAnother)
{
    const LogCapture log;
    Font font;
    EXPECT_TRUE(FontUtil::create(font, "No face", -13, true, false));
    EXPECT_EQ(font.get(), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(log.text(),
              "FontUtil::create( .., No face, -13, true, false) : can't create font.\n");
    EXPECT_EQ(FontUtil::createHandle("No face", -13, true, false), nullptr);
    const DialogPoint base = DialogTemplate(built({})).getBaseUnits();
    EXPECT_EQ(MAKELONG(base.x, base.y), GetDialogBaseUnits());
}

TEST(GuiFailures, DatesAndTimesAreLocal)
{
    EXPECT_NE(currentDateText(true).find("1999"), std::string::npos) << currentDateText(true);
    EXPECT_NE(currentTimeText(true).find(":59:58"), std::string::npos) << currentTimeText(true);
}

TEST(GuiFailures, APictureThatIsNotDrawnIsReported)
{
    const Gdi::MemoryDc memory;
    SetStretchBltMode(memory.get(), HALFTONE);
    const LogCapture log;
    const BITMAPINFO information = {};
    EXPECT_FALSE(showDib(memory.get(), &information, &information, {0, 0, 1, 1}, {0, 0, 1, 1}));
    EXPECT_EQ(log.text(), "Util::showDib(..) StretchDIBits bits error: " +
                              systemErrorText(ERROR_ACCESS_DENIED) + "\n");
    EXPECT_EQ(GetStretchBltMode(memory.get()), HALFTONE);
}

} // namespace
} // namespace Pelmora::Native
