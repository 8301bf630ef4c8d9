#include "checks.h"

#include <stdio.h>
#include <string.h>
#include <windows.h>

static void fonts(void)
{
    pelmora_font* font = NULL;
    void* handle = NULL;
    uint8_t charset = 0xFF;
    TEXTMETRICA metrics;
    OK(pelmora_font_create("Arial", -20, 1, 0, &font));
    OK(pelmora_font_handle(font, &handle));
    GIVES(metrics.tmHeight - metrics.tmInternalLeading == 20 && metrics.tmWeight == FW_BOLD,
          pelmora_text_metrics(handle, NULL, &metrics));
    GIVES(whole == metrics.tmHeight, pelmora_text_height(handle, NULL, &whole));
    FAILS(PELMORA_SYSTEM, pelmora_text_height(handle, (void*)1, &whole));
    pelmora_font_destroy(font);
    pelmora_font_destroy(NULL);
    CHECK(GetObjectType(handle) == 0);
    GIVES(DeleteObject(handle), pelmora_create_font_handle("Arial", 20, 0, 1, &handle));

    OK(pelmora_system_charset(&charset));
    GIVES(truth == (charset != ANSI_CHARSET), pelmora_is_non_ansi_system(&truth));
    OK(pelmora_font_exists("Small Fonts", charset, NULL, &truth));
    GIVES(truth == whole, pelmora_has_small_fonts(&whole));
    GIVES(truth == 0, pelmora_font_exists_any_charset("No such face", NULL, &truth));
    OK(pelmora_decipoints_to_height(7200, NULL, &whole));
    GIVES(whole == 7200, pelmora_height_to_decipoints(-whole, NULL, &whole));
}

static void monitors(void)
{
    pelmora_rectangle work, other;
    RECT expected;
    OK(pelmora_work_area_of_window(NULL, &work));
    OK(pelmora_work_area_at_point(0, 0, &other));
    CHECK(SystemParametersInfoA(SPI_GETWORKAREA, 0, &expected, 0));
    CHECK(memcmp(&work, &expected, sizeof work) == 0 && memcmp(&other, &work, sizeof work) == 0);
    GIVES(whole >= 0, pelmora_monitor_pixels_per_cm(NULL, &whole));
    OK(pelmora_monitor_identifier(NULL, NARROW));
}

static void drawing(void)
{
    static const BITMAPINFO information = {
        {sizeof(BITMAPINFOHEADER), 1, 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {{0, 0, 0, 0}}};
    static const DWORD pixel = 0x102030;
    static const pelmora_area one = {0, 0, 1, 1}, four = {0, 0, 4, 4};
    const HDC screen = GetDC(NULL), dc = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 8, 8);
    const HGDIOBJ before = SelectObject(dc, bitmap);
    GIVES(GetPixel(dc, 3, 3) == RGB(0x10, 0x20, 0x30),
          pelmora_show_dib(dc, &information, &pixel, &four, &one));
    GIVES(GetPixel(dc, 3, 3) == RGB(1, 2, 3),
          pelmora_draw_solid_rect(dc, 1, 1, 5, 5, RGB(1, 2, 3)));
    GIVES(GetPixel(dc, 3, 3) == RGB(0, 0, 0xFF),
          pelmora_show_dib_resource(dc, 1, &four, &one, NULL));
    FAILS(PELMORA_SYSTEM, pelmora_show_dib_resource(dc, 9, &four, &one, NULL));
    CHECK(SelectObject(dc, before) == bitmap && DeleteObject(bitmap) && DeleteDC(dc));
    ReleaseDC(NULL, screen);
}

static void datesAndFiles(const char* folder)
{
    static char path[MAX_PATH];
    FILE* file = NULL;
    GIVES(length > 5, pelmora_current_date_text(1, NARROW));
    GIVES(strchr(narrow, ':') != NULL, pelmora_current_time_text(0, NARROW));
    snprintf(path, sizeof path, "%s/readOnly", folder);
    file = fopen(path, "wb");
    CHECK(file != NULL && fclose(file) == 0);
    CHECK(SetFileAttributesA(path, FILE_ATTRIBUTE_READONLY));
    GIVES(remove(path) == 0, pelmora_remove_read_only(path, 1));
    GIVES(truth == 0, pelmora_path_exists(path, &truth));
    GIVES(truth == 1, pelmora_path_exists(folder, &truth));
}

