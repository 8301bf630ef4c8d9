#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace Pelmora::Native
{

using Bytes = std::vector<std::byte>;

/// What a dialog template says, to be written as the Windows SDK describes it.
struct SampleDialog {
    bool isExtended = false;
    std::u16string menu = {};        ///< "#" for an ordinal
    std::u16string windowClass = {}; ///< "#" for an ordinal
    std::u16string caption = {};
    bool hasFont = true;
    std::uint16_t pointSize = 8; ///< 0x7FFF stands for all of a font
    std::u16string face = u"MS Shell Dlg";
    std::uint16_t items = 2;
    std::u16string weightAndCharset = {400, 1}; ///< of an extended one
    std::u16string positionAndSize = {10, 20, 150, 80};
    std::uint16_t creationBytes = 3; ///< of every other item

    bool hasFace() const { return hasFont && pointSize != 0x7FFF; }
};

inline Bytes built(const SampleDialog& sample)
{
    using Words = std::u16string;
    const bool isExtended = sample.isExtended;
    const auto text = [](const Words& units) {
        return units == u"#" ? Words{0xFFFF, 0x80} /* the class of buttons */ : units + u'\0';
    };
    const char16_t style = sample.hasFont ? 0xC0 : 0x80;
    Words words = isExtended ? Words{1, 0xFFFF, 7, 0, 0x100, 0, style, 0x80C8}
                             : Words{style, 0x80C8, 0x100, 0};
    words += char16_t(sample.items) + sample.positionAndSize;
    words += text(sample.menu) + text(sample.windowClass) + text(sample.caption);
    if (sample.hasFont)
        words += char16_t(sample.pointSize);
    if (sample.hasFace())
        words += (isExtended ? sample.weightAndCharset : Words()) + text(sample.face);
    for (char16_t i = 0; i < sample.items; ++i) {
        words.resize((words.size() + 1) / 2 * 2);
        words += isExtended ? Words{i, 0, 0, 0, 0, 0x5001} : Words{0, 0x5001, 0, 0};
        words += {5, static_cast<char16_t>(5 + 20 * i), 40, 14, static_cast<char16_t>(100 + i)};
        words += (isExtended ? Words(1, 0) : Words()) + text(u"#");
        // The size of creation data counts itself in the classic layout only.
        const auto size = static_cast<char16_t>(sample.creationBytes + (isExtended ? 0 : 2));
        const Words data = Words{0x0201, 0x0403, 0x0605}.substr(0, (sample.creationBytes + 1) / 2);
        words += i % 2 == 0 ? Words(u"Dose\0", 6) : Words{0, size} + data;
    }
    const auto bytes = std::as_bytes(std::span(words));
    return {bytes.begin(), bytes.end()};
}

} // namespace Pelmora::Native
