// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "driversettings.h"

/** The answer to GET_DRIVER_SETTINGS: the driver's setup, the member "driver_settings" of a struct. */
class QUVPROTOCOL_EXPORT GetDriverSettingsAnswer
    : public quv::DescribedAnswer<GetDriverSettingsAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char driverSettings_TAG[] = "driver_settings";

    GetDriverSettingsAnswer() = default;
    /** Throws DE00974 without the member, or when it is no struct; what is missing in the struct has its default. */
    explicit GetDriverSettingsAnswer(const XmlRpc::XmlRpcValue &value);
    /** A DriverSettings, or the map that stands for one; throws DE00974 without one. */
    explicit GetDriverSettingsAnswer(QList<QVariant> &list);

    GetDriverSettingsAnswer *clone() const override;

    const DriverSettings &driverSettings() const { return m_driverSettings; }
    void setDriverSettings(QVariant driverSettings); ///< anything else leaves them alone

private:
    DriverSettings m_driverSettings;
};
