#ifndef TESTS_C_CHECKS_H
#define TESTS_C_CHECKS_H

#include "pelmora/c/pelmora.h"

/* What the groups of calls in this folder share. A check that fails prints itself and counts. */

void check(int holds, const char* condition, const char* file, int line);

#define CHECK(condition) check((condition) ? 1 : 0, #condition, __FILE__, __LINE__)
#define OK(call) CHECK((call) == PELMORA_OK && pelmora_last_error()[0] == '\0')
#define GIVES(condition, call) (OK(call), CHECK(condition))
#define FAILS(status, call) CHECK((call) == (status) && pelmora_last_error()[0] != '\0')
#define COUNT(array) (sizeof(array) / sizeof *(array))
#define NUL PELMORA_NUL_TERMINATED

/* Where results go. */
extern pelmora_char16 wide[512];
extern char narrow[4096];
extern size_t length;
extern pelmora_element elements[16];
extern size_t count;
extern double number;
extern int32_t whole;
extern uint32_t natural;
extern int truth;
#define WIDE wide, COUNT(wide), &length
#define NARROW narrow, COUNT(narrow), &length
#define UNIT elements, COUNT(elements), &count

/* Whether the result is this text, of Latin-1 and narrow. */
int isWide(const char* expected);
int isNarrow(const char* expected);
/* Whether the unit among the results has this debug text. */
int isUnit(const char* expected);

/* A text of Latin-1 as UTF-16; four of them at a time. */
const pelmora_char16* w(const char* latin);

/* Into `narrow`, cut where that ends; empty when there is no such file. */
void readFile(const char* name);

void checkUnits(void);
void checkTexts(void);
void checkServices(const char* catalogues, const char* folder);
void checkDialogTemplates(void);
void checkRegistry(void);
void checkWindows(const char* folder);

#endif
