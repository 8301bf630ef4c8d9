#pragma once

#include "pelmora/units/unitKinds.h"

#include <cstdint>

// The shared vocabulary of the simulators: stable numbers for drugs, routes, laboratory values and
// the like. Programs store these numbers and exchange them, so a value never changes, gaps and
// duplicates included; new members are only ever added after the last ordinary one. There are no
// display texts here: an application that shows the members brings its own.

namespace Pelmora
{

/// The drugs. The names are the applications' identifiers, with their spellings and their retired
/// slots, which keep their places so that later values do not move.
enum class DrugEnum : std::int32_t {
    ACETYLSALICYLIC = 0,
    CHARCOAL = 1,
    ADENOSINE = 2,
    ALNOTOX = 3,
    AMINOPHYLINE = 4,
    AMIODARONE = 5,
    ATROPINE = 6,
    BRETYLIUM_NOT_USED = 7,
    CALCIUM = 8,
    DEXTROSE_NOT_USED = 9,
    DIAZEPAM = 10,
    DIPHENHYDRAMINE = 11,
    DOBUTAMINE = 12,
    DOPAMINE = 13,
    EPINEPHRINE = 14,
    FLUMAZENIL = 15,
    FUROSEMID = 16,
    GLUCAGON = 17,
    GLUCOSE = 18,
    GTN = 19,
    HAES = 20,
    HALOPERIDOL = 21,
    INSULIN = 22,
    IPRATROPIUM = 23,
    LABETALOL = 24,
    LIDOCAINE = 25,
    MAGNESIUM = 26,
    METHYLPREDNISOLONE = 27,
    MORPHINE = 28,
    NALOXONE = 29,
    NIFEDIPINE = 30,
    NOREPINEPHRINE = 31,
    KCL = 32,
    PROCAINAMIDE = 33,
    PROMETHAZINE = 34,
    RINGER_LACTATE = 35,
    SALBUTAMOL = 36,
    SALINE = 37,
    WARM_SALINE = 38,
    SODIUM_BICARBONATE = 39,
    SYRUP = 40,
    TERBUTALINE = 41,
    THIAMIN = 42,
    VASOPRESSIN = 43,
    VERAPAMIL = 44,
    CLONAZEPAM = 45,
    DEXAMETHASON = 46,
    DIMETHYLAMINOPHENOL = 47,
    ESMOLOL = 48,
    FENTANYL = 49,
    FYSIOSTIGMIN = 50,
    KETAMIN = 51,
    METOCLOPRAMID = 52,
    MIDAZOLAM = 53,
    NATRIUMTHIOSULFAT = 54,
    OBIDOXIM = 55,
    PANCURONIUM = 56,
    PREDNISOLON = 57,
    PROPANOLOL = 58,
    SCOPOLAMIN = 59,
    SOTALOL = 60,
    SUXAMETHONIUM = 61,
    DILTIAZEM = 62,
    PROPOFOL = 63,
    DIGOXIN = 64,
    FLECAINIDE = 65,
    QUINIDINE = 66,
    KAYEXALATE = 67,
    GLUCOSE_INSULIN = 68,
    ENALAPRIL = 69,
    RAMIPRIL = 70,
    CAPTOPRIL = 71,
    LISINOPRIL = 72,
    AMRINONE = 73,
    CLOPIDOGREL = 74,
    TICLOPIDINE = 75,
    DIPYRIDAMOL = 76,
    DIGIBIND = 77,
    ABCIXIMAB = 78,
    TIROFIBAN = 79,
    EPTIFIBITIDE = 80,
    HEPARIN = 81,
    ISOPRENALINE = 82,
    DALTEPARIN = 83,
    NADROPARIN = 84,
    ENOXAPARIN = 85,
    MANNITOL = 86,
    PROTAMINE = 87,
    SODIUM_NITROPRUSSIDE = 88,
    TENECTEPLASE = 89,
    RETEPLASE = 90,
    ANISTREPLASE = 91,
    ALTEPLASE = 92,
    STREPTOKINASE = 93,
    EPHEDRINE = 94,
    CUSTOMDRUG1 = 95,
    CUSTOMDRUG2 = 96,
    CUSTOMDRUG3 = 97,
    CUSTOMDRUG4 = 98,
    SODIUM_NITRITE = 99,
    PENICILLIN = 100,
    DOXYCYCLINE = 101,
    CEFAZOLIN = 102,
    IBUPROFEN = 103,
    PARACETAMOL = 104,
    CIPROFLOXACIN = 105,
    TETANUS_TOXOID = 106,
    TETANUS_IMMUNOGLOBULIN = 107,
    ATNAA = 108,
    ATENOLOL = 109,
    METOPROLOL = 110,
    HYDROCORTISONE = 111,
    BETAMETHASONE = 112,
    ETOMIDATE = 113,
    COLD_SALINE = 114,
    ANTIBIOTICS = 115,
    WARM_RINGER_LACTATE = 116,
    VOLUVEN = 117,
    DEXTRAN = 118,
    SAG_M = 119,
    FRESH_FROZEN_PLASMA = 120,
    THROMBOCYTES = 121,
    BUDESONIDE = 122,
    VECURONIUM = 123,
    EPINEPHRINE_RACEMIC = 124,
    THIOPENTAL = 125,
    HYPERTONIC_SALINE = 126,
    DEX5NS = 127,
    METHOXYFLURANE = 128,
    METARAMINOL = 129,
    NEOSYNEPHRINE = 130,
    FACTORVII = 131,
    PROMITEN = 132,
    MILRINONE = 133,
    ROCURONIUM = 134,
    CEFTRIAXONE = 135,
    ONDANSETRON = 136,
    CIMETIDINE = 137,
    INSULININTERMEDIATE = 138,
    INSULINLONG = 139,
    PHENYTOIN = 140,
    DEX5NSKCL = 141,
    NSKCL = 142,
    OMEPRAZOLE = 143,
    ESOMEPRAZOLE = 144,
    HYDROMORPHONE = 145,
    NATRECOR = 146,
    CALCIUMGLUCONATE = 147,
    PHENOBARBITAL = 148,
    LORAZEPAM = 149,
    NUMBER_OF = 150,
};

/// The classes into which drugs are grouped. `end` is one past the last class; `size` is 23, not
/// 22, on purpose.
enum class DrugCategory : std::int32_t {
    uninitialized = -1,
    analgesic = 0,
    anesthetics = 1,
    antiarr = 2,
    antibiotics = 3,
    anticoagulantia = 4,
    antagonist = 5,
    antiallergic = 6,
    antipsychotic = 7,
    antithrombotic = 8,
    cv = 9,
    diuretic = 10,
    electrolyte = 11,
    emetic = 12,
    fibrinolytics = 13,
    fluid = 14,
    glucosereg = 15,
    hypnotic = 16,
    pulmonary = 17,
    steroid = 18,
    vitamin = 19,
    other = 20,
    end = 21,
    size = 23,
};

/// The picture that shows the administration route in focus.
enum class FocusPictureType : std::int32_t {
    PICT_NONE = 0,
    PICT_BOLUS = 1,
    PICT_BOLUSIM = 2,
    PICT_NEBULIZER = 3,
    PICT_EPIPEN = 4,
    PICT_RECTAL = 5,
    PICT_ORAL = 6,
    PICT_ORAL_GLUC = 7,
    PICT_SPRAY = 8,
    PICT_ENDOTRACH = 9,
    PICT_SUBCUTAN = 10,
    PICT_INFUSION = 11,
    PICT_DRINK = 12,
    PICT_AUTOINJECTOR = 13,
    PICT_INHALER = 14,
    PICT_GASTRIC_TUBE = 15,
    PICT_AUTOINJECTOR_ATROPINE = 16,
    PICT_AUTOINJECTOR_DIAZEPAM = 17,
    PICT_AUTOINJECTOR_OBIDOXIM = 18,
    PICT_AUTOINJECTOR_ATNAA = 19,
    PICT_DERMAL_PASTE = 20,
    PICT_DERMAL_PATCH = 21,
};

/// The administration routes.
enum class AdminType : std::int32_t {
    FLUID = 0,
    BOLUS = 1,
    RECTAL = 2,
    INTRAMUSCULAR = 3,
    ORAL = 4,
    ENDOTRACHEAL = 5,
    SUBCUTAN = 6,
    NEBULIZED = 7,
    GAS = 8,
    SPRAY = 9,
    MEDICINE_INFUSION = 10,
    AUTO_INJECTION = 11,
    GASTRIC_TUBE = 12,
    BOLUS_LARGE = 13,
    BOLUS_ALTERNATE_CONCENTRATION = 14,
    DERMAL = 15,
    ADMIN_NUMBER_OF = 16,
};

/// The class of dose unit offered for a drug.
enum class UnitType : std::int32_t {
    UNITS_BOLUS = 0,
    UNITS_PROCENT = 1,
    UNITS_IU = 2,
    UNITS_U = 3,
    UNITS_RATES = 4,
    UNITS_RATES_IU = 5,
    UNITS_RATES_GRAM = 6,
    UNITS_GRAM = 7,
    UNITS_MASS_AND_L_TIME = 8,
    UNITS_DERMAL = 9,
    UNITS_NUMBER_OF = 10,
};

/// The laboratory values.
enum class BloodLab : std::int32_t {
    NO_LABS = 0,
    EMPTY_LAB = 1,
    NA_LAB = 2,
    KPLUS_LAB = 3,
    CL_LAB = 4,
    UREA_LAB = 5,
    CREATININE_LAB = 6,
    GLUCOSE_LAB = 7,
    TSI_LAB = 8,
    TIBC_LAB = 9,
    FERRITIN_LAB = 10,
    AMMONIA_LAB = 11,
    LACTATE_LAB = 12,
    HCO3_LAB = 13,
    PROTEIN_LAB = 14,
    ALBUMIN_LAB = 15,
    BILIRUBIN_LAB = 16,
    ALT_LAB = 17,
    ALP_LAB = 18,
    AST_LAB = 19,
    CKMB_LAB = 20,
    TROPONIN_LAB = 21,
    TROPONIN_SIMPLE_LAB = 22,
    BNP_LAB = 23,
    CRP_LAB = 24,
    AMYLASE_LAB = 25,
    D_DIMER_LAB = 26,
    LIPASE_LAB = 27,
    CALCIUM_ION_LAB = 28,
    CALCIUM_TOT_LAB = 29,
    MAGNESIUM_LAB = 30,
    TRIGLYCERIDES_LAB = 31,
    CHOLESTOROL_TOT_LAB = 32,
    CHOLESTOROL_HDL_LAB = 33,
    CHOLESTOROL_LDL_LAB = 34,
    TSH_LAB = 35,
    ACETAMINOPHEN_LAB = 36,
    AMITRIPTYLINE_LAB = 37,
    SERUM_ALCOHOL_LAB = 38,
    NORTRIPTYLINE_LAB = 39,
    SALICYLATES_LAB = 40,
    THEOPHYLINE_LAB = 41,
    DIGOXIN_LAB = 42,
    HB_LAB = 43,
    HCT_LAB = 44,
    WBC_LAB = 45,
    PLATELETS_LAB = 46,
    APTT_LAB = 47,
    PT_LAB = 48,
    INR_LAB = 49,
    FIBRINOGEN_LAB = 50,
    PH_LAB = 51,
    BASE_EXCESS_LAB = 52,
    PCO2_LAB = 53,
    PO2_LAB = 54,
    SAO2_LAB = 55,
    GLUCOSE_ARTERIAL_LAB = 56,
    COHB_LAB = 57,
    CA_LAB = 58,
    ALL_LABS = 65535,
};

/// The laboratory panels, one bit each, to be combined with |. `ALL_PANELS` has all sixteen low
/// bits, not just those of the seven panels.
enum class VenousPanels : std::int32_t {
    NO_PANEL = 0,
    COMPREHENSIVE_METABOLIC_PANEL = 1,
    BASIC_METABOLIC_PANEL = 2,
    ELECTROLYTE_PANEL = 4,
    LIVER_PANEL = 8,
    LIPID_PANEL = 16,
    COMPLETE_BLOOD_COUNT = 32,
    COAGULATION_PANEL = 64,
    ALL_PANELS = 65535,
};

/// All panels of both.
constexpr VenousPanels operator|(VenousPanels a, VenousPanels b) noexcept
{
    return static_cast<VenousPanels>(static_cast<std::int32_t>(a) | static_cast<std::int32_t>(b));
}

/// The panels that are in both.
constexpr VenousPanels operator&(VenousPanels a, VenousPanels b) noexcept
{
    return static_cast<VenousPanels>(static_cast<std::int32_t>(a) & static_cast<std::int32_t>(b));
}

/// The groups under which events are registered.
enum class EventRegistrationDataSet : std::int32_t {
    ABC = 0,
    MISC = 1,
    MED = 2,
};

/// The base units of the units engine, from 0 `UNIT_G` to 14 `UNIT_NUMBER_OF`, and its decimal
/// prefixes, from -3 `NANO` to 3 `GIGA`: one type each for both layers, listed in unitKinds.h.
using Native::UnitPrefix;
using Native::UnitTypeEnum;

/// The enumerations of an error report, which `ExceptionData` makes its own:
/// `ExceptionData::prio_enum` and `ExceptionData::type_enum`.
struct ExceptionDataEnums {
    /// The priority of a report. There is no value 1, on purpose.
    enum class prio_enum : std::int32_t {
        PRIO_NONE = 0,
        PRIO_NOTE = 2,
        PRIO_WARNING = 3,
        PRIO_ERROR = 4,
        PRIO_CRITICAL = 5,
        PRIO_FATAL = 6,
        PRIO_EXCEPTION = 7,
        PRIO_ASSERT = 8,
        PRIO_TRACE = 9,
    };

    /// The kind of a report.
    enum class type_enum : std::int32_t {
        TYPE_EXCEPTION = 0,
        TYPE_CLIENTWARNING = 1,
        TYPE_DEBUGMESSAGE = 2,
    };
};

} // namespace Pelmora
