// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpccodec.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QVector>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

namespace quv {
namespace {

using XmlRpc::XmlRpcValue;

bool isXmlCharacter(uint c)
{
    return c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

/// The text with U+FFFD for each character that XML 1.0 cannot carry, half surrogate pairs among them.
QString xmlText(const QString &text)
{
    const auto isPlain = [](QChar c) { return !c.isSurrogate() && isXmlCharacter(c.unicode()); };
    if (std::all_of(text.begin(), text.end(), isPlain))
        return text;
    QVector<uint> characters = text.toUcs4();
    for (uint &c : characters) {
        if (!isXmlCharacter(c))
            c = QChar::ReplacementCharacter;
    }
    return QString::fromUcs4(characters.constData(), characters.size());
}

/// The shortest text that reads back exactly. Everyday numbers have a point and no exponent, as every reader takes them.
QString doubleText(double number)
{
    if (!std::isfinite(number))
        throw CodecError(FaultInternal,
                         QStringLiteral("A double that is no finite number cannot be written"));
    const double size = std::abs(number);
    const bool everyday = size == 0 || (size >= 1e-6 && size < 1e17);
    std::array<char, 64> buffer{};
    const auto [end, error] =
        everyday ? std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::fixed)
                 : std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::scientific);
    const QString text = QString::fromLatin1(buffer.data(), static_cast<int>(end - buffer.data()));
    return everyday && !text.contains(QLatin1Char('.')) ? text + QStringLiteral(".0") : text;
}

QString dateTimeText(const std::tm &time)
{
    const auto digits = [](int number, int count) {
        return QStringLiteral("%1").arg(number, count, 10, QLatin1Char('0'));
    };
    return digits(time.tm_year + 1900, 4) + digits(time.tm_mon + 1, 2) + digits(time.tm_mday, 2) +
           QLatin1Char('T') + digits(time.tm_hour, 2) + QLatin1Char(':') + digits(time.tm_min, 2) +
           QLatin1Char(':') + digits(time.tm_sec, 2);
}

/// What QXmlStreamWriter writes of elements and texts, as UTF-8 and without its detour by a codec and a device, which took
/// most of the time of a call. Each element gets an end tag of its own: the parser of XmlRpc++ refuses <data/> and <struct/>.
class XmlStream
{
public:
    XmlStream();

    void writeStartElement(std::string_view name);
    void writeEndElement();
    void writeCharacters(const QString &text);
    void writePlain(std::string_view text) { m_document += text; } ///< in which nothing needs to be escaped
    void writeEntityReference(const QString &name);

    QByteArray document(); ///< with the ends of what is open

private:
    std::string m_document{};
    std::vector<std::string_view> m_open{};
};

XmlStream::XmlStream()
{
    constexpr std::size_t StatusReply = 8 * 1024; // the answer that is asked for most
    m_document.reserve(StatusReply);
    m_document += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
}

void XmlStream::writeStartElement(std::string_view name)
{
    m_document += '<';
    m_document += name;
    m_document += '>';
    m_open.push_back(name);
}

void XmlStream::writeEndElement()
{
    m_document += "</";
    m_document += m_open.back();
    m_document += '>';
    m_open.pop_back();
}

QByteArray XmlStream::document()
{
    while (!m_open.empty())
        writeEndElement();
    m_document += '\n';
    return QByteArray::fromStdString(m_document);
}

void XmlStream::writeCharacters(const QString &text)
{
    const std::string characters = text.toStdString();
    std::size_t begin = 0;
    for (auto at = characters.find_first_of("<>&\""); at != std::string::npos;
         at = characters.find_first_of("<>&\"", begin)) {
        m_document.append(characters, begin, at - begin);
        const char c = characters[at];
        m_document += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : "&quot;";
        begin = at + 1;
    }
    m_document.append(characters, begin, std::string::npos);
}

void XmlStream::writeEntityReference(const QString &name)
{
    m_document += '&' + name.toStdString() + ';';
}

class Writer
{
public:
    void methodCall(const QString &method, const XmlRpcValue &params);
    void methodResponse(const XmlRpcValue &value);
    void fault(const Fault &fault);

    QByteArray document() { return m_xml.document(); }

private:
    void start(std::string_view name) { m_xml.writeStartElement(name); }
    void end() { m_xml.writeEndElement(); }
    void text(const QString &text);
    void element(const char *name, const QString &content);
    void param(const XmlRpcValue &value);
    void value(const XmlRpcValue &value);
    void typedValue(const XmlRpcValue &value);
    void array(const XmlRpcValue &value);
    void structure(const XmlRpcValue &value);
    void textElement(const char *name, const std::string &content);
    void plainElement(const char *name, std::string_view content);

