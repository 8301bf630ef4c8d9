#!/usr/bin/env python3
"""operations.py HEADER EXPORTS TARGET [windows]: writes a C++ source with the operations whose memory
is refused: a call of each function of the C interface, with arguments that make it allocate wherever
it can, and what the C++ interface offers beside that.
"""
import pathlib
import re
import sys

sys.path.append(str(pathlib.Path(__file__).parent.parent / "c"))
from declarations import declared_functions

header, exports, target = sys.argv[1:4]
is_windows = sys.argv[4:] == ["windows"]

# Arguments: of one function, of a name, or of a type; the first that is there counts.
ARGUMENTS = {
    "pelmora_catalogue_create.path": "catalogueFile.c_str()",
    "pelmora_download.path": "downloaded.c_str()",
    "pelmora_from_signed.format": '"%d caf\\xE9"',
    "pelmora_from_unsigned.format": '"%u caf\\xE9"',
    "pelmora_from_double.format": '"%f caf\\xE9"',
    "pelmora_language_init.path": "catalogueFile.c_str()",
    "pelmora_path_exists.path": "xmlFile.c_str()",
    "pelmora_remove_read_only.path": "xmlFile.c_str()",
    "pelmora_language_set_translator.translator": "translate",
    "pelmora_dialog_template_create.size": "sizeof dialogWords",
    "pelmora_key_write_binary.size": "sizeof dialogWords",
    "pelmora_split.separator": "' '",
    "pelmora_replace_all.from": 'WIDE("e")', "pelmora_replace_all_narrow.from": '"e"',
    "pelmora_log_show_in_notepad.show": "0", "pelmora_tr.text": '"r|Dose"',
    "pelmora_key_create.key": "&made",
    "pelmora_create_font_handle.handle": "&handle",
    "pelmora_font_handle.handle": "&handle",
    "pelmora_xml_element.name": 'WIDE("Event")',
    "pelmora_xml_element_with_attribute.value": 'WIDE("x")',
    "pelmora_xml_parse_file.name": "wideXmlFile.c_str()",
    "pelmora_xml_parse_text.text": "wideXml",
    "attribute": 'WIDE("id")', "bits": "&pixel", "build": "2600", "code_page": "932", "context": "nullptr",
    "control": "control()", "combo_box": "control()", "window": "control()", "dc": "dc()",
    "decimal_point": "','", "digits": "200", "face": '"Arial"', "file_name": '"refused.txt"',
    "fallback": "narrowText", "group": "3", "handler": "press", "header": "narrowText",
    "information": "&information", "major": "5", "max_magnitude": "3", "milliseconds": "20000",
    "mode": "11", "module": "nullptr", "msgid": '"Dose"', "parent": "nullptr", "platform": "2",
    "points": "9", "precision": "200", "resource": "2", "root": "currentUser",
    "separator": "'.'", "service_pack": '"Service Pack 3"', "url": "url.c_str()",
    "utf8": "utf8Text", "value_count": "2", "values": "list",
    "pelmora_key_write_string.name": '"text"', "pelmora_key_read_string.name": '"text"',
    "const pelmora_area*": "&area", "const pelmora_element*": "elements", "const pelmora_char16*": "wideText", "const char*": "narrowText",
    "const void*": "dialogWords", "double": "-1234567890123456", "void*": "nullptr",
}
LENGTHS = r"(narrow|text|utf8|value)_length"
HANDLES = r"pelmora_(catalogue|xml|dialog_template|key|font)"

