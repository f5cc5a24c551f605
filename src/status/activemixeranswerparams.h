// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_mixer.h>

#include <QtCore/QMetaType>
#include <QtCore/QString>

/** A mixer in the list of variants of which a driver makes a GetActiveDispAnswer. */
struct QUVPROTOCOL_EXPORT ActiveMixerAnswerParams
{
    FW_Mixer mixer;
    QString connectionType; ///< by the name that FW_SerialPort::macroConnToString has for it
    bool enabled = false;
    bool active = false;
};

Q_DECLARE_METATYPE(ActiveMixerAnswerParams)
