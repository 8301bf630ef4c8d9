#include "pelmora/c/pelmora.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Calls every function of the C interface from C99, with arguments that are good and bad. Null
 * pointers are tried by the program that nullArguments.py writes, and random units compared with
 * the C++ results elsewhere. Arguments: the folder of the tests' catalogues, and one to write to.
 */

static int failures;

static void check(int holds, const char* condition, int line)
{
    if (holds)
        return;
    ++failures;
    printf("functions.c:%d: %s does not hold; last error: '%s'\n", line, condition,
           pelmora_last_error());
}

#define CHECK(condition) check((condition) ? 1 : 0, #condition, __LINE__)
#define OK(call) CHECK((call) == PELMORA_OK && pelmora_last_error()[0] == '\0')
#define FAILS(status, call) CHECK((call) == (status) && pelmora_last_error()[0] != '\0')
#define COUNT(array) (sizeof(array) / sizeof *(array))

/* Where results go. */
static pelmora_char16 wide[512];
static char narrow[4096];
static size_t length;
static pelmora_element elements[16];
static size_t count;
static double number;
static int32_t whole;
static uint32_t natural;
static int truth;
#define WIDE wide, COUNT(wide), &length
#define NARROW narrow, COUNT(narrow), &length
#define UNIT elements, COUNT(elements), &count

static int isWide(const char* expected)
{
    size_t i;
    for (i = 0; expected[i] != '\0'; ++i)
        if (wide[i] != (unsigned char)expected[i])
            return 0;
    return wide[i] == 0 && length == i;
}

static int isNarrow(const char* expected)
{
    return strcmp(narrow, expected) == 0 && length == strlen(expected);
}

/* The unit among the results, as its debug text. */
static int isUnit(const char* expected)
{
    return pelmora_unit_debug_text(elements, count, NARROW) == PELMORA_OK && isNarrow(expected);
}

/* A text of Latin-1 as UTF-16; four of them at a time. */
static const pelmora_char16* w(const char* latin)
{
    static pelmora_char16 texts[4][256];
    static size_t next;
    pelmora_char16* const text = texts[next++ % COUNT(texts)];
    size_t i = 0;
    do
        text[i] = (unsigned char)latin[i];
    while (latin[i++] != '\0');
    return text;
}

#define NUL PELMORA_NUL_TERMINATED

static const pelmora_element mg = {PELMORA_MILLI, PELMORA_UNIT_G, 1};
static const pelmora_element perMin = {PELMORA_NO_PREFIX, PELMORA_UNIT_MIN, -1};
static const pelmora_element mLPerHr[] = {{PELMORA_MILLI, PELMORA_UNIT_L, 1},
                                          {PELMORA_NO_PREFIX, PELMORA_UNIT_HR, -1}};
static const pelmora_element mgPerKgMin[] = {{PELMORA_MILLI, PELMORA_UNIT_G, 1},
                                             {PELMORA_KILO, PELMORA_UNIT_G_PT, -1},
                                             {PELMORA_NO_PREFIX, PELMORA_UNIT_MIN, -1}};
static const pelmora_element kg[] = {{PELMORA_KILO, PELMORA_UNIT_G_PT, 1}};
static const pelmora_element nothing = {PELMORA_NO_PREFIX, PELMORA_UNIT_NUMBER_OF, 1};

static void versionAndMessages(void)
{
    CHECK(strcmp(pelmora_version(), EXPECTED_VERSION) == 0);
    CHECK(pelmora_abi() == PELMORA_ABI);
    FAILS(PELMORA_NULL_ARGUMENT, pelmora_unit_valid(NULL, 1, &truth));
    CHECK(strcmp(pelmora_last_error(), "'unit' is null") == 0);
    OK(pelmora_unit_valid(NULL, 0, &truth));
}

static void theBufferRule(void)
{
    size_t needed = 0;
    OK(pelmora_unit_text(mgPerKgMin, 3, NULL, 0, &needed));
    CHECK(needed == 9);
    OK(pelmora_unit_text(mgPerKgMin, 3, wide, needed + 1, NULL));
    wide[0] = '5';
    FAILS(PELMORA_BUFFER_TOO_SMALL, pelmora_unit_text(mgPerKgMin, 3, wide, needed, &length));
    CHECK(wide[0] == 0 && length == needed);
    FAILS(PELMORA_NULL_ARGUMENT, pelmora_unit_text(mgPerKgMin, 3, NULL, 1, &length));
    CHECK(length == 0);
    FAILS(PELMORA_BUFFER_TOO_SMALL,
          pelmora_unit_reduced(mgPerKgMin, 3, &number, elements, 2, &count));
    CHECK(count == 3 && number == 0);
    OK(pelmora_escape_narrow("\0<", 2, NARROW));
    CHECK(length == 5 && memcmp(narrow, "\0&lt;", 6) == 0);
}

