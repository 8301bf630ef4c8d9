using System;
using NUnit.Framework;

namespace Pelmora.Tests
{
    using Prio = ExceptionData.prio_enum;
    using Type = ExceptionData.type_enum;

    [TestFixture]
    public class RecordsTest
    {
        [TestCase(typeof(UnitElement), "unitType prefix exponent")]
        [TestCase(typeof(Unit), "elements")]
        [TestCase(typeof(UnitValue), "value unit")]
        [TestCase(typeof(ExceptionData), "mSource mTargetSite mMessage mStackTrace mDateTime " +
            "mPriority mType mDestination mParameters")]
        [TestCase(typeof(AliveDataStorage),
            "mMasterClientId mServerUserId mLastPhysicalCheck mUpdated")]
        [TestCase(typeof(Init), "")]
        [TestCase(typeof(ManagedHTTP.HTTPDownloader), "")]
        [TestCase(typeof(ManagedXML.ManagedXMLParser), "")]
        public void PublicFieldsStandInTheirOrder(System.Type type, string names)
        {
            Assert.AreEqual(names,
                string.Join(" ", Array.ConvertAll(type.GetFields(), field => field.Name)));
        }

        [Test]
        public void WhatEachConstructorOfAReportSets()
        {
            var rows = new[]
            {
                Tuple.Create(new ExceptionData(), "||||||PRIO_NONE|TYPE_EXCEPTION"),
                Tuple.Create(new ExceptionData("msg"), "msg||||||PRIO_FATAL|TYPE_EXCEPTION"),
                Tuple.Create(new ExceptionData("msg", "src", "trace", "site"),
                    "msg|src|trace|site|||PRIO_FATAL|TYPE_EXCEPTION"),
                Tuple.Create(new ExceptionData("msg", "src", "trace", "site", Prio.PRIO_NOTE,
                    "params", Type.TYPE_DEBUGMESSAGE, "dest"),
                    "msg|src|trace|site|params|dest|PRIO_NOTE|TYPE_DEBUGMESSAGE"),
            };
            foreach (var row in rows)
            {
                ExceptionData data = row.Item1;
                Assert.AreEqual(row.Item2, string.Join("|", data.mMessage, data.mSource,
                    data.mStackTrace, data.mTargetSite, data.mParameters, data.mDestination,
                    data.mPriority, data.mType));
                Assert.AreEqual(DateTimeKind.Local, data.mDateTime.Kind);
                Assert.Less((DateTime.Now - data.mDateTime).TotalMinutes, 1);
            }
        }

        [Test]
        public void AReportSaysWhereAnExceptionCameFrom()
        {
            var data = new ExceptionData(Assert.Throws<InvalidOperationException>(
                () => throw new InvalidOperationException("no \u00E9lan") { Source = "ward" }));
            Assert.AreEqual("no \u00E9lan", data.mMessage);
            Assert.AreEqual("ward", data.mSource);
            StringAssert.Contains("AReportSaysWhere", data.mTargetSite);
            StringAssert.Contains("AReportSaysWhere", data.mStackTrace);
            Assert.AreEqual(Prio.PRIO_FATAL, data.mPriority);
            Assert.Throws<NullReferenceException>(() => new ExceptionData(new Exception("new")));
            Assert.Throws<NullReferenceException>(() => new ExceptionData((Exception)null));
        }

        [Test]
        public void AliveDataAreOfOneObject()
        {
            Assert.AreEqual("", AliveDataStorage.get().mServerUserId);
            AliveDataStorage.get().mUpdated = true;
            Assert.True(AliveDataStorage.get().mUpdated);
            Assert.AreEqual(0, typeof(AliveDataStorage).GetConstructors().Length);
        }
    }
}
