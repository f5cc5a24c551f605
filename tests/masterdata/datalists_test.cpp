// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/canisterdata.h"
#include "masterdata/circuitdata.h"
#include "masterdata/colorantsposlist.h"
#include "masterdata/devicedata.h"
#include "masterdata/getcanisterlistanswer.h"
#include "masterdata/getcircuitlistanswer.h"
#include "masterdata/getcolorantlistanswer.h"
#include "masterdata/getdevicelistanswer.h"

#include "base/answercontract.h"
#include "base/outofmemory.h"

#include <QuvFramework/fw_dispenser.h>

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using namespace testing_base;

// ---------------------------------------------------------------- the records

constexpr char ofCircuit[] = "CircuitData::CircuitData(const XmlRpc::XmlRpcValue&)";
constexpr char ofCanister[] = "CanisterData::CanisterData(const XmlRpc::XmlRpcValue&)";
constexpr char ofDevice[] = "DeviceData::DeviceData(const XmlRpc::XmlRpcValue&)";

CircuitData circuit()
{
    return {5, 2, true, 3, 17, true, true, 4, "P-9", 1};
}

constexpr char circuitWritten[] =
    R"({"canister_id": 3, "colorant_id": 17, "enabled": true, "head_ref_id": 1, "id": 5, "position_id": 2, )"
    R"("pump_serial_number": "P-9", "pump_type": 4, "recirculation_enabled": true, "stirring_enabled": true})";

FW_CanisterLevelSensor sensor(int board)
{
    FW_CanisterLevelSensor sensor;
    sensor.setWireBoardId(board);
    return sensor;
}

CanisterData canister()
{
    const FW_CanisterLevelSensor own = sensor(7);
    return {3, true, 1500.5, 3000, 150, 300, {5, 6}, {2, 9}, 17, "B", &own};
}

constexpr char canisterWritten[] =
    R"({"circuits": [5, 6], "colorant_code": "B", "colorant_id": 17, "cur_q": 1500.50, "enabled": true, "id": 3, )"
    R"("level_sensor": {"check_frequency": 100, "check_frequency_unit": 1, "critical_level": 500, )"
    R"("enabled": true, "wire_board": 7, "wire_connector": 0}, "max_q": 3000.00, "positions": [2, 9], )"
    R"("res_q": 150.000, "res_w": 300.000})";

DeviceData device()
{
    return {4, true, "shelf", true, 1};
}

constexpr char deviceWritten[] =
    R"({"accept_commands": true, "description": "shelf", "enabled": true, "id": 4, "type": 1})";

FW_Colorant colorant(const char *code)
{
    FW_Colorant colorant(code, "Blue");
    colorant.setEnabled(false);
    colorant.setSystemColorantID(17);
    return colorant;
}

constexpr char colorantWritten[] =
    R"({"code": "B", "disp_algorithm_mask": 6, "enabled": false, "name": "Blue", "system_id": 17})";

TEST(DataLists, recordsTravelAsStructs)
{
    EXPECT_EQ(dumped(circuit().toXmlRpcValue()), circuitWritten);
    EXPECT_EQ(CircuitData(circuit().toXmlRpcValue()), circuit());
    EXPECT_EQ(dumped(canister().toXmlRpcValue()), canisterWritten);
    EXPECT_EQ(CanisterData(canister().toXmlRpcValue()), canister());
    EXPECT_EQ(dumped(device().toXmlRpcValue()), deviceWritten);
    EXPECT_EQ(DeviceData(device().toXmlRpcValue()), device());
    const ColorantsPOSList listed(colorant("B"), 6);
    EXPECT_EQ(dumped(listed.toXmlRpcValue()), colorantWritten);
    EXPECT_EQ(ColorantsPOSList(listed.toXmlRpcValue()), listed);
}