static void elementsOfUnits(void)
{
    OK(pelmora_element_to_iso(mLPerHr, &number, elements));
    CHECK(number == 0.001 && elements[0].kind == PELMORA_UNIT_L && elements[0].prefix == 0);
    OK(pelmora_element_same_dimension(&perMin, mLPerHr + 1, &truth));
    CHECK(truth == 1);
    OK(pelmora_element_shift_prefix(&mg, 1, &number, elements));
    CHECK(number == 0.001 && elements[0].prefix == PELMORA_NO_PREFIX);
    OK(pelmora_element_compare(&perMin, &mg, &truth));
    CHECK(truth == 1);
    OK(pelmora_element_compare(&mg, &perMin, &truth));
    CHECK(truth == -1);
    OK(pelmora_element_compare(&mg, &mg, &truth));
    CHECK(truth == 0);
    OK(pelmora_element_text(&perMin, 0, WIDE));
    CHECK(isWide("min^-1"));
    OK(pelmora_element_text(&perMin, 1, WIDE));
    CHECK(isWide("min"));
}

static void units(void)
{
    static const struct {
        pelmora_status(PELMORA_CALL* ask)(const pelmora_element*, size_t, int*);
        pelmora_element yes;
        pelmora_element no;
    } questions[] = {
        {pelmora_unit_valid, {0, PELMORA_UNIT_G, 1}, {0, PELMORA_UNIT_NUMBER_OF, 1}},
        {pelmora_unit_is_rate, {0, PELMORA_UNIT_MIN, -1}, {0, PELMORA_UNIT_MIN, 1}},
        {pelmora_unit_is_volume, {0, PELMORA_UNIT_L, 1}, {0, PELMORA_UNIT_L, 2}},
        {pelmora_unit_is_mol, {0, PELMORA_UNIT_MOL, 1}, {0, PELMORA_UNIT_G, 1}},
        {pelmora_unit_is_per_patient, {0, PELMORA_UNIT_G_PT, -1}, {0, PELMORA_UNIT_G, -1}},
        {pelmora_unit_is_weight, {0, PELMORA_UNIT_G, 1}, {0, PELMORA_UNIT_G_PT, 1}},
        {pelmora_unit_is_unit, {0, PELMORA_UNIT_U, 1}, {0, PELMORA_UNIT_IU, 1}},
    };
    size_t i;
    for (i = 0; i < COUNT(questions); ++i) {
        OK(questions[i].ask(&questions[i].yes, 1, &truth));
        CHECK(truth == 1);
        OK(questions[i].ask(&questions[i].no, 1, &truth));
        CHECK(truth == 0);
    }
    OK(pelmora_unit_mul(mgPerKgMin, 3, kg, 1, UNIT));
    CHECK(isUnit("{ mg, kg^-1, min^-1, kg }"));
    OK(pelmora_unit_reduced(elements, 4, &number, UNIT)); /* in place */
    CHECK(isUnit("{ mg, min^-1 }") && number == 1);
    OK(pelmora_unit_inverted(elements, 2, UNIT));
    CHECK(isUnit("{ mg^-1, min }"));
    OK(pelmora_unit_as_iso(mLPerHr, 2, &number, UNIT));
    CHECK(isUnit("{ L, s^-1 }") && number == 0.001 / 3600);
    OK(pelmora_unit_compatible(&perMin, 1, mLPerHr + 1, 1, &truth));
    CHECK(truth == 1);
    OK(pelmora_unit_equivalent(&perMin, 1, mLPerHr + 1, 1, &truth));
    CHECK(truth == 0);
    OK(pelmora_unit_has_kind(mLPerHr, 2, PELMORA_UNIT_HR, -1, &truth));
    CHECK(truth == 1);
    OK(pelmora_unit_remove_kind(mLPerHr, 2, PELMORA_UNIT_HR, UNIT));
    CHECK(isUnit("{ mL }"));
    OK(pelmora_unit_rate_divisor(mLPerHr, 2, &natural));
    CHECK(natural == 3600);
    OK(pelmora_unit_shift_prefix(mLPerHr, 2, 1, &number, UNIT));
    CHECK(isUnit("{ L, hr^-1 }") && number == 0.001);
    OK(pelmora_unit_text(mgPerKgMin, 3, WIDE));
    CHECK(isWide("mg/kg/min"));
}

