// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getcalibrationlistanswer.h"
#include "calibration/getrecalibrationlistanswer.h"
#include "calibration/setcalibrationlistcmd.h"
#include "calibration/setrecalibrationlistcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/outofmemory.h"
#include "calibration/calibrationtesting.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <memory>
#include <optional>
#include <type_traits>

namespace {

using namespace testing_calibration;

/** What the data themselves refuse a struct with that has a position alone. */
struct OwnRefusal
{
    std::string code;
    std::string text;
    std::string function;
};

/** What is alike in the two kinds of calibrations: how a class that carries them is read and refused. */
struct Facts
{
    std::string className;
    const char *dataName;
    const char *noList; ///< codes
    const char *notMadeOfValue;
    const char *otherVariant;
    const char *notMadeOfVariant;
    Value structs;
    List objects; ///< each in a variant of its own
    List maps;
    QVariant together; ///< all in one variant
    std::optional<OwnRefusal> ofData;
};

Facts calibrationFacts(const char *className, const char *noList, const char *notMadeOfValue,
                       const char *otherVariant, const char *notMadeOfVariant)
{
    List maps;
    for (const CalibrationData &data : calibrations())
        maps.append(QVariant::fromValue(data).toMap());
    return {className,
            "CalibrationData",
            noList,
            notMadeOfValue,
            otherVariant,
            notMadeOfVariant,
            calibrationStructs(),
            each(calibrations()),
            maps,
            QVariant::fromValue(calibrations()),
            {}};
}

Facts recalibrationFacts(const char *className, const char *noList, const char *notMadeOfValue,
                         const char *otherVariant, const char *notMadeOfVariant)
{
    return {className,
            "BasicCalibrationData",
            noList,
            notMadeOfValue,
            otherVariant,
            notMadeOfVariant,
            recalibrationStructs(),
            each(recalibrations()),
            recalibrationMaps(),
            QVariant::fromValue(recalibrations()),
            OwnRefusal{"DE02653", "BasicCalibrationData: errors during BasicCalibrationPoint creation",
                       "BasicCalibrationData::BasicCalibrationData(const XmlRpc::XmlRpcValue&)"}};
}

Facts getCalibrations()
{
    return calibrationFacts("GetCalibrationListAnswer", "DE00875", "DE00874", "DE00871", "DE00858");
}
Facts getRecalibrations()
{
    return recalibrationFacts("GetRecalibrationListAnswer", "DE02640", "DE02639", "DE02638", "DE02637");
}
Facts setCalibrations()
{
    return calibrationFacts("SetCalibrationListCmd", "DE00887", "DE00886", "DE00893", "DE00892");
}
Facts setRecalibrations()
{
    return recalibrationFacts("SetRecalibrationListCmd", "DE02646", "DE02645", "DE02648", "DE02647");
}

/** An answer takes the struct itself, a command an array of it. */
Value argumentOf(const ConfProtoAnswer *, const Value &value)
{
    return value;
}
Value argumentOf(const ConfProtoCommand *, const Value &value)
{
    return arrayOf(value);
}
std::string sourceOfList(const ConfProtoAnswer *)
{
    return "(QList<QVariant>&)";
}
std::string sourceOfList(const ConfProtoCommand *)
{
    return "(QList<QVariant>)";
}

template <class Class>
constexpr const Class *null = nullptr;

template <class Work>
void expectBadElementRefused(const OwnRefusal &refusal, Work work)
{
    expectRefusal(refusal.code.c_str(), refusal.text.c_str(), refusal.function.c_str(), work);
}

template <class Class>
void expectValuesRead(const Facts &facts)
{
    SCOPED_TRACE(facts.className);
    const auto made = [](const Value &value) { return Class(argumentOf(null<Class>, value)); };
    const std::string function = facts.className + "::" + facts.className + "(const XmlRpc::XmlRpcValue&)";
    const auto whole = structOf({{"calibrations_list", facts.structs}});
    EXPECT_EQ(each(made(whole).calibrations()), facts.objects);
    EXPECT_TRUE(made(structOf({{"calibrations_list", arrayOf()}})).calibrations().isEmpty());

    const std::string noList = facts.className + ": cannot find calibrations list tag";
    for (const Value &bad :
         {Value(7), Value("x"), facts.structs, structOf({}), structOf({{"calibrations_list", 7}}),
          structOf({{"calibrations_list", facts.structs[0]}})})
        expectRefusal(facts.noList, noList.c_str(), function.c_str(), [&] { made(bad); });

    const Value bad = arrayOf(facts.structs[0], structOf({{"position_id", 3}}));
    const std::string notMade = facts.className + ": errors during " + facts.dataName + " creation";
    expectBadElementRefused(facts.ofData.value_or(OwnRefusal{facts.notMadeOfValue, notMade, function}), [&] {
        made(structOf({{"calibrations_list", bad}}));
    });

    const Value last = argumentOf(null<Class>, structOf({{"calibrations_list", arrayOf(facts.structs[1])}}));
    expectRefusal(facts.notMadeOfValue, notMade.c_str(), function.c_str(),
                  [&] { outOfMemoryOnce([&] { Class{last}; }); });
}

template <class Class>
void expectListsRead(const Facts &facts)
{
    SCOPED_TRACE(facts.className);
    const auto made = [](List list) { return Class(list); };
    const std::string function = facts.className + "::" + facts.className + sourceOfList(null<Class>);
    for (const List &list :
         {facts.objects, facts.maps, List{facts.objects[0], facts.maps[1]}, List{facts.together},
          List{QVariant(facts.objects)}, List{QVariant(facts.maps)}}) {
        SCOPED_TRACE(shown(list));
        EXPECT_EQ(each(made(list).calibrations()), facts.objects);
    }
    EXPECT_EQ(each(made({facts.objects[1]}).calibrations()), List{facts.objects[1]});
    EXPECT_TRUE(made({QVariant(List{})}).calibrations().isEmpty());

    const std::string invalid = facts.className + " decoding failed: invalid QVariant value";
    const QVariant good = facts.objects[0];
    for (const QVariant &bad : {QVariant(), QVariant(7), QVariant("x"), QVariant(QVariantMap()),
                                QVariant(QVariantMap{{"calibrations_list", List{good}}})}) {
        SCOPED_TRACE(shown({bad}));
        for (const List &list :
             {List{bad}, List{good, bad}, List{bad, good}, List{QVariant(List{good, bad})}})
            expectRefusal(facts.otherVariant, invalid.c_str(), function.c_str(), [&] { made(list); });
    }
    expectRefusal(facts.otherVariant, invalid.c_str(), function.c_str(), [&] {
        made({facts.together, facts.together});
    });
    const std::string notMade = facts.className + ": errors during " + facts.dataName + " creation";
    expectBadElementRefused(facts.ofData.value_or(OwnRefusal{facts.notMadeOfVariant, notMade, function}),
                            [&] {
                                made({good, QVariantMap{{"position_id", 3}}});
                            });
    List last = {facts.objects[1]};
    expectRefusal(facts.notMadeOfVariant, notMade.c_str(), function.c_str(),
                  [&] { outOfMemoryOnce([&] { Class{last}; }); });
}

TEST(GetCalibrationListAnswer, reads)
{
    expectValuesRead<GetCalibrationListAnswer>(getCalibrations());
    expectListsRead<GetCalibrationListAnswer>(getCalibrations());
}

TEST(GetRecalibrationListAnswer, reads)
{
    expectValuesRead<GetRecalibrationListAnswer>(getRecalibrations());
    expectListsRead<GetRecalibrationListAnswer>(getRecalibrations());
}

TEST(SetCalibrationListCmd, reads)
{
    EXPECT_STREQ(SetCalibrationListCmd::calibrationList_TAG, "calibrations_list");
    expectValuesRead<SetCalibrationListCmd>(setCalibrations());
    expectListsRead<SetCalibrationListCmd>(setCalibrations());
}

TEST(SetRecalibrationListCmd, reads)
{
    expectValuesRead<SetRecalibrationListCmd>(setRecalibrations());
    expectListsRead<SetRecalibrationListCmd>(setRecalibrations());
}

template <class Answer, class Data>
void expectWrittenAndCompared(const QList<Data> &two, const std::string &dump)
{
    const Answer answer(two);
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"calibrations_list": )" + dump + "}");
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"calibrations_list": []})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()).calibrations(), two);
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)", [] { Answer{Value()}; });
    List none;
    EXPECT_EQ(Answer(none), Answer());

    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), className(&answer));
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const QList<Data> &others : {QList<Data>(), two.mid(0, 1), QList<Data>{two[1], two[0]}}) {
        const Answer other(others);
        EXPECT_FALSE(answer.equalTo(&other));
        EXPECT_TRUE(answer != other);
    }
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetCalibrationListAnswer, isWrittenAndCompared)
{
    expectWrittenAndCompared<GetCalibrationListAnswer>(calibrations(), calibrationsDump());
}

