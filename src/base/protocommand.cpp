// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/protocommand.h"

#include "base/asyncanswer.h"
#include "base/cloned_p.h"
#include "base/latin1_p.h"
#include "base/prototypes_p.h"
#include "base/replaceanswer_p.h"
#include "base/translation_p.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_machine.h>

#include <algorithm>
#include <iterator>

namespace {

struct NamedText
{
    ProtoCommandList::CommandListValue command;
    const char *text;
};

constexpr NamedText commandTexts[] = {
    {ProtoCommandList::GET_CALIB_PROFILES, "Calibration profiles read"},
    {ProtoCommandList::GET_ERRORS, "Errors read"},
    {ProtoCommandList::GET_DRIVER_SETTINGS, "Application settings read"},
    {ProtoCommandList::GET_DRIVER_INFO, "Application info read"},
};

constexpr NamedText actionTexts[] = {
    {ProtoCommandList::GET_CALIB_PROFILES,
     QT_TRANSLATE_NOOP("QuvProtocol", "Retrieving calibration profiles")},
    {ProtoCommandList::GET_ERRORS, QT_TRANSLATE_NOOP("QuvProtocol", "Searching for hardware errors")},
    {ProtoCommandList::GET_DRIVER_SETTINGS,
     QT_TRANSLATE_NOOP("QuvProtocol", "Retrieving application settings")},
    {ProtoCommandList::GET_DRIVER_INFO, QT_TRANSLATE_NOOP("QuvProtocol", "Retrieving application info")},
    {ProtoCommandList::GET_SCALE_CONFIG, QT_TRANSLATE_NOOP("QuvProtocol", "Reading scale configuration")},
};

/** Polling and housekeeping: nobody shows their progress. */
constexpr ProtoCommandList::CommandListValue silentCommands[] = {
    ProtoCommandList::LOGIN,
    ProtoCommandList::LOGOUT,
    ProtoCommandList::GET_KEY,
    ProtoCommandList::CERTIFY_SESSION,
    ProtoCommandList::WORKING_MODE,
    ProtoCommandList::GET_ACTIVE_DISP,
    ProtoCommandList::GET_DISP_STATUS,
    ProtoCommandList::GET_MIXER_STATUS,
    ProtoCommandList::GET_STATUS,
    ProtoCommandList::GET_CIRCUITS_STATUS,
    ProtoCommandList::GET_SENSOR_DATA,
    ProtoCommandList::GET_CMD_STATUS,
    ProtoCommandList::GET_CONN_STATUS,
    ProtoCommandList::GET_HOST_INFO,
    ProtoCommandList::GET_KEY_CODE,
    ProtoCommandList::GET_SCALE_STATUS,
    ProtoCommandList::ADD_USS_W_EVENT,
    ProtoCommandList::GET_USS_W_STATUS,
    ProtoCommandList::GET_QRCODE_CALIB,
    ProtoCommandList::SET_QRCODE_CALIB,
    ProtoCommandList::GET_FORMULA_EXECUTION,
    ProtoCommandList::ADD_EVENT,
};

/** The row number of a command; -1, which no table holds, for a name outside the catalogue. */
int rowOf(const QString &command)
{
    const CMD_STRUCT *row = ProtoCommandList::row(command);
    return row ? row->id : -1;
}

template <class Table>
const char *textOf(const Table &table, const QString &command)
{
    const int row = rowOf(command);
    for (const NamedText &entry : table) {
        if (entry.command == row)
            return entry.text;
    }
    return nullptr;
}

} // namespace

ProtoCommand::ProtoCommand()
{
    setDefaults();
}

ProtoCommand::ProtoCommand(QString command) : m_command(command) {}

ProtoCommand::ProtoCommand(int type) : m_protoType(type) {}

ProtoCommand::ProtoCommand(int type, QString command, const FW_Machine *machine)
    : m_command(command),
      m_machine(quv::cloned(machine)),
      m_protoType(type)
{}

ProtoCommand::ProtoCommand(int type, QString command, const XmlRpc::XmlRpcValue &value,
                           const FW_Machine *machine)
    : ProtoCommand(type, command, machine)
{
    if (!value.valid())
        throw FW_Exception("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", Q_FUNC_INFO);
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE00311", "ProtoCommand: expected array for xmlrpc type", Q_FUNC_INFO);
    QString missing;
    if (!checkParameters(command, value.size(), &missing))
        throw FW_Exception("DE00312", missing, Q_FUNC_INFO);
}

ProtoCommand::ProtoCommand(int type, QString command, QList<QVariant> parameters, const FW_Machine *machine)
    : ProtoCommand(type, command, machine)
{
    m_parameters = parameters;
    QString missing;
    if (!checkParameters(command, parameters.size(), &missing))
        throw FW_Exception("DE00313", missing, Q_FUNC_INFO);
}

ProtoCommand::ProtoCommand(const ProtoCommand &other)
    : m_command(other.m_command),
      m_protoAnswer(quv::cloned(other.m_protoAnswer.get())),
      m_xmlRpcAnswer(other.m_xmlRpcAnswer ? new XmlRpcAnswer(*other.m_xmlRpcAnswer) : nullptr),
      m_machine(quv::cloned(other.m_machine.get())),
      m_parameters(other.m_parameters),
      m_protoType(other.m_protoType)
{}

ProtoCommand::~ProtoCommand() = default;

ProtoCommand *ProtoCommand::clone() const
{
    return new ProtoCommand(*this);
}

QList<QVariant> ProtoCommand::parameters() const
{
    return m_parameters;
}

XmlRpc::XmlRpcValue ProtoCommand::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue none;
    none.setSize(0);
    return none;
}

