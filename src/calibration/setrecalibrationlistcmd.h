// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "basiccalibrationdata.h"

/** SET_RECALIB_LIST: saves the recalibrations of circuits. The only argument is a struct with the member "calibrations_list". */
class QUVPROTOCOL_EXPORT SetRecalibrationListCmd
    : public quv::DescribedCommand<SetRecalibrationListCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetRecalibrationListCmd() = default;
    explicit SetRecalibrationListCmd(const QList<BasicCalibrationData> &calibrations);
    /** Throws DE02646 without the struct or the array in it, DE02645 for a calibration that cannot be made, and as BasicCalibrationData does. */
    explicit SetRecalibrationListCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * All calibrations as one argument, or each as one of its own. Throws DE02648 for another type, DE02647 when one cannot be
     * made, and as BasicCalibrationData does for a bad map.
     */
    explicit SetRecalibrationListCmd(QList<QVariant> list);
    explicit SetRecalibrationListCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetRecalibrationListCmd(int) = delete;
    explicit SetRecalibrationListCmd(double) = delete;
    explicit SetRecalibrationListCmd(const char *) = delete;

    SetRecalibrationListCmd *clone() const override;

    QList<QVariant> parameters() const override; ///< all as one argument
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const QList<BasicCalibrationData> &calibrations() const { return m_calibrations; }

private:
    QList<BasicCalibrationData> m_calibrations;
};
