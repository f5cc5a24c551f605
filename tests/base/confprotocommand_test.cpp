// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/confprotocommand.h"

#include "base/answercontract.h"
#include "base/answerrows.h"
#include "base/basetesting.h"

#include <QuvFramework/fw_scale.h>

#include <memory>

using namespace testing_base;

TEST(ConfProtoCommand, isMadeInFourForms)
{
    const CountedMachine machine;
    const ConfProtoCommand empty;
    EXPECT_TRUE(empty.command().isNull());
    EXPECT_EQ(empty.protoType(), 2);
    EXPECT_EQ(empty.machine(), nullptr);
    const ConfProtoCommand named("LOGOUT", &machine);
    EXPECT_EQ(named.command(), "LOGOUT");
    EXPECT_EQ(named.protoType(), 2);
    EXPECT_NE(named.machine(), nullptr);
    const ConfProtoCommand ofValue("LOGIN", arrayOf("me", "secret"), &machine);
    EXPECT_EQ(ofValue.command(), "LOGIN");
    EXPECT_EQ(ofValue.protoType(), 2);
    EXPECT_EQ(ofValue.parameters(), List());
    EXPECT_NE(ofValue.machine(), nullptr);
    const ConfProtoCommand ofList("LOGIN", List{"me", "secret"}, &machine);
    EXPECT_EQ(ofList.parameters(), (List{"me", "secret"}));
    EXPECT_EQ(ofList.protoType(), 2);
    EXPECT_NE(ofList.machine(), nullptr);
    EXPECT_EQ(CountedMachine::alive, 4);
}

TEST(ConfProtoCommand, checksTheNumberOfArguments)
{
    expectRefusal("DE00312", "LOGIN command : expected at least 2 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { ConfProtoCommand("LOGIN", arrayOf(), nullptr); });
    expectRefusal("DE00313", "LOGIN command : expected at least 2 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [] { ConfProtoCommand("LOGIN", List(), nullptr); });
}

TEST(ConfProtoCommand, clonesToItsOwnClass)
{
    const ConfProtoCommand command("LOGIN", List{"me", "secret"}, nullptr);
    const std::unique_ptr<ProtoCommand> copy(static_cast<const ProtoCommand &>(command).clone());
    EXPECT_NE(dynamic_cast<ConfProtoCommand *>(copy.get()), nullptr);
    EXPECT_EQ(copy->parameters(), (List{"me", "secret"}));
    EXPECT_EQ(copy->protoType(), 2);
}

TEST(ConfProtoCommand, estimatesItsTime)
{
    const FW_Dispenser dispenser;
    EXPECT_EQ(ConfProtoCommand("GET_USS_W_STATUS", nullptr).getCmdEstimatedExecutionTime(nullptr), 240000);
    EXPECT_EQ(ConfProtoCommand("GET_USS_W_STATUS", nullptr).getCmdEstimatedExecutionTime(&dispenser), 240000);
    for (const char *name : {"LOGIN", "GET_CONFIG", "ADD_USS_W_EVENT", "RESET", "NO_SUCH_COMMAND", ""})
        EXPECT_EQ(ConfProtoCommand(name, nullptr).getCmdEstimatedExecutionTime(&dispenser), 20000) << name;
}

TEST(ConfProtoCommand, keepsTheAnswerContract)
{
    ConfProtoCommand command("LOGIN", nullptr);
    expectAnswerContract(command, confAnswers());
}

TEST(ConfProtoCommand, choosesTheAnswerClassByTheName)
{
    const QVariantMap driverInfo = {
        {"driver_name", "nuadriver"},          {"driver_path", "/usr/nua"},
        {"driver_version", "3.14.2"},          {"host_name", "shop-1"},
        {"config_file_path", "/etc/nua"},      {"default_calib_file_path", "/usr/nua"},
        {"custom_calib_file_path", "/var/nua"}};
    const QVariantMap water = {{"timestamp", ""}, {"cleaning_cycles", 120}};
    const AnswerRow rows[] = {
        {"GET_CALIB_PROFILES",
         "GetCalibrationProfilesAnswer",
         structOf({{"calibration_profiles", structOf({{"pumps", arrayOf()}})}}),
         {QVariantMap{{"pumps", List{}}}}},
        {"GET_ACTIVE_DISP", "GetActiveDispAnswer", structOf({{"disp_list", arrayOf()}})},
        {"GET_DRIVER_SETTINGS",
         "GetDriverSettingsAnswer",
         structOf({{"driver_settings", structOf({})}}),
         {QVariantMap{{"ConfigurationFileName", "a.xml"}}}},
        {"GET_DRIVER_INFO",
         "GetDriverInfoAnswer",
         structOf({{"driver_info", valueOf(driverInfo)}}),
         {driverInfo}},
        {"GET_CONN_STATUS",
         "GetConnectionStatusAnswer",
         structOf(
             {{"serial_connection_status", 1}, {"BT_connection_status", 0}, {"scale_connection_status", 0}}),
         {1, 0, 0}},
        {"GET_HOST_INFO",
         "GetHostInfoAnswer",
         structOf({{"host_name", "shop-1"}, {"BT_radio_ON", true}}),
         {"shop-1", true}},
        {"GET_CURRENT_WEIGHT",
         "WeightAnswer",
         structOf({{"weight_value", 12.5}, {"unit", 0}, {"stable_weight", true}, {"precision", 1}}),
         {12.5, 0, true, 1}},
        {"GET_SCALE_CONFIG",
         "GetScaleConfigAnswer",
         arrayOf(structOf({{"scale", 0}})),
         {QVariant::fromValue(FW_Scale())}},
        {"GET_SCALE_STATUS", "ScaleStatusAnswer", structOf({{"connected", false}}), {false}},
        {"GET_USS_W_STATUS",
         "GetUssWaterStatusAnswer",
         structOf({{"last_water_change_data", valueOf(water)},
                   {"current_data", valueOf(water)},
                   {"max_cleaning_cycles", 40}}),
         {water, water, 40}},
        {"GET_MIXER_STATUS",
         "MixerDriverStatusAnswer",
         structOf({{"driver_status", 0}, {"disp_status", 0}}),
         {0, 0}},
        {"GET_DEVICE_PARAMS", "GetDeviceParamsAnswer"},
        {"GET_SHELF_PARAMS",
         "GetShelfParamsAnswer",
         structOf({{"shelf_ref_plane", true}, {"shelf_ref_height", 250}}),
         {true, 250}},
        {"GET_ERRORS", "ConfProtoAnswer"},
        {"LOGIN", "ConfProtoAnswer"},
        {"GET_KEY_CODE", "ConfProtoAnswer"},
        {"NO_SUCH_COMMAND", "ConfProtoAnswer"},
        {"", "ConfProtoAnswer"},
    };
    for (const AnswerRow &row : rows) {
        SCOPED_TRACE(row.command);
        ConfProtoCommand command(row.command, nullptr);
        List list = row.list;
        const std::string expected = row.answerClass;
        ASSERT_TRUE(command.buildProtoAnswer(row.value, nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()), expected);
        ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()), expected);
        // a weight is told as the scale itself tells it
        EXPECT_EQ(command.getProtoAnswer()->protoType(), expected == "WeightAnswer" ? 3 : 2);
    }
}
