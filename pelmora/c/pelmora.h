#ifndef PELMORA_C_PELMORA_H
#define PELMORA_C_PELMORA_H

/*
 * Pelmora for C, for C++ of any compiler, and for every language that can call C.
 *
 * CONVENTIONS. They hold for every function; what a function adds to them stands with it.
 *
 * STATUS. Each function returns a pelmora_status, except pelmora_version, pelmora_abi,
 * pelmora_last_error and the pelmora_..._destroy functions. Any status but PELMORA_OK leaves a
 * message for the thread that called; see pelmora_last_error.
 *
 * RESULTS come through pointers, which are the last parameters. After a failure every result is 0,
 * null or an empty text, unless the function says otherwise. A truth value is an int, 0 or 1.
 *
 * NULL. A pointer may be null only where the function says so, and in three places without saying:
 * the `length`, `count` or `size` of a result, a buffer whose capacity is 0, and an array, a block
 * or a text whose count or length of 0 is given with it. Any other null gives
 * PELMORA_NULL_ARGUMENT and a message that names the parameter; nothing has happened then.
 *
 * TEXTS IN are UTF-16 (const pelmora_char16*) or narrow (const char*), which is in the ANSI code
 * page unless the function says otherwise; on Linux that is 1252. They end in a NUL. A text that
 * may hold NULs itself comes with its length in units or bytes, which may be
 * PELMORA_NUL_TERMINATED.
 *
 * TEXTS OUT go to the caller's buffer, with a NUL at their end; `capacity` counts its units with
 * that NUL, and `length` is set to those of the whole text without it. A buffer that is too small
 * gets an empty text, never a part of one, because a dose that is cut short reads as another dose:
 * the status is PELMORA_BUFFER_TOO_SMALL, and `length` says what is needed. The capacity 0 asks for
 * the length alone, which is no failure. Lists of elements and blocks of bytes work the same way,
 * without a NUL; `count` or `size` is their length.
 *
 * MEMORY. Nothing that one side allocates is freed by the other. What has a life is a handle: it is
 * made by a ..._create or ..._load, belongs to the caller, and ends with its ..._destroy, which
 * takes null. One thread at a time uses a handle, unless its group says more.
 *
 * CALLBACKS are a function and a `context`, which may be null and is handed to it, unread, as its
 * last argument. A callback must return: no exception may pass through this library.
 *
 * THREADS. Every function may be called by several threads at once, each with its own data, unless
 * its group says otherwise.
 *
 * NUMBERS. Pixels, points, millimetres and milliseconds are named where they occur. A number of an
 * enumeration that has no name is treated as its group says, never refused unseen.
 */

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32) /* calling convention and wide character; Windows-only functions are at the    \
                       end */
/* How the functions, and callbacks of the program, are called. */
#define PELMORA_CALL __cdecl
/* A UTF-16 unit: wchar_t on Windows, otherwise what u"..." is made of. */
typedef wchar_t pelmora_char16;
#else
#define PELMORA_CALL
#if defined(__cplusplus)
typedef char16_t pelmora_char16;
#else
typedef uint_least16_t pelmora_char16; /* as in C11 */
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Version, status, messages ---------------------------------------------------------------*/

/* Changes whenever a program that was built with an earlier header would no longer work. */
#define PELMORA_ABI 1

/* What came of a call: one of the numbers below. */
typedef int32_t pelmora_status;
/* The numbers of a status. */
enum {
    PELMORA_OK = 0,               /* everything was done */
    PELMORA_NULL_ARGUMENT = 1,    /* the message names the parameter */
    PELMORA_BAD_ARGUMENT = 2,     /* a value that the function does not take */
    PELMORA_BUFFER_TOO_SMALL = 3, /* `length` or `count` says how much is needed */
    PELMORA_NOT_FOUND = 4,        /* what was asked for is not there */
    PELMORA_MALFORMED = 5,        /* text or bytes that do not follow their format */
    PELMORA_SYSTEM = 6,           /* the system, or a server, refused; the message may say why */
    PELMORA_OUT_OF_MEMORY = 7,
    PELMORA_FAILED = 8 /* anything else; the message says what */
};

/* In place of the length of a text that ends in a NUL. */
#define PELMORA_NUL_TERMINATED SIZE_MAX

/* The library's version, "1.2.3"; a constant. */
const char* PELMORA_CALL pelmora_version(void);

/* The library's own PELMORA_ABI, to be compared with the header's. */
int32_t PELMORA_CALL pelmora_abi(void);

/* Why the calling thread's last function that returns a status did not return PELMORA_OK; "" when
 * it did. UTF-8, at most 511 bytes, valid until that thread calls the next function. */
const char* PELMORA_CALL pelmora_last_error(void);

/* ---- Units: kinds, prefixes, elements --------------------------------------------------------*/

/* Base-unit kinds. Any other value is treated as PELMORA_UNIT_NUMBER_OF. */
enum {
    PELMORA_UNIT_G = 0,    /* gram */
    PELMORA_UNIT_L = 1,    /* litre */
    PELMORA_UNIT_S = 2,    /* second */
    PELMORA_UNIT_MIN = 3,  /* minute */
    PELMORA_UNIT_HR = 4,   /* hour */
    PELMORA_UNIT_M = 5,    /* metre */
    PELMORA_UNIT_MIUS = 6, /* mile, U.S. survey mile of 1609.34721869 m */
    PELMORA_UNIT_INCH = 7,
    PELMORA_UNIT_CM = 8,
    PELMORA_UNIT_MOL = 9,
    PELMORA_UNIT_IU = 10, /* international unit */
    PELMORA_UNIT_U = 11,  /* unit, as in units of insulin */
    PELMORA_UNIT_PROCENT = 12,
    PELMORA_UNIT_G_PT = 13,     /* gram of the patient's body weight; never converts to gram */
    PELMORA_UNIT_NUMBER_OF = 14 /* how many there are; the kind that stands for nothing */
};

/* Decimal prefixes: powers of 1000. A value out of range has the factor 0 and no symbol. */
enum {
    PELMORA_NANO = -3,
    PELMORA_MICRO = -2,
    PELMORA_MILLI = -1,
    PELMORA_NO_PREFIX = 0,
    PELMORA_KILO = 1,
    PELMORA_MEGA = 2,
    PELMORA_GIGA = 3
};

