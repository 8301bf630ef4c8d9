#include "pelmora/gui/DialogTemplateBytes.h"

#include "pelmora/gui/dialogLayout.h"
#include "pelmora/gui/fontRule.h"

#include "tests/gui/sampleDialogs.h"
#include "tests/printing.h"

#include <array>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

using Font = std::pair<std::string, int>;

Bytes bytesOf(const DialogTemplateBytes& dialog)
{
    return {dialog.bytes().begin(), dialog.bytes().end()};
}

GString textOf(std::u16string_view text)
{
    return GString(text);
}

/// The bytes between font and items have no meaning.
Bytes withoutGap(Bytes bytes)
{
    bytes.resize(alignedTo4(bytes.size()));
    for (std::size_t i = dialogParts(bytes).value().items; i % 4 != 0; ++i)
        bytes[i] = std::byte();
    return bytes;
}

/// The template must be the one that would have been written with these contents.
void expectSame(const DialogTemplateBytes& dialog, const SampleDialog& sample)
{
    EXPECT_TRUE(withoutGap(bytesOf(dialog)) == withoutGap(built(sample)));
    EXPECT_EQ(dialog.getCaption(), textOf(sample.caption));
    const Font font(textOf(sample.face).to_narrow(), sample.pointSize);
    EXPECT_EQ(dialog.getFont(), sample.hasFont ? font : Font("", -1));
}

/// Both layouts, with everything that may stand before the font and behind it.
std::vector<SampleDialog> samples()
{
    std::vector<SampleDialog> all;
    for (const bool isExtended : {false, true})
        for (const char16_t* const name : {u"", u"#", u"menu"})
            for (const char16_t* const caption : {u"", u"Bed", u"Beds"})
                for (const auto items : std::to_array<std::uint16_t>({0, 1, 3}))
                    for (const bool hasFace : {false, true})
                        all.push_back({isExtended, name, u"#", caption, items != 1,
                                       hasFace ? std::uint16_t(8) : std::uint16_t(0x7FFF),
                                       hasFace ? u"Tahoma" : u"", items, u"\u01F4\u00EE"});
    for (std::size_t i = 0; i < all.size(); i += 2)
        all[i].creationBytes = 6;
    return all;
}

std::string described(const SampleDialog& sample)
{
    return std::string(sample.isExtended ? "extended" : "classic") + ", menu '" +
           textOf(sample.menu).to_narrow() + "', caption '" + textOf(sample.caption).to_narrow() +
           "', " + std::to_string(sample.items) + " items, " +
           (sample.hasFont ? "font " : "no font ") + std::to_string(sample.pointSize);
}

TEST(DialogTemplateBytes, CaptionAndFontAreReplaced)
{
    const std::u16string captions[] = {u"", u"Infusion \u3042", std::u16string(255, u'c'), u"x"};
    const std::u16string faces[] = {u"", u"Caf\u00E9", std::u16string(31, u'f'), u"Arial"};
    for (SampleDialog sample : samples()) {
        SCOPED_TRACE(described(sample));
        DialogTemplateBytes dialog(built(sample));
        expectSame(dialog, sample);
        for (const std::u16string& caption : captions) {
            sample.caption = caption;
            dialog.setCaption(textOf(caption));
            expectSame(dialog, sample);
        }
        EXPECT_EQ(dialog.setFontSize(9), sample.hasFace());
        sample.pointSize = sample.hasFace() ? std::uint16_t(9) : sample.pointSize;
        expectSame(dialog, sample);
        sample.weightAndCharset = sample.hasFace() ? sample.weightAndCharset : std::u16string(2, 0);
        sample.hasFont = true;
        sample.pointSize = 9;
        for (int round = 0; round < 8; ++round) {
            sample.face = faces[round % 4];
            EXPECT_TRUE(dialog.setFont(textOf(sample.face), 9));
            expectSame(dialog, sample);
        }
        EXPECT_FALSE(dialog.setFont("Tahoma", 0x7FFF) || dialog.setFontSize(0x7FFF));
        expectSame(dialog, sample);
    }
}

