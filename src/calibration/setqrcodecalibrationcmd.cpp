// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/setqrcodecalibrationcmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "calibration/calibrationarguments_p.h"

namespace {

constexpr quv::Refusal noText = {"DE01986", "SetQRCodeCalibrationCmd decoding failed: invalid xmlrpc value"};
constexpr quv::Refusal otherVariant = {"DE01987",
                                       "SetQRCodeCalibrationCmd decoding failed: invalid QVariant value"};

} // namespace

struct SetQRCodeCalibrationCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_QRCODE_CALIB;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"calibration",
                         "member \"qr_code_calibration\": the text of the code (in a list the text "
                         "itself)"},
                        "struct");
        teller.refuse("without qr_code_calibration, or no string there", {noText, {}});
        teller.refuse("another type", {{}, otherVariant});
    }
};

template class quv::DescribedCommand<SetQRCodeCalibrationCmd, ConfProtoCommand>;

SetQRCodeCalibrationCmd::SetQRCodeCalibrationCmd(const QString &calibration) : m_calibration(calibration) {}

SetQRCodeCalibrationCmd::SetQRCodeCalibrationCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value),
      m_calibration(
          quv::memberArgument<QString>(value, 0, QRCodeCalibration_TAG, noText, noText, Q_FUNC_INFO))
{}

SetQRCodeCalibrationCmd::SetQRCodeCalibrationCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (!quv::decodeVariant(list.value(0), m_calibration))
        quv::throwRefusal(otherVariant, Q_FUNC_INFO);
}

SetQRCodeCalibrationCmd *SetQRCodeCalibrationCmd::clone() const
{
    return new SetQRCodeCalibrationCmd(*this);
}

QList<QVariant> SetQRCodeCalibrationCmd::parameters() const
{
    return {m_calibration};
}

XmlRpc::XmlRpcValue SetQRCodeCalibrationCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    quv::writeMemberArgument(array[0], QRCodeCalibration_TAG, m_calibration);
    return array;
}
