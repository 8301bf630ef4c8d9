// Which texts the operations of the Windows rooms take: the compiler's answer is the test.

#include "pelmora/gui/DialogTemplate.h"
#include "pelmora/gui/FontUtil.h"
#include "pelmora/gui/files.h"
#include "pelmora/registry/RegistryKey.h"
#include "pelmora/registry/regi.h"

namespace Pelmora::Native
{
namespace
{

struct ConvertsToString {
    operator std::string() const;
};

template <class Name, class Value>
constexpr bool areTaken = requires(RegistryKey key, HKEY root, OpenMode mode, std::size_t size,
                                   Font font, DialogTemplate dialog, Name name, Value value)
{
    key.open(root, name, mode) && key.openMachineOrUser(name, mode);
    key.readDword(name, 0);
    key.readBinary(name, size);
    key.readWideString(name, u"");
    key.writeString(name, value) && key.writeString(name, {}) && key.writeString({}, value);
    key.writeDword(name, 0) && key.writeBinary(name, nullptr, 0);
    key.writeWideString(name, u"") && key.deleteValue(name);
    key.writeMultiString(name, {value, name}) && key.writeMultiString(name, {});
    key.writeMultiString(name, std::vector<std::string>()) &&
        key.writeMultiString(name, std::vector<GString>());
    regiWrite(root, name, value, name) && regiWrite(root, value, name, name, true);
    regiDelete(root, name, value) && regiDelete(root, name, value, true);
    regiDeleteKey(root, name) && regiDeleteKey(root, name, true);
    FontUtil::create(font, name, 9, true, false) && FontUtil::createHandle(name, 9, true, true);
    FontUtil::exists(name, 0) && FontUtil::existsAnyCharset(name);
    pathExists(name) && dialog.setFont(name, 9);
    removeReadOnly(name, true);
}
&&!requires(HKEY root, Name name, Value value)
{
    regiDeleteKey(root, name, value);
};

template <class... Texts>
struct Forms {
    template <class Name>
    static constexpr bool takenWith = (areTaken<Name, Texts> && ...);
    static constexpr bool allMix = (takenWith<Texts> && ...);
};
static_assert(
    Forms<const char*, char (&)[2], std::string, std::string_view, ConvertsToString, const wchar_t*,
          const wchar_t (&)[2], const char16_t*, WideString, WideView, GString>::allMix);

template <class Text>
constexpr bool isGivenBack = requires(const RegistryKey key, Text text, HKEY root)
{
    requires std::same_as<decltype(key.readString(text, text)), Text>;
    requires std::same_as<decltype(key.readMultiString(text)), std::vector<Text>>;
    requires std::same_as<decltype(regiRead(root, text, text, text)), Text>;
};
static_assert(isGivenBack<std::string> && isGivenBack<GString>);
static_assert(requires(const RegistryKey key) {
    requires std::same_as<decltype(key.readString("name", {})), std::string>;
    requires std::same_as<decltype(key.readString(L"name", {})), GString>;
});

static_assert(!areTaken<int, int> && !areTaken<std::u16string, GString>);

} // namespace
} // namespace Pelmora::Native
