// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcontract.h"
#include "base/factlines.h"
#include "scale/getestcmd.h"
#include "scale/getgravsettingscmd.h"
#include "scale/gravsettingsanswer.h"
#include "scale/setgravsettingscmd.h"

#include <QtCore/QPoint>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

using Circuits = QMap<int, GravimetricSettings>;

constexpr char notRead[] = "SetGravSettingsCmd: error in xmlrpc decoding";
constexpr char noVariant[] = "GravSettingsBase decoding failed: invalid QVariant value";
constexpr char ofValue[] = "GravSettingsBase::GravSettingsBase(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GravSettingsBase::GravSettingsBase(QList<QVariant>)";

constexpr char ofSettings[] =
    "GravimetricSettings::GravimetricSettings(const XmlRpc::XmlRpcValue&, int, int)";

constexpr char none[] = R"([{"circuits_grav_settings": []}])";
constexpr char dump[] = R"([{"circuits_grav_settings": [)"
                        R"({"max_corrections": 5, "position_id": 3, "tolerance": 0.250000}, )"
                        R"({"max_corrections": 1, "position_id": 17, "tolerance": 0.500000}]}])";

Circuits circuits()
{
    return {{3, {0.25, 5}}, {17, {0.5, 1}}};
}

Value circuit(const Value &position, double tolerance, int maxCorrections)
{
    return structOf(
        {{"position_id", position}, {"tolerance", tolerance}, {"max_corrections", maxCorrections}});
}

/** The greater position first: they are told in their order all the same. */
Value circuitsArray()
{
    return arrayOf(circuit(17, 0.5, 1), circuit(3, 0.25, 5));
}

Value request(const Value &circuits)
{
    return structOf({{"circuits_grav_settings", circuits}});
}

QVariantMap circuitMap(const QVariant &position, double tolerance, int maxCorrections)
{
    return {{"position_id", position}, {"tolerance", tolerance}, {"max_corrections", maxCorrections}};
}

/** One argument. */
List circuitsList()
{
    return List() << QVariant(QVariantList{circuitMap(3, 0.25, 5), circuitMap(17, 0.5, 1)});
}

List listOf(const QVariant &circuit)
{
    return List() << QVariant(QVariantList() << circuit);
}

// ---------------------------------------------------------------- what both share

TEST(GravSettingsBase, knowsNoCircuitAtFirst)
{
    EXPECT_TRUE(GravSettingsBase().circuitsGravSettings().isEmpty());
    EXPECT_EQ(dumped(GravSettingsBase().xmlrpcvalue(nullptr)), none);
    EXPECT_EQ(GravSettingsBase().variantParameters(), List() << QVariant(QVariantList()));
    EXPECT_TRUE(GravSettingsBase(request(arrayOf())) == GravSettingsBase());
    EXPECT_TRUE(GravSettingsBase(List() << QVariant(QVariantList())) == GravSettingsBase());
}

TEST(GravSettingsBase, travels)
{
    const GravSettingsBase base(circuits());
    EXPECT_TRUE(base.circuitsGravSettings() == circuits());
    bool ok = false;
    EXPECT_EQ(dumped(base.xmlrpcvalue(&ok)), dump);
    EXPECT_TRUE(ok);
    EXPECT_EQ(base.variantParameters(), circuitsList());
    EXPECT_TRUE(GravSettingsBase(arrayOf(request(circuitsArray()))) == base);
    EXPECT_TRUE(GravSettingsBase(request(circuitsArray())) == base);
    EXPECT_TRUE(GravSettingsBase(circuitsList()) == base);
}

TEST(GravSettingsBase, takesWhatIsToldLastOfACircuit)
{
    const GravSettingsBase base(request(arrayOf(circuit(3, 0.5, 1), circuit(3, 0.25, 5))));
    EXPECT_TRUE(base.circuitsGravSettings() == (Circuits{{3, {0.25, 5}}}));
}

TEST(GravSettingsBase, takesTheUsualSettingsForWhatIsNotTold)
{
    const GravSettingsBase base(request(arrayOf(structOf({{"position_id", 3}}))));
    EXPECT_TRUE(base.circuitsGravSettings() == (Circuits{{3, {}}}));
}