/* One factor of a unit: a base unit with a prefix, raised to a power. The kg^-1 of mg/kg is
 * {PELMORA_KILO, PELMORA_UNIT_G_PT, -1}. 12 bytes, fields at 0, 4 and 8. */
typedef struct pelmora_element {
    int32_t prefix;   /* PELMORA_NANO to PELMORA_GIGA */
    int32_t kind;     /* PELMORA_UNIT_... */
    int32_t exponent; /* negative for a divisor; 0 marks an element that counts for nothing */
} pelmora_element;

/* The element in its ISO kind without prefix, and the factor by which a value is multiplied to be
 * expressed in it: mL gives 0.001 and L. */
pelmora_status PELMORA_CALL pelmora_element_to_iso(const pelmora_element* element, double* factor,
                                                   pelmora_element* iso);

/* Whether both measure the same: equal kinds, two times or two lengths. */
pelmora_status PELMORA_CALL pelmora_element_same_dimension(const pelmora_element* a,
                                                           const pelmora_element* b, int* result);

/* The element with its prefix moved by `steps`, and the factor that keeps a value's magnitude:
 * exactly 1 and the element unchanged when the prefix cannot move. */
pelmora_status PELMORA_CALL pelmora_element_shift_prefix(const pelmora_element* element,
                                                         int32_t steps, double* factor,
                                                         pelmora_element* shifted);

/* The order of the ISO form: -1, 0 or 1 as `a` stands before, with or after `b`; by kind, then
 * exponent, then prefix. */
pelmora_status PELMORA_CALL pelmora_element_compare(const pelmora_element* a,
                                                    const pelmora_element* b, int* order);

/* "kg", "min^-1", and without the power's sign "min": empty for the exponent 0. */
pelmora_status PELMORA_CALL pelmora_element_text(const pelmora_element* element,
                                                 int absolute_exponent, pelmora_char16* buffer,
                                                 size_t capacity, size_t* length);

/* ---- Units -----------------------------------------------------------------------------------
 * A unit is the product of `count` elements in their order; no elements are the dimensionless unit.
 * Units that come out are written to a buffer of `capacity` elements. They never have more elements
 * than those that went in, both operands' together. The buffer may be an operand's own array. */

/* The elements of `a`, then those of `b`; nothing is merged. */
pelmora_status PELMORA_CALL pelmora_unit_mul(const pelmora_element* a, size_t a_count,
                                             const pelmora_element* b, size_t b_count,
                                             pelmora_element* buffer, size_t capacity,
                                             size_t* count);

/* Every exponent negated. */
pelmora_status PELMORA_CALL pelmora_unit_inverted(const pelmora_element* unit, size_t unit_count,
                                                  pelmora_element* buffer, size_t capacity,
                                                  size_t* count);

/* Elements of one dimension merged or cancelled, the others as they are. A value times `factor` is
 * the value in the unit that comes out. */
pelmora_status PELMORA_CALL pelmora_unit_reduced(const pelmora_element* unit, size_t unit_count,
                                                 double* factor, pelmora_element* buffer,
                                                 size_t capacity, size_t* count);

/* The canonical form for comparison: ISO kinds, sorted, one element a kind. Elements whose ISO
 * forms are equal count once, on purpose: m times m gives m. */
pelmora_status PELMORA_CALL pelmora_unit_as_iso(const pelmora_element* unit, size_t unit_count,
                                                double* factor, pelmora_element* buffer,
                                                size_t capacity, size_t* count);

/* Whether the ISO forms have equal elements; factors are ignored. */
pelmora_status PELMORA_CALL pelmora_unit_compatible(const pelmora_element* a, size_t a_count,
                                                    const pelmora_element* b, size_t b_count,
                                                    int* result);

/* Whether the reduced forms have exactly equal factors and the same elements in any order. */
pelmora_status PELMORA_CALL pelmora_unit_equivalent(const pelmora_element* a, size_t a_count,
                                                    const pelmora_element* b, size_t b_count,
                                                    int* result);

/* Whether no element is of the kind PELMORA_UNIT_NUMBER_OF and none has the exponent 0. */
pelmora_status PELMORA_CALL pelmora_unit_valid(const pelmora_element* unit, size_t unit_count,
                                               int* result);

/* Whether some element has exactly this kind and exponent, with any prefix. */
pelmora_status PELMORA_CALL pelmora_unit_has_kind(const pelmora_element* unit, size_t unit_count,
                                                  int32_t kind, int32_t exponent, int* result);

/* The unit without the elements of this kind. */
pelmora_status PELMORA_CALL pelmora_unit_remove_kind(const pelmora_element* unit, size_t unit_count,
                                                     int32_t kind, pelmora_element* buffer,
                                                     size_t capacity, size_t* count);

/* Seconds in the time unit of a rate: 1 for s^-1, otherwise 60 for min^-1, otherwise 3600 for
 * hr^-1, otherwise 0. */
pelmora_status PELMORA_CALL pelmora_unit_rate_divisor(const pelmora_element* unit,
                                                      size_t unit_count, uint32_t* seconds);

/* What the ISO form holds, with exactly this exponent: s^-1, L, mol, grams of body weight^-1, g,
 * units. mL/min is a volume and a rate. */
pelmora_status PELMORA_CALL pelmora_unit_is_rate(const pelmora_element* unit, size_t unit_count,
                                                 int* result);
pelmora_status PELMORA_CALL pelmora_unit_is_volume(const pelmora_element* unit, size_t unit_count,
                                                   int* result);
pelmora_status PELMORA_CALL pelmora_unit_is_mol(const pelmora_element* unit, size_t unit_count,
                                                int* result);
pelmora_status PELMORA_CALL pelmora_unit_is_per_patient(const pelmora_element* unit,
                                                        size_t unit_count, int* result);
pelmora_status PELMORA_CALL pelmora_unit_is_weight(const pelmora_element* unit, size_t unit_count,
                                                   int* result);
pelmora_status PELMORA_CALL pelmora_unit_is_unit(const pelmora_element* unit, size_t unit_count,
                                                 int* result);

/* The unit with the prefix of its first element of positive exponent moved by `steps`, and the
 * factor that keeps a value's magnitude: 1 when there is none or it cannot move. */
pelmora_status PELMORA_CALL pelmora_unit_shift_prefix(const pelmora_element* unit,
                                                      size_t unit_count, int32_t steps,
                                                      double* factor, pelmora_element* buffer,
                                                      size_t capacity, size_t* count);

