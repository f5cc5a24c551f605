// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescancmd.h"

#include "base/commandcontract.h"
#include "firmware/firmwarescantesting.h"

#include <type_traits>

namespace {

using namespace testing_firmware;

CommandFacts facts()
{
    CommandFacts facts(formsOf<FirmwareScanCmd>());
    facts.catalogue = {"FW_SCAN", 37, "0022", 0};
    facts.protoType = 1;
    facts.valueFunction = "FirmwareScanCmd::FirmwareScanCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "FirmwareScanCmd::FirmwareScanCmd(QList<QVariant>)";
    facts.words = scanning();
    facts.defaults = Request().written("[]");
    facts.requests = {Request(List{}).typed<FirmwareScanCmd>().written("[]")};
    facts.answers = scanAnswers();
    return facts;
}

TEST(FirmwareScanCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(FirmwareScanCmd, readsNoArguments)
{
    EXPECT_EQ(FirmwareScanCmd(arrayOf(5, "x")).parameters(), List());
    EXPECT_EQ(FirmwareScanCmd(List{5, "x"}).parameters(), List());
    static_assert(!std::is_constructible_v<FirmwareScanCmd, int>);
    static_assert(!std::is_constructible_v<FirmwareScanCmd, const char *>);
}

} // namespace
