// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QtCore/QString>

/** How much a QR code holds: the denser, the fewer codes, and the harder they are to scan. */
enum class QRCodeDensity : int { Low = 0, Normal = 1 };

/** The density for people, translated: "Low" or "Normal"; nothing for one that there is not. */
QUVPROTOCOL_EXPORT QString getQRCodeDensityStr(QRCodeDensity density);

/** GET_QRCODE_CALIB: packs the calibrations into texts for QR codes; the answer is a GetQRCodeCalibrationAnswer. */
class QUVPROTOCOL_EXPORT GetQRCodeCalibrationCmd
    : public quv::DescribedCommand<GetQRCodeCalibrationCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char QRCodeDensity_TAG[] = "qr_code_density";

    GetQRCodeCalibrationCmd() = default; ///< of normal density
    explicit GetQRCodeCalibrationCmd(QRCodeDensity density);
    /**
     * A struct with the density (int), or nothing for normal density. Any number is taken. Throws DE03371 for anything else.
     */
    explicit GetQRCodeCalibrationCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetQRCodeCalibrationCmd(QList<QVariant> list); ///< the density itself; likewise
    explicit GetQRCodeCalibrationCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GetQRCodeCalibrationCmd(int) = delete;
    explicit GetQRCodeCalibrationCmd(double) = delete;
    explicit GetQRCodeCalibrationCmd(const char *) = delete;

    GetQRCodeCalibrationCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    QRCodeDensity density() const { return m_density; }

private:
    QRCodeDensity m_density = QRCodeDensity::Normal;
};
