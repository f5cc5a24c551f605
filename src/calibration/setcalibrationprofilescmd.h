// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_calibrationprofiles.h>

/**
 * SET_CALIB_PROFILES: saves the pumps whose calibration is known beforehand. The two options are between the client and the driver,
 * the library passes them on.
 */
class QUVPROTOCOL_EXPORT SetCalibrationProfilesCmd
    : public quv::DescribedCommand<SetCalibrationProfilesCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetCalibrationProfilesCmd() = default;
    SetCalibrationProfilesCmd(FW_CalibrationProfiles profiles, bool option, bool secondOption);
    /**
     * The profiles (a struct) and the two options (bools). Throws DE00640 for what is no struct, DE00642 when the profiles cannot be
     * made, DE00643 and DE03370 for an option that is missing or no bool, and as FW_CalibrationProfiles does.
     */
    explicit SetCalibrationProfilesCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list, the profiles as the object or the map that stands for it. Throws likewise. */
    explicit SetCalibrationProfilesCmd(QList<QVariant> list);
    explicit SetCalibrationProfilesCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetCalibrationProfilesCmd(int) = delete;
    explicit SetCalibrationProfilesCmd(double) = delete;
    explicit SetCalibrationProfilesCmd(const char *) = delete;

    SetCalibrationProfilesCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const FW_CalibrationProfiles &calibrationProfiles() const { return m_profiles; }
    bool option() const { return m_option; }
    bool secondOption() const { return m_secondOption; }

private:
    FW_CalibrationProfiles m_profiles;
    bool m_option = false;
    bool m_secondOption = false;
};
