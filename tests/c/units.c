#include "checks.h"

#include <string.h>

static const pelmora_element mg = {PELMORA_MILLI, PELMORA_UNIT_G, 1};
static const pelmora_element perMin = {PELMORA_NO_PREFIX, PELMORA_UNIT_MIN, -1};
static const pelmora_element mLPerHr[] = {{PELMORA_MILLI, PELMORA_UNIT_L, 1},
                                          {PELMORA_NO_PREFIX, PELMORA_UNIT_HR, -1}};
static const pelmora_element mgPerKgMin[] = {{PELMORA_MILLI, PELMORA_UNIT_G, 1},
                                             {PELMORA_KILO, PELMORA_UNIT_G_PT, -1},
                                             {PELMORA_NO_PREFIX, PELMORA_UNIT_MIN, -1}};
static const pelmora_element kg[] = {{PELMORA_KILO, PELMORA_UNIT_G_PT, 1}};

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
    GIVES(needed == 9, pelmora_unit_text(mgPerKgMin, 3, NULL, 0, &needed));
    OK(pelmora_unit_text(mgPerKgMin, 3, wide, needed + 1, NULL));
    wide[0] = '5';
    FAILS(PELMORA_BUFFER_TOO_SMALL, pelmora_unit_text(mgPerKgMin, 3, wide, needed, &length));
    CHECK(wide[0] == 0 && length == needed);
    FAILS(PELMORA_NULL_ARGUMENT, pelmora_unit_text(mgPerKgMin, 3, NULL, 1, &length));
    CHECK(length == 0);
    FAILS(PELMORA_BUFFER_TOO_SMALL,
          pelmora_unit_reduced(mgPerKgMin, 3, &number, elements, 2, &count));
    CHECK(count == 3 && number == 0);
    GIVES(length == 5 && memcmp(narrow, "\0&lt;", 6) == 0, pelmora_escape_narrow("\0<", 2, NARROW));
}