TEST(GetRecalibrationListAnswer, isWrittenAndCompared)
{
    expectWrittenAndCompared<GetRecalibrationListAnswer>(recalibrations(), recalibrationsDump());
}

template <class Cmd, class Data>
void expectCommandKeepsTheContract(const CatalogueFacts &catalogue, const Facts &reading,
                                   const QList<Data> &two, const std::string &dump)
{
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = catalogue;
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = reading.className + "::" + reading.className + "(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = reading.className + "::" + reading.className + "(QList<QVariant>)";
    facts.getters = {getter(&Cmd::calibrations)};
    const List none = {QVariant::fromValue(QList<Data>())};
    facts.defaults = Request().parameters(none).written(R"([{"calibrations_list": []}])");
    const Request whole = Request({reading.together})
                              .template typed<Cmd>(two)
                              .value(arrayOf(structOf({{"calibrations_list", reading.structs}})))
                              .written(R"([{"calibrations_list": )" + dump + "}]");
    facts.requests = {
        whole,
        whole.alsoFromList(reading.objects),
        whole.alsoFromList({QVariant(reading.maps)}),
        Request({QVariant(List{})})
            .value(arrayOf(structOf({{"calibrations_list", arrayOf()}})))
            .parameters(none)
            .written(R"([{"calibrations_list": []}])"),
    };
    facts.answers = confAnswers();
    expectCommandContract(facts);
    static_assert(!std::is_constructible_v<Cmd, int>);
    static_assert(!std::is_constructible_v<Cmd, const char *>);
}

