#pragma once

#include "Infusion.h"
#include "Timer.h"

#include "pelmora/gui/FontUtil.h"
#include "pelmora/gui/ModalDialog.h"

#include <chrono>
#include <optional>

namespace Bedside
{

/// The window at which an instructor orders an infusion for a patient, starts and stops it, and
/// looks at the laboratory's values.
class BedsideDialog : public Pelmora::Native::ModalDialog
{
public:
    /// Shows the window until it is closed; false when it cannot be shown.
    bool show();

protected:
    INT_PTR handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    using Clock = std::chrono::steady_clock;

    HWND control(int number) const { return GetDlgItem(window(), number); }
    void begin();
    void command(int number, int notification);
    void tick();
    INT_PTR draw(const DRAWITEMSTRUCT& item) const;
    INT_PTR colour(HDC dc, HWND shown) const;
    void answer();
    void start();
    void stop();
    Clock::duration ran() const;
    bool isEmpty() const;
    void showRunning();
    void showPanel();
    void openLink(const NMHDR& notification) const;

    Pelmora::Native::Font nameFont_;
    Pelmora::Native::Font rateFont_;
    std::optional<Timer> timer_;
    std::optional<Infusion> infusion_; ///< that can be started, or runs
    std::optional<Clock::time_point> started_;
    Clock::duration ranBefore_ = {}; ///< the same order, before it was stopped
};

} // namespace Bedside
