// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/machinestatusanswer.h"

#include "base/flags_p.h"
#include "base/tokens_p.h"
#include "status/machinestatusanswer_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

namespace {

using Status = MachineStatusAnswer;

constexpr char flagCode[] = "DE00026";
constexpr char intCode[] = "DE02667";
constexpr quv::Refusal ofMachine = {flagCode, "MachineStatusAnswer: expected %1 value"};
constexpr quv::Refusal ofDispenser = {flagCode, "DispenserStatusAnswer: expected %1 value"};

constexpr quv::Condition<Status> conditions[] = {
    {&Status::emergency_pressed, QT_TRANSLATE_NOOP("QuvProtocol", "Emergency button pressed"), true},
    {&Status::offline_pressed,
     {QT_TRANSLATE_NOOP("QuvProtocol", "Offline button pressed"),
      QT_TRANSLATE_NOOP("QuvProtocol", "Mixer offline")},
     true},
    {&Status::board_not_initialized, QT_TRANSLATE_NOOP("QuvProtocol", "Board not initialized"), true},
    {&Status::startup, QT_TRANSLATE_NOOP("QuvProtocol", "Startup in progress"), true},
    {&Status::resetting, QT_TRANSLATE_NOOP("QuvProtocol", "Reset in progress")},
    {&Status::BL_active, QT_TRANSLATE_NOOP("QuvProtocol", "Boot loader is active")},
    {&Status::BL_memory_resetting, QT_TRANSLATE_NOOP("QuvProtocol", "Boot loader memory reset")},
    {&Status::BL_fw_update, QT_TRANSLATE_NOOP("QuvProtocol", "Boot loader firmware update")},
    {&Status::conf_writing, QT_TRANSLATE_NOOP("QuvProtocol", "Configuration writing")},
    {&Status::hw_error, QT_TRANSLATE_NOOP("QuvProtocol", "Hardware error present"), true},
    {&Status::conf_error, QT_TRANSLATE_NOOP("QuvProtocol", "Configuration error present"), true},
    {&Status::can_present, QT_TRANSLATE_NOOP("QuvProtocol", "Can is present")},
    {&Status::shelf_up,
     {QT_TRANSLATE_NOOP("QuvProtocol", "Shelf moving up"),
      QT_TRANSLATE_NOOP("QuvProtocol", "Upper plate moving up")}},
    {&Status::shelf_down,
     {QT_TRANSLATE_NOOP("QuvProtocol", "Shelf moving down"),
      QT_TRANSLATE_NOOP("QuvProtocol", "Upper plate moving down")}},
    {&Status::door_open, QT_TRANSLATE_NOOP("QuvProtocol", "Door open")},
    {&Status::machine_turned_off, QT_TRANSLATE_NOOP("QuvProtocol", "Machine turned off while working"), true},
    {&Status::machine_unlocked, QT_TRANSLATE_NOOP("QuvProtocol", "Machine unlocked")},
};

constexpr quv::Change<Status> changes[] = {
    {&Status::offline_pressed,
     {QT_TRANSLATE_NOOP("QuvProtocol", "Offline button pressed"),
      QT_TRANSLATE_NOOP("QuvProtocol", "Mixer offline")},
     {"Offline button released", "Mixer online"}},
    {&Status::board_not_initialized, QT_TRANSLATE_NOOP("QuvProtocol", "Board not initialized"),
     "Board initialized"},
    {&Status::resetting, QT_TRANSLATE_NOOP("QuvProtocol", "Reset in progress"), "Reset not in progress"},
    {&Status::BL_active, QT_TRANSLATE_NOOP("QuvProtocol", "Boot loader is active"),
     "Application firmware is active"},
    {&Status::BL_memory_resetting, QT_TRANSLATE_NOOP("QuvProtocol", "Boot loader memory reset"),
     "Boot loader memory not resetting"},
    {&Status::BL_fw_update, QT_TRANSLATE_NOOP("QuvProtocol", "Boot loader firmware update"),
     "Boot loader firmware update not in progress"},
    {&Status::conf_writing, QT_TRANSLATE_NOOP("QuvProtocol", "Configuration writing"),
     "No configuration writing in progress"},
    {&Status::hw_error, QT_TRANSLATE_NOOP("QuvProtocol", "Hardware error present"),
     "No hardware error present"},
    {&Status::conf_error, QT_TRANSLATE_NOOP("QuvProtocol", "Configuration error present"),
     "No configuration error present"},
    {&Status::process_error, QT_TRANSLATE_NOOP("QuvProtocol", "Process error"), "No process error"},
    {&Status::stop_process, QT_TRANSLATE_NOOP("QuvProtocol", "Process interrupted"),
     "No process interrupted"},
    {&Status::new_buffered_error, QT_TRANSLATE_NOOP("QuvProtocol", "New error present"),
     "No more errors on buffer"},
    {&Status::dispenser_not_ready,
     {QT_TRANSLATE_NOOP("QuvProtocol", "Dispenser not available"),
      QT_TRANSLATE_NOOP("QuvProtocol", "Mixer not available")},
     {"Dispenser available", "Mixer available"}},
    {&Status::emergency_pressed, QT_TRANSLATE_NOOP("QuvProtocol", "Emergency button pressed"),
     "Emergency button released"},
    {&Status::normal_wm, QT_TRANSLATE_NOOP("QuvProtocol", "Running normal mode"), "Running reserved mode"},
    {&Status::can_present, QT_TRANSLATE_NOOP("QuvProtocol", "Can is present"), "Can is not present"},
    {&Status::shelf_up,
     {QT_TRANSLATE_NOOP("QuvProtocol", "Shelf moving up"),
      QT_TRANSLATE_NOOP("QuvProtocol", "Upper plate moving up")},
     {"Shelf staying idle", "Upper plate staying idle"}},
    {&Status::shelf_down,
     {QT_TRANSLATE_NOOP("QuvProtocol", "Shelf moving down"),
      QT_TRANSLATE_NOOP("QuvProtocol", "Upper plate moving down")},
     {"Shelf staying idle", "Upper plate staying idle"}},
    {&Status::door_open, QT_TRANSLATE_NOOP("QuvProtocol", "Door open"), "Door closed"},
    {&Status::machine_turned_off, QT_TRANSLATE_NOOP("QuvProtocol", "Machine turned off while working"), {}},
    {&Status::machine_unlocked, QT_TRANSLATE_NOOP("QuvProtocol", "Machine unlocked"), "Machine locked"},
};

bool isDispenser(SerialDeviceType device)
{
    return device == SerialDeviceType::Dispenser;
}

template <class T>
bool decodeProperty(const char *code, const XmlRpc::XmlRpcValue &value, T *target, const QString &key,
                    const QString &className, FW_DriverError *error)
{
    if (!target)
        return false;
    if (DecodeXmlRpcValue(value, key, *target))
        return true;
    const auto text = QStringLiteral("%1: %2 %3 %4")
                          .arg(className, QStringLiteral("expected"), key, QStringLiteral("value"));
    return FW_DriverError::D_E(code, text, error);
}

} // namespace

