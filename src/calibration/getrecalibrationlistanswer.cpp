// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getrecalibrationlistanswer.h"

#include "base/describedanswer_p.h"
#include "calibration/basiccalibrationdata_p.h"
#include "calibration/calibrationarguments_p.h"
#include "calibration/setcalibrationlistcmd.h"

namespace {

constexpr char notMade[] = "GetRecalibrationListAnswer: errors during BasicCalibrationData creation";
constexpr quv::Refusal notMadeOfVariant = {"DE02637", notMade};
constexpr quv::Refusal otherVariant = {"DE02638",
                                       "GetRecalibrationListAnswer decoding failed: invalid QVariant value"};

} // namespace

struct GetRecalibrationListAnswer::Description
{
    using Answer = GetRecalibrationListAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(SetCalibrationListCmd::calibrationList_TAG, &Answer::m_calibrations,
                                {"DE02640", "GetRecalibrationListAnswer: cannot find calibrations list tag"},
                                otherVariant)
                .unmadeElement({"DE02639", notMade})
                .alsoInList("an element that cannot be made", notMadeOfVariant)
                .meaning("of each circuit its position and its measured points")};
    }
};

template class quv::DescribedAnswer<GetRecalibrationListAnswer, ConfProtoAnswer>;

GetRecalibrationListAnswer::GetRecalibrationListAnswer(const QList<BasicCalibrationData> &calibrations)
    : m_calibrations(calibrations)
{}

GetRecalibrationListAnswer::GetRecalibrationListAnswer(const XmlRpc::XmlRpcValue &value)
    : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetRecalibrationListAnswer::GetRecalibrationListAnswer(QList<QVariant> &list)
    : DescribedAnswer(list),
      m_calibrations(quv::objectsOf<BasicCalibrationData>(list, otherVariant, notMadeOfVariant, Q_FUNC_INFO))
{}

GetRecalibrationListAnswer *GetRecalibrationListAnswer::clone() const
{
    return new GetRecalibrationListAnswer(*this);
}
