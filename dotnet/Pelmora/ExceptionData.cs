using System;

namespace Pelmora
{
    /// <summary>A record of one error, warning or debug message, which applications fill and pass
    /// on. Plain data with public fields; every constructor ends by setting
    /// <see cref="mDateTime"/> to the current local time. Without arguments the priority is
    /// <c>PRIO_NONE</c>; every other constructor but the longest sets <c>PRIO_FATAL</c>, on
    /// purpose.</summary>
    [Serializable]
    public partial class ExceptionData
    {
        /// <summary>The application or object that raised the error.</summary>
        public string mSource;
        /// <summary>The method in which it arose.</summary>
        public string mTargetSite;
        /// <summary>The message.</summary>
        public string mMessage;
        /// <summary>The calls that led to it.</summary>
        public string mStackTrace;
        /// <summary>When the record was made, local time.</summary>
        public DateTime mDateTime;
        /// <summary>How grave it is.</summary>
        public prio_enum mPriority;
        /// <summary>What it is.</summary>
        public type_enum mType;
        /// <summary>Where the report is to go.</summary>
        public string mDestination;
        /// <summary>Anything more.</summary>
        public string mParameters;

        /// <summary>Empty texts, <c>PRIO_NONE</c>, <c>TYPE_EXCEPTION</c>.</summary>
        public ExceptionData()
            : this("", "", "", "", prio_enum.PRIO_NONE, "", type_enum.TYPE_EXCEPTION, "")
        {
        }

        /// <summary>What an exception that was thrown says of itself; its source and stack may be
        /// null.</summary>
        /// <exception cref="NullReferenceException">The exception was never thrown, so that it has
        /// no target site.</exception>
        public ExceptionData(Exception aException)
            : this(aException.Message, aException.Source, aException.StackTrace,
                aException.TargetSite.ToString())
        {
        }

        /// <summary>The message alone.</summary>
        public ExceptionData(string aMsg) : this(aMsg, "", "", "")
        {
        }

        /// <summary>Message, source, stack and target site.</summary>
        public ExceptionData(string aMsg, string aSource, string aStackTrace, string aTargetSite)
            : this(aMsg, aSource, aStackTrace, aTargetSite, prio_enum.PRIO_FATAL, "",
                type_enum.TYPE_EXCEPTION, "")
        {
        }

        /// <summary>Every field. Mind the order at the end: parameters, type, destination.
        /// </summary>
        public ExceptionData(string aMsg, string aSource, string aStackTrace, string aTargetSite,
            prio_enum aPrio, string aParameters, type_enum aType, string aDestination)
        {
            mSource = aSource;
            mTargetSite = aTargetSite;
            mMessage = aMsg;
            mStackTrace = aStackTrace;
            mPriority = aPrio;
            mType = aType;
            mDestination = aDestination;
            mParameters = aParameters;
            mDateTime = DateTime.Now;
        }
    }
}
