// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/fw_calibrationprofiles.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_heater.h>
#include <QuvFramework/fw_members.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QVariant>

#include <gtest/gtest.h>

#include <utility>

// What machines and their parts are over XML-RPC. That each member survives is tested with machine files, which run the same description.

namespace {

using values::arrayOf;
using values::structOf;
using XmlRpc::XmlRpcValue;

/** The text with which a T refuses a struct; its code and function are looked at on the way. */
template <class T>
QString refusalOf(const XmlRpcValue &value, const char *function)
{
    try {
        T object(value);
    } catch (const FW_Exception &error) {
        EXPECT_EQ(error.code(), "DE03350");
        EXPECT_EQ(error.function(), function);
        return error.text();
    }
    return QStringLiteral("accepted");
}

QString dispenserRefusal(const XmlRpcValue &value)
{
    return refusalOf<FW_Dispenser>(value, "FW_Dispenser::FW_Dispenser(const XmlRpc::XmlRpcValue&)");
}

TEST(MachineMembers, aColorantIsAStructOfAllItsMembers)
{
    FW_Colorant colorant(QStringLiteral("B"), QStringLiteral("Bl\u00e4u"));
    colorant.setEnabled(false);
    colorant.setSystemColorantID(26);
    const XmlRpcValue written = structOf(
        {{"code", "B"}, {"name", "Bl\xc3\xa4u"}, {"enabled", XmlRpcValue(false)}, {"system_id", 26}});
    EXPECT_TRUE(SameXmlRpcValue(colorant.toXmlRpcValue(), written)) << written.toXml();
    EXPECT_TRUE(FW_Colorant(written) == colorant);

    const XmlRpcValue defaults =
        structOf({{"code", ""}, {"name", ""}, {"enabled", XmlRpcValue(true)}, {"system_id", 0}});
    EXPECT_TRUE(SameXmlRpcValue(FW_Colorant().toXmlRpcValue(), defaults));
}

TEST(MachineMembers, stepsBeyondAnIntTravelAsADouble)
{
    const FW_Calibration calibration({{12, 0.1, 40, 0}, {2147483648, 5.0, 41, 8}});
    const XmlRpcValue first =
        structOf({{"steps", 12}, {"quantity", 0.1}, {"speed", 40}, {"nozzle_valve", 0}});
    const XmlRpcValue second =
        structOf({{"steps", 2147483648.0}, {"quantity", 5.0}, {"speed", 41}, {"nozzle_valve", 8}});
    const XmlRpcValue written = structOf({{"points", arrayOf({first, second})}});
    EXPECT_TRUE(SameXmlRpcValue(calibration.toXmlRpcValue(), written));
    EXPECT_TRUE(FW_Calibration(written) == calibration);
    EXPECT_TRUE(FW_Calibration(structOf({})) == FW_Calibration());
    EXPECT_EQ(FW_Calibration(structOf({{"points", arrayOf({first})}})).steps(0.1), 12) << "usable at once";

    XmlRpcValue whole = first;
    whole["quantity"] = 3; // an int is a number as well
    EXPECT_EQ(FW_Calibration(structOf({{"points", arrayOf({whole})}})).points().first().quantity, 3.0);
}

TEST(MachineMembers, aCircuitWithoutItsDosingMotorSaysZero)
{
    FW_Circuit circuit(3, 17);
    EXPECT_EQ(circuit.toXmlRpcValue()["dosing_motor"].getType(), XmlRpcValue::TypeStruct);
    EXPECT_FALSE(circuit.toXmlRpcValue().hasMember("stirring_motor"));
    circuit.removeDosingMotor();
    circuit.setStirringMotor(FW_StirringMotor());
    const XmlRpcValue written = circuit.toXmlRpcValue();
    EXPECT_TRUE(SameXmlRpcValue(XmlRpcValue(written)["dosing_motor"], 0));
    EXPECT_EQ(XmlRpcValue(written)["stirring_motor"]["pause"], XmlRpcValue("30 min"));
    EXPECT_EQ(XmlRpcValue(written)["calibration"].size(), 0);
    EXPECT_TRUE(FW_Circuit(written) == circuit);
    EXPECT_FALSE(FW_Circuit(written).hasDosingMotor());
    EXPECT_TRUE(FW_Circuit(structOf({{"id", 3}, {"position_id", 17}})).hasDosingMotor());
    EXPECT_EQ(refusalOf<FW_Circuit>(structOf({{"id", 3}, {"position_id", 17}, {"dosing_motor", 1}}),
                                    "FW_Circuit::FW_Circuit(const XmlRpc::XmlRpcValue&)"),
              "Machine data: dosing_motor must be a struct");
}

TEST(MachineMembers, motorsAreStructsOfTheirOwn)
{
    const XmlRpcValue stirring = structOf({{"id", 3},
                                           {"resolution", 200},
                                           {"supplying_current", 16},
                                           {"enabled", XmlRpcValue(false)},
                                           {"activity", 61},
                                           {"pause", "90 s"},
                                           {"policy", 2},
                                           {"speed", 90},
                                           {"wire_board", 4},
                                           {"wire_connectors_mask", 6}});
    const FW_StirringMotor stirs(stirring);
    EXPECT_EQ(stirs.stirringActivity(), 61);
    EXPECT_EQ(stirs.stirringPause(1), 90);
    EXPECT_TRUE(SameXmlRpcValue(stirs.toXmlRpcValue(), stirring)) << stirs.toXmlRpcValue().toXml();

    const XmlRpcValue recirculation = structOf({{"id", 4},
                                                {"resolution", 200},
                                                {"supplying_current", 17},
                                                {"enabled", XmlRpcValue(false)},
                                                {"speed", 40},
                                                {"suction_speed", 90},
                                                {"activity", 60},
                                                {"pause", "45 min"}});
    const FW_RecirculationMotor recirculates(recirculation);
    EXPECT_EQ(recirculates.suctionSpeed(), 90);
    EXPECT_EQ(recirculates.recirculationPause(2), 45);
    EXPECT_TRUE(SameXmlRpcValue(recirculates.toXmlRpcValue(), recirculation))
        << recirculates.toXmlRpcValue().toXml();

    const XmlRpcValue cleaning = structOf({{"id", 5},
                                           {"resolution", 400},
                                           {"supplying_current", 12},
                                           {"cleaning_enabled", XmlRpcValue(false)},
                                           {"timeout", "1500 ms"},
                                           {"turntable_speed", 40},
                                           {"schedule_mask", 8},
                                           {"duration", 31},
                                           {"brush_type", 2},
                                           {"target", 1},
                                           {"process", 2}});
    const FW_CleaningMotor cleans(cleaning);
    EXPECT_EQ(cleans.duration(), 31);
    EXPECT_EQ(cleans.timeout(0), 1500);
    EXPECT_TRUE(SameXmlRpcValue(cleans.toXmlRpcValue(), cleaning)) << cleans.toXmlRpcValue().toXml();

    EXPECT_EQ(refusalOf<FW_StirringMotor>(structOf({{"speed", "90"}}),
                                          "FW_StirringMotor::FW_StirringMotor(const XmlRpc::XmlRpcValue&)"),
              "Machine data: speed must be an integer from 0 to 2147483647");
    EXPECT_EQ(refusalOf<FW_RecirculationMotor>(
                  arrayOf({}), "FW_RecirculationMotor::FW_RecirculationMotor(const XmlRpc::XmlRpcValue&)"),
              "Machine data: must be a struct");
    EXPECT_EQ(refusalOf<FW_CleaningMotor>(structOf({{"timeout", 3}}),
                                          "FW_CleaningMotor::FW_CleaningMotor(const XmlRpc::XmlRpcValue&)"),
              "Machine data: timeout must be a time, as \"30 min\", \"90 s\" or \"1500 ms\"");
}

TEST(MachineMembers, devicesStandInAStructOfTheirOwnWhenThereAreAny)
{
    FW_Dispenser dispenser;
    EXPECT_FALSE(dispenser.toXmlRpcValue().hasMember("devices"));
    FW_Heater heater;
    heater.setLowTemperatureThreshold(-5);
    dispenser.setDevice(heater);
    XmlRpcValue written = dispenser.toXmlRpcValue();
    EXPECT_EQ(written["devices"].size(), 1);
    EXPECT_EQ(written["devices"]["heater"]["low_threshold"], XmlRpcValue(-5));
    EXPECT_TRUE(FW_Dispenser(written) == dispenser);
}

TEST(MachineMembers, whatIsWrongIsNamedByItsPlace)
{
    const auto circuit = [](const char *key, const XmlRpcValue &value) {
        XmlRpcValue members = structOf({{"id", 1}, {"position_id", 1}});
        members[key] = value;
        const XmlRpcValue canister = structOf({{"id", 1}, {"circuits", arrayOf({members})}});
        return structOf({{"canisters", arrayOf({canister})}});
    };
    const std::pair<XmlRpcValue, const char *> refusals[] = {
        {arrayOf({1}), "Machine data: must be a struct"},
        {XmlRpcValue(), "Machine data: must be a struct"},
        {structOf({{"type", "mixer"}}), "Machine data: type must be \"dispenser\""},
        {structOf({{"type", 1}}), "Machine data: type must be \"dispenser\""},
        {structOf({{"id", "7"}}), "Machine data: id must be an integer from 0 to 2147483647"},
        {structOf({{"id", -1}}), "Machine data: id must be an integer from 0 to 2147483647"},
        {structOf({{"id", 7.0}}), "Machine data: id must be an integer from 0 to 2147483647"},
        {structOf({{"machine_model", -1}}),
         "Machine data: machine_model must be an integer from 0 to 2147483647"},
        {structOf({{"heads", 3}}), "Machine data: heads must be an integer from 1 to 2"},
        {structOf({{"inv_type", 3}}), "Machine data: inv_type must be an integer from 0 to 2"},
        {structOf({{"description", 1}}), "Machine data: description must be a text"},
        {structOf({{"global_stirring", 1}}), "Machine data: global_stirring must be true or false"},
        {structOf({{"canisters", structOf({})}}), "Machine data: canisters must be an array"},
        {structOf({{"modules", arrayOf({1, 32})}}),
         "Machine data: modules[1] must be an integer from 1 to 31"},
        {structOf({{"rcs_pause", "30"}}),
         "Machine data: rcs_pause must be a time, as \"30 min\", \"90 s\" or \"1500 ms\""},
        {structOf({{"rcs_pause", 30}}),
         "Machine data: rcs_pause must be a time, as \"30 min\", \"90 s\" or \"1500 ms\""},
        {structOf({{"canisters", arrayOf({structOf({})})}}), "Machine data: canisters[0].id is missing"},
        {structOf({{"devices", 1}}), "Machine data: devices must be a struct"},
        {structOf({{"devices", structOf({{"plc_board", structOf({{"end_signal_time", -0.5}})}})}}),
         "Machine data: devices.plc_board.end_signal_time must be a number from 0 to 1000000000"},
        {circuit("position_id", 246),
         "Machine data: canisters[0].circuits[0].position_id must be an integer from 1 to 245"},
        {circuit("dosing_motor", structOf({{"ramp", structOf({{"reference", "1"}})}})),
         "Machine data: canisters[0].circuits[0].dosing_motor.ramp.reference must be an integer from 0 to "
         "2147483647"},
        {circuit("calibration", arrayOf({structOf({{"steps", 1e17}, {"quantity", 1}, {"speed", 1}})})),
         "Machine data: canisters[0].circuits[0].calibration[0].steps must be an integer from 0 to "
         "9007199254740992"},
    };
    for (const auto &[value, text] : refusals)
        EXPECT_EQ(dispenserRefusal(value), text);
    // newer clients may tell more
    EXPECT_EQ(dispenserRefusal(structOf({{"id", 7}, {"colour", "red"}, {"zz", 1}})), "accepted");
}

TEST(MachineMembers, aMachineIsMadeByItsModel)
{
    FW_Mixer mixer;
    mixer.setId(4);
    mixer.setModel(static_cast<MachineModel>(120));
    mixer.setConnectionName(QStringLiteral("ttyUSB1"));
    const XmlRpcValue written = structOf({{"type", "mixer"},
                                          {"id", 4},
                                          {"machine_model", 120},
                                          {"model_name", ""},
                                          {"sid", ""},
                                          {"description", ""},
                                          {"product_code", ""},
                                          {"serial_number", ""},
                                          {"connection_name", "ttyUSB1"},
                                          {"conf_structure_name", ""}});
    EXPECT_TRUE(SameXmlRpcValue(mixer.toXmlRpcValue(), written));
    const auto made = FW_Machine::fromXmlRpcValue(written);
    ASSERT_TRUE(made);
    EXPECT_TRUE(made->equalTo(mixer));
    EXPECT_FALSE(made->equalTo(FW_Mixer()));
    EXPECT_FALSE(made->equalTo(FW_Dispenser()));
    EXPECT_FALSE(FW_Dispenser().equalTo(*made));
    EXPECT_TRUE(FW_Dispenser().equalTo(FW_Dispenser()));

    const auto kindOf = [](const XmlRpcValue &value) {
        const auto machine = FW_Machine::fromXmlRpcValue(value);
        return machine ? static_cast<int>(machine->machineType()) : 0;
    };
    EXPECT_EQ(kindOf(structOf({{"machine_model", 99}})), 1);
    EXPECT_EQ(kindOf(structOf({{"machine_model", 100}})), 4);
    EXPECT_EQ(kindOf(structOf({{"machine_model", -1}})), 0);
    EXPECT_EQ(kindOf(structOf({{"type", "dispenser"}})), 1) << "a machine without a model tells its type";
    EXPECT_EQ(kindOf(structOf({{"type", "mixer"}})), 4);
    EXPECT_EQ(kindOf(structOf({{"type", "scale"}})), 0);
    EXPECT_EQ(kindOf(structOf({{"type", 4}})), 0);
    EXPECT_EQ(kindOf(structOf({})), 0);
    EXPECT_EQ(kindOf(arrayOf({1})), 0);
    EXPECT_THROW(kindOf(structOf({{"machine_model", 10}, {"id", "1"}})), FW_Exception);
    EXPECT_THROW(kindOf(structOf({{"machine_model", 10}, {"type", "mixer"}})), FW_Exception);
}

TEST(MachineMembers, partsTravelInAVariant)
{
    FW_DosingMotor pump;
    pump.setMotorId(5);
    pump.setGravimetricSettings({0.25, 9});
    FW_CalibrationProfiles profiles;
    profiles.addPump(pump);
    const QVariant variant = QVariant::fromValue(profiles);
    EXPECT_STREQ(variant.typeName(), "FW_CalibrationProfiles");
    const QVariantMap map = variant.value<QVariantMap>();
    ASSERT_EQ(map.value(QStringLiteral("pumps")).toList().size(), 1);
    const QVariantMap told = map.value(QStringLiteral("pumps")).toList().first().toMap();
    EXPECT_EQ(told.value(QStringLiteral("id")), QVariant(5));
    EXPECT_EQ(
        told.value(QStringLiteral("gravimetric_settings")).toMap().value(QStringLiteral("max_corrections")),
        QVariant(9));
    EXPECT_TRUE(QVariant(map).value<FW_CalibrationProfiles>() == profiles);
    for (const char *name :
         {"FW_Dispenser", "FW_Mixer", "FW_Circuit", "FW_Canister", "FW_CanisterLevelSensor", "FW_Colorant",
          "FW_Calibration", "FW_DosingMotor", "FW_StirringMotor", "FW_RecirculationMotor", "FW_CleaningMotor",
          "GravimetricSettings"})
        EXPECT_NE(QMetaType::type(name), static_cast<int>(QMetaType::UnknownType)) << name;
}

TEST(GravimetricSettings, areAStruct)
{
    const GravimetricSettings settings(0.25, 9);
    const XmlRpcValue written = structOf({{"tolerance", 0.25}, {"max_corrections", 9}});
    EXPECT_TRUE(SameXmlRpcValue(settings.toXmlRpcValue(), written));
    EXPECT_TRUE(GravimetricSettings(written) == settings);
    EXPECT_TRUE(GravimetricSettings(structOf({{"tolerance", 1}}), 8, 0) == GravimetricSettings(1.0, 3));
    EXPECT_TRUE(GravimetricSettings(structOf({})) != settings);
    EXPECT_EQ(refusalOf<GravimetricSettings>(
                  structOf({{"tolerance", "1"}}),
                  "GravimetricSettings::GravimetricSettings(const XmlRpc::XmlRpcValue&)"),
              "Machine data: tolerance must be a number from 0 to 1000000000");
    try {
        GravimetricSettings(XmlRpcValue(1), 8, 0);
        ADD_FAILURE();
    } catch (const FW_Exception &error) {
        EXPECT_EQ(error.text(), "Machine data: must be a struct");
        EXPECT_EQ(error.function(),
                  "GravimetricSettings::GravimetricSettings(const XmlRpc::XmlRpcValue&, int, int)");
    }
}

TEST(MachineTime, isToldByNumberAndUnit)
{
    using quv::machineTimeFromText;
    EXPECT_EQ(quv::toText({1500, 0}), "1500 ms");
    EXPECT_EQ(quv::toText({0, 2}), "0 min");
    EXPECT_TRUE(machineTimeFromText(QStringLiteral("2147483647 s")) == (quv::MachineTime{2147483647, 1}));
    for (const char *text : {"", " ", " s", "5", "5 ", "5  s", "5 h", "+5 s", "-5 s", "2147483648 s", "5 s "})
        EXPECT_FALSE(machineTimeFromText(QString::fromUtf8(text))) << text;
}

} // namespace
