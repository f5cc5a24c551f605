// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "fwresourcedata.h"

#include <QtCore/QVariant>

/**
 * The block that RES_FILE_MNGM and its answer carry. Over XML-RPC a struct with the member "res_data", the struct of the block; it is
 * written with the array of the block there.
 */
class QUVPROTOCOL_EXPORT ResourceFileManagementBase
{
public:
    struct Description;

    static constexpr char resourceData_TAG[] = "res_data";

    ResourceFileManagementBase() = default;
    explicit ResourceFileManagementBase(const FwResourceData &data);
    /**
     * One FwResourceData, or the map that stands for it. Throws DE02733 (an empty list), DE02732 (anything else), and what
     * FwResourceData throws of a map.
     */
    explicit ResourceFileManagementBase(QList<QVariant> &list);
    /** Throws DE02735 without the member, what FwResourceData throws of it, and DE02734 for any other failure. */
    explicit ResourceFileManagementBase(const XmlRpc::XmlRpcValue &value);
    /** The parameters of an answer. Throws what FwResourceData throws, and DE02740 for any other failure. */
    explicit ResourceFileManagementBase(QStringList parameters);
    explicit ResourceFileManagementBase(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ResourceFileManagementBase(int) = delete;
    explicit ResourceFileManagementBase(double) = delete;
    explicit ResourceFileManagementBase(const char *) = delete;

    void setDefaultsBase(); ///< clears the block

    const FwResourceData &resourceData() const { return m_resourceData; }
    void setResourceData(const FwResourceData &data) { m_resourceData = data; }

    QList<int> serialParameters() const; ///< of the block
    XmlRpc::XmlRpcValue xmlRpcValue() const;
    /** Subcommand, index, address (ints) and the data (QByteArray): not what a list is read from. */
    QList<QVariant> parameters() const;

    bool operator==(const ResourceFileManagementBase &other) const;
    bool operator!=(const ResourceFileManagementBase &other) const { return !(*this == other); }

private:
    FwResourceData m_resourceData;
};
