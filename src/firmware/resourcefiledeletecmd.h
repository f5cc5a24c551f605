// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** RES_FILE_DELETE: deletes a file that a mixer's firmware keeps. The driver does so by RES_FILE_MNGM. */
class QUVPROTOCOL_EXPORT ResourceFileDeleteCmd
    : public quv::DescribedCommand<ResourceFileDeleteCmd, SerialProtoCommand>
{
public:
    struct Description;

    ResourceFileDeleteCmd() = default;
    explicit ResourceFileDeleteCmd(int resource);
    /** The number (int). Throws DE02774 for another type. */
    explicit ResourceFileDeleteCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02775 (empty list), DE02776 (another type). */
    explicit ResourceFileDeleteCmd(QList<QVariant> list);
    explicit ResourceFileDeleteCmd(bool) = delete; // would read as a number, as would the next two
    explicit ResourceFileDeleteCmd(double) = delete;
    explicit ResourceFileDeleteCmd(const char *) = delete;

    ResourceFileDeleteCmd *clone() const override;
    using DescribedCommand::setDefaults;

    int resource() const { return m_resource; } ///< a number by which the driver knows the file

private:
    int m_resource = 0;
};