TEST(DataLists, recordsAreEmptyAtFirst)
{
    EXPECT_EQ(
        dumped(CircuitData().toXmlRpcValue()),
        R"({"canister_id": 0, "colorant_id": 0, "enabled": false, "head_ref_id": 0, "id": 0, )"
        R"("position_id": 0, "pump_serial_number": "", "pump_type": 0, "recirculation_enabled": false, )"
        R"("stirring_enabled": false})");
    EXPECT_EQ(
        dumped(CanisterData().toXmlRpcValue()),
        R"({"circuits": [], "colorant_code": "", "colorant_id": 0, "cur_q": 0.00000, "enabled": false, )"
        R"("id": 0, "max_q": 0.00000, "positions": [], "res_q": 0.00000, "res_w": 0.00000})");
    EXPECT_EQ(dumped(DeviceData().toXmlRpcValue()),
              R"({"accept_commands": false, "description": "", "enabled": false, "id": 0, "type": 0})");
    EXPECT_EQ(ColorantsPOSList().dispAlgorithmMask, -1);
}

TEST(DataLists, recordsGoWithoutTheirOptionalMembers)
{
    Value value = circuit().toXmlRpcValue();
    value["head_ref_id"] = "1"; // of another type: passed over
    EXPECT_EQ(CircuitData(value).headRefID, 0);
    Value bare = structOf({{"id", 5},
                           {"position_id", 2},
                           {"enabled", true},
                           {"canister_id", 3},
                           {"colorant_id", 17},
                           {"stirring_enabled", true},
                           {"recirculation_enabled", true},
                           {"pump_type", 4},
                           {"pump_serial_number", "P-9"}});
    CircuitData expected = circuit();
    expected.headRefID = 0;
    EXPECT_EQ(CircuitData(bare), expected);

    const CanisterData plain(structOf({{"id", 3},
                                       {"enabled", true},
                                       {"cur_q", 1},
                                       {"max_q", 2.5},
                                       {"res_q", 0},
                                       {"res_w", 0.5},
                                       {"circuits", arrayOf()},
                                       {"positions", arrayOf(2)},
                                       {"colorant_id", 0}}));
    EXPECT_EQ(plain.colorantCode, "");
    EXPECT_FALSE(plain.levelSensor);
    EXPECT_EQ(plain.currentQuantity, 1);
    EXPECT_EQ(plain.reserveWarning, 0.5);
    EXPECT_FALSE(plain.toXmlRpcValue().hasMember("level_sensor"));

    const ColorantsPOSList unmasked(structOf({{"code", "B"}}));
    EXPECT_EQ(unmasked, ColorantsPOSList(FW_Colorant("B")));
    EXPECT_EQ(ColorantsPOSList(structOf({{"code", "B"}, {"disp_algorithm_mask", "6"}})).dispAlgorithmMask,
              -1);
}

/** A member that a record must have, what refuses it, and a value of another type. */
struct NeededMember
{
    const char *key;
    const char *code;
    const char *text;
    Value other;
};

template <class Data>
void expectNeeded(const Value &whole, const char *function, const std::vector<NeededMember> &members)
{
    Value first = structOf({});
    for (const Value &none : {Value(5), Value("x"), arrayOf(), Value()})
        expectRefusal(members.front().code, members.front().text, function, [&] { Data{none}; });
    for (const NeededMember &member : members) {
        SCOPED_TRACE(member.key);
        expectRefusal(member.code, member.text, function, [&] { Data{first}; }); // all before it are there
        Value other = whole;
        other[member.key] = member.other;
        expectRefusal(member.code, member.text, function, [&] { Data{other}; });
        Value part = whole;
        first[member.key] = part[member.key];
    }
    const Data made{first};
}