# Of the C++ interface: a name, what is prepared with memory, and either an expression for a text, or a
# change and an expression for the state that it changes.
UNIT = "auto unit = longUnit()"
VALUE = "auto value = Native::UnitValue(5, mg)"
SHARED = "auto value = Pelmora::UnitValue(5, std::make_shared<Pelmora::Unit>(longUnit()))"
NATIVE = [
    ("UnitValue::convertTo", VALUE, "value.convertTo(longUnit())", "text(value)"),
    ("UnitValue=", VALUE, "const Native::UnitValue source(7, longUnit()); value = source", "text(value)"),
    ("ScaledUnit=", "auto value = ScaledUnit(5, mg)",
     "const ScaledUnit source(7, longUnit()); value = source",
     "text(Native::UnitValue(value.factor, value.unit))"),
    ("Unit=", "auto unit = Native::Unit(mg)", "const auto source = longUnit(); unit = source",
     "unit.toDebugString()"),
    ("ElementList::push_back", UNIT, "unit.elements.push_back(g)", "unit.toDebugString()"),
    ("ElementList::push_back, the ninth", "auto unit = unitOf({mg, perKg, mL, m, cm, perMin, perHr, s})",
     "unit.elements.push_back(unit.elements[0])", "unit.toDebugString()"),
    ("Unit::removeUnitType", UNIT, "unit.removeUnitType(UNIT_G)", "unit.toDebugString()"),
    ("Unit::mul", UNIT, "unit.mul(unit.inverted()).toDebugString()"),
    ("Unit::isEquivalent", UNIT, "unit.isEquivalent(unit.inverted()) ? \"yes\" : \"no\""),
    ("UnitValue::div", VALUE, "text(value.div({7, longUnit()}).getReduced().toNormalized(3))"),
    ("UnitValue::toString in a locale",
     VALUE + "; const Global global(std::locale(std::locale::classic(), new Comma))",
     "value.mul({1.5, longUnit()}).toString(30).to_utf8()"),
    ("formatSignificant", "", "formatSignificant(1.5, 200)"),
    ("GString of 936", "", 'GString("caf\\x81\\x40", 936).to_utf8()'),
    ("GString of 54936", "", 'GString("caf\\x81\\x30\\x81\\x30", 54936).to_utf8()'),
    ("GString of 1258", "", 'GString("\\x80\\xE9\\xCC", 1258).to_utf8()'),
    ("GString of an unknown page", "", 'GString("caf\\xE9", 64999).to_utf8()'),
    ("GString::to_narrow", "", "longText.to_narrow(949)"),
    ("GString::to_temp_c_str", "for (int i = 0; i < 16; ++i) longText.to_temp_c_str() /* fills the ring */",
     "longText.to_temp_c_str()"),
    ("GString::format", "", 'GString::format(u"%s %d %600s", longText, 5, "caf\\xE9").to_utf8()'),
    ("GString+=", "auto other = longText", "other += other", "other.to_utf8()"),
    ("GString=", 'auto other = GString(u"short")', "other = longText", "other.to_utf8()"),
    ("AnsiText", "", "AnsiText(longText).narrow()"),
    ("AnsiText=", "const AnsiText source(longText); AnsiText other", "other = source",
     'other.narrow() + (other.isExact() ? "=" : "?")'),
    ("Catalogue::load", "Catalogue loaded; loaded.load(small(\"little\"))", "loaded.load(small(\"big\"))",
     "loaded.to_po()"),
    ("Catalogue::load of none", "Catalogue loaded; loaded.load(small(\"little\"))",
     'loaded.load("not there")', "loaded.to_po()"),
    ("Catalogue=", 'Catalogue source, loaded; source.load(small("little"))', "loaded = source",
     "loaded.to_po()"),
    ("TextLocale::init", 'TextLocale language; language.init("ja")', 'language.init(small("little"))',
     "text(language)"),
    ("TextLocale::init of none", 'TextLocale language; language.init(small("little"))',
     'language.init("de")', "text(language)"),
    ("TextLocale::translate with a report",
     'TextLocale language; language.set_log_missing(true); '
     'language.set_translator([](std::string) { return GString(); })',
     'language.translate("caf\\xE9", 0).to_utf8()'),
    ("Init::init", "", "Init::init()", 'std::string("")'),
    ("get_log", "", "get_log() << longText << 0.5 << endl", 'std::string("")'),
    ("DialogTemplateBytes=", "auto dialog = DialogTemplateBytes(built({}))",
     'const DialogTemplateBytes source(built({.caption = u"longer", .items = 9})); dialog = source',
     "text(dialog)"),
    ("DialogTemplateBytes::setCaption", "auto dialog = DialogTemplateBytes(built({}))",
     "dialog.setCaption(WideString(255, 'x'))", "text(dialog)"),
    ("DialogTemplateBytes::setFont",
     "auto dialog = DialogTemplateBytes(built({})); dialog.setCaption(WideString(255, 'x'))",
     'dialog.setFont(u"A face of as many as 31 \\u0142etters", 9)', "text(dialog)"),
    ("Unit::addElement", "auto unit = Pelmora::Unit(longUnit())",
     "unit.addElement(std::make_shared<Pelmora::UnitElement>(mg))", "unit.ToString().to_utf8()"),
    ("Unit::removeElement", "auto unit = Pelmora::Unit(longUnit())", "unit.removeElement(UNIT_G)",
     "unit.ToString().to_utf8()"),
    ("UnitValue::mul, shared", SHARED,
     "value.mul(value).div(value).toNormalized(3).toNormalizedString(4).to_utf8()"),
    ("UnitValue::convertTo, shared", SHARED,
     "value.convertTo(Pelmora::Unit(Native::Unit(mg))).ToString(30).to_utf8()"),
    ("ExceptionData=", 'ExceptionData data(u"m", u"s", u"t", u"f")',
     "const ExceptionData source(longText, longText, longText, longText); data = source",
     "(data.mMessage + data.mSource + data.mStackTrace + data.mTargetSite).to_utf8()"),
    ("ExceptionData of an Exception", "",
     "ExceptionData(Exception(longText, longText)).mMessage.to_utf8()"),
    ("Exception=", 'Exception error(u"message", u"source")',
     "const Exception source(longText, longText); error = source",
     "error.what() + (error.message() + error.source()).to_utf8()"),
    ("NullReferenceError", "", 'std::string(NullReferenceError("a name of some length").what())'),
    ("FileError", "", 'std::string(ManagedXML::FileError(longText, "some reason").what())'),
    ("AliveDataStorage", "", "(AliveDataStorage::get().mServerUserId = longText).to_utf8()"),
    ("look_up_lab_unit_labels", 'Catalogue loaded; loaded.load(small("little"))',
     "look_up_lab_unit_labels(loaded)", "loaded.to_po()"),
    ("osDescription", "", 'osDescription({2, 5, 1, 2600, "Service Pack 3"})'),
]