/* Presses the button of the number that the context leads to; 77 ends the dialog with -42. */
static intptr_t PELMORA_CALL press(void* window, uint32_t message, uintptr_t w, intptr_t l,
                                   int* handled, void* context)
{
    (void)l;
    if (message == WM_INITDIALOG)
        CHECK(PostMessageW(window, WM_COMMAND, *(const WPARAM*)context, 0));
    *handled = message == WM_COMMAND && w == 77;
    if (*handled)
        OK(pelmora_end_modal_dialog(window, -42));
    return *handled;
}

static void dialogs(void)
{
    /* The program's dialog without a font, and without items. */
    static const uint16_t words[] = {0x80, 0x80C8, 0, 0, 0, 10, 20, 150, 80, 0, 0, 0};
    static const struct {
        WPARAM button;
        intptr_t result;
    } rows[] = {{77, -42}, {IDOK, IDOK}, {IDCANCEL, IDCANCEL}};
    pelmora_dialog_template* dialog = NULL;
    intptr_t result = 0;
    int32_t x = 0, y = 0;
    size_t i;
    OK(pelmora_dialog_template_create(words, sizeof words, &dialog));
    for (i = 0; i < COUNT(rows); ++i) {
        WPARAM button = rows[i].button;
        GIVES(result == rows[i].result,
              pelmora_run_modal_dialog_template(dialog, NULL, NULL, press, &button, &result));
        GIVES(result == rows[i].result,
              pelmora_run_modal_dialog(2, NULL, NULL, press, &button, &result));
    }
    FAILS(PELMORA_SYSTEM,
          pelmora_run_modal_dialog_template(dialog, (void*)1, NULL, NULL, NULL, &result));
    CHECK(result == IDCANCEL);
    FAILS(PELMORA_SYSTEM, pelmora_run_modal_dialog(9, NULL, NULL, NULL, NULL, &result));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_end_modal_dialog((void*)1, 0));

    GIVES(MAKELONG(x, y) == GetDialogBaseUnits(),
          pelmora_dialog_template_base_units(dialog, &x, &y));
    OK(pelmora_dialog_to_pixels(dialog, 40, 80, &x, &y));
    GIVES(x == 40 && y == 80, pelmora_pixels_to_dialog(dialog, x, y, &x, &y));
    pelmora_dialog_template_destroy(dialog);
    OK(pelmora_dialog_template_load(NULL, 2, &dialog));
    OK(pelmora_dialog_template_use_system_font(dialog));
    OK(pelmora_dialog_template_set_font(dialog, "A face name of far too many characters", 8));
    FAILS(PELMORA_MALFORMED, pelmora_dialog_template_base_units(dialog, &x, &y));
    pelmora_dialog_template_destroy(dialog);
    FAILS(PELMORA_NOT_FOUND, pelmora_dialog_template_load(NULL, 9, &dialog));
}

static void controls(void)
{
    const HWND parent =
        CreateWindowA("STATIC", "", WS_OVERLAPPED, 0, 0, 9, 9, NULL, NULL, NULL, NULL);
    const HWND box = CreateWindowA("COMBOBOX", "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 0, 0,
                                   9, 9, parent, NULL, NULL, NULL);
    GIVES(truth == 0 && !IsWindowEnabled(box), pelmora_disable_control(box, &truth));
    GIVES(truth == 1 && IsWindowEnabled(box), pelmora_enable_control(box, 1, &truth));
    GIVES(truth == 1 && (GetWindowLongA(box, GWL_STYLE) & WS_VISIBLE) == 0,
          pelmora_show_control(box, 0, &truth));
    GIVES(truth == 1, pelmora_is_combo_box(box, &truth));
    GIVES(truth == 0, pelmora_is_combo_box(parent, &truth));
    GIVES(truth == 1 && DestroyWindow(parent), pelmora_is_drop_down_list(box, &truth));
}

void checkWindows(const char* folder)
{
    fonts();
    monitors();
    drawing();
    datesAndFiles(folder);
    dialogs();
    controls();
}