TEST(DataLists, recordsNeedTheirMembers)
{
    expectNeeded<CircuitData>(
        circuit().toXmlRpcValue(), ofCircuit,
        {{"id", "DE00686", "CircuitData: expected id value", "5"},
         {"position_id", "DE00687", "CircuitData: expected position id value", 2.0},
         {"enabled", "DE00688", "CircuitData: expected enabled value", 1},
         {"canister_id", "DE00689", "CircuitData: expected canister id value", true},
         {"colorant_id", "DE00690", "CircuitData: expected colorant id value", "B"},
         {"stirring_enabled", "DE00579", "CircuitData: expected stirring enabled value", 0},
         {"recirculation_enabled", "DE00596", "CircuitData: expected recirculation enabled value", 0},
         {"pump_type", "DE00580", "CircuitData: expected pump type value", structOf({})},
         {"pump_serial_number", "DE00381", "CircuitData: expected pump serial number value", 9}});
    expectNeeded<CanisterData>(
        canister().toXmlRpcValue(), ofCanister,
        {{"id", "DE00392", "CanisterData: expected id value", "3"},
         {"enabled", "DE00393", "CanisterData: expected enabled value", 1},
         {"cur_q", "DE00394", "CanisterData: expected cur_q value", "1500"},
         {"max_q", "DE00395", "CanisterData: expected max_q value", true},
         {"res_q", "DE00396", "CanisterData: expected res_q value", arrayOf()},
         {"res_w", "DE00397", "CanisterData: expected res_w value", "0"},
         {"circuits", "DE00179", "CanisterData: expected circuits value", arrayOf("5")},
         {"positions", "DE00236", "CanisterData: expected positions value", 2},
         {"colorant_id", "DE00399", "CanisterData: expected colorant_id value", 1.0}});
    expectNeeded<DeviceData>(device().toXmlRpcValue(), ofDevice,
                             {{"id", "DE00419", "DeviceData: expected id value", true},
                              {"enabled", "DE00420", "DeviceData: expected enabled value", 1},
                              {"description", "DE00421", "DeviceData: expected description value", 1},
                              {"accept_commands", "DE00659", "DeviceData: expected accept_commands value", 1},
                              {"type", "DE00267", "DeviceData: expected type value", "1"}});
}

TEST(DataLists, takeNoSingleValueForARecord)
{
    const auto refuses = [](auto *data) {
        using Data = std::remove_pointer_t<decltype(data)>;
        return !std::is_constructible_v<Data, int> && !std::is_constructible_v<Data, bool> &&
               !std::is_constructible_v<Data, double> && !std::is_constructible_v<Data, const char *>;
    };
    EXPECT_TRUE(refuses(static_cast<CircuitData *>(nullptr)));
    EXPECT_TRUE(refuses(static_cast<CanisterData *>(nullptr)));
    EXPECT_TRUE(refuses(static_cast<DeviceData *>(nullptr)));
    EXPECT_TRUE(refuses(static_cast<ColorantsPOSList *>(nullptr)));
}

/** Each change of one field makes another record. */
template <class Data>
void expectAllCompared(const Data &data, const std::vector<std::function<void(Data &)>> &changes)
{
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        Data other = data;
        EXPECT_TRUE(data == other);
        changes[i](other);
        EXPECT_TRUE(data != other);
        EXPECT_FALSE(data == other);
    }
}

TEST(DataLists, recordsAreComparedByAllFields)
{
    expectAllCompared<CircuitData>(
        circuit(),
        {[](auto &data) { data.id = 6; }, [](auto &data) { data.positionID = 6; },
         [](auto &data) { data.enabled = false; }, [](auto &data) { data.canisterID = 6; },
         [](auto &data) { data.colorantID = 6; }, [](auto &data) { data.stirringEnabled = false; },
         [](auto &data) { data.recirculationEnabled = false; }, [](auto &data) { data.pumpType = 6; },
         [](auto &data) { data.pumpSerialNumber = "6"; }, [](auto &data) { data.headRefID = 6; }});
    expectAllCompared<CanisterData>(
        canister(),
        {[](auto &data) { data.id = 6; }, [](auto &data) { data.enabled = false; },
         [](auto &data) { data.currentQuantity = 6; }, [](auto &data) { data.maximumQuantity = 6; },
         [](auto &data) { data.reserveQuantity = 6; }, [](auto &data) { data.reserveWarning = 6; },
         [](auto &data) { data.circuitIDs = {6}; }, [](auto &data) { data.positionIDs = {6}; },
         [](auto &data) { data.colorantID = 6; }, [](auto &data) { data.colorantCode = "6"; },
         [](auto &data) { data.levelSensor->setWireBoardId(6); },
         [](auto &data) { data.levelSensor.reset(); }});
    CanisterData without = canister();
    without.levelSensor.reset();
    expectAllCompared<CanisterData>(
        without, {[](auto &data) { data.levelSensor = std::make_unique<FW_CanisterLevelSensor>(); }});
    expectAllCompared<DeviceData>(
        device(), {[](auto &data) { data.id = 6; }, [](auto &data) { data.enabled = false; },
                   [](auto &data) { data.description = "6"; },
                   [](auto &data) { data.acceptCommands = false; }, [](auto &data) { data.type = 6; }});
    expectAllCompared<ColorantsPOSList>(
        ColorantsPOSList(colorant("B"), 6),
        {[](auto &data) { data.colorant.setCode("KX"); }, [](auto &data) { data.dispAlgorithmMask = 1; }});
}

