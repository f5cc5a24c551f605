// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatusanswerslist.h"

#include "status/dispenserstatusanswerslist_p.h"

#include <algorithm>
#include <utility>

DispenserStatusAnswersList::DispenserStatusAnswersList(QList<QPair<int, DispenserStatusAnswer>> answers)
    : m_answers(std::move(answers))
{}

DispenserStatusAnswersList::DispenserStatusAnswersList(const XmlRpc::XmlRpcValue &value)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        quv::throwRefusal(quv::noStatusArray, Q_FUNC_INFO);
    if (value.size() == 0)
        quv::throwRefusal(quv::noStatuses, Q_FUNC_INFO);
    for (int i = 0; i < value.size(); ++i) {
        const XmlRpc::XmlRpcValue &element = value[i];
        int positionID = 0;
        if (!DecodeXmlRpcValue(element, positionID_TAG, positionID))
            quv::throwRefusal(quv::noStatusPosition, Q_FUNC_INFO);
        const XmlRpc::XmlRpcValue *status = FindXmlRpcMember(element, statusAnswer_TAG);
        if (!status)
            quv::throwRefusal(quv::noStatusOfPosition, Q_FUNC_INFO);
        quv::madeOrRefused(quv::statusNotMade, Q_FUNC_INFO,
                           [&] { appendDispenserStatusAnswer(positionID, DispenserStatusAnswer(*status)); });
    }
}

void DispenserStatusAnswersList::appendDispenserStatusAnswer(int positionID,
                                                             const DispenserStatusAnswer &answer)
{
    m_answers.append({positionID, answer});
}

bool DispenserStatusAnswersList::getDispenserStatusAnswerByPositionID(int positionID,
                                                                      DispenserStatusAnswer &answer) const
{
    const auto found = std::find_if(m_answers.begin(), m_answers.end(),
                                    [=](const auto &entry) { return entry.first == positionID; });
    if (found == m_answers.end())
        return false;
    answer = found->second;
    return true;
}

QList<int> DispenserStatusAnswersList::getTintingPositions() const
{
    return positionsWith(&DispenserStatusAnswer::tinting);
}

QList<int> DispenserStatusAnswersList::getRecirculatingPositions() const
{
    return positionsWith(&DispenserStatusAnswer::recirculating);
}

QList<int> DispenserStatusAnswersList::getStirringPositions() const
{
    return positionsWith(&DispenserStatusAnswer::stirring);
}

XmlRpc::XmlRpcValue DispenserStatusAnswersList::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue array;
    array.setSize(m_answers.size());
    for (int i = 0; i < m_answers.size(); ++i) {
        array[i][positionID_TAG] = m_answers.at(i).first;
        array[i][statusAnswer_TAG] = m_answers.at(i).second.toXmlRpcValue();
    }
    return array;
}

QList<int> DispenserStatusAnswersList::positionsWith(bool DispenserStatusAnswer::*flag) const
{
    QList<int> positions;
    for (const auto &entry : m_answers) {
        if (entry.second.*flag)
            positions.append(entry.first);
    }
    return positions;
}
