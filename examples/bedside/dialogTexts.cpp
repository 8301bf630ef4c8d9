#include "dialogTexts.h"

#include "controls.h"
#include "windowText.h"

#include "infusions/units.h"
#include "translation/translation.h"

#include "pelmora/formatter/Formatter.h"
#include "pelmora/gui/textUtil.h"
#include "pelmora/log/LogStream.h"

namespace Bedside
{
namespace
{

using Pelmora::GString;
using Pelmora::WideView;
using Translation::N_;
using Translation::tr;
namespace Native = Pelmora::Native;

struct ControlText {
    int control;
    const char* text;
};

constexpr ControlText controlTexts[] = {
    {ID_PATIENT_GROUP, N_("Patient")},
    {ID_ORDER_GROUP, N_("Infusion order")},
    {ID_DRUG_LABEL, N_("Drug")},
    {ID_DOSE_LABEL, N_("Dose")},
    {ID_WEIGHT_LABEL, N_("Body weight")},
    {ID_AMOUNT_LABEL, N_("Drug in the bag")},
    {ID_VOLUME_LABEL, N_("Bag volume")},
    {ID_PUMP_GROUP, N_("Infusion pump: stopped")},
    {ID_RATE_LABEL, N_("Pump rate")},
    {ID_ORDERED_LABEL, N_("Dose")},
    {ID_STRENGTH_LABEL, N_("Concentration")},
    {ID_GIVEN_LABEL, N_("Given so far")},
    {ID_LASTS_LABEL, N_("Bag lasts")},
    {ID_START, N_("Start")},
    {ID_STOP, N_("Stop")},
    {ID_LAB_GROUP, N_("Laboratory")},
    {ID_PANEL_LABEL, N_("Panel")},
    {IDCANCEL, N_("Close")},
};

GString escaped(const GString& text)
{
    return Native::Formatter::escape(WideView(text));
}

/// Markup: "Messages go to the <a href="C:\...">error log</a>".
GString logLink()
{
    const GString log =
        Native::makeLink(escaped(tr("error log")), escaped(GString(Native::get_log().path())));
    return GString::format(tr("Messages go to the %s"), log);
}

} // namespace

void showDialogTexts(HWND dialog, double patientKg)
{
    constexpr int patientYears = 54;
    SetWindowTextW(dialog, tr("Bedside").to_w_str());
    for (const ControlText& row : controlTexts)
        showText(dialog, row.control, tr(row.text));
    const Pelmora::UnitValue weight(patientKg, Infusions::kilogramOfPatient());
    showText(dialog, ID_PATIENT_NAME, u"Anna Berg");
    showText(dialog, ID_PATIENT_NOTE,
             GString::format(tr("%d years, %s"), patientYears, weight.ToString(0)));
    showText(dialog, ID_WEIGHT_UNIT, weight.unit->ToString());
    showText(dialog, ID_VOLUME_UNIT, Infusions::millilitre()->ToString());
    showText(dialog, ID_LINK, logLink());
}

} // namespace Bedside
