#include "windowText.h"

#include "pelmora/gui/dialogs.h"

namespace Bedside
{
namespace
{

using Pelmora::GString;
using Pelmora::WideString;

LRESULT send(HWND dialog, int control, UINT message, WPARAM wParam, LPARAM lParam)
{
    return SendDlgItemMessageW(dialog, control, message, wParam, lParam);
}

WPARAM selectedRow(HWND dialog, int comboBox)
{
    return static_cast<WPARAM>(send(dialog, comboBox, CB_GETCURSEL, 0, 0));
}

} // namespace

GString textOf(HWND dialog, int control)
{
    const HWND window = GetDlgItem(dialog, control);
    WideString text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void showText(HWND dialog, int control, const GString& text)
{
    if (textOf(dialog, control) != text)
        SetDlgItemTextW(dialog, control, text.to_w_str());
}

void addChoice(HWND dialog, int comboBox, const GString& text, int number)
{
    const auto* const units = text.to_w_str();
    const LRESULT row = send(dialog, comboBox, CB_ADDSTRING, 0,
                             reinterpret_cast<LPARAM>(units)); // NOLINT: as the message wants it
    send(dialog, comboBox, CB_SETITEMDATA, static_cast<WPARAM>(row), number);
}

void choose(HWND dialog, int comboBox, int number)
{
    const LRESULT count = send(dialog, comboBox, CB_GETCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row)
        if (send(dialog, comboBox, CB_GETITEMDATA, static_cast<WPARAM>(row), 0) == number)
            send(dialog, comboBox, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

int chosen(HWND dialog, int comboBox)
{
    const WPARAM row = selectedRow(dialog, comboBox);
    if (row == static_cast<WPARAM>(CB_ERR))
        return 0;
    return static_cast<int>(send(dialog, comboBox, CB_GETITEMDATA, row, 0));
}

void exchange(HWND dialog, int shown, int hidden)
{
    constexpr UINT orderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    const HWND before = GetDlgItem(dialog, shown);
    const HWND after = GetDlgItem(dialog, hidden);
    // Where a hidden control's focus goes is the next one in tab order.
    SetWindowPos(after, before, 0, 0, 0, 0, orderOnly); // NOLINT: the one that moves comes first
    Pelmora::Native::showControl(after, true);
    Pelmora::Native::showControl(before, false);
}

} // namespace Bedside
