// Any bytes as a dialog template and as a bitmap resource.

#include "pelmora/gui/DialogTemplateBytes.h"
#include "pelmora/gui/dibLayout.h"

#include <cstdlib>

using namespace Pelmora::Native;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::span bytes(reinterpret_cast<const std::byte*>(data), size);
    if (const auto pixels = dibPixelOffset(bytes); pixels && *pixels > size)
        std::abort();

    DialogTemplateBytes dialog(bytes);
    for (int round = 0; round < 3 && dialog.valid(); ++round) {
        const GString caption = dialog.getCaption();
        dialog.setCaption(u"Bedside");
        if (!dialog.valid() || dialog.getCaption() != u"Bedside")
            std::abort();
        dialog.setCaption(caption);
        if (!dialog.setFont("Small Fonts", 7) || !dialog.setFontSize(9) || !dialog.valid() ||
            dialog.getFont() != std::pair<std::string, int>("Small Fonts", 9))
            std::abort();
        dialog.setFont(std::string(40, 'f'), 7); // leaves no face
        dialog.setFont("Arial", 8);
    }
    return 0;
}
