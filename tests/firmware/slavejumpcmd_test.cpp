// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/slavejumpcmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char badAddress[] = "SlaveJumpCmd: invalid slave address parameter";
constexpr char badJump[] = "SlaveJumpCmd: invalid jump type parameter";

CommandFacts facts()
{
    constexpr char ofTyped[] = "SlaveJumpCmd::SlaveJumpCmd(int, int)";
    CommandFacts facts(formsOf<SlaveJumpCmd>());
    facts.catalogue = {"SLAVE_JUMP", 34, "3F79", 2};
    facts.protoType = 1;
    facts.readsByHand = true; // parameters() never has the address
    facts.valueFunction = "SlaveJumpCmd::SlaveJumpCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SlaveJumpCmd::SlaveJumpCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE00945", "DE00949", "SlaveJumpCmd: board type: expected INT parameter"})
            .outOfRange({-1, 0, 216, 245}, {"DE00944", "DE00950", badAddress}),
        required(Integer, {"DE00947", "DE00951", "SlaveJumpCmd: board address: expected INT parameter"})
            .outOfRange({-1, 0, 1, 4}, {"DE00946", "DE00952", badJump})};
    facts.getters = {getter(&SlaveJumpCmd::jumpType)};
    facts.defaults = Request().parameters({-1}).written("[-1]").sends({-1});
    const auto jump = [](int slave, int type) {
        return Request({slave, type})
            .typed<SlaveJumpCmd>(slave, type)
            .parameters({type})
            .written("[" + std::to_string(type) + "]")
            .sends({type})
            .module(slave)
            .notReadBack();
    };
    facts.requests = {jump(17, 3), jump(1, 2), jump(215, 2)};
    for (const int address : {-1, 0, 216})
        facts.typedRefusals.push_back({made<SlaveJumpCmd>(address, 1), {"DE00940", badAddress}, ofTyped});
    for (const int type : {-1, 1, 4})
        facts.typedRefusals.push_back({made<SlaveJumpCmd>(17, type), {"DE00941", badJump}, ofTyped});
    facts.answers = serialAnswers();
    return facts;
}

TEST(SlaveJumpCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SlaveJumpCmd, doesNotReadWhatItWrites)
{
    const SlaveJumpCmd command(17, 3);
    constexpr char tooFew[] = "SLAVE_JUMP command : expected at least 2 parameters, received 1 instead!";
    expectRefusal("DE00312", tooFew,
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [&] { const SlaveJumpCmd again(command.xmlrpc_parameters()); });
    expectRefusal("DE00313", tooFew,
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [&] { const SlaveJumpCmd again(command.parameters()); });
    const SlaveJumpCmd copy(command);
    EXPECT_EQ(copy.moduleID(), 17) << "a copy keeps it";
}

TEST(SlaveJumpCmd, knowsTwoJumps)
{
    for (const int type : {2, 3})
        EXPECT_TRUE(SlaveJumpCmd::checkJumpType(type)) << type;
    for (const int type : {-1, 0, 1, 4})
        EXPECT_FALSE(SlaveJumpCmd::checkJumpType(type)) << type;
    static_assert(!std::is_constructible_v<SlaveJumpCmd, int>);
    static_assert(!std::is_constructible_v<SlaveJumpCmd, const char *>);
}

} // namespace
