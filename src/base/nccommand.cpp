// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/nccommand.h"

#include "base/cloned_p.h"
#include "base/guard_p.h"
#include "base/protoanswer.h"
#include "base/protocommand.h"
#include "base/requestarguments_p.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

constexpr char decodingFailed[] = "Errors during protocol command parameters decoding";

std::unique_ptr<ProtoCommand> makeCommand(const QString &name, const QList<QVariant> &arguments,
                                          const FW_Machine *machine)
{
    return std::unique_ptr<ProtoCommand>(ProtoCommandList::getProtoCommand(name, arguments, machine));
}

/** Walks the elements that may follow a command's name, each of which may be left out. */
class OptionalElements
{
public:
    explicit OptionalElements(const XmlRpc::XmlRpcValue &array) : m_array(array) {}

    /** The next element when it is of this type; null, and it stays the next, when it is not. */
    const XmlRpc::XmlRpcValue *next(XmlRpc::XmlRpcValue::Type type) const
    {
        const XmlRpc::XmlRpcValue *element = FindXmlRpcElement(m_array, m_index);
        return element && element->getType() == type ? element : nullptr;
    }
    void step() { ++m_index; }

    void takeInt(int &number)
    {
        if (const auto *element = next(XmlRpc::XmlRpcValue::TypeInt)) {
            DecodeXmlRpcValue(*element, number);
            step();
        }
    }

private:
    const XmlRpc::XmlRpcValue &m_array;
    int m_index = 0;
};

template <class T>
T *absent(bool *ok)
{
    if (ok)
        *ok = false;
    return nullptr;
}

} // namespace

NCCommand::NCCommand(ProtoCommand *command, ProtoAnswer *lastAnswer, int interval, int timeout)
    : m_interval(interval),
      m_timeout(timeout)
{
    if (!command)
        throw FW_Exception("DE01417", decodingFailed, Q_FUNC_INFO);
    try {
        m_protoCommand = quv::cloned(command);
        m_lastAnswer = quv::cloned(lastAnswer);
    } catch (...) {
        quv::rethrowCurrentException("DE01418", decodingFailed, Q_FUNC_INFO);
    }
}

NCCommand::NCCommand(QString name, ProtoAnswer *lastAnswer, int interval, int timeout,
                     const FW_Machine *machine)
    : m_interval(interval),
      m_timeout(timeout)
{
    try {
        m_protoCommand = makeCommand(name, {}, machine);
        m_lastAnswer = quv::cloned(lastAnswer);
    } catch (...) {
        quv::rethrowCurrentException("DE01176", decodingFailed, Q_FUNC_INFO);
    }
}

NCCommand::NCCommand(QString name, QList<QVariant> arguments, ProtoAnswer *lastAnswer, int interval,
                     int timeout, const FW_Machine *machine)
    : m_interval(interval),
      m_timeout(timeout)
{
    try {
        m_protoCommand = makeCommand(name, arguments, machine);
        m_lastAnswer = quv::cloned(lastAnswer);
    } catch (...) {
        quv::rethrowCurrentException("DE00772", decodingFailed, Q_FUNC_INFO);
    }
}

NCCommand::NCCommand(QString name, QList<QVariant> arguments, QList<QVariant> lastAnswer, int interval,
                     int timeout, const FW_Machine *machine)
    : m_interval(interval),
      m_timeout(timeout)
{
    const char *function = Q_FUNC_INFO;
    try {
        m_protoCommand = makeCommand(name, arguments, machine);
        FW_DriverError error;
        if (!m_protoCommand->buildProtoAnswer(lastAnswer, &error))
            throw FW_Exception(error, function);
        m_lastAnswer = quv::cloned(m_protoCommand->getProtoAnswer());
    } catch (...) {
        // the contract: the factory and the command have codes of their own for what goes wrong in them
        quv::rethrowCurrentException("DE00773", decodingFailed, function);
    }
}