SUPPORT = """#include "pelmora/api/AliveDataStorage.h"
#include "pelmora/api/ExceptionData.h"
#include "pelmora/api/Init.h"
#include "pelmora/api/ManagedXMLParser.h"
#include "pelmora/api/NullReferenceError.h"
#include "pelmora/api/UnitFacade.h"
#include "pelmora/api/labUnitLabels.h"
#include "pelmora/c/pelmora.h"
#include "pelmora/gettext/AnsiText.h"
#include "pelmora/gettext/TextLocale.h"
#include "pelmora/gui/DialogTemplateBytes.h"
#include "pelmora/log/LogStream.h"
#include "pelmora/log/osVersion.h"
#include "pelmora/units/unitText.h"
#include "tests/TemporaryFolder.h"
#include "tests/faults/refusal.h"
#include "tests/gui/sampleDialogs.h"
#include "tests/units/sampleUnits.h"

#include <cstdlib>
#include <cstring>
#include <locale>
#include <memory>

@windows@

namespace Pelmora::Faults
{
namespace
{

constexpr std::size_t room = 4096;

/// Where a call puts its results. Nothing but them is compared and checked.
struct Call {
    pelmora_status status;
    std::size_t size;
    double slots[4][2];
    double buffer[room / sizeof(double)];

    // The first failure makes the thread's place for messages, which stays.
    Call() { pelmora_from_bool(1, nullptr, 1, nullptr); }

    void clear() { std::memset(this, 0xAA, sizeof *this); }

    std::string ended(pelmora_status with, pelmora_status withoutMemory = PELMORA_OUT_OF_MEMORY)
    {
        allocationsLeft = 0; // the operation has ended
        status = with;
        if (!hasRefused || status != withoutMemory)
            return {reinterpret_cast<const char*>(this), sizeof *this};
        const auto* const bytes = reinterpret_cast<const unsigned char*>(&size);
        for (std::size_t i = 0; i < sizeof *this - offsetof(Call, size); ++i)
            if (bytes[i] != 0 && bytes[i] != 0xAA)
                throw "a result that is not cleared";
        if (*pelmora_last_error() == 0)
            throw "no message";
        throw std::bad_alloc();
    }
};

template <class T>
T* at(void* place)
{
    return static_cast<T*>(place);
}

#define WIDE(text) @L@##text

constexpr char xmlText[] = "<S id='2'><Action><Event id='x'>wheeze</Event></Action></S>";
const pelmora_char16 wideXml[] = WIDE("<S id='2'><Action><Event id='x'>wheeze</Event></Action></S>");
std::string catalogueFile, xmlFile, downloaded, url;
std::basic_string<pelmora_char16> wideXmlFile;
constexpr pelmora_element elements[] = {
    {-1, 0, 1}, {1, 0, -1}, {0, 3, -1}, {-2, 9, 2}, {0, 5, -4}, {0, 8, 3},
    {0, 11, 1}, {0, 10, -1}, {0, 12, 2}, {1, 13, -1}, {0, 4, 1}, {-3, 1, 1},
};
constexpr char narrowText[] = "mg < 5 caf\\xE9 that is longer than what is held without memory";
constexpr char utf8Text[] = "caf\\xC3\\xA9 that is longer than what is held without memory";
const pelmora_char16 wideText[] = WIDE("mg < 5 caf\\u00E9 \\u0142 that is longer than without memory");
constexpr std::uint16_t dialogWords[] = {0xC0, 0x80C8, 0,   0, 0, 10,  20,  150, 80,
                                         0,    0,      'A', 0, 8, 'M', 'S', 0};

using namespace Native;

const GString longText = u"A text that is longer than a string holds without memory: caf\\u00E9";

Native::Unit longUnit()
{
    return unitOf({mg, perKg, mL, m, cm, perMin, perHr, perS, s, hr, perKgBody, mg});
}

std::string small(const char* form)
{
    return catalogueFile.substr(0, catalogueFile.rfind('/')) + "/small." + form + ".mo";
}

std::string text(const Native::UnitValue& value)
{
    return std::to_string(value.value) + value.unit.toDebugString();
}

std::string text(const TextLocale& language)
{
    return language.path() + language.language() + std::to_string(language.catalogue_code_page()) +
           (language.catalogue() == nullptr ? "" : language.dump_catalogue());
}

std::string text(const DialogTemplateBytes& dialog)
{
    return {reinterpret_cast<const char*>(dialog.bytes().data()), dialog.bytes().size()};
}

struct Comma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

/// The global locale while this object lives.
struct Global {
    explicit Global(const std::locale& locale) : before(std::locale::global(locale)) {}
    ~Global() { std::locale::global(before); }
    std::locale before;
};

std::size_t PELMORA_CALL translate(const char*, pelmora_char16*, std::size_t, void*)
{
    return 0;
}

} // namespace

std::vector<Operation> operations(const std::string& catalogues, const std::string& folder)
{
    std::vector<Operation> operations;
    catalogueFile = catalogues + "/small.little.mo";
    xmlFile = folder + "/refused.xml";
    downloaded = folder + "/refused.download";
    TemporaryFolder::write(xmlFile, xmlText);
    wideXmlFile.assign(xmlFile.begin(), xmlFile.end());
    const char* const port = std::getenv("PELMORA_HTTP_PORT");
    url = std::string("http://127.0.0.1:") + (port == nullptr ? "1" : port) + "/text";
@operations@    return operations;
}

} // namespace Pelmora::Faults
"""

