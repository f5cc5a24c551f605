// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/basetesting.h"
#include "base/confprotocommand.h"
#include "base/serialprotocommand.h"
#include "catalogue/commandfacts.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <memory>
#include <set>
#include <string>

// The commands that have no class of their own: what clients and drivers get for each of their names.

namespace {

using namespace testing_base;
using Cmd = ProtoCommandList;
using CommandPtr = std::unique_ptr<ProtoCommand>;

struct PlainRow
{
    const char *name = "";
    int kind = 0; ///< 1 serial, 2 configuration
    int minParams = 0;
    int maxParams = 0;
    const char *answerClass = ""; ///< to a client; "" is the plain one of the kind
    const char *commandText = "";
    const char *actionText = ""; ///< the same in short and at length
    const char *actionContext = "";
};

constexpr int serial = 1;
constexpr int configuration = 2;
constexpr char going[] = "In progress";
constexpr char context[] = "QuvProtocol";

// clang-format off
constexpr PlainRow plainRows[] = {
    {"GET_ERRORS", serial, 0, 0, "GetErrorsAnswer", "Errors read", "Searching for hardware errors", context},
    {"ERRORS_NUM", serial, 0, 0, "", "", going},
    {"FINALIZE_CONFIG", serial, 0, 0, "", "", going},
    {"GET_CMD_ID", serial, 1, 1, "", "", going},
    {"GET_SENSORS_STATUS", serial, 0, 0, "SensorsStatusAnswer", "", going},
    {"FW_SCAN", serial, 0, 0, "", "", going},
    {"FW_SCAN_START", serial, 0, 0, "", "", going},
    {"FW_SCAN_READ", serial, 0, 0, "", "", going},
    {"CHECK_SERIAL", configuration, 1, 1, "", "", going},
    {"CLOSE_SERIAL", serial, 0, 0, "", "", going},
    {"CLEAN_CONFIG", configuration, 0, 0, "", "", going},
    {"WRITE_FW_CONFIG", serial, 1, 1, "", "", going},
    {"READ_FW_CONFIG", serial, 0, 0, "", "", going},
    {"GET_CALIB_PROFILES", configuration, 0, 0, "GetCalibrationProfilesAnswer", "Calibration profiles read", "Retrieving calibration profiles", context},
    {"GET_ACTIVE_DISP", configuration, 0, 0, "GetActiveDispAnswer", "", ""},
    {"GET_DRIVER_SETTINGS", configuration, 0, 0, "GetDriverSettingsAnswer", "Application settings read", "Retrieving application settings", context},
    {"GET_DRIVER_INFO", configuration, 0, 0, "GetDriverInfoAnswer", "Application info read", "Retrieving application info", context},
    {"CHECK_BUSY", configuration, 0, 0, "", "", going},
    {"GET_TURNTABLE_POSITIONS", serial, 0, 0, "GetTurntablePositionsAnswer", "", going},
    {"GET_CONN_STATUS", configuration, 0, 0, "GetConnectionStatusAnswer", "", ""},
    {"GET_KEY_CODE", serial, 0, 0, "GetKeyCodeAnswer", "", ""},
    {"GET_HOST_INFO", configuration, 0, 0, "GetHostInfoAnswer", "", ""},
    {"INIT", serial, 0, 0, "", "", going},
    {"PUNCH", serial, 0, 0, "", "", going},
    {"PLUG", serial, 0, 0, "", "", going},
    {"SCALE_RESET", configuration, 0, 0, "", "", going},
    {"GET_SCALE_CONFIG", configuration, 0, 0, "GetScaleConfigAnswer", "", "Reading scale configuration", context},
    {"GET_SCALE_STATUS", configuration, 0, 0, "ScaleStatusAnswer", "", ""},
    {"GET_MIXER_STATUS", configuration, 0, 0, "MixerDriverStatusAnswer", "", ""},
    {"ADD_USS_W_EVENT", configuration, 0, 0, "", "", ""},
    {"GET_USS_W_STATUS", configuration, 0, 0, "GetUssWaterStatusAnswer", "", ""},
    {"VALVE_TEST", serial, 0, 0, "", "", going},
    {"TINT2", serial, 1, 1, "", "", going},
    {"GET_DEVICE_PARAMS", configuration, 0, 0, "GetDeviceParamsAnswer", "", going},
    {"ZDR_GET_COMMANDS", serial, 0, 0, "GetZandorCommandsAnswer", "", going},
    {"GET_SHELF_PARAMS", configuration, 0, 0, "GetShelfParamsAnswer", "", going},
};
// clang-format on

template <class Args>
CommandPtr make(const PlainRow &row, Args args, const FW_Machine *machine)
{
    return CommandPtr(Cmd::getProtoCommand(QString::fromLatin1(row.name), args, machine));
}

void expectPlain(const PlainRow &row, const ProtoCommand &command)
{
    EXPECT_TRUE(row.kind == serial ? typeid(command) == typeid(SerialProtoCommand)
                                   : typeid(command) == typeid(ConfProtoCommand));
    EXPECT_EQ(command.protoType(), row.kind);
    EXPECT_EQ(command.command(), row.name);
    EXPECT_FALSE(command.machine());
    EXPECT_EQ(command.parameters(), List());
    EXPECT_EQ(dumped(command.toXmlRpcValue(QString())), '[' + ('"' + std::string(row.name) + "\"]"));
    EXPECT_EQ(command.commandString(), row.commandText);
    for (const bool detailed : {false, true}) {
        EXPECT_EQ(command.actionString(detailed).m_text, row.actionText);
        EXPECT_STREQ(command.actionString(detailed).m_context, row.actionContext);
    }
    if (const auto *toFirmware = dynamic_cast<const SerialProtoCommand *>(&command)) {
        for (const int family : {1, 2})
            EXPECT_EQ(toFirmware->serialParameters(family), QList<int>());
        EXPECT_EQ(toFirmware->moduleID(), 0);
    }
    const long long time = row.kind == serial                            ? 0
                           : row.name == std::string("GET_USS_W_STATUS") ? 240000
                                                                         : 20000;
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), time);
}

