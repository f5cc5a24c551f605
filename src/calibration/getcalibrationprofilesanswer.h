// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

#include <QuvFramework/fw_calibrationprofiles.h>

/** The answer to GET_CALIB_PROFILES: the pumps whose calibration is known beforehand, the member "calibration_profiles" of a struct. */
class QUVPROTOCOL_EXPORT GetCalibrationProfilesAnswer
    : public quv::DescribedAnswer<GetCalibrationProfilesAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char calibrationProfiles_TAG[] = "calibration_profiles";

    GetCalibrationProfilesAnswer() = default;
    explicit GetCalibrationProfilesAnswer(const FW_CalibrationProfiles &profiles);
    /** Throws DE00638 without the member, DE00639 when it is no struct or cannot be made, and as FW_CalibrationProfiles does. */
    explicit GetCalibrationProfilesAnswer(const XmlRpc::XmlRpcValue &value);
    /** The profiles, or the map that stands for them. Throws DE00635 for anything else, and as FW_CalibrationProfiles does. */
    explicit GetCalibrationProfilesAnswer(QList<QVariant> &list);

    GetCalibrationProfilesAnswer *clone() const override;

    const FW_CalibrationProfiles &calibrationProfiles() const { return m_profiles; }

private:
    FW_CalibrationProfiles m_profiles;
};
