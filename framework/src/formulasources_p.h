// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <string>
#include <vector>

class FW_Canister;
class FW_Circuit;
class FW_Dispenser;

// What the items of a formula name on a machine.

namespace quv {

/** The number that a name is, written as QString::number writes it, of nine digits at most; -1 for any other name. */
int numberNamed(const QString &name);
int numberNamed(const std::string &name);
/** The name of a position or an ID. Small ones, which are nearly all, share one text each. */
QString nameOf(int number);

/** What an item of a formula comes down to. */
struct Source
{
    const FW_Canister *canister = nullptr;
    const FW_Circuit *circuit = nullptr;
};

/**
 * The machine's circuits by what the items of a formula call them, looked up once for all items: sorted by a number that
 * stands for the name, and in the machine's order where several have the same.
 */
class Sources
{
public:
    struct Entry
    {
        int key = 0;
        Source source;
        double asked = 0; ///< by all items of this name; in the first entry of the name
        int portion = -1; ///< the index of what is taken from it
    };

    Sources(int formulaType, const FW_Dispenser &dispenser);

    /** The first entry of a name; null for a name that the machine does not know. */
    Entry *first(const QString &name);
    /** The next entry of the same name; null for none. */
    Entry *next(Entry *entry);

private:
    void add(int key, const FW_Canister &canister, const FW_Circuit *circuit);
    int keyOf(const QString &name) const; ///< -1 for a name that stands for none

    std::vector<Entry> m_entries;
    bool m_isByCode = false;
    QHash<QString, int> m_keys; ///< of colorants
};

} // namespace quv
