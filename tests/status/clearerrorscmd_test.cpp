// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/clearerrorscmd.h"

#include "base/commandcontract.h"
#include "catalogue/protocommandlist.h"

namespace {

using namespace testing_base;

CommandFacts facts()
{
    CommandFacts facts(formsOf<ClearErrorsCmd>());
    facts.catalogue = {"CLEAR_ERRORS", 13, "000C", 0};
    facts.protoType = 1;
    facts.takesNothing = true;
    facts.words = {"Clear errors", "Cleaning hardware errors"};
    facts.defaults = Request().written("[]").sends({0});
    facts.requests = {
        Request().onlyTyped().notReadBack().typed<ClearErrorsCmd>().written("[]").sends({0}),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(ClearErrorsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(ClearErrorsCmd, isMadeByItsNameWhateverIsGiven)
{
    for (Value arguments : {arrayOf(), arrayOf(1, "two"), Value(5), Value()}) {
        SCOPED_TRACE(dumped(arguments));
        const Made command(ProtoCommandList::getProtoCommand("CLEAR_ERRORS", arguments, nullptr));
        ASSERT_NE(dynamic_cast<const ClearErrorsCmd *>(command.get()), nullptr);
        EXPECT_EQ(command->parameters(), List());
        EXPECT_EQ(dumped(command->toXmlRpcValue("")), R"(["CLEAR_ERRORS"])");
    }
    const Made command(ProtoCommandList::getProtoCommand("CLEAR_ERRORS", List{7}, nullptr));
    ASSERT_NE(dynamic_cast<const ClearErrorsCmd *>(command.get()), nullptr);
    EXPECT_EQ(command->parameters(), List());
}

} // namespace
