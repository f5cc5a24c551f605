// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/setcalibrationlistcmd.h"

#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/requeststruct_p.h"
#include "calibration/calibrationarguments_p.h"
#include "calibration/calibrationdata_p.h"

namespace {

constexpr char notMade[] = "SetCalibrationListCmd: errors during CalibrationData creation";
constexpr quv::Refusal noList = {"DE00887", "SetCalibrationListCmd: cannot find calibrations list tag"};
constexpr quv::Refusal notMadeOfValue = {"DE00886", notMade};
constexpr quv::Refusal otherVariant = {"DE00893",
                                       "SetCalibrationListCmd decoding failed: invalid QVariant value"};
constexpr quv::Refusal notMadeOfVariant = {"DE00892", notMade};

} // namespace

struct SetCalibrationListCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_CALIB_LIST;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"calibrations",
                         "member \"calibrations_list\": an array of structs, each \"position_id\", "
                         "\"pump_info\" (the motor) and \"circuit_calibrations\""},
                        "struct");
        teller.refuse("without calibrations_list, or no array there", {noList, {}});
        teller.refuse("another type", {{}, otherVariant});
        teller.refuse("with a bad calibration", {notMadeOfValue, notMadeOfVariant});
        teller.refuse("a motor or a calibration with a wrong member", {quv::toldOfMachineData, {}});
    }
};

template class quv::DescribedCommand<SetCalibrationListCmd, ConfProtoCommand>;

SetCalibrationListCmd::SetCalibrationListCmd(const QList<CalibrationData> &calibrations)
    : m_calibrations(calibrations)
{}

SetCalibrationListCmd::SetCalibrationListCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value),
      m_calibrations(quv::memberArgument<QList<CalibrationData>>(value, 0, calibrationList_TAG, noList,
                                                                 notMadeOfValue, Q_FUNC_INFO))
{}

SetCalibrationListCmd::SetCalibrationListCmd(QList<QVariant> list)
    : DescribedCommand(list),
      m_calibrations(quv::calibrationsOf(list, otherVariant, notMadeOfVariant, Q_FUNC_INFO))
{}

SetCalibrationListCmd *SetCalibrationListCmd::clone() const
{
    return new SetCalibrationListCmd(*this);
}

QList<QVariant> SetCalibrationListCmd::parameters() const
{
    return {QVariant::fromValue(m_calibrations)};
}

XmlRpc::XmlRpcValue SetCalibrationListCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    quv::writeMemberArgument(array[0], calibrationList_TAG, m_calibrations);
    return array;
}
