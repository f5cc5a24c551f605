// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getqrcodecalibrationanswer.h"
#include "calibration/getqrcodecalibrationcmd.h"
#include "calibration/setqrcodecalibrationcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/translatedtexts.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

constexpr char noTexts[] = "GetQRCodeCalibrationAnswer: expected encoded data list value";
constexpr char ofAnswerValue[] =
    "GetQRCodeCalibrationAnswer::GetQRCodeCalibrationAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofAnswerList[] = "GetQRCodeCalibrationAnswer::GetQRCodeCalibrationAnswer(QList<QVariant>&)";
constexpr char ofGetValue[] = "GetQRCodeCalibrationCmd::GetQRCodeCalibrationCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofGetList[] = "GetQRCodeCalibrationCmd::GetQRCodeCalibrationCmd(QList<QVariant>)";
constexpr char noDensity[] = "GetQRCodeCalibrationCmd: expected INT density parameter";
constexpr char ofSetValue[] = "SetQRCodeCalibrationCmd::SetQRCodeCalibrationCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofSetList[] = "SetQRCodeCalibrationCmd::SetQRCodeCalibrationCmd(QList<QVariant>)";

// ---------------------------------------------------------------- density

TEST(QRCodeDensity, isToldInWords)
{
    const auto unknown = static_cast<QRCodeDensity>(2);
    EXPECT_EQ(static_cast<int>(QRCodeDensity::Low), 0);
    EXPECT_EQ(static_cast<int>(QRCodeDensity::Normal), 1);
    EXPECT_EQ(getQRCodeDensityStr(QRCodeDensity::Low), "Low");
    EXPECT_EQ(getQRCodeDensityStr(QRCodeDensity::Normal), "Normal");
    EXPECT_EQ(getQRCodeDensityStr(unknown), "");
    EXPECT_EQ(getQRCodeDensityStr(static_cast<QRCodeDensity>(-1)), "");
    const TranslatedTexts translated;
    EXPECT_EQ(getQRCodeDensityStr(QRCodeDensity::Low), translation("Low"));
    EXPECT_EQ(getQRCodeDensityStr(QRCodeDensity::Normal), translation("Normal"));
    EXPECT_EQ(getQRCodeDensityStr(unknown), "");
}

// ---------------------------------------------------------------- GET_QRCODE_CALIB

Value densityOf(const Value &density)
{
    return arrayOf(structOf({{"qr_code_density", density}}));
}

CommandFacts getFacts()
{
    constexpr char written[] = R"({"encoded_data_list": ["Q1;7", "Q2;8"]})";
    CommandFacts facts(formsOf<GetQRCodeCalibrationCmd>());
    facts.catalogue = {"GET_QRCODE_CALIB", 145, "", 0};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = ofGetValue;
    facts.listFunction = ofGetList;
    facts.getters = {getter(&GetQRCodeCalibrationCmd::density)};
    facts.words = silence();
    facts.defaults = Request().parameters({1}).written(R"([{"qr_code_density": 1}])");
    facts.requests = {
        Request({0})
            .typed<GetQRCodeCalibrationCmd>(QRCodeDensity::Low)
            .value(densityOf(0))
            .written(R"([{"qr_code_density": 0}])"),
        Request({2}).value(densityOf(2)).written(R"([{"qr_code_density": 2}])"),
        Request().value(arrayOf()).parameters({1}).written(R"([{"qr_code_density": 1}])"),
    };
    facts.answers = confAnswers();
    facts.answers.value = AnswerOfValue("GetQRCodeCalibrationAnswer",
                                        structOf({{"encoded_data_list", arrayOf("Q1;7", "Q2;8")}}), written)
                              .failsWith("DE01297", "Failed to create answer")
                              .refuses(Value(0), "DE03372", noTexts, ofAnswerValue);
    facts.answers.list = AnswerOfList("GetQRCodeCalibrationAnswer", {"Q1;7", "Q2;8"}, written)
                             .failsWith("DE00346", "Failed to create answer")
                             .refuses({7}, "DE03372", noTexts, ofAnswerList);
    return facts;
}