TEST(CanisterData, ownsItsLevelSensor)
{
    FW_CanisterLevelSensor given = sensor(7);
    CanisterData data(3, true, 0, 0, 0, 0, {}, {}, 0, {}, &given);
    given.setWireBoardId(8);
    ASSERT_TRUE(data.levelSensor);
    EXPECT_EQ(data.levelSensor->wireBoardId(), 7) << "a copy of what it was given";

    CanisterData copy = data;
    CanisterData assigned;
    assigned = data;
    for (const CanisterData *other : {&copy, &assigned}) {
        ASSERT_TRUE(other->levelSensor);
        EXPECT_NE(other->levelSensor, data.levelSensor);
        EXPECT_EQ(*other, data);
    }
    copy.levelSensor->setWireBoardId(9);
    EXPECT_EQ(data.levelSensor->wireBoardId(), 7);

    const CanisterData &same = assigned;
    assigned = same;
    EXPECT_EQ(assigned, data);
    assigned = CanisterData(3, true, 0, 0, 0, 0, {}, {}, 0, {}, nullptr);
    EXPECT_FALSE(assigned.levelSensor);

    CanisterData moved = std::move(copy);
    ASSERT_TRUE(moved.levelSensor);
    EXPECT_EQ(moved.levelSensor->wireBoardId(), 9);
    data = std::move(moved);
    ASSERT_TRUE(data.levelSensor);
    EXPECT_EQ(data.levelSensor->wireBoardId(), 9);
}

TEST(CanisterData, passesOnWhatItsLevelSensorRefuses)
{
    Value value = canister().toXmlRpcValue();
    for (const auto &row :
         {std::pair(Value(7), "Machine data: must be a struct"),
          std::pair(structOf({{"enabled", 1}}), "Machine data: enabled must be true or false")}) {
        value["level_sensor"] = row.first;
        expectRefusal("DE03350", row.second,
                      "FW_CanisterLevelSensor::FW_CanisterLevelSensor(const XmlRpc::XmlRpcValue&)",
                      [&] { CanisterData{value}; });
    }
}

TEST(CanisterData, keepsWhatItHadWhenACopyFails)
{
    const CanisterData full = canister();
    CanisterData data;
    EXPECT_THROW(outOfMemoryOnce([&] { data = full; }), std::bad_alloc);
    EXPECT_EQ(data, CanisterData());
}

