// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/calibrationlistcmd.h"

#include "calibration/calibrationlistcmd_p.h"

CalibrationListCmd::CalibrationListCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
{
    quv::ValueReader reader(value, Q_FUNC_INFO);
    Description::arguments(*this, reader, dispenser);
}

CalibrationListCmd::CalibrationListCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    Description::arguments(*this, reader, dispenser);
}

QList<QVariant> CalibrationListCmd::variant_parameters() const
{
    quv::ListWriter writer;
    Description::arguments(*this, writer);
    return writer.result();
}

XmlRpc::XmlRpcValue CalibrationListCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    return quv::writtenArguments([this](auto &archive) { Description::arguments(*this, archive); });
}
