// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/setboardpowercmd.h"

#include "base/commandcontract.h"
#include "base/translatedtexts.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "SetBoardPowerCmd::SetBoardPowerCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "SetBoardPowerCmd::SetBoardPowerCmd(QList<QVariant>)";
constexpr char noNumber[] = "Invalid parameters: expected INT parameter";
constexpr char badType[] = "Invalid power type parameter";
constexpr char badAction[] = "Invalid power action parameter";

CommandFacts facts()
{
    CommandFacts facts(formsOf<SetBoardPowerCmd>());
    facts.catalogue = {"SET_BOARD_POWER", 30, "0076", 2};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    // the position may be left out, and then there are no more than two
    facts.arguments = {required(Integer, {"DE01316", "DE01319", noNumber}).takes({-1, 0, 300}),
                       required(Integer, {"DE01316", "DE01319", noNumber})
                           .outOfRange({-1, 0, 4}, {"DE01317", "DE01320", badType})
                           .takes({1, 3}),
                       optional(Integer, {"DE01316", "DE01319", noNumber})
                           .outOfRange({-1, 0, 4}, {"DE01318", "DE01320", badAction})
                           .takes({1, 3})};
    facts.getters = {getter(&SetBoardPowerCmd::moduleID), getter(&SetBoardPowerCmd::powerType),
                     getter(&SetBoardPowerCmd::powerAction)};
    facts.words = Words("In progress", inProgress());
    facts.words.translatedCommand = translation("In progress");
    facts.defaults = Request().parameters({0, 0, 0}).written("[0, 0, 0]").sends({0, 0}).notReadBack();
    facts.requests = {
        Request({5, 2, 3}).typed<SetBoardPowerCmd>(5, 2, 3).written("[5, 2, 3]").sends({2, 3}).module(5),
        Request({3, 1})
            .parameters({0, 3, 1})
            .typed<SetBoardPowerCmd>(3, 1)
            .written("[0, 3, 1]")
            .sends({3, 1}),
        Request({1, 4, 0}) // believed in the typed form alone
            .onlyTyped()
            .typed<SetBoardPowerCmd>(1, 4, 0)
            .written("[1, 4, 0]")
            .sends({4, 0})
            .module(1)
            .notReadBack(),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(SetBoardPowerCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SetBoardPowerCmd, refusesTwoArgumentsAsItRefusesThree)
{
    expectRefusal("DE01317", badType, ofValue, [] { const SetBoardPowerCmd command(arrayOf(4, 1)); });
    expectRefusal("DE01318", badAction, ofValue, [] { const SetBoardPowerCmd command(arrayOf(1, 4)); });
    expectRefusal("DE01316", noNumber, ofValue, [] { const SetBoardPowerCmd command(arrayOf("1", 4)); });
    expectRefusal("DE01320", badType, ofList, [] { const SetBoardPowerCmd command(List{4, 1}); });
    expectRefusal("DE01320", badAction, ofList, [] { const SetBoardPowerCmd command(List{1, 4}); });
    expectRefusal("DE01319", noNumber, ofList, [] { const SetBoardPowerCmd command(List{1, true}); });
}

TEST(SetBoardPowerCmd, knowsTypesAndActions)
{
    for (const int number : {1, 2, 3}) {
        EXPECT_TRUE(SetBoardPowerCmd::checkPowerType(number)) << number;
        EXPECT_TRUE(SetBoardPowerCmd::checkPowerAction(number)) << number;
    }
    for (const int number : {-1, 0, 4}) {
        EXPECT_FALSE(SetBoardPowerCmd::checkPowerType(number)) << number;
        EXPECT_FALSE(SetBoardPowerCmd::checkPowerAction(number)) << number;
    }
}

TEST(SetBoardPowerCmd, doesNotMistakeOneArgumentForAPower)
{
    static_assert(!std::is_constructible_v<SetBoardPowerCmd, int>);
    static_assert(!std::is_constructible_v<SetBoardPowerCmd, bool>);
    static_assert(!std::is_constructible_v<SetBoardPowerCmd, double>);
    static_assert(!std::is_constructible_v<SetBoardPowerCmd, const char *>);
}

} // namespace
