// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** RES_FILE_READ: reads a file from a mixer's firmware; the answer is a ResourceFileReadAnswer. The driver does so by RES_FILE_MNGM. */
class QUVPROTOCOL_EXPORT ResourceFileReadCmd
    : public quv::DescribedCommand<ResourceFileReadCmd, SerialProtoCommand>
{
public:
    struct Description;

    ResourceFileReadCmd() = default;
    explicit ResourceFileReadCmd(int resource);
    /** The number (int). Throws DE02760 for another type. */
    explicit ResourceFileReadCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02761 (empty list), DE02762 (another type). */
    explicit ResourceFileReadCmd(QList<QVariant> list);
    explicit ResourceFileReadCmd(bool) = delete; // would read as a number, as would the next two
    explicit ResourceFileReadCmd(double) = delete;
    explicit ResourceFileReadCmd(const char *) = delete;

    ResourceFileReadCmd *clone() const override;
    using DescribedCommand::setDefaults;

    int resource() const { return m_resource; } ///< a number by which the driver knows the file

private:
    int m_resource = 0;
};
