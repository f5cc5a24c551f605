// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/setdispoutputcmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "processes/leadingposition_p.h"

#include <algorithm>
#include <iterator>

namespace {

/** The firmware that has an action. */
struct Firmware
{
    const quv::FamilyGate *first = nullptr;
    int count = 0;
    bool others = false; ///< of the families without a gate

    const quv::FamilyGate *begin() const { return first; }
    const quv::FamilyGate *end() const { return first + count; }
};

template <int N>
constexpr Firmware only(const quv::FamilyGate (&gates)[N])
{
    return {gates, N, false};
}

constexpr quv::FamilyGate newer68[] = {{68, 1}};
constexpr quv::FamilyGate withBluetooth[] = {{63, 32}, {68, 1}};
constexpr quv::FamilyGate withHumidifier[] = {{63, 33}};
constexpr quv::FamilyGate withNozzleValve[] = {{72, 3}};
constexpr quv::FamilyGate withCapAndDoor[] = {{63, 38}};
constexpr quv::FamilyGate newer69[] = {{69, 2}};
constexpr quv::FamilyGate newer72[] = {{72, 4}};
constexpr quv::FamilyGate withStirringMotors[] = {{70, 2}};

constexpr Firmware every = {nullptr, 0, true};
constexpr Firmware none = {};

struct Action
{
    SetDispOutputCmd::DispOutputAction action{};
    int type = 0;
    int status = 0;
    int mode = 0;
    Firmware firmware;
};

using Cmd = SetDispOutputCmd;
constexpr int on = 2;
constexpr int off = 1;

constexpr Action actions[] = {
    {Cmd::OpenElectrovalve, 1, on, 0, every},
    {Cmd::CloseElectrovalve, 1, off, 0, every},
    {Cmd::BungHoleLocatorOn, 2, on, 0, every},
    {Cmd::BungHoleLocatorOff, 2, off, 0, every},
    {Cmd::NozzleLightOn, 3, on, 0, every},
    {Cmd::NozzleLightOff, 3, off, 0, every},
    {Cmd::TurntableBrakeOn, 4, on, 0, every},
    {Cmd::TurntableBrakeOff, 4, off, 0, every},
    {Cmd::TurntableBrushOff, 5, off, 0, every},
    {Cmd::TurntableBrushOnMode4, 5, on, 4, every},
    {Cmd::TurntableBrushOnMode5, 5, on, 5, every},
    {Cmd::HeaterOn, 6, on, 0, every},
    {Cmd::HeaterOff, 6, off, 0, every},
    {Cmd::Output7On, 7, on, 0, only(newer68)},
    {Cmd::Output7Off, 7, off, 0, only(newer68)},
    {Cmd::BluetoothOn, 8, on, 0, only(withBluetooth)},
    {Cmd::BluetoothOff, 8, off, 0, only(withBluetooth)},
    {Cmd::HumidifierPumpOn, 9, on, 0, only(withHumidifier)},
    {Cmd::HumidifierPumpOff, 9, off, 0, none},
    {Cmd::HumidifierResistanceOn, 10, on, 0, only(withHumidifier)},
    {Cmd::HumidifierResistanceOff, 10, off, 0, only(withHumidifier)},
    {Cmd::LockRollbar, 11, on, 0, none},
    {Cmd::UnlockRollbar, 11, off, 0, none},
    {Cmd::OpenNozzleValve, 7, on, 4, only(withNozzleValve)},
    {Cmd::CloseNozzleValve, 7, on, 5, only(withNozzleValve)},
    {Cmd::OpenCap, 12, on, 4, only(withCapAndDoor)},
    {Cmd::CloseCap, 12, on, 5, only(withCapAndDoor)},
    {Cmd::CapToHomePosition, 12, on, 6, only(withCapAndDoor)},
    {Cmd::TurntableBrush2Off, 13, off, 0, none},
    {Cmd::TurntableBrush2OnMode4, 13, on, 4, none},
    {Cmd::TurntableBrush2OnMode5, 13, on, 5, none},
    {Cmd::Output7OffMode7, 7, off, 7, only(newer69)},
    {Cmd::OpenMainDoor, 15, on, 0, only(withCapAndDoor)},
    {Cmd::Output16On, 16, on, 0, only(newer72)},
    {Cmd::MainStirringMotorOnMode4, 17, on, 4, only(withStirringMotors)},
    {Cmd::MainStirringMotorOnMode5, 17, on, 5, only(withStirringMotors)},
    {Cmd::MainStirringMotorOff, 17, off, 0, only(withStirringMotors)},
    {Cmd::SecondaryStirringMotorOnMode4, 18, on, 4, only(withStirringMotors)},
    {Cmd::SecondaryStirringMotorOnMode5, 18, on, 5, only(withStirringMotors)},
    {Cmd::SecondaryStirringMotorOff, 18, off, 0, only(withStirringMotors)},
};

const Action *find(SetDispOutputCmd::DispOutputAction action)
{
    const auto *found = std::find_if(std::begin(actions), std::end(actions),
                                     [action](const Action &row) { return row.action == action; });
    return found == std::end(actions) ? nullptr : found;
}

constexpr int anyMode = -1;

/** What it is called to switch an output. */
struct OutputWords
{
    int type = 0;
    int status = 0;
    int mode = anyMode;
    const char *commandText = "";
    const char *actionText = "";
};

constexpr OutputWords words[] = {
    {1, on, anyMode, "Electrovalve open", QT_TRANSLATE_NOOP("QuvProtocol", "Opening electrovalve")},
    {1, off, anyMode, "Electrovalve close", QT_TRANSLATE_NOOP("QuvProtocol", "Closing electrovalve")},
    {2, on, anyMode, "Turn Bung Hole Locator ON",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning Bung Hole Locator ON")},
    {2, off, anyMode, "Turn Bung Hole Locator OFF",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning Bung Hole Locator OFF")},
    {3, on, anyMode, "Turn LIT ON", QT_TRANSLATE_NOOP("QuvProtocol", "Turning Nozzle Light ON")},
    {3, off, anyMode, "Turn LIT OFF", QT_TRANSLATE_NOOP("QuvProtocol", "Turning Nozzle Light OFF")},
    {4, on, anyMode, "Turntable brake ON", QT_TRANSLATE_NOOP("QuvProtocol", "Turning turntable brake ON")},
    {4, off, anyMode, "Turntable brake OFF", QT_TRANSLATE_NOOP("QuvProtocol", "Turning turntable brake OFF")},
    {5, on, anyMode, "Turntable brush ON", QT_TRANSLATE_NOOP("QuvProtocol", "Turning turntable brush ON")},
    {5, off, anyMode, "Turntable brush OFF", QT_TRANSLATE_NOOP("QuvProtocol", "Turning turntable brush OFF")},
    {13, on, anyMode, "Turntable brush 2 ON",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning turntable brush 2 ON")},
    {13, off, anyMode, "Turntable brush 2 OFF",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning turntable brush 2 OFF")},
    {6, on, anyMode, "Heater ON", QT_TRANSLATE_NOOP("QuvProtocol", "Turning heater ON")},
    {6, off, anyMode, "Heater OFF", QT_TRANSLATE_NOOP("QuvProtocol", "Turning heater OFF")},
    {7, on, 4, "Nozzle valve open", QT_TRANSLATE_NOOP("QuvProtocol", "Opening nozzle valve")},
    {7, on, 5, "Nozzle valve close", QT_TRANSLATE_NOOP("QuvProtocol", "Closing nozzle valve")},
    {8, on, anyMode, "Bluetooth ON", QT_TRANSLATE_NOOP("QuvProtocol", "Turning VELTO Connect ON")},
    {8, off, anyMode, "Bluetooth OFF", QT_TRANSLATE_NOOP("QuvProtocol", "Turning VELTO Connect OFF")},
    {9, on, anyMode, "Humidifier pump ON", QT_TRANSLATE_NOOP("QuvProtocol", "Turning humidifier pump ON")},
    {9, off, anyMode, "Humidifier pump OFF", QT_TRANSLATE_NOOP("QuvProtocol", "Turning humidifier pump OFF")},
    {10, on, anyMode, "Humidifier resistance ON",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning humidifier resistance ON")},
    {10, off, anyMode, "Humidifier resistance OFF",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning humidifier resistance OFF")},
    {11, on, anyMode, "Rollbar lock", QT_TRANSLATE_NOOP("QuvProtocol", "Locking rollbar")},
    {11, off, anyMode, "Rollbar unlock", QT_TRANSLATE_NOOP("QuvProtocol", "Unlocking rollbar")},
    {12, on, 4, "Cap open", QT_TRANSLATE_NOOP("QuvProtocol", "Opening cap")},
    {12, on, 5, "Cap close", QT_TRANSLATE_NOOP("QuvProtocol", "Closing cap")},
    {12, on, 6, "Cap to home position", QT_TRANSLATE_NOOP("QuvProtocol", "Moving cap to home position")},
    {15, on, anyMode, "Main door open", QT_TRANSLATE_NOOP("QuvProtocol", "Opening main door")},
    {15, off, anyMode, "Main door close", QT_TRANSLATE_NOOP("QuvProtocol", "Closing main door")},
    {17, on, anyMode, "Main stirring motor on",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning main stirring motor ON")},
    {17, off, anyMode, "Main stirring motor off",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning main stirring motor OFF")},
    {18, on, anyMode, "Secondary stirring motor on",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning secondary stirring motor ON")},
    {18, off, anyMode, "Secondary stirring motor off",
     QT_TRANSLATE_NOOP("QuvProtocol", "Turning secondary stirring motor OFF")},
};

/** The words of a command, or null. */
const OutputWords *wordsOf(const SetDispOutputCmd &command)
{
    const auto *found = std::find_if(std::begin(words), std::end(words), [&](const OutputWords &row) {
        return row.type == command.outputType() && row.status == command.outputStatus() &&
               (row.mode == anyMode || row.mode == command.outputMode());
    });
    return found == std::end(words) ? nullptr : found;
}

constexpr quv::ArgumentRefusal noNumber = {"DE03160", "DE03164", "SetDispOutputCmd: expected INT parameter"};

} // namespace

struct SetDispOutputCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_DISP_OUTPUT;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.requiredIf(false,
                           {"position", "a circuit's position; may be left out before the two that follow"},
                           self.m_moduleID, quv::countedBefore, noNumber);
        archive.required({"output_type", "1 to 18"}, self.m_outputType, quv::countedBefore, noNumber);
        archive.refuseUnless(checkOutputType(self.m_outputType),
                             {"DE03161", "DE03165", "SetDispOutputCmd: invalid output type"});
        archive.required({"output_status", "2 on or open, 1 off or close"}, self.m_outputStatus,
                         quv::countedBefore, noNumber);
        archive.refuseUnless(checkOutputStatus(self.m_outputStatus),
                             {"DE03162", "DE03166", "SetDispOutputCmd: invalid output status"});
        archive.optional({"output_mode", "0 to 7"}, self.m_outputMode, noNumber);
        archive.refuseUnless(checkOutputMode(self.m_outputMode),
                             {"DE03163", "DE03167", "SetDispOutputCmd: invalid output mode"});
    }
};

template class quv::DescribedCommand<SetDispOutputCmd, SerialProtoCommand>;

SetDispOutputCmd::SetDispOutputCmd(int type, int status) : SetDispOutputCmd(0, type, status, 0) {}

SetDispOutputCmd::SetDispOutputCmd(int position, int type, int status)
    : SetDispOutputCmd(position, type, status, 0)
{}

SetDispOutputCmd::SetDispOutputCmd(int position, int type, int status, int mode)
    : m_outputType(type),
      m_outputStatus(status),
      m_outputMode(mode)
{
    m_moduleID = position;
}

SetDispOutputCmd::SetDispOutputCmd(DispOutputAction action, int position)
{
    const Action *found = find(action);
    if (!found)
        throw FW_Exception("DE03168", "SetDispOutputCmd: unknown action", Q_FUNC_INFO);
    m_outputType = found->type;
    m_outputStatus = found->status;
    m_outputMode = found->mode;
    m_moduleID = position;
}

SetDispOutputCmd::SetDispOutputCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(quv::withPosition(value), Q_FUNC_INFO);
}

SetDispOutputCmd::SetDispOutputCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(quv::withPosition(list), Q_FUNC_INFO);
}

SetDispOutputCmd *SetDispOutputCmd::clone() const
{
    return new SetDispOutputCmd(*this);
}

QList<int> SetDispOutputCmd::serialParameters(int) const
{
    return {m_outputType, m_outputStatus, m_outputMode};
}

QString SetDispOutputCmd::commandString() const
{
    const OutputWords *found = wordsOf(*this);
    return found ? QString::fromLatin1(found->commandText) : DescribedCommand::commandString();
}

TString SetDispOutputCmd::actionString(bool detailed) const
{
    const OutputWords *found = wordsOf(*this);
    return found ? TString(found->actionText, quv::translationContext)
                 : DescribedCommand::actionString(detailed);
}

bool SetDispOutputCmd::checkOutputType(int type)
{
    return type >= 1 && type <= 18;
}

bool SetDispOutputCmd::checkOutputStatus(int status)
{
    return status >= 0 && status <= 2;
}

bool SetDispOutputCmd::checkOutputMode(int mode)
{
    return mode >= 0 && mode <= 7;
}

bool SetDispOutputCmd::isSupportedAction(DispOutputAction action, const FW_Version &version)
{
    const Action *found = find(action);
    return found && quv::passesGate(found->firmware, version, found->firmware.others);
}