static void elementsOfUnits(void)
{
    GIVES(number == 0.001 && elements[0].kind == PELMORA_UNIT_L && elements[0].prefix == 0,
          pelmora_element_to_iso(mLPerHr, &number, elements));
    GIVES(truth == 1, pelmora_element_same_dimension(&perMin, mLPerHr + 1, &truth));
    GIVES(number == 0.001 && elements[0].prefix == PELMORA_NO_PREFIX,
          pelmora_element_shift_prefix(&mg, 1, &number, elements));
    GIVES(truth == 1, pelmora_element_compare(&perMin, &mg, &truth));
    GIVES(truth == -1, pelmora_element_compare(&mg, &perMin, &truth));
    GIVES(truth == 0, pelmora_element_compare(&mg, &mg, &truth));
    GIVES(isWide("min^-1"), pelmora_element_text(&perMin, 0, WIDE));
    GIVES(isWide("min"), pelmora_element_text(&perMin, 1, WIDE));
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
        GIVES(truth == 1, questions[i].ask(&questions[i].yes, 1, &truth));
        GIVES(truth == 0, questions[i].ask(&questions[i].no, 1, &truth));
    }
    GIVES(count == 3, pelmora_unit_inverted(mgPerKgMin, 3, UNIT));
    for (i = 1; i < 5; ++i)
        GIVES(count == 3 * (i + 1), pelmora_unit_mul(elements, count, mgPerKgMin, 3, UNIT));
    GIVES(isUnit("{ g\xB3, g^-3, s^-3 }"), pelmora_unit_reduced(elements, count, &number, UNIT));
    GIVES(isUnit("{ mg, kg^-1, min^-1, kg }"), pelmora_unit_mul(mgPerKgMin, 3, kg, 1, UNIT));
    /* In place. */
    GIVES(isUnit("{ mg, min^-1 }") && number == 1,
          pelmora_unit_reduced(elements, 4, &number, UNIT));
    GIVES(isUnit("{ mg^-1, min }"), pelmora_unit_inverted(elements, 2, UNIT));
    GIVES(isUnit("{ L, s^-1 }") && number == 0.001 / 3600,
          pelmora_unit_as_iso(mLPerHr, 2, &number, UNIT));
    GIVES(truth == 1, pelmora_unit_compatible(&perMin, 1, mLPerHr + 1, 1, &truth));
    GIVES(truth == 0, pelmora_unit_compatible(mLPerHr, 1, mLPerHr + 1, 1, &truth));
    GIVES(truth == 0, pelmora_unit_equivalent(&perMin, 1, mLPerHr + 1, 1, &truth));
    GIVES(truth == 1, pelmora_unit_equivalent(&perMin, 1, mgPerKgMin + 2, 1, &truth));
    GIVES(truth == 1, pelmora_unit_has_kind(mLPerHr, 2, PELMORA_UNIT_HR, -1, &truth));
    GIVES(truth == 0, pelmora_unit_has_kind(mLPerHr, 2, PELMORA_UNIT_HR, 1, &truth));
    GIVES(isUnit("{ mL }"), pelmora_unit_remove_kind(mLPerHr, 2, PELMORA_UNIT_HR, UNIT));
    GIVES(natural == 3600, pelmora_unit_rate_divisor(mLPerHr, 2, &natural));
    GIVES(isUnit("{ L, hr^-1 }") && number == 0.001,
          pelmora_unit_shift_prefix(mLPerHr, 2, 1, &number, UNIT));
    GIVES(isWide("mg/kg/min"), pelmora_unit_text(mgPerKgMin, 3, WIDE));
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
        {pelmora_value_div, 2, kg, 2.5, "{ mg, kg^-1, min^-1, kg^-1 }"},
        {pelmora_value_mul_reduced, 70, kg, 350, "{ mg, min^-1 }"},
        {pelmora_value_div_reduced, 2, &perMin, 2.5, "{ mg, kg^-1 }"},
    };
    size_t i;
    for (i = 0; i < COUNT(operations); ++i) {
        GIVES(number == operations[i].result && isUnit(operations[i].resultUnit),
              operations[i].calculate(5, mgPerKgMin, 3, operations[i].b, operations[i].unit, 1,
                                      &number, UNIT));
    }
    GIVES(number == 0.25 && isUnit("{ kg^-1 }"), pelmora_value_inverted(4, kg, 1, &number, UNIT));
    GIVES(number == 4 && isUnit("{ kg }"), pelmora_value_reduced(4, kg, 1, &number, UNIT));
    GIVES(number == 3600, pelmora_value_convert(60, &perMin, 1, mLPerHr + 1, 1, &number));
    GIVES(number == 3600 && isUnit("{ hr^-1 }"),
          pelmora_value_convert_reduced(60, &perMin, 1, mLPerHr + 1, 1, &number, UNIT));
    GIVES(number == 1.5 && isUnit("{ g }"),
          pelmora_value_normalized(1500, &mg, 1, 3, &number, UNIT));
    GIVES(isWide("2.50 mg/kg/min"), pelmora_value_text(2.5, mgPerKgMin, 3, 2, WIDE));
    GIVES(isWide("1.23 g"), pelmora_value_normalized_text(1234.5, &mg, 1, 3, WIDE));
}

static void numbers(void)
{
    GIVES(isNarrow("5.00"), pelmora_format_significant(5, 3, NARROW));
    GIVES(whole == 2 && truth == 1, pelmora_count_significant_digits("0.050", &truth, &whole));
    GIVES(whole == 2, pelmora_count_significant_digits("12", NULL, &whole));
    GIVES(whole == -2, pelmora_decimal_magnitude(0.02, &whole));

    OK(pelmora_set_number_format(',', '.', 3));
    GIVES(isWide("1.234.567,2 mg"), pelmora_value_text(1234567.25, &mg, 1, 1, WIDE));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format('.', '.', 3));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format('0', ' ', 0));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format(',', '9', 3));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format('\xB7', ' ', 0));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format(',', '\0', 3));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format(',', '.', -1));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_set_number_format(',', '.', 127));
    OK(pelmora_set_number_format('.', '\0', 0));
    GIVES(isWide("1234567.2 mg"), pelmora_value_text(1234567.25, &mg, 1, 1, WIDE));
}

void checkUnits(void)
{
    versionAndMessages();
    theBufferRule();
    elementsOfUnits();
    units();
    values();
    numbers();
}
