// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulasources_p.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_dispenser.h>

#include <algorithm>
#include <cstddef>

namespace {

using quv::Sources;

int codeOf(char character)
{
    return character;
}

int codeOf(QChar character)
{
    return character.unicode();
}

template <class Text>
int numberOf(const Text &name)
{
    constexpr int MaxDigits = 9;
    const int size = static_cast<int>(name.size());
    if (size == 0 || size > MaxDigits || (size > 1 && codeOf(name[0]) == '0'))
        return -1;
    int number = 0;
    for (const auto character : name) {
        const int digit = codeOf(character) - '0';
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

int numberNamed(const QString &name)
{
    return numberOf(name);
}

int numberNamed(const std::string &name)
{
    return numberOf(name);
}

QString nameOf(int number)
{
    constexpr int SharedNames = 256;
    static const std::vector<QString> names = [] {
        std::vector<QString> all;
        all.reserve(SharedNames);
        for (int i = 0; i < SharedNames; ++i)
            all.push_back(QString::number(i));
        return all;
    }();
    return number >= 0 && number < SharedNames ? names[static_cast<std::size_t>(number)]
                                               : QString::number(number);
}

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
                add(circuit.positionId(), canister, &circuit);
            break;
        case Formula::CircuitIDs:
            for (const FW_Circuit &circuit : canister.circuits())
                add(circuit.id(), canister, &circuit);
            break;
        case Formula::CanisterIDs:
            add(canister.id(), canister, firstEnabledCircuit(canister));
            break;
        case Formula::ColorantCodes: {
            const int key = keyOf(canister.colorantCode());
            if (key < 0)
                break;
            // a disabled one has a canister, but no way out of it
            const bool isEnabled = dispenser.colorants().at(key).isEnabled();
            add(key, canister, isEnabled ? firstEnabledCircuit(canister) : nullptr);
            break;
        }
        default:
            break;
        }
    }
    if (!std::is_sorted(m_entries.cbegin(), m_entries.cend(), isBefore))
        std::stable_sort(m_entries.begin(), m_entries.end(), isBefore);
}

void Sources::add(int key, const FW_Canister &canister, const FW_Circuit *circuit)
{
    Entry &entry = m_entries.emplace_back();
    entry.key = key;
    entry.source.canister = &canister;
    entry.source.circuit = circuit;
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