TEST(GetQRCodeCalibrationCmd, keepsTheCommandContract)
{
    EXPECT_STREQ(GetQRCodeCalibrationCmd::QRCodeDensity_TAG, "qr_code_density");
    expectCommandContract(getFacts());
}

TEST(GetQRCodeCalibrationCmd, refusesWhatIsNoDensity)
{
    for (const Value &bad :
         {arrayOf(1), arrayOf("x"), arrayOf(arrayOf(1)), arrayOf(structOf({})),
          arrayOf(structOf({{"density", 1}})), densityOf(1.0), densityOf(true), densityOf("1")}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE03371", noDensity, ofGetValue, [&] { GetQRCodeCalibrationCmd{bad}; });
    }
    for (const QVariant &bad : {QVariant(), QVariant(1.0), QVariant(true), QVariant("1"),
                                QVariant(QVariantMap{{"qr_code_density", 1}}), QVariant(4294967296LL)}) {
        SCOPED_TRACE(shown({bad}));
        expectRefusal("DE03371", noDensity, ofGetList, [&] { GetQRCodeCalibrationCmd{List{bad}}; });
    }
    static_assert(!std::is_constructible_v<GetQRCodeCalibrationCmd, int>);
    static_assert(!std::is_constructible_v<GetQRCodeCalibrationCmd, const char *>);
}

// ---------------------------------------------------------------- its answer

TEST(GetQRCodeCalibrationAnswer, travelsAsAStruct)
{
    EXPECT_STREQ(GetQRCodeCalibrationAnswer::encodedDataList_TAG, "encoded_data_list");
    const QStringList texts = {"Q1;7", QString::fromUtf8("T\xC3\xBCr"), ""};
    const GetQRCodeCalibrationAnswer answer(texts);
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), "{\"encoded_data_list\": [\"Q1;7\", \"T\xC3\xBCr\", \"\"]}");
    EXPECT_EQ(GetQRCodeCalibrationAnswer(answer.toXmlRpcValue()).encodedDataList(), texts);
    EXPECT_EQ(dumped(GetQRCodeCalibrationAnswer().toXmlRpcValue()), R"({"encoded_data_list": []})");
    for (List list :
         {List{texts[0], texts[1], texts[2]}, List{texts}, List{QVariant(List{texts[0], texts[1], ""})}}) {
        SCOPED_TRACE(shown(list));
        EXPECT_EQ(GetQRCodeCalibrationAnswer(list), answer);
    }
    List one = {"Q1;7"};
    EXPECT_EQ(GetQRCodeCalibrationAnswer(one).encodedDataList(), QStringList{"Q1;7"});
    List none;
    EXPECT_EQ(GetQRCodeCalibrationAnswer(none), GetQRCodeCalibrationAnswer());
}

TEST(GetQRCodeCalibrationAnswer, refusesOtherThings)
{
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { GetQRCodeCalibrationAnswer{Value()}; });
    for (const Value &bad : {Value(7), arrayOf("Q1"), structOf({}), structOf({{"encoded_data_list", "Q1"}}),
                             structOf({{"encoded_data_list", arrayOf("Q1", 7)}}),
                             structOf({{"encoded_data_list", structOf({})}})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE03372", noTexts, ofAnswerValue, [&] { GetQRCodeCalibrationAnswer{bad}; });
    }
    for (List bad : {List{7}, List{"Q1", 7}, List{QVariant()}, List{QVariant(List{"Q1", true})},
                     List{QStringList{"Q1"}, QStringList{"Q2"}}, List{QVariantMap()}}) {
        SCOPED_TRACE(shown(bad));
        expectRefusal("DE03372", noTexts, ofAnswerList, [&] { GetQRCodeCalibrationAnswer{bad}; });
    }
}

TEST(GetQRCodeCalibrationAnswer, clonesAndCompares)
{
    const GetQRCodeCalibrationAnswer answer(QStringList{"Q1", "Q2"});
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetQRCodeCalibrationAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const QStringList &texts : {QStringList(), QStringList{"Q1"}, QStringList{"Q2", "Q1"}}) {
        const GetQRCodeCalibrationAnswer other(texts);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    EXPECT_FALSE(answer.equalTo(nullptr));
}

