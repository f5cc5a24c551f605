// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "calibrationdata.h"

#include <QtCore/QList>

/** The answer to GET_CALIB_LIST: the calibrations of circuits, the member "calibrations_list" of a struct. */
class QUVPROTOCOL_EXPORT GetCalibrationListAnswer
    : public quv::DescribedAnswer<GetCalibrationListAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    GetCalibrationListAnswer() = default;
    explicit GetCalibrationListAnswer(const QList<CalibrationData> &calibrations);
    /** Throws DE00875 without the array, DE00874 for a bad calibration, and as the framework does for what is in one. */
    explicit GetCalibrationListAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Each element a calibration, or the only one all of them. Throws DE00871 for another type, DE00858 for a bad
     * map, and as the framework does for what is in one.
     */
    explicit GetCalibrationListAnswer(QList<QVariant> &list);

    GetCalibrationListAnswer *clone() const override;

    const QList<CalibrationData> &calibrations() const { return m_calibrations; }

private:
    QList<CalibrationData> m_calibrations;
};
