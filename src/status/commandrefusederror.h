// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

/** Why the firmware refused a command: a flag for each reason. */
class QUVPROTOCOL_EXPORT CommandRefusedError
{
public:
    CommandRefusedError() = default;
    explicit CommandRefusedError(const XmlRpc::XmlRpcValue &value); ///< cleared: a client learns the codes
    /** Two masks. Throws DE00868 (fewer tokens), DE00869 or DE00870 (one is not hexadecimal). */
    explicit CommandRefusedError(QStringList tokens);

    CommandRefusedError *clone() const;
    void clear();

    bool operator==(const CommandRefusedError &other) const;
    bool operator!=(const CommandRefusedError &other) const { return !(*this == other); }

    bool hasErrors() const;
    QStringList getCommandRefusedErrorDescriptions() const; ///< of the flags that are set, translated
    QList<int> getCommandRefusedErrorCodes() const;         ///< in the same order
    XmlRpc::XmlRpcValue toXmlRpcValue() const;              ///< a struct of all flags

    bool field_out_of_range = false;
    bool no_etx = false;
    bool bad_checksum = false;
    bool bad_cmd_code = false;
    bool bad_position_id = false;
    bool bad_cmd_parameters = false;
    bool cmd_refused_error_state = false;
    bool conf_write_error = false;
    bool conf_row_write_error = false;
    bool dispenser_not_available = false;
    bool bad_working_mode = false;
};
