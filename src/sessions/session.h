// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/machineid.h"
#include "../quvprotocol_global.h"

#include <QtCore/QString>

/** A client's login on a machine. Who may log in and what a session grants is for the driver. */
struct QUVPROTOCOL_EXPORT Session
{
    Session() = default;
    Session(const MachineID &ofMachine, QString name, int level);
    Session(int sessionNumber, const MachineID &ofMachine, QString name, int level);
    Session(int sessionNumber, const MachineID &ofMachine, QString name, int level, QString keyOfSession,
            QString keyOfClient, bool isCertified);

    void clear();

    bool operator==(const Session &other) const;
    bool operator!=(const Session &other) const { return !(*this == other); }

    int number = 0;
    MachineID machine;
    QString clientName;
    QString sessionKey;
    QString clientKey;
    bool certified = false; ///< the client has shown that it holds the session key
    int clientLevel = 0;
};
