// SPDX-License-Identifier: LGPL-3.0-or-later
#include "trace.h"

#include "excerpt.h"
#include "jsonvalue.h"
#include "machines/refusal.h"
#include "requests/request.h"
#include "unseencharacters.h"

#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <utility>

namespace quv {
namespace {

using XmlRpc::XmlRpcValue;

/// The command that a call asks for; empty when it is none of the catalogue.
QString commandOf(const MethodCall &call)
{
    try {
        const QString name = Request(call.params).name;
        return ProtoCommandList::existsCommand(name) ? name : QString();
    } catch (const CallRefusal &) {
        return {};
    }
}

/// The codes of the errors in an envelope.
OrderedJson errorCodes(const XmlRpcValue &envelope)
{
    OrderedJson codes = OrderedJson::array();
    const XmlRpcValue *errors = FindXmlRpcMember(envelope, "errors");
    for (int i = 0; errors && i < errors->size(); ++i) {
        QString code;
        if (DecodeXmlRpcValue(*FindXmlRpcElement(*errors, i), QStringLiteral("code"), code))
            codes.push_back(toJson(excerpt(code)));
    }
    return codes;
}

OrderedJson elementJson(int number)
{
    return number;
}

OrderedJson elementJson(const QString &token)
{
    return toJson(excerpt(token));
}

/// What went over the wire.
template <class List>
OrderedJson told(const List &list)
{
    OrderedJson array = OrderedJson::array();
    for (const auto &element : list)
        array.push_back(elementJson(element));
    return array;
}

std::string inWords(const OrderedJson &value)
{
    if (value.empty() || value == "")
        return "-";
    if (!value.is_array())
        return value.is_string() ? value.get<std::string>() : writeJson(value);
    std::string words;
    for (const OrderedJson &element : value)
        words += (words.empty() ? "" : " ") + inWords(element);
    return words;
}

} // namespace

/// What is told, in the order of its members, and since when it goes on.
struct Trace::Line
{
    OrderedJson members{};
    QElapsedTimer timer{};
};

/// A firmware whose exchanges are told.
class Trace::WatchedFirmware : public Firmware
{
public:
    WatchedFirmware(std::unique_ptr<Firmware> firmware, const QString &machine, Trace &trace)
        : m_firmware(std::move(firmware)),
          m_machine(machine),
          m_trace(trace)
    {}

    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override
    {
        Line line = m_trace.begin("exchange");
        line.members["machine"] = toJson(m_machine);
        line.members["code"] = toJson(code);
        line.members["module"] = module;
        line.members["out"] = told(parameters);
        try {
            FirmwareReply reply = m_firmware->execute(code, module, parameters);
            line.members[reply.refused ? "refused" : "in"] = told(reply.tokens);
            m_trace.end(line);
            return reply;
        } catch (...) {
            line.members["failed"] = true;
            m_trace.end(line);
            throw;
        }
    }

    double speed() const override { return m_firmware->speed(); }
    void canisterFilled(int canisterID, double quantity) override
    {
        m_firmware->canisterFilled(canisterID, quantity);
    }

private:
    std::unique_ptr<Firmware> m_firmware;
    const QString m_machine;
    Trace &m_trace;
};

Trace::Trace(Form form, Write write) : m_form(form), m_write(std::move(write)) {}

Trace::Line Trace::begin(const char *what) const
{
    Line line;
    line.members["time"] = toJson(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    line.members["what"] = what;
    line.timer.start();
    return line;
}

void Trace::end(const Line &line)
{
    OrderedJson members = line.members;
    members["ms"] = line.timer.elapsed();
    std::string text;
    if (m_form == Form::Json) {
        text = writeJson(members);
    } else {
        for (const auto &[name, value] : members.items()) {
            // time and kind need no name
            const bool isNamed = name != "time" && name != "what";
            text += (text.empty() ? "" : "  ") + (isNamed ? name + " " : std::string()) + inWords(value);
        }
        text = withoutUnseen(QString::fromStdString(text), [](uint) {
                   return QChar(QChar::ReplacementCharacter);
               }).toStdString();
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_write(text + '\n');
}

XmlRpcValue Trace::call(const MethodCall &call, const std::function<XmlRpcValue()> &handle)
{
    Line line = begin("call");
    line.members["method"] = toJson(excerpt(call.method));
    line.members["command"] = toJson(commandOf(call));
    try {
        XmlRpcValue envelope = handle();
        int retCode = 0;
        DecodeXmlRpcValue(envelope, XmlRpcAnswer::retCode_TAG, retCode);
        line.members["ret_code"] = retCode;
        line.members["errors"] = errorCodes(envelope);
        end(line);
        return envelope;
    } catch (const FaultException &error) {
        line.members["fault"] = error.fault().code;
        end(line);
        throw;
    } catch (...) {
        line.members["failed"] = true;
        end(line);
        throw;
    }
}

std::unique_ptr<Firmware> Trace::watching(std::unique_ptr<Firmware> firmware, const QString &machine)
{
    return std::make_unique<WatchedFirmware>(std::move(firmware), machine, *this);
}

} // namespace quv
