#include <pelmora/c/pelmora.h>

#include <stdio.h>

int main(void)
{
    const pelmora_element microgram = {PELMORA_MICRO, PELMORA_UNIT_G, 1};
    pelmora_char16 text[16];
    char utf8[16];
    if (pelmora_value_text(5, &microgram, 1, 0, text, 16, NULL) != PELMORA_OK ||
        pelmora_text_to_utf8(text, PELMORA_NUL_TERMINATED, utf8, sizeof utf8, NULL) != PELMORA_OK)
        return 1;
    puts(utf8);
    return 0;
}
