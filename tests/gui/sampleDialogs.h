#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Pelmora::Native
{

/// What a dialog template says, to be written as the Windows SDK describes it.
struct SampleDialog {
    bool isExtended = false;
    std::u16string menu = {};        ///< "#" for an ordinal
    std::u16string windowClass = {}; ///< "#" for an ordinal
    std::u16string caption = {};
    bool hasFont = true;
    std::uint16_t pointSize = 8;
    std::u16string face = u"MS Shell Dlg";
    unsigned int items = 2;
    std::uint32_t weightAndCharset = 0x00010190; ///< of an extended one
};

struct BuiltDialog {
    std::vector<std::byte> bytes;
    std::size_t fontEnd; ///< where the font block ends
};

inline BuiltDialog built(const SampleDialog& sample)
{
    BuiltDialog dialog = {};
    const auto word = [&](unsigned int value) {
        dialog.bytes.push_back(static_cast<std::byte>(value));
        dialog.bytes.push_back(static_cast<std::byte>(value >> 8U));
    };
    const auto doubleWord = [&](std::uint32_t value) {
        word(value & 0xFFFFU);
        word(value >> 16U);
    };
    const auto text = [&](const std::u16string& units) {
        if (units == u"#") {
            word(0xFFFF);
            word(0x0080); // the class of buttons
            return;
        }
        for (const char16_t unit : units + u'\0')
            word(unit);
    };
    const auto align = [&] {
        while (dialog.bytes.size() % 4 != 0)
            dialog.bytes.push_back(std::byte());
    };

    const std::uint32_t style = 0x80C80080U | (sample.hasFont ? 0x40U : 0U);
    if (sample.isExtended) {
        doubleWord(0xFFFF0001);
        doubleWord(7); // help
    } else {
        doubleWord(style);
    }
    doubleWord(0x100); // extended style
    if (sample.isExtended)
        doubleWord(style);
    word(sample.items);
    for (const unsigned int number : {10U, 20U, 150U, 80U})
        word(number);
    text(sample.menu);
    text(sample.windowClass);
    text(sample.caption);
    if (sample.hasFont)
        word(sample.pointSize);
    if (sample.hasFont && sample.pointSize != 0x7FFF) { // which stands for all of a font
        if (sample.isExtended)
            doubleWord(sample.weightAndCharset);
        text(sample.face);
    }
    dialog.fontEnd = dialog.bytes.size();
    for (unsigned int i = 0; i < sample.items; ++i) {
        align();
        if (sample.isExtended)
            doubleWord(i); // help
        doubleWord(sample.isExtended ? 0 : 0x50010000);
        doubleWord(sample.isExtended ? 0x50010000 : 0);
        for (const unsigned int number : {5U, 5U + 20U * i, 40U, 14U})
            word(number);
        word(100 + i);
        if (sample.isExtended)
            word(0);
        text(u"#");
        text(i % 2 == 0 ? u"Dose" : u"");
        if (i % 2 == 0) {
            word(0);
        } else { // creation data; its size counts itself in the classic layout only
            word(sample.isExtended ? 3 : 5);
            for (const unsigned int byte : {1U, 2U, 3U})
                dialog.bytes.push_back(static_cast<std::byte>(byte));
        }
    }
    return dialog;
}

} // namespace Pelmora::Native
