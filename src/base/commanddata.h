// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QString>

/** What a driver knows of one command on one machine: its row of the catalogue, and what the machine makes of it. */
struct QUVPROTOCOL_EXPORT CommandData
{
    CommandData() = default;
    /** The working level stands before the scheduling level here, and behind it among the fields. */
    CommandData(int commandID, QString commandName, QString firmwareCode, int leastParams, int mostParams,
                int commandType, bool isMultiple, bool usesDispenser, int workingLevel, int schedulingLevel,
                bool checksBusy, bool tracksExecutionTime, long long busyTime, long long busyFrequency,
                bool recordsInStats, int machineUsage, bool isPrivate, bool isErogation, bool isAvailable,
                int commandVersion);

    void clear(); ///< all as in a new one

    /**
     * The firmware code as a number. \a ok, when given, is false for an empty code alone: one that is no hexadecimal number is 0,
     * and true.
     */
    unsigned int code(bool *ok = nullptr) const;

    int id = 0;     ///< the number of its row
    QString name;   ///< as clients spell it
    QString m_code; ///< of the machine's command family, hexadecimal; empty when there is none
    int minParams = 0;
    int maxParams = 0;
    int type = -1; ///< who carries it out, as in the catalogue
    bool multiple = false;
    bool useDispenser = false; ///< false for a command of the driver alone
    int schedulingPriorityLevel = 0;
    int workingPriorityLevel = 0;
    bool checkBusy = true;
    bool trackExecutionTime = false;
    long long busyTimeout = 40000;      ///< milliseconds
    long long busyCheckFrequency = 500; ///< milliseconds between two looks at a busy machine
    bool recordInStats = false;
    int machineObjUsage = 2;
    bool privateCommand = false;
    bool erogationCommand = false; ///< delivers colorant
    bool available = true;         ///< the machine can carry it out
    int version = 0;               ///< of the command's protocol that the machine speaks
};
