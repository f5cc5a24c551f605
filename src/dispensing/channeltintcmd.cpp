// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/channeltintcmd.h"

#include "base/arguments_p.h"
#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/formula_p.h"

#include <algorithm>

namespace {

constexpr char invalidFormula[] = "ChannelTintCmd failed: invalid Formula type parameter";
constexpr char invalidChannel[] = "ChannelTintCmd failed: invalid channel ID parameter";

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::CHANNEL_TINT);
}

bool canPourItem(const CircuitFormulaItem &item, FW_DriverError &error)
{
    bool ok = false;
    item.steps(&ok);
    if (!ok)
        return FW_DriverError::D_E("DE01435", "Bad steps value in formula", error);
    item.speed(&ok);
    return ok || FW_DriverError::D_E("DE01436", "Bad speed value in formula", error);
}

} // namespace

ChannelTintCmd::ChannelTintCmd() : SerialProtoCommand(name(), nullptr) {}

ChannelTintCmd::ChannelTintCmd(int channel, const Formula &formula, const FW_Dispenser *dispenser)
    : SerialProtoCommand(name(), dispenser),
      m_channelID(channel)
{
    const char *function = Q_FUNC_INFO;
    requireChannel(dispenser, function);
    m_formula = quv::copied(formula, {"DE01423", invalidFormula}, function);
    quv::requireGoodFormula(*this, dispenser, function);
}

ChannelTintCmd::ChannelTintCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : SerialProtoCommand(name(), value, dispenser)
{
    const char *function = Q_FUNC_INFO;
    if (!DecodeXmlRpcValue(value, 0, m_channelID))
        throw FW_Exception("DE01424", "ChannelTintCmd failed: expected Int type for first parameter",
                           function);
    requireChannel(dispenser, function);
    m_formula =
        quv::decodedValue<Formula>(FindXmlRpcElement(value, 1), {"DE01425", invalidFormula}, function);
    quv::requireGoodFormula(*this, dispenser, function);
}

ChannelTintCmd::ChannelTintCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : SerialProtoCommand(name(), list, dispenser)
{
    const char *function = Q_FUNC_INFO;
    if (!quv::convertVariant(list.value(0), m_channelID))
        throw FW_Exception("DE01426", invalidChannel, function);
    requireChannel(dispenser, function);
    m_formula = quv::decodedVariant<Formula>(
        list.value(1), {"DE01428", "ChannelTintCmd failed: expected Formula type parameter"},
        {"DE01427", "ChannelTintCmd failed: incorrect Formula type parameter"}, function);
    quv::requireGoodFormula(*this, dispenser, function);
}

ChannelTintCmd *ChannelTintCmd::clone() const
{
    return new ChannelTintCmd(*this);
}

void ChannelTintCmd::setDefaults()
{
    m_channelID = 0;
}

QList<QVariant> ChannelTintCmd::parameters() const
{
    return {m_channelID, QVariant::fromValue(m_formula)};
}

XmlRpc::XmlRpcValue ChannelTintCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array;
    array[0] = m_channelID;
    array[1] = m_formula.toXmlRpcValue(ok);
    return array;
}

QList<int> ChannelTintCmd::serialParameters(int) const
{
    constexpr int queued = 2;
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    CircuitFormulaItemList items;
    if (!dispenser || !m_formula.getCircuitFormulaItems(items, dispenser, nullptr))
        return {};
    QList<int> parameters = {queued, items.size()};
    for (const CircuitFormulaItem &item : items) {
        const long long steps = item.steps();
        const QList<int> digits = splitValue(steps, quv::serialBase);
        if (steps <= 0 || digits.isEmpty())
            continue;
        // the channel in the queue's place tells the firmware which head to relay to
        parameters << item.positionId() << m_channelID << item.speed();
        quv::appendCounted(parameters, digits);
    }
    return parameters;
}

QString ChannelTintCmd::commandString() const
{
    return channelIDStr();
}

TString ChannelTintCmd::actionString(bool detailed) const
{
    const QString channel = channelIDStr();
    if (detailed)
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "%1 with formula: %2"), quv::translationContext)
            .arg(channel, false)
            .arg(m_formula.toPrintableString(true, nullptr), false);
    if (channel.isEmpty())
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "In progress"), quv::translationContext);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "%1 in progress"), quv::translationContext)
        .arg(channel, false);
}

QString ChannelTintCmd::channelIDStr() const
{
    return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "%1 %2 %3"))
        .arg(quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Channel")), QString::number(m_channelID),
             quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "dosing")));
}

bool ChannelTintCmd::checkFormula(FW_DriverError &error) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    if (!dispenser)
        return FW_DriverError::D_E("DE01109", "Invalid dispenser data", error);
    if (m_formula.hasNegativeValues(dispenser) || m_formula.hasNullValues())
        return FW_DriverError::D_E("DE01433", "Bad values in formula! Values have to be positive", error);
    CircuitFormulaItemList items;
    if (!m_formula.getCircuitFormulaItems(items, dispenser, error))
        return false;
    if (items.isEmpty())
        return FW_DriverError::D_E("DE01434", "Empty Formula found", error);
    return std::all_of(items.cbegin(), items.cend(),
                       [&](const CircuitFormulaItem &item) { return canPourItem(item, error); });
}

bool ChannelTintCmd::checkChannelID(int channelID, const FW_Dispenser *dispenser, FW_DriverError &error)
{
    constexpr int channels = 2;
    if (!dispenser)
        return FW_DriverError::D_E("DE01429", "ChannelTintCmd failed: invalid dispenser decoding", error);
    if (channelID < 1 || channelID > channels)
        return FW_DriverError::D_E("DE01432", invalidChannel, error);
    if (channelID > dispenser->tintingParallelism())
        return FW_DriverError::D_E("DE01430", invalidChannel, error);
    if (dispenser->headArrangement() != FW_Dispenser::HeadArrangement::Dual)
        return FW_DriverError::D_E("DE01431", "ChannelTintCmd failed: command relay to DUAL dispenser",
                                   error);
    return true;
}

void ChannelTintCmd::requireChannel(const FW_Dispenser *dispenser, const char *function) const
{
    quv::require(function,
                 [&](FW_DriverError &error) { return checkChannelID(m_channelID, dispenser, error); });
}
