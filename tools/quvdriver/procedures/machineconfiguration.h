// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/configurationrow.h"
#include "firmware/firmware.h"

#include "configuration/readconfigurationparamanswer.h"

#include <QuvFramework/fw_machine.h>

#include <QtCore/QStringList>

#include <functional>
#include <vector>

namespace quv {

// How the driver's machine follows the configuration of its firmware.

/// A row that the firmware told.
struct ToldRow
{
    RowKey key{};
    ReadConfigurationParamAnswer answer{};
};
using ToldRows = std::vector<ToldRow>;

/// One exchange with the firmware: code and parameters.
using AskFirmware = std::function<FirmwareReply(const QString &code, const QList<int> &parameters)>;

/// The row that a command writes.
RowKey writtenRow(const ConfData &row);

/// Asks the firmware, which knows the fields that whoever wrote a row has left out. \a problems tells what cannot be had.
ToldRows readRows(const RowKeys &keys, const AskFirmware &ask, QStringList &problems);

/// Makes the machine what the rows tell, in the order of their structures, for "@GMC" tells what "@CPT" needs.
/// \a problems tells what the machine does not take.
void applyRows(FW_Machine &machine, const ToldRows &rows, QStringList &problems);

} // namespace quv
