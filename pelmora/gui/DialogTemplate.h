#pragma once

#include "pelmora/export.h"
#include "pelmora/gui/DialogTemplateBytes.h"

#include <cstdint>
#include <utility>

#include <windows.h>

namespace Pelmora::Native
{

/// A dialog template that is loaded from a module's resources (see `runModalDialog`) and measured
/// in pixels of the screen. `DialogTemplateBytes` says how it is changed.
class PELMORA_API DialogTemplate : public DialogTemplateBytes
{
public:
    /// Without a template, with a copy of bytes, or with those of another object.
    DialogTemplate() = default;
    using DialogTemplateBytes::DialogTemplateBytes;
    explicit DialogTemplate(DialogTemplateBytes bytes) noexcept
        : DialogTemplateBytes(std::move(bytes))
    {
    }

    /// Takes a copy of a dialog resource of a module, null for the program's own. False, with
    /// everything as it was, when there is no such resource.
    bool load(HMODULE module, std::uint16_t resource);

    /// How many pixels 4 horizontal and 8 vertical dialog units are, in the template's font on the
    /// screen, or in the system's font where it has none. -1 and -1 without a template.
    DialogPoint getBaseUnits() const;

    /// Rounded to nearest; -1 and -1 without a template.
    DialogPoint dialogToPixels(DialogPoint units) const;
    DialogPoint pixelsToDialog(DialogPoint pixels) const;
};

} // namespace Pelmora::Native