TEST(DataLists, recordsAreMadeOfPartsOfAMachine)
{
    FW_Circuit part(5, 2);
    part.setEnabled(false);
    part.changeableDosingMotor().setPumpType(4, 0);
    part.changeableDosingMotor().setHeadRefID(1);
    EXPECT_EQ(CircuitData(part, 3), CircuitData(5, 2, false, 3, 0, false, false, 4, "", 1));
    FW_StirringMotor stirring;
    stirring.setEnabled(true);
    part.setStirringMotor(stirring);
    EXPECT_EQ(CircuitData(part, 3), CircuitData(5, 2, false, 3, 0, true, false, 4, "", 1));
    stirring.setEnabled(false);
    part.setStirringMotor(stirring);
    FW_RecirculationMotor recirculation;
    recirculation.setEnabled(true);
    part.setRecirculationMotor(recirculation);
    EXPECT_EQ(CircuitData(part, 3), CircuitData(5, 2, false, 3, 0, false, true, 4, "", 1));

    FW_Canister whole(3);
    whole.setColorantCode("B");
    whole.setCurrentQuantity(1500.5);
    whole.setMaximumQuantity(3000);
    whole.setReserveQuantity(150);
    whole.setWarningQuantity(300);
    whole.addCircuit(FW_Circuit(5, 2));
    FW_Circuit disabled(6, 9);
    disabled.setEnabled(false);
    whole.addCircuit(disabled);
    whole.setLayoutPositionsId({1}, {});
    whole.setCanisterLevelSensor(1);
    whole.canisterLevelSensor()->setWireBoardId(7);
    EXPECT_EQ(CanisterData(whole, 17), canister());
    whole.setCanisterLevelSensor(0);
    whole.setEnabled(false);
    EXPECT_FALSE(CanisterData(whole, 17).levelSensor);
    EXPECT_FALSE(CanisterData(whole, 17).enabled);
}

TEST(DataLists, recordsTravelInVariants)
{
    EXPECT_STREQ(QVariant::fromValue(ColorantsPOSList()).typeName(), "ColorantsPOSList");
    EXPECT_STREQ(QVariant::fromValue(DeviceData()).typeName(), "DeviceData");
    const ColorantsPOSList listed(colorant("B"), 6);
    const QVariantMap members = QVariant::fromValue(listed).toMap();
    EXPECT_EQ(members.value("disp_algorithm_mask"), 6);
    EXPECT_EQ(QVariant(members).value<ColorantsPOSList>(), listed);
    EXPECT_EQ(QVariant::fromValue(listed), QVariant::fromValue(ColorantsPOSList(listed)));
    EXPECT_EQ(QVariant(QVariant::fromValue(device()).toMap()).value<DeviceData>(), device());
}

// ---------------------------------------------------------------- the answers

/** What the four answers have in common. */
struct ListFacts
{
    const char *name;
    const char *member;
    Value record; ///< in the struct of an answer
    Value noRecord;
    CodeAndText missing; ///< the member, or it is no array
    CodeAndText unmade;
    CodeAndText otherRecord;
    const char *otherFunction;
};

template <class Answer>
void expectListAnswer(const ListFacts &facts, const Answer &filled)
{
    SCOPED_TRACE(facts.name);
    const std::string ofValue = std::string(facts.name) + "::" + facts.name + "(const XmlRpc::XmlRpcValue&)";
    const std::string member = std::string("{\"") + facts.member + "\": ";
    const auto expectRefused = [&](const CodeAndText &refusal, const std::string &function,
                                   const Value &value) {
        SCOPED_TRACE(dumped(value));
        expectRefusal(refusal.code.c_str(), refusal.text.c_str(), function.c_str(), [&] { Answer{value}; });
    };
    const Value whole = structOf({{facts.member, arrayOf(facts.record)}});
    EXPECT_EQ(filled.protoType(), 2);
    EXPECT_EQ(dumped(filled.toXmlRpcValue()), member + "[" + dumped(facts.record) + "]}");
    EXPECT_EQ(Answer(whole), filled);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), member + "[]}");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());

    expectRefused({"DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type"},
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)", Value());
    for (const Value &value : {Value(5), arrayOf(), arrayOf(facts.record), structOf({}),
                               structOf({{facts.member, 7}}), structOf({{facts.member, structOf({})}})})
        expectRefused(facts.missing, ofValue, value);
    expectRefused(facts.otherRecord, facts.otherFunction,
                  structOf({{facts.member, arrayOf(facts.record, facts.noRecord)}}));
    expectRefusal(facts.unmade.code.c_str(), facts.unmade.text.c_str(), ofValue.c_str(),
                  [&] { outOfMemoryOnce([&] { Answer{whole}; }); });

    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(filled).clone());
    EXPECT_EQ(className(copy.get()), facts.name);
    EXPECT_TRUE(filled.equalTo(copy.get()));
    const Answer empty;
    const ConfProtoAnswer plain;
    EXPECT_FALSE(filled.equalTo(&empty));
    EXPECT_TRUE(filled != empty);
    EXPECT_FALSE(filled.equalTo(&plain));
    EXPECT_FALSE(filled.equalTo(nullptr));
}

