// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

struct FW_Version;

/**
 * SET_DISP_OUTPUT: switches one output of the machine, such as a valve, the nozzle light or the heater. The position is the serial
 * address.
 */
class QUVPROTOCOL_EXPORT SetDispOutputCmd : public quv::DescribedCommand<SetDispOutputCmd, SerialProtoCommand>
{
public:
    struct Description;

    /** What can be done to an output. Where only the firmware knows what it is, the name tells the output's type or mode. */
    enum DispOutputAction : int {
        OpenElectrovalve = 0,
        CloseElectrovalve = 1,
        BungHoleLocatorOn = 2,
        BungHoleLocatorOff = 3,
        NozzleLightOn = 4,
        NozzleLightOff = 5,
        TurntableBrakeOn = 6,
        TurntableBrakeOff = 7,
        TurntableBrushOff = 8,
        TurntableBrushOnMode4 = 9,
        TurntableBrushOnMode5 = 10,
        HeaterOn = 11,
        HeaterOff = 12,
        Output7On = 13,
        Output7Off = 14,
        BluetoothOn = 15,
        BluetoothOff = 16,
        HumidifierPumpOn = 17,
        HumidifierPumpOff = 18,
        HumidifierResistanceOn = 19,
        HumidifierResistanceOff = 20,
        LockRollbar = 21,
        UnlockRollbar = 22,
        OpenNozzleValve = 23,
        CloseNozzleValve = 24,
        OpenCap = 25,
        CloseCap = 26,
        CapToHomePosition = 27,
        TurntableBrush2Off = 28,
        TurntableBrush2OnMode4 = 29,
        TurntableBrush2OnMode5 = 30,
        Output7OffMode7 = 31,
        OpenMainDoor = 32,
        Output16On = 33,
        MainStirringMotorOnMode4 = 34,
        MainStirringMotorOnMode5 = 35,
        MainStirringMotorOff = 36,
        SecondaryStirringMotorOnMode4 = 37,
        SecondaryStirringMotorOnMode5 = 38,
        SecondaryStirringMotorOff = 39
    };

    SetDispOutputCmd() = default; ///< no output yet
    // The next three believe what they are given.
    SetDispOutputCmd(int type, int status);
    SetDispOutputCmd(int position, int type, int status);
    SetDispOutputCmd(int position, int type, int status, int mode);
    /** Throws DE03168 for a number that is no action. */
    SetDispOutputCmd(DispOutputAction action, int position);
    /**
     * Type and status, or position, type, status and optionally mode (ints). Throws DE03160 for another type of argument, DE03161,
     * DE03162 or DE03163 for a type, a status or a mode that there is not.
     */
    explicit SetDispOutputCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE03164 to DE03167 likewise. */
    explicit SetDispOutputCmd(QList<QVariant> list);
    explicit SetDispOutputCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetDispOutputCmd(int) = delete;
    explicit SetDispOutputCmd(double) = delete;
    explicit SetDispOutputCmd(const char *) = delete;

    SetDispOutputCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< type, status, mode

    QString commandString() const override;             ///< empty where type, status and mode have no words
    TString actionString(bool detailed) const override; ///< that of any command there

    int outputType() const { return m_outputType; }
    int outputStatus() const { return m_outputStatus; } ///< 2 on or opening, 1 off or closing
    int outputMode() const { return m_outputMode; }

    static bool checkOutputType(int type);     ///< 1 to 18
    static bool checkOutputStatus(int status); ///< 0 to 2
    static bool checkOutputMode(int mode);     ///< 0 to 7
    /** False on every firmware for the actions 18, 21, 22 and 28 to 30, although the outputs are there. */
    static bool isSupportedAction(DispOutputAction action, const FW_Version &version);

private:
    int m_outputType = 0;
    int m_outputStatus = -1;
    int m_outputMode = 0;
};
