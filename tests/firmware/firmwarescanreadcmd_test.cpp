// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescanreadcmd.h"

#include "firmware/firmwarescantesting.h"

#include <type_traits>

namespace {

using namespace testing_firmware;

CommandFacts facts()
{
    CommandFacts facts(formsOf<FirmwareScanReadCmd>());
    facts.forms.ofValue = nullptr; // there is no list form beside it
    facts.catalogue = {"FW_SCAN_READ", 39, "0022", 0};
    facts.protoType = 1;
    facts.takesNothing = true;
    facts.words = scanning();
    facts.defaults = Request().written("[]").sends({2});
    facts.requests = {
        Request().onlyTyped().notReadBack().typed<FirmwareScanReadCmd>().written("[]").sends({2})};
    facts.answers = scanAnswers();
    return facts;
}

TEST(FirmwareScanReadCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(FirmwareScanReadCmd, readsNoArguments)
{
    const FirmwareScanReadCmd command(arrayOf(5, "x"));
    EXPECT_EQ(command.command(), "FW_SCAN_READ");
    EXPECT_EQ(command.parameters(), List());
    EXPECT_EQ(command.serialParameters(2), QList<int>{2});
    static_assert(!std::is_constructible_v<FirmwareScanReadCmd, int>);
    static_assert(!std::is_constructible_v<FirmwareScanReadCmd, List>);
}

} // namespace
