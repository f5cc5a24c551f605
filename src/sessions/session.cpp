// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/session.h"

Session::Session(const MachineID &ofMachine, QString name, int level) : Session(0, ofMachine, name, level) {}

Session::Session(int sessionNumber, const MachineID &ofMachine, QString name, int level)
    : Session(sessionNumber, ofMachine, name, level, QString(), QString(), false)
{}

Session::Session(int sessionNumber, const MachineID &ofMachine, QString name, int level, QString keyOfSession,
                 QString keyOfClient, bool isCertified)
    : number(sessionNumber),
      machine(ofMachine),
      clientName(name),
      sessionKey(keyOfSession),
      clientKey(keyOfClient),
      certified(isCertified),
      clientLevel(level)
{}

void Session::clear()
{
    *this = Session();
}

bool Session::operator==(const Session &other) const
{
    return number == other.number && machine == other.machine && clientName == other.clientName &&
           sessionKey == other.sessionKey && clientKey == other.clientKey && certified == other.certified &&
           clientLevel == other.clientLevel;
}
