// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QMetaType>
#include <QtCore/QString>

/** A dispenser in the list of variants of which a driver makes a GetActiveDispAnswer. */
struct QUVPROTOCOL_EXPORT ActiveDispAnswerParams
{
    FW_Dispenser dispenser;
    QString connectionType; ///< by the name that FW_SerialPort::macroConnToString has for it
    bool enabled = false;
    bool active = false;
};

Q_DECLARE_METATYPE(ActiveDispAnswerParams)
