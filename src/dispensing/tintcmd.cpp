// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/tintcmd.h"

#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/formula_p.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>

namespace {

constexpr char invalidFormula[] = "TintCmd failed: invalid Formula type parameter";

constexpr quv::PourCodes codes = {"DE01103", "DE00015", {"DE00018", "DE00060", "DE00061", "DE00062"},
                                  "DE00583", "DE00533", "DE00529",
                                  "DE02832", "DE02833"};

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::TINT);
}

/** The canister's content as the firmware wants it: in hundreds of steps, but a small number as it is. */
int sentLevel(int checkLevelSteps)
{
    constexpr int smallest = 10;
    constexpr int unit = 100;
    return checkLevelSteps > smallest ? checkLevelSteps / unit : checkLevelSteps;
}

} // namespace

TintCmd::TintCmd() : SerialProtoCommand(name(), nullptr) {}

TintCmd::TintCmd(const Formula &formula, const FW_Dispenser *dispenser)
    : SerialProtoCommand(name(), dispenser)
{
    const char *function = Q_FUNC_INFO;
    m_formula = quv::copied(formula, {"DE00491", invalidFormula}, function);
    quv::requireGoodFormula(*this, dispenser, function);
}

TintCmd::TintCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : SerialProtoCommand(name(), value, dispenser)
{
    const char *function = Q_FUNC_INFO;
    m_formula =
        quv::decodedValue<Formula>(FindXmlRpcElement(value, 0), {"DE00437", invalidFormula}, function);
    quv::requireGoodFormula(*this, dispenser, function);
}

TintCmd::TintCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : SerialProtoCommand(name(), list, dispenser)
{
    const char *function = Q_FUNC_INFO;
    m_formula = quv::decodedVariant<Formula>(
        list.value(0), {"DE00439", "TintCmd failed: expected Formula type parameter"},
        {"DE00775", "TintCmd failed: incorrect Formula type parameter"}, function);
    quv::requireGoodFormula(*this, dispenser, function);
}

TintCmd *TintCmd::clone() const
{
    return new TintCmd(*this);
}

QList<QVariant> TintCmd::parameters() const
{
    return {QVariant::fromValue(m_formula)};
}

XmlRpc::XmlRpcValue TintCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array;
    array[0] = m_formula.toXmlRpcValue(ok);
    return array;
}

QList<int> TintCmd::serialParameters(int) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    CircuitFormulaItemList items;
    if (!dispenser || !m_formula.getCircuitFormulaItems(items, dispenser, nullptr))
        return {};
    return quv::pourParameters(*this, m_formula, items, false);
}

long long TintCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    constexpr long long zandorTime = 290000; // taking the can in, closing and mixing it
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    if (!dispenser)
        return 0;
    if (m_formula.quantityUnit() == Formula::WeightOrVolume && dispenser->hasGravimetricSwDosingMotors())
        return -1;
    CircuitFormulaItemList items;
    long long time = 0;
    if (!m_formula.getCircuitFormulaItems(items, dispenser, nullptr) || !items.getEstimatedDosingTime(time))
        return 0;
    if (dispenser->acceptCommands(FW_Device::Autocap))
        time += quv::autocapTime(dispenser);
    if (FW_Dispenser::isZANDORDispenser(dispenser->modelName()))
        time += zandorTime;
    return time;
}

QString TintCmd::commandString() const
{
    return QStringLiteral("Dispense");
}

TString TintCmd::actionString(bool detailed) const
{
    if (detailed)
        return TString(m_formula.toPrintableString(true, nullptr), "");
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Dispensing in progress"), quv::translationContext);
}

bool TintCmd::checkFormula(FW_DriverError &error) const
{
    return quv::canPour(*this, m_formula, codes, error);
}

QList<int> TintCmd::getSerialParameters(const CircuitFormulaItemList &items, int criterion, bool purge,
                                        bool tint2)
{
    constexpr int purgeMark = 64;
    constexpr int fieldsOfCircuit = 6;
    constexpr int withoutQueues = 1;
    const bool queued = criterion != withoutQueues && !items.hasNullQueueID();

    QList<int> parameters = {purge && tint2 ? criterion | purgeMark : criterion, items.size()};
    if (tint2)
        parameters.append(fieldsOfCircuit);
    for (const CircuitFormulaItem &item : items) {
        const QList<int> digits = splitValue(std::max(item.steps(), 1LL), quv::serialBase);
        if (digits.isEmpty())
            continue;
        parameters << item.positionId() << (queued ? item.queueID() : 0) << item.speed();
        if (tint2)
            parameters.append(item.nozzleValveID());
        quv::appendCounted(parameters, digits);
        if (tint2)
            quv::appendCounted(parameters,
                               splitValue(sentLevel(item.currentCheckLevelSteps()), quv::serialBase));
    }
    return parameters;
}