// ---------------------------------------------------------------- SET_QRCODE_CALIB

Value textOf(const Value &text)
{
    return arrayOf(structOf({{"qr_code_calibration", text}}));
}

CommandFacts setFacts()
{
    const QString unicode = QString::fromUtf8("T\xC3\xBCr");
    CommandFacts facts(formsOf<SetQRCodeCalibrationCmd>());
    facts.catalogue = {"SET_QRCODE_CALIB", 107, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = ofSetValue;
    facts.listFunction = ofSetList;
    facts.getters = {getter(&SetQRCodeCalibrationCmd::calibration)};
    facts.words = silence();
    facts.defaults = Request().parameters({""}).written(R"([{"qr_code_calibration": ""}])");
    facts.requests = {
        Request({"Q1;7"})
            .typed<SetQRCodeCalibrationCmd>(QString("Q1;7"))
            .value(textOf("Q1;7"))
            .written(R"([{"qr_code_calibration": "Q1;7"}])"),
        Request({unicode})
            .typed<SetQRCodeCalibrationCmd>(unicode)
            .value(textOf("T\xC3\xBCr"))
            .written("[{\"qr_code_calibration\": \"T\xC3\xBCr\"}]"),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(SetQRCodeCalibrationCmd, keepsTheCommandContract)
{
    EXPECT_STREQ(SetQRCodeCalibrationCmd::QRCodeCalibration_TAG, "qr_code_calibration");
    expectCommandContract(setFacts());
}

TEST(SetQRCodeCalibrationCmd, refusesWhatIsNoText)
{
    for (const Value &bad : {arrayOf("Q1"), arrayOf(7), arrayOf(structOf({})), arrayOf(arrayOf("Q1")),
                             textOf(7), textOf(true), textOf(arrayOf("Q1"))}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01986", "SetQRCodeCalibrationCmd decoding failed: invalid xmlrpc value", ofSetValue,
                      [&] { SetQRCodeCalibrationCmd{bad}; });
    }
    for (const QVariant &bad : {QVariant(), QVariant(7), QVariant(true), QVariant(QByteArray("Q1")),
                                QVariant(QVariantMap{{"qr_code_calibration", "Q1"}})}) {
        SCOPED_TRACE(shown({bad}));
        expectRefusal("DE01987", "SetQRCodeCalibrationCmd decoding failed: invalid QVariant value", ofSetList,
                      [&] { SetQRCodeCalibrationCmd{List{bad}}; });
    }
    static_assert(!std::is_constructible_v<SetQRCodeCalibrationCmd, int>);
    static_assert(!std::is_constructible_v<SetQRCodeCalibrationCmd, const char *>);
}

TEST(QRCodeCalibration, isExplained)
{
    EXPECT_EQ(
        argumentsOf("GET_QRCODE_CALIB"),
        (Lines{
            "density (struct) = {\"qr_code_density\": 1}: member \"qr_code_density\": 0 low, 1 normal (in a "
            "list the number itself)",
            "  XML-RPC, without qr_code_density, or no int there: DE03371",
            "  list, another type: DE03371"}));
    EXPECT_EQ(
        argumentsOf("SET_QRCODE_CALIB"),
        (Lines{
            "calibration (struct): member \"qr_code_calibration\": the text of the code (in a list the text "
            "itself)",
            "  XML-RPC, without qr_code_calibration, or no string there: DE01986",
            "  list, another type: DE01987"}));
    EXPECT_EQ(
        membersOf("GET_QRCODE_CALIB"),
        (Lines{"GetQRCodeCalibrationAnswer",
               "encoded_data_list (array of strings): the texts of the codes, in their order",
               "  XML-RPC, missing or another type: DE03372", "  list, missing or another type: DE03372",
               "  XML-RPC, : DE01297", "  list, : DE00346"}));
}

} // namespace