/* "mg/kg/min", with powers as U+00B2, U+00B3, "^4"; empty for the dimensionless unit. */
pelmora_status PELMORA_CALL pelmora_unit_text(const pelmora_element* unit, size_t unit_count,
                                              pelmora_char16* buffer, size_t capacity,
                                              size_t* length);

/* "{ mg, kg^-1 }": every element with its signed power, narrow. */
pelmora_status PELMORA_CALL pelmora_unit_debug_text(const pelmora_element* unit, size_t unit_count,
                                                    char* buffer, size_t capacity, size_t* length);

/* ---- Values: a number in a unit ----------------------------------------------------------------
 * Units of up to eight elements and texts of up to 128 units need no memory, unless the number
 * format was set. */

/* The product, its unit concatenated and not reduced. An invalid unit (see pelmora_unit_valid)
 * makes its value a neutral operand: the other one comes out untouched, or `a` when that of `b` is
 * invalid. */
pelmora_status PELMORA_CALL pelmora_value_mul(double a, const pelmora_element* a_unit,
                                              size_t a_count, double b,
                                              const pelmora_element* b_unit, size_t b_count,
                                              double* number, pelmora_element* buffer,
                                              size_t capacity, size_t* count);

/* `a` times the inverted `b`: dividing by 0 gives 0 in the unit of `a`. */
pelmora_status PELMORA_CALL pelmora_value_div(double a, const pelmora_element* a_unit,
                                              size_t a_count, double b,
                                              const pelmora_element* b_unit, size_t b_count,
                                              double* number, pelmora_element* buffer,
                                              size_t capacity, size_t* count);

/* 1 / a in the inverted unit; 0 gives 0 without a unit; with an invalid unit `a` as it is, on
 * purpose. */
pelmora_status PELMORA_CALL pelmora_value_inverted(double a, const pelmora_element* unit,
                                                   size_t unit_count, double* number,
                                                   pelmora_element* buffer, size_t capacity,
                                                   size_t* count);

/* The value in the reduced unit. */
pelmora_status PELMORA_CALL pelmora_value_reduced(double a, const pelmora_element* unit,
                                                  size_t unit_count, double* number,
                                                  pelmora_element* buffer, size_t capacity,
                                                  size_t* count);

/* Product, quotient and conversion in reduced form, as the public objects give them. */
pelmora_status PELMORA_CALL pelmora_value_mul_reduced(double a, const pelmora_element* a_unit,
                                                      size_t a_count, double b,
                                                      const pelmora_element* b_unit, size_t b_count,
                                                      double* number, pelmora_element* buffer,
                                                      size_t capacity, size_t* count);
pelmora_status PELMORA_CALL pelmora_value_div_reduced(double a, const pelmora_element* a_unit,
                                                      size_t a_count, double b,
                                                      const pelmora_element* b_unit, size_t b_count,
                                                      double* number, pelmora_element* buffer,
                                                      size_t capacity, size_t* count);
pelmora_status PELMORA_CALL pelmora_value_convert_reduced(
    double a, const pelmora_element* from, size_t from_count, const pelmora_element* to,
    size_t to_count, double* number, pelmora_element* buffer, size_t capacity, size_t* count);

/* The number in the unit `to`. Units that are not compatible give a number without meaning: ask
 * pelmora_unit_compatible first where that can happen. */
pelmora_status PELMORA_CALL pelmora_value_convert(double a, const pelmora_element* from,
                                                  size_t from_count, const pelmora_element* to,
                                                  size_t to_count, double* number);

/* The value with the prefix of its unit's first positive element moved until the number is at least
 * 0.1 and has at most `max_magnitude` digits before the point. A negative number, on purpose, moves
 * down to nano. */
pelmora_status PELMORA_CALL pelmora_value_normalized(double a, const pelmora_element* unit,
                                                     size_t unit_count, int32_t max_magnitude,
                                                     double* number, pelmora_element* buffer,
                                                     size_t capacity, size_t* count);

/* "2.5 mg/kg": with `precision` digits after the point, or with a negative precision up to 6
 * significant digits. */
pelmora_status PELMORA_CALL pelmora_value_text(double a, const pelmora_element* unit,
                                               size_t unit_count, int32_t precision,
                                               pelmora_char16* buffer, size_t capacity,
                                               size_t* length);

/* "50.0 mcg": normalised, with `digits` significant digits. A number that no prefix brings below
 * that many digits is in scientific notation, "1.23e+03 units/hr". */
pelmora_status PELMORA_CALL pelmora_value_normalized_text(double a, const pelmora_element* unit,
                                                          size_t unit_count, int32_t digits,
                                                          pelmora_char16* buffer, size_t capacity,
                                                          size_t* length);

/* The number alone of pelmora_value_normalized_text, narrow. */
pelmora_status PELMORA_CALL pelmora_format_significant(double a, int32_t digits, char* buffer,
                                                       size_t capacity, size_t* length);

/* The characters of a number's text that count as significant: all but the point and leading zeros,
 * on purpose also signs and the letters of an exponent. `has_point` may be null. */
pelmora_status PELMORA_CALL pelmora_count_significant_digits(const char* text, int* has_point,
                                                             int32_t* digits);

/* Digits before the point of a >= 1, at most 11; minus the position of the first significant digit
 * for a < 1, at least -12, which negative numbers and NaN give too; 0 for 0. */
pelmora_status PELMORA_CALL pelmora_decimal_magnitude(double a, int32_t* magnitude);

/* How the functions of this group write numbers: the decimal point, and a separator between groups
 * of `group` digits, or 0 for none; "." and no groups at first. The C library's locale plays no
 * part in it and stays as it is. Both characters are ASCII. Requires: no other thread makes texts
 * meanwhile. PELMORA_BAD_ARGUMENT for a character that is not ASCII, is a digit or a NUL where it
 * is used, or for equal ones. */
pelmora_status PELMORA_CALL pelmora_set_number_format(char decimal_point, char separator,
                                                      int32_t group);

/* ---- Texts: code pages, UTF-8, numbers ----------------------------------------------------------
 * Code pages are those of Windows; 0 is the system's ANSI code page (1252 on Linux), 65001 is
 * UTF-8. Characters without a counterpart become the code page's best fit or its default character.
 */

/* Narrow text to UTF-16, up to its first NUL. PELMORA_NOT_FOUND for a code page that the system
 * does not know. */
