// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "resourcefilemanagementbase.h"

class ResourceFileManagementAnswer;

/**
 * RES_FILE_MNGM: moves one block of a file to or from a mixer's firmware; the answer is a ResourceFileManagementAnswer. The driver makes
 * it, block after block: over XML-RPC it writes a block without its data.
 */
class QUVPROTOCOL_EXPORT ResourceFileManagementCmd
    : public ResourceFileManagementBase,
      public quv::DescribedCommand<ResourceFileManagementCmd, SerialProtoCommand>
{
public:
    struct Description;

    ResourceFileManagementCmd();
    explicit ResourceFileManagementCmd(const FwResourceData &data);
    /** The struct of the base, alone or first in an array. Throws what the base throws. */
    explicit ResourceFileManagementCmd(const XmlRpc::XmlRpcValue &value);
    /** One FwResourceData, or the map that stands for it. Throws what the base throws. */
    explicit ResourceFileManagementCmd(QList<QVariant> list);
    explicit ResourceFileManagementCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ResourceFileManagementCmd(int) = delete;
    explicit ResourceFileManagementCmd(double) = delete;
    explicit ResourceFileManagementCmd(const char *) = delete;

    ResourceFileManagementCmd *clone() const override;
    void setDefaults(); ///< no serial address, and a cleared block

    QList<QVariant> parameters() const override; ///< those of the base: not what a list is read from
    /** The base's struct and no array: not what a value is read from. */
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** With that struct as its one argument. */
    XmlRpc::XmlRpcValue toXmlRpcValue(QString leading, bool *ok = nullptr) const override;
    QList<int> serialParameters(int family) const override; ///< those of the block

    using DescribedCommand::setAnswer;
    /** Takes a copy of the answer; DE02736 when it cannot be copied. */
    bool setAnswer(ResourceFileManagementAnswer &answer, FW_DriverError *error);
};
