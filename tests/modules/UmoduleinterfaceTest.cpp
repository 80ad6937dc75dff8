#include "modules/Umoduleinterface.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(ModuleInstance, HoldsEveryRightUntilRightsAreGiven) {
    TModuleInstance module(nullptr, {u"X"_s, u"X"_s, {}});
    EXPECT_TRUE(module.GetRight(u"Delete"_s));
    module.SetRights({u"New"_s});
    EXPECT_TRUE(module.GetRight(u"New"_s));
    EXPECT_FALSE(module.GetRight(u"new"_s));
    EXPECT_FALSE(module.GetRight(u"Delete"_s));
}

TEST(ModuleInstance, FormatsValuesAndQuantitiesByTag) {
    TModuleInstance module(nullptr, {});
    EXPECT_EQ(module.DisplayFormat(2), u"#,##0.00"_s);
    EXPECT_EQ(module.DisplayFormat(3), u"#,##0.000"_s);
    module.SetDecimals(4, 0);
    EXPECT_EQ(module.DisplayFormat(2), u"#,##0.0000"_s);
    EXPECT_EQ(module.DisplayFormat(3), u"#,##0"_s);
}
