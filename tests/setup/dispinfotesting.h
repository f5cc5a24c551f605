// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandcontract.h"

// What the tests of the commands share that read, write and clear a text about the machine.

namespace testing_setup {

using namespace testing_base;

inline constexpr char ofDispInfoValue[] =
    "DispInfoCmd::DispInfoCmd(QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
inline constexpr char ofDispInfoList[] =
    "DispInfoCmd::DispInfoCmd(QString, QList<QVariant>, const FW_Machine*)";

inline ArgumentRefusal noInfoType()
{
    return {"DE00304", "DE00306", "Dispenser info type: expected INT parameter"};
}

/** Of a command whose one argument is the info type, and whose second integer is \a action. */
template <class Command>
CommandFacts dispInfoFacts(const CatalogueFacts &catalogue, int action)
{
    CommandFacts facts(formsOf<Command>());
    facts.catalogue = catalogue;
    facts.protoType = 1;
    facts.valueFunction = ofDispInfoValue;
    facts.listFunction = ofDispInfoList;
    facts.arguments = {required(Integer, noInfoType()).takes({0, 1, 6, 7, -1, 300})};
    facts.getters = {getter(&Command::infoType)};
    facts.defaults = Request().parameters({0}).written("[0]").sends({0, action});
    facts.requests = {
        Request({6}).typed<Command>(6).written("[6]").sends({6, action}),
        Request({1}).typed<Command>(1).written("[1]").sends({1, action}),
    };
    return facts;
}

} // namespace testing_setup
