// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/setrecalibrationlistcmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "calibration/basiccalibrationdata_p.h"
#include "calibration/calibrationarguments_p.h"
#include "calibration/setcalibrationlistcmd.h"

namespace {

constexpr char notMade[] = "SetRecalibrationListCmd: errors during BasicCalibrationData creation";
constexpr quv::Refusal noList = {"DE02646", "SetRecalibrationListCmd: cannot find calibrations list tag"};
constexpr quv::Refusal notMadeOfValue = {"DE02645", notMade};
constexpr quv::Refusal otherVariant = {"DE02648",
                                       "SetRecalibrationListCmd decoding failed: invalid QVariant value"};
constexpr quv::Refusal notMadeOfVariant = {"DE02647", notMade};

} // namespace

struct SetRecalibrationListCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_RECALIB_LIST;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"calibrations",
                         "member \"calibrations_list\": an array of structs, each \"position_id\" and "
                         "\"calib_points\", structs of \"calib_point_id\", \"disp_quantity\", "
                         "\"disp_steps\", \"speed\" and \"nozzle_valve_id\""},
                        "struct");
        teller.refuse("without calibrations_list, or no array there", {noList, {}});
        teller.refuse("another type", {{}, otherVariant});
        for (const auto &[when, refusal] : quv::ownRefusals<BasicCalibrationData>)
            teller.refuse(when, {refusal, {}});
        teller.refuse("cannot be made", {notMadeOfValue, notMadeOfVariant});
    }
};

template class quv::DescribedCommand<SetRecalibrationListCmd, ConfProtoCommand>;

SetRecalibrationListCmd::SetRecalibrationListCmd(const QList<BasicCalibrationData> &calibrations)
    : m_calibrations(calibrations)
{}

SetRecalibrationListCmd::SetRecalibrationListCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value),
      m_calibrations(quv::memberArgument<QList<BasicCalibrationData>>(
          value, 0, SetCalibrationListCmd::calibrationList_TAG, noList, notMadeOfValue, Q_FUNC_INFO))
{}

SetRecalibrationListCmd::SetRecalibrationListCmd(QList<QVariant> list)
    : DescribedCommand(list),
      m_calibrations(quv::objectsOf<BasicCalibrationData>(list, otherVariant, notMadeOfVariant, Q_FUNC_INFO))
{}

SetRecalibrationListCmd *SetRecalibrationListCmd::clone() const
{
    return new SetRecalibrationListCmd(*this);
}

QList<QVariant> SetRecalibrationListCmd::parameters() const
{
    return {QVariant::fromValue(m_calibrations)};
}

XmlRpc::XmlRpcValue SetRecalibrationListCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    quv::writeMemberArgument(array[0], SetCalibrationListCmd::calibrationList_TAG, m_calibrations);
    return array;
}