NCCommand::NCCommand(QString name, XmlRpc::XmlRpcValue &args, const FW_Machine *machine)
{
    const char *function = Q_FUNC_INFO;
    if (args.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE00755", "Error in type decoding (xml-rpc)", function);
    try {
        OptionalElements elements(args);
        XmlRpc::XmlRpcValue arguments;
        arguments.setSize(0);
        const auto *parameters = elements.next(XmlRpc::XmlRpcValue::TypeStruct);
        if (parameters && DecodeXmlRpcMember(*parameters, CMD_PARAMETERS, arguments))
            elements.step();
        m_protoCommand.reset(ProtoCommandList::getProtoCommand(name, arguments, machine));

        if (const auto *answer = elements.next(XmlRpc::XmlRpcValue::TypeStruct)) {
            const auto *lastAnswer = FindXmlRpcMember(*answer, LAST_ANSWER);
            if (!lastAnswer)
                throw FW_Exception("DE00756", decodingFailed, function);
            FW_DriverError error;
            if (!m_protoCommand->buildProtoAnswer(*lastAnswer, &error))
                throw FW_Exception(error, function);
            m_lastAnswer = quv::cloned(m_protoCommand->getProtoAnswer());
            elements.step();
        }
        elements.takeInt(m_interval);
        elements.takeInt(m_timeout);
    } catch (...) {
        quv::rethrowCurrentException("DE00774", decodingFailed, function);
    }
}

NCCommand::NCCommand(const NCCommand &other)
    : m_protoCommand(quv::cloned(other.m_protoCommand.get())),
      m_lastAnswer(quv::cloned(other.m_lastAnswer.get())),
      m_interval(other.m_interval),
      m_timeout(other.m_timeout)
{}

NCCommand &NCCommand::operator=(const NCCommand &other)
{
    if (this != &other) {
        auto command = quv::cloned(other.m_protoCommand.get());
        m_lastAnswer = quv::cloned(other.m_lastAnswer.get());
        m_protoCommand = std::move(command);
        m_interval = other.m_interval;
        m_timeout = other.m_timeout;
    }
    return *this;
}

NCCommand::~NCCommand() = default;

NCCommand *NCCommand::clone() const
{
    return new NCCommand(*this);
}

QString NCCommand::command() const
{
    return m_protoCommand ? m_protoCommand->command() : QString();
}

void NCCommand::setProtoCommand(const ProtoCommand *command)
{
    if (command)
        m_protoCommand = quv::cloned(command);
}

ProtoAnswer *NCCommand::getProtoAnswer(bool *ok) const
{
    return m_protoCommand ? m_protoCommand->getProtoAnswer(ok) : absent<ProtoAnswer>(ok);
}

XmlRpcAnswer *NCCommand::getXmlRpcAnswer(bool *ok) const
{
    return m_protoCommand ? m_protoCommand->getXmlRpcAnswer(ok) : absent<XmlRpcAnswer>(ok);
}

bool NCCommand::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return m_protoCommand && m_protoCommand->setAnswer(value, async, error);
}

XmlRpc::XmlRpcValue NCCommand::xmlrpc_parameters(bool *ok) const
{
    if (m_protoCommand)
        return m_protoCommand->xmlrpc_parameters(ok);
    if (ok)
        *ok = false;
    return {};
}

XmlRpc::XmlRpcValue NCCommand::toXmlRpcValue(QString leading, bool *ok) const
{
    bool named = false;
    XmlRpc::XmlRpcValue request;
    if (m_protoCommand)
        request = ProtoCommand::buildXmlRpcValue(m_protoCommand->command(), leading, &named);
    if (ok)
        *ok = named;
    if (!named)
        return request; // numbers alone are no request
    // as the command sends them: not every one has an array of them
    const XmlRpc::XmlRpcValue parameters = quv::argumentsIn(m_protoCommand->toXmlRpcValue(QString()));
    if (parameters.size() > 0)
        request[request.size()][CMD_PARAMETERS] = parameters;
    if (m_lastAnswer)
        EncodeXmlRpcValue(request[request.size()], LAST_ANSWER, m_lastAnswer->toXmlRpcValue());
    request[request.size()] = m_interval;
    request[request.size()] = m_timeout;
    return request;
}
