/* A dopamine infusion of 5 mcg/kg/min for a patient of 70 kg, from a bag of 400 mg in 250 mL. */

#include <pelmora/c/pelmora.h>

#include <stdio.h>
#include <stdlib.h>

#define COUNT(array) (sizeof(array) / sizeof *(array))

typedef struct quantity {
    double number;
    pelmora_element unit[8];
    size_t count;
} quantity;

static void require(pelmora_status status)
{
    if (status == PELMORA_OK)
        return;
    fprintf(stderr, "%s\n", pelmora_last_error());
    exit(1);
}

static quantity product(quantity a, quantity b)
{
    quantity result;
    require(pelmora_value_mul_reduced(a.number, a.unit, a.count, b.number, b.unit, b.count,
                                      &result.number, result.unit, COUNT(result.unit),
                                      &result.count));
    return result;
}

static quantity quotient(quantity a, quantity b)
{
    quantity result;
    require(pelmora_value_div_reduced(a.number, a.unit, a.count, b.number, b.unit, b.count,
                                      &result.number, result.unit, COUNT(result.unit),
                                      &result.count));
    return result;
}

static void print(const pelmora_char16* text)
{
    char utf8[100];
    require(pelmora_text_to_utf8(text, PELMORA_NUL_TERMINATED, utf8, sizeof utf8, NULL));
    fputs(utf8, stdout);
}

static void printDecimals(quantity value, int32_t decimals)
{
    pelmora_char16 text[100];
    require(pelmora_value_text(value.number, value.unit, value.count, decimals, text, COUNT(text),
                               NULL));
    print(text);
}

static void printDigits(quantity value, int32_t digits)
{
    pelmora_char16 text[100];
    require(pelmora_value_normalized_text(value.number, value.unit, value.count, digits, text,
                                          COUNT(text), NULL));
    print(text);
}

int main(void)
{
    const quantity dose = {5,
                           {{PELMORA_MICRO, PELMORA_UNIT_G, 1},
                            {PELMORA_KILO, PELMORA_UNIT_G_PT, -1}, /* body weight */
                            {PELMORA_NO_PREFIX, PELMORA_UNIT_MIN, -1}},
                           3};
    const quantity weight = {70, {{PELMORA_KILO, PELMORA_UNIT_G_PT, 1}}, 1};
    const quantity drug = {400, {{PELMORA_MILLI, PELMORA_UNIT_G, 1}}, 1};
    const quantity bag = {250, {{PELMORA_MILLI, PELMORA_UNIT_L, 1}}, 1};
    quantity pump = {
        0, {{PELMORA_MILLI, PELMORA_UNIT_L, 1}, {PELMORA_NO_PREFIX, PELMORA_UNIT_HR, -1}}, 2};

    const quantity concentration = quotient(drug, bag);
    const quantity rate = quotient(product(dose, weight), concentration);
    int isRate = 0;
    require(pelmora_unit_compatible(rate.unit, rate.count, pump.unit, pump.count, &isRate));
    if (!isRate)
        return 1;
    require(pelmora_value_convert(rate.number, rate.unit, rate.count, pump.unit, pump.count,
                                  &pump.number));

    printDecimals(dose, 0);
    fputs(" at ", stdout);
    printDecimals(concentration, 1);
    fputs(": ", stdout);
    printDigits(pump, 3);
    putchar('\n');
    return 0;
}
