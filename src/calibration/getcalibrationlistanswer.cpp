// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getcalibrationlistanswer.h"

#include "base/describedanswer_p.h"
#include "calibration/calibrationdata_p.h"
#include "calibration/setcalibrationlistcmd.h"

namespace {

constexpr char notMade[] = "GetCalibrationListAnswer: errors during CalibrationData creation";
constexpr quv::Refusal notMadeOfVariant = {"DE00858", notMade};
constexpr quv::Refusal otherVariant = {"DE00871",
                                       "GetCalibrationListAnswer decoding failed: invalid QVariant value"};

} // namespace

struct GetCalibrationListAnswer::Description
{
    using Answer = GetCalibrationListAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    SetCalibrationListCmd::calibrationList_TAG, &Answer::m_calibrations,
                    {"DE00875", "GetCalibrationListAnswer: cannot find calibrations list tag"}, otherVariant)
                    .element({"DE00874", notMade})
                    .alsoInList("an element that cannot be made", notMadeOfVariant)
                    .meaning("of each circuit its position, its motor and its calibrations")};
    }
};

template class quv::DescribedAnswer<GetCalibrationListAnswer, ConfProtoAnswer>;

GetCalibrationListAnswer::GetCalibrationListAnswer(const QList<CalibrationData> &calibrations)
    : m_calibrations(calibrations)
{}

GetCalibrationListAnswer::GetCalibrationListAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetCalibrationListAnswer::GetCalibrationListAnswer(QList<QVariant> &list)
    : DescribedAnswer(list),
      m_calibrations(quv::calibrationsOf(list, otherVariant, notMadeOfVariant, Q_FUNC_INFO))
{}

GetCalibrationListAnswer *GetCalibrationListAnswer::clone() const
{
    return new GetCalibrationListAnswer(*this);
}