template <class Answer>
void expectListRefused(const char *code, const char *text, const char *function, List list)
{
    SCOPED_TRACE(shown(list));
    expectRefusal(code, text, function, [&] { Answer{list}; });
}

template <class Answer>
void expectListUnmade(const char *code, const char *text, const char *function, List list)
{
    const Answer good(list);
    expectRefusal(code, text, function, [&] { outOfMemoryOnce([&] { Answer{list}; }); });
}

TEST(GetCircuitListAnswer, isAListOfCircuits)
{
    const GetCircuitListAnswer answer(QList<CircuitData>{circuit()});
    EXPECT_EQ(answer.circuitList(), QList<CircuitData>{circuit()});
    expectListAnswer({"GetCircuitListAnswer",
                      "circuit_list",
                      circuit().toXmlRpcValue(),
                      structOf({{"id", 5}}),
                      {"DE03381", "GetCircuitListAnswer: Errors during CircuitData list creation"},
                      {"DE03385", "GetCircuitListAnswer: errors during CircuitData creation"},
                      {"DE00687", "CircuitData: expected position id value"},
                      ofCircuit},
                     answer);
}

TEST(GetCircuitListAnswer, takesCircuitsAndTheirCanisters)
{
    List list = {QVariant::fromValue(FW_Circuit(5, 2)), 3, QVariant::fromValue(FW_Circuit(6, 9)), 4LL};
    EXPECT_EQ(GetCircuitListAnswer(list).circuitList(),
              (QList<CircuitData>{CircuitData(5, 2, true, 3, 0, false, false, 1, "", 0),
                                  CircuitData(6, 9, true, 4, 0, false, false, 1, "", 0)}));
    List none;
    EXPECT_EQ(GetCircuitListAnswer(none), GetCircuitListAnswer());
}

TEST(GetCircuitListAnswer, refusesAListOfOtherThings)
{
    constexpr char function[] = "GetCircuitListAnswer::GetCircuitListAnswer(QList<QVariant>&)";
    constexpr char noCircuit[] =
        "GetCircuitListAnswer decoding failed: invalid QVariant value (expected FW_Circuit)";
    constexpr char noNumber[] = "GetCircuitListAnswer decoding failed: invalid QVariant value (expected int)";
    const QVariant good = QVariant::fromValue(FW_Circuit(5, 2));
    for (const QVariant &bad : {QVariant(), QVariant(3), QVariant("x"), QVariant(QVariantMap()),
                                QVariant::fromValue(FW_Canister(3)), QVariant(List{good, 3})}) {
        expectListRefused<GetCircuitListAnswer>("DE03390", noCircuit, function, {bad});
        expectListRefused<GetCircuitListAnswer>("DE03390", noCircuit, function, {bad, 3});
        expectListRefused<GetCircuitListAnswer>("DE03390", noCircuit, function, {good, 3, bad, 3});
    }
    expectListRefused<GetCircuitListAnswer>("DE03391", noNumber, function, {good});
    expectListRefused<GetCircuitListAnswer>("DE03391", noNumber, function, {good, 3, good});
    for (const QVariant &bad :
         {QVariant(), QVariant(3.0), QVariant("3"), QVariant(true), QVariant(2147483648LL), good})
        expectListRefused<GetCircuitListAnswer>("DE03391", noNumber, function, {good, bad});
    expectListUnmade<GetCircuitListAnswer>(
        "DE03385", "GetCircuitListAnswer: errors during CircuitData creation", function, {good, 3});
}

FW_Dispenser dispenser()
{
    FW_Dispenser machine;
    FW_Colorant blue("B");
    blue.setSystemColorantID(17);
    machine.addColorant(FW_Colorant("KX"));
    machine.addColorant(blue);
    FW_Canister filled(3);
    filled.setColorantCode("B");
    filled.addCircuit(FW_Circuit(5, 2));
    machine.addCanister(FW_Canister(1));
    machine.addCanister(filled);
    return machine;
}

