// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "fwupdateresult.h"

#include <QuvFramework/fw_firmwarefile.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>

/**
 * How an update has gone, board by board, in the order in which the boards were to be updated. An address that two files name is there
 * twice. Travels in a QVariant under its name; over XML-RPC an array of structs.
 */
class QUVPROTOCOL_EXPORT FwUpdateResultList
{
public:
    FwUpdateResultList() = default;
    explicit FwUpdateResultList(QList<FwUpdateResult> results);
    explicit FwUpdateResultList(QList<int> addresses); ///< each without a result
    /** The addresses of each file in turn, each without a result. */
    explicit FwUpdateResultList(const FirmwareFiles &files);
    /**
     * Throws DE03240 for what is no array, DE00969 for an empty one, what FwUpdateResult throws of an element, and DE00968 for any
     * other failure to read one.
     */
    explicit FwUpdateResultList(const XmlRpc::XmlRpcValue &value);
    explicit FwUpdateResultList(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FwUpdateResultList(int) = delete;
    explicit FwUpdateResultList(double) = delete;
    explicit FwUpdateResultList(const char *) = delete;

    void clear() { m_results.clear(); }

    const QList<FwUpdateResult> &results() const { return m_results; }

    // By place in the list: -1 or false for one that is not there.
    int boardAddress(int index) const;
    int updateResult(int index) const;
    bool setBoardAddress(int index, int address);
    bool setUpdateResult(int index, int result);

    void setAllBoardAddress(int address);
    void setAllUpdateResult(int result);

    // By address, of which the first entry counts: -1 or false when there is none.
    int addressUpdateResult(int address) const;
    bool setAddressUpdateResult(int address, int result);
    /** Sets what is there; true when all are. */
    bool setAddressesUpdateResults(QList<int> addresses, int result);

    // What the list says of the update as a whole; an empty one says none of it, but for hasSoftErrors.
    /** Every board is updated (0); unless \a strict those count as well whose result is 3 or 4. */
    bool successfullyUpdate(bool strict) const;
    bool atLeastOneSuccessfullyUpdate() const;
    bool needBoardReboot() const;    ///< a result is 5 or 6
    bool hasBeenInterrupted() const; ///< a result is 1
    /** A result is 2 or above, but not 3. So a 4 is a failure here, and good enough for successfullyUpdate(false). */
    bool failed() const;
    bool hasSoftErrors() const; ///< no result is one of 0 to 6
    /** For the status of the ticket: 0 updated, -3 interrupted, -1 failed, 1 anything else. */
    int getCommandStatusResult() const;

    XmlRpc::XmlRpcValue toXmlRpcValue() const; ///< an empty list gives an empty array, which is not read back

    bool operator==(const FwUpdateResultList &other) const { return m_results == other.m_results; }
    bool operator!=(const FwUpdateResultList &other) const { return !(*this == other); }

private:
    FwUpdateResult *entryAt(int index);
    int indexOf(int address) const; ///< of its first entry

    QList<FwUpdateResult> m_results;
};

Q_DECLARE_METATYPE(FwUpdateResultList)
