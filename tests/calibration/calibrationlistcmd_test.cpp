// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getcalibrationlistcmd.h"
#include "calibration/getrecalibrationlistcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "calibration/calibrationtesting.h"

#include <type_traits>

namespace {

using namespace testing_calibration;

constexpr char ofValue[] =
    "CalibrationListCmd::CalibrationListCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "CalibrationListCmd::CalibrationListCmd(QList<QVariant>, const FW_Dispenser*)";
constexpr char notMade[] = "Failed to create answer";
constexpr char notPresent[] = "Invalid position ID parameter: not present on current dispenser";

/** Circuits at 3 and, not enabled, at 5. */
FW_Dispenser twoCircuits()
{
    FW_Canister canister(1);
    canister.addCircuit(FW_Circuit(30, 3));
    FW_Circuit disabled(50, 5);
    disabled.setEnabled(false);
    canister.addCircuit(disabled);
    FW_Dispenser dispenser;
    dispenser.addCanister(canister);
    return dispenser;
}

/** The answers of a command, of the class \a name, that \a structs become and \a objects. */
AnswerFacts answersOf(const std::string &name, const char *noList, const char *otherVariant,
                      const Value &structs, const List &objects, const std::string &dump)
{
    const std::string written = R"({"calibrations_list": )" + dump + "}";
    AnswerFacts answers = confAnswers();
    answers.value = AnswerOfValue(name, structOf({{"calibrations_list", structs}}), written)
                        .failsWith("DE01297", notMade)
                        .refuses(Value(0), noList, name + ": cannot find calibrations list tag",
                                 name + "::" + name + "(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList(name, objects, written)
                       .failsWith("DE00346", notMade)
                       .refuses({7}, otherVariant, name + " decoding failed: invalid QVariant value",
                                name + "::" + name + "(QList<QVariant>&)");
    return answers;
}

template <class Cmd>
CommandFacts factsOf(const CatalogueFacts &catalogue, const AnswerFacts &answers,
                     const FW_Dispenser *dispenser)
{
    CommandFacts facts(formsOf<Cmd>(dispenser));
    facts.catalogue = catalogue;
    facts.protoType = 2;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    const ArgumentRefusal noPosition = {"DE00877", "DE00877", "Position ID: expected INT parameter"};
    facts.arguments = {
        required(Integer, noPosition).absent(noPosition),
        optional(Flag, {"DE00878", "DE00878", "Show for enabled circuit: expected BOOL parameter"}),
    };
    facts.getters = {getter(&Cmd::positionID), getter(&Cmd::showForEnabledCircuit)};
    facts.defaults = Request().parameters({0, false}).written("[0, false]");
    facts.requests = {
        Request({3, true}).template typed<Cmd>(3, true).written("[3, true]"),
        Request({5}).template typed<Cmd>(5).parameters({5, false}).written("[5, false]"),
    };
    facts.answers = answers;
    return facts;
}

CommandFacts calibrationFacts(const FW_Dispenser *dispenser)
{
    return factsOf<GetCalibrationListCmd>({"GET_CALIB_LIST", 70, "", 0},
                                          answersOf("GetCalibrationListAnswer", "DE00875", "DE00871",
                                                    calibrationStructs(), each(calibrations()),
                                                    calibrationsDump()),
                                          dispenser);
}

CommandFacts recalibrationFacts(const FW_Dispenser *dispenser)
{
    return factsOf<GetRecalibrationListCmd>({"GET_RECALIB_LIST", 146, "", 0},
                                            answersOf("GetRecalibrationListAnswer", "DE02640", "DE02638",
                                                      recalibrationStructs(), each(recalibrations()),
                                                      recalibrationsDump()),
                                            dispenser);
}

TEST(GetCalibrationListCmd, keepsTheCommandContract)
{
    expectCommandContract(calibrationFacts(nullptr));
    const FW_Dispenser dispenser = twoCircuits();
    expectCommandContract(calibrationFacts(&dispenser));
}

TEST(GetRecalibrationListCmd, keepsTheCommandContract)
{
    expectCommandContract(recalibrationFacts(nullptr));
    const FW_Dispenser dispenser = twoCircuits();
    expectCommandContract(recalibrationFacts(&dispenser));
}

template <class Cmd>
void expectPositionsChecked()
{
    const FW_Dispenser dispenser = twoCircuits();
    for (const int position : {3, 5}) {
        EXPECT_EQ(Cmd(arrayOf(position), &dispenser).positionID(), position);
        EXPECT_EQ(Cmd(List{position}, &dispenser).positionID(), position);
    }
    for (const int position : {4, 0, -1, 60515}) {
        SCOPED_TRACE(position);
        // the position is refused before what stands behind it is read
        expectRefusal("DE00876", notPresent, ofValue, [&] { Cmd(arrayOf(position, 7), &dispenser); });
        expectRefusal("DE00876", notPresent, ofList, [&] { Cmd(List{position, 7}, &dispenser); });
        EXPECT_EQ(Cmd(arrayOf(position), nullptr).positionID(), position);
        EXPECT_EQ(Cmd(List{position}, nullptr).positionID(), position);
    }
    static_assert(!std::is_constructible_v<Cmd, bool>);
    static_assert(!std::is_constructible_v<Cmd, double>);
    static_assert(!std::is_constructible_v<Cmd, int, const FW_Dispenser *>);
}

TEST(CalibrationListCmd, asksForACircuitOfTheDispenser)
{
    expectPositionsChecked<CalibrationListCmd>();
    expectPositionsChecked<GetCalibrationListCmd>();
    expectPositionsChecked<GetRecalibrationListCmd>();
}

TEST(CalibrationListCmd, isExplained)
{
    for (const char *command : {"GET_CALIB_LIST", "GET_RECALIB_LIST"})
        EXPECT_EQ(argumentsOf(command),
                  (Lines{"position (int): a circuit's position", "  XML-RPC, missing: DE00877",
                         "  list, missing: DE00877", "  XML-RPC, another type: DE00877",
                         "  list, another type: DE00877", "  XML-RPC, out of range: DE00876",
                         "  list, out of range: DE00876",
                         "enabled (bool) = false: only when the circuit is enabled",
                         "  XML-RPC, another type: DE00878", "  list, another type: DE00878"}));
}

} // namespace
