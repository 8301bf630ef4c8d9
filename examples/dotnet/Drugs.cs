using System;
using System.Collections.Generic;
using Pelmora;

namespace Infusions
{
    internal static class Drugs
    {
        private static readonly Dictionary<DrugEnum, string> names =
            new Dictionary<DrugEnum, string>
        {
            { DrugEnum.AMIODARONE, "Amiodarone" },
            { DrugEnum.DILTIAZEM, "Diltiazem" },
            { DrugEnum.DOBUTAMINE, "Dobutamine" },
            { DrugEnum.DOPAMINE, "Dopamine" },
            { DrugEnum.EPINEPHRINE, "Epinephrine" },
            { DrugEnum.ESMOLOL, "Esmolol" },
            { DrugEnum.FENTANYL, "Fentanyl" },
            { DrugEnum.GTN, "Glyceryl trinitrate" },
            { DrugEnum.HEPARIN, "Heparin" },
            { DrugEnum.INSULIN, "Insulin" },
            { DrugEnum.KETAMIN, "Ketamine" },
            { DrugEnum.LIDOCAINE, "Lidocaine" },
            { DrugEnum.MAGNESIUM, "Magnesium" },
            { DrugEnum.MIDAZOLAM, "Midazolam" },
            { DrugEnum.MILRINONE, "Milrinone" },
            { DrugEnum.MORPHINE, "Morphine" },
            { DrugEnum.NOREPINEPHRINE, "Norepinephrine" },
            { DrugEnum.PROPOFOL, "Propofol" },
            { DrugEnum.SODIUM_NITROPRUSSIDE, "Sodium nitroprusside" },
            { DrugEnum.VASOPRESSIN, "Vasopressin" },
        };

        /// <summary>Whether "DOPAMINE" is a drug given as an infusion, and which.</summary>
        public static bool TryOfName(string vocabularyName, out DrugEnum drug)
        {
            // A number would be taken for a drug as well.
            return Enum.TryParse(vocabularyName, out drug) && drug.ToString() == vocabularyName &&
                names.ContainsKey(drug);
        }

        /// <summary>How the drug is called on screen, in the language of the user.</summary>
        public static string DisplayName(DrugEnum drug)
        {
            return Language.tr(names[drug]);
        }
    }
}
