// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "fwresourcefile.h"

/**
 * RES_FILE_WRITE: sends files to a mixer's firmware. The driver does so by RES_FILE_MNGM. Over XML-RPC its one argument is an array of
 * their structs; in a list it is the list of them.
 */
class QUVPROTOCOL_EXPORT ResourceFileWriteCmd
    : public quv::DescribedCommand<ResourceFileWriteCmd, SerialProtoCommand>
{
public:
    struct Description;

    ResourceFileWriteCmd() = default;
    explicit ResourceFileWriteCmd(const QList<FwResourceFile> &files);
    /** Throws DE02722 (no array), DE02723 (no file in it), and what FwResourceFile throws. */
    explicit ResourceFileWriteCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * The files as QList<FwResourceFile>, or as a list of variants of which each is one, or the map that stands for it; it may be empty.
     * Throws DE02724 (nothing), DE02725 (anything else), and what FwResourceFile throws of a map.
     */
    explicit ResourceFileWriteCmd(QList<QVariant> list);
    explicit ResourceFileWriteCmd(int) = delete; // would be an XML-RPC value

    ResourceFileWriteCmd *clone() const override;
    void setDefaults(); ///< no files

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const QList<FwResourceFile> &resourceFiles() const { return m_files; }

private:
    QList<FwResourceFile> m_files;
};
