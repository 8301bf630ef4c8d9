#include "BedsideProgram.h"

#include <array>
#include <filesystem>
#include <stdexcept>

namespace BedsideDriver
{
namespace
{

constexpr UINT patienceMs = 30'000;

std::filesystem::path folderOfThisProgram()
{
    std::array<wchar_t, MAX_PATH> path = {};
    GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
    return std::filesystem::path(path.data()).parent_path();
}

struct Search {
    DWORD process;
    HWND found;
};

BOOL CALLBACK keepDialog(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter); // NOLINT: a pointer, as it was handed in
    std::array<wchar_t, 16> name = {};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search.process || IsWindowVisible(window) == 0 ||
        name.data() != std::wstring(L"#32770"))
        return TRUE;
    search.found = window;
    return FALSE;
}

HWND visibleDialog(DWORD process)
{
    Search search = {process, nullptr};
    EnumWindows(keepDialog, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

LPARAM address(const void* text)
{
    return reinterpret_cast<LPARAM>(text);
}

} // namespace

BedsideProgram::BedsideProgram(const std::wstring& arguments)
{
    std::wstring command =
        L'"' + (folderOfThisProgram() / "bedside.exe").wstring() + L"\" " + arguments;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &startup, &process_) == 0)
        throw std::runtime_error("bedside.exe does not start");
    try {
        waitUntil("the window", [this] {
            window_ = visibleDialog(process_.dwProcessId);
            return window_ != nullptr;
        });
    } catch (...) {
        TerminateProcess(process_.hProcess, 1);
        throw;
    }
}

std::wstring BedsideProgram::speaking(const std::wstring& language)
{
    if (language == L"en")
        return L"--lang en";
    const auto catalogue = folderOfThisProgram().parent_path() / "po" / (language + L".mo");
    return L"--lang \"" + catalogue.wstring() + L'"';
}

BedsideProgram::~BedsideProgram()
{
    TerminateProcess(process_.hProcess, 1); // does nothing to one that has ended
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

std::wstring BedsideProgram::text(int number) const
{
    std::array<wchar_t, 512> text = {};
    send(control(number), WM_GETTEXT, text.size(), address(text.data()));
    return text.data();
}

int BedsideProgram::focus() const
{
    GUITHREADINFO information = {};
    information.cbSize = sizeof information;
    GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &information);
    return information.hwndFocus != nullptr ? GetDlgCtrlID(information.hwndFocus) : 0;
}

void BedsideProgram::type(int edit, const std::wstring& text) const
{
    send(control(edit), WM_SETTEXT, 0, address(text.c_str()));
}

void BedsideProgram::choose(int comboBox, const std::wstring& row) const
{
    const HWND list = control(comboBox);
    const auto found = static_cast<LRESULT>(
        send(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), address(row.c_str())));
    if (found == CB_ERR)
        throw std::runtime_error("a list has no such row");
    send(list, CB_SETCURSEL, static_cast<WPARAM>(found), 0);
    send(window_, WM_COMMAND, MAKEWPARAM(comboBox, CBN_SELCHANGE), address(list));
}

void BedsideProgram::press(int button) const
{
    send(control(button), BM_CLICK, 0, 0);
}

void BedsideProgram::pressEnter(int edit, wchar_t digit) const
{
    send(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control(edit)), TRUE);
    const std::wstring before = text(edit);
    PostMessageW(control(edit), WM_KEYDOWN, VK_RETURN, 0);
    PostMessageW(control(edit), WM_CHAR, static_cast<WPARAM>(digit), 0);
    waitUntil("the keys", [&] { return text(edit) != before; });
}

void BedsideProgram::waitUntil(const char* what, const std::function<bool()>& condition) const
{
    constexpr DWORD pauseMs = 20;
    const ULONGLONG deadline = GetTickCount64() + patienceMs;
    while (!condition()) {
        if (WaitForSingleObject(process_.hProcess, pauseMs) == WAIT_OBJECT_0)
            throw std::runtime_error(std::string("the program ended before: ") + what);
        if (GetTickCount64() > deadline)
            throw std::runtime_error(std::string("waited in vain for: ") + what);
    }
}

DWORD BedsideProgram::close()
{
    send(window_, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(process_.hProcess, patienceMs) != WAIT_OBJECT_0)
        throw std::runtime_error("the program does not end");
    DWORD status = 0;
    GetExitCodeProcess(process_.hProcess, &status);
    return status;
}

DWORD_PTR BedsideProgram::send(HWND receiver, UINT message, WPARAM wParam, LPARAM lParam)
{
    DWORD_PTR result = 0;
    if (SendMessageTimeoutW(receiver, message, wParam, lParam, SMTO_ABORTIFHUNG, patienceMs,
                            &result) == 0)
        throw std::runtime_error("the window does not answer");
    return result;
}

} // namespace BedsideDriver
