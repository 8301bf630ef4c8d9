#include "pelmora/c/systemBorder.h"
#include "pelmora/gui/dialogs.h"

using namespace Pelmora;
using namespace Pelmora::C;

pelmora_status pelmora_disable_control(void* control, int* before)
{
    return give(before, "before",
                [&] { return Native::disableControl(requiredHandle<HWND>(control, "control")); });
}

pelmora_status pelmora_enable_control(void* control, int enable, int* before)
{
    return give(before, "before", [&] {
        return Native::enableControl(requiredHandle<HWND>(control, "control"), enable != 0);
    });
}

pelmora_status pelmora_show_control(void* control, int show, int* before)
{
    return give(before, "before", [&] {
        return Native::showControl(requiredHandle<HWND>(control, "control"), show != 0);
    });
}

pelmora_status pelmora_is_combo_box(void* window, int* result)
{
    return give(result, "result",
                [&] { return Native::isComboBox(requiredHandle<HWND>(window, "window")); });
}

pelmora_status pelmora_is_drop_down_list(void* combo_box, int* result)
{
    return give(result, "result", [&] {
        return Native::isDropDownList(requiredHandle<HWND>(combo_box, "combo_box"));
    });
}
