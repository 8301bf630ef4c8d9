#include "pelmora/c/systemBorder.h"
#include "pelmora/registry/RegistryKey.h"
#include "pelmora/registry/regi.h"

#include <utility>
#include <vector>

using namespace Pelmora;
using namespace Pelmora::C;

struct pelmora_key {
    Native::RegistryKey native;
};

static_assert(PELMORA_OPEN_READ == int(Native::OpenMode::Read));
static_assert(PELMORA_OPEN_WRITE == int(Native::OpenMode::Write));
static_assert(PELMORA_OPEN_WRITE_OR_READ == int(Native::OpenMode::WriteOrRead));
static_assert(PELMORA_OPEN_CREATE == int(Native::OpenMode::Create));
static_assert(PELMORA_OPEN_ALL_ACCESS == int(Native::OpenMode::AllAccess));

namespace
{

pelmora_status statusOf(std::uint32_t systemStatus)
{
    constexpr std::pair<std::uint32_t, pelmora_status> statuses[] = {
        {ERROR_SUCCESS, PELMORA_OK},
        {ERROR_FILE_NOT_FOUND, PELMORA_NOT_FOUND},
        {ERROR_PATH_NOT_FOUND, PELMORA_NOT_FOUND},
        {ERROR_DATATYPE_MISMATCH, PELMORA_NOT_FOUND},
        {ERROR_INVALID_HANDLE, PELMORA_BAD_ARGUMENT},
        {ERROR_NOT_ENOUGH_MEMORY, PELMORA_OUT_OF_MEMORY},
        {ERROR_OUTOFMEMORY, PELMORA_OUT_OF_MEMORY},
    };
    for (const auto& [number, status] : statuses)
        if (number == systemStatus)
            return status;
    return PELMORA_SYSTEM;
}

/// How the key's last operation ended.
pelmora_status outcome(const Native::RegistryKey& key)
{
    const pelmora_status status = statusOf(key.lastStatus());
    return status == PELMORA_OK ? PELMORA_OK : fail(status, systemMessage(key.lastError()));
}

pelmora_status changed(bool done)
{
    if (!done)
        throw Failure{PELMORA_SYSTEM, "the registry does not do it"};
    return PELMORA_OK;
}

std::string requiredString(const char* text, const char* parameter)
{
    return std::string(requiredText(text, parameter));
}

/// Opens the key by what `open` calls on it.
template <class Open>
pelmora_status openKey(pelmora_key* key, const char* path, const Open& open)
{
    return guarded([&] {
        Native::RegistryKey& native = required(key, "key").native;
        open(native, requiredString(path, "path"));
        return outcome(native);
    });
}

/// Puts what `read` finds into a result of variable length, unless it finds nothing.
template <class Result, class Read>
pelmora_status readValue(const pelmora_key* key, const char* name, Result result, const Read& read)
{
    return guarded(
        [&] {
            const Native::RegistryKey& native = required(key, "key").native;
            const auto value = read(native, requiredString(name, "name"));
            const pelmora_status status = outcome(native);
            return status == PELMORA_OK ? result.put(value) : status;
        },
        result);
}

template <class Write>
pelmora_status writeValue(pelmora_key* key, const char* name, const Write& write)
{
    return guarded([&] {
        Native::RegistryKey& native = required(key, "key").native;
        write(native, requiredString(name, "name"));
        return outcome(native);
    });
}

struct Block {
    std::unique_ptr<std::byte[]> bytes;
    std::size_t size = 0;

    operator std::span<const std::byte>() const { return {bytes.get(), size}; }
};

} // namespace

pelmora_status pelmora_key_create(pelmora_key** key)
{
    return giveHandle(key, "key", [] { return std::make_unique<pelmora_key>(); });
}

void pelmora_key_destroy(pelmora_key* key)
{
    delete key;
}

