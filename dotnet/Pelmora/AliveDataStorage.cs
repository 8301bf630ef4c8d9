namespace Pelmora
{
    /// <summary>Four values that the parts of a program share. There is one object, made by the
    /// first <see cref="get"/> and never replaced; its fields are read and written directly,
    /// without a lock or a check.</summary>
    public class AliveDataStorage
    {
        /// <summary>Identifier of the master client.</summary>
        public string mMasterClientId;
        /// <summary>Identifier of the server's user.</summary>
        public string mServerUserId;
        /// <summary>The last physical check.</summary>
        public string mLastPhysicalCheck;
        /// <summary>Whether the values were updated.</summary>
        public bool mUpdated;

        private static AliveDataStorage instance;

        private AliveDataStorage()
        {
            mMasterClientId = "";
            mServerUserId = "";
            mLastPhysicalCheck = "";
        }

        /// <summary>Always the same object. The first call is made by one thread.</summary>
        public static AliveDataStorage get()
        {
            if (instance == null)
                instance = new AliveDataStorage();
            return instance;
        }
    }
}
