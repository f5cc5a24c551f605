// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/setcanisterlistcmd.h"
#include "masterdata/setcolorantlistcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/outofmemory.h"

#include <type_traits>

namespace {

using namespace testing_base;

using Canisters = QList<FW_Canister>;
using Filling = QPair<int, FW_Colorant>;
using Fillings = QList<Filling>;

// ---------------------------------------------------------------- SET_CANISTER_LIST

constexpr char canistersOfValue[] = "SetCanisterListCmd::SetCanisterListCmd(const XmlRpc::XmlRpcValue&)";
constexpr char canistersOfList[] = "SetCanisterListCmd::SetCanisterListCmd(QList<QVariant>)";
constexpr char notDecoded[] = "SetCanisterListCmd: xmlrpc decoding failed";
constexpr char noCanister[] = "SetCanisterListCmd: errors during canister creation";

FW_Canister canister(int id)
{
    FW_Canister canister(id);
    canister.setEnabled(false);
    canister.setColorantCode("B");
    canister.setMaximumQuantity(3000);
    canister.setCurrentQuantity(1500.5);
    canister.setReserveQuantity(150);
    canister.setWarningQuantity(300);
    canister.setLayoutPositionsId({4}, {});
    canister.setCanisterLevelSensor(1);
    return canister;
}

/** As a client tells it: the circuits are not its business. */
Value canisterStruct(int id)
{
    return structOf({{"id", id},
                     {"enabled", false},
                     {"colorant", "B"},
                     {"maximum", 3000},
                     {"current", 1500.5},
                     {"reserve", 150},
                     {"warning", 300},
                     {"layout_positions", arrayOf(4)},
                     {"level_sensor", structOf({})}});
}

std::string canisterDump(int id)
{
    return R"({"activated": false, "circuits": [], "colorant": "B", "current": 1500.50, "enabled": false, "id": )" +
           std::to_string(id) +
           R"(, "layout_positions": [4], "level_sensor": {"check_frequency": 100, "check_frequency_unit": 1, )"
           R"("critical_level": 500, "enabled": true, "wire_board": 0, "wire_connector": 0}, )"
           R"("maximum": 3000.00, "reserve": 150.000, "warning": 300.000})";
}

Value canisterRequest(const Value &canisters, const Value &update)
{
    return arrayOf(structOf({{"canister_list", canisters}, {"update_fw_config", update}}));
}

QVariant variantOf(const Canisters &canisters)
{
    return QVariant::fromValue(canisters);
}

CommandFacts canisterFacts()
{
    using Cmd = SetCanisterListCmd;
    const Canisters two = {canister(3), canister(4)};
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"SET_CANISTER_LIST", 109, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = canistersOfValue;
    facts.listFunction = canistersOfList;
    facts.getters = {getter(&Cmd::canisterList), getter(&Cmd::updateFwConfig)};
    facts.defaults = Request()
                         .parameters({variantOf({}), false})
                         .written(R"([{"canister_list": [], "update_fw_config": false}])");
    const Request whole = Request({variantOf(two), true})
                              .typed<Cmd>(two, true)
                              .value(canisterRequest(arrayOf(canisterStruct(3), canisterStruct(4)), true))
                              .written(R"([{"canister_list": [)" + canisterDump(3) + ", " + canisterDump(4) +
                                       R"(], "update_fw_config": true}])");
    facts.requests = {
        whole,
        whole.alsoFromList(
            {QVariant(List{QVariant::fromValue(two[0]), QVariant::fromValue(two[1]).toMap()}), true}),
        Request({variantOf({canister(3)})})
            .value(arrayOf(structOf({{"canister_list", arrayOf(canisterStruct(3))}})))
            .parameters({variantOf({canister(3)}), false})
            .written(R"([{"canister_list": [)" + canisterDump(3) + R"(], "update_fw_config": false}])"),
        Request({variantOf({}), true})
            .typed<Cmd>(Canisters(), true)
            .value(canisterRequest(arrayOf(), true))
            .written(R"([{"canister_list": [], "update_fw_config": true}])")};
    facts.answers = confAnswers();
    return facts;
}

TEST(SetCanisterListCmd, keepsTheCommandContract)
{
    expectCommandContract(canisterFacts());
}

TEST(SetCanisterListCmd, refusesAValueWithoutCanisters)
{
    using Cmd = SetCanisterListCmd;
    for (const Value &bad : {Value(3), Value("x"), Value(true), Value(), arrayOf(canisterStruct(3))})
        expectRefusal("DE02129", notDecoded, canistersOfValue, [&] { Cmd{arrayOf(bad)}; });
    expectRefusal("DE02130", noCanister, canistersOfValue, [] {
        Cmd{arrayOf(structOf({{"update_fw_config", true}}))};
    });
    for (const Value &bad : {Value(3), Value(true), structOf({}), Value()})
        expectRefusal("DE02130", noCanister, canistersOfValue, [&] { Cmd{canisterRequest(bad, true)}; });
    for (const Value &bad : {Value(1), Value("true"), structOf({}), Value()})
        expectRefusal("DE02129", notDecoded, canistersOfValue,
                      [&] { Cmd{canisterRequest(arrayOf(canisterStruct(3)), bad)}; });
    for (const auto &row :
         {std::pair(Value(3), "Machine data: must be a struct"),
          std::pair(canisterStruct(0), "Machine data: id must be an integer from 1 to 2147483647")})
        expectRefusal("DE03350", row.second, "FW_Canister::FW_Canister(const XmlRpc::XmlRpcValue&)",
                      [&] { Cmd{canisterRequest(arrayOf(canisterStruct(3), row.first), true)}; });
    const Value whole = canisterRequest(arrayOf(canisterStruct(3)), true);
    expectRefusal("DE02131", noCanister, canistersOfValue, [&] { outOfMemoryOnce([&] { Cmd{whole}; }); });
}

TEST(SetCanisterListCmd, refusesAListOfOtherThings)
{
    using Cmd = SetCanisterListCmd;
    const QVariant good = QVariant::fromValue(canister(3));
    for (const QVariant &bad :
         {QVariant(), QVariant(3), QVariant("x"), good, QVariant(QVariantMap()), QVariant(List{good, 3}),
          QVariant(List{QVariant()}), QVariant(List{QVariantMap{{"enabled", true}}})})
        expectRefusal("DE02130", noCanister, canistersOfList, [&] { Cmd(List{bad, true}); });
    for (const QVariant &bad : {QVariant(), QVariant(1), QVariant("true")})
        expectRefusal("DE02129", notDecoded, canistersOfList, [&] { Cmd(List{variantOf({}), bad}); });
}

TEST(SetCanisterListCmd, tellsItsArgument)
{
    const Lines lines = argumentsOf("SET_CANISTER_LIST");
    ASSERT_EQ(lines.size(), 8U);
    EXPECT_EQ(lines.at(0).rfind("canisters (struct): a struct with canister_list", 0), 0U) << lines.at(0);
    EXPECT_EQ(Lines(lines.begin() + 1, lines.end()),
              (Lines{"  XML-RPC, another type: DE02129", "  list, another type: DE02130",
                     "  XML-RPC, canister_list is missing or no array: DE02130",
                     "  XML-RPC, a canister with a wrong member: DE03350",
                     "  XML-RPC, a canister that cannot be made: DE02131",
                     "  XML-RPC, update_fw_config is no bool: DE02129",
                     "  list, update_fw_config is no bool: DE02129"}));
}

// ---------------------------------------------------------------- SET_COLORANT_LIST

constexpr char colorantsOfValue[] = "SetColorantListCmd::SetColorantListCmd(const XmlRpc::XmlRpcValue&)";
constexpr char colorantsOfList[] = "SetColorantListCmd::SetColorantListCmd(QList<QVariant>)";
constexpr char noColorant[] = "SetColorantListCmd: errors during colorant creation";

FW_Colorant colorant(const char *code)
{
    FW_Colorant colorant(code, "Blue");
    colorant.setEnabled(false);
    colorant.setSystemColorantID(17);
    return colorant;
}

Value filling(const Value &canister, const Value &colorant)
{
    return structOf({{"canister_id", canister}, {"colorant", colorant}});
}

Value colorantStruct(const char *code)
{
    return structOf({{"code", code}, {"name", "Blue"}, {"enabled", false}, {"system_id", 17}});
}

Value colorantRequest(const Value &fillings)
{
    return arrayOf(structOf({{"colorant_list", fillings}}));
}

QVariant variantOf(const Fillings &fillings)
{
    return QVariant::fromValue(fillings);
}

CommandFacts colorantFacts()
{
    using Cmd = SetColorantListCmd;
    const Fillings two = {{3, colorant("B")}, {4, colorant("KX")}};
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"SET_COLORANT_LIST", 108, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = colorantsOfValue;
    facts.listFunction = colorantsOfList;
    facts.getters = {getter(&Cmd::colorantList)};
    facts.defaults = Request().parameters({variantOf(Fillings())}).written(R"([{"colorant_list": []}])");
    const Request whole =
        Request({variantOf(two)})
            .typed<Cmd>(two)
            .value(
                colorantRequest(arrayOf(filling(3, colorantStruct("B")), filling(4, colorantStruct("KX")))))
            .written(R"([{"colorant_list": [{"canister_id": 3, "colorant": {"code": "B", "enabled": false, )"
                     R"("name": "Blue", "system_id": 17}}, {"canister_id": 4, "colorant": {"code": "KX", )"
                     R"("enabled": false, "name": "Blue", "system_id": 17}}]}])");
    facts.requests = {
        whole,
        whole.alsoFromList({QVariant(
            List{QVariant::fromValue(two[0]),
                 QVariantMap{{"canister_id", 4}, {"colorant", QVariant::fromValue(colorant("KX"))}}})}),
        Request({variantOf(Fillings())})
            .typed<Cmd>(Fillings())
            .value(colorantRequest(arrayOf()))
            .written(R"([{"colorant_list": []}])")};
    facts.answers = confAnswers();
    return facts;
}

TEST(SetColorantListCmd, keepsTheCommandContract)
{
    expectCommandContract(colorantFacts());
}

TEST(SetColorantListCmd, refusesAValueWithoutColorants)
{
    using Cmd = SetColorantListCmd;
    for (const Value &bad : {Value(3), Value("x"), Value(true), Value(), arrayOf()})
        expectRefusal("DE03394", "SetColorantListCmd: xmlrpc decoding failed", colorantsOfValue,
                      [&] { Cmd{arrayOf(bad)}; });
    expectRefusal("DE03395", noColorant, colorantsOfValue, [] { Cmd{arrayOf(structOf({}))}; });
    for (const Value &bad : {Value(3), structOf({}), Value()})
        expectRefusal("DE03395", noColorant, colorantsOfValue, [&] { Cmd{colorantRequest(bad)}; });
    const Value good = filling(3, colorantStruct("B"));
    for (const Value &bad :
         {Value(3), structOf({}), filling("3", colorantStruct("B")), filling(3.0, colorantStruct("B")),
          structOf({{"canister_id", 3}}), structOf({{"colorant", colorantStruct("B")}})})
        expectRefusal("DE03396", noColorant, colorantsOfValue,
                      [&] { Cmd{colorantRequest(arrayOf(good, bad))}; });
}

TEST(SetColorantListCmd, passesOnWhatAColorantRefuses)
{
    using Cmd = SetColorantListCmd;
    for (const auto &row : {std::pair(Value(3), "Machine data: must be a struct"),
                            std::pair(structOf({{"name", "Blue"}}), "Machine data: code is missing")})
        expectRefusal("DE03350", row.second, "FW_Colorant::FW_Colorant(const XmlRpc::XmlRpcValue&)",
                      [&] { Cmd{colorantRequest(arrayOf(filling(3, row.first)))}; });
}

TEST(SetColorantListCmd, refusesAListOfOtherThings)
{
    using Cmd = SetColorantListCmd;
    const QVariant good = QVariant::fromValue(Filling(3, colorant("B")));
    for (const QVariant &bad : {QVariant(), QVariant(3), QVariant("x"), good, QVariant(QVariantMap())})
        expectRefusal("DE03395", noColorant, colorantsOfList, [&] { Cmd(List{bad}); });
    for (const QVariant &bad :
         {QVariant(), QVariant(3), QVariant(QVariantMap()), QVariant::fromValue(colorant("B")),
          QVariant(QVariantMap{{"canister_id", 3}}), QVariant::fromValue(QPair<int, int>(3, 4))})
        expectRefusal("DE03396", noColorant, colorantsOfList, [&] { Cmd(List{QVariant(List{good, bad})}); });
}

TEST(SetColorantListCmd, keepsThePairsOfAListAsTheyAre)
{
    FW_Colorant odd("B");
    odd.setName(QString(QChar(0xD800))); // half a character, which no struct can hold
    const Fillings whole = {{3, odd}};
    for (const QVariant &list : {variantOf(whole), QVariant(List{QVariant::fromValue(whole[0])})})
        EXPECT_EQ(SetColorantListCmd(List{list}).colorantList(), whole);
}

TEST(SetColorantListCmd, refusesColorantsThatCannotBeMade)
{
    using Cmd = SetColorantListCmd;
    const QVariant pair = QVariant::fromValue(Filling(3, colorant("B")));
    const Value value = colorantRequest(arrayOf(filling(3, colorantStruct("B"))));
    expectRefusal("DE03396", noColorant, colorantsOfValue, [&] { outOfMemoryOnce([&] { Cmd{value}; }); });
    for (const List &list : {List{QVariant(List{pair})}, List{QVariant(List{pair.toMap()})}})
        expectRefusal("DE03396", noColorant, colorantsOfList,
                      [&] { outOfMemoryOnce([&] { const Cmd command(list); }); });
}

TEST(SetColorantListCmd, tellsItsArgument)
{
    const Lines lines = argumentsOf("SET_COLORANT_LIST");
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines.at(0).rfind("colorants (struct): a struct with colorant_list", 0), 0U) << lines.at(0);
    EXPECT_EQ(Lines(lines.begin() + 1, lines.end()),
              (Lines{"  XML-RPC, another type: DE03394", "  list, another type: DE03395",
                     "  XML-RPC, colorant_list is missing or no array: DE03395",
                     "  XML-RPC, an element without a good canister_id or colorant: DE03396",
                     "  list, an element without a good canister_id or colorant: DE03396",
                     "  XML-RPC, a colorant with a wrong member: DE03350"}));
}

TEST(SetDataLists, takeNoNumberAlone)
{
    static_assert(!std::is_constructible_v<SetCanisterListCmd, int>);
    static_assert(!std::is_constructible_v<SetColorantListCmd, int>);
    static_assert(!std::is_convertible_v<Canisters, SetCanisterListCmd>);
    static_assert(!std::is_convertible_v<Fillings, SetColorantListCmd>);
}

} // namespace