    XmlStream m_xml{};
    int m_nesting = 0;
};

void Writer::text(const QString &text)
{
    const QString characters = xmlText(text);
    int begin = 0;
    // A bare CR would be read as LF.
    for (int at = characters.indexOf(QLatin1Char('\r')); at >= 0;
         at = characters.indexOf(QLatin1Char('\r'), begin)) {
        m_xml.writeCharacters(characters.mid(begin, at - begin));
        m_xml.writeEntityReference(QStringLiteral("#13"));
        begin = at + 1;
    }
    m_xml.writeCharacters(characters.mid(begin));
}

void Writer::element(const char *name, const QString &content)
{
    start(name);
    text(content);
    end();
}

/// A text of a value, in whatever encoding; mostly it is one that needs no look at each character.
void Writer::textElement(const char *name, const std::string &content)
{
    const auto isPlain = [](char c) {
        return c >= ' ' && c <= '~' && c != '<' && c != '>' && c != '&' && c != '"';
    };
    if (std::all_of(content.begin(), content.end(), isPlain))
        plainElement(name, content);
    else
        element(name, DecodeXmlRpcText(content));
}

void Writer::plainElement(const char *name, std::string_view content)
{
    start(name);
    m_xml.writePlain(content);
    end();
}

void Writer::methodCall(const QString &method, const XmlRpcValue &params)
{
    start("methodCall");
    element("methodName", method);
    start("params");
    if (params.getType() == XmlRpcValue::TypeArray) {
        for (int index = 0; index < params.size(); ++index)
            param(params[index]);
    } else if (params.valid()) {
        param(params);
    }
}

void Writer::methodResponse(const XmlRpcValue &value)
{
    start("methodResponse");
    start("params");
    param(value);
}

void Writer::fault(const Fault &fault)
{
    XmlRpcValue members;
    members["faultCode"] = fault.code;
    members["faultString"] = EncodeXmlRpcText(fault.text);
    start("methodResponse");
    start("fault");
    value(members);
}

void Writer::param(const XmlRpcValue &parameter)
{
    start("param");
    value(parameter);
    end();
}

void Writer::value(const XmlRpcValue &value)
{
    start("value");
    typedValue(value);
    end();
}

void Writer::typedValue(const XmlRpcValue &value)
{
    switch (value.getType()) {
    case XmlRpcValue::TypeInvalid:
        return element("i4", QStringLiteral("0"));
    case XmlRpcValue::TypeBoolean:
        return plainElement("boolean", static_cast<const bool &>(value) ? "1" : "0");
    case XmlRpcValue::TypeInt:
        return plainElement("i4", std::to_string(static_cast<const int &>(value)));
    case XmlRpcValue::TypeDouble:
        return element("double", doubleText(static_cast<const double &>(value)));
    case XmlRpcValue::TypeString:
        return textElement("string", static_cast<const std::string &>(value));
    case XmlRpcValue::TypeDateTime:
        return element("dateTime.iso8601", dateTimeText(static_cast<const std::tm &>(value)));
    case XmlRpcValue::TypeBase64: {
        const auto &bytes = static_cast<const XmlRpcValue::BinaryData &>(value);
        const QByteArray raw = QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size()));
        return element("base64", QString::fromLatin1(raw.toBase64()));
    }
    case XmlRpcValue::TypeArray:
    case XmlRpcValue::TypeStruct:
        break;
    }
    if (++m_nesting > XmlRpcLimits().nesting)
        throw CodecError(FaultInternal, QStringLiteral("A value is nested too deeply to be written"));
    if (value.getType() == XmlRpcValue::TypeArray)
        array(value);
    else
        structure(value);
    --m_nesting;
}

void Writer::array(const XmlRpcValue &elements)
{
    start("array");
    start("data");
    for (int index = 0; index < elements.size(); ++index)
        value(elements[index]);
    end();
    end();
}

void Writer::structure(const XmlRpcValue &members)
{
    start("struct");
    for (const auto &[name, member] : members) {
        start("member");
        textElement("name", name);
        value(member);
        end();
    }
    end();
}

} // namespace

QByteArray writeMethodCall(const QString &method, const XmlRpc::XmlRpcValue &params)
{
    Writer writer;
    writer.methodCall(method, params);
    return writer.document();
}

QByteArray writeMethodResponse(const XmlRpc::XmlRpcValue &value)
{
    Writer writer;
    writer.methodResponse(value);
    return writer.document();
}

QByteArray writeFault(const Fault &fault)
{
    Writer writer;
    writer.fault(fault);
    return writer.document();
}

} // namespace quv
