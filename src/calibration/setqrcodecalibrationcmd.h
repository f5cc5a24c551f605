// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QtCore/QString>

/** SET_QRCODE_CALIB: takes over the calibration that the text of a QR code holds. What the text says is for the driver to read. */
class QUVPROTOCOL_EXPORT SetQRCodeCalibrationCmd
    : public quv::DescribedCommand<SetQRCodeCalibrationCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char QRCodeCalibration_TAG[] = "qr_code_calibration";

    SetQRCodeCalibrationCmd() = default;
    explicit SetQRCodeCalibrationCmd(const QString &calibration);
    /** A struct with the text. Throws DE01986 without it. */
    explicit SetQRCodeCalibrationCmd(const XmlRpc::XmlRpcValue &value);
    explicit SetQRCodeCalibrationCmd(QList<QVariant> list); ///< the text; throws DE01987 for another type
    explicit SetQRCodeCalibrationCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetQRCodeCalibrationCmd(int) = delete;
    explicit SetQRCodeCalibrationCmd(double) = delete;
    explicit SetQRCodeCalibrationCmd(const char *) = delete;

    SetQRCodeCalibrationCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const QString &calibration() const { return m_calibration; }

private:
    QString m_calibration;
};