pelmora_status pelmora_key_open(pelmora_key* key, void* root, const char* path, uint32_t mode)
{
    return openKey(key, path, [&](Native::RegistryKey& native, const std::string& below) {
        native.open(requiredHandle<HKEY>(root, "root"), below, Native::OpenMode(mode));
    });
}

pelmora_status pelmora_key_open_machine_or_user(pelmora_key* key, const char* path, uint32_t mode)
{
    return openKey(key, path, [&](Native::RegistryKey& native, const std::string& below) {
        native.openMachineOrUser(below, Native::OpenMode(mode));
    });
}

pelmora_status pelmora_key_read_string(const pelmora_key* key, const char* name, char* buffer,
                                       size_t capacity, size_t* length)
{
    return readValue(key, name, TextResult<char>(buffer, capacity, length),
                     [](const Native::RegistryKey& native, const std::string& value) {
                         return native.readString(value, std::string());
                     });
}

pelmora_status pelmora_key_read_dword(const pelmora_key* key, const char* name, uint32_t* value)
{
    return guarded(
        [&] {
            const Native::RegistryKey& native = required(key, "key").native;
            const std::string valueName = requiredString(name, "name");
            // One that has not 4 bytes is read as whatever stands for it.
            constexpr uint32_t unlikely = 0x9E3779B9;
            *value = native.readDword(valueName, unlikely);
            if (*value == unlikely && native.lastStatus() == ERROR_SUCCESS &&
                native.readDword(valueName, ~unlikely) == ~unlikely)
                throw Failure{PELMORA_MALFORMED, "the value has not 4 bytes"};
            return outcome(native);
        },
        Result(value, "value"));
}

pelmora_status pelmora_key_read_binary(const pelmora_key* key, const char* name, void* buffer,
                                       size_t capacity, size_t* size)
{
    return readValue(key, name, BytesResult(static_cast<std::byte*>(buffer), capacity, size),
                     [](const Native::RegistryKey& native, const std::string& value) {
                         Block block;
                         block.bytes = native.readBinary(value, block.size);
                         return block;
                     });
}

pelmora_status pelmora_key_read_wide_string(const pelmora_key* key, const char* name,
                                            pelmora_char16* buffer, size_t capacity, size_t* length)
{
    return readValue(key, name, TextResult<pelmora_char16>(buffer, capacity, length),
                     [](const Native::RegistryKey& native, const std::string& value) {
                         return Native::WideString(
                             Native::WideView(native.readWideString(value, GString())));
                     });
}

pelmora_status pelmora_key_read_multi_string(const pelmora_key* key, const char* name, char* buffer,
                                             size_t capacity, size_t* length)
{
    return readValue(key, name, TextResult<char>(buffer, capacity, length),
                     [](const Native::RegistryKey& native, const std::string& value) {
                         std::string joined;
                         for (const std::string& one : native.readMultiString(value))
                             joined += one + '\0';
                         return joined;
                     });
}

pelmora_status pelmora_key_write_string(pelmora_key* key, const char* name, const char* value)
{
    return writeValue(key, name, [&](Native::RegistryKey& native, const std::string& valueName) {
        native.writeString(valueName, requiredString(value, "value"));
    });
}

pelmora_status pelmora_key_write_dword(pelmora_key* key, const char* name, uint32_t value)
{
    return writeValue(key, name, [&](Native::RegistryKey& native, const std::string& valueName) {
        native.writeDword(valueName, value);
    });
}

pelmora_status pelmora_key_write_binary(pelmora_key* key, const char* name, const void* bytes,
                                        size_t size)
{
    return writeValue(key, name, [&](Native::RegistryKey& native, const std::string& valueName) {
        required(static_cast<const std::byte*>(bytes), size, "bytes");
        native.writeBinary(valueName, bytes, size);
    });
}

pelmora_status pelmora_key_write_wide_string(pelmora_key* key, const char* name,
                                             const pelmora_char16* value, size_t value_length)
{
    return writeValue(key, name, [&](Native::RegistryKey& native, const std::string& valueName) {
        native.writeWideString(valueName, GString(requiredText(value, value_length, "value")));
    });
}

