#include "BedsideDialog.h"

#include "OrderFields.h"
#include "controls.h"
#include "dialogTexts.h"
#include "drawings.h"
#include "labValues.h"
#include "orderControls.h"
#include "windowText.h"

#include "translation/translation.h"

#include "pelmora/formatter/Formatter.h"
#include "pelmora/gui/dateTime.h"
#include "pelmora/gui/dialogs.h"

#include <commctrl.h>
#include <shellapi.h>

namespace Bedside
{
namespace
{

using Pelmora::GString;
using Pelmora::WideView;
using Pelmora::Native::Font;
using Translation::tr;
namespace Native = Pelmora::Native;

constexpr double usualPatientKg = 70;
constexpr INT_PTR closed = IDOK;

/// Gives a control a bold font of another size.
void emphasise(HWND control, Font& font, const GString& face, int height)
{
    Native::FontUtil::create(font, face, height, true, false);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE); // NOLINT
}

int heightOf(HWND control)
{
    RECT area = {};
    GetClientRect(control, &area);
    return static_cast<int>(area.bottom);
}

LOGFONTW fontOf(HWND control)
{
    LOGFONTW look = {};
    const auto font =
        reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)); // NOLINT: a handle
    GetObjectW(font, sizeof look, &look);
    return look;
}

/// In which the system's narrow functions write dates and times.
UINT codePageOfRegion()
{
    DWORD codePage = 0;
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<wchar_t*>(&codePage), // NOLINT: the flag makes it a number
                   sizeof codePage / sizeof(wchar_t));
    return codePage;
}

/// What a control's colour message is answered with.
INT_PTR inColours(HDC dc, COLORREF text, int background)
{
    SetTextColor(dc, text);
    SetBkColor(dc, GetSysColor(background));
    return reinterpret_cast<INT_PTR>(GetSysColorBrush(background)); // NOLINT: a handle
}

} // namespace

bool BedsideDialog::show()
{
    const INITCOMMONCONTROLSEX links = {sizeof links, ICC_LINK_CLASS};
    InitCommonControlsEx(&links);
    const INT_PTR result = Native::runModalDialog(*this, BEDSIDE_DIALOG, nullptr);
    timer_.reset();
    return result == closed;
}

INT_PTR BedsideDialog::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_INITDIALOG:
        begin();
        return TRUE; // the first control gets the focus
    case WM_COMMAND:
        command(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_TIMER:
        tick();
        return TRUE;
    case WM_DRAWITEM:
        return draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); // NOLINT: by its message
    case WM_CTLCOLORSTATIC:
        return colour(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)); // NOLINT
    case WM_NOTIFY:
        openLink(*reinterpret_cast<const NMHDR*>(lParam)); // NOLINT: by its message
        return TRUE;
    case WM_EXITSIZEMOVE: // perhaps to another monitor
    case WM_DISPLAYCHANGE:
        InvalidateRect(control(ID_RULER), nullptr, TRUE);
        return TRUE;
    default:
        return FALSE;
    }
}

void BedsideDialog::begin()
{
    constexpr UINT everySecond = 1000;
    const LOGFONTW font = fontOf(window());
    emphasise(control(ID_PATIENT_NAME), nameFont_, font.lfFaceName, MulDiv(font.lfHeight, 9, 8));
    emphasise(control(ID_RATE), rateFont_, font.lfFaceName, -heightOf(control(ID_RATE)) / 2);
    showDialogTexts(window(), usualPatientKg);
    fillOrderControls(window(), usualPatientKg);
    for (const Panel& panel : panels())
        addChoice(window(), ID_PANEL, tr(panel.name), static_cast<int>(panel.panel));
    choose(window(), ID_PANEL,
           static_cast<int>(Pelmora::VenousPanels::COMPREHENSIVE_METABOLIC_PANEL));
    showPanel();
    answer();
    tick();
    timer_.emplace(window(), everySecond);
}

void BedsideDialog::command(int number, int notification)
{
    if (number == IDCANCEL)
        end(closed);
    else if (number == ID_START)
        start();
    else if (number == ID_STOP)
        stop();
    else if (number == ID_PANEL && notification == CBN_SELCHANGE)
        showPanel();
    else if (number == ID_DRUG && notification == CBN_SELCHANGE)
        enterPreset(window());
    if (changesOrder(number, notification))
        answer();
}

