#pragma once

#include <functional>
#include <string>

#include <windows.h>

namespace BedsideDriver
{

/// The running example, driven through its window as another program can: its controls are named by
/// the numbers in the example's controls.h. Whatever does not happen within half a minute throws
/// std::runtime_error. The process ends with this object at the latest.
class BedsideProgram
{
public:
    /// Starts bedside.exe, which stands beside this program, and waits for its window.
    explicit BedsideProgram(const std::wstring& arguments = L"");
    /// The arguments for a language: a code that has a catalogue in the same build, or "en".
    static std::wstring speaking(const std::wstring& language);
    BedsideProgram(const BedsideProgram&) = delete;
    BedsideProgram& operator=(const BedsideProgram&) = delete;
    ~BedsideProgram();

    HWND window() const { return window_; }
    HWND control(int number) const { return GetDlgItem(window_, number); }
    bool isEnabled(int number) const { return IsWindowEnabled(control(number)) != 0; }
    bool isReadOnly(int number) const
    {
        return (GetWindowLongW(control(number), GWL_STYLE) & ES_READONLY) != 0;
    }
    bool isVisible(int number) const { return IsWindowVisible(control(number)) != 0; }
    std::wstring text(int number) const;

    /// The number of the control that has the keyboard focus.
    int focus() const;

    void type(int edit, const std::wstring& text) const;
    /// Selects the row with this text.
    void choose(int comboBox, const std::wstring& row) const;
    void press(int button) const;
    /// Presses the keys Enter and then `digit` in an edit.
    void pressEnter(int edit, wchar_t digit) const;

    void waitUntil(const char* what, const std::function<bool()>& condition) const;

    /// Closes the window and gives the program's exit status.
    DWORD close();

private:
    static DWORD_PTR send(HWND receiver, UINT message, WPARAM wParam, LPARAM lParam);

    PROCESS_INFORMATION process_ = {};
    HWND window_ = nullptr;
};

} // namespace BedsideDriver