TEST(GravSettingsBase, passesOnWhatTheSettingsAreRefusedWith)
{
    constexpr char text[] = "Machine data: max_corrections must be an integer from 0 to 2147483647";
    expectRefusal("DE03350", text, ofSettings,
                  [] { GravSettingsBase{request(arrayOf(circuit(3, 0.5, -1)))}; });
    expectRefusal("DE03350", text, ofSettings, [] { GravSettingsBase{listOf(circuitMap(3, 0.5, -1))}; });
    QVariantMap empty = circuitMap(3, 0.5, 1); // without a value, which is not 0
    empty["max_corrections"] = QVariant();
    expectRefusal("DE03350", text, ofSettings, [&] { GravSettingsBase{listOf(empty)}; });
}

TEST(GravSettingsBase, refusesWhatIsNoSettings)
{
    for (const Value &value :
         {Value(), Value(0), Value("x"), arrayOf(), arrayOf(7), arrayOf(circuitsArray())})
        expectRefusal("DE02405", notRead, ofValue, [&] { GravSettingsBase{value}; });
    for (const Value &value : {structOf({}), request(0), request(structOf({})), arrayOf(request("x"))})
        expectRefusal("DE02406", notRead, ofValue, [&] { GravSettingsBase{value}; });
    for (const Value &bad : {Value(3), arrayOf(), structOf({}), structOf({{"tolerance", 0.5}}),
                             circuit("3", 0.5, 1), circuit(3.0, 0.5, 1)}) {
        const Value value = request(arrayOf(circuit(1, 0.5, 1), bad));
        expectRefusal("DE02407", notRead, ofValue, [&] { GravSettingsBase{value}; });
    }
    for (const QVariant &variant : {QVariant(), QVariant(3), QVariant("x"), QVariant(circuitMap(3, 0.5, 1)),
                                    QVariant::fromValue(GravimetricSettings())})
        expectRefusal("DE02408", noVariant, ofList, [&] { GravSettingsBase{List{variant}}; });
    for (const QVariant &bad :
         {QVariant(), QVariant(3), QVariant(QVariantMap()), QVariant(circuitMap("3", 0.5, 1)),
          QVariant(circuitMap(true, 0.5, 1)), QVariant(circuitMap(QVariant(), 0.5, 1)),
          QVariant(circuitMap(QPoint(3, 4), 0.5, 1))})
        expectRefusal("DE02408", noVariant, ofList, [&] { GravSettingsBase{listOf(bad)}; });
    expectRefusal("DE02408", noVariant, ofList, [] { GravSettingsBase{List()}; });
}

TEST(GravSettingsBase, differsInEachField)
{
    const GravSettingsBase base(circuits());
    const Circuits others[] = {{},
                               {{3, {0.25, 5}}},
                               {{3, {0.25, 5}}, {18, {0.5, 1}}},
                               {{3, {0.25, 4}}, {17, {0.5, 1}}},
                               {{3, {0.25, 5}}, {17, {0.6, 1}}}};
    for (const Circuits &other : others) {
        EXPECT_TRUE(base != GravSettingsBase(other));
        EXPECT_FALSE(base == GravSettingsBase(other));
    }
    static_assert(!std::is_constructible_v<GravSettingsBase, int>);
}

// ---------------------------------------------------------------- GET_GRAV_SETTINGS

TEST(GravSettingsAnswer, tellsTheSettings)
{
    EXPECT_EQ(GravSettingsAnswer().protoType(), 2);
    EXPECT_EQ(dumped(GravSettingsAnswer().toXmlRpcValue()), none);
    const GravSettingsAnswer answer(circuits());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), dump);
    EXPECT_TRUE(GravSettingsAnswer(answer.toXmlRpcValue()) == answer);
    List list = circuitsList();
    EXPECT_TRUE(GravSettingsAnswer(list) == answer);

    const std::unique_ptr<ProtoAnswer> copy(answer.clone());
    EXPECT_EQ(className(copy.get()), "GravSettingsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const GravSettingsAnswer empty;
    EXPECT_FALSE(answer.equalTo(&empty));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(empty.equalTo(&plain));
    EXPECT_FALSE(empty.equalTo(nullptr));
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { GravSettingsAnswer{Value()}; });
    static_assert(!std::is_constructible_v<GravSettingsAnswer, int>);
}

constexpr char getOfValue[] = "GetGravSettingsCmd::GetGravSettingsCmd(const XmlRpc::XmlRpcValue&)";
constexpr char getOfList[] = "GetGravSettingsCmd::GetGravSettingsCmd(QList<QVariant>)";

List positionsList(const QList<int> &positions)
{
    QVariantList variants;
    for (const int position : positions)
        variants << position;
    return List() << QVariant(variants);
}

