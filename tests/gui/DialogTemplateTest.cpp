#include "pelmora/gui/DialogTemplate.h"

#include "pelmora/gui/fontRule.h"

#include "tests/gui/sampleDialogs.h"
#include "tests/printing.h"

#include <algorithm>
#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

using Bytes = std::vector<std::byte>;
using Font = std::pair<std::string, int>;

Bytes bytesOf(const DialogTemplate& dialog)
{
    return {dialog.bytes().begin(), dialog.bytes().end()};
}

GString textOf(const std::u16string& text)
{
    return GString(std::u16string_view(text));
}

/// The template must be the one that would have been written with these contents; only the bytes
/// between font and items have no meaning.
void expectSame(const DialogTemplate& dialog, const SampleDialog& sample)
{
    const BuiltDialog expected = built(sample);
    Bytes found = bytesOf(dialog);
    found.resize(sample.items == 0 ? expected.fontEnd : found.size());
    for (std::size_t i = expected.fontEnd; i % 4 != 0 && i < found.size(); ++i)
        found[i] = std::byte();
    EXPECT_TRUE(found == expected.bytes);
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
                for (const unsigned int items : {0U, 1U, 3U})
                    all.push_back({isExtended, name, u"#", caption, items != 1, 8, u"Tahoma", items,
                                   0x00EE01F4});
    return all;
}

TEST(DialogTemplate, CaptionAndFontAreReplaced)
{
    const std::u16string captions[] = {u"", u"Infusion \u3042", std::u16string(255, u'c'), u"x"};
    const std::u16string faces[] = {u"", u"Caf\u00E9", std::u16string(31, u'f'), u"Arial"};
    for (SampleDialog sample : samples()) {
        DialogTemplate dialog(built(sample).bytes);
        expectSame(dialog, sample);
        for (const std::u16string& caption : captions) {
            sample.caption = caption;
            dialog.setCaption(textOf(caption));
            expectSame(dialog, sample);
        }
        sample.pointSize = 9;
        EXPECT_EQ(dialog.setFontSize(9), sample.hasFont);
        expectSame(dialog, sample);
        sample.weightAndCharset = sample.hasFont ? sample.weightAndCharset : 0;
        sample.hasFont = true;
        for (int round = 0; round < 30; ++round) {
            sample.face = faces[round % 4];
            EXPECT_TRUE(dialog.setFont(textOf(sample.face), 9));
            expectSame(dialog, sample);
        }
    }
}

TEST(DialogTemplate, CaptionsGrowByWhatIsAllowedAndAreCut)
{
    const std::tuple<std::size_t, std::size_t, std::size_t> rows[] = {
        // length of the old caption and the new one, length afterwards
        {10, 255, 255}, {10, 256, 255}, {10, 266, 255}, {10, 267, 10}, {300, 3, 3}, {300, 310, 255},
    };
    for (const auto& [before, length, afterwards] : rows) {
        SampleDialog sample;
        sample.caption = std::u16string(before, u'x');
        DialogTemplate dialog(built(sample).bytes);
        dialog.setCaption(textOf(std::u16string(length, u'n') + u'\0' + u"unseen"));
        sample.caption = std::u16string(afterwards, afterwards == before ? u'x' : u'n');
        expectSame(dialog, sample);
    }
}

TEST(DialogTemplate, AFaceThatDoesNotFitLeavesNone)
{
    for (const bool isExtended : {false, true}) {
        const BuiltDialog before = built({.isExtended = isExtended, .face = u"Arial"});
        DialogTemplate dialog(before.bytes);
        EXPECT_TRUE(dialog.setFont(std::string(32, 'f'), 7));
        // "Arial" and its NUL took 12 bytes, so that all alignments are as before.
        const auto at = static_cast<std::ptrdiff_t>((before.fontEnd + 3) / 4 * 4);
        Bytes expected(before.bytes.begin() + at, before.bytes.end());
        const Bytes found = bytesOf(dialog);
        EXPECT_EQ(Bytes(found.begin() + at - 12, found.end()), expected);
    }
}

TEST(DialogTemplate, TheFontForMessagesHasNoFace)
{
    for (SampleDialog sample : samples()) {
        sample.hasFont = true;
        sample.pointSize = 0x7FFF;
        sample.face = u"";
        DialogTemplate dialog(built(sample).bytes);
        sample.caption = u"Bedside";
        dialog.setCaption(u"Bedside");
        EXPECT_FALSE(dialog.setFontSize(9));
        expectSame(dialog, sample);
        sample.pointSize = 9;
        sample.face = u"Arial";
        sample.weightAndCharset = 0;
        EXPECT_TRUE(dialog.setFont("Arial", 9));
        EXPECT_FALSE(dialog.setFont("Arial", 0x7FFF) || dialog.setFontSize(0x7FFF));
        expectSame(dialog, sample);
    }
}

/// Whether no operation does anything.
bool takesEmptyPaths(DialogTemplate dialog)
{
    const Bytes before = bytesOf(dialog);
    dialog.setCaption(u"caption");
    dialog.setPosition({1, 1});
    dialog.setSize({1, 1});
    const bool anySet = dialog.setFont("Arial", 9) || dialog.setFontSize(9);
    return !anySet && !dialog.valid() && dialog.getCaption().empty() &&
           dialog.getFont() == Font("", -1) && bytesOf(dialog) == before;
}

TEST(DialogTemplate, WhatIsNoWholeTemplateIsLeftAlone)
{
    EXPECT_TRUE(takesEmptyPaths(DialogTemplate()));
    for (const SampleDialog& sample : samples()) {
        Bytes bytes = built(sample).bytes;
        for (std::size_t size = 0; size < bytes.size(); ++size)
            EXPECT_TRUE(takesEmptyPaths(DialogTemplate(std::span(bytes).first(size)))) << size;
        DialogTemplate dialog(bytes);
        dialog.setPosition({-2, 0x1234});
        dialog.setSize({1, 0x8000});
        const DialogTemplate taken = std::move(dialog);
        EXPECT_TRUE(takesEmptyPaths(dialog)); // NOLINT: without a template
        auto corner = bytes.begin() + (sample.isExtended ? 18 : 10);
        for (const int number : {0xFE, 0xFF, 0x34, 0x12, 1, 0, 0, 0x80})
            *corner++ = static_cast<std::byte>(number);
        EXPECT_EQ(bytesOf(taken), bytes);
        for (const unsigned int at : {16U, 0U}) { // the number of items, the version
            auto lying = bytes;
            lying[sample.isExtended ? at : 8U] = std::byte(9);
            EXPECT_TRUE(takesEmptyPaths(DialogTemplate(lying)));
        }
    }
}

TEST(DialogTemplate, FontRule)
{
    const std::tuple<bool, bool, bool, Font> rows[] = {
        // another character set, small fonts, a font, the font afterwards
        {false, false, true, {"MS Shell Dlg", 8}}, {false, true, true, {"Small Fonts", 7}},
        {true, true, true, {"MS Shell Dlg", 7}},   {false, false, false, {"", -1}},
        {false, true, false, {"Small Fonts", 7}},  {true, true, false, {"", -1}},
    };
    for (const auto& [isNonAnsi, hasSmallFonts, hasFont, font] : rows) {
        DialogTemplate dialog(built({.hasFont = hasFont}).bytes);
        applyFontRule(dialog, isNonAnsi, hasSmallFonts);
        EXPECT_EQ(dialog.getFont(), font);
    }
}

} // namespace
} // namespace Pelmora::Native