void BedsideDialog::answer()
{
    if (started_)
        return;
    const OrderAnswer answer = answerOrder(orderFields(window()));
    infusion_ = answer.infusion;
    ranBefore_ = {};
    showText(window(), ID_RATE, answer.pumpRate);
    showText(window(), ID_ORDERED, answer.dose);
    showText(window(), ID_STRENGTH, answer.concentration);
    showText(window(), ID_ERROR, answer.error);
    showText(window(), ID_GIVEN, noResult());
    showText(window(), ID_LASTS, infusion_ ? infusion_->lastsAfter({}) : noResult());
    showText(window(), ID_START, tr("Start"));
    showText(window(), ID_PUMP_GROUP, tr("Infusion pump: stopped"));
    enableWeight(window());
    Native::enableControl(control(ID_START), infusion_.has_value());
}

void BedsideDialog::start()
{
    if (!infusion_ || started_)
        return;
    if (isEmpty()) {
        answer(); // the same order, and a new bag
        return;
    }
    started_ = Clock::now();
    exchange(window(), ID_START, ID_STOP);
    lockOrder(window(), true);
    showText(window(), ID_PUMP_GROUP, tr("Infusion pump: running"));
    InvalidateRect(control(ID_RATE), nullptr, TRUE); // in another colour
    showRunning();
}

void BedsideDialog::stop()
{
    if (!started_)
        return;
    ranBefore_ = ran();
    started_.reset();
    showRunning();
    exchange(window(), ID_STOP, ID_START);
    lockOrder(window(), false);
    showText(window(), ID_PUMP_GROUP, tr("Infusion pump: stopped"));
    if (isEmpty()) {
        showText(window(), ID_RATE, tr("Bag empty"));
        showText(window(), ID_START, tr("New bag"));
    }
    InvalidateRect(control(ID_RATE), nullptr, TRUE); // in another colour
}

BedsideDialog::Clock::duration BedsideDialog::ran() const
{
    return started_ ? ranBefore_ + (Clock::now() - *started_) : ranBefore_;
}

bool BedsideDialog::isEmpty() const
{
    return infusion_ && infusion_->isEmptyAfter(ran());
}

void BedsideDialog::showRunning()
{
    constexpr int decimals = 2;
    showText(window(), ID_GIVEN, infusion_->givenAfter(ran()).ToString(decimals));
    showText(window(), ID_LASTS, infusion_->lastsAfter(ran()));
}

void BedsideDialog::tick()
{
    const std::string now = Native::currentDateText(true) + "  " + Native::currentTimeText(true);
    showText(window(), ID_CLOCK, GString(now, codePageOfRegion()));
    if (!started_)
        return;
    if (isEmpty())
        stop();
    else
        showRunning();
}

void BedsideDialog::showPanel()
{
    const auto panel = static_cast<Pelmora::VenousPanels>(chosen(window(), ID_PANEL));
    std::vector<LabText> rows = labTexts(panel);
    const auto filled = static_cast<int>(rows.size());
    rows.resize(mostLabTexts);
    for (int i = 0; i < mostLabTexts; ++i) {
        const LabText& row = rows[static_cast<std::size_t>(i)];
        showText(window(), ID_LAB_NAMES + i, row.name);
        showText(window(), ID_LAB_VALUES + i, row.value);
        Native::showControl(control(ID_LAB_NAMES + i), i < filled);
        Native::showControl(control(ID_LAB_VALUES + i), i < filled);
    }
}

INT_PTR BedsideDialog::draw(const DRAWITEMSTRUCT& item) const
{
    if (item.CtlID == ID_PICTURE)
        drawPatient(item.hDC, item.rcItem);
    else if (item.CtlID == ID_RULER)
        drawRuler(item.hDC, item.rcItem, window());
    return TRUE;
}

INT_PTR BedsideDialog::colour(HDC dc, HWND shown) const
{
    constexpr COLORREF alarmRed = RGB(190, 20, 20);
    constexpr COLORREF stoppedBlue = RGB(12, 64, 120);
    constexpr COLORREF runningGreen = RGB(0, 112, 60);
    switch (GetDlgCtrlID(shown)) {
    case ID_ERROR:
        return inColours(dc, alarmRed, COLOR_BTNFACE);
    case ID_RATE:
        if (isEmpty())
            return inColours(dc, alarmRed, COLOR_WINDOW);
        return inColours(dc, started_ ? runningGreen : stoppedBlue, COLOR_WINDOW);
    default:
        return FALSE;
    }
}

void BedsideDialog::openLink(const NMHDR& notification) const
{
    if (notification.idFrom != ID_LINK ||
        (notification.code != NM_CLICK && notification.code != NM_RETURN))
        return;
    const auto& link = reinterpret_cast<const NMLINK&>(notification); // NOLINT: by its code
    const auto file = L'"' + Native::Formatter::unescape(WideView(link.item.szUrl)) + L'"';
    // Not by the file's kind, which not every system knows how to open.
    ShellExecuteW(window(), nullptr, L"notepad.exe", file.c_str(), nullptr, SW_SHOWNORMAL);
}

} // namespace Bedside
