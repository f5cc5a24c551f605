// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcontract.h"
#include "base/factlines.h"
#include "setup/setcircuitmaxspeedcmd.h"
#include "setup/setdispdatacmd.h"
#include "setup/setdispidcmd.h"
#include "setup/setdosingmotordatacmd.h"
#include "setup/setserialnumbercmd.h"

#include <initializer_list>
#include <type_traits>

// The commands that change a single fact of a stored machine.

namespace {

using namespace testing_base;

/** A circuit at each of the positions, which is 10 times its number; the first is not enabled. */
FW_Dispenser dispenserWith(std::initializer_list<int> positions)
{
    FW_Dispenser dispenser;
    for (const int position : positions) {
        FW_Circuit circuit(10 * position, position);
        circuit.setEnabled(position != *positions.begin());
        FW_Canister canister(position);
        canister.addCircuit(circuit);
        dispenser.addCanister(canister);
    }
    return dispenser;
}

/** For each of both: without a dispenser, and with one that has the positions. */
template <class Facts>
void expectWithAndWithoutADispenser(Facts facts)
{
    const FW_Dispenser machine = dispenserWith({2, 3, 7});
    for (const FW_Dispenser *given : {static_cast<const FW_Dispenser *>(nullptr), &machine})
        expectCommandContract(facts(given));
}

/** The argument that only a dispenser can tell to be none of its positions; a code in each form for another type, and for that. */
Argument positionOf(const FW_Dispenser *machine, const char *valueType, const char *listType,
                    const char *valueUnknown, const char *listUnknown)
{
    const List unknown = {0, 1, 4, 20, -2};
    Argument position = required(Integer, {valueType, listType, "Position ID: expected INT parameter"});
    if (machine)
        return position.takes({2, 3, 7}).outOfRange(
            unknown, {valueUnknown, listUnknown, "Position ID: value not existing"});
    return position.takes(unknown + List{2, 3, 7});
}

// ---------------------------------------------------------------- SET_DISP_ID

Words changingID(const char *from, const char *to)
{
    const QString brief = QStringLiteral("Changing dispenser ID to %1").arg(QLatin1String(to));
    const QString detailed =
        QStringLiteral("Changing dispenser ID from %1 to %2").arg(QLatin1String(from), QLatin1String(to));
    return {"Set dispenser ID", brief.toUtf8().constData(), detailed.toUtf8().constData()};
}

TEST(SetDispIDCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<SetDispIDCmd>());
    facts.catalogue = {"SET_DISP_ID", 98, "", 2};
    facts.protoType = 2;
    facts.valueFunction = "SetDispIDCmd::SetDispIDCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SetDispIDCmd::SetDispIDCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE01858", "DE01860",
                           "Set Dispenser ID command failed: expected Int type for first parameter"})
            .takes({-1, 0, 2147483647}),
        required(Integer, {"DE01859", "DE01861",
                           "Set Dispenser ID command failed: expected Int type for second parameter"})
            .takes({-1, 0, 2147483647})};
    facts.getters = {getter(&SetDispIDCmd::oldID), getter(&SetDispIDCmd::newID)};
    facts.defaults = Request().parameters({0, 0}).written("[0, 0]").says(changingID("0", "0"));
    facts.requests = {
        Request({3, 12}).typed<SetDispIDCmd>(3, 12).written("[3, 12]").says(changingID("3", "12")),
        Request({300, -1}).typed<SetDispIDCmd>(300, -1).written("[300, -1]").says(changingID("300", "-1")),
    };
    facts.answers = confAnswers();
    expectCommandContract(facts);
}

// ---------------------------------------------------------------- SET_DISP_DATA

CommandFacts dispDataFacts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<SetDispDataCmd>(machine));
    facts.catalogue = {"SET_DISP_DATA", 79, "", 1};
    facts.protoType = 2;
    facts.valueFunction = "SetDispDataCmd::SetDispDataCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
    facts.listFunction = "SetDispDataCmd::SetDispDataCmd(QList<QVariant>, const FW_Dispenser*)";
    facts.arguments = {
        required(Text, {"DE00684", "DE00804", "Dispenser description: expected STRING parameter"})
            .takes({"", " "})};
    facts.getters = {getter(&SetDispDataCmd::dispenserDescription)};
    facts.defaults = Request().parameters({""}).written(R"([""])");
    facts.requests = {Request({"by the door"}).written(R"(["by the door"])"),
                      Request({QString::fromUtf8("Büro 2")}).written("[\"Büro 2\"]")};
    facts.answers = confAnswers();
    return facts;
}

TEST(SetDispDataCmd, keepsTheCommandContract)
{
    expectWithAndWithoutADispenser(dispDataFacts);
}

// ---------------------------------------------------------------- SET_DM_DATA

