// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/addstatserrorscmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"

namespace {

using namespace testing_base;

constexpr char ofValue[] = "AddStatsErrorsCmd::AddStatsErrorsCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "AddStatsErrorsCmd::AddStatsErrorsCmd(QList<QVariant>)";
constexpr char noErrors[] = "Expected error list parameter";
constexpr char errorTime[] = "2024-02-29T23:59:58.123Z";

Value driverError()
{
    return structOf(
        {{"error_type", 1}, {"timestamp", errorTime}, {"code", "DE00337"}, {"text", "no command"}});
}

Value hardwareError()
{
    return structOf({{"error_type", 2},
                     {"timestamp", errorTime},
                     {"code", 17},
                     {"module", 3},
                     {"value", 4},
                     {"device", 4},
                     {"flag", true}});
}

FW_ErrorList twoErrors()
{
    return FW_ErrorList(arrayOf(driverError(), hardwareError()));
}

QVariant variantOf(const FW_ErrorList &errors)
{
    return QVariant::fromValue(errors);
}

Value requestOf(const Value &errors)
{
    return arrayOf(structOf({{"error_list", errors}}));
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<AddStatsErrorsCmd>());
    facts.catalogue = {"ADD_STATS_ERRORS", 158, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.getters = {getter(&AddStatsErrorsCmd::errorList)};
    facts.words = Words("Add stats errors", "Adding stats errors");
    facts.defaults = Request().parameters({variantOf({})}).written(R"([{"error_list": []}])");
    facts.requests = {
        Request({variantOf(twoErrors())})
            .typed<AddStatsErrorsCmd>(twoErrors())
            .value(requestOf(arrayOf(driverError(), hardwareError())))
            .written(R"([{"error_list": [{"code": "DE00337", "error_type": 1, "text": "no command", )"
                     R"("timestamp": "2024-02-29T23:59:58.123Z"}, {"code": 17, "device": 4, )"
                     R"("error_type": 2, "flag": true, "module": 3, )"
                     R"("timestamp": "2024-02-29T23:59:58.123Z", "value": 4}]}])"),
        Request({variantOf({})})
            .typed<AddStatsErrorsCmd>(FW_ErrorList())
            .value(requestOf(arrayOf()))
            .written(R"([{"error_list": []}])"),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(AddStatsErrorsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(AddStatsErrorsCmd, namesItsMember)
{
    EXPECT_STREQ(AddStatsErrorsCmd::errorList_TAG, "error_list");
    static_assert(!std::is_constructible_v<AddStatsErrorsCmd, int>);
}

TEST(AddStatsErrorsCmd, needsAStructOfErrors)
{
    for (const Value &request : {arrayOf(5), arrayOf("text"), arrayOf(arrayOf(driverError())),
                                 arrayOf(structOf({})), arrayOf(structOf({{"errors", arrayOf()}})),
                                 requestOf(5), requestOf("text"), requestOf(driverError())}) {
        SCOPED_TRACE(dumped(request));
        expectRefusal("DE02896", noErrors, ofValue, [&] { const AddStatsErrorsCmd command(request); });
    }
    expectRefusal("DE03007", "FW_Error: unknown error type",
                  "static FW_Error* FW_Error::fromXmlRpcValue(const XmlRpc::XmlRpcValue&)",
                  [] { const AddStatsErrorsCmd command(requestOf(arrayOf(driverError(), 5))); });
}

TEST(AddStatsErrorsCmd, needsAListOfErrors)
{
    const QVariant error = QVariant::fromValue(FW_DriverError("DE00337", "no command"));
    for (const QVariant &other :
         {QVariant(), QVariant(5), QVariant("text"), error, QVariant(QVariantMap{{"error_list", List()}}),
          QVariant(QStringList{"text"}), QVariant(List{5}), QVariant(List{error, QVariant()}),
          QVariant(List{error, "text"})}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE02897", noErrors, ofList, [&] { const AddStatsErrorsCmd command(List{other}); });
    }
    expectRefusal("DE03007", "FW_Error: unknown error type",
                  "static FW_Error* FW_Error::fromXmlRpcValue(const XmlRpc::XmlRpcValue&)", [] {
                      const AddStatsErrorsCmd command(List{QVariant(List{QVariantMap{{"code", 17}}})});
                  });
}

TEST(AddStatsErrorsCmd, takesErrorsAsVariantsToo)
{
    const QVariantMap hardware = {
        {"error_type", 2}, {"timestamp", errorTime}, {"code", 17}, {"module", 3}, {"value", 4}, {"device", 4},
        {"flag", true}};
    const List errors = {QVariant::fromValue(FW_DriverError("DE00337", "no command")), hardware};
    EXPECT_EQ(AddStatsErrorsCmd(List{QVariant(errors)}).errorList(), twoErrors());
    EXPECT_TRUE(AddStatsErrorsCmd(List{QVariant(List())}).errorList().isEmpty());
    EXPECT_EQ(
        AddStatsErrorsCmd(
            List{QVariant(List{QVariant::fromValue(FW_HwError(17, 3, 4, true, SerialDeviceType::Mixer))})})
            .errorList(),
        FW_ErrorList(arrayOf(hardwareError())));
}

TEST(AddStatsErrorsCmd, isTold)
{
    EXPECT_EQ(
        argumentsOf("ADD_STATS_ERRORS"),
        (Lines{"errors (struct): member \"error_list\": an array of errors of all kinds, as in the answer to "
               "GET_ERRORS; in a list the errors alone",
               "  XML-RPC, another type: DE02896", "  list, another type: DE02897",
               "  XML-RPC, without an array as error_list: DE02896",
               "  list, an element of another type: DE02897",
               "  XML-RPC, an element without a good error_type or timestamp: DE03001",
               "  XML-RPC, an element of no known error_type: DE03007",
               "  XML-RPC, an element that is an error of the driver without a good code: DE03002",
               "  XML-RPC, an element that is an error of the driver without a good text: DE03003",
               "  XML-RPC, an element that is an error of the hardware without its numbers: DE03004",
               "  XML-RPC, an element that is an error of the configuration without its numbers: DE03005"}));
}

} // namespace