CommandFacts getFacts()
{
    constexpr char notMade[] = "Failed to create GravSettingsAnswer";
    CommandFacts facts(formsOf<GetGravSettingsCmd>());
    facts.catalogue = {"GET_GRAV_SETTINGS", 127, "", 0};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = getOfValue;
    facts.listFunction = getOfList;
    facts.words = {"Gravimetric settings read", "Reading gravimetric settings"};
    facts.defaults = Request().written("[]");
    facts.requests = {
        Request(positionsList({3, 17}))
            .typed<GetGravSettingsCmd>(QList<int>{3, 17})
            .value(arrayOf(structOf({{"positions_id", arrayOf(3, 17)}})))
            .written(R"([{"positions_id": [3, 17]}])"),
        Request(List() << QVariant::fromValue(QList<int>{3}))
            .onlyFromList()
            .parameters(positionsList({3}))
            .written(R"([{"positions_id": [3]}])"),
        Request(positionsList({}))
            .value(arrayOf(structOf({{"positions_id", arrayOf()}})))
            .parameters({})
            .written("[]"),
        Request().typed<GetGravSettingsCmd>().written("[]"),
    };
    facts.answers = confAnswers();
    facts.answers.value = AnswerOfValue("GravSettingsAnswer", request(circuitsArray()), dump)
                              .failsWith("DE03325", notMade)
                              .refuses(Value(0), "DE02405", notRead, ofValue);
    facts.answers.list = AnswerOfList("GravSettingsAnswer", circuitsList(), dump)
                             .failsWith("DE03326", notMade)
                             .refuses({}, "DE02408", noVariant, ofList);
    return facts;
}

TEST(GetGravSettingsCmd, keepsTheCommandContract)
{
    expectCommandContract(getFacts());
}

TEST(GetGravSettingsCmd, holdsThePositions)
{
    EXPECT_EQ(GetGravSettingsCmd().positionsID(), QList<int>());
    EXPECT_EQ(GetGravSettingsCmd(arrayOf(structOf({{"positions_id", arrayOf(3, 17)}}))).positionsID(),
              (QList<int>{3, 17}));
    EXPECT_EQ(GetGravSettingsCmd(positionsList({17})).positionsID(), QList<int>{17});
}

TEST(GetGravSettingsCmd, refusesWhatIsNoPositions)
{
    constexpr char noInt[] = "GetGravSettingsCmd: expected INT parameter";
    constexpr char badForm[] = "GetGravSettingsCmd: error in xmlrpc decoding";
    for (const Value &argument : {Value(3), Value("x"), Value(true), arrayOf(3)})
        expectRefusal("DE02410", badForm, getOfValue, [&] { GetGravSettingsCmd{arrayOf(argument)}; });
    expectRefusal("DE02411", badForm, getOfValue, [] { GetGravSettingsCmd{arrayOf(structOf({}))}; });
    for (const Value &member : {Value(3), Value("x"), structOf({})}) {
        const Value value = arrayOf(structOf({{"positions_id", member}}));
        expectRefusal("DE02412", badForm, getOfValue, [&] { GetGravSettingsCmd{value}; });
    }
    for (const Value &element : {Value("3"), Value(3.0), Value(true), arrayOf(3)}) {
        const Value value = arrayOf(structOf({{"positions_id", arrayOf(1, element)}}));
        expectRefusal("DE02409", noInt, getOfValue, [&] { GetGravSettingsCmd{value}; });
    }
    for (const QVariant &argument : {QVariant(), QVariant(3), QVariant("x"), QVariant(QVariantMap())})
        expectRefusal("DE02412", badForm, getOfList, [&] { GetGravSettingsCmd(List{argument}); });
    for (const QVariant &element : {QVariant(), QVariant("3"), QVariant(3.0), QVariant(true)})
        expectRefusal("DE02409", noInt, getOfList, [&] { GetGravSettingsCmd(listOf(element)); });
    static_assert(!std::is_constructible_v<GetGravSettingsCmd, int>);
}

