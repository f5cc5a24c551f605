// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "gravsettingsbase.h"

/** SET_GRAV_SETTINGS: saves how circuits are dosed by a scale. */
class QUVPROTOCOL_EXPORT SetGravSettingsCmd
    : public quv::DescribedCommand<SetGravSettingsCmd, ConfProtoCommand>,
      public GravSettingsBase
{
public:
    struct Description;

    SetGravSettingsCmd() = default;
    explicit SetGravSettingsCmd(const QMap<int, GravimetricSettings> &settings);
    // As GravSettingsBase, with its refusals; the base refuses a request without an argument.
    explicit SetGravSettingsCmd(const XmlRpc::XmlRpcValue &value);
    explicit SetGravSettingsCmd(QList<QVariant> list);
    explicit SetGravSettingsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetGravSettingsCmd(int) = delete;
    explicit SetGravSettingsCmd(double) = delete;
    explicit SetGravSettingsCmd(const char *) = delete;

    SetGravSettingsCmd *clone() const override;

    QList<QVariant> parameters() const override;                              ///< variantParameters
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override; ///< xmlrpcvalue
};