pelmora_status PELMORA_CALL pelmora_text_from_narrow(const char* narrow, size_t narrow_length,
                                                     uint32_t code_page, pelmora_char16* buffer,
                                                     size_t capacity, size_t* length);

/* UTF-16 to narrow text, up to its first NUL, except to 65001, which is pelmora_text_to_utf8.
 * PELMORA_NOT_FOUND as above. */
pelmora_status PELMORA_CALL pelmora_text_to_narrow(const pelmora_char16* text, size_t text_length,
                                                   uint32_t code_page, char* buffer,
                                                   size_t capacity, size_t* length);

/* UTF-8 of each unit on its own: a surrogate pair is six bytes, and a sequence of four bytes is
 * PELMORA_MALFORMED, as is everything else that is not well-formed. */
pelmora_status PELMORA_CALL pelmora_text_from_utf8(const char* utf8, size_t utf8_length,
                                                   pelmora_char16* buffer, size_t capacity,
                                                   size_t* length);
pelmora_status PELMORA_CALL pelmora_text_to_utf8(const pelmora_char16* text, size_t text_length,
                                                 char* buffer, size_t capacity, size_t* length);

/* Each unit mapped by the C library in the current C locale. */
pelmora_status PELMORA_CALL pelmora_text_to_lower(const pelmora_char16* text, size_t text_length,
                                                  pelmora_char16* buffer, size_t capacity,
                                                  size_t* length);
pelmora_status PELMORA_CALL pelmora_text_to_upper(const pelmora_char16* text, size_t text_length,
                                                  pelmora_char16* buffer, size_t capacity,
                                                  size_t* length);

/* By the C library in the current C locale; a digit is exactly '0' to '9'. */
pelmora_status PELMORA_CALL pelmora_is_alpha(pelmora_char16 unit, int* result);
pelmora_status PELMORA_CALL pelmora_is_punct(pelmora_char16 unit, int* result);
pelmora_status PELMORA_CALL pelmora_is_space(pelmora_char16 unit, int* result);
pelmora_status PELMORA_CALL pelmora_is_digit(pelmora_char16 unit, int* result);

/* The decimal number at the start, clamped to its range; 0 where there is none. `whole`, which may
 * be null, says whether the text was consumed to its end, which the empty text is. */
pelmora_status PELMORA_CALL pelmora_to_long(const pelmora_char16* text, int32_t* number,
                                            int* whole);

/* 1 for exactly "true"; `valid`, which may be null, says whether the text was "true" or "false". */
pelmora_status PELMORA_CALL pelmora_to_bool(const pelmora_char16* text, int* value, int* valid);
pelmora_status PELMORA_CALL pelmora_from_bool(int value, pelmora_char16* buffer, size_t capacity,
                                              size_t* length);

/* A number by a printf-style format with one conversion for it, cut after 50 bytes. Length
 * modifiers are allowed and not needed. */
pelmora_status PELMORA_CALL pelmora_from_signed(int64_t number, const char* format,
                                                pelmora_char16* buffer, size_t capacity,
                                                size_t* length);
pelmora_status PELMORA_CALL pelmora_from_unsigned(uint64_t number, const char* format,
                                                  pelmora_char16* buffer, size_t capacity,
                                                  size_t* length);
pelmora_status PELMORA_CALL pelmora_from_double(double number, const char* format,
                                                pelmora_char16* buffer, size_t capacity,
                                                size_t* length);

/* The character that stands for unencodable ones in the ANSI code page. */
pelmora_status PELMORA_CALL pelmora_default_char(uint16_t* character);

/* ---- Catalogues --------------------------------------------------------------------------------
 * One GNU ".mo" file. Several threads may search one catalogue. */

/* A catalogue in memory. */
typedef struct pelmora_catalogue pelmora_catalogue;

/* Reads the file, with ".mo" appended where the name does not end so. PELMORA_NOT_FOUND when it
 * cannot be read or is no catalogue. */
pelmora_status PELMORA_CALL pelmora_catalogue_create(const char* path,
                                                     pelmora_catalogue** catalogue);
void PELMORA_CALL pelmora_catalogue_destroy(pelmora_catalogue* catalogue);

/* The translation as text of the ANSI code page; PELMORA_NOT_FOUND when there is none. */
pelmora_status PELMORA_CALL pelmora_catalogue_translate(const pelmora_catalogue* catalogue,
                                                        const char* msgid, pelmora_char16* buffer,
                                                        size_t capacity, size_t* length);

/* The translation's bytes in the catalogue's own encoding; PELMORA_NOT_FOUND when there is none. */
pelmora_status PELMORA_CALL pelmora_catalogue_lookup(const pelmora_catalogue* catalogue,
                                                     const char* msgid, char* buffer,
                                                     size_t capacity, size_t* length);

/* Every entry as PO source, in the order of the hash table, which the file must have. */
pelmora_status PELMORA_CALL pelmora_catalogue_to_po(const pelmora_catalogue* catalogue,
                                                    char* buffer, size_t capacity, size_t* length);

/* ---- Language ----------------------------------------------------------------------------------
 * The process has one. The functions that set it run before other threads translate. */

/* Makes a catalogue's file or a bare language code the language: "lang/de.mo" and "de" both give
 * the language "de". A file that cannot be loaded leaves texts untranslated and is no failure.
 * PELMORA_BAD_ARGUMENT when fewer than two characters stand before ".mo". */
pelmora_status PELMORA_CALL pelmora_language_init(const char* path);

/* The same with the language of the user's culture, such as de-DE. */
pelmora_status PELMORA_CALL pelmora_language_init_from_culture(void);

/* Where translations come from: writes the text for `msgid` with its NUL to the buffer and returns
 * its length without it, 0 for none. A length that the buffer does not hold makes the library ask
 * once more with one that does. */
typedef size_t(PELMORA_CALL* pelmora_translator)(const char* msgid, pelmora_char16* buffer,
                                                 size_t capacity, void* context);

/* Installs a translator; null removes it. Without one, nothing is translated. */
pelmora_status PELMORA_CALL pelmora_language_set_translator(pelmora_translator translator,
                                                            void* context);

/* Installs the obvious translator, which answers from the language's catalogue. */
pelmora_status PELMORA_CALL pelmora_language_use_catalogue(void);

/* Whether texts without a translation are reported in the error log; off at first. */
pelmora_status PELMORA_CALL pelmora_language_set_log_missing(int report);

