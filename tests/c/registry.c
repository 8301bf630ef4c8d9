#include "checks.h"

#include <string.h>
#include <windows.h>

#define PATH "Software\\Pelmora-test-c"

static void keys(void)
{
    static const char* const list[] = {"a", "bc"};
    static const pelmora_char16 euros[] = {0x20AC, 0, 'x'};
    static const BYTE half[] = {1, 2};
    pelmora_key* key = NULL;
    HKEY own = NULL;
    OK(pelmora_key_create(&key));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_key_read_dword(key, "number", &natural));
    GIVES(isNarrow("key not opened"), pelmora_key_last_error(key, NARROW));
    FAILS(PELMORA_BAD_ARGUMENT, pelmora_key_flush(key, &whole));
    CHECK(whole == ERROR_INVALID_HANDLE);
    FAILS(PELMORA_NOT_FOUND, pelmora_key_open_machine_or_user(key, PATH, PELMORA_OPEN_READ));
    CHECK(strpbrk(pelmora_last_error(), "\r\n") == NULL);
    OK(pelmora_key_open(key, HKEY_CURRENT_USER, PATH,
                        PELMORA_OPEN_READ | PELMORA_OPEN_WRITE | PELMORA_OPEN_CREATE));

    OK(pelmora_key_write_string(key, "text", "mg/kg"));
    GIVES(isNarrow("mg/kg"), pelmora_key_read_string(key, "text", NARROW));
    FAILS(PELMORA_NOT_FOUND, pelmora_key_read_dword(key, "text", &natural));
    CHECK(strstr(pelmora_last_error(), "has type: << 1, type expected:4") != NULL);
    OK(pelmora_key_write_dword(key, "number", 0xFFFFFFFF));
    GIVES(natural == 0xFFFFFFFF, pelmora_key_read_dword(key, "number", &natural));
    OK(pelmora_key_write_binary(key, "bytes", half, sizeof half));
    GIVES(length == sizeof half && memcmp(narrow, half, length) == 0,
          pelmora_key_read_binary(key, "bytes", narrow, sizeof narrow, &length));
    OK(pelmora_key_write_wide_string(key, "wide", euros, COUNT(euros)));
    GIVES(length == COUNT(euros) && memcmp(wide, euros, sizeof euros) == 0,
          pelmora_key_read_wide_string(key, "wide", WIDE));
    OK(pelmora_key_write_multi_string(key, "list", list, COUNT(list)));
    GIVES(length == 5 && memcmp(narrow, "a\0bc\0", 6) == 0,
          pelmora_key_read_multi_string(key, "list", NARROW));
    CHECK(RegOpenKeyA(HKEY_CURRENT_USER, PATH, &own) == ERROR_SUCCESS &&
          RegSetValueExA(own, "number", 0, REG_DWORD, half, sizeof half) == ERROR_SUCCESS &&
          RegCloseKey(own) == ERROR_SUCCESS);
    FAILS(PELMORA_MALFORMED, pelmora_key_read_dword(key, "number", &natural));

    OK(pelmora_key_delete_value(key, "number"));
    FAILS(PELMORA_SYSTEM, pelmora_key_delete_value(key, "number"));
    GIVES(natural == 4, pelmora_key_value_count(key, &natural));
    GIVES(length > 0, pelmora_key_value_name(key, 3, NARROW));
    FAILS(PELMORA_NOT_FOUND, pelmora_key_value_name(key, 4, NARROW));
    OK(pelmora_key_flush(key, NULL));
    OK(pelmora_key_open_machine_or_user(key, PATH, PELMORA_OPEN_READ));
    FAILS(PELMORA_SYSTEM, pelmora_key_write_dword(key, "number", 1));
    pelmora_key_destroy(key);
    pelmora_key_destroy(NULL);
}

void checkRegistry(void)
{
    keys();
    OK(pelmora_regi_write(HKEY_CURRENT_USER, PATH, "value", "5", 0));
    GIVES(isNarrow("5"), pelmora_regi_read(HKEY_CURRENT_USER, PATH, "value", "none", 0, NARROW));
    OK(pelmora_regi_delete(HKEY_CURRENT_USER, PATH, "value", 0));
    FAILS(PELMORA_SYSTEM, pelmora_regi_delete(HKEY_CURRENT_USER, PATH, "value", 0));
    GIVES(isNarrow("none"), pelmora_regi_read(HKEY_CURRENT_USER, PATH, "value", "none", 0, NARROW));
    OK(pelmora_regi_delete_key(HKEY_CURRENT_USER, PATH, 0));
    FAILS(PELMORA_SYSTEM, pelmora_regi_delete_key(HKEY_CURRENT_USER, PATH, 0));
    FAILS(PELMORA_SYSTEM, pelmora_regi_write((void*)1, PATH, "value", "5", 0));
    GIVES(isNarrow("Unknown error: -2"), pelmora_system_error_text(0xFFFFFFFE, NARROW));
}
