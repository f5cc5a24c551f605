// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "processes/processtesting.h"

#include <string>

namespace testing_processes {

inline constexpr char badFwType[] = "StopCmd: invalid fw stop type value";
inline constexpr char badSwType[] = "StopCmd: invalid sw stop type value";

/** What the two classes of commands have in common. */
template <class Command>
CommandFacts stopFacts(const std::string &className)
{
    CommandFacts facts(formsOf<Command>());
    facts.catalogue = {"STOP", 7, "0003", 0};
    facts.valueFunction = className + "::" + className + "(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = className + "::" + className + "(QList<QVariant>)";
    facts.arguments = {optional(Integer, {"DE01332", "DE01332", badFwType})
                           .outOfRange({-1, 4, 245}, {"DE01332", "DE01332", badFwType})
                           .takes({0, 3}),
                       optional(Integer, {"DE01334", "DE01334", badSwType})
                           .outOfRange({-1, 3, 245}, {"DE01334", "DE01334", badSwType})
                           .takes({0, 2})};
    facts.getters = {getter(&Command::fwStopType), getter(&Command::swStopType)};
    facts.words = {"Stop", "Stop in progress"};
    facts.defaults = Request().parameters({0, 0}).written("[0, 0]");
    facts.requests = {
        Request({3, 2}).template typed<Command>(3, 2).written("[3, 2]"),
        Request({1, 0}).template typed<Command>(1, 0).written("[1, 0]"),
        Request({2}).parameters({2, 0}).written("[2, 0]"),
        Request(List{}).parameters({0, 0}).written("[0, 0]"),
    };
    for (const int type : {-1, 4})
        facts.typedRefusals.push_back(
            {made<Command>(type, 7), {"DE01332", badFwType}, "StopCmd::StopCmd(int, int)"});
    for (const int type : {-1, 3})
        facts.typedRefusals.push_back(
            {made<Command>(3, type), {"DE01334", badSwType}, "StopCmd::StopCmd(int, int)"});
    return facts;
}

} // namespace testing_processes
