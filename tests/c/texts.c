#include "checks.h"

static void texts(void)
{
    static const struct {
        pelmora_status(PELMORA_CALL* ask)(pelmora_char16, int*);
        char yes;
        char no;
    } classes[] = {
        {pelmora_is_alpha, 'x', '1'},
        {pelmora_is_punct, ',', 'x'},
        {pelmora_is_space, ' ', 'x'},
        {pelmora_is_digit, '7', 'x'},
    };
    uint16_t character = 0;
    size_t i;
    for (i = 0; i < COUNT(classes); ++i) {
        GIVES(truth == 1, classes[i].ask((unsigned char)classes[i].yes, &truth));
        GIVES(truth == 0, classes[i].ask((unsigned char)classes[i].no, &truth));
    }
    GIVES(isWide("caf\xE9"), pelmora_text_from_narrow("caf\xE9", NUL, 1252, WIDE));
    FAILS(PELMORA_NOT_FOUND, pelmora_text_from_narrow("caf\xE9", NUL, 64999, WIDE));
    GIVES(isNarrow("caf"), pelmora_text_to_narrow(w("caf\xE9"), 3, 1252, NARROW));
    FAILS(PELMORA_NOT_FOUND, pelmora_text_to_narrow(w("caf\xE9"), NUL, 64999, NARROW));
    GIVES(isWide("caf\xE9"), pelmora_text_from_utf8("caf\xC3\xA9", NUL, WIDE));
    FAILS(PELMORA_MALFORMED, pelmora_text_from_utf8("\xF0\x9F\x92\x89", NUL, WIDE));
    FAILS(PELMORA_OUT_OF_MEMORY, pelmora_text_from_utf8("", NUL - 1, WIDE));
    GIVES(isNarrow("caf\xC3\xA9"), pelmora_text_to_utf8(w("caf\xE9"), NUL, NARROW));
    GIVES(isWide("dose"), pelmora_text_to_lower(w("Dose"), NUL, WIDE));
    GIVES(isWide("DOSE"), pelmora_text_to_upper(w("Dose"), NUL, WIDE));
    GIVES(whole == -12 && truth == 0, pelmora_to_long(w(" -12x"), &whole, &truth));
    GIVES(whole == INT32_MAX, pelmora_to_long(w("99999999999"), &whole, NULL));
    GIVES(truth == 1, pelmora_to_bool(w("true"), &truth, NULL));
    GIVES(whole == 0 && truth == 0, pelmora_to_bool(w("yes"), &whole, &truth));
    GIVES(isWide("true"), pelmora_from_bool(2, WIDE));
    GIVES(isWide("-9223372036854775808"), pelmora_from_signed(INT64_MIN, "%d", WIDE));
    GIVES(isWide("18446744073709551615"), pelmora_from_unsigned(UINT64_MAX, "%u", WIDE));
    GIVES(isWide("0.50 mL"), pelmora_from_double(0.5, "%.2f mL", WIDE));
    GIVES(character == '?', pelmora_default_char(&character));
}

static void markup(void)
{
    pelmora_field fields[4];
    GIVES(isWide("a&lt;b"), pelmora_escape(w("a<b"), NUL, WIDE));
    GIVES(isWide("a<b"), pelmora_unescape(w("a&lt;b"), NUL, WIDE));
    GIVES(isNarrow("&lt;"), pelmora_unescape_narrow("&amp;lt;", NUL, NARROW));
    GIVES(isWide("a+b+c"), pelmora_replace_all(w("a-b-c"), NUL, w("-"), w("+"), WIDE));
    GIVES(isNarrow("a"), pelmora_replace_all_narrow("aaa", NUL, "aa", "", NARROW));
    GIVES(isWide("<a href=\"x.htm\">here</a>"), pelmora_make_link(w("here"), w("x.htm"), WIDE));
    GIVES(count == 4 && fields[0].length == 0 && fields[3].offset == 5 && fields[3].length == 2,
          pelmora_split(",mg,,mL", NUL, ',', 0, fields, COUNT(fields), &count));
    GIVES(count == 2 && fields[1].offset == 5,
          pelmora_split(",mg,,mL", NUL, ',', 1, fields, COUNT(fields), &count));
    FAILS(PELMORA_BUFFER_TOO_SMALL, pelmora_split("a,b,c", NUL, ',', 0, fields, 2, &count));
    CHECK(count == 3);
}

void checkTexts(void)
{
    texts();
    markup();
}
