// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getqrcodecalibrationcmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "calibration/calibrationarguments_p.h"
#include "calibration/getqrcodecalibrationanswer.h"

namespace {

constexpr quv::Refusal noDensity = {"DE03371", "GetQRCodeCalibrationCmd: expected INT density parameter"};

} // namespace

QString getQRCodeDensityStr(QRCodeDensity density)
{
    switch (density) {
    case QRCodeDensity::Low:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Low"));
    case QRCodeDensity::Normal:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Normal"));
    }
    return {};
}

struct GetQRCodeCalibrationCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_QRCODE_CALIB;

    static constexpr quv::AnsweredBy<GetQRCodeCalibrationAnswer> answer = {
        {}, {"DE01297", quv::answerFailed}, {"DE00346", quv::answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"density", "member \"qr_code_density\": 0 low, 1 normal (in a list the number itself)"},
            "struct", GetQRCodeCalibrationCmd().xmlrpc_parameters()[0]);
        teller.refuse("without qr_code_density, or no int there", {noDensity, {}});
        teller.refuse("another type", {{}, noDensity});
    }
};

template class quv::DescribedCommand<GetQRCodeCalibrationCmd, ConfProtoCommand>;

GetQRCodeCalibrationCmd::GetQRCodeCalibrationCmd(QRCodeDensity density) : m_density(density) {}

GetQRCodeCalibrationCmd::GetQRCodeCalibrationCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    if (value.size() > 0)
        m_density = static_cast<QRCodeDensity>(
            quv::memberArgument<int>(value, 0, QRCodeDensity_TAG, noDensity, noDensity, Q_FUNC_INFO));
}

GetQRCodeCalibrationCmd::GetQRCodeCalibrationCmd(QList<QVariant> list) : DescribedCommand(list)
{
    auto density = static_cast<int>(m_density);
    if (!list.isEmpty() && !quv::decodeVariant(list.constFirst(), density))
        quv::throwRefusal(noDensity, Q_FUNC_INFO);
    m_density = static_cast<QRCodeDensity>(density);
}

GetQRCodeCalibrationCmd *GetQRCodeCalibrationCmd::clone() const
{
    return new GetQRCodeCalibrationCmd(*this);
}

QList<QVariant> GetQRCodeCalibrationCmd::parameters() const
{
    return {static_cast<int>(m_density)};
}

XmlRpc::XmlRpcValue GetQRCodeCalibrationCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0][QRCodeDensity_TAG] = static_cast<int>(m_density);
    return array;
}
