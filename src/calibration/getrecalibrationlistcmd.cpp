// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getrecalibrationlistcmd.h"

#include "calibration/calibrationlistcmd_p.h"
#include "calibration/getrecalibrationlistanswer.h"

struct GetRecalibrationListCmd::Description : CalibrationListCmd::Description
{
    static constexpr auto command = ProtoCommandList::GET_RECALIB_LIST;

    static constexpr quv::AnsweredBy<GetRecalibrationListAnswer> answer = {
        {}, {"DE01297", quv::answerFailed}, {"DE00346", quv::answerFailed}, {}};
};

template class quv::DescribedCommand<GetRecalibrationListCmd, ConfProtoCommand>;

GetRecalibrationListCmd::GetRecalibrationListCmd(int positionID) : CalibrationListCmd(positionID) {}

GetRecalibrationListCmd::GetRecalibrationListCmd(int positionID, bool showForEnabledCircuit)
    : CalibrationListCmd(positionID, showForEnabledCircuit)
{}

GetRecalibrationListCmd::GetRecalibrationListCmd(const XmlRpc::XmlRpcValue &value,
                                                 const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser),
      CalibrationListCmd(value, dispenser)
{}

GetRecalibrationListCmd::GetRecalibrationListCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser),
      CalibrationListCmd(list, dispenser)
{}

GetRecalibrationListCmd *GetRecalibrationListCmd::clone() const
{
    return new GetRecalibrationListCmd(*this);
}

QList<QVariant> GetRecalibrationListCmd::parameters() const
{
    return variant_parameters();
}

XmlRpc::XmlRpcValue GetRecalibrationListCmd::xmlrpc_parameters(bool *ok) const
{
    return CalibrationListCmd::xmlrpc_parameters(ok);
}
