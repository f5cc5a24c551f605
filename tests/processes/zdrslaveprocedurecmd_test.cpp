// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/zdrslaveprocedurecmd.h"

#include "base/commandcontract.h"
#include "processes/zandortesting.h"

#include <type_traits>

namespace {

using namespace testing_base;

using Procedure = ZDRSlaveProcedureCmd::ProcedureType;

QVariant numbers(const List &list)
{
    return QVariant(list);
}

std::vector<Request> requests()
{
    const Words calibration("Gearmotor calibration", {"Gearmotor calibration"});
    return {
        Request({200, numbers({300, 0, 60516})})
            .value(arrayOf(200, arrayOf(300, 0, 60516)))
            .typed<ZDRSlaveProcedureCmd>(Procedure(200), QList<int>{300, 0, 60516})
            .written("[200, [300, 0, 60516]]")
            .holds({200})
            .sends({200, 3, 2, 54, 1, 1, 0, 3, 0, 0, 1}),
        Request({100, numbers({7})})
            .value(arrayOf(100, arrayOf(7)))
            .typed<ZDRSlaveProcedureCmd>(Procedure(100), QList<int>{7})
            .written("[100, [7]]")
            .holds({100})
            .sends({100, 1, 1, 7})
            .says(calibration),
        Request({101, numbers({-1, 245})}) // a negative number has no digits
            .value(arrayOf(101, arrayOf(-1, 245)))
            .typed<ZDRSlaveProcedureCmd>(Procedure(101), QList<int>{-1, 245})
            .written("[101, [-1, 245]]")
            .holds({101})
            .sends({101, 2, 0, 1, 245}),
        Request({100})
            .parameters({100, numbers({})})
            .typed<ZDRSlaveProcedureCmd>(Procedure(100))
            .written("[100, []]")
            .holds({100})
            .sends({100, 0})
            .says(calibration),
        Request({-3}).parameters({-3, numbers({})}).written("[-3, []]").holds({-3}).sends({-3, 0}),
    };
}

CommandFacts facts()
{
    constexpr char invalid[] = "ZDRSlaveProcedureCmd: invalid parameter";
    CommandFacts facts(formsOf<ZDRSlaveProcedureCmd>());
    facts.catalogue = {"ZDR_SLAVE_PROCEDURE", 161, "0028", 1};
    facts.protoType = 1;
    facts.valueFunction = "ZDRSlaveProcedureCmd::ZDRSlaveProcedureCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ZDRSlaveProcedureCmd::ZDRSlaveProcedureCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE02889", "DE02889", invalid}),
        optional().refuses({Value(7), Value(true), Value("7"), structOf({}), arrayOf(7, "8"), arrayOf(7.0)},
                           {QVariant(), 7, true, "7", QVariantMap(), List{7, "8"}, List{7.0},
                            QStringList{"7"}, List{2147483648LL}},
                           {"DE02890", "DE02890", invalid})};
    facts.getters = {getter(&ZDRSlaveProcedureCmd::procedure)};
    facts.defaults = Request()
                         .parameters({100, numbers({})})
                         .written("[100, []]")
                         .holds({100})
                         .sends({100, 0})
                         .says({"Gearmotor calibration", {"Gearmotor calibration"}});
    facts.requests = requests();
    facts.requests.push_back(facts.requests.front().alsoFromList({200, List{300, 0LL, 60516U}}));
    facts.requests.push_back(
        facts.requests.front().alsoFromList({200, QVariant::fromValue(QList<int>{300, 0, 60516})}));
    facts.firmware = testing_processes::cappingStations();
    facts.answers = serialAnswers();
    return facts;
}

TEST(ZDRSlaveProcedureCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(ZDRSlaveProcedureCmd, holdsTheParametersOfTheProcedure)
{
    const QList<int> parameters = {300, 0};
    EXPECT_EQ(ZDRSlaveProcedureCmd(Procedure(200), parameters).procedureParameters(), parameters);
    EXPECT_EQ(ZDRSlaveProcedureCmd(arrayOf(200, arrayOf(300, 0))).procedureParameters(), parameters);
    EXPECT_EQ(ZDRSlaveProcedureCmd(List{200, List{300, 0}}).procedureParameters(), parameters);
    EXPECT_EQ(ZDRSlaveProcedureCmd().procedureParameters(), QList<int>());
}

TEST(ZDRSlaveProcedureCmd, knowsItsFirmware)
{
    for (const Gate &gate : testing_processes::cappingStations()) {
        SCOPED_TRACE(gate.version.toString().toStdString());
        EXPECT_EQ(ZDRSlaveProcedureCmd::checkSupportedCommand(gate.version), gate.isSupported);
        for (int procedure : {-1, 0, 100, 101, 199, 201})
            EXPECT_EQ(ZDRSlaveProcedureCmd::isSupportedProcedure(Procedure(procedure), gate.version),
                      gate.isSupported)
                << procedure;
    }
}

TEST(ZDRSlaveProcedureCmd, needsANewerFirmwareForOneProcedure)
{
    EXPECT_EQ(ZDRSlaveProcedureCmd::LateProcedure, 200);
    const Gate gates[] = {{FW_Version(63, 43), true},  {FW_Version(63, 99), true},
                          {FW_Version(63, 42), false}, {FW_Version(63, 39), false},
                          {FW_Version(64, 43), false}, {FW_Version(70, 99), false},
                          {FW_Version(), false}};
    for (const Gate &gate : gates) {
        SCOPED_TRACE(gate.version.toString().toStdString());
        EXPECT_EQ(ZDRSlaveProcedureCmd::isSupportedProcedure(Procedure(200), gate.version), gate.isSupported);
    }
    EXPECT_TRUE(ZDRSlaveProcedureCmd(Procedure(200)).isSupportedCommand(FW_Version(63, 39)))
        << "the command itself is there";
}

TEST(ZDRSlaveProcedureCmd, takesNoPlainNumberForAProcedure)
{
    static_assert(!std::is_constructible_v<ZDRSlaveProcedureCmd, int>);
    static_assert(!std::is_constructible_v<ZDRSlaveProcedureCmd, bool>);
    static_assert(!std::is_constructible_v<ZDRSlaveProcedureCmd, double>);
    static_assert(!std::is_constructible_v<ZDRSlaveProcedureCmd, const char *>);
}

} // namespace
