// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "scaleconfigbase.h"

/** SET_SCALE_CONFIG: saves the setup of the scale. Its words tell of a reading all the same: users know it so. */
class QUVPROTOCOL_EXPORT SetScaleConfigCmd
    : public quv::DescribedCommand<SetScaleConfigCmd, ConfProtoCommand>,
      public ScaleConfigBase
{
public:
    struct Description;

    SetScaleConfigCmd() = default; ///< no scale
    explicit SetScaleConfigCmd(const FW_Scale &scale);
    // One optional argument: as ScaleConfigBase, with its refusals. Without it there is no scale.
    explicit SetScaleConfigCmd(const XmlRpc::XmlRpcValue &value);
    explicit SetScaleConfigCmd(QList<QVariant> list);
    explicit SetScaleConfigCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetScaleConfigCmd(int) = delete;
    explicit SetScaleConfigCmd(double) = delete;
    explicit SetScaleConfigCmd(const char *) = delete;

    SetScaleConfigCmd *clone() const override;

    QList<QVariant> parameters() const override;                              ///< variantParameters
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override; ///< xmlrpcvalue
};
