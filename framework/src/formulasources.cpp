// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulasources_p.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_dispenser.h>

#include <algorithm>

namespace {

using quv::Sources;

/** The number that a name is, written as QString::number writes it; -1 for any other name. */
int numberNamed(const QString &name)
{
    constexpr int MaxDigits = 9;
    if (name.isEmpty() || name.size() > MaxDigits || (name.size() > 1 && name.at(0) == QLatin1Char('0')))
        return -1;
    int number = 0;
    for (const QChar character : name) {
        const int digit = character.unicode() - '0';
        if (digit < 0 || digit > 9)
            return -1;
        number = number * 10 + digit;
    }
    return number;
}

const FW_Circuit *firstEnabledCircuit(const FW_Canister &canister)
{
    const auto circuit = std::find_if(canister.circuits().cbegin(), canister.circuits().cend(),
                                      [](const FW_Circuit &candidate) { return candidate.isEnabled(); });
    return circuit == canister.circuits().cend() ? nullptr : &*circuit;
}

bool isBefore(const Sources::Entry &left, const Sources::Entry &right)
{
    return left.key < right.key;
}

} // namespace

namespace quv {

Sources::Sources(int formulaType, const FW_Dispenser &dispenser)
    : m_isByCode(formulaType == Formula::ColorantCodes)
{
    m_entries.reserve(static_cast<std::size_t>(dispenser.canisters().size()));
    for (int i = 0; m_isByCode && i < dispenser.colorants().size(); ++i)
        m_keys.insert(dispenser.colorants().at(i).code(), i);
    for (const FW_Canister &canister : dispenser.canisters()) {
        switch (formulaType) {
        case Formula::CircuitPositions:
            for (const FW_Circuit &circuit : canister.circuits())
                m_entries.push_back({circuit.positionId(), {&canister, &circuit}});
            break;
        case Formula::CircuitIDs:
            for (const FW_Circuit &circuit : canister.circuits())
                m_entries.push_back({circuit.id(), {&canister, &circuit}});
            break;
        case Formula::CanisterIDs:
            m_entries.push_back({canister.id(), {&canister, firstEnabledCircuit(canister)}});
            break;
        case Formula::ColorantCodes: {
            const int key = keyOf(canister.colorantCode());
            if (key < 0)
                break;
            // a disabled one has a canister, but no way out of it
            const bool isEnabled = dispenser.colorants().at(key).isEnabled();
            m_entries.push_back({key, {&canister, isEnabled ? firstEnabledCircuit(canister) : nullptr}});
            break;
        }
        default:
            break;
        }
    }
    if (!std::is_sorted(m_entries.cbegin(), m_entries.cend(), isBefore))
        std::stable_sort(m_entries.begin(), m_entries.end(), isBefore);
}

int Sources::keyOf(const QString &name) const
{
    return m_isByCode ? m_keys.value(name, -1) : numberNamed(name);
}

Sources::Entry *Sources::first(const QString &name)
{
    const int key = keyOf(name);
    const auto entry = std::lower_bound(m_entries.begin(), m_entries.end(), Entry{key, {}}, isBefore);
    return key >= 0 && entry != m_entries.end() && entry->key == key ? &*entry : nullptr;
}

Sources::Entry *Sources::next(Entry *entry)
{
    Entry *following = entry + 1;
    const bool isSame = following != m_entries.data() + m_entries.size() && following->key == entry->key;
    return isSame ? following : nullptr;
}

} // namespace quv
