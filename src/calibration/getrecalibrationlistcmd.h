// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "calibrationlistcmd.h"

/** GET_RECALIB_LIST: reads the recalibration of a circuit; the answer is a GetRecalibrationListAnswer. */
class QUVPROTOCOL_EXPORT GetRecalibrationListCmd
    : public quv::DescribedCommand<GetRecalibrationListCmd, ConfProtoCommand>,
      public CalibrationListCmd
{
public:
    struct Description;

    GetRecalibrationListCmd() = default;
    explicit GetRecalibrationListCmd(int positionID);
    GetRecalibrationListCmd(int positionID, bool showForEnabledCircuit);
    // As CalibrationListCmd, with its refusals.
    GetRecalibrationListCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    GetRecalibrationListCmd(QList<QVariant> list, const FW_Dispenser *dispenser);
    explicit GetRecalibrationListCmd(bool) = delete;
    explicit GetRecalibrationListCmd(double) = delete;
    GetRecalibrationListCmd(int, const FW_Dispenser *) = delete; // would be an XML-RPC value

    GetRecalibrationListCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
};
