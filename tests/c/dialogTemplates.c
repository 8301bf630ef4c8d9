#include "checks.h"

#include <string.h>

void checkDialogTemplates(void)
{
    /* A DLGTEMPLATE without items, of the caption "A", in MS of 8 points. */
    static const uint16_t words[] = {0xC0, 0x80C8, 0,   0, 0, 10,  20,  150, 80,
                                     0,    0,      'A', 0, 8, 'M', 'S', 0};
    pelmora_dialog_template* dialog = NULL;
    FAILS(PELMORA_MALFORMED, pelmora_dialog_template_create(words, 12, &dialog));
    OK(pelmora_dialog_template_create(words, sizeof words, &dialog));
    GIVES(length == sizeof words && memcmp(narrow, words, length) == 0,
          pelmora_dialog_template_bytes(dialog, narrow, sizeof narrow, &length));
    FAILS(PELMORA_BUFFER_TOO_SMALL, pelmora_dialog_template_bytes(dialog, narrow, 1, &length));
    CHECK(length == sizeof words);

    OK(pelmora_dialog_template_set_caption(dialog, w("Dose")));
    GIVES(isWide("Dose"), pelmora_dialog_template_caption(dialog, WIDE));
    memset(narrow, 'x', 300);
    OK(pelmora_text_from_narrow(narrow, 300, 1252, WIDE));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_dialog_template_set_caption(dialog, wide));
    wide[258] = 0; /* is cut to 255 */
    OK(pelmora_dialog_template_set_caption(dialog, wide));
    GIVES(isNarrow("MS") && whole == 8, pelmora_dialog_template_font(dialog, &whole, NARROW));
    OK(pelmora_dialog_template_set_font_size(dialog, 9));
    OK(pelmora_dialog_template_set_font(dialog, "Tahoma", 10));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_dialog_template_set_font_size(dialog, 0x7FFF));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_dialog_template_set_font(dialog, "Tahoma", 0x7FFF));
    GIVES(isNarrow("Tahoma") && whole == 10, pelmora_dialog_template_font(dialog, &whole, NARROW));
    OK(pelmora_dialog_template_set_position(dialog, 1, 2));
    OK(pelmora_dialog_template_set_size(dialog, 3, 4));
    GIVES(memcmp(narrow + 10, "\1\0\2\0\3\0\4\0", 8) == 0,
          pelmora_dialog_template_bytes(dialog, narrow, sizeof narrow, &length));
    pelmora_dialog_template_destroy(dialog);
    pelmora_dialog_template_destroy(NULL);
}