pelmora_status pelmora_key_write_multi_string(pelmora_key* key, const char* name,
                                              const char* const* values, size_t value_count)
{
    return writeValue(key, name, [&](Native::RegistryKey& native, const std::string& valueName) {
        std::vector<std::string> strings;
        for (const char* const value : required(values, value_count, "values"))
            strings.push_back(requiredString(value, "values"));
        native.writeMultiString(valueName, strings);
    });
}

pelmora_status pelmora_key_delete_value(pelmora_key* key, const char* name)
{
    return guarded([&] {
        return changed(required(key, "key").native.deleteValue(requiredString(name, "name")));
    });
}

pelmora_status pelmora_key_flush(pelmora_key* key, int32_t* code)
{
    std::uint32_t systemStatus = ERROR_SUCCESS;
    const pelmora_status status = guarded([&] {
        systemStatus = static_cast<std::uint32_t>(required(key, "key").native.flush());
        const pelmora_status flushed = statusOf(systemStatus);
        return flushed == PELMORA_OK ? PELMORA_OK : fail(flushed, systemMessage(systemStatus));
    });
    if (code != nullptr)
        *code = static_cast<int32_t>(systemStatus);
    return status;
}

pelmora_status pelmora_key_last_error(const pelmora_key* key, char* buffer, size_t capacity,
                                      size_t* length)
{
    return giveText(buffer, capacity, length,
                    [&] { return required(key, "key").native.lastError(); });
}

pelmora_status pelmora_key_value_count(const pelmora_key* key, uint32_t* count)
{
    return give(count, "count", [&] {
        const Native::RegistryKey& native = required(key, "key").native;
        uint32_t found = 0;
        for (auto at = native.valueNamesBegin(), end = native.valueNamesEnd(); at != end; ++at)
            ++found;
        return found;
    });
}

pelmora_status pelmora_key_value_name(const pelmora_key* key, uint32_t index, char* buffer,
                                      size_t capacity, size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        const Native::RegistryKey& native = required(key, "key").native;
        uint32_t before = index;
        for (auto at = native.valueNamesBegin(), end = native.valueNamesEnd(); at != end; ++at)
            if (before-- == 0)
                return *at;
        throw Failure{PELMORA_NOT_FOUND, "the key has not so many values"};
    });
}

pelmora_status pelmora_regi_read(void* root, const char* path, const char* name,
                                 const char* fallback, int log, char* buffer, size_t capacity,
                                 size_t* length)
{
    return giveText(buffer, capacity, length, [&] {
        return Native::regiRead(requiredHandle<HKEY>(root, "root"), requiredString(path, "path"),
                                requiredString(name, "name"), requiredString(fallback, "fallback"),
                                log != 0);
    });
}

pelmora_status pelmora_regi_write(void* root, const char* path, const char* name, const char* value,
                                  int log)
{
    return guarded([&] {
        return changed(Native::regiWrite(requiredHandle<HKEY>(root, "root"),
                                         requiredString(path, "path"), requiredString(name, "name"),
                                         requiredString(value, "value"), log != 0));
    });
}

pelmora_status pelmora_regi_delete(void* root, const char* path, const char* name, int log)
{
    return guarded([&] {
        return changed(Native::regiDelete(requiredHandle<HKEY>(root, "root"),
                                          requiredString(path, "path"),
                                          requiredString(name, "name"), log != 0));
    });
}

pelmora_status pelmora_regi_delete_key(void* root, const char* path, int log)
{
    return guarded([&] {
        return changed(Native::regiDeleteKey(requiredHandle<HKEY>(root, "root"),
                                             requiredString(path, "path"), log != 0));
    });
}

pelmora_status pelmora_system_error_text(uint32_t code, char* buffer, size_t capacity,
                                         size_t* length)
{
    return giveText(buffer, capacity, length, [&] { return Native::systemErrorText(code); });
}
