// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "calibrationdata.h"

/** SET_CALIB_LIST: saves the calibrations of circuits. The only argument is a struct with the member "calibrations_list". */
class QUVPROTOCOL_EXPORT SetCalibrationListCmd
    : public quv::DescribedCommand<SetCalibrationListCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char calibrationList_TAG[] = "calibrations_list";

    SetCalibrationListCmd() = default;
    explicit SetCalibrationListCmd(const QList<CalibrationData> &calibrations);
    /**
     * Throws DE00887 without the struct or the array in it, DE00886 for a bad calibration, and as the framework does for what is in
     * one.
     */
    explicit SetCalibrationListCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * All calibrations as one argument, or each as one of its own. Throws DE00893 for another type, DE00892 for a bad
     * map, and as the framework does for what is in one.
     */
    explicit SetCalibrationListCmd(QList<QVariant> list);
    explicit SetCalibrationListCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetCalibrationListCmd(int) = delete;
    explicit SetCalibrationListCmd(double) = delete;
    explicit SetCalibrationListCmd(const char *) = delete;

    SetCalibrationListCmd *clone() const override;

    QList<QVariant> parameters() const override; ///< all as one argument
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const QList<CalibrationData> &calibrations() const { return m_calibrations; }

private:
    QList<CalibrationData> m_calibrations;
};