const quv::Record<MachineStatusAnswer> &quv::machineStatusRecord()
{
    // Flags that came with later firmware are optional, so that a client understands an older driver.
    static const Record<Status> record({
        {"disp_status", &Status::disp_status, {"DE00443", "MachineStatusAnswer: expected disp_status value"}},
        {"offline_pressed", &Status::offline_pressed, ofMachine},
        {"board_not_initialized", &Status::board_not_initialized, ofMachine},
        {"startup", &Status::startup, ofMachine},
        {"resetting", &Status::resetting, ofMachine},
        {"BL_active", &Status::BL_active, ofMachine},
        {"BL_memory_resetting", &Status::BL_memory_resetting, ofMachine},
        {"BL_fw_update", &Status::BL_fw_update, ofMachine},
        {"conf_writing", &Status::conf_writing, ofMachine},
        {"hw_error", &Status::hw_error, ofMachine},
        {"conf_error", &Status::conf_error, ofMachine},
        {"process_error", &Status::process_error, ofMachine},
        {"stop_process", &Status::stop_process, ofMachine},
        Member<Status>::alwaysFalse("disp_info_writing"), // old clients ask for it
        Member<Status>::alwaysFalse("disp_info_erasing"), // old clients ask for it
        {"new_buffered_error", &Status::new_buffered_error},
        {"dispenser_not_ready", &Status::dispenser_not_ready},
        {"emergency_pressed", &Status::emergency_pressed, ofMachine},
        {"normal_wm", &Status::normal_wm},
        {"can_present", &Status::can_present, ofDispenser}, // users know it under the dispenser's name
        {"shelf_up", &Status::shelf_up, ofMachine},
        {"shelf_down", &Status::shelf_down, ofMachine},
        Member<Status>::alwaysFalse("WM_set"), // old clients ask for it
        {"door_open", &Status::door_open},
        Member<Status>("machine_turned_off", &Status::machine_turned_off).uses(Read | Compare),
        Member<Status>("machine_unlocked", &Status::machine_unlocked).uses(Read | Compare),
    });
    return record;
}