TEST(GetCanisterListAnswer, isAListOfCanisters)
{
    const GetCanisterListAnswer answer(QList<CanisterData>{canister()});
    EXPECT_EQ(answer.canisterList(), QList<CanisterData>{canister()});
    expectListAnswer({"GetCanisterListAnswer",
                      "canister_list",
                      canister().toXmlRpcValue(),
                      structOf({{"id", 3}}),
                      {"DE03380", "GetCanisterListAnswer: Errors during CanisterData list creation"},
                      {"DE03384", "GetCanisterListAnswer: errors during CanisterData creation"},
                      {"DE00393", "CanisterData: expected enabled value"},
                      ofCanister},
                     answer);
}

TEST(GetCanisterListAnswer, takesDispensersAndTheIDsOfTheirCanisters)
{
    const QVariant machine = QVariant::fromValue(dispenser());
    List list = {machine, 3LL, machine, 1};
    EXPECT_EQ(GetCanisterListAnswer(list).canisterList(),
              (QList<CanisterData>{CanisterData(3, true, 0, 0, 0, 0, {5}, {2}, 17, "B", nullptr),
                                   CanisterData(1, true, 0, 0, 0, 0, {}, {}, 0, "", nullptr)}));
    List none;
    EXPECT_EQ(GetCanisterListAnswer(none), GetCanisterListAnswer());
}

TEST(GetCanisterListAnswer, refusesAListOfOtherThings)
{
    constexpr char function[] = "GetCanisterListAnswer::GetCanisterListAnswer(QList<QVariant>&)";
    constexpr char noDispenser[] =
        "GetCanisterListAnswer decoding failed: invalid QVariant value (expected FW_Dispenser)";
    constexpr char noNumber[] =
        "GetCanisterListAnswer decoding failed: invalid QVariant value (expected qlonglong)";
    const QVariant good = QVariant::fromValue(dispenser());
    for (const QVariant &bad : {QVariant(), QVariant(3LL), QVariant("x"), QVariant(QVariantMap()),
                                QVariant::fromValue(FW_Canister(3)), QVariant(List{good, 3LL})}) {
        expectListRefused<GetCanisterListAnswer>("DE03388", noDispenser, function, {bad});
        expectListRefused<GetCanisterListAnswer>("DE03388", noDispenser, function, {good, 3LL, bad, 3LL});
    }
    expectListRefused<GetCanisterListAnswer>("DE03389", noNumber, function, {good});
    for (const QVariant &bad : {QVariant(), QVariant(3.0), QVariant("3"), QVariant(true), good})
        expectListRefused<GetCanisterListAnswer>("DE03389", noNumber, function, {good, bad});
    for (const long long unknown : {0LL, 2LL, -3LL, 4294967299LL}) // the last is 3 in its lower half
        expectListRefused<GetCanisterListAnswer>("DE03384",
                                                 "GetCanisterListAnswer: errors during CanisterData creation",
                                                 function, {good, unknown});
    expectListUnmade<GetCanisterListAnswer>(
        "DE03384", "GetCanisterListAnswer: errors during CanisterData creation", function, {good, 3});
}

TEST(GetDeviceListAnswer, isAListOfDevices)
{
    const GetDeviceListAnswer answer(QList<DeviceData>{device()});
    EXPECT_EQ(answer.deviceList(), QList<DeviceData>{device()});
    expectListAnswer({"GetDeviceListAnswer",
                      "device_list",
                      device().toXmlRpcValue(),
                      structOf({{"id", 4}}),
                      {"DE03382", "GetDeviceListAnswer: Errors during DeviceData list creation"},
                      {"DE03386", "GetDeviceListAnswer: errors during DeviceData creation"},
                      {"DE00420", "DeviceData: expected enabled value"},
                      ofDevice},
                     answer);
}

