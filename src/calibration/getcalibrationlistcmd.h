// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "calibrationlistcmd.h"

/** GET_CALIB_LIST: reads the calibration of a circuit; the answer is a GetCalibrationListAnswer. */
class QUVPROTOCOL_EXPORT GetCalibrationListCmd
    : public quv::DescribedCommand<GetCalibrationListCmd, ConfProtoCommand>,
      public CalibrationListCmd
{
public:
    struct Description;

    GetCalibrationListCmd() = default;
    explicit GetCalibrationListCmd(int positionID);
    GetCalibrationListCmd(int positionID, bool showForEnabledCircuit);
    // As CalibrationListCmd, with its refusals.
    GetCalibrationListCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    GetCalibrationListCmd(QList<QVariant> list, const FW_Dispenser *dispenser);
    explicit GetCalibrationListCmd(bool) = delete;
    explicit GetCalibrationListCmd(double) = delete;
    GetCalibrationListCmd(int, const FW_Dispenser *) = delete; // would be an XML-RPC value

    GetCalibrationListCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
};
