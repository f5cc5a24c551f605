// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "driverinfo.h"

/** The answer to GET_DRIVER_INFO: which driver it is, the member "driver_info" of a struct. */
class QUVPROTOCOL_EXPORT GetDriverInfoAnswer
    : public quv::DescribedAnswer<GetDriverInfoAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char driverInfo_TAG[] = "driver_info";

    GetDriverInfoAnswer() = default;
    /** Throws DE00448 without the member, and what DriverInfo does. */
    explicit GetDriverInfoAnswer(const XmlRpc::XmlRpcValue &value);
    /** A DriverInfo, or the map that stands for one; throws DE00448 without one. */
    explicit GetDriverInfoAnswer(QList<QVariant> &list);

    GetDriverInfoAnswer *clone() const override;

    const DriverInfo &driverInfo() const { return m_driverInfo; }
    void setDriverInfo(QVariant driverInfo); ///< anything else leaves it alone

private:
    DriverInfo m_driverInfo;
};
