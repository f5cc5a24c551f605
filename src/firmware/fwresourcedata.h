// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

/** What is to be done with a block, or was; the numbers are the firmware's. */
enum RFM_Subcommand : int {};

/**
 * One block of a file on its way to or from the firmware. It travels in two ways that are not each other's inverse: a struct of
 * "subcmd", "res_index", "block_address" (ints) and "data" (base64, or a text) is read, and an array of four ints written, which has
 * no room for data. To the firmware a block of zeros is its length alone; from the firmware every byte is expected.
 */
struct QUVPROTOCOL_EXPORT FwResourceData
{
    static constexpr char subcommand_TAG[] = "subcmd";
    static constexpr char resourceIndex_TAG[] = "res_index";
    static constexpr char blockAddress_TAG[] = "block_address";
    static constexpr char data_TAG[] = "data";

    FwResourceData() = default;
    FwResourceData(RFM_Subcommand blockSubcommand, int index, int address, QByteArray bytes);
    /** Throws DE02728 (subcommand), DE02729 (index), DE02730 (address), DE02731 (data): a member is missing or of another type. */
    explicit FwResourceData(const XmlRpc::XmlRpcValue &value);
    /**
     * The parameters of an answer, as serialParameters() tells them. Throws DE02741 (fewer than five), DE02742 (subcommand), DE02743
     * (index), DE02744 (high digit of the address), DE02745 (length) for what is no number, DE02744 also for a high digit that makes
     * the address too great, DE02746 when bytes are missing. A low digit that is no int and halves of bytes that are no numbers are 0.
     */
    explicit FwResourceData(QStringList parameters);
    explicit FwResourceData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FwResourceData(int) = delete;
    explicit FwResourceData(double) = delete;
    explicit FwResourceData(const char *) = delete;

    void setDefaults(); ///< as a default one

    /**
     * Subcommand, index, address in two digits of base 244, number of bytes, then of each byte the high and the low half; no halves
     * when all bytes are 0. An address that two digits do not hold, as a negative one, is 245 and 245: none.
     */
    QList<int> serialParameters() const;
    /** Subcommand, index, address, and the number that the data is in decimal digits, else 0. */
    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FwResourceData &other) const; ///< all fields
    bool operator!=(const FwResourceData &other) const { return !(*this == other); }

    int subcommand = 0;
    int resourceIndex = 0;
    int blockAddress = 0;
    QByteArray data;
};

Q_DECLARE_METATYPE(FwResourceData)