void ProtoCommand::setProtoAnswer(ProtoAnswer *answer)
{
    // nobody is told of a failure: what cannot be copied is no answer
    replaceProtoAnswer("", "", nullptr, [&] { return quv::cloned(answer).release(); });
}

ProtoAnswer *ProtoCommand::getProtoAnswer(bool *ok) const
{
    if (ok)
        *ok = m_protoAnswer != nullptr;
    return m_protoAnswer.get();
}

XmlRpcAnswer *ProtoCommand::getXmlRpcAnswer(bool *ok) const
{
    if (ok)
        *ok = m_xmlRpcAnswer != nullptr;
    return m_xmlRpcAnswer.get();
}

XmlRpc::XmlRpcValue ProtoCommand::toXmlRpcValue(QString leading, bool *ok) const
{
    return buildXmlRpcValue(m_command, xmlrpc_parameters(nullptr), leading, ok);
}

bool ProtoCommand::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01293", quv::answerFailed, error,
                              [&] { return new ProtoAnswer(quv::PlainType, value); });
}

bool ProtoCommand::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01294", quv::answerFailed, error,
                              [&] { return new ProtoAnswer(quv::PlainType, list); });
}

bool ProtoCommand::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return takeXmlRpcAnswer(value, async, "DE00350", quv::answerFailed, error);
}

bool ProtoCommand::setAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return buildProtoAnswer(list, error);
}

bool ProtoCommand::setAnswer(ProtoAnswer *answer, ProtoCommand *, FW_DriverError *error)
{
    return takeProtoAnswer(answer, "DE01146", "DE00144", error);
}

bool ProtoCommand::isSupportedCommand(const FW_Version &) const
{
    return true;
}

long long ProtoCommand::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    return 0;
}

QString ProtoCommand::commandString() const
{
    const char *text = textOf(commandTexts, m_command);
    return text ? QString::fromLatin1(text) : QString();
}

TString ProtoCommand::actionString(bool) const
{
    if (const char *text = textOf(actionTexts, m_command))
        return TString(text, quv::translationContext);
    const auto isThis = [row = rowOf(m_command)](int command) { return command == row; };
    if (std::any_of(std::begin(silentCommands), std::end(silentCommands), isThis))
        return TString();
    return TString(quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "In progress")), "");
}

bool ProtoCommand::setCommand(const QString &command)
{
    if (!ProtoCommandList::existsCommand(command))
        return false;
    m_command = command;
    return true;
}

void ProtoCommand::clearProtoAnswer()
{
    m_protoAnswer.reset();
}

bool ProtoCommand::checkParameters(const QString &command, int count, QString *error) const
{
    const int minimum = ProtoCommandList::cmdParamNum(command, true);
    if (count >= minimum)
        return true;
    if (error)
        *error = QStringLiteral("%1 command : expected at least %2 parameters, received %3 instead!")
                     .arg(command, QString::number(minimum), QString::number(count));
    return false;
}

XmlRpc::XmlRpcValue ProtoCommand::buildXmlRpcValue(QString command, XmlRpc::XmlRpcValue parameters,
                                                   QString leading, bool *ok)
{
    XmlRpc::XmlRpcValue request;
    request.setSize(0);
    const bool good = !command.isEmpty() && parameters.getType() == XmlRpc::XmlRpcValue::TypeArray;
    if (ok)
        *ok = good;
    if (!good)
        return request;

    const int count = parameters.size();
    const int head = leading.isEmpty() ? 1 : 2;
    request.setSize(head + count);
    if (!leading.isEmpty())
        request[0] = quv::latin1(leading);
    request[head - 1] = quv::latin1(command);
    for (int i = 0; i < count; ++i)
        request[head + i] = parameters[i];
    return request;
}

XmlRpc::XmlRpcValue ProtoCommand::buildXmlRpcValue(QString command, QString leading, bool *ok)
{
    XmlRpc::XmlRpcValue none;
    none.setSize(0);
    return buildXmlRpcValue(command, none, leading, ok);
}

void ProtoCommand::clear()
{
    m_command = QString();
    m_protoType = quv::PlainType;
    static_cast<void>(m_protoAnswer.release());
    static_cast<void>(m_xmlRpcAnswer.release());
    static_cast<void>(m_machine.release());
}

void ProtoCommand::setDefaults()
{
    clear();
}

bool ProtoCommand::takeXmlRpcAnswer(const XmlRpc::XmlRpcValue &value, bool async, const char *code,
                                    const char *text, FW_DriverError *error)
{
    std::unique_ptr<XmlRpcAnswer> envelope;
    std::unique_ptr<ProtoAnswer> ticket;
    const bool decoded = quv::guarded(code, text, error, [&] {
        envelope = std::make_unique<XmlRpcAnswer>(value);
        if (async && envelope->retCode() == 0)
            ticket = std::make_unique<AsyncAnswer>(envelope->xmlrpcRetValue());
    });
    m_protoAnswer = std::move(ticket);
    m_xmlRpcAnswer = std::move(envelope);
    if (!decoded || m_protoAnswer || m_xmlRpcAnswer->retCode() != 0)
        return decoded;

    bool built = false;
    const bool kept = quv::guarded(
        code, text, error, [&] { built = buildProtoAnswer(m_xmlRpcAnswer->xmlrpcRetValue(), error); });
    if (!kept) // a subclass threw, and may have left anything
        clearProtoAnswer();
    return built;
}

bool ProtoCommand::takeProtoAnswer(const ProtoAnswer *answer, const char *nullCode, const char *cloneCode,
                                   FW_DriverError *error)
{
    if (!answer) {
        clearProtoAnswer();
        return FW_DriverError::D_E(nullCode, quv::answerFailed, error);
    }
    return replaceProtoAnswer(cloneCode, quv::answerFailed, error, [&] { return answer->clone(); });
}
