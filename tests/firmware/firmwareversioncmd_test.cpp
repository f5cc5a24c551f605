// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareversioncmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

AnswerFacts answers()
{
    constexpr char notCreated[] = "Failed to create FirmwareVersionAnswer";
    constexpr char written[] =
        R"({"app_version": [63, 0, 0, 0, 0, 38], "board_address": -1, "boot_version": []})";
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("FirmwareVersionAnswer", {"2", "3F", "26"}, written)
                         .failsWith("DE00610", notCreated)
                         .refuses({"1", "3F"}, "DE00628",
                                  "FirmwareVersionAnswer failed: expected FW_Version type parameter",
                                  "FirmwareVersionAnswer::FirmwareVersionAnswer(QStringList)")
                         .refuses({}, "DE00076", "Empty answer received",
                                  "SerialProtoAnswer::SerialProtoAnswer(QStringList)");
    answers.value = AnswerOfValue("FirmwareVersionAnswer",
                                  structOf({{"board_address", -1},
                                            {"app_version", arrayOf(63, 0, 0, 0, 0, 38)},
                                            {"boot_version", arrayOf()}}),
                                  written)
                        .failsWith("DE03241", notCreated)
                        .refuses(structOf({}), "DE01474",
                                 "FirmwareVersionAnswer failed: expected firmware app version type parameter",
                                 "FirmwareVersionAnswer::FirmwareVersionAnswer(const XmlRpc::XmlRpcValue&)");
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<FirmwareVersionCmd>());
    facts.catalogue = {"READ_FW_VERSION", 35, "000F", 1};
    facts.protoType = 1;
    facts.valueFunction = "FirmwareVersionCmd::FirmwareVersionCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "FirmwareVersionCmd::FirmwareVersionCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE00591", "DE00608", "Module ID: expected INT parameter"}).takes({-1, 245})};
    facts.getters = {getter(&FirmwareVersionCmd::moduleID)};
    const auto reading = [](const char *detailed) {
        return Words("Read firmware version", "Reading firmware version", detailed);
    };
    facts.defaults =
        Request().parameters({0}).written("[0]").says(reading("Reading firmware version from module 0"));
    facts.requests = {Request({17}).typed<FirmwareVersionCmd>(17).written("[17]").module(17).says(
        reading("Reading firmware version from module 17"))};
    facts.answers = answers();
    return facts;
}

TEST(FirmwareVersionCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(FirmwareVersionCmd, doesNotMistakeOtherArgumentsForAModule)
{
    static_assert(!std::is_constructible_v<FirmwareVersionCmd, bool>);
    static_assert(!std::is_constructible_v<FirmwareVersionCmd, double>);
    static_assert(!std::is_constructible_v<FirmwareVersionCmd, const char *>);
    static_assert(!std::is_convertible_v<int, FirmwareVersionCmd>);
}

} // namespace
