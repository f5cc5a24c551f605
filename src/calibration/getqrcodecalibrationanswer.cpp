// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getqrcodecalibrationanswer.h"

#include "base/describedanswer_p.h"

namespace {

constexpr quv::Refusal noTexts = {"DE03372", "GetQRCodeCalibrationAnswer: expected encoded data list value"};

} // namespace

struct GetQRCodeCalibrationAnswer::Description
{
    using Answer = GetQRCodeCalibrationAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(encodedDataList_TAG, &Answer::m_encodedData, noTexts, noTexts)
                    .meaning("the texts of the codes, in their order")};
    }
};

template class quv::DescribedAnswer<GetQRCodeCalibrationAnswer, ConfProtoAnswer>;

GetQRCodeCalibrationAnswer::GetQRCodeCalibrationAnswer(const QStringList &encodedData)
    : m_encodedData(encodedData)
{}

GetQRCodeCalibrationAnswer::GetQRCodeCalibrationAnswer(const XmlRpc::XmlRpcValue &value)
    : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetQRCodeCalibrationAnswer::GetQRCodeCalibrationAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    const bool inOne = list.size() == 1 && list.constFirst().userType() != QMetaType::QString;
    read({inOne ? list.constFirst() : QVariant(list)}, Q_FUNC_INFO); // the list is the one member
}

GetQRCodeCalibrationAnswer *GetQRCodeCalibrationAnswer::clone() const
{
    return new GetQRCodeCalibrationAnswer(*this);
}