bool quv::takesCommands(const MachineStatusAnswer &status)
{
    return !status.board_not_initialized && !status.dispenser_not_ready && !status.emergency_pressed &&
           !status.offline_pressed;
}

std::optional<QString> quv::firstBadLine(const QList<QPair<QString, bool>> &lines)
{
    for (const auto &[text, bad] : lines) {
        if (bad)
            return text;
    }
    return std::nullopt;
}

MachineStatusAnswer::MachineStatusAnswer() = default;

MachineStatusAnswer::MachineStatusAnswer(QList<QVariant>) {}

MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue &value)
{
    quv::machineStatusRecord().decode(value, *this, Q_FUNC_INFO);
}

MachineStatusAnswer::MachineStatusAnswer(QStringList tokens)
{
    if (tokens.size() < 6)
        throw FW_Exception("DE00066", "Error during command answer decoding: bad length", Q_FUNC_INFO);
    unsigned status = 0;
    if (!quv::parseHex(tokens.at(2), status) || !checkStatus(static_cast<int>(status)))
        throw FW_Exception("DE00068", "Error during command answer decoding: conversion failed", Q_FUNC_INFO);
    disp_status = static_cast<int>(status);
}

MachineStatusAnswer::~MachineStatusAnswer() = default;

bool MachineStatusAnswer::hasBadWorkingState() const
{
    return false;
}

QString MachineStatusAnswer::getFirstBadWorkingState() const
{
    return {};
}

bool MachineStatusAnswer::operator==(const MachineStatusAnswer &other) const
{
    return quv::machineStatusRecord().equal(*this, other);
}

bool MachineStatusAnswer::equalTo(const MachineStatusAnswer *other) const
{
    return other && *this == *other;
}

void MachineStatusAnswer::clearMachineStatus()
{
    quv::machineStatusRecord().reset(*this);
    normal_wm = true;
}

bool MachineStatusAnswer::checkStatus(int status) const
{
    return status == 1 || status == 2;
}

bool MachineStatusAnswer::setXmlRpcProperty(const XmlRpc::XmlRpcValue &value, bool *target, QString key,
                                            QString className, FW_DriverError *error)
{
    return decodeProperty(flagCode, value, target, key, className, error);
}

bool MachineStatusAnswer::setXmlRpcProperty(const XmlRpc::XmlRpcValue &value, int *target, QString key,
                                            QString className, FW_DriverError *error)
{
    return decodeProperty(intCode, value, target, key, className, error);
}

void MachineStatusAnswer::udpateXmlRpcValue(XmlRpc::XmlRpcValue &value) const
{
    quv::machineStatusRecord().encodeInto(*this, value);
}

QList<QPair<QString, bool>> MachineStatusAnswer::getMachineStatusDescriptions(SerialDeviceType device) const
{
    QList<QPair<QString, bool>> descriptions;
    quv::describeConditions(conditions, *this, isDispenser(device), descriptions);
    return descriptions;
}

QList<QString> MachineStatusAnswer::getNewMachineStatesDescriptions(SerialDeviceType device,
                                                                    const MachineStatusAnswer *before,
                                                                    const MachineStatusAnswer *after)
{
    QList<QString> descriptions;
    if (before && after)
        quv::describeChanges(changes, *before, *after, isDispenser(device), descriptions);
    return descriptions;
}
