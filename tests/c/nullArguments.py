#!/usr/bin/env python3
"""nullArguments.py HEADER EXPORTS TARGET [windows]: writes a C99 program that calls each exported
function of the header with each of its pointers null in turn, all other arguments being harmless,
and expects PELMORA_NULL_ARGUMENT, a message that names the parameter, and results that are cleared.
"""
import re
import sys

from declarations import declared_functions

header, exports, target = sys.argv[1:4]

# What may be null, by name; "function.parameter" where the name alone would be too much.
NULLABLE = {"length", "count", "size", "context", "address", "user", "password", "has_point",
            "whole", "valid", "translator", "pelmora_tr.text", "pelmora_log_configure.header",
            "parent", "module", "handler", "pelmora_key_flush.code", "pelmora_text_height.font",
            "pelmora_text_metrics.font", "pelmora_work_area_of_window.window",
            "pelmora_monitor_pixels_per_cm.window", "pelmora_monitor_identifier.window",
            *(f"pelmora_{name}.dc"
              for name in ("text_height", "text_metrics", "font_exists", "font_exists_any_charset",
                           "decipoints_to_height", "height_to_decipoints"))}

PROGRAM = """#include "pelmora/c/pelmora.h"

#include <stdio.h>
#include <string.h>

static int failures;
static double results[4][16];   /* for each result; filled before each call */
static double block[512];       /* what handles and other pointers lead to, unread */
static pelmora_element elements[1];
static const pelmora_char16 text[] = {'t', 0};
static size_t size;

static int isClear(const void* bytes, size_t count)
{
    static const char zeros[16];
    return memcmp(bytes, zeros, count) == 0;
}

static void check(const char* what, const char* parameter, pelmora_status status, int clear)
{
    char name[64];
    snprintf(name, sizeof name, "'%s'", parameter);
    if (status != PELMORA_NULL_ARGUMENT || strstr(pelmora_last_error(), name) == NULL || !clear) {
        ++failures;
        printf("%s without '%s': status %d, '%s', results %s\\n", what, parameter, (int)status,
               pelmora_last_error(), clear ? "cleared" : "left as they were");
    }
    memset(results, 0xAA, sizeof results);
    size = 77;
}

int main(void)
{
    pelmora_status status;
    memset(results, 0xAA, sizeof results);
@calls@
    printf("%d calls with a null pointer, %d of them wrong\\n", @count@, failures);
    return failures == 0 ? 0 : 1;
}
"""


def harmless(parameter, kind, results):
    """An argument, and what must hold of it afterwards."""
    if kind == "size_t*":
        return "&size", "size == 0"
    if parameter == "buffer" or kind.endswith("*") and "const" not in kind and not is_handle(kind):
        place = f"results[{len(results)}]"
        results.append(place)
        width = {"void*": 0, "pelmora_element*": 12}.get(kind, f"sizeof(*({kind})0)")
        if parameter == "buffer" and kind in ("pelmora_element*", "pelmora_field*"):
            width = 0 # lists have nothing that ends them
        return f"({kind}){place}", f"isClear({place}, {width})" if width else None
    return {"const char*": '"t"', "const pelmora_char16*": "text",
            "const pelmora_element*": "elements"}.get(kind) or \
        (f"({kind})block" if kind.endswith("*") else "1"), None


def is_handle(kind):
    return re.fullmatch(r"pelmora_(catalogue|xml|dialog_template|key|font)\*", kind) is not None


calls = []
for function, parameters in declared_functions(header, exports, sys.argv[4:] == ["windows"]):
    for null in [name for kind, name in parameters if kind.endswith("*")]:
        if null in NULLABLE or f"{function}.{null}" in NULLABLE:
            continue
        arguments, clear, results = [], [], []
        for kind, name in parameters:
            if name in ("translator", "handler"):
                argument, condition = "NULL", None
            else:
                argument, condition = harmless(name, kind, results)
            if name == null:
                argument, condition = "NULL", None
            arguments.append(argument)
            if condition:
                clear.append(condition)
        calls.append(f'    status = {function}({", ".join(arguments)});\n'
                     f'    check("{function}", "{null}", status, {" && ".join(clear) or 1});')
program = PROGRAM.replace("@calls@", "\n".join(calls)).replace("@count@", str(len(calls)))
with open(target, "w") as out:
    out.write(program)