static void values(void)
{
    static const struct {
        pelmora_status(PELMORA_CALL* calculate)(double, const pelmora_element*, size_t, double,
                                                const pelmora_element*, size_t, double*,
                                                pelmora_element*, size_t, size_t*);
        double b;
        const pelmora_element* unit;
        double result;
        const char* resultUnit;
    } operations[] = {
        {pelmora_value_mul, 70, kg, 350, "{ mg, kg^-1, min^-1, kg }"},
        {pelmora_value_mul, 70, &nothing, 5, "{ mg, kg^-1, min^-1 }"},
        {pelmora_value_div, 2, kg, 2.5, "{ mg, kg^-1, min^-1, kg^-1 }"},
        {pelmora_value_div, 0, kg, 0, "{ mg, kg^-1, min^-1 }"},
        {pelmora_value_mul_reduced, 70, kg, 350, "{ mg, min^-1 }"},
        {pelmora_value_div_reduced, 2, &perMin, 2.5, "{ mg, kg^-1 }"},
    };
    size_t i;
    for (i = 0; i < COUNT(operations); ++i) {
        OK(operations[i].calculate(5, mgPerKgMin, 3, operations[i].b, operations[i].unit, 1,
                                   &number, UNIT));
        CHECK(number == operations[i].result && isUnit(operations[i].resultUnit));
    }
    OK(pelmora_value_inverted(4, kg, 1, &number, UNIT));
    CHECK(number == 0.25 && isUnit("{ kg^-1 }"));
    OK(pelmora_value_reduced(4, kg, 1, &number, UNIT));
    CHECK(number == 4 && isUnit("{ kg }"));
    OK(pelmora_value_convert(60, &perMin, 1, mLPerHr + 1, 1, &number));
    CHECK(number == 3600);
    OK(pelmora_value_convert_reduced(60, &perMin, 1, mLPerHr + 1, 1, &number, UNIT));
    CHECK(number == 3600 && isUnit("{ hr^-1 }"));
    OK(pelmora_value_normalized(1500, &mg, 1, 3, &number, UNIT));
    CHECK(number == 1.5 && isUnit("{ g }"));
    OK(pelmora_value_text(2.5, mgPerKgMin, 3, 2, WIDE));
    CHECK(isWide("2.50 mg/kg/min"));
    OK(pelmora_value_normalized_text(1234.5, &mg, 1, 3, WIDE));
    CHECK(isWide("1.23 g"));
}

static void numbers(void)
{
    OK(pelmora_format_significant(5, 3, NARROW));
    CHECK(isNarrow("5.00"));
    OK(pelmora_count_significant_digits("0.050", &truth, &whole));
    CHECK(whole == 2 && truth == 1);
    OK(pelmora_count_significant_digits("12", NULL, &whole));
    CHECK(whole == 2);
    OK(pelmora_decimal_magnitude(0.02, &whole));
    CHECK(whole == -2);

    OK(pelmora_set_number_format(',', '.', 3));
    OK(pelmora_value_text(1234567.25, &mg, 1, 1, WIDE));
    CHECK(isWide("1.234.567,2 mg"));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format('.', '.', 3));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format('1', ' ', 0));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format('\xB7', ' ', 0));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format(',', '\0', 3));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format(',', '.', -1));
    OK(pelmora_set_number_format('.', '\0', 0));
    OK(pelmora_value_text(1234567.25, &mg, 1, 1, WIDE));
    CHECK(isWide("1234567.2 mg"));
}

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

static void catalogues(const char* folder)
{
    pelmora_catalogue* catalogue = NULL;
    snprintf(narrow, sizeof narrow, "%s/small.little", folder);
    OK(pelmora_catalogue_create(narrow, &catalogue));
    OK(pelmora_catalogue_translate(catalogue, "Dose", WIDE));
    CHECK(isWide("Dosis"));
    OK(pelmora_catalogue_lookup(catalogue, "Dose", NARROW));
    CHECK(isNarrow("Dosis"));
    FAILS(PELMORA_NOT_FOUND, pelmora_catalogue_translate(catalogue, "dose", WIDE));
    FAILS(PELMORA_NOT_FOUND, pelmora_catalogue_lookup(catalogue, "dose", NARROW));
    OK(pelmora_catalogue_to_po(catalogue, NARROW));
    CHECK(strstr(narrow, "msgid\t\"ab\"\r\nmsgstr\t\"zwei\"") != NULL);
    pelmora_catalogue_destroy(catalogue);
    pelmora_catalogue_destroy(NULL);
    FAILS(PELMORA_NOT_FOUND, pelmora_catalogue_create("not/there.mo", &catalogue));
    CHECK(catalogue == NULL);
}

