// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "fwprocess.h"

class FW_Dispenser;
enum class MachineModel;

/**
 * RECIRCULATION: pumps the colorant of a circuit, or of all circuits, around, so that it does not settle. The position is the
 * serial address, 0 for all circuits; a duration of 0 stops the process.
 */
class QUVPROTOCOL_EXPORT RecirculationCmd
    : public quv::DescribedCommand<RecirculationCmd, SerialProtoCommand>,
      public FWProcess
{
public:
    struct Description;

    RecirculationCmd() = default; ///< all circuits
    /** Throws as FWProcess does. */
    RecirculationCmd(int position, qlonglong duration, int speed, DurationType type, bool busyExecution,
                     const FW_Dispenser *dispenser);
    /**
     * Position (int; with a dispenser also a circuit's ID) and duration (int), then speed and duration type (int) and busy
     * execution (bool), which may be left out; ranges are not checked. Throws DE00654 to DE00658, DE02084 or DE02605 for
     * what is missing or has another type, DE02083 for a position that the dispenser does not have.
     */
    RecirculationCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list. Throws DE00660 to DE00664, DE02086 or DE02606, and DE02085 for the position. */
    RecirculationCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    RecirculationCmd *clone() const override;

    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** Speed, two digits of the seconds, strokes, busy execution. */
    QList<int> serialParameters(int family) const override;
    /** The duration, when the command lasts as long: for busy execution, or all circuits. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
    TString actionString(bool detailed) const override;

    static bool supportsStrokesRecirculation(MachineModel model); ///< 6, 10 and 19
    static bool isRecirculateAllSupported(const FW_Version &version);
    static bool isBusyExecutionSupported(const FW_Version &version);
    /** 0 for no version, 2 for a firmware that has all circuits and busy execution, 1 without the latter, otherwise 0. */
    static int commandVersion(const FW_Version *version);

private:
    bool hasKnownPosition() const;
    void takePositionOfCircuit();
};
