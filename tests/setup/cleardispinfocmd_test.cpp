// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/cleardispinfocmd.h"

#include "setup/dispinfotesting.h"

#include <type_traits>

namespace {

using namespace testing_setup;

TEST(ClearDispInfoCmd, keepsTheCommandContract)
{
    CommandFacts facts = dispInfoFacts<ClearDispInfoCmd>({"CLEAR_DISP_INFO", 26, "0077", 1}, 0);
    facts.answers = serialAnswers();
    facts.answers.tokens->failsWith("DE00099", "Failed to create ProtoAnswer");
    expectCommandContract(facts);
}

TEST(ClearDispInfoCmd, doesNotMistakeOtherArgumentsForAType)
{
    static_assert(!std::is_constructible_v<ClearDispInfoCmd, bool>);
    static_assert(!std::is_constructible_v<ClearDispInfoCmd, double>);
    static_assert(!std::is_constructible_v<ClearDispInfoCmd, const char *>);
}

} // namespace