/* Answers with as many 'x' as the context says, which is more than it is offered at first. */
static size_t PELMORA_CALL translateToLong(const char* msgid, pelmora_char16* buffer,
                                           size_t capacity, void* context)
{
    const size_t needed = *(const size_t*)context;
    size_t i;
    if (strcmp(msgid, "long") != 0)
        return 0;
    for (i = 0; i < needed && needed < capacity; ++i)
        buffer[i] = 'x';
    return needed;
}

static void language(const char* folder)
{
    size_t needed = 300;
    OK(pelmora_language_init_from_culture());
    snprintf(narrow, sizeof narrow, "%s/small.little.mo", folder);
    OK(pelmora_language_init(narrow));
    OK(pelmora_translate("Dose", WIDE));
    CHECK(isWide("Dose"));
    OK(pelmora_language_use_catalogue());
    OK(pelmora_tr("r|Dose", WIDE));
    CHECK(isWide("Dosis"));
    OK(pelmora_tr(NULL, WIDE));
    CHECK(isWide(""));
    OK(pelmora_language_dump(NARROW));
    CHECK(strstr(narrow, "Dosis") != NULL);

    OK(pelmora_language_set_translator(translateToLong, &needed));
    OK(pelmora_translate("long", WIDE));
    CHECK(length == needed && wide[needed - 1] == 'x');
    OK(pelmora_translate("short", WIDE));
    CHECK(isWide("short"));
    OK(pelmora_language_set_log_missing(1));
    OK(pelmora_translate("reported", WIDE));
    OK(pelmora_language_set_log_missing(0));
    OK(pelmora_language_set_translator(NULL, NULL));

    FAILS(PELMORA_BAD_ARGUMENT, pelmora_language_init("e.mo"));
    OK(pelmora_language_init("ja"));
    OK(pelmora_language_code(NARROW));
    CHECK(isNarrow("ja"));
    OK(pelmora_language_code_page(&natural));
    CHECK(natural == 932);
    OK(pelmora_language_uses_non_latin_code_page(&truth));
    CHECK(truth == 1);
    OK(pelmora_language_charset(NARROW));
    CHECK(isNarrow("Shift_JIS"));
    OK(pelmora_language_id(&natural));
    CHECK(natural == 0x411);
    FAILS(PELMORA_NOT_FOUND, pelmora_language_dump(NARROW));
}

static void readFile(const char* name)
{
    FILE* const file = fopen(name, "rb");
    length = file == NULL ? 0 : fread(narrow, 1, sizeof narrow - 1, file);
    narrow[length] = '\0';
    if (file != NULL)
        fclose(file);
}

static void logging(void)
{
    OK(pelmora_log_configure("pelmora-c-test.txt", "Header", 0));
    OK(pelmora_log_show_in_notepad(0));
    OK(pelmora_log_write("a"));
    OK(pelmora_log_end_line());
    OK(pelmora_log_signed(-1));
    OK(pelmora_log_unsigned(2));
    OK(pelmora_log_double(0.5));
    OK(pelmora_log_pointer(NULL));
    OK(pelmora_log_bool(1));
    OK(pelmora_log_line("!"));
    OK(pelmora_log_separator());
    OK(pelmora_log_os_version());
    OK(pelmora_log_path(NARROW));
    CHECK(strstr(narrow, "pelmora-c-test.txt") != NULL);
    readFile(narrow);
    CHECK(strstr(narrow, "Header") != NULL);
    CHECK(strstr(narrow, "a\n-120.5000000x0true!\n-----") != NULL ||
          strstr(narrow, "a\r\n-120.5000000x0true!\r\n-----") != NULL);

    OK(pelmora_os_description(2, 5, 1, 2600, "Service Pack 3", NARROW));
    CHECK(isNarrow("Windows XP Service Pack 3 (Build 2600)"));
}