TEST(DialogTemplateBytes, CaptionsGrowByWhatIsAllowedAndAreCut)
{
    const std::tuple<std::size_t, std::size_t, std::size_t> rows[] = {
        // length of the old caption and the new one, length afterwards
        {10, 255, 255}, {10, 256, 255}, {10, 266, 255}, {10, 267, 10}, {300, 3, 3}, {300, 310, 255},
    };
    for (const auto& [before, length, afterwards] : rows) {
        SampleDialog sample = {.caption = std::u16string(before, u'x')};
        DialogTemplateBytes dialog(built(sample));
        dialog.setCaption(textOf(std::u16string(length, u'n') + u'\0' + u"unseen"));
        sample.caption = std::u16string(afterwards, afterwards == before ? u'x' : u'n');
        expectSame(dialog, sample);
    }
}

TEST(DialogTemplateBytes, AFaceThatDoesNotFitLeavesNone)
{
    for (const bool isExtended : {false, true}) {
        Bytes bytes = built({.isExtended = isExtended, .caption = u"x", .face = u"Arial"});
        DialogTemplateBytes dialog(bytes);
        EXPECT_TRUE(dialog.setFont(std::string(32, 'f'), 8));
        const auto face = bytes.begin() + (isExtended ? 40 : 28);
        bytes.erase(face, face + 12); // with its NUL; everything is aligned before and afterwards
        EXPECT_EQ(bytesOf(dialog), bytes);
    }
}

/// Whether no operation does anything.
bool takesEmptyPaths(DialogTemplateBytes dialog)
{
    const Bytes before = bytesOf(dialog);
    dialog.setCaption(u"caption");
    dialog.setPosition({1, 1});
    dialog.setSize({1, 1});
    const bool anySet = dialog.setFont("Arial", 9) || dialog.setFontSize(9);
    return !anySet && !dialog.valid() && dialog.getCaption().empty() &&
           dialog.getFont() == Font("", -1) && bytesOf(dialog) == before;
}

TEST(DialogTemplateBytes, BytesThatAreNotAWholeTemplateAreLeftAlone)
{
    for (SampleDialog sample : samples()) {
        SCOPED_TRACE(described(sample));
        const Bytes bytes = built(sample);
        for (std::size_t size = 0; size < bytes.size(); ++size)
            EXPECT_TRUE(takesEmptyPaths(DialogTemplateBytes(std::span(bytes).first(size)))) << size;
        for (const unsigned int at : {16U, 0U}) { // the number of items, the version
            auto lying = bytes;
            lying[sample.isExtended ? at : 8U] = std::byte(9);
            EXPECT_TRUE(takesEmptyPaths(DialogTemplateBytes(lying)));
        }
        DialogTemplateBytes dialog(bytes);
        dialog.setPosition({-2, 0x1234});
        dialog.setSize({1, 0x8000});
        const DialogTemplateBytes taken = std::move(dialog);
        EXPECT_TRUE(takesEmptyPaths(dialog)); // NOLINT: without a template
        sample.positionAndSize = {0xFFFE, 0x1234, 1, 0x8000};
        expectSame(taken, sample);
    }
}

TEST(FontRule, ASmallFontThatHasTheSystemsCharacters)
{
    const std::tuple<bool, bool, bool, Font> rows[] = {
        // another character set, small fonts, a font, the font afterwards
        {false, false, true, {"MS Shell Dlg", 8}}, {false, true, true, {"Small Fonts", 7}},
        {true, true, true, {"MS Shell Dlg", 7}},   {false, false, false, {"", -1}},
        {false, true, false, {"Small Fonts", 7}},  {true, true, false, {"", -1}},
    };
    for (const auto& [isNonAnsi, hasSmallFonts, hasFont, font] : rows) {
        DialogTemplateBytes dialog(built({.hasFont = hasFont}));
        applyFontRule(dialog, isNonAnsi, hasSmallFonts);
        EXPECT_EQ(dialog.getFont(), font);
    }
}

} // namespace
} // namespace Pelmora::Native