TEST(GetDeviceListAnswer, readsAListOfDevices)
{
    constexpr char function[] = "GetDeviceListAnswer::GetDeviceListAnswer(QList<QVariant>&)";
    const QVariant good = QVariant::fromValue(device());
    List list = {good, good.toMap()};
    EXPECT_EQ(GetDeviceListAnswer(list).deviceList(), (QList<DeviceData>{device(), device()}));
    List none;
    EXPECT_EQ(GetDeviceListAnswer(none), GetDeviceListAnswer());
    for (const QVariant &bad : {QVariant(), QVariant(4), QVariant("x"), QVariant(QVariantMap()),
                                QVariant(List{good}), QVariant::fromValue(FW_Circuit(4, 1))}) {
        expectListRefused<GetDeviceListAnswer>(
            "DE03392", "GetDeviceListAnswer decoding failed: invalid QVariant value", function, {bad});
        expectListRefused<GetDeviceListAnswer>(
            "DE03392", "GetDeviceListAnswer decoding failed: invalid QVariant value", function, {good, bad});
    }
    expectListRefused<GetDeviceListAnswer>("DE00420", "DeviceData: expected enabled value", ofDevice,
                                           {QVariantMap{{"id", 4}}});
    for (const QVariant &whole : {good, QVariant(good.toMap())})
        expectListUnmade<GetDeviceListAnswer>(
            "DE03386", "GetDeviceListAnswer: errors during DeviceData creation", function, {whole});
}

TEST(GetColorantListAnswer, isAListOfColorants)
{
    const ColorantsPOSList listed(colorant("B"), 6);
    const GetColorantListAnswer answer(QList<ColorantsPOSList>{listed});
    EXPECT_EQ(answer.colorantList(), QList<ColorantsPOSList>{listed});
    expectListAnswer({"GetColorantListAnswer",
                      "colorant_list",
                      listed.toXmlRpcValue(),
                      structOf({{"code", 5}}),
                      {"DE03383", "GetColorantListAnswer: Errors during FW_Colorant list creation"},
                      {"DE03387", "GetColorantListAnswer: errors during FW_Colorant creation"},
                      {"DE03350", "Machine data: code must be a text"},
                      "FW_Colorant::FW_Colorant(const XmlRpc::XmlRpcValue&)"},
                     answer);
}

TEST(GetColorantListAnswer, readsColorantsWithAndWithoutTheirMasks)
{
    constexpr char function[] = "GetColorantListAnswer::GetColorantListAnswer(QList<QVariant>&)";
    const ColorantsPOSList masked(colorant("B"), 6);
    const ColorantsPOSList plain(colorant("KX"));
    EXPECT_EQ(plain.dispAlgorithmMask, -1);
    EXPECT_EQ(GetColorantListAnswer(QList<FW_Colorant>{colorant("KX")}).colorantList(),
              QList<ColorantsPOSList>{plain});
    const QVariant good = QVariant::fromValue(masked);
    List list = {good, QVariant::fromValue(colorant("KX")), good.toMap()};
    EXPECT_EQ(GetColorantListAnswer(list).colorantList(), (QList<ColorantsPOSList>{masked, plain, masked}));
    List none;
    EXPECT_EQ(GetColorantListAnswer(none), GetColorantListAnswer());
    for (const QVariant &bad : {QVariant(), QVariant(4), QVariant("B"), QVariant(QVariantMap()),
                                QVariant(List{good}), QVariant::fromValue(FW_Circuit(4, 1))}) {
        expectListRefused<GetColorantListAnswer>(
            "DE03393", "GetColorantListAnswer decoding failed: invalid QVariant value", function, {bad});
        expectListRefused<GetColorantListAnswer>(
            "DE03393", "GetColorantListAnswer decoding failed: invalid QVariant value", function,
            {good, bad});
    }
    for (const QVariant &whole : {good, QVariant::fromValue(colorant("KX")), QVariant(good.toMap())})
        expectListUnmade<GetColorantListAnswer>(
            "DE03387", "GetColorantListAnswer: errors during FW_Colorant creation", function, {whole});
}

} // namespace
