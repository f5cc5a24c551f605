// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"
#include "base/translatedtexts.h"
#include "status/dispenserstatusanswer.h"

#include <QtCore/QStringList>

#include <set>
#include <string>
#include <vector>

// What the tests of status answers share: the flags by name, a whole answer in both forms.

namespace testing_status {

using namespace testing_base;

/** A flag with the name of its field, which is also the name of its member. */
template <class Status>
struct Flag
{
    const char *name = "";
    bool Status::*field = nullptr;
};

/** In the order in which they are declared. */
extern const std::vector<Flag<MachineStatusAnswer>> machineFlags;
extern const std::vector<Flag<DispenserStatusAnswer>> dispenserFlags;

/** The names of the flags that are true, the machine's and the dispenser's. */
std::set<std::string> setFlags(const DispenserStatusAnswer &answer);
bool &flagNamed(DispenserStatusAnswer &answer, const std::string &name);

/** The same with the machine's flags alone. */
std::set<std::string> setMachineFlags(const MachineStatusAnswer &answer);
bool &machineFlagNamed(MachineStatusAnswer &answer, const std::string &name);

/** A struct with a member for each field: status 1, all flags but normal_wm false, positions 0. */
Value idleStruct();
/** A status as it is written: with the three members that nothing sets. */
Value asWritten(Value status);
/** The struct without one member. */
Value without(const Value &value, const std::string &key);

/** Tokens of an idle machine, up to the last mask. */
QStringList idleTokens();

/** A status text and whether it is bad. */
struct Line
{
    const char *text = "";
    bool bad = false;
};
using StatusLines = QList<QPair<QString, bool>>;
StatusLines linesOf(const std::vector<Line> &lines);

} // namespace testing_status