TEST(GetGravSettingsCmd, tellsItselfAndItsAnswer)
{
    EXPECT_EQ(argumentsOf("GET_GRAV_SETTINGS"),
              (Lines{"positions (struct) = {\"positions_id\": []}: \"positions_id\": an array of circuits' "
                     "positions; none stands for all (in a list the array alone)",
                     "  XML-RPC, another type: DE02410", "  list, another type: DE02412",
                     "  XML-RPC, a struct without the array: DE02411",
                     "  XML-RPC, positions_id is of another type: DE02412",
                     "  XML-RPC, an element of another type: DE02409",
                     "  list, an element of another type: DE02409"}));
    EXPECT_EQ(
        membersOf("GET_GRAV_SETTINGS"),
        (Lines{"GravSettingsAnswer",
               "circuits_grav_settings (array of structs): of each circuit \"position_id\", \"tolerance\" "
               "(grams) and \"max_corrections\"",
               "  XML-RPC, no struct: DE02405", "  XML-RPC, missing or another type: DE02406",
               "  XML-RPC, an element of another type: DE02407",
               "  XML-RPC, an element with a wrong member: DE03350",
               "  list, missing or another type: DE02408", "  XML-RPC, : DE03325", "  list, : DE03326"}));
}

// ---------------------------------------------------------------- SET_GRAV_SETTINGS