WINDOWS = """#include <windows.h>

namespace
{

const HKEY currentUser = HKEY_CURRENT_USER;
const BITMAPINFO information = {
    {sizeof(BITMAPINFOHEADER), 1, 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {{0, 0, 0, 0}}};
const DWORD pixel = 0x102030;
const pelmora_area area = {0, 0, 1, 1};
const char* const list[] = {"a", "bc"};

HWND control()
{
    static const HWND parent =
        CreateWindowA("STATIC", "", WS_OVERLAPPED, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    static const HWND box =
        CreateWindowA("COMBOBOX", "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 0, 0, 9, 9, parent,
                      nullptr, nullptr, nullptr);
    return box;
}

HDC dc()
{
    static const HDC memory = CreateCompatibleDC(nullptr);
    return memory;
}

std::intptr_t PELMORA_CALL press(void* window, std::uint32_t message, std::uintptr_t, std::intptr_t,
                                 int*, void*)
{
    if (message == WM_INITDIALOG)
        PostMessageW(static_cast<HWND>(window), WM_COMMAND, IDOK, 0);
    return 0;
}

} // namespace"""

# What a handle needs before the call, beside a variable of its name, and what a function needs.
MAKE = {
    "catalogue": "pelmora_catalogue_create(catalogueFile.c_str(), &catalogue);",
    "xml": "pelmora_xml_create(&xml);",
    "dialog": "pelmora_dialog_template_create(dialogWords, sizeof dialogWords, &dialog);",
    "key": 'pelmora_key_create(&key); pelmora_key_open(key, currentUser, narrowText, 11); '
           'pelmora_key_write_string(key, "text", narrowText);',
    "font": 'pelmora_font_create("Arial", 20, 0, 0, &font);',
}
LANGUAGE = "pelmora_language_init(catalogueFile.c_str()); pelmora_language_use_catalogue();"
BEFORE = {
    **{f"pelmora_{name}": LANGUAGE for name in ("translate", "tr", "language_dump")},
    **{f"pelmora_xml_{name}": "pelmora_xml_parse_file(xml, wideXmlFile.c_str());"
       for name in ("attribute", "element", "element_with_attribute")},
    "pelmora_value_text": "pelmora_set_number_format(',', '.', 3);",
    **{f"pelmora_regi_{name}": "pelmora_regi_write(currentUser, narrowText, narrowText, narrowText, 0);"
       for name in ("read", "delete", "delete_key")},
}
AFTER = {
    "pelmora_value_text": "pelmora_set_number_format('.', ',', 0);",
    "pelmora_set_number_format": "pelmora_set_number_format('.', ',', 0);",
    "pelmora_create_font_handle": "DeleteObject(handle);",
    **{f"pelmora_regi_{name}": "pelmora_regi_delete_key(currentUser, narrowText, 0);"
       for name in ("read", "write", "delete")},
    "pelmora_language_set_translator": "pelmora_language_set_translator(nullptr, nullptr);",
}


