// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/tintcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "dispensing/formula_p.h"

#include <algorithm>

namespace {

constexpr char invalidFormula[] = "TintCmd failed: invalid Formula type parameter";

constexpr quv::PourCodes codes = {"DE01103", "DE00015", {"DE00018", "DE00060", "DE00061", "DE00062"},
                                  "DE00583", "DE00533", "DE00529",
                                  "DE02832", "DE02833"};

/** The canister's content as the firmware wants it: in hundreds of steps, but a small number as it is. */
int sentLevel(int checkLevelSteps)
{
    constexpr int smallest = 10;
    constexpr int unit = 100;
    return checkLevelSteps > smallest ? checkLevelSteps / unit : checkLevelSteps;
}

} // namespace

struct TintCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::TINT;
    static constexpr auto commandText = "Dispense";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Dispensing in progress");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.object(
            "formula", self.m_formula,
            {{"DE00437", invalidFormula}, {"DE00439", "TintCmd failed: expected Formula type parameter"}},
            {"DE00775", "TintCmd failed: incorrect Formula type parameter"});
    }
};

template class quv::DescribedCommand<TintCmd, SerialProtoCommand>;

TintCmd::TintCmd(const Formula &formula, const FW_Dispenser *dispenser) : DescribedCommand(dispenser)
{
    const char *function = Q_FUNC_INFO;
    m_formula = quv::copied(formula, {"DE00491", invalidFormula}, function);
    check(dispenser, function);
}

TintCmd::TintCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
    check(dispenser, Q_FUNC_INFO);
}

TintCmd::TintCmd(QList<QVariant> list, const FW_Dispenser *dispenser) : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
    check(dispenser, Q_FUNC_INFO);
}

void TintCmd::check(const FW_Dispenser *dispenser, const char *function)
{
    m_checked = quv::checkedPour(*this, m_formula, dispenser, codes, function);
}

TintCmd *TintCmd::clone() const
{
    return new TintCmd(*this);
}

QList<int> TintCmd::serialParameters(int) const
{
    CircuitFormulaItemList items;
    if (!quv::pouredItems(*this, m_formula, m_checked, items))
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

TString TintCmd::actionString(bool detailed) const
{
    if (detailed)
        return TString(m_formula.toPrintableString(true, nullptr), "");
    return DescribedCommand::actionString(false);
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

    constexpr int usualNumbers = 8; // of a circuit
    QList<int> parameters;
    parameters.reserve((items.size() + 1) * usualNumbers);
    parameters << (purge && tint2 ? criterion | purgeMark : criterion) << items.size();
    if (tint2)
        parameters.append(fieldsOfCircuit);
    for (const CircuitFormulaItem &item : items) {
        parameters << item.positionId() << (queued ? item.queueID() : 0) << item.speed();
        if (tint2)
            parameters.append(item.nozzleValveID());
        quv::appendCountedDigits(parameters, std::max(item.steps(), 1LL));
        if (tint2)
            quv::appendCountedDigits(parameters, sentLevel(item.currentCheckLevelSteps()));
    }
    return parameters;
}
