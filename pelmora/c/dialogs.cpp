#include "pelmora/gui/dialogs.h"
#include "pelmora/c/dialogTemplate.h"
#include "pelmora/c/systemBorder.h"
#include "pelmora/gui/DialogTemplate.h"

#include <new>
#include <utility>

using namespace Pelmora;
using namespace Pelmora::C;

namespace
{

/// By which a window leads to its dialog.
constexpr const wchar_t* dialogProperty = L"pelmora_modal_dialog";

/// A dialog whose messages go to the caller's handler first.
class HandledDialog : public Native::ModalDialog
{
public:
    HandledDialog(pelmora_dialog_handler handler, void* context)
        : handler_(handler), context_(context)
    {
    }

    using ModalDialog::end;

    /// The dialog that runs in a window of this thread; null when none does.
    static HandledDialog* of(HWND window)
    {
        if (GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId())
            return nullptr;
        return static_cast<HandledDialog*>(GetPropW(window, dialogProperty));
    }

protected:
    INT_PTR handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_INITDIALOG && SetPropW(window(), dialogProperty, this) == 0)
            throw std::bad_alloc();
        if (message == WM_NCDESTROY)
            RemovePropW(window(), dialogProperty);
        int handled = 0;
        if (handler_ != nullptr) {
            const intptr_t answer = handler_(window(), message, wParam, lParam, &handled, context_);
            if (handled != 0)
                return answer;
        }
        return ModalDialog::handleMessage(message, wParam, lParam);
    }

private:
    pelmora_dialog_handler handler_;
    void* context_;
};

/// Runs a dialog by `run`, which sets the result or fails with PELMORA_SYSTEM.
template <class Run>
pelmora_status runHandled(pelmora_dialog_handler handler, void* context, intptr_t* result,
                          const Run& run)
{
    const pelmora_status status = guarded(
        [&] {
            HandledDialog dialog(handler, context);
            return run(dialog);
        },
        Result(result, "result"));
    if (status == PELMORA_SYSTEM)
        *result = IDCANCEL;
    return status;
}

/// A copy to be measured, if its bytes are still a template after what was set.
Native::DialogTemplate requiredWhole(const pelmora_dialog_template* dialog)
{
    const Native::DialogTemplateBytes& native = required(dialog, "dialog").native;
    if (!native.valid())
        throw Failure{PELMORA_MALFORMED, "the template is no longer whole"};
    return Native::DialogTemplate(native);
}

/// The two numbers that `ask` gives for a template.
template <class Ask>
pelmora_status givePoint(const pelmora_dialog_template* dialog, int32_t* x, const char* xName,
                         int32_t* y, const char* yName, const Ask& ask)
{
    return guarded(
        [&] {
            const Native::DialogPoint point = ask(requiredWhole(dialog));
            *x = point.x;
            *y = point.y;
            return PELMORA_OK;
        },
        Result(x, xName), Result(y, yName));
}

} // namespace

pelmora_status pelmora_dialog_template_load(void* module, uint16_t resource,
                                            pelmora_dialog_template** dialog)
{
    return giveHandle(dialog, "dialog", [&] {
        Native::DialogTemplate loaded;
        if (!loaded.load(static_cast<HMODULE>(module), resource))
            throw Failure{PELMORA_NOT_FOUND, "the module has no such dialog"};
        if (!loaded.valid())
            throw Failure{PELMORA_MALFORMED, "the resource is not a whole dialog template"};
        auto made = std::make_unique<pelmora_dialog_template>();
        made->native = std::move(loaded);
        return made;
    });
}

pelmora_status pelmora_dialog_template_use_system_font(pelmora_dialog_template* dialog)
{
    return guarded([&] {
        Native::setDialogTemplateFont(required(dialog, "dialog").native);
        return PELMORA_OK;
    });
}

pelmora_status pelmora_dialog_template_base_units(const pelmora_dialog_template* dialog, int32_t* x,
                                                  int32_t* y)
{
    return givePoint(dialog, x, "x", y, "y",
                     [](const Native::DialogTemplate& native) { return native.getBaseUnits(); });
}

pelmora_status pelmora_dialog_to_pixels(const pelmora_dialog_template* dialog, int32_t x, int32_t y,
                                        int32_t* pixels_x, int32_t* pixels_y)
{
    return givePoint(dialog, pixels_x, "pixels_x", pixels_y, "pixels_y",
                     [&](const Native::DialogTemplate& native) {
                         return native.dialogToPixels({x, y});
                     });
}

pelmora_status pelmora_pixels_to_dialog(const pelmora_dialog_template* dialog, int32_t x, int32_t y,
                                        int32_t* dialog_x, int32_t* dialog_y)
{
    return givePoint(dialog, dialog_x, "dialog_x", dialog_y, "dialog_y",
                     [&](const Native::DialogTemplate& native) {
                         return native.pixelsToDialog({x, y});
                     });
}

pelmora_status pelmora_run_modal_dialog(uint16_t resource, void* parent, void* module,
                                        pelmora_dialog_handler handler, void* context,
                                        intptr_t* result)
{
    return runHandled(handler, context, result, [&](HandledDialog& handled) {
        *result = Native::runModalDialog(handled, resource, static_cast<HWND>(parent),
                                         static_cast<HMODULE>(module));
        if (!handled.begun())
            throw Failure{PELMORA_SYSTEM, "the dialog cannot be made; the error log says why"};
        return PELMORA_OK;
    });
}

pelmora_status pelmora_run_modal_dialog_template(const pelmora_dialog_template* dialog,
                                                 void* parent, void* module,
                                                 pelmora_dialog_handler handler, void* context,
                                                 intptr_t* result)
{
    return runHandled(handler, context, result, [&](HandledDialog& handled) -> pelmora_status {
        const Native::DialogTemplateBytes& native = required(dialog, "dialog").native;
        SetLastError(ERROR_SUCCESS);
        const auto ended =
            handled.run(native, static_cast<HWND>(parent), static_cast<HMODULE>(module));
        const DWORD error = GetLastError();
        if (!handled.begun())
            return fail(PELMORA_SYSTEM, error == ERROR_SUCCESS ? "the dialog cannot be made"
                                                               : systemMessage(error));
        *result = ended.value_or(IDCANCEL);
        return PELMORA_OK;
    });
}

pelmora_status pelmora_end_modal_dialog(void* window, intptr_t result)
{
    return guarded([&] {
        HandledDialog* const dialog = HandledDialog::of(requiredHandle<HWND>(window, "window"));
        if (dialog == nullptr)
            throw Failure{PELMORA_BAD_ARGUMENT, "no dialog of this thread runs in 'window'"};
        dialog->end(result);
        return PELMORA_OK;
    });
}
