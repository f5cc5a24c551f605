// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/autocapcmd.h"

#include "base/arguments_p.h"
#include "base/gate_p.h"
#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"

namespace {

constexpr quv::FamilyGate lateMovements[] = {{63, 38}};

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::AUTOCAP_MOVE);
}

} // namespace

template <class Self, class Archive>
void AutocapCmd::arguments(Self &self, Archive &archive)
{
    archive.required(self.m_movementType, {"DE00289", "DE00291", "Too few parameters received"},
                     {"DE00290", "DE00292", "Autocap movement type: expected INT parameter"});
}

AutocapCmd::AutocapCmd() : SerialProtoCommand(name(), nullptr)
{
    setDefaults();
}

AutocapCmd::AutocapCmd(int movementType) : AutocapCmd()
{
    m_movementType = movementType;
}

AutocapCmd::AutocapCmd(const XmlRpc::XmlRpcValue &value) : SerialProtoCommand(name(), value, nullptr)
{
    setDefaults();
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE00592", "AutocapCmd: invalid xml-rpc type (not array)", Q_FUNC_INFO);
    quv::ValueReader reader(value, Q_FUNC_INFO);
    arguments(*this, reader);
}

AutocapCmd::AutocapCmd(QList<QVariant> list) : SerialProtoCommand(name(), list, nullptr)
{
    setDefaults();
    quv::ListReader reader(list, Q_FUNC_INFO);
    arguments(*this, reader);
}

AutocapCmd *AutocapCmd::clone() const
{
    return new AutocapCmd(*this);
}

void AutocapCmd::setDefaults()
{
    m_movementType = noMovement;
}

QList<QVariant> AutocapCmd::parameters() const
{
    quv::ListWriter writer;
    arguments(*this, writer);
    return writer.result();
}

XmlRpc::XmlRpcValue AutocapCmd::xmlrpc_parameters(bool *ok) const
{
    if (m_movementType != noMovement) {
        quv::ValueWriter writer;
        arguments(*this, writer);
        return writer.result(ok);
    }
    const XmlRpc::XmlRpcValue none = quv::ValueWriter().result(nullptr);
    if (ok)
        *ok = false;
    return none;
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
    switch (m_movementType) {
    case Close:
        return QStringLiteral("Cap close");
    case Open:
        return QStringLiteral("Cap open");
    default:
        return QStringLiteral("Cap movement");
    }
}

TString AutocapCmd::actionString(bool) const
{
    switch (m_movementType) {
    case Close:
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Closing cap"), quv::translationContext);
    case Open:
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Opening cap"), quv::translationContext);
    default:
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Moving cap"), quv::translationContext);
    }
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