CommandFacts setFacts()
{
    CommandFacts facts(formsOf<SetGravSettingsCmd>());
    facts.catalogue = {"SET_GRAV_SETTINGS", 128, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.words = {"Gravimetric settings update", "Updating gravimetric settings"};
    facts.defaults = Request().parameters(List() << QVariant(QVariantList())).written(none);
    facts.requests = {
        Request(circuitsList())
            .typed<SetGravSettingsCmd>(circuits())
            .value(arrayOf(request(circuitsArray())))
            .written(dump),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(SetGravSettingsCmd, keepsTheCommandContract)
{
    expectCommandContract(setFacts());
}

TEST(SetGravSettingsCmd, isRefusedAsTheSettings)
{
    EXPECT_TRUE(SetGravSettingsCmd(circuitsList()).circuitsGravSettings() == circuits());
    expectRefusal("DE02405", notRead, ofValue, [] { SetGravSettingsCmd{arrayOf(3)}; });
    expectRefusal("DE02406", notRead, ofValue, [] { SetGravSettingsCmd{arrayOf(structOf({}))}; });
    expectRefusal("DE02407", notRead, ofValue, [] { SetGravSettingsCmd{arrayOf(request(arrayOf(3)))}; });
    expectRefusal("DE02408", noVariant, ofList, [] { SetGravSettingsCmd{List{3}}; });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { SetGravSettingsCmd{request(circuitsArray())}; });
    static_assert(!std::is_constructible_v<SetGravSettingsCmd, int>);
}

// ---------------------------------------------------------------- GE_TEST

constexpr char testOfValue[] = "GETestCmd::GETestCmd(const XmlRpc::XmlRpcValue&)";
constexpr char testOfList[] = "GETestCmd::GETestCmd(QList<QVariant>)";

Value testStruct()
{
    return structOf({{"current_scale_weight", 12.5},
                     {"driver_GE_settings", structOf({{"tolerance", 0.25}, {"max_corrections", 5}})}});
}

QVariantMap testMap(const QVariant &settings)
{
    return {{"current_scale_weight", 12.5}, {"driver_GE_settings", settings}};
}

CommandFacts testFacts()
{
    constexpr char notMade[] = "Failed to create GETestAnswer";
    constexpr char stepDump[] =
        R"({"req_percentage": 80, "req_weight": 1.50000, "speed": 60, "steps": 1200})";
    const QVariant object = QVariant::fromValue(GravimetricSettings(0.25, 5));
    CommandFacts facts(formsOf<GETestCmd>());
    facts.catalogue = {"GE_TEST", 116, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = testOfValue;
    facts.listFunction = testOfList;
    facts.defaults =
        Request()
            .parameters({QVariantMap{{"current_scale_weight", 0.0},
                                     {"driver_GE_settings", QVariant::fromValue(GravimetricSettings())}}})
            .written(R"([{"current_scale_weight": 0.00000, )"
                     R"("driver_GE_settings": {"max_corrections": 3, "tolerance": 0.0500000}}])");
    facts.requests = {
        Request({testMap(object)})
            .typed<GETestCmd>(12.5, GravimetricSettings(0.25, 5))
            .value(arrayOf(testStruct()))
            .written(R"([{"current_scale_weight": 12.5000, )"
                     R"("driver_GE_settings": {"max_corrections": 5, "tolerance": 0.250000}}])"),
    };
    facts.requests.push_back(
        facts.requests[0].alsoFromList({testMap(QVariantMap{{"tolerance", 0.25}, {"max_corrections", 5}})}));
    facts.answers = confAnswers();
    facts.answers.value =
        AnswerOfValue("GETestAnswer",
                      structOf({{"steps", 1200}, {"speed", 60}, {"req_weight", 1.5}, {"req_percentage", 80}}),
                      stepDump)
            .failsWith("DE03327", notMade)
            .refuses(Value(0), "DE02226",
                     "GETestAnswer decoding failed: invalid QVariant value (expected int type)",
                     "GETestAnswer::GETestAnswer(const XmlRpc::XmlRpcValue&)");
    facts.answers.list = AnswerOfList("GETestAnswer", {1200, 60, 1.5, 80}, stepDump)
                             .failsWith("DE03328", notMade)
                             .refuses({1200}, "DE02225", "GETestAnswer decoding failed: bad parameters",
                                      "GETestAnswer::GETestAnswer(QList<QVariant>&)");
    return facts;
}

TEST(GETestCmd, keepsTheCommandContract)
{
    expectCommandContract(testFacts());
}

TEST(GETestCmd, holdsWeightAndSettings)
{
    const GETestCmd command(arrayOf(testStruct()));
    EXPECT_DOUBLE_EQ(command.currentScaleWeight(), 12.5);
    EXPECT_TRUE(command.gravimetricSettings() == GravimetricSettings(0.25, 5));
}

TEST(GETestCmd, refusesWhatIsNoTest)
{
    constexpr char noStruct[] = "Parameters must be in struct form";
    constexpr char noWeight[] = "Expected current weight";
    constexpr char noSettings[] = "GETestCmd failed: internal error";
    for (const Value &argument : {Value(12.5), Value("x"), Value(true), arrayOf(testStruct())})
        expectRefusal("DE02230", noStruct, testOfValue, [&] { GETestCmd{arrayOf(argument)}; });
    for (const QVariant &argument :
         {QVariant(), QVariant(12.5), QVariant("x"), QVariant::fromValue(GravimetricSettings()),
          QVariant(QVariantList{testMap(QVariantMap())})})
        expectRefusal("DE02230", noStruct, testOfList, [&] { GETestCmd(List{argument}); });

    Value bad = testStruct();
    bad["current_scale_weight"] = "12.5";
    for (const Value &argument : {structOf({}), bad})
        expectRefusal("DE02231", noWeight, testOfValue, [&] { GETestCmd{arrayOf(argument)}; });
    QVariantMap badMap = testMap(QVariantMap());
    badMap["current_scale_weight"] = true;
    QVariantMap emptyWeight = testMap(QVariantMap());
    emptyWeight["current_scale_weight"] = QVariant();
    for (const QVariantMap &argument : {QVariantMap(), badMap, emptyWeight})
        expectRefusal("DE02231", noWeight, testOfList, [&] { GETestCmd(List{argument}); });

    const Value onlyWeight = structOf({{"current_scale_weight", 12.5}});
    expectRefusal("DE02232", noSettings, testOfValue, [&] { GETestCmd{arrayOf(onlyWeight)}; });
    expectRefusal("DE02232", noSettings, testOfList, [] {
        GETestCmd(List{QVariantMap{{"current_scale_weight", 12.5}}});
    });
    constexpr char noMembers[] = "Machine data: must be a struct";
    expectRefusal("DE03350", noMembers, ofSettings, [] {
        GETestCmd{arrayOf(structOf({{"current_scale_weight", 12.5}, {"driver_GE_settings", 7}}))};
    });
    for (const QVariant &settings : {QVariant(), QVariant(7)})
        expectRefusal("DE03350", noMembers, ofSettings, [&] { GETestCmd(List{testMap(settings)}); });
    expectRefusal("DE03350", "Machine data: tolerance must be a number from 0 to 1000000000", ofSettings, [] {
        GETestCmd(List{testMap(QVariantMap{{"tolerance", QVariant()}})});
    });
    static_assert(!std::is_constructible_v<GETestCmd, double>);
}

TEST(GETestCmd, tellsItsArgument)
{
    const Lines lines = argumentsOf("GE_TEST");
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(Lines(lines.begin() + 1, lines.end()),
              (Lines{"  XML-RPC, another type: DE02230", "  list, another type: DE02230",
                     "  XML-RPC, current_scale_weight is missing or of another type: DE02231",
                     "  list, current_scale_weight is missing or of another type: DE02231",
                     "  XML-RPC, driver_GE_settings is missing: DE02232",
                     "  list, driver_GE_settings is missing: DE02232",
                     "  XML-RPC, driver_GE_settings is wrong: DE03350"}));
}

} // namespace
