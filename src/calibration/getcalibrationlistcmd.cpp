// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getcalibrationlistcmd.h"

#include "calibration/calibrationlistcmd_p.h"
#include "calibration/getcalibrationlistanswer.h"

struct GetCalibrationListCmd::Description : CalibrationListCmd::Description
{
    static constexpr auto command = ProtoCommandList::GET_CALIB_LIST;

    static constexpr quv::AnsweredBy<GetCalibrationListAnswer> answer = {
        {}, {"DE01297", quv::answerFailed}, {"DE00346", quv::answerFailed}, {}};
};

template class quv::DescribedCommand<GetCalibrationListCmd, ConfProtoCommand>;

GetCalibrationListCmd::GetCalibrationListCmd(int positionID) : CalibrationListCmd(positionID) {}

GetCalibrationListCmd::GetCalibrationListCmd(int positionID, bool showForEnabledCircuit)
    : CalibrationListCmd(positionID, showForEnabledCircuit)
{}

GetCalibrationListCmd::GetCalibrationListCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser),
      CalibrationListCmd(value, dispenser)
{}

GetCalibrationListCmd::GetCalibrationListCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser),
      CalibrationListCmd(list, dispenser)
{}

GetCalibrationListCmd *GetCalibrationListCmd::clone() const
{
    return new GetCalibrationListCmd(*this);
}

QList<QVariant> GetCalibrationListCmd::parameters() const
{
    return variant_parameters();
}

XmlRpc::XmlRpcValue GetCalibrationListCmd::xmlrpc_parameters(bool *ok) const
{
    return CalibrationListCmd::xmlrpc_parameters(ok);
}
