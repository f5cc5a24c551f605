// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/getactivecircuitsanswer.h"

#include "base/describedanswer_p.h"
#include "base/numberpairs_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_serial.h>

#include <QtCore/QStringList>

#include <utility>

namespace {

constexpr int nozzleValveProcess = 11;
constexpr int stallProcess = 13;
constexpr char decodingFailed[] = "Error during command answer decoding";

void writeFirst(const void *field, XmlRpc::XmlRpcValue &value)
{
    value = static_cast<const QList<int> *>(field)->value(0);
}

bool readNoVariant(const QVariant &, void *)
{
    return false; // no list form is read
}

/** The first of some numbers, for clients that know but one. */
constexpr quv::FieldType firstNumber = {
    "int", quv::FieldType::Other, nullptr, readNoVariant, writeFirst, nullptr, nullptr};

/** Takes the next value of the parameters. */
int taken(const QStringList &parameters, unsigned &index, const char *code, const char *function)
{
    bool ok = false;
    const int value = parseSerialAnswer(parameters, index, &ok);
    if (!ok)
        throw FW_Exception(code, decodingFailed, function);
    return value;
}

} // namespace

struct GetActiveCircuitsAnswer::Description
{
    using Answer = GetActiveCircuitsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        using Member = quv::Member<Answer>;
        return {
            Member(positionsID_TAG, &Answer::m_positionsID).meaning("the positions that are engaged"),
            Member::writtenWhenFilled(nozzleValvePositions_TAG, &Answer::m_nozzleValvePositions,
                                      {"DE02565", decodingFailed})
                .meaning("of process 11: position and nozzle valve"),
            Member(circuitProcess_TAG, &Answer::m_circuitProcess, {"DE02451", decodingFailed})
                .meaning("1 to 13"),
            Member::writtenWhenFilled(statusTypeMasks_TAG, &Answer::m_statusTypeMasks,
                                      {"DE02939", decodingFailed})
                .meaning("of each position 1 (logical) or 2 (physical), or both bits"),
            Member(statusTypeMask_TAG, &Answer::m_statusTypeMasks)
                .as(firstNumber)
                .uses(quv::Write)
                .meaning("the first of the masks, or 0"),
            Member::writtenWhenFilled(stallLevels_TAG, &Answer::m_stallLevels)
                .meaning("of process 13: position and stall level"),
        };
    }
};

template class quv::DescribedAnswer<GetActiveCircuitsAnswer, SerialProtoAnswer>;

GetActiveCircuitsAnswer::GetActiveCircuitsAnswer(CircuitProcess process, QList<int> positionsID)
    : m_positionsID(std::move(positionsID)),
      m_circuitProcess(static_cast<int>(process))
{}

GetActiveCircuitsAnswer::GetActiveCircuitsAnswer(QStringList tokens, CircuitProcess process)
    : DescribedAnswer(std::move(tokens)),
      m_circuitProcess(static_cast<int>(process))
{
    unsigned index = 0;
    const int count = taken(m_parameters, index, "DE02449", Q_FUNC_INFO);
    const int valuesPerPosition = taken(m_parameters, index, "DE02563", Q_FUNC_INFO);
    for (int i = 0; i < count; ++i) {
        const int positionID = taken(m_parameters, index, "DE02450", Q_FUNC_INFO);
        if (valuesPerPosition < 2) // a position alone says nothing of the process
            throw FW_Exception("DE02564", decodingFailed, Q_FUNC_INFO);
        m_positionsID.append(positionID);
        addSecondValue(positionID, taken(m_parameters, index, "DE02629", Q_FUNC_INFO));
    }
}

GetActiveCircuitsAnswer::GetActiveCircuitsAnswer(QList<QVariant> &list) : DescribedAnswer(list) {}

GetActiveCircuitsAnswer::GetActiveCircuitsAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetActiveCircuitsAnswer *GetActiveCircuitsAnswer::clone() const
{
    return new GetActiveCircuitsAnswer(*this);
}

void GetActiveCircuitsAnswer::clear()
{
    quv::recordOf<GetActiveCircuitsAnswer>().reset(*this);
}

QList<int> GetActiveCircuitsAnswer::getPositionsIDForStatusMask(CircuitProcessStatusMask mask) const
{
    if (m_positionsID.size() != m_statusTypeMasks.size())
        return {};
    const int bits = static_cast<int>(mask);
    QList<int> positions;
    for (int i = 0; i < m_positionsID.size(); ++i) {
        if ((m_statusTypeMasks.at(i) & bits) == bits)
            positions.append(m_positionsID.at(i));
    }
    return positions;
}

QString GetActiveCircuitsAnswer::statusTypeMasksStr() const
{
    QStringList texts;
    for (const int mask : m_statusTypeMasks)
        texts.append(statusTypeMaskStr(mask));
    return texts.join(QLatin1Char(','));
}

QString GetActiveCircuitsAnswer::statusTypeMaskStr(int mask)
{
    if (mask & static_cast<int>(CircuitProcessStatusMask::Physical))
        return QStringLiteral("Pysical state"); // logs and their readers know it so
    if (mask & static_cast<int>(CircuitProcessStatusMask::Logical))
        return QStringLiteral("Logical state");
    return {};
}

void GetActiveCircuitsAnswer::addSecondValue(int positionID, int value)
{
    switch (m_circuitProcess) {
    case stallProcess:
        m_stallLevels.append({positionID, value});
        break;
    case nozzleValveProcess:
        m_nozzleValvePositions.append({positionID, value});
        break;
    default:
        m_statusTypeMasks.append(value);
    }
}