constexpr char ofMotorValue[] =
    "SetDosingMotorDataCmd::SetDosingMotorDataCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofMotorList[] =
    "SetDosingMotorDataCmd::SetDosingMotorDataCmd(QList<QVariant>, const FW_Dispenser*)";

CommandFacts motorDataFacts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<SetDosingMotorDataCmd>(machine));
    facts.catalogue = {"SET_DM_DATA", 78, "", 2};
    facts.protoType = 2;
    facts.valueFunction = ofMotorValue;
    facts.listFunction = ofMotorList;
    const Argument position = positionOf(machine, "DE00885", "DE00890", "DE00884", "DE00891");
    facts.arguments = {
        position,
        required(Text, {"DE00889", "DE00894", "Pump serial number: expected STRING parameter"}).takes({""})};
    facts.getters = {getter(&SetDosingMotorDataCmd::positionID),
                     getter(&SetDosingMotorDataCmd::pumpSerialNumber)};
    facts.defaults = Request().parameters({0, ""}).written(R"([0, ""])");
    facts.requests = {Request({3, "P 17/4"}).written(R"([3, "P 17/4"])"),
                      Request({2, QString::fromUtf8("№ 5")}).written("[2, \"№ 5\"]")};
    facts.answers = confAnswers();
    return facts;
}

TEST(SetDosingMotorDataCmd, keepsTheCommandContract)
{
    expectWithAndWithoutADispenser(motorDataFacts);
}

TEST(SetDosingMotorDataCmd, looksForThePositionBeforeTheNumber)
{
    const FW_Dispenser machine = dispenserWith({2});
    expectRefusal("DE00884", "Position ID: value not existing", ofMotorValue,
                  [&] { SetDosingMotorDataCmd(arrayOf(3, 7), &machine); });
    expectRefusal("DE00891", "Position ID: value not existing", ofMotorList, [&] {
        SetDosingMotorDataCmd(List{3, 7}, &machine);
    });
}

// ---------------------------------------------------------------- SET_CIRCUIT_MAX_SPEED

constexpr char ofSpeedValue[] =
    "SetCircuitMaxSpeedCmd::SetCircuitMaxSpeedCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofSpeedList[] =
    "SetCircuitMaxSpeedCmd::SetCircuitMaxSpeedCmd(QList<QVariant>, const FW_Dispenser*)";