/* What the translator says, or `msgid` itself as text of the ANSI code page. */
pelmora_status PELMORA_CALL pelmora_translate(const char* msgid, pelmora_char16* buffer,
                                              size_t capacity, size_t* length);

/* Translates a text without its tag, such as the "r|" of "r|mg/dL". `text` may be null, which gives
 * an empty text. */
pelmora_status PELMORA_CALL pelmora_tr(const char* text, pelmora_char16* buffer, size_t capacity,
                                       size_t* length);

/* The language's code, Windows code page, charset in markup and Windows language identifier. */
pelmora_status PELMORA_CALL pelmora_language_code(char* buffer, size_t capacity, size_t* length);
pelmora_status PELMORA_CALL pelmora_language_code_page(uint32_t* code_page);
pelmora_status PELMORA_CALL pelmora_language_uses_non_latin_code_page(int* result);
pelmora_status PELMORA_CALL pelmora_language_charset(char* buffer, size_t capacity, size_t* length);
pelmora_status PELMORA_CALL pelmora_language_id(uint32_t* identifier);

/* The PO text of the language's catalogue; PELMORA_NOT_FOUND without one. */
pelmora_status PELMORA_CALL pelmora_language_dump(char* buffer, size_t capacity, size_t* length);

/* ---- Markup --------------------------------------------------------------------------------*/

/* `&`, `>`, `"`, the apostrophe and `<` as `&amp; &gt; &quot; &apos; &lt;`, and back, once. */
pelmora_status PELMORA_CALL pelmora_escape(const pelmora_char16* text, size_t text_length,
                                           pelmora_char16* buffer, size_t capacity, size_t* length);
pelmora_status PELMORA_CALL pelmora_escape_narrow(const char* text, size_t text_length,
                                                  char* buffer, size_t capacity, size_t* length);
pelmora_status PELMORA_CALL pelmora_unescape(const pelmora_char16* text, size_t text_length,
                                             pelmora_char16* buffer, size_t capacity,
                                             size_t* length);
pelmora_status PELMORA_CALL pelmora_unescape_narrow(const char* text, size_t text_length,
                                                    char* buffer, size_t capacity, size_t* length);

/* Every occurrence of `from` replaced by `to`, from the start and without overlap. */
pelmora_status PELMORA_CALL pelmora_replace_all(const pelmora_char16* text, size_t text_length,
                                                const pelmora_char16* from,
                                                const pelmora_char16* to, pelmora_char16* buffer,
                                                size_t capacity, size_t* length);
pelmora_status PELMORA_CALL pelmora_replace_all_narrow(const char* text, size_t text_length,
                                                       const char* from, const char* to,
                                                       char* buffer, size_t capacity,
                                                       size_t* length);

/* The markup of a link to `target`, or the text alone for an empty one; neither is escaped. */
pelmora_status PELMORA_CALL pelmora_make_link(const pelmora_char16* text,
                                              const pelmora_char16* target, pelmora_char16* buffer,
                                              size_t capacity, size_t* length);

/* A part of a narrow text, in bytes. */
typedef struct pelmora_field {
    size_t offset; /* of its first byte */
    size_t length; /* in bytes */
} pelmora_field;

/* The fields between the separators, byte by byte; an empty text is one empty field, unless empty
 * ones are left out. */
pelmora_status PELMORA_CALL pelmora_split(const char* text, size_t text_length, char separator,
                                          int skip_empty, pelmora_field* buffer, size_t capacity,
                                          size_t* count);

/* ---- Error log and running system ---------------------------------------------------------------
 * The log is "errors.txt" in the temporary folder, made on first use, which comes from one thread;
 * from then on the library stays loaded. Lines of several threads may mix item by item. A log that
 * cannot be opened drops everything and is no failure. */

/* How the log is made; call it before the first use. `file_name` is in the temporary folder unless
 * its second character is a ':'. `header`, which may be null, stands below the log's own header.
 * With `append` what an earlier process left stays in the file. */
pelmora_status PELMORA_CALL pelmora_log_configure(const char* file_name, const char* header,
                                                  int append);

/* Whether the finished log is opened in Notepad at the end of the process; only on Windows. */
pelmora_status PELMORA_CALL pelmora_log_show_in_notepad(int show);

/* The text as it is, and the end of a line. */
pelmora_status PELMORA_CALL pelmora_log_write(const char* text);
pelmora_status PELMORA_CALL pelmora_log_end_line(void);
/* The text and the end of its line. */
pelmora_status PELMORA_CALL pelmora_log_line(const char* text);
/* 75 dashes and the end of their line. */
pelmora_status PELMORA_CALL pelmora_log_separator(void);
/* The line that names the running system. */
pelmora_status PELMORA_CALL pelmora_log_os_version(void);

/* Numbers and truth values as the log writes them: "%d", "%u", "%f", "0x%x", "true". */
pelmora_status PELMORA_CALL pelmora_log_signed(int64_t number);
pelmora_status PELMORA_CALL pelmora_log_unsigned(uint64_t number);
pelmora_status PELMORA_CALL pelmora_log_double(double number);
pelmora_status PELMORA_CALL pelmora_log_pointer(const void* address); /* may be null */
pelmora_status PELMORA_CALL pelmora_log_bool(int value);

/* The path of the log's file. */
pelmora_status PELMORA_CALL pelmora_log_path(char* buffer, size_t capacity, size_t* length);

/* The text for a Windows version record: "Windows XP Service Pack 3 (Build 2600)". */
pelmora_status PELMORA_CALL pelmora_os_description(uint32_t platform, uint32_t major,
                                                   uint32_t minor, uint32_t build,
                                                   const char* service_pack, char* buffer,
                                                   size_t capacity, size_t* length);

/* ---- XML -----------------------------------------------------------------------------------*/

/* One document, and the questions about it. */
typedef struct pelmora_xml pelmora_xml;

/* Without a document. */
pelmora_status PELMORA_CALL pelmora_xml_create(pelmora_xml** xml);
void PELMORA_CALL pelmora_xml_destroy(pelmora_xml* xml);

/* Parse a document in place of the one before, which is gone in any case. PELMORA_MALFORMED when it
 * is not well-formed, nested more than 256 deep, or has entities that grow out of proportion;
 * PELMORA_SYSTEM where the system has no XML parser. */
pelmora_status PELMORA_CALL pelmora_xml_parse_text(pelmora_xml* xml, const pelmora_char16* text);

