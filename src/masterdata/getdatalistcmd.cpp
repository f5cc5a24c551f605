// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getdatalistcmd.h"

#include "base/argumentteller_p.h"
#include "base/confprotoanswer.h"
#include "base/describedcommand_p.h"
#include "masterdata/getcanisterlistanswer.h"
#include "masterdata/getcircuitlistanswer.h"
#include "masterdata/getcolorantlistanswer.h"
#include "masterdata/getcommandlistanswer.h"
#include "masterdata/getdevicelistanswer.h"
#include "status/getactivedispanswer.h"

namespace {

using Cmd = ProtoCommandList;

// whichever list it is, clients know the failure by this text
constexpr quv::Refusal notMade = {"DE01287", "Failed to create DispenserStatusAnswer"};
constexpr quv::PlainlyAnswered failures = {{}, notMade, notMade, {}};

FW_Exception noFlag(const QString &name, const char *function)
{
    return FW_Exception("DE00391", QStringLiteral("%1: expected Bool type for first parameter").arg(name),
                        function);
}

template <class Answer>
struct Of
{
    using Class = Answer;
};

/** What \a visit gives for the class of the answer to the command of this name. */
template <class Visit>
auto withAnswerTo(const QString &name, Visit visit)
{
    const CMD_STRUCT *row = Cmd::row(name);
    switch (row ? row->id : -1) {
    case Cmd::GET_DISP_LIST:
    case Cmd::GET_MIXER_LIST:
        return visit(Of<GetActiveDispAnswer>());
    case Cmd::GET_CIRCUIT_LIST:
        return visit(Of<GetCircuitListAnswer>());
    case Cmd::GET_CANISTER_LIST:
        return visit(Of<GetCanisterListAnswer>());
    case Cmd::GET_COLORANT_LIST:
        return visit(Of<GetColorantListAnswer>());
    case Cmd::GET_DEVICE_LIST:
        return visit(Of<GetDeviceListAnswer>());
    case Cmd::GET_CMD_LIST:
        return visit(Of<GetCommandListAnswer>());
    default:
        return visit(Of<ConfProtoAnswer>());
    }
}

template <class Source>
ProtoAnswer *makeAnswer(const QString &name, Source &source)
{
    return withAnswerTo(name, [&source](auto answer) -> ProtoAnswer * {
        return new typename decltype(answer)::Class(source);
    });
}

bool readsLevels(const QString &name)
{
    return name == Cmd::cmdStr(Cmd::GET_CANISTER_LIST);
}

} // namespace

GetDataListCmd::GetDataListCmd(QString name, bool option) : ConfProtoCommand(name, nullptr), m_option(option)
{}

GetDataListCmd::GetDataListCmd(QString name, const XmlRpc::XmlRpcValue &value)
    : ConfProtoCommand(name, value, nullptr)
{
    const XmlRpc::XmlRpcValue *option = FindXmlRpcElement(value, 0);
    if (option && !DecodeXmlRpcValue(*option, m_option))
        throw noFlag(name, Q_FUNC_INFO);
}

GetDataListCmd::GetDataListCmd(QString name, QList<QVariant> list) : ConfProtoCommand(name, list, nullptr)
{
    if (!list.isEmpty() && !quv::decodeVariant(list.first(), m_option))
        throw noFlag(name, Q_FUNC_INFO);
}

GetDataListCmd *GetDataListCmd::clone() const
{
    return new GetDataListCmd(*this);
}

QList<QVariant> GetDataListCmd::parameters() const
{
    return {m_option};
}

XmlRpc::XmlRpcValue GetDataListCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0] = m_option;
    return array;
}

bool GetDataListCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer(notMade.code, notMade.text, error,
                              [&] { return makeAnswer(m_command, value); });
}

bool GetDataListCmd::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer(notMade.code, notMade.text, error, [&] { return makeAnswer(m_command, list); });
}

QString GetDataListCmd::commandString() const
{
    return readsLevels(m_command) ? QStringLiteral("Canister levels read")
                                  : ConfProtoCommand::commandString();
}

TString GetDataListCmd::actionString(bool detailed) const
{
    return readsLevels(m_command)
               ? TString(QT_TRANSLATE_NOOP("QuvProtocol", "Reading canister levels"), quv::translationContext)
               : ConfProtoCommand::actionString(detailed);
}

void GetDataListCmd::tell(quv::CommandFacts &facts)
{
    const FW_Exception refusal = noFlag(facts.name, "");
    const QByteArray code = refusal.code().toUtf8();
    const QByteArray text = refusal.text().toUtf8();
    quv::ArgumentTeller(facts).optional({"option", "what it stands for only the driver knows"}, false,
                                        {code.constData(), code.constData(), text.constData()});
    withAnswerTo(facts.name, [&facts](auto answer) {
        quv::tellAnswer<typename decltype(answer)::Class>(failures, facts);
    });
}
