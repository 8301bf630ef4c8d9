#include "pelmora/registry/RegistryKey.h"

#include "pelmora/registry/systemErrorText.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <string_view>
#include <utility>

namespace Pelmora::Native
{
namespace
{

constexpr bool has(OpenMode mode, OpenMode flag)
{
    return (static_cast<std::uint32_t>(mode) & static_cast<std::uint32_t>(flag)) != 0;
}

REGSAM accessOf(OpenMode mode)
{
    constexpr std::pair<OpenMode, REGSAM> masks[] = {
        {OpenMode::Read, KEY_READ},
        {OpenMode::Write, KEY_WRITE},
        {OpenMode::AllAccess, KEY_ALL_ACCESS},
    };
    REGSAM access = 0;
    for (const auto& [flag, mask] : masks)
        if (has(mode, flag))
            access |= mask;
    return access;
}

const BYTE* asBytes(const void* data)
{
    return static_cast<const BYTE*>(data);
}

} // namespace

/// A value's data; null after a failure.
struct RegistryKey::Bytes {
    std::unique_ptr<std::byte[]> data;
    std::size_t size = 0;

    std::string_view text() const
    {
        return {reinterpret_cast<const char*>(data.get()), size}; // NOLINT: bytes of a string
    }
};

void RegistryKey::KeyClose::operator()(HKEY key) const noexcept
{
    RegCloseKey(key);
}

RegistryKey::RegistryKey() noexcept = default;

RegistryKey::RegistryKey(RegistryKey&& other) noexcept
    : handle_(std::move(other.handle_)),
      lastError_(std::exchange(other.lastError_, {})),
      lastStatus_(std::exchange(other.lastStatus_, 0))
{
}

RegistryKey& RegistryKey::operator=(RegistryKey&& other) noexcept
{
    RegistryKey taken(std::move(other));
    handle_.swap(taken.handle_);
    lastError_.swap(taken.lastError_);
    std::swap(lastStatus_, taken.lastStatus_);
    return *this;
}

RegistryKey::~RegistryKey() = default;

bool RegistryKey::open(HKEY root, const AnsiText& path, OpenMode mode)
{
    handle_.reset();
    if (!has(mode, OpenMode::WriteOrRead))
        return attempt(root, path, mode);
    const OpenMode create = has(mode, OpenMode::Create) ? OpenMode::Create : OpenMode();
    const OpenMode read = has(mode, OpenMode::Read) ? OpenMode::Read : OpenMode();
    return attempt(root, path, OpenMode::Write | read | create) ||
           attempt(root, path, OpenMode::Read | create);
}

bool RegistryKey::attempt(HKEY root, const AnsiText& path, OpenMode mode)
{
    HKEY opened = nullptr;
    std::array<char, 1> noClass = {};
    const LSTATUS status =
        has(mode, OpenMode::Create)
            ? RegCreateKeyExA(root, path.c_str(), 0, noClass.data(), REG_OPTION_NON_VOLATILE,
                              accessOf(mode), nullptr, &opened, nullptr)
            : RegOpenKeyExA(root, path.c_str(), 0, accessOf(mode), &opened);
    if (!succeeded(status))
        return false;
    handle_.reset(opened);
    return true;
}

bool RegistryKey::openMachineOrUser(const AnsiText& path, OpenMode mode)
{
    return open(HKEY_LOCAL_MACHINE, path, mode) || open(HKEY_CURRENT_USER, path, mode);
}

/// Whether there is a key to read from or write to; keeps that there is none.
bool RegistryKey::isOpen() const
{
    if (handle_ != nullptr)
        return true;
    lastStatus_ = ERROR_INVALID_HANDLE;
    lastError_ = "key not opened";
    return false;
}

/// Whether the call succeeded; keeps its status and the text of its failure.
bool RegistryKey::succeeded(long status) const
{
    lastStatus_ = static_cast<std::uint32_t>(status);
    lastError_ = status == ERROR_SUCCESS ? std::string() : systemErrorText(lastStatus_);
    return status == ERROR_SUCCESS;
}

RegistryKey::Bytes RegistryKey::queryRaw(const std::string& name, unsigned long expectedType) const
{
    if (!isOpen())
        return {};
    DWORD size = 0;
    if (!queryValue(name, expectedType, nullptr, size))
        return {};
    Bytes value = {std::make_unique<std::byte[]>(size), size};
    if (!queryValue(name, expectedType, value.data.get(), size))
        return {};
    value.size = std::min<std::size_t>(value.size, size); // another program may have shortened it
    return value;
}

/// Asks the system once; another program may change the value between two calls.
bool RegistryKey::queryValue(const std::string& name, unsigned long expectedType, std::byte* room,
                             unsigned long& size) const
{
    DWORD type = 0;
    if (!succeeded(RegQueryValueExA(handle_.get(), name.c_str(), nullptr, &type,
                                    reinterpret_cast<BYTE*>(room), // NOLINT: the system's own type
                                    &size)))
        return false;
    if (type == expectedType)
        return true;
    lastStatus_ = ERROR_DATATYPE_MISMATCH;
    // The "<< " and the missing blank stay, on purpose: readers of logs match the text.
    lastError_ = "The value: '" + name + "' has type: << " + std::to_string(type) +
                 ", type expected:" + std::to_string(expectedType);
    return false;
}

std::string RegistryKey::readString(const std::string& name, const std::string& fallback) const
{
    const Bytes value = queryRaw(name, REG_SZ);
    if (value.data == nullptr)
        return fallback;
    return std::string(value.text().substr(0, value.size == 0 ? 0 : value.size - 1));
}

std::uint32_t RegistryKey::readDword(const AnsiText& name, std::uint32_t fallback) const
{
    const Bytes value = queryRaw(name.narrow(), REG_DWORD);
    std::uint32_t number = fallback;
    if (value.size == sizeof number)
        std::memcpy(&number, value.data.get(), sizeof number);
    return number;
}

std::unique_ptr<std::byte[]> RegistryKey::readBinary(const AnsiText& name, std::size_t& size) const
{
    Bytes value = queryRaw(name.narrow(), REG_BINARY);
    size = value.size;
    return std::move(value.data);
}

GString RegistryKey::readWideString(const AnsiText& name, const GString& fallback) const
{
    const Bytes value = queryRaw(name.narrow(), REG_BINARY);
    if (value.data == nullptr)
        return fallback;
    WideString text(value.size / sizeof(WideChar), 0);
    if (!text.empty())
        std::memcpy(text.data(), value.data.get(), text.size() * sizeof(WideChar));
    return text;
}

std::vector<std::string> RegistryKey::readMultiString(const std::string& name) const
{
    const Bytes value = queryRaw(name, REG_MULTI_SZ);
    std::vector<std::string> strings;
    for (std::string_view rest = value.text(); !rest.empty() && rest.front() != '\0';) {
        const std::size_t end = std::min(rest.find('\0'), rest.size());
        strings.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return strings;
}

std::vector<GString> RegistryKey::readMultiString(const GString& name) const
{
    const std::vector<std::string> strings = readMultiString(name.to_narrow());
    return {strings.begin(), strings.end()};
}

bool RegistryKey::write(const AnsiText& name, unsigned long type, const void* data,
                        std::size_t size)
{
    if (!isOpen())
        return false;
    if (size > std::numeric_limits<DWORD>::max())
        return succeeded(ERROR_INVALID_PARAMETER);
    return succeeded(RegSetValueExA(handle_.get(), name.c_str(), 0, type, asBytes(data),
                                    static_cast<DWORD>(size)));
}

bool RegistryKey::writeString(const AnsiText& name, const AnsiText& value)
{
    return write(name, REG_SZ, value.c_str(), value.narrow().size() + 1);
}

bool RegistryKey::writeDword(const AnsiText& name, std::uint32_t value)
{
    return write(name, REG_DWORD, &value, sizeof value);
}

bool RegistryKey::writeBinary(const AnsiText& name, const void* bytes, std::size_t size)
{
    return write(name, REG_BINARY, bytes, size);
}

bool RegistryKey::writeWideString(const AnsiText& name, const GString& value)
{
    return write(name, REG_BINARY, value.to_w_str(), value.size() * sizeof(WideChar));
}

bool RegistryKey::writeMultiString(const AnsiText& name, const std::vector<std::string>& values)
{
    std::string joined;
    for (const std::string& value : values)
        joined += value + '\0';
    joined.append(2, '\0');
    return write(name, REG_MULTI_SZ, joined.data(), joined.size());
}

bool RegistryKey::writeMultiString(const AnsiText& name, const std::vector<GString>& values)
{
    std::vector<std::string> narrow;
    narrow.reserve(values.size());
    for (const GString& value : values)
        narrow.push_back(value.to_narrow());
    return writeMultiString(name, narrow);
}

bool RegistryKey::writeMultiString(const AnsiText& name, std::initializer_list<AnsiText> values)
{
    std::vector<std::string> narrow;
    narrow.reserve(values.size());
    for (const AnsiText& value : values)
        narrow.push_back(value.narrow());
    return writeMultiString(name, narrow);
}

bool RegistryKey::deleteValue(const AnsiText& name)
{
    return handle_ != nullptr && RegDeleteValueA(handle_.get(), name.c_str()) == ERROR_SUCCESS;
}

long RegistryKey::flush()
{
    return RegFlushKey(handle_.get());
}

std::string RegistryKey::lastError() const
{
    return lastError_;
}

std::uint32_t RegistryKey::lastStatus() const noexcept
{
    return lastStatus_;
}

ValueNameIterator RegistryKey::valueNamesBegin() const
{
    return {handle_.get(), 0};
}

ValueNameIterator RegistryKey::valueNamesEnd() const
{
    DWORD count = 0;
    RegQueryInfoKeyA(handle_.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count,
                     nullptr, nullptr, nullptr, nullptr);
    return {handle_.get(), count};
}

ValueNameIterator& ValueNameIterator::operator++() noexcept
{
    ++index_;
    name_.clear();
    return *this;
}

ValueNameIterator ValueNameIterator::operator++(int)
{
    ValueNameIterator before = *this;
    ++*this;
    return before;
}

std::string ValueNameIterator::operator*() const
{
    if (name_.empty()) {
        std::array<char, 256> buffer = {};
        auto length = static_cast<DWORD>(buffer.size());
        // A failure leaves the buffer empty or cut, which is all that callers learn.
        RegEnumValueA(key_, index_, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr);
        buffer.back() = '\0';
        name_ = buffer.data();
    }
    return name_;
}

} // namespace Pelmora::Native
