#include "checks.h"

#include <stdio.h>
#include <string.h>

/* Calls every function of the C interface from C99, with arguments that are good and bad. Null
 * pointers are tried by the program that nullArguments.py writes, and random units compared with
 * the C++ results elsewhere. Arguments: the folder of the tests' catalogues, and one to write to.
 */

static int failures;

void check(int holds, const char* condition, const char* file, int line)
{
    if (holds)
        return;
    ++failures;
    printf("%s:%d: %s does not hold; last error: '%s'\n", file, line, condition,
           pelmora_last_error());
}

pelmora_char16 wide[512];
char narrow[4096];
size_t length;
pelmora_element elements[16];
size_t count;
double number;
int32_t whole;
uint32_t natural;
int truth;

int isWide(const char* expected)
{
    size_t i;
    for (i = 0; expected[i] != '\0'; ++i)
        if (wide[i] != (unsigned char)expected[i])
            return 0;
    return wide[i] == 0 && length == i;
}

int isNarrow(const char* expected)
{
    return strcmp(narrow, expected) == 0 && length == strlen(expected);
}

int isUnit(const char* expected)
{
    return pelmora_unit_debug_text(elements, count, NARROW) == PELMORA_OK && isNarrow(expected);
}

const pelmora_char16* w(const char* latin)
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

void readFile(const char* name)
{
    FILE* const file = fopen(name, "rb");
    length = file == NULL ? 0 : fread(narrow, 1, sizeof narrow - 1, file);
    narrow[length] = '\0';
    if (file != NULL)
        fclose(file);
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    checkUnits();
    checkTexts();
    checkServices(argv[1], argv[2]);
    checkDialogTemplates();
#if defined(_WIN32)
    checkRegistry();
    checkWindows(argv[2]);
#endif
    if (failures == 0)
        puts("every function of the C interface does what it says");
    return failures == 0 ? 0 : 1;
}