/* An empty name is PELMORA_BAD_ARGUMENT and leaves the document as it was; a file that cannot be
 * read is PELMORA_SYSTEM. */
pelmora_status PELMORA_CALL pelmora_xml_parse_file(pelmora_xml* xml, const pelmora_char16* name);

/* Queries before the first parse, and for an attribute of a document without a root, are
 * PELMORA_BAD_ARGUMENT. What is not there is PELMORA_NOT_FOUND where the document can tell; an
 * empty text can stand for an absent one. */

/* The first Event in an Action whose attribute has that value, with its tags; PELMORA_NOT_FOUND
 * also for arguments that make the query malformed. */
pelmora_status PELMORA_CALL pelmora_xml_element_with_attribute(const pelmora_xml* xml,
                                                               const pelmora_char16* attribute,
                                                               const pelmora_char16* value,
                                                               pelmora_char16* buffer,
                                                               size_t capacity, size_t* length);

/* The value of the root element's attribute; empty when it has none. */
pelmora_status PELMORA_CALL pelmora_xml_attribute(const pelmora_xml* xml,
                                                  const pelmora_char16* attribute,
                                                  pelmora_char16* buffer, size_t capacity,
                                                  size_t* length);

/* The text within the first element of that name; empty when there is none. */
pelmora_status PELMORA_CALL pelmora_xml_element(const pelmora_xml* xml, const pelmora_char16* name,
                                                pelmora_char16* buffer, size_t capacity,
                                                size_t* length);

/* ---- Download ------------------------------------------------------------------------------*/

/* Downloads what an "http" or "https" address leads to, and only then replaces the file by it.
 * `milliseconds` is for the whole download, -1 for no limit. `user` and `password` may be null;
 * when neither is, they are given to that server alone. PELMORA_SYSTEM for every failure. */
pelmora_status PELMORA_CALL pelmora_download(const char* url, const char* path,
                                             int32_t milliseconds, const char* user,
                                             const char* password);

/* ---- Dialog templates ---------------------------------------------------------------------------
 * A private copy of a dialog resource, classic or extended, whose caption and font can be changed.
 */

/* A template in memory. */
typedef struct pelmora_dialog_template pelmora_dialog_template;

/* From the bytes of a resource; PELMORA_MALFORMED when they are not a whole template. */
pelmora_status PELMORA_CALL pelmora_dialog_template_create(const void* bytes, size_t size,
                                                           pelmora_dialog_template** dialog);
void PELMORA_CALL pelmora_dialog_template_destroy(pelmora_dialog_template* dialog);

/* The template as it is now. */
pelmora_status PELMORA_CALL pelmora_dialog_template_bytes(const pelmora_dialog_template* dialog,
                                                          void* buffer, size_t capacity,
                                                          size_t* size);

/* The caption; empty without one. */
pelmora_status PELMORA_CALL pelmora_dialog_template_caption(const pelmora_dialog_template* dialog,
                                                            pelmora_char16* buffer, size_t capacity,
                                                            size_t* length);
/* The first 255 units. PELMORA_BAD_ARGUMENT, and nothing changed, for a caption that would grow by
 * more than 512 bytes. */
pelmora_status PELMORA_CALL pelmora_dialog_template_set_caption(pelmora_dialog_template* dialog,
                                                                const pelmora_char16* caption);

/* Face and size in points; "" and -1 without a font. */
pelmora_status PELMORA_CALL pelmora_dialog_template_font(const pelmora_dialog_template* dialog,
                                                         int32_t* points, char* buffer,
                                                         size_t capacity, size_t* length);
/* PELMORA_BAD_ARGUMENT where the template does not take them. */
pelmora_status PELMORA_CALL pelmora_dialog_template_set_font(pelmora_dialog_template* dialog,
                                                             const char* face, int16_t points);
pelmora_status PELMORA_CALL pelmora_dialog_template_set_font_size(pelmora_dialog_template* dialog,
                                                                  int16_t points);

/* In dialog units. */
pelmora_status PELMORA_CALL pelmora_dialog_template_set_position(pelmora_dialog_template* dialog,
                                                                 int32_t x, int32_t y);
pelmora_status PELMORA_CALL pelmora_dialog_template_set_size(pelmora_dialog_template* dialog,
                                                             int32_t width, int32_t height);

#if defined(_WIN32)

/* ==== Windows only ===============================================================================
 * HKEY, HWND, HDC, HFONT and HMODULE are passed as void*, so that <windows.h> is not needed. A
 * `module` may be null, which is the program itself. */

/* ---- Registry ----------------------------------------------------------------------------------
 * Paths, names and string values are narrow. An empty name is the key's default value. */

/* How a key is opened, to be combined with |. */
enum {
    PELMORA_OPEN_READ = 1,
    PELMORA_OPEN_WRITE = 2,
    PELMORA_OPEN_WRITE_OR_READ = 4, /* if writing is refused, only for reading */
    PELMORA_OPEN_CREATE = 8,        /* makes the key and its parents if they are missing */
    PELMORA_OPEN_ALL_ACCESS = 16    /* ignored with PELMORA_OPEN_WRITE_OR_READ */
};

/* Owner of an open key. */
typedef struct pelmora_key pelmora_key;

/* A key object without an open key. */
pelmora_status PELMORA_CALL pelmora_key_create(pelmora_key** key);
void PELMORA_CALL pelmora_key_destroy(pelmora_key* key);

/* The functions of a key fail with PELMORA_NOT_FOUND for what is not there, PELMORA_BAD_ARGUMENT
 * where no key is open, and PELMORA_SYSTEM when the registry refuses. The message is that of
 * pelmora_key_last_error. */

/* Close the key that is open and open another, below `root` or below HKEY_LOCAL_MACHINE or else
 * HKEY_CURRENT_USER. `mode` combines PELMORA_OPEN_... */
pelmora_status PELMORA_CALL pelmora_key_open(pelmora_key* key, void* root, const char* path,
                                             uint32_t mode);
pelmora_status PELMORA_CALL pelmora_key_open_machine_or_user(pelmora_key* key, const char* path,
                                                             uint32_t mode);

/* Read a value of this type; one of another type is PELMORA_NOT_FOUND. */
pelmora_status PELMORA_CALL pelmora_key_read_string(const pelmora_key* key, const char* name,
                                                    char* buffer, size_t capacity, size_t* length);
