// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** RES_FILE_LIST: lists the files that a mixer's firmware keeps; the answer is a ResourceFileListAnswer. The driver does so by RES_FILE_MNGM. */
class QUVPROTOCOL_EXPORT ResourceFileListCmd
    : public quv::DescribedCommand<ResourceFileListCmd, SerialProtoCommand>
{
public:
    struct Description;

    ResourceFileListCmd() = default;
    explicit ResourceFileListCmd(int resource);
    /** The number (int). Throws DE02767 for another type. */
    explicit ResourceFileListCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02768 (empty list), DE02769 (another type). */
    explicit ResourceFileListCmd(QList<QVariant> list);
    explicit ResourceFileListCmd(bool) = delete; // would read as a number, as would the next two
    explicit ResourceFileListCmd(double) = delete;
    explicit ResourceFileListCmd(const char *) = delete;

    ResourceFileListCmd *clone() const override;
    using DescribedCommand::setDefaults;

    int resource() const { return m_resource; } ///< a number by which the driver knows the files

private:
    int m_resource = 0;
};
