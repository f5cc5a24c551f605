// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getcalibrationprofilesanswer.h"

#include "base/describedanswer_p.h"
#include "calibration/calibrationprofiles_p.h"

namespace quv {

namespace {

Decoded readProfiles(const XmlRpc::XmlRpcValue &value, void *field)
{
    return isProfilesStruct(value) ? readObject<FW_CalibrationProfiles>(value, field) : Decoded::OtherType;
}

} // namespace

template <>
const FieldType &fieldType<FW_CalibrationProfiles>()
{
    static constexpr FieldType type = [] {
        FieldType profiles = objectType<FW_CalibrationProfiles>();
        profiles.read = readProfiles;
        return profiles;
    }();
    return type;
}

} // namespace quv

namespace {

constexpr char notCreated[] = "GetCalibrationProfilesAnswer: Errors during configuration creation";

} // namespace

struct GetCalibrationProfilesAnswer::Description
{
    using Answer = GetCalibrationProfilesAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    calibrationProfiles_TAG, &Answer::m_profiles, {"DE00638", notCreated},
                    {"DE00635", "GetCalibrationProfilesAnswer decoding failed: invalid QVariant value"})
                    .otherType({"DE00639", notCreated})
                    .meaning("member \"pumps\": the motors of pumps, each with its calibration")};
    }
};

template class quv::DescribedAnswer<GetCalibrationProfilesAnswer, ConfProtoAnswer>;

GetCalibrationProfilesAnswer::GetCalibrationProfilesAnswer(const FW_CalibrationProfiles &profiles)
    : m_profiles(profiles)
{}

GetCalibrationProfilesAnswer::GetCalibrationProfilesAnswer(const XmlRpc::XmlRpcValue &value)
    : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetCalibrationProfilesAnswer::GetCalibrationProfilesAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetCalibrationProfilesAnswer *GetCalibrationProfilesAnswer::clone() const
{
    return new GetCalibrationProfilesAnswer(*this);
}
