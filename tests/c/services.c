#include "checks.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void catalogues(const char* folder)
{
    pelmora_catalogue* catalogue = NULL;
    snprintf(narrow, sizeof narrow, "%s/small.little", folder);
    OK(pelmora_catalogue_create(narrow, &catalogue));
    GIVES(isWide("Dosis"), pelmora_catalogue_translate(catalogue, "Dose", WIDE));
    GIVES(isNarrow("Dosis"), pelmora_catalogue_lookup(catalogue, "Dose", NARROW));
    FAILS(PELMORA_NOT_FOUND, pelmora_catalogue_translate(catalogue, "dose", WIDE));
    FAILS(PELMORA_NOT_FOUND, pelmora_catalogue_lookup(catalogue, "dose", NARROW));
    GIVES(strstr(narrow, "msgid\t\"ab\"\r\nmsgstr\t\"zwei\"") != NULL,
          pelmora_catalogue_to_po(catalogue, NARROW));
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
    if (strcmp(msgid, "endless") == 0)
        return capacity;
    if (strcmp(msgid, "long") != 0)
        return 0;
    for (i = 0; i < needed && needed < capacity; ++i)
        buffer[i] = 'x';
    return needed;
}

static void language(const char* folder)
{
    size_t needed = 0;
    OK(pelmora_language_init_from_culture());
    snprintf(narrow, sizeof narrow, "%s/small.little.mo", folder);
    OK(pelmora_language_init(narrow));
    GIVES(isWide("Dose"), pelmora_translate("Dose", WIDE));
    OK(pelmora_language_use_catalogue());
    GIVES(isWide("Dosis"), pelmora_tr("r|Dose", WIDE));
    GIVES(isWide(""), pelmora_tr(NULL, WIDE));
    GIVES(strstr(narrow, "Dosis") != NULL, pelmora_language_dump(NARROW));

    OK(pelmora_language_set_translator(translateToLong, &needed));
    for (needed = 255; needed <= 257; ++needed) /* 256 are offered at first */
        GIVES(length == needed && wide[needed - 1] == 'x', pelmora_translate("long", WIDE));
    GIVES(isWide("short"), pelmora_translate("short", WIDE));
    GIVES(isWide("endless"), pelmora_translate("endless", WIDE));
    OK(pelmora_language_set_log_missing(1));
    OK(pelmora_translate("reported", WIDE));
    OK(pelmora_language_set_log_missing(0));
    OK(pelmora_translate("silent", WIDE));
    OK(pelmora_log_path(NARROW));
    readFile(narrow);
    CHECK(strstr(narrow, "reported") != NULL && strstr(narrow, "silent") == NULL);
    OK(pelmora_language_set_translator(NULL, NULL));

    FAILS(PELMORA_BAD_ARGUMENT, pelmora_language_init("e.mo"));
    OK(pelmora_language_init("ja"));
    GIVES(isNarrow("ja"), pelmora_language_code(NARROW));
    GIVES(natural == 932, pelmora_language_code_page(&natural));
    GIVES(truth == 1, pelmora_language_uses_non_latin_code_page(&truth));
    GIVES(isNarrow("Shift_JIS"), pelmora_language_charset(NARROW));
    GIVES(natural == 0x411, pelmora_language_id(&natural));
    FAILS(PELMORA_NOT_FOUND, pelmora_language_dump(NARROW));
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
    GIVES(strstr(narrow, "pelmora-c-test.txt") != NULL, pelmora_log_path(NARROW));
    readFile(narrow);
    CHECK(strstr(narrow, "Header") != NULL);
    CHECK(strstr(narrow, "a\n-120.5000000x0true!\n-----") != NULL ||
          strstr(narrow, "a\r\n-120.5000000x0true!\r\n-----") != NULL);

    GIVES(isNarrow("Windows XP Service Pack 3 (Build 2600)"),
          pelmora_os_description(2, 5, 1, 2600, "Service Pack 3", NARROW));
}

static void xml(const char* folder)
{
    pelmora_xml* document = NULL;
    FILE* file = NULL;
    OK(pelmora_xml_create(&document));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_xml_element(document, w("Action"), WIDE));
    OK(pelmora_xml_parse_text(document,
                              w("<S v='1'><Action><Event id='x'>wheeze</Event></Action></S>")));
    GIVES(isWide("<Event id=\"x\">wheeze</Event>"),
          pelmora_xml_element_with_attribute(document, w("id"), w("x"), WIDE));
    FAILS(PELMORA_NOT_FOUND, pelmora_xml_element_with_attribute(document, w("id"), w("y"), WIDE));
    GIVES(isWide("1"), pelmora_xml_attribute(document, w("v"), WIDE));
    GIVES(isWide("wheeze"), pelmora_xml_element(document, w("Event"), WIDE));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_xml_parse_file(document, w("")));
    OK(pelmora_xml_attribute(document, w("v"), WIDE)); /* the document is still there */

    FAILS(PELMORA_MALFORMED, pelmora_xml_parse_text(document, w("<S>")));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_xml_attribute(document, w("v"), WIDE));
    snprintf(narrow, sizeof narrow, "%s/checks.xml", folder);
    FAILS(PELMORA_SYSTEM, pelmora_xml_parse_file(document, w("not/there.xml")));
    CHECK(strstr(pelmora_last_error(), "not/there.xml") != NULL);
    file = fopen(narrow, "wb");
    CHECK(file != NULL && fputs("<S v='2'/>", file) >= 0 && fclose(file) == 0);
    OK(pelmora_xml_parse_file(document, w(narrow)));
    GIVES(isWide("2") && remove(narrow) == 0, pelmora_xml_attribute(document, w("v"), WIDE));
    pelmora_xml_destroy(document);
    pelmora_xml_destroy(NULL);
}

static void download(const char* folder)
{
    static char path[1024];
    const char* const port = getenv("PELMORA_HTTP_PORT");
    snprintf(path, sizeof path, "%s/checks.download", folder);
    snprintf(narrow, sizeof narrow, "http://127.0.0.1:%s/text", port == NULL ? "1" : port);
    OK(pelmora_download(narrow, path, 20000, NULL, NULL));
    readFile(path);
    CHECK(isNarrow("text") && remove(path) == 0);
    FAILS(PELMORA_SYSTEM, pelmora_download("ftp://host/", path, -1, "user", "password"));
}

void checkServices(const char* catalogueFolder, const char* folder)
{
    catalogues(catalogueFolder);
    logging();
    language(catalogueFolder);
    xml(folder);
    download(folder);
}
