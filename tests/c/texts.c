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
        OK(classes[i].ask((unsigned char)classes[i].yes, &truth));
        CHECK(truth == 1);
        OK(classes[i].ask((unsigned char)classes[i].no, &truth));
        CHECK(truth == 0);
    }
    OK(pelmora_text_from_narrow("caf\xE9", NUL, 1252, WIDE));
    CHECK(isWide("caf\xE9"));
    FAILS(PELMORA_NOT_FOUND, pelmora_text_from_narrow("caf\xE9", NUL, 64999, WIDE));
    OK(pelmora_text_to_narrow(w("caf\xE9"), 3, 1252, NARROW));
    CHECK(isNarrow("caf"));
    FAILS(PELMORA_NOT_FOUND, pelmora_text_to_narrow(w("caf\xE9"), NUL, 64999, NARROW));
    OK(pelmora_text_from_utf8("caf\xC3\xA9", NUL, WIDE));
    CHECK(isWide("caf\xE9"));
    FAILS(PELMORA_MALFORMED, pelmora_text_from_utf8("\xF0\x9F\x92\x89", NUL, WIDE));
    OK(pelmora_text_to_utf8(w("caf\xE9"), NUL, NARROW));
    CHECK(isNarrow("caf\xC3\xA9"));
    OK(pelmora_text_to_lower(w("Dose"), NUL, WIDE));
    CHECK(isWide("dose"));
    OK(pelmora_text_to_upper(w("Dose"), NUL, WIDE));
    CHECK(isWide("DOSE"));
    OK(pelmora_to_long(w(" -12x"), &whole, &truth));
    CHECK(whole == -12 && truth == 0);
    OK(pelmora_to_long(w("99999999999"), &whole, NULL));
    CHECK(whole == INT32_MAX);
    OK(pelmora_to_bool(w("true"), &truth, NULL));
    CHECK(truth == 1);
    OK(pelmora_to_bool(w("yes"), &whole, &truth));
    CHECK(whole == 0 && truth == 0);
    OK(pelmora_from_bool(2, WIDE));
    CHECK(isWide("true"));
    OK(pelmora_from_signed(INT64_MIN, "%d", WIDE));
    CHECK(isWide("-9223372036854775808"));
    OK(pelmora_from_unsigned(UINT64_MAX, "%u", WIDE));
    CHECK(isWide("18446744073709551615"));
    OK(pelmora_from_double(0.5, "%.2f mL", WIDE));
    CHECK(isWide("0.50 mL"));
    OK(pelmora_default_char(&character));
    CHECK(character == '?');
}

static void markup(void)
{
    pelmora_field fields[4];
    OK(pelmora_escape(w("a<b"), NUL, WIDE));
    CHECK(isWide("a&lt;b"));
    OK(pelmora_unescape(w("a&lt;b"), NUL, WIDE));
    CHECK(isWide("a<b"));
    OK(pelmora_unescape_narrow("&amp;lt;", NUL, NARROW));
    CHECK(isNarrow("&lt;"));
    OK(pelmora_replace_all(w("a-b-c"), NUL, w("-"), w("+"), WIDE));
    CHECK(isWide("a+b+c"));
    OK(pelmora_replace_all_narrow("aaa", NUL, "aa", "", NARROW));
    CHECK(isNarrow("a"));
    OK(pelmora_make_link(w("here"), w("x.htm"), WIDE));
    CHECK(isWide("<a href=\"x.htm\">here</a>"));
    OK(pelmora_split(",mg,,mL", NUL, ',', 0, fields, COUNT(fields), &count));
    CHECK(count == 4 && fields[0].length == 0 && fields[3].offset == 5 && fields[3].length == 2);
    OK(pelmora_split(",mg,,mL", NUL, ',', 1, fields, COUNT(fields), &count));
    CHECK(count == 2 && fields[1].offset == 5);
    FAILS(PELMORA_BUFFER_TOO_SMALL, pelmora_split("a,b,c", NUL, ',', 0, fields, 2, &count));
    CHECK(count == 3);
}

void checkTexts(void)
{
    texts();
    markup();
}
