// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

#include <QtCore/QStringList>

/** The answer to GET_QRCODE_CALIB: the texts of the QR codes, the member "encoded_data_list" of a struct. */
class QUVPROTOCOL_EXPORT GetQRCodeCalibrationAnswer
    : public quv::DescribedAnswer<GetQRCodeCalibrationAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char encodedDataList_TAG[] = "encoded_data_list";

    GetQRCodeCalibrationAnswer() = default;
    explicit GetQRCodeCalibrationAnswer(const QStringList &encodedData);
    explicit GetQRCodeCalibrationAnswer(
        const XmlRpc::XmlRpcValue &value); ///< throws DE03372 without the array of texts
    /** Each element a text, or the only one all of them. Throws DE03372 for another type. */
    explicit GetQRCodeCalibrationAnswer(QList<QVariant> &list);

    GetQRCodeCalibrationAnswer *clone() const override;

    const QStringList &encodedDataList() const { return m_encodedData; }

private:
    QStringList m_encodedData;
};
