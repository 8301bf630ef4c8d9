#include "pelmora/log/osVersion.h"

#include <tuple>

#include <gtest/gtest.h>

namespace Pelmora::Native
{
namespace
{

TEST(OsVersion, DescriptionsAreByNameUpToVistaThenByNumber)
{
    const std::tuple<OsVersion, const char*> rows[] = {
        {{0, 3, 11, 5, ""}, "Win32s"},
        {{1, 4, 0, 950, ""}, "Windows 95"},
        {{1, 4, 0, 950, " C"}, "Windows 95 OSR2"},
        {{1, 4, 0, 950, " B "}, "Windows 95 OSR2"},
        {{1, 4, 0, 950, "C"}, "Windows 95"},
        {{1, 4, 0, 950, " A"}, "Windows 95"},
        {{1, 4, 10, 2222, " A"}, "Windows 98 SE"},
        {{1, 4, 10, 2222, " B"}, "Windows 98"},
        {{1, 4, 90, 3000, " A"}, "Windows ME"},
        {{1, 4, 5, 1, " A"}, "Windows 9x 4.5"},
        {{2, 3, 51, 1057, "Service Pack 5"}, "Windows NT 3.51 Service Pack 5 (Build 1057)"},
        {{2, 4, 0, 1381, ""}, "Windows NT 4.0  (Build 1381)"},
        {{2, 5, 0, 2195, ""}, "Windows 2000  (Build 2195)"},
        {{2, 5, 1, 0x0A280A28, "Service Pack 3"}, "Windows XP Service Pack 3 (Build 2600)"},
        {{2, 5, 2, 3790, ""}, "Windows Server 2003  (Build 3790)"},
        {{2, 5, 3, 1, ""}, "Windows 5.3  (Build 1)"},
        {{2, 6, 1, 7601, ""}, "Windows Vista  (Build 7601)"},
        {{2, 6, 99, 1, "x"}, "Windows Vista x (Build 1)"},
        {{2, 10, 0, 19045, ""}, "Windows 10.0  (Build 19045)"},
        {{3, 4, 0, 1, " C"}, "Platform 3"},
        {{0xFFFFFFFF, 4, 0, 1, ""}, "Platform 4294967295"},
    };
    for (const auto& [version, text] : rows)
        EXPECT_EQ(osDescription(version), text);
}

} // namespace
} // namespace Pelmora::Native
