// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

struct CommandData;

/**
 * What a client learns of one command of a machine. Travels in a QVariant under its name, also as the map that its struct is.
 */
struct QUVPROTOCOL_EXPORT ProtocolCommandInfo
{
    static constexpr char id_TAG[] = "id";
    static constexpr char name_TAG[] = "name";
    static constexpr char code_TAG[] = "code";
    static constexpr char minParams_TAG[] = "min_params";
    static constexpr char maxParams_TAG[] = "max_params";
    static constexpr char driverCmd_TAG[] = "driver_cmd";
    static constexpr char version_TAG[] = "version";
    static constexpr char enabled_TAG[] = "enabled";
    static constexpr char timeTracking_TAG[] = "time_tracking";

    ProtocolCommandInfo() = default;
    explicit ProtocolCommandInfo(const CommandData &data);
    /**
     * Throws DE00423 to DE00428 and DE01437 for the first member, in the order of the fields, that is missing or of another type.
     * The last two may be left out.
     */
    explicit ProtocolCommandInfo(const XmlRpc::XmlRpcValue &value);
    explicit ProtocolCommandInfo(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ProtocolCommandInfo(int) = delete;
    explicit ProtocolCommandInfo(double) = delete;
    explicit ProtocolCommandInfo(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    /** For people, in English: "Command TINT (version 2)". */
    operator QString() const;

    bool operator==(const ProtocolCommandInfo &other) const;
    bool operator!=(const ProtocolCommandInfo &other) const { return !(*this == other); }

    int id = 0; ///< the number of its row of the catalogue
    QString name;
    QString code; ///< the firmware's, hexadecimal; empty when there is none
    int minParams = 0;
    int maxParams = 0;
    bool driverCmd = false; ///< of the driver alone
    int version = 0;        ///< of the command's protocol that the machine speaks
    bool enabled = true;    ///< the machine can carry it out
    bool timeTracking = false;
};

Q_DECLARE_METATYPE(ProtocolCommandInfo)
