// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/autocapcmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "base/notwritten_p.h"
#include "base/wordstable_p.h"

namespace {

constexpr quv::FamilyGate lateMovements[] = {{63, 38}};

constexpr quv::Words words[] = {
    {AutocapCmd::Close, "Cap close", QT_TRANSLATE_NOOP("QuvProtocol", "Closing cap")},
    {AutocapCmd::Open, "Cap open", QT_TRANSLATE_NOOP("QuvProtocol", "Opening cap")}};

const quv::Words &wordsOf(int movementType)
{
    static constexpr quv::Words others = {-1, "Cap movement", QT_TRANSLATE_NOOP("QuvProtocol", "Moving cap")};
    return quv::wordsOf(words, movementType, others);
}

} // namespace

struct AutocapCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::AUTOCAP_MOVE;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        // none is refused by the base already, as long as the catalogue asks for one
        archive.required({"movement_type", "0 close, 1 open, 2 to 6 further movements"}, self.m_movementType,
                         {"DE00289", "DE00291", "Too few parameters received"},
                         {"DE00290", "DE00292", "Autocap movement type: expected INT parameter"});
    }
};

template class quv::DescribedCommand<AutocapCmd, SerialProtoCommand>;

AutocapCmd::AutocapCmd(int movementType) : m_movementType(movementType) {}

AutocapCmd::AutocapCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    // the contract of this class, should the base ever let such a value pass
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE00592", "AutocapCmd: invalid xml-rpc type (not array)", Q_FUNC_INFO);
    read(value, Q_FUNC_INFO);
}

AutocapCmd::AutocapCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

AutocapCmd *AutocapCmd::clone() const
{
    return new AutocapCmd(*this);
}

XmlRpc::XmlRpcValue AutocapCmd::xmlrpc_parameters(bool *ok) const
{
    return m_movementType == noMovement ? quv::notWritten(ok) : DescribedCommand::xmlrpc_parameters(ok);
}

QList<int> AutocapCmd::serialParameters(int) const
{
    return {m_movementType};
}

long long AutocapCmd::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    constexpr long long movementTime = 1200;
    return m_movementType == Close || m_movementType == Open ? movementTime : 0;
}

QString AutocapCmd::commandString() const
{
    return QString::fromLatin1(wordsOf(m_movementType).commandText);
}

TString AutocapCmd::actionString(bool detailed) const
{
    return quv::actionOf(wordsOf(m_movementType), detailed);
}

bool AutocapCmd::checkMovementType(int movementType)
{
    return movementType >= Close && movementType <= Movement6;
}

bool AutocapCmd::isSupportedMovement(AutocapMovementType movementType, const FW_Version &version)
{
    return checkMovementType(movementType) &&
           (movementType <= Movement3 || quv::passesGate(lateMovements, version));
}

int AutocapCmd::commandVersion(const FW_Version *version)
{
    if (!version)
        return 0;
    return isSupportedMovement(Movement6, *version) ? 2 : 1;
}
