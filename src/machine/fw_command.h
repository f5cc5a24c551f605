// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

/** Whether a firmware can carry a command out. The numbers are the firmware's; it may send others. */
enum class CmdExecution { No = 0, Yes = 1 };

/**
 * One row of the firmware's own table of commands. Travels in a QVariant under its name, also as the map that its struct is; over
 * XML-RPC a struct of three ints.
 */
struct QUVPROTOCOL_EXPORT FW_Command
{
    static constexpr char cmdCode_TAG[] = "cmd_code";
    static constexpr char cmdStatus_TAG[] = "cmd_status";
    static constexpr char cmdExecution_TAG[] = "cmd_exec";

    static constexpr int keepsBusy =
        2; ///< the status of a command that keeps the machine busy while it lasts

    FW_Command() = default;
    FW_Command(unsigned int code, int status, CmdExecution execution);
    /**
     * Hexadecimal tokens: code low and high, status and, from firmware that tells it, execution, of which any number but 1 is no. More
     * are not read. Throws DE00818 (fewer than three), DE00327, DE00666, DE00667, DE02595 for one of them that is no number.
     */
    explicit FW_Command(QStringList tokens);
    /** Throws DE00668 without a code, DE00669 without a status; without the execution it is 1. */
    explicit FW_Command(const XmlRpc::XmlRpcValue &value);
    explicit FW_Command(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FW_Command(int) = delete;
    explicit FW_Command(double) = delete;
    explicit FW_Command(const char *) = delete;

    void clear(); ///< all as in a new one

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_Command &other) const;
    bool operator!=(const FW_Command &other) const { return !(*this == other); }

    unsigned int cmdCode = 0;
    int cmdStatus = 0;
    int cmdExecution = static_cast<int>(CmdExecution::Yes);
};

Q_DECLARE_METATYPE(FW_Command)