static void xml(const char* folder)
{
    pelmora_xml* document = NULL;
    FILE* file = NULL;
    OK(pelmora_xml_create(&document));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_xml_element(document, w("Action"), WIDE));
    OK(pelmora_xml_parse_text(document,
                              w("<S v='1'><Action><Event id='x'>wheeze</Event></Action></S>")));
    OK(pelmora_xml_element_with_attribute(document, w("id"), w("x"), WIDE));
    CHECK(isWide("<Event id=\"x\">wheeze</Event>"));
    FAILS(PELMORA_NOT_FOUND, pelmora_xml_element_with_attribute(document, w("id"), w("y"), WIDE));
    OK(pelmora_xml_attribute(document, w("v"), WIDE));
    CHECK(isWide("1"));
    OK(pelmora_xml_element(document, w("Event"), WIDE));
    CHECK(isWide("wheeze"));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_xml_parse_file(document, w("")));
    OK(pelmora_xml_attribute(document, w("v"), WIDE)); /* the document is still there */

    FAILS(PELMORA_MALFORMED, pelmora_xml_parse_text(document, w("<S>")));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_xml_attribute(document, w("v"), WIDE));
    snprintf(narrow, sizeof narrow, "%s/functions.xml", folder);
    FAILS(PELMORA_SYSTEM, pelmora_xml_parse_file(document, w("not/there.xml")));
    CHECK(strstr(pelmora_last_error(), "not/there.xml") != NULL);
    file = fopen(narrow, "wb");
    CHECK(file != NULL && fputs("<S v='2'/>", file) >= 0 && fclose(file) == 0);
    OK(pelmora_xml_parse_file(document, w(narrow)));
    OK(pelmora_xml_attribute(document, w("v"), WIDE));
    CHECK(isWide("2") && remove(narrow) == 0);
    pelmora_xml_destroy(document);
    pelmora_xml_destroy(NULL);
}

static void download(const char* folder)
{
    static char path[1024];
    const char* const port = getenv("PELMORA_HTTP_PORT");
    snprintf(path, sizeof path, "%s/functions.download", folder);
    snprintf(narrow, sizeof narrow, "http://127.0.0.1:%s/text", port == NULL ? "1" : port);
    OK(pelmora_download(narrow, path, 20000, NULL, NULL));
    readFile(path);
    CHECK(isNarrow("text") && remove(path) == 0);
    FAILS(PELMORA_SYSTEM, pelmora_download("ftp://host/", path, -1, "user", "password"));
}

static void dialogTemplates(void)
{
    /* A DLGTEMPLATE without items, of the caption "A", in MS of 8 points. */
    static const uint16_t words[] = {0xC0, 0x80C8, 0,   0, 0, 10,  20,  150, 80,
                                     0,    0,      'A', 0, 8, 'M', 'S', 0};
    pelmora_dialog_template* dialog = NULL;
    FAILS(PELMORA_MALFORMED, pelmora_dialog_template_create(words, 12, &dialog));
    OK(pelmora_dialog_template_create(words, sizeof words, &dialog));
    OK(pelmora_dialog_template_bytes(dialog, narrow, sizeof narrow, &length));
    CHECK(length == sizeof words && memcmp(narrow, words, length) == 0);
    FAILS(PELMORA_BUFFER_TOO_SMALL, pelmora_dialog_template_bytes(dialog, narrow, 1, &length));
    CHECK(length == sizeof words);

    OK(pelmora_dialog_template_set_caption(dialog, w("Dose")));
    OK(pelmora_dialog_template_caption(dialog, WIDE));
    CHECK(isWide("Dose"));
    memset(narrow, 'x', 300);
    OK(pelmora_text_from_narrow(narrow, 300, 1252, WIDE));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_dialog_template_set_caption(dialog, wide));
    OK(pelmora_dialog_template_font(dialog, &whole, NARROW));
    CHECK(isNarrow("MS") && whole == 8);
    OK(pelmora_dialog_template_set_font_size(dialog, 9));
    OK(pelmora_dialog_template_set_font(dialog, "Tahoma", 10));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_dialog_template_set_font_size(dialog, 0x7FFF));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_dialog_template_set_font(dialog, "Tahoma", 0x7FFF));
    OK(pelmora_dialog_template_font(dialog, &whole, NARROW));
    CHECK(isNarrow("Tahoma") && whole == 10);
    OK(pelmora_dialog_template_set_position(dialog, 1, 2));
    OK(pelmora_dialog_template_set_size(dialog, 3, 4));
    OK(pelmora_dialog_template_bytes(dialog, narrow, sizeof narrow, &length));
    CHECK(memcmp(narrow + 10, "\1\0\2\0\3\0\4\0", 8) == 0);
    pelmora_dialog_template_destroy(dialog);
    pelmora_dialog_template_destroy(NULL);
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    versionAndMessages();
    theBufferRule();
    elementsOfUnits();
    units();
    values();
    numbers();
    texts();
    markup();
    catalogues(argv[1]);
    logging();
    language(argv[1]);
    xml(argv[2]);
    download(argv[2]);
    dialogTemplates();
    if (failures == 0)
        puts("every function of the C interface does what it says");
    return failures == 0 ? 0 : 1;
}
