// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/getactivecircuitscmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "status/getactivecircuitsanswer.h"

#include <utility>

namespace {

constexpr quv::FamilyGate tellsActiveCircuits[] = {{63, 38}, {67, 3}, {68, 3}, {69, 3},
                                                   {70, 2},  {50, 1}, {72}};
/** The families in which the first process came later than the command. */
constexpr quv::FamilyGate tellsProcess1[] = {{67, 4}, {72, 4}};
constexpr quv::FamilyGate tellsProcesses9And11[] = {{72}};
constexpr quv::FamilyGate tellsProcesses10And12[] = {{63, 39}};
constexpr quv::FamilyGate tellsProcess13[] = {{63, 40}, {70, 2}};

} // namespace

struct GetActiveCircuitsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_ACTIVE_CIRCUITS;

    static constexpr char answerFailed[] = "Failed to create GetActiveCircuitsAnswer";
    static constexpr quv::AnsweredBy<GetActiveCircuitsAnswer> answer = {{"DE02456", answerFailed},
                                                                        {"DE02454", answerFailed},
                                                                        {"DE02455", answerFailed},
                                                                        {"DE02457", answerFailed}};
    static constexpr bool buildsAnswerOfTokens = true; // they do not tell what a circuit's second value is

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal invalid = {"DE02452", "DE02453",
                                                  "GetActiveCircuitsCmd: invalid parameter"};
        // none is refused by the base already, as long as the catalogue asks for one
        archive.required({"process", "1 to 13"}, self.m_circuitProcess, invalid, invalid);
        archive.refuseUnless(checkCircuitProcess(self.m_circuitProcess), invalid);
    }
};

template class quv::DescribedCommand<GetActiveCircuitsCmd, SerialProtoCommand>;

GetActiveCircuitsCmd::GetActiveCircuitsCmd(CircuitProcess process)
    : m_circuitProcess(static_cast<int>(process))
{}

GetActiveCircuitsCmd::GetActiveCircuitsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

GetActiveCircuitsCmd::GetActiveCircuitsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

GetActiveCircuitsCmd *GetActiveCircuitsCmd::clone() const
{
    return new GetActiveCircuitsCmd(*this);
}

QList<int> GetActiveCircuitsCmd::serialParameters(int) const
{
    return {m_circuitProcess};
}

bool GetActiveCircuitsCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    const quv::Refusal &failed = Description::answer.tokens;
    return replaceProtoAnswer(failed.code, failed.text, error, [&] {
        return new GetActiveCircuitsAnswer(std::move(tokens), circuitProcess());
    });
}

bool GetActiveCircuitsCmd::isSupportedCommand(const FW_Version &version) const
{
    return isCommandSupported(version);
}

bool GetActiveCircuitsCmd::checkCircuitProcess(int process)
{
    return process >= static_cast<int>(CircuitProcess::First) &&
           process <= static_cast<int>(CircuitProcess::Last);
}

bool GetActiveCircuitsCmd::isCommandSupported(const FW_Version &version)
{
    return quv::passesGate(tellsActiveCircuits, version);
}

bool GetActiveCircuitsCmd::isCircuitProcessSupported(CircuitProcess process, const FW_Version &version)
{
    const int number = static_cast<int>(process);
    switch (number) {
    case 1:
        return quv::passesGate(tellsProcess1, version, isCommandSupported(version));
    case 9:
    case 11:
        return quv::passesGate(tellsProcesses9And11, version);
    case 10:
    case 12:
        return quv::passesGate(tellsProcesses10And12, version);
    case 13:
        return quv::passesGate(tellsProcess13, version);
    default:
        return checkCircuitProcess(number) && isCommandSupported(version);
    }
}
