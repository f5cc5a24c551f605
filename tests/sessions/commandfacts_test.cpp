// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/factlines.h"

// By what names people give the arguments of this family's commands.

namespace {

using namespace testing_base;

Lines namesOf(const char *command)
{
    Lines names;
    for (const quv::ArgumentFacts &argument : quv::commandFacts(command).arguments)
        names.push_back(argument.name.toStdString());
    return names;
}

TEST(SessionFacts, nameTheArguments)
{
    EXPECT_EQ(namesOf("LOGIN"), (Lines{"machine_id", "client_name", "client_level", "device_type"}));
    EXPECT_EQ(namesOf("GET_KEY"), (Lines{"session_id", "client_key"}));
    EXPECT_EQ(namesOf("CERTIFY_SESSION"), (Lines{"session_id", "shared_key"}));
    EXPECT_EQ(namesOf("LOGOUT"), (Lines{"session_id"}));
}

} // namespace
