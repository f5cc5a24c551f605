// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/channeltintcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "base/wire_p.h"
#include "dispensing/formula_p.h"

#include <algorithm>

namespace {

constexpr char invalidFormula[] = "ChannelTintCmd failed: invalid Formula type parameter";
constexpr char invalidChannel[] = "ChannelTintCmd failed: invalid channel ID parameter";

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

struct ChannelTintCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CHANNEL_TINT;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.convertible({"channel", "1 or 2"}, self.m_channelID,
                            {{"DE01424", "ChannelTintCmd failed: expected Int type for first parameter"},
                             {"DE01426", invalidChannel}});
        archive.whenRead([&self](const char *function) { self.requireChannel(function); });
        archive.object("formula", self.m_formula,
                       {{"DE01425", invalidFormula},
                        {"DE01428", "ChannelTintCmd failed: expected Formula type parameter"}},
                       {"DE01427", "ChannelTintCmd failed: incorrect Formula type parameter"});
    }
};

template class quv::DescribedCommand<ChannelTintCmd, SerialProtoCommand>;

ChannelTintCmd::ChannelTintCmd(int channel, const Formula &formula, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser),
      m_channelID(channel)
{
    const char *function = Q_FUNC_INFO;
    requireChannel(function);
    m_formula = quv::copied(formula, {"DE01423", invalidFormula}, function);
    quv::requireGoodFormula(*this, dispenser, function);
}

ChannelTintCmd::ChannelTintCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

ChannelTintCmd::ChannelTintCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

ChannelTintCmd *ChannelTintCmd::clone() const
{
    return new ChannelTintCmd(*this);
}

void ChannelTintCmd::setDefaults()
{
    m_channelID = 0;
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

void ChannelTintCmd::requireChannel(const char *function) const
{
    quv::require(function, [this](FW_DriverError &error) {
        return checkChannelID(m_channelID, quv::dispenserOf(*this), error);
    });
}