TEST(SetCalibrationListCmd, keepsTheCommandContract)
{
    expectCommandKeepsTheContract<SetCalibrationListCmd>({"SET_CALIB_LIST", 71, "", 1}, setCalibrations(),
                                                         calibrations(), calibrationsDump());
}

TEST(SetRecalibrationListCmd, keepsTheCommandContract)
{
    expectCommandKeepsTheContract<SetRecalibrationListCmd>(
        {"SET_RECALIB_LIST", 147, "", 1}, setRecalibrations(), recalibrations(), recalibrationsDump());
}

/** A calibration that is refused has the code of who holds it, and what the framework refuses the framework's. */
template <class Class>
void expectBadCalibrationsRefused(const Facts &facts)
{
    SCOPED_TRACE(facts.className);
    const std::string ofValue = facts.className + "::" + facts.className + "(const XmlRpc::XmlRpcValue&)";
    const std::string ofList = facts.className + "::" + facts.className + sourceOfList(null<Class>);
    const std::string notMade = facts.className + ": errors during CalibrationData creation";
    const Value good = facts.structs[0];
    const auto expectRefused = [&](const Value &bad, const char *code, const std::string &text,
                                   const std::string &function) {
        SCOPED_TRACE(dumped(bad));
        const Value list = structOf({{"calibrations_list", arrayOf(good, bad)}});
        expectRefusal(code, text.c_str(), function.c_str(), [&] { Class{argumentOf(null<Class>, list)}; });
    };
    const auto expectMapRefused = [&](const Value &bad, const char *code, const std::string &text,
                                      const std::string &function) {
        SCOPED_TRACE(dumped(bad));
        const QVariant map = DecodeXmlRpcVariant(bad);
        for (List list : {List{facts.maps[0], map}, List{map}, List{QVariant(List{facts.objects[0], map})}})
            expectRefusal(code, text.c_str(), function.c_str(), [&] { Class{list}; });
    };
    for (const Value &bad : {Value(7), arrayOf(), structOf({}), without(good, "position_id")})
        expectRefused(bad, facts.notMadeOfValue, notMade, ofValue);
    for (const Value &bad :
         {with(good, "position_id", "3"), with(good, "position_id", 3.5), without(good, "pump_info"),
          with(good, "pump_info", arrayOf()), without(good, "circuit_calibrations"),
          with(good, "circuit_calibrations", 7), with(good, "circuit_calibrations", arrayOf(7))}) {
        expectRefused(bad, facts.notMadeOfValue, notMade, ofValue);
        expectMapRefused(bad, facts.notMadeOfVariant, notMade, ofList);
    }
    const Value badMotor = with(good, "pump_info", structOf({{"max_speed", "x"}}));
    const auto refusesMotor = [&](const auto &expect) {
        expect(badMotor, "DE03350", "Machine data: max_speed must be an integer from 0 to 2147483647",
               "FW_DosingMotor::FW_DosingMotor(const XmlRpc::XmlRpcValue&)");
    };
    refusesMotor(expectRefused);
    refusesMotor(expectMapRefused);
}

TEST(CalibrationLists, areRefusedForABadCalibration)
{
    expectBadCalibrationsRefused<GetCalibrationListAnswer>(getCalibrations());
    expectBadCalibrationsRefused<SetCalibrationListCmd>(setCalibrations());
}

TEST(CalibrationLists, areExplained)
{
    EXPECT_EQ(argumentsOf("SET_CALIB_LIST"),
              (Lines{"calibrations (struct): member \"calibrations_list\": an array of structs, each "
                     "\"position_id\", \"pump_info\" (the motor) and \"circuit_calibrations\"",
                     "  XML-RPC, without calibrations_list, or no array there: DE00887",
                     "  list, another type: DE00893", "  XML-RPC, with a bad calibration: DE00886",
                     "  list, with a bad calibration: DE00892",
                     "  XML-RPC, a motor or a calibration with a wrong member: DE03350"}));
    EXPECT_EQ(
        membersOf("GET_CALIB_LIST"),
        (Lines{"GetCalibrationListAnswer",
               "calibrations_list (array of structs): of each circuit its position, its motor and its "
               "calibrations",
               "  XML-RPC, missing or another type: DE00875",
               "  XML-RPC, an element with a wrong member: DE03350",
               "  XML-RPC, an element of another type: DE00874", "  list, missing or another type: DE00871",
               "  list, an element that cannot be made: DE00858", "  XML-RPC, : DE01297",
               "  list, : DE00346"}));
    const Lines recalibration = membersOf("GET_RECALIB_LIST");
    EXPECT_EQ(recalibration[0], "GetRecalibrationListAnswer");
    EXPECT_EQ(recalibration[3], "  XML-RPC, an element without a good position_id: DE02641");
    EXPECT_EQ(argumentsOf("SET_RECALIB_LIST").size(), 11U);
}

} // namespace
