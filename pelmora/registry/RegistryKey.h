#pragma once

#include "pelmora/export.h"
#include "pelmora/gettext/AnsiText.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <windows.h>

namespace Pelmora::Native
{

/// How `RegistryKey::open` opens, to be combined with |.
enum class OpenMode : std::uint32_t {
    Read = 1,
    Write = 2,
    WriteOrRead = 4, ///< for writing, and reading if `Read` is set; if refused, only for reading
    Create = 8,      ///< makes the key and its parents if they are missing
    AllAccess = 16,  ///< every access right; ignored with `WriteOrRead`
};

/// Both modes together.
constexpr OpenMode operator|(OpenMode a, OpenMode b) noexcept
{
    return static_cast<OpenMode>(static_cast<std::uint32_t>(a) | static_cast<std::uint32_t>(b));
}

/// A position among the values of an open key; valid while that key stays open. Which value has
/// which position is up to the system, and changes when values are added or deleted.
class PELMORA_API ValueNameIterator
{
public:
    using value_type = std::string;
    using difference_type = std::ptrdiff_t;

    /// At the value with this number in an open key.
    ValueNameIterator(HKEY key, std::uint32_t index) noexcept : key_(key), index_(index) {}

    /// To the next value.
    ValueNameIterator& operator++() noexcept;
    ValueNameIterator operator++(int);

    /// The value's name in the ANSI code page, "" past the last value. Characters outside the code
    /// page are replaced, so such a value cannot be read by this name. A name of more than 255
    /// bytes is "" or cut, as the system leaves it. Read from the system on first use, then kept.
    std::string operator*() const;
    /// The same as wide text.
    GString wideName() const { return GString(**this); }

    /// Whether both stand at the same value.
    friend bool operator==(const ValueNameIterator& a, const ValueNameIterator& b) noexcept
    {
        return a.key_ == b.key_ && a.index_ == b.index_;
    }

private:
    HKEY key_;
    std::uint32_t index_;
    mutable std::string name_; ///< empty until the first use
};

/// Owner of an open registry key, closed when this object is destroyed or opens another, and of
/// the text of its last failure. Nothing here throws for a failure of the registry.
///
/// Readers give the value, or the caller's default when it is absent, has another type or cannot be
/// read; `lastError` tells these from success. Any data in the registry is safe to read.
///
/// Paths, names and string values cross to the system in the ANSI code page, up to their first NUL
/// for paths and names. Operations take narrow and wide text alike; those that return text have a
/// form for each. A path is that below the root, "SOFTWARE\\Maker\\Program". An empty name is the
/// key's default value. The defaults of wide `readString` cross over and back as well, up to their
/// first NUL.
///
/// An object is used by one thread at a time. It can be moved and not copied: a handle has one
/// owner. A key that was moved from is like a new one: not open.
class PELMORA_API RegistryKey
{
public:
    /// Without an open key.
    RegistryKey() noexcept;
    RegistryKey(RegistryKey&& other) noexcept;
    RegistryKey& operator=(RegistryKey&& other) noexcept;
    ~RegistryKey();

    /// Closes the key that was open and opens another; true on success.
    bool open(HKEY root, const AnsiText& path, OpenMode mode);

    /// Opens below HKEY_LOCAL_MACHINE or, if that fails, below HKEY_CURRENT_USER.
    bool openMachineOrUser(const AnsiText& path, OpenMode mode);

    /// A REG_SZ value. The last byte is dropped unseen, as the terminator: a string that was stored
    /// without one loses its last character, on purpose.
    std::string readString(const std::string& name, const std::string& fallback) const;
    GString readString(const GString& name, const GString& fallback) const
    {
        return GString(readString(name.to_narrow(), fallback.to_narrow()));
    }

    /// A REG_DWORD value. One that does not have 4 bytes gives the default without a failure.
    std::uint32_t readDword(const AnsiText& name, std::uint32_t fallback) const;

    /// A copy of a REG_BINARY value, and in `size` its number of bytes. Null and 0 on failure; an
    /// empty value is not null.
    std::unique_ptr<std::byte[]> readBinary(const AnsiText& name, std::size_t& size) const;

    /// UTF-16 in a REG_BINARY value, all of it; an odd last byte is ignored.
    GString readWideString(const AnsiText& name, const GString& fallback) const;

    /// A REG_MULTI_SZ value up to its first empty string; an empty list on failure.
    std::vector<std::string> readMultiString(const std::string& name) const;
    std::vector<GString> readMultiString(const GString& name) const;

    /// The writers give true on success and replace a value of any type.
    bool writeString(const AnsiText& name, const AnsiText& value);
    bool writeDword(const AnsiText& name, std::uint32_t value);
    /// Requires: `bytes` points to `size` bytes. 4 GiB and more are refused.
    bool writeBinary(const AnsiText& name, const void* bytes, std::size_t size);
    /// As REG_BINARY, without a terminator.
    bool writeWideString(const AnsiText& name, const GString& value);
    /// The strings, each with its terminator, and two NULs: one more than readers need, on purpose.
    /// For readers an empty string ends the list.
    bool writeMultiString(const AnsiText& name, const std::vector<std::string>& values);
    bool writeMultiString(const AnsiText& name, const std::vector<GString>& values);
    bool writeMultiString(const AnsiText& name, std::initializer_list<AnsiText> values);

    /// False also when no key is open. `lastError` does not change.
    bool deleteValue(const AnsiText& name);

    /// Waits until the key is on the disk. Gives the status of RegFlushKey, 0 on success; never 0
    /// when no key is open. `lastError` does not change.
    long flush();

    /// The last failure of `open`, a reader or a writer; empty after a success. "key not opened"
    /// without a key, a text with both types for a value of another type, otherwise the system's
    /// text for the status (see `systemErrorText`).
    std::string lastError() const;

    /// The system's number for the same: 0 after a success, ERROR_INVALID_HANDLE without a key,
    /// ERROR_DATATYPE_MISMATCH for a value of another type.
    std::uint32_t lastStatus() const noexcept;

    /// At the first value.
    ValueNameIterator valueNamesBegin() const;
    /// Past the last value that the key has now. Equal to `valueNamesBegin` without a key and when
    /// the system does not tell the number of values.
    ValueNameIterator valueNamesEnd() const;

private:
    struct Bytes;
    struct KeyClose {
        void operator()(HKEY key) const noexcept;
    };

    bool isOpen() const;
    bool attempt(HKEY root, const AnsiText& path, OpenMode mode);
    bool succeeded(long status) const;
    bool queryValue(const std::string& name, unsigned long expectedType, std::byte* room,
                    unsigned long& size) const;
    Bytes queryRaw(const std::string& name, unsigned long expectedType) const;
    bool write(const AnsiText& name, unsigned long type, const void* data, std::size_t size);

    std::unique_ptr<std::remove_pointer_t<HKEY>, KeyClose> handle_;
    mutable std::string lastError_;
    mutable std::uint32_t lastStatus_ = 0;
};

} // namespace Pelmora::Native
