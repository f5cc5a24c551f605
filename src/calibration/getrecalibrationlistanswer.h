// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "basiccalibrationdata.h"

#include <QtCore/QList>

/** The answer to GET_RECALIB_LIST: the recalibrations of circuits, the member "calibrations_list" of a struct. */
class QUVPROTOCOL_EXPORT GetRecalibrationListAnswer
    : public quv::DescribedAnswer<GetRecalibrationListAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    GetRecalibrationListAnswer() = default;
    explicit GetRecalibrationListAnswer(const QList<BasicCalibrationData> &calibrations);
    /** Throws DE02640 without the array, DE02639 for a calibration that cannot be made, and as BasicCalibrationData does. */
    explicit GetRecalibrationListAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Each element a calibration, or the only one all of them. Throws DE02638 for another type, DE02637 when one cannot be made,
     * and as BasicCalibrationData does for a bad map.
     */
    explicit GetRecalibrationListAnswer(QList<QVariant> &list);

    GetRecalibrationListAnswer *clone() const override;

    const QList<BasicCalibrationData> &calibrations() const { return m_calibrations; }

private:
    QList<BasicCalibrationData> m_calibrations;
};
