// Any bytes as a dialog template, and any changes of it: after each it says what was set, its items
// are as they were, and its bytes say the same to another object.

#include "fuzz/FuzzedInput.h"
#include "pelmora/gui/DialogTemplateBytes.h"
#include "pelmora/gui/dialogLayout.h"
#include "pelmora/gui/littleEndian.h"

#include <vector>

using namespace Pelmora;
using namespace Native;

namespace
{

using Bytes = std::vector<std::byte>;

Bytes itemsOf(const DialogTemplateBytes& dialog)
{
    const auto parts = dialogParts(dialog.bytes());
    if (parts->itemCount == 0)
        return {};
    const auto items = dialog.bytes().subspan(alignedTo4(parts->items));
    return {items.begin(), items.end()};
}

/// What a template is expected to say.
struct Expected {
    GString caption;
    std::pair<std::string, int> font;
    bool hasFace;
    Bytes items;

    explicit Expected(const DialogTemplateBytes& dialog)
        : caption(dialog.getCaption()),
          font(dialog.getFont()),
          hasFace(dialogParts(dialog.bytes())->hasFace),
          items(itemsOf(dialog))
    {
    }
    bool operator==(const Expected&) const = default;
};

/// False when the template is of no use any more.
bool change(DialogTemplateBytes& dialog, Expected& expected, FuzzedInput& input)
{
    switch (input.below(6)) {
    case 0: {
        const GString text(wide(input.line()));
        const WideView shown = WideView(text).substr(0, text.text().find(WideChar(0)));
        if (shown.size() <= expected.caption.size() + 256)
            expected.caption = shown.substr(0, 255);
        dialog.setCaption(text);
        return true;
    }
    case 1: {
        const auto size = input.number<std::int16_t>();
        const std::string line = input.line();
        const std::string face = line.substr(0, line.find('\0'));
        check(dialog.setFont(line, size) == (size != messageFontSize));
        if (size == messageFontSize)
            return true;
        expected.font = {face, size};
        expected.hasFace = true;
        return face.size() < 32;
    }
    case 2: {
        const auto size = input.number<std::int16_t>();
        const bool isTaken = expected.hasFace && size != messageFontSize;
        check(dialog.setFontSize(size) == isTaken);
        if (isTaken)
            expected.font.second = size;
        return true;
    }
    case 3: {
        const auto x = input.number<std::int32_t>();
        const auto y = input.number<std::int32_t>();
        dialog.setPosition({x, y});
        dialog.setSize({y, x});
        const DialogLayout& layout = *dialogParts(dialog.bytes())->layout;
        check(readNumber<std::uint16_t>(dialog.bytes(), layout.position) == std::uint16_t(x) &&
              readNumber<std::uint16_t>(dialog.bytes(), layout.position + 2) == std::uint16_t(y) &&
              readNumber<std::uint16_t>(dialog.bytes(), layout.size) == std::uint16_t(y));
        return true;
    }
    case 4: {
        DialogTemplateBytes copy(dialog);
        copy.setCaption(u"Another");
        copy.setFont("Arial", 9);
        return true;
    }
    default: {
        DialogTemplateBytes moved(std::move(dialog));
        check(!dialog.valid()); // NOLINT(bugprone-use-after-move): says what is left
        dialog = std::move(moved);
        return true;
    }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedInput input(data, size);
    const auto templateSize = input.number<std::uint16_t>();
    const std::size_t used = std::min<std::size_t>(2, size);
    const std::size_t taken = std::min<std::size_t>(templateSize, size - used);
    DialogTemplateBytes dialog(std::as_bytes(std::span(data + used, taken)));
    if (!dialog.valid()) {
        const Bytes before(dialog.bytes().begin(), dialog.bytes().end());
        dialog.setCaption(u"Bedside");
        dialog.setPosition({1, 2});
        check(!dialog.setFont("Arial", 8) && !dialog.setFontSize(8) && dialog.getCaption().empty());
        check(before == Bytes(dialog.bytes().begin(), dialog.bytes().end()));
        return 0;
    }
    FuzzedInput changes(data + used + taken, size - used - taken);
    Expected expected(dialog);
    while (!changes.empty() && change(dialog, expected, changes)) {
        check(dialog.valid());
        check(Expected(dialog) == expected);
        check(Expected(DialogTemplateBytes(dialog.bytes())) == expected);
    }
    return 0;
}