/* PELMORA_MALFORMED for a value that has not 4 bytes. */
pelmora_status PELMORA_CALL pelmora_key_read_dword(const pelmora_key* key, const char* name,
                                                   uint32_t* value);
pelmora_status PELMORA_CALL pelmora_key_read_binary(const pelmora_key* key, const char* name,
                                                    void* buffer, size_t capacity, size_t* size);
/* UTF-16 in a binary value; it may hold NULs. */
pelmora_status PELMORA_CALL pelmora_key_read_wide_string(const pelmora_key* key, const char* name,
                                                         pelmora_char16* buffer, size_t capacity,
                                                         size_t* length);
/* The strings one after the other, each with its NUL; `length` counts these. */
pelmora_status PELMORA_CALL pelmora_key_read_multi_string(const pelmora_key* key, const char* name,
                                                          char* buffer, size_t capacity,
                                                          size_t* length);

/* Write a value, in place of one of any type. */
pelmora_status PELMORA_CALL pelmora_key_write_string(pelmora_key* key, const char* name,
                                                     const char* value);
pelmora_status PELMORA_CALL pelmora_key_write_dword(pelmora_key* key, const char* name,
                                                    uint32_t value);
pelmora_status PELMORA_CALL pelmora_key_write_binary(pelmora_key* key, const char* name,
                                                     const void* bytes, size_t size);
pelmora_status PELMORA_CALL pelmora_key_write_wide_string(pelmora_key* key, const char* name,
                                                          const pelmora_char16* value,
                                                          size_t value_length);
pelmora_status PELMORA_CALL pelmora_key_write_multi_string(pelmora_key* key, const char* name,
                                                           const char* const* values,
                                                           size_t value_count);

/* PELMORA_SYSTEM for every failure. */
pelmora_status PELMORA_CALL pelmora_key_delete_value(pelmora_key* key, const char* name);
/* Waits until the key is on the disk. `code`, which may be null, is the system's status, also of a
 * failure. */
pelmora_status PELMORA_CALL pelmora_key_flush(pelmora_key* key, int32_t* code);
/* What opening, reading or writing met last: empty after a success. Narrow, with the line end that
 * the system puts after its texts. */
pelmora_status PELMORA_CALL pelmora_key_last_error(const pelmora_key* key, char* buffer,
                                                   size_t capacity, size_t* length);

/* The number of values, 0 where no key is open, and the name of one; which value has which index is
 * up to the system. */
pelmora_status PELMORA_CALL pelmora_key_value_count(const pelmora_key* key, uint32_t* count);
pelmora_status PELMORA_CALL pelmora_key_value_name(const pelmora_key* key, uint32_t index,
                                                   char* buffer, size_t capacity, size_t* length);

/* One operation on a key that is opened for it; with `log` a failure is one line in the error log.
 * PELMORA_SYSTEM for every failure. */
pelmora_status PELMORA_CALL pelmora_regi_read(void* root, const char* path, const char* name,
                                              const char* fallback, int log, char* buffer,
                                              size_t capacity,
                                              size_t* length); /* gives the fallback */
pelmora_status PELMORA_CALL pelmora_regi_write(void* root, const char* path, const char* name,
                                               const char* value, int log);
pelmora_status PELMORA_CALL pelmora_regi_delete(void* root, const char* path, const char* name,
                                                int log);
pelmora_status PELMORA_CALL pelmora_regi_delete_key(void* root, const char* path, int log);

/* The system's text for one of its status codes, or "Unknown error: " and the code. */
pelmora_status PELMORA_CALL pelmora_system_error_text(uint32_t code, char* buffer, size_t capacity,
                                                      size_t* length);

/* ---- Fonts -------------------------------------------------------------------------------------
 * Heights are in logical units and signed as for CreateFontA, sizes in tenths of a point. A device
 * context may be null, which is the screen's. */

/* Owner of a font. */
typedef struct pelmora_font pelmora_font;

/* Owner of a font of the system's character set. One that cannot be created is a line in the error
 * log, and the system's own font takes its place. */
pelmora_status PELMORA_CALL pelmora_font_create(const char* face, int32_t height, int bold,
                                                int italic, pelmora_font** font);
void PELMORA_CALL pelmora_font_destroy(pelmora_font* font);
/* The HFONT, valid while its owner lives. */
pelmora_status PELMORA_CALL pelmora_font_handle(const pelmora_font* font, void** handle);

/* The HFONT alone, which the caller deletes with DeleteObject; PELMORA_SYSTEM when it cannot be
 * created. */
pelmora_status PELMORA_CALL pelmora_create_font_handle(const char* face, int32_t height, int bold,
                                                       int italic, void** handle);

/* The character set of the ANSI code page, and whether it is another one than ANSI_CHARSET. */
pelmora_status PELMORA_CALL pelmora_system_charset(uint8_t* charset);
pelmora_status PELMORA_CALL pelmora_is_non_ansi_system(int* result);
/* Whether "Small Fonts" is installed in that set. */
pelmora_status PELMORA_CALL pelmora_has_small_fonts(int* result);
/* Whether a font of that face is installed, in one character set or in any. */
pelmora_status PELMORA_CALL pelmora_font_exists(const char* face, uint8_t charset, void* dc,
                                                int* result);
pelmora_status PELMORA_CALL pelmora_font_exists_any_charset(const char* face, void* dc,
                                                            int* result);

/* Of an HFONT, null for the device context's own; `metrics` is a TEXTMETRICA. PELMORA_SYSTEM when
 * the system does not measure it. */
pelmora_status PELMORA_CALL pelmora_text_height(void* font, void* dc, int32_t* height);
pelmora_status PELMORA_CALL pelmora_text_metrics(void* font, void* dc, void* metrics);
/* The height that gives characters of that size, and the size of a height. */
pelmora_status PELMORA_CALL pelmora_decipoints_to_height(int32_t decipoints, void* dc,
                                                         int32_t* height);
pelmora_status PELMORA_CALL pelmora_height_to_decipoints(int32_t height, void* dc,
                                                         int32_t* decipoints);

/* ---- Monitors ------------------------------------------------------------------------------*/

/* Screen pixels, right and bottom exclusive: a RECT. 16 bytes. */
typedef struct pelmora_rectangle {
    int32_t left;   /* its first column */
    int32_t top;    /* its first line */
    int32_t right;  /* the first column behind it */
    int32_t bottom; /* the first line below it */
} pelmora_rectangle;

