// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "driversettings.h"

#include <QtCore/QHash>

/** SET_DRIVER_SETTINGS: gives the driver a new setup, or new values of single settings, which it applies to the one that it has. */
class QUVPROTOCOL_EXPORT SetDriverSettingsCmd
    : public quv::DescribedCommand<SetDriverSettingsCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char driverSettings_TAG[] = "driver_settings";
    static constexpr char driverSettingsHash_TAG[] = "driver_settings_hash";

    SetDriverSettingsCmd() = default; ///< the default settings
    explicit SetDriverSettingsCmd(const DriverSettings &settings);
    /**
     * Single settings by their keys, as DriverSettings::update takes them; one without a value is not written. Without any key it is a
     * command of the default settings.
     */
    explicit SetDriverSettingsCmd(const QHash<QString, QVariant> &settings);
    /**
     * A struct with either of the members; an empty "driver_settings_hash" is the whole default setup. Throws DE00978 for anything
     * else, DE00980 and DE02427 when the whole setup or the single settings are no struct, DE00979 without either.
     */
    explicit SetDriverSettingsCmd(const XmlRpc::XmlRpcValue &value);
    /** A DriverSettings, a hash of single settings, or the struct of the other form as a map. Throws DE00981 without one. */
    explicit SetDriverSettingsCmd(QList<QVariant> list);
    explicit SetDriverSettingsCmd(int) = delete; // would be an XML-RPC value

    SetDriverSettingsCmd *clone() const override;

    QList<QVariant> parameters() const override; ///< the hash when anything is in it, or else the setup
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const DriverSettings &driverSettingsValue() const { return m_settings; }
    const QHash<QString, QVariant> &driverSettingsHash() const { return m_hash; }

private:
    DriverSettings m_settings;
    QHash<QString, QVariant> m_hash;
};