CommandFacts maxSpeedFacts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<SetCircuitMaxSpeedCmd>(machine));
    facts.catalogue = {"SET_CIRCUIT_MAX_SPEED", 80, "", 2};
    facts.protoType = 2;
    facts.valueFunction = ofSpeedValue;
    facts.listFunction = ofSpeedList;
    const Argument position = positionOf(machine, "DE01015", "DE01019", "DE01014", "DE01020");
    facts.arguments = {
        position,
        required(Integer, {"DE01017", "DE01021", "Maximum speed: expected INT parameter"})
            .takes({1, 2, 1999, 2000})
            .outOfRange({0, -1, 2001, 60515}, {"DE01016", "DE01023", "Maximum speed: incorrect value"}),
        optional(Flag, {"DE01018", "DE01024", "User speed: expected BOOL parameter"})};
    facts.getters = {getter(&SetCircuitMaxSpeedCmd::positionID), getter(&SetCircuitMaxSpeedCmd::maxSpeed),
                     getter(&SetCircuitMaxSpeedCmd::isUserSpeed)};
    facts.defaults = Request().parameters({0, 0, false}).written("[0, 0, false]");
    facts.requests = {
        Request({3, 120, true}).written("[3, 120, true]"),
        Request({7, 2000, false}).written("[7, 2000, false]"),
        Request({2, 60}).parameters({2, 60, false}).written("[2, 60, false]"),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(SetCircuitMaxSpeedCmd, keepsTheCommandContract)
{
    expectWithAndWithoutADispenser(maxSpeedFacts);
}

TEST(SetCircuitMaxSpeedCmd, looksAtOneArgumentAfterTheOther)
{
    const FW_Dispenser machine = dispenserWith({2});
    expectRefusal("DE01014", "Position ID: value not existing", ofSpeedValue,
                  [&] { SetCircuitMaxSpeedCmd(arrayOf(3, 0, 7), &machine); });
    expectRefusal("DE01016", "Maximum speed: incorrect value", ofSpeedValue,
                  [&] { SetCircuitMaxSpeedCmd(arrayOf(2, 0, 7), &machine); });
    expectRefusal("DE01020", "Position ID: value not existing", ofSpeedList, [&] {
        SetCircuitMaxSpeedCmd(List{3, 0, 7}, &machine);
    });
    expectRefusal("DE01023", "Maximum speed: incorrect value", ofSpeedList, [&] {
        SetCircuitMaxSpeedCmd(List{2, 0, 7}, &machine);
    });
}

// ---------------------------------------------------------------- SET_SERIAL_NUMBER

const List noSerialNumbers = {
    "", " ", "   ", "123456789012345678901", "K_17", "K-17;", QString::fromUtf8("Kö"), "K\n"};

TEST(SetSerialNumberCmd, keepsTheCommandContract)
{
    constexpr char format[] = "Serial number: error in serial number format";
    CommandFacts facts(formsOf<SetSerialNumberCmd>());
    facts.catalogue = {"SET_SERIAL_NUMBER", 96, "", 1};
    facts.protoType = 2;
    facts.valueFunction = "SetSerialNumberCmd::SetSerialNumberCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SetSerialNumberCmd::SetSerialNumberCmd(QList<QVariant>)";
    facts.arguments = {required(Text, {"DE01774", "DE01775", "Serial number: error in value decoding"})
                           .takes({"7", " K 17", "12345678901234567890", "a.B/9-z"})
                           .outOfRange(noSerialNumbers, {"DE01781", "DE01782", format})};
    facts.getters = {getter(&SetSerialNumberCmd::serialNumber)};
    facts.defaults = Request().parameters({""}).written(R"([""])");
    facts.requests = {
        Request({"K-17/4.b"}).typed<SetSerialNumberCmd>(QString("K-17/4.b")).written(R"(["K-17/4.b"])"),
        // as it was given, with the blanks around it
        Request({" 17 "}).typed<SetSerialNumberCmd>(QString(" 17 ")).written(R"([" 17 "])"),
    };
    for (const QVariant &wrong : noSerialNumbers)
        facts.typedRefusals.push_back({made<SetSerialNumberCmd>(wrong.toString()),
                                       {"DE01780", format},
                                       "SetSerialNumberCmd::SetSerialNumberCmd(QString)"});
    facts.answers = confAnswers();
    expectCommandContract(facts);
}

// ---------------------------------------------------------------- all of them

TEST(MachineData, isNoPlainValue)
{
    static_assert(!std::is_constructible_v<SetDispIDCmd, int>);
    static_assert(!std::is_constructible_v<SetDispIDCmd, bool>);
    static_assert(!std::is_constructible_v<SetDispIDCmd, double>);
    static_assert(!std::is_constructible_v<SetDispIDCmd, const char *>);
    static_assert(!std::is_constructible_v<SetSerialNumberCmd, int>);
    static_assert(!std::is_constructible_v<SetSerialNumberCmd, bool>);
    static_assert(!std::is_constructible_v<SetSerialNumberCmd, double>);
    static_assert(!std::is_constructible_v<SetSerialNumberCmd, const char *>);
}

TEST(MachineData, tellsItsArguments)
{
    EXPECT_EQ(argumentsOf("SET_DISP_ID"),
              (Lines{"old_id (int): of the dispenser that is to change", "  XML-RPC, another type: DE01858",
                     "  list, another type: DE01860", "new_id (int)", "  XML-RPC, another type: DE01859",
                     "  list, another type: DE01861"}));
    EXPECT_EQ(argumentsOf("SET_DISP_DATA"),
              (Lines{"description (string): of the dispenser, for people", "  XML-RPC, another type: DE00684",
                     "  list, another type: DE00804"}));
    EXPECT_EQ(argumentsOf("SET_DM_DATA"),
              (Lines{"position (int): a circuit's position", "  XML-RPC, another type: DE00885",
                     "  list, another type: DE00890", "  XML-RPC, out of range: DE00884",
                     "  list, out of range: DE00891", "serial_number (string): of the pump",
                     "  XML-RPC, another type: DE00889", "  list, another type: DE00894"}));
    EXPECT_EQ(argumentsOf("SET_CIRCUIT_MAX_SPEED"),
              (Lines{"position (int): a circuit's position", "  XML-RPC, another type: DE01015",
                     "  list, another type: DE01019", "  XML-RPC, out of range: DE01014",
                     "  list, out of range: DE01020", "max_speed (int): turns per minute, 1 to 2000",
                     "  XML-RPC, another type: DE01017", "  list, another type: DE01021",
                     "  XML-RPC, out of range: DE01016", "  list, out of range: DE01023",
                     "user_speed (bool) = false: whether the user chose the speed",
                     "  XML-RPC, another type: DE01018", "  list, another type: DE01024"}));
    EXPECT_EQ(argumentsOf("SET_SERIAL_NUMBER"),
              (Lines{"serial_number (string): 1 to 20 letters, digits, blanks, dots, slashes and hyphens",
                     "  XML-RPC, another type: DE01774", "  list, another type: DE01775",
                     "  XML-RPC, out of range: DE01781", "  list, out of range: DE01782"}));
}

} // namespace
