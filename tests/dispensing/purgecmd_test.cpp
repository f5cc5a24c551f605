// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgecmd.h"

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

namespace {

using namespace testing_dispensing;

CommandFacts facts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<PurgeCmd>(machine));
    facts.catalogue = {"PURGE", 17, "0017", 1};
    facts.protoType = 1;
    facts.readsByHand = true; // reads nothing, which its base does
    facts.words = {"Purge", "Purge in progress"};
    facts.defaults = Request().written("[]");
    facts.requests = {
        Request().onlyTyped().notReadBack().typed<PurgeCmd>(machine).written("[]"),
        Request({"anything"}).onlyFromValue().notReadBack().parameters({}).written("[]"),
        Request({1}).onlyFromList().notReadBack().written("[]"),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(PurgeCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = dispenser();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

} // namespace
