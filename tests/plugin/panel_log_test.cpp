// SPDX-License-Identifier: GPL-2.0-or-later
// How the log describes dictionaries and null.
#include "plugin/PanelLog.h"

#include <QObject>
#include <gtest/gtest.h>

namespace {

TEST(PanelLog, DescribesDictionariesAndNull)
{
    EXPECT_EQ(bv::formatLog("%@", {bv::LogArgument(static_cast<const QObject *>(nullptr))}), "(null)");

    const auto inner = std::make_shared<bv::PrintDictionary>();
    inner->setValue("n", bv::PrintValue::integer(3));
    bv::PrintDictionary outer;
    outer.setValue("a", bv::PrintValue(bv::PrintArray{bv::PrintValue("x"), bv::PrintValue::boolean(true)}));
    outer.setValue("d", inner);
    EXPECT_EQ(bv::formatLog("%@", {bv::LogArgument(outer)}), R"({a = ("x", true); d = {n = 3}})");
    EXPECT_EQ(bv::formatLog("[%@]", {bv::LogArgument(QStringLiteral("gr\u00FCn"))}), "[gr\u00FCn]");
}

} // namespace