/** Neither counted nor read: none, some, more than the row tells, and what is no array at all. */
TEST(PlainCommands, areMadeOfAnyArguments)
{
    const FW_Dispenser dispenser;
    const FW_Mixer mixer;
    for (const PlainRow &row : plainRows) {
        SCOPED_TRACE(row.name);
        for (const FW_Machine *machine :
             {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&dispenser),
              static_cast<const FW_Machine *>(&mixer)}) {
            for (const Value &value : {arrayOf(), arrayOf(1), arrayOf("x", 2, 3), Value("x"), Value()})
                expectPlain(row, *make(row, value, machine));
            for (const List &list : {List(), List{1}, List{"x", 2, 3}})
                expectPlain(row, *make(row, list, machine));
        }
    }
}

TEST(PlainCommands, areCountedByTheCatalogueAlone)
{
    for (const PlainRow &row : plainRows) {
        EXPECT_EQ(Cmd::cmdParamNum(QString::fromLatin1(row.name), true), row.minParams) << row.name;
        EXPECT_EQ(Cmd::cmdParamNum(QString::fromLatin1(row.name), false), row.maxParams) << row.name;
    }
}

TEST(PlainCommands, tellTheirPurposeAndTheirAnswer)
{
    for (const PlainRow &row : plainRows) {
        SCOPED_TRACE(row.name);
        const quv::CommandFacts facts = quv::commandFacts(QString::fromLatin1(row.name));
        EXPECT_EQ(facts.className, row.kind == serial ? "SerialProtoCommand" : "ConfProtoCommand");
        EXPECT_TRUE(facts.tellsArguments);
        EXPECT_TRUE(facts.arguments.isEmpty());
        EXPECT_FALSE(facts.purpose.isEmpty());
        EXPECT_EQ(facts.answerClass, row.answerClass);
    }
}

/** Those without a row above have a class. */
TEST(PlainCommands, areAllOfThem)
{
    std::set<QString> plain;
    for (const PlainRow &row : plainRows)
        EXPECT_TRUE(plain.insert(QString::fromLatin1(row.name)).second) << row.name;
    for (int id = 0; id < Cmd::rowCount; ++id) {
        const QString name = Cmd::row(id)->name;
        const QString className = quv::commandFacts(name).className;
        EXPECT_EQ(className == "SerialProtoCommand" || className == "ConfProtoCommand",
                  plain.count(name) == 1)
            << name.toStdString();
    }
}

/** A plain answer tells nothing to a client but that there is one. */
TEST(PlainCommands, takeAPlainAnswerInEachForm)
{
    for (const PlainRow &row : plainRows) {
        if (*row.answerClass != '\0')
            continue;
        SCOPED_TRACE(row.name);
        const std::string answerClass = row.kind == serial ? "SerialProtoAnswer" : "ConfProtoAnswer";
        const CommandPtr command = make(row, List(), nullptr);
        ASSERT_TRUE(command->buildProtoAnswer(arrayOf(1), nullptr));
        EXPECT_EQ(className(command->getProtoAnswer()), answerClass);
        EXPECT_EQ(dumped(command->getProtoAnswer()->toXmlRpcValue()), "0");
        List list = {1};
        ASSERT_TRUE(command->buildProtoAnswer(list, nullptr));
        EXPECT_EQ(className(command->getProtoAnswer()), answerClass);
        if (auto *toFirmware = dynamic_cast<SerialProtoCommand *>(command.get())) {
            ASSERT_TRUE(toFirmware->setSerialAnswer({"1", "4B"}, nullptr));
            EXPECT_EQ(className(command->getProtoAnswer()), answerClass);
        }
    }
}

} // namespace
