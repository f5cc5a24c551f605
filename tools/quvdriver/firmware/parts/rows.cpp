// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/rows.h"

#include "firmware/errorcodes.h"
#include "firmware/wirereply.h"

#include <cstdio>
#include <stdexcept>

namespace quv {

Rows::Rows(SimulatedMachine &simulated, const FW_Machine &machine, SimulatedConfiguration configuration)
    : m_machine(simulated),
      m_rows(machine, configuration.age),
      m_state(std::move(configuration.state)),
      m_stateID(configuration.stateID),
      m_end(simulated.now())
{
    if (!m_state)
        return;
    try {
        m_rows.restore(m_state->rows(m_machine.type(), m_stateID));
    } catch (const std::runtime_error &error) {
        throw std::runtime_error("State file \"" + m_state->path().toStdString() + "\": " + error.what());
    }
    followRows();
}

std::vector<FirmwareCode> Rows::codes()
{
    using Numbers = QList<int>;
    return {
        {QStringLiteral("0065"), {}, [this](int, const Numbers &numbers) { return write(numbers); }, true},
        {QStringLiteral("0066"), {}, [this](int, const Numbers &numbers) { return read(numbers); }, true},
        {QStringLiteral("0067"), {}, [this](int, const Numbers &) { return finalise(); }},
    };
}

void Rows::tellStatus(StatusWords &status, int /*module*/) const
{
    status.words.set(2, 5, !atWork().isEmpty());
}

ProcessSet Rows::atWork() const
{
    return m_machine.now() < m_end ? ProcessSet{Process::Finalising} : ProcessSet();
}

FirmwareReply Rows::write(const QList<int> &parameters)
{
    if (const auto obstacle = m_machine.obstacleByWork({Process::Finalising}))
        return refused(*obstacle);
    switch (m_rows.write(parameters)) {
    case RowStore::Outcome::FieldOutOfRange:
        m_machine.raise({FieldOutOfRangeError, 0, RaisedError::Kind::Configuration,
                         parameters.value(0)}); // of that structure
        return refused(Reason::FieldOutOfRange);
    case RowStore::Outcome::BadParameters:
        return refused(Reason::WrongParameters);
    case RowStore::Outcome::Taken:
        break;
    }
    return begun();
}

FirmwareReply Rows::read(const QList<int> &parameters) const
{
    constexpr int StructureAndID = 2;
    const int structure = parameters.value(0, -1);
    if (structure == 0 && parameters.size() <= StructureAndID)
        return replied(m_rows.listing());
    const auto row =
        parameters.size() == StructureAndID ? m_rows.reply(structure, parameters.at(1)) : std::nullopt;
    return row ? replied(*row) : refused(Reason::WrongParameters);
}

FirmwareReply Rows::finalise()
{
    constexpr double Duration = 3000; // milliseconds
    if (const auto obstacle = m_machine.obstacle(Process::Finalising))
        return refused(*obstacle);
    try {
        if (m_state)
            m_state->keep(m_machine.type(), m_rows.rows(), m_stateID);
    } catch (const std::runtime_error &error) {
        std::fprintf(stderr, "quvdriver: %s\n", error.what());
        return refused(Reason::ConfigurationNotWritten, QString::fromUtf8(error.what()));
    }
    followRows();
    m_end = m_machine.endOf(Duration);
    return begun();
}

/// What of the configuration changes how the machine pours.
void Rows::followRows()
{
    constexpr int TintingParallelism = 4; // its place in "@GMC"
    if (const auto parallelism = m_rows.value(MachineStructure, TintingParallelism))
        m_machine.dispenser().setTintingParallelism(*parallelism);
}

} // namespace quv