WITHOUT_MEMORY = {"pelmora_download": ", PELMORA_SYSTEM"} # for every failure, as it says


def argument(function, name, kind):
    for key in (f"{function}.{name}", name, kind):
        if key in ARGUMENTS:
            return ARGUMENTS[key]
    if re.fullmatch(LENGTHS, name):
        return "PELMORA_NUL_TERMINATED"
    return "12" if name.endswith("_count") else "1"


def operation(function, parameters):
    kinds = {name: kind for kind, name in parameters}
    arguments, slots, before, after = [], 0, [], []
    for kind, name in parameters:
        handle = re.fullmatch(f"(?:const )?({HANDLES})(\\*+)", kind)
        is_result = kind.endswith("*") and not kind.startswith(("const", "void", "pelmora_translator"))
        if handle and handle[3] == "*":
            before += [f"{handle[1]}* {name} = nullptr;", MAKE[name]]
            after.insert(0, f"{handle[1]}_destroy({name});")
            arguments.append(name)
        elif handle:
            before.append(f"{handle[1]}* made = nullptr;")
            after.insert(0, f"{handle[1]}_destroy(made);")
            arguments.append("&made")
        elif kind == "void**":
            before.append("void* handle = nullptr;")
            arguments.append("&handle")
        elif kind == "size_t*":
            arguments.append("&call.size")
        elif name in ("buffer", "metrics"):
            arguments.append(f"at<{kind[:-1]}>(call.buffer)")
        elif name == "capacity":
            element = kinds["buffer"][:-1]
            arguments.append("room" if element == "void" else f"room / sizeof({element})")
        elif is_result:
            arguments.append(f"at<{kind[:-1]}>(call.slots[{slots}])")
            slots += 1
        else:
            arguments.append(argument(function, name, kind))
    lines = ["Call call;", *before, BEFORE.get(function, ""),
             "trial.attempt([&] {", "    call.clear();",
             f"    return call.ended({function}({', '.join(arguments)}){WITHOUT_MEMORY.get(function, '')});", "});",
             AFTER.get(function, ""), *after]
    body = "".join(f"        {line}\n" for line in lines if line)
    return f'    operations.push_back({{"{function}", [](Trial& trial) {{\n{body}    }}}});\n'


operations = []
for function, parameters in declared_functions(header, exports, is_windows):
    operations.append(operation(function, parameters))
for name, prepare, *rest in NATIVE:
    work = f"return std::string({rest[0]});" if len(rest) == 1 else f'{rest[0]}; return std::string();'
    state = f", [&] {{ return {rest[1]}; }}" if len(rest) > 1 else ""
    operations.append(f'    operations.push_back({{"{name}", [](Trial& trial) {{\n'
                      f"        {prepare + ';' if prepare else ''}\n"
                      f"        trial.attempt([&] {{ {work} }}{state});\n    }}}});\n")
source = SUPPORT.replace("@operations@", "".join(operations)) \
    .replace("@windows@", WINDOWS if is_windows else "").replace("@L@", "L" if is_windows else "u")
with open(target, "w") as out:
    out.write(source)
