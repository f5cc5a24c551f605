// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * How the update of one board has ended. Travels in a QVariant under its name, also as the map that its struct is; over XML-RPC a
 * struct of two ints.
 */
struct QUVPROTOCOL_EXPORT FwUpdateResult
{
    static constexpr char boardAddress_TAG[] = "board_address";
    static constexpr char updateResult_TAG[] = "update_result";

    /** What an update comes to. FwUpdateResultList tells which of them are good, and for whom. */
    enum Result : int {
        NotSet = -1,
        Updated = 0,
        Interrupted = 1,
        Failed = 2,
        Accepted = 3,        ///< taken for updated when nobody is strict
        AcceptedFailure = 4, ///< likewise, and a failure all the same
        FailedNeedsReboot = 5,
        FailedNeedsRebootToo = 6
    };

    FwUpdateResult() = default; ///< both -1
    explicit FwUpdateResult(int address) : boardAddress(address) {}
    FwUpdateResult(int address, int result) : boardAddress(address), updateResult(result) {}
    /** Throws DE00962 and DE00963 for an address and a result that are missing or no int. Any number is taken. */
    explicit FwUpdateResult(const XmlRpc::XmlRpcValue &value);
    explicit FwUpdateResult(bool) = delete; // would be an address, as would the next two
    explicit FwUpdateResult(double) = delete;
    explicit FwUpdateResult(const char *) = delete;

    void clear() { setDefaults(); }
    void setDefaults() { *this = FwUpdateResult(); }

    static bool
    checkBoardAddress(int address); ///< of one board: FirmwareFile's check, without the address of all
    static bool checkUpdateResult(int result); ///< 0 to 6

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FwUpdateResult &other) const;
    bool operator!=(const FwUpdateResult &other) const { return !(*this == other); }

    int boardAddress = NotSet;
    int updateResult = NotSet;
};

Q_DECLARE_METATYPE(FwUpdateResult)
