// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stiritem.h"

#include "base/refusal_p.h"
#include "processes/stirringcmd.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <optional>

namespace {

using XmlRpc::XmlRpcValue;
using Positions = std::optional<QList<int>>; ///< none for an item that is refused

constexpr char badParameter[] = "Bad command parameter";

const bool isRegistered = RegisterTravellingList<StirItem>("StirItem", "QList<StirItem>");

/** That of a circuit that is not enabled, too. */
Positions positionOfCircuit(int id, const FW_Dispenser &dispenser)
{
    const FW_Circuit *circuit = dispenser.getCircuitById(id);
    return circuit ? Positions({circuit->positionId()}) : Positions();
}

Positions positionsOfCanister(int id, const FW_Dispenser &dispenser)
{
    const FW_Canister *canister = dispenser.getCanisterById(id);
    return canister && canister->isEnabled() ? canister->getCircuitPositions(true) : Positions();
}

Positions positionsOfColorant(const FW_Colorant *colorant, const FW_Dispenser &dispenser)
{
    return colorant && colorant->isEnabled() ? colorant->getPositionsID(dispenser, true) : Positions();
}

Positions positionsOf(const QVariant &item, int type, const FW_Dispenser &dispenser)
{
    if ((type == StirItem::ColorantCode) != (item.userType() == QMetaType::QString))
        return {};
    switch (type) {
    case StirItem::CircuitPosition:
        return {{item.toInt()}};
    case StirItem::CircuitID:
        return positionOfCircuit(item.toInt(), dispenser);
    case StirItem::CanisterID:
        return positionsOfCanister(item.toInt(), dispenser);
    case StirItem::SystemColorantID:
        return positionsOfColorant(dispenser.getColorantBySystemColorantID(item.toInt(), false), dispenser);
    case StirItem::ColorantCode:
        return positionsOfColorant(dispenser.getColorantByColCode(item.toString()), dispenser);
    default:
        return {};
    }
}

} // namespace

StirItem::StirItem(qlonglong duration) : StirItem(QVariant(0), duration) {}

StirItem::StirItem(QVariant item, qlonglong duration)
{
    if (!setItem(item))
        throw FW_Exception("DE01876", "Stirring item: invalid parameter", Q_FUNC_INFO);
    if (!setDuration(duration))
        throw FW_Exception("DE01877", "Stirring duration: invalid parameter", Q_FUNC_INFO);
}

StirItem::StirItem(const XmlRpcValue &value)
{
    if (value.getType() != XmlRpcValue::TypeStruct)
        throw FW_Exception("DE01880", badParameter, Q_FUNC_INFO);
    const XmlRpcValue *item = FindXmlRpcMember(value, ITEM);
    if (!item)
        throw FW_Exception("DE01882", badParameter, Q_FUNC_INFO);
    if (!setItem(DecodeXmlRpcVariant(*item)))
        throw FW_Exception("DE01881", badParameter, Q_FUNC_INFO);
    const XmlRpcValue *duration = FindXmlRpcMember(value, DURATION);
    if (!duration)
        throw FW_Exception("DE01916", badParameter, Q_FUNC_INFO);
    int seconds = 0;
    if (!DecodeXmlRpcValue(*duration, seconds) || !setDuration(seconds))
        throw FW_Exception("DE01883", badParameter, Q_FUNC_INFO);
}

StirItem *StirItem::clone() const
{
    return new StirItem(*this);
}

XmlRpcValue StirItem::toXmlRpcValue(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue value;
    value[ITEM] = EncodeXmlRpcVariant(m_item);
    value[DURATION] = static_cast<int>(m_duration);
    return value;
}

bool StirItem::setItem(QVariant item)
{
    const bool isKnown = item.userType() == QMetaType::Int || item.userType() == QMetaType::QString;
    if (isKnown)
        m_item = item;
    return isKnown;
}

bool StirItem::isNullItem() const
{
    return m_item.userType() == QMetaType::Int && m_item.toInt() == 0;
}

bool StirItem::setDuration(long long duration)
{
    const bool isKnown = duration == ownActivity || StirringCmd::checkDuration(duration);
    if (isKnown)
        m_duration = duration;
    return isKnown;
}

long long StirItem::getStirringDuration(int position, const FW_Dispenser &dispenser) const
{
    if (m_duration != ownActivity)
        return m_duration;
    const FW_StirringMotor *motor = dispenser.getFirstStirringMotorOfCircuitPosition(position, true);
    return motor ? motor->stirringActivity() : ownActivity;
}

bool StirItem::convertItemToPositionsID(int type, const FW_Dispenser &dispenser, QList<int> &positions,
                                        QList<int> &durations) const
{
    const Positions named = positionsOf(m_item, type, dispenser);
    positions = named.value_or(QList<int>());
    durations.clear();
    for (const int position : qAsConst(positions))
        durations.append(static_cast<int>(getStirringDuration(position, dispenser)));
    return named.has_value();
}

bool StirItem::operator==(const StirItem &other) const
{
    return m_item.userType() == other.m_item.userType() && m_item == other.m_item &&
           m_duration == other.m_duration;
}