/* The work area of the monitor nearest to a window, null for the thread's main window, or to a
 * point, -1 and -1 for the mouse cursor. PELMORA_SYSTEM when the system does not tell. */
pelmora_status PELMORA_CALL pelmora_work_area_of_window(void* window, pelmora_rectangle* area);
pelmora_status PELMORA_CALL pelmora_work_area_at_point(int32_t x, int32_t y,
                                                       pelmora_rectangle* area);

/* Pixels per centimetre across the window's monitor, null for the primary one; 0 when its width is
 * unknown. */
pelmora_status PELMORA_CALL pelmora_monitor_pixels_per_cm(void* window, int32_t* pixels);
/* The name under which the width of that monitor stands in the registry; empty when the system does
 * not tell it. */
pelmora_status PELMORA_CALL pelmora_monitor_identifier(void* window, char* buffer, size_t capacity,
                                                       size_t* length);

/* ---- Drawing -------------------------------------------------------------------------------*/

/* A corner and a size, in logical units or in pixels of a picture. 16 bytes. */
typedef struct pelmora_area {
    int32_t x;      /* of the corner */
    int32_t y;      /* of the corner */
    int32_t width;  /* from the corner */
    int32_t height; /* from the corner */
} pelmora_area;

/* Draw a part of a bitmap resource, or of a BITMAPINFO and its pixels in memory, which are as long
 * as it says. PELMORA_SYSTEM, with a line in the error log, when it is not there or not drawn. */
pelmora_status PELMORA_CALL pelmora_show_dib_resource(void* dc, uint16_t resource,
                                                      const pelmora_area* destination,
                                                      const pelmora_area* source, void* module);
pelmora_status PELMORA_CALL pelmora_show_dib(void* dc, const void* information, const void* bits,
                                             const pelmora_area* destination,
                                             const pelmora_area* source);

/* Fills a rectangle with a COLORREF; one of 2 units or less is not drawn, on purpose. */
pelmora_status PELMORA_CALL pelmora_draw_solid_rect(void* dc, int32_t left, int32_t top,
                                                    int32_t right, int32_t bottom, uint32_t colour);

/* ---- Date, time, files ---------------------------------------------------------------------*/

/* As the user's region writes them, in that region's code page. */
pelmora_status PELMORA_CALL pelmora_current_date_text(int long_format, char* buffer,
                                                      size_t capacity, size_t* length);
pelmora_status PELMORA_CALL pelmora_current_time_text(int with_seconds, char* buffer,
                                                      size_t capacity, size_t* length);

/* Whether a file or folder of that name exists. */
pelmora_status PELMORA_CALL pelmora_path_exists(const char* path, int* result);
/* Removes the read-only attribute; the log says so with `log_success`, and of a failure. */
pelmora_status PELMORA_CALL pelmora_remove_read_only(const char* path, int log_success);

/* ---- Dialogs and controls -----------------------------------------------------------------------
 * For the thread to which the windows belong. */

/* PELMORA_NOT_FOUND when the module has no such dialog, PELMORA_MALFORMED when it is not whole. */
pelmora_status PELMORA_CALL pelmora_dialog_template_load(void* module, uint16_t resource,
                                                         pelmora_dialog_template** dialog);
/* The font that the system reads best at a small size. */
pelmora_status PELMORA_CALL
pelmora_dialog_template_use_system_font(pelmora_dialog_template* dialog);

/* Pixels of 4 horizontal and 8 vertical dialog units, and conversions by them. PELMORA_MALFORMED
 * for a template that pelmora_dialog_template_set_font left without its face. */
pelmora_status PELMORA_CALL
pelmora_dialog_template_base_units(const pelmora_dialog_template* dialog, int32_t* x, int32_t* y);
pelmora_status PELMORA_CALL pelmora_dialog_to_pixels(const pelmora_dialog_template* dialog,
                                                     int32_t x, int32_t y, int32_t* pixels_x,
                                                     int32_t* pixels_y);
pelmora_status PELMORA_CALL pelmora_pixels_to_dialog(const pelmora_dialog_template* dialog,
                                                     int32_t x, int32_t y, int32_t* dialog_x,
                                                     int32_t* dialog_y);

/* What the dialog procedure is to return for a message of a Unicode window, from WM_INITDIALOG on;
 * `handled` is 0 on entry. A message for which it stays 0 goes the usual way: the buttons IDOK and
 * IDCANCEL end the dialog. */
typedef intptr_t(PELMORA_CALL* pelmora_dialog_handler)(void* window, uint32_t message,
                                                       uintptr_t w_param, intptr_t l_param,
                                                       int* handled, void* context);

/* Run a modal dialog above `parent` from a resource, with pelmora_dialog_template_use_system_font,
 * or from a template as it is. `parent` and `handler` may be null. `result` is what it ended with;
 * IDCANCEL when the program is to quit meanwhile, and, with PELMORA_SYSTEM, when none is made. */
pelmora_status PELMORA_CALL pelmora_run_modal_dialog(uint16_t resource, void* parent, void* module,
                                                     pelmora_dialog_handler handler, void* context,
                                                     intptr_t* result);
pelmora_status PELMORA_CALL pelmora_run_modal_dialog_template(const pelmora_dialog_template* dialog,
                                                              void* parent, void* module,
                                                              pelmora_dialog_handler handler,
                                                              void* context, intptr_t* result);

/* Ends the dialog that runs in this window when its handler returns; destroying the window is no
 * way to. PELMORA_BAD_ARGUMENT when this thread runs no dialog in it by the functions above. */
pelmora_status PELMORA_CALL pelmora_end_modal_dialog(void* window, intptr_t result);

/* Disable, enable, show or hide a control; the focus goes to the next one before it is disabled or
 * hidden. `before` says whether it was disabled, and of pelmora_show_control whether it was
 * visible; pelmora_enable_control gives `enable` when there is nothing to do. */
pelmora_status PELMORA_CALL pelmora_disable_control(void* control, int* before);
pelmora_status PELMORA_CALL pelmora_enable_control(void* control, int enable, int* before);
pelmora_status PELMORA_CALL pelmora_show_control(void* control, int show, int* before);

/* Whether the window is the system's combo box, and whether that is a drop-down list. */
pelmora_status PELMORA_CALL pelmora_is_combo_box(void* window, int* result);
pelmora_status PELMORA_CALL pelmora_is_drop_down_list(void* combo_box, int* result);

#endif /* Windows */

#ifdef __cplusplus
}
#endif

#endif
