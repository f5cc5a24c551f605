// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpccodec.h"

#include "excerpt.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QDate>
#include <QtCore/QRegularExpression>
#include <QtCore/QTextCodec>
#include <QtCore/QTime>
#include <QtCore/QXmlStreamReader>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <ctime>
#include <iterator>

namespace quv {
namespace {

using XmlRpc::XmlRpcValue;

/// No XML-RPC tag is anywhere near as long; comparing thousands of attributes with each other takes minutes.
constexpr int MaxTagLength = 1024;

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n') ||
           c == QLatin1Char('\r');
}

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return isBlank(c); });
}

/// The text without XML's white space (QString::trimmed would take Unicode's as well) at its ends.
QByteArray trimmed(const QString &text)
{
    int begin = 0;
    int end = text.size();
    while (begin < end && isBlank(text.at(begin)))
        ++begin;
    while (begin < end && isBlank(text.at(end - 1)))
        --end;
    return text.mid(begin, end - begin).toUtf8();
}

[[noreturn]] void refuse(const QString &text)
{
    throw CodecError(FaultNotXmlRpc, text);
}

[[noreturn]] void refuseValue(const char *what, const QByteArray &text)
{
    refuse(QStringLiteral("%1: '%2'").arg(QLatin1String(what), excerpt(QString::fromUtf8(text))));
}

// ---- from bytes to text ----

QString decodeBy(const QTextCodec &codec, const QByteArray &document)
{
    QTextCodec::ConverterState state;
    QString text = codec.toUnicode(document.constData(), document.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        throw CodecError(FaultNotWellFormed,
                         QStringLiteral("The document is not encoded in %1 as it declares")
                             .arg(QString::fromLatin1(codec.name())));
    }
    return text;
}

/// The name of the encoding in the XML declaration; empty without one.
QByteArray declaredEncoding(const QByteArray &document)
{
    static const QRegularExpression declaration(
        QStringLiteral(R"(^<\?xml\s[^>]*?\sencoding\s*=\s*["']([A-Za-z0-9._-]+)["'])"));
    constexpr int declarationLength = 256;
    return declaration.match(QString::fromLatin1(document.left(declarationLength))).captured(1).toLatin1();
}

QString decodeDocument(QByteArray document)
{
    if (document.startsWith("\xEF\xBB\xBF"))
        document.remove(0, 3);
    else if (const QTextCodec *marked = QTextCodec::codecForUtfText(document, nullptr))
        return decodeBy(*marked, document);

    const QByteArray encoding = declaredEncoding(document);
    if (encoding.isEmpty() || encoding.compare("utf-8", Qt::CaseInsensitive) == 0)
        return DecodeXmlRpcText(document.toStdString());
    if (const QTextCodec *declared = QTextCodec::codecForName(encoding))
        return decodeBy(*declared, document);
    throw CodecError(
        FaultNotWellFormed,
        QStringLiteral("The encoding '%1' is not known").arg(excerpt(QString::fromLatin1(encoding))));
}

// ---- what must not reach the XML reader ----

/// Where the tag that begins at \a begin ends: its '>' outside of quotes.
int endOfTag(const QString &text, int begin)
{
    QChar quote;
    for (int at = begin; at < text.size(); ++at) {
        const QChar c = text.at(at);
        if (at - begin > MaxTagLength)
            throw CodecError(FaultNotWellFormed, QStringLiteral("A tag is too long"));
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if (c == QLatin1Char('>')) {
            return at + 1;
        }
    }
    return text.size();
}

int endOf(const QString &text, const QString &terminator, int from)
{
    const int at = text.indexOf(terminator, from);
    return at < 0 ? text.size() : at + terminator.size();
}

/// Refuses declarations, which can define entities that grow without bound, and tags of absurd length.
void checkMarkup(const QString &text)
{
    for (int at = text.indexOf(QLatin1Char('<')); at >= 0; at = text.indexOf(QLatin1Char('<'), at)) {
        const QStringRef rest = text.midRef(at);
        if (rest.startsWith(QLatin1String("<!--")))
            at = endOf(text, QStringLiteral("-->"), at + 4);
        else if (rest.startsWith(QLatin1String("<![CDATA[")))
            at = endOf(text, QStringLiteral("]]>"), at + 9);
        else if (rest.startsWith(QLatin1String("<!")))
            throw CodecError(FaultNotWellFormed,
                             QStringLiteral("A document type declaration is not allowed"));
        else
            at = endOfTag(text, at);
    }
}

// ---- scalars ----

/// std::from_chars takes no plus sign; a second sign after it must not slip through.
QByteArray withoutPlus(const QByteArray &number)
{
    const bool plus = number.size() > 1 && number.at(0) == '+' && number.at(1) != '-';
    return plus ? number.mid(1) : number;
}

XmlRpcValue intValue(const QString &text)
{
    const QByteArray trimmedText = trimmed(text);
    const QByteArray digits = withoutPlus(trimmedText);
    int number = 0;
    const auto result = std::from_chars(digits.begin(), digits.end(), number);
    if (result.ec == std::errc::result_out_of_range)
        refuseValue("An integer is out of the range of 32 bits", trimmedText);
    if (result.ec != std::errc() || result.ptr != digits.end())
        refuseValue("Not an integer", trimmedText);
    return number;
}

XmlRpcValue boolValue(const QString &text)
{
    const QByteArray digit = trimmed(text);
    if (digit != "0" && digit != "1")
        refuseValue("Not a boolean (0 or 1)", digit);
    return digit == "1";
}

XmlRpcValue doubleValue(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A[+-]?([0-9]+(\.[0-9]*)?|\.[0-9]+)([eE][+-]?[0-9]+)?\z)"));
    const QByteArray trimmedText = trimmed(text);
    if (!form.match(QString::fromUtf8(trimmedText)).hasMatch())
        refuseValue("Not a double", trimmedText);

    const QByteArray digits = withoutPlus(trimmedText);
    double number = 0;
    const auto result = std::from_chars(digits.begin(), digits.end(), number);
    if (result.ec != std::errc() || result.ptr != digits.end() || !std::isfinite(number))
        refuseValue("A double is out of range", trimmedText);
    return number;
}

XmlRpcValue stringValue(const QString &text)
{
    return EncodeXmlRpcText(text);
}

XmlRpcValue binaryValue(const QString &text)
{
    QString letters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(letters), [](QChar c) { return !isBlank(c); });
    const QByteArray encoded = letters.toUtf8();
    QByteArray decoded = QByteArray::fromBase64(encoded);
    // Qt skips what it does not know; only the one canonical form survives the way back.
    if (decoded.toBase64() != encoded)
        refuseValue("Not base64", encoded);
    return {decoded.data(), decoded.size()};
}

XmlRpcValue dateTimeValue(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A([0-9]{4})([0-9]{2})([0-9]{2})T([0-9]{2}):([0-9]{2}):([0-9]{2})\z)"));
    const QByteArray trimmedText = trimmed(text);
    const QRegularExpressionMatch match = form.match(QString::fromUtf8(trimmedText));
    const auto number = [&match](int group) { return match.capturedRef(group).toInt(); };
    const QDate date(number(1), number(2), number(3));
    const QTime time(number(4), number(5), number(6));
    if (!match.hasMatch() || !date.isValid() || !time.isValid())
        refuseValue("Not a date and time (YYYYMMDDTHH:MM:SS)", trimmedText);

    std::tm fields{};
    fields.tm_year = date.year() - 1900;
    fields.tm_mon = date.month() - 1;
    fields.tm_mday = date.day();
    fields.tm_wday = date.dayOfWeek() % 7;
    fields.tm_yday = date.dayOfYear() - 1;
    fields.tm_hour = time.hour();
    fields.tm_min = time.minute();
    fields.tm_sec = time.second();
    fields.tm_isdst = -1;
    return &fields;
}

struct Scalar
{
    const char *type;
    XmlRpcValue (*read)(const QString &text);
};

constexpr Scalar Scalars[] = {
    {"i4", intValue},
    {"int", intValue},
    {"boolean", boolValue},
    {"double", doubleValue},
    {"string", stringValue},
    {"base64", binaryValue},
    {"dateTime.iso8601", dateTimeValue},
};

// ---- documents ----

class Reader
{
public:
    Reader(const QByteArray &document, const XmlRpcLimits &limits);

    MethodCall methodCall();
    MethodResponse methodResponse();

private:
    QXmlStreamReader::TokenType next();
    [[noreturn]] void refuseElement(const char *expected) const;

    bool nextChild();
    void expectChild(const char *name);
    void expectEnd();
    QString text();

    void closeDocument();
    void params(XmlRpcValue &into);
    void value(XmlRpcValue &into);
    void typedValue(XmlRpcValue &into);
    void array(XmlRpcValue &into);
    void structure(XmlRpcValue &into);
    Fault fault();

    QXmlStreamReader m_xml{};
    int m_nesting = 0;
    int m_maxNesting = 0;
    int m_values = 0;
    int m_maxValues = 0;
};

Reader::Reader(const QByteArray &document, const XmlRpcLimits &limits)
    : m_maxNesting(limits.nesting),
      m_maxValues(limits.values)
{
    if (document.size() > limits.documentSize) {
        throw CodecError(FaultNotWellFormed,
                         QStringLiteral("The document is larger than %1 bytes").arg(limits.documentSize));
    }
    const QString text = decodeDocument(document);
    checkMarkup(text);
    m_xml.addData(text);
    m_xml.setNamespaceProcessing(false);
}

/// The next token that matters: a start, an end, characters, or the document's end.
QXmlStreamReader::TokenType Reader::next()
{
    for (;;) {
        switch (const auto token = m_xml.readNext()) {
        case QXmlStreamReader::Invalid:
            throw CodecError(
                FaultNotWellFormed,
                QStringLiteral("Line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString().trimmed()));
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::EntityReference:
            throw CodecError(FaultNotWellFormed, QStringLiteral("Entities are not allowed"));
        case QXmlStreamReader::StartElement:
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EndDocument:
            return token;
        default:
            break;
        }
    }
}

void Reader::refuseElement(const char *expected) const
{
    const QString name = m_xml.qualifiedName().toString();
    const QString found = m_xml.isEndElement()     ? QStringLiteral("the end of '%1'").arg(excerpt(name))
                          : m_xml.isStartElement() ? QStringLiteral("'%1'").arg(excerpt(name))
                                                   : QStringLiteral("text");
    refuse(QStringLiteral("Line %1: expected %2, found %3")
               .arg(QString::number(m_xml.lineNumber()), QLatin1String(expected), found));
}

/// To the next child's start (true) or to the end of the element (false); only white space may stand between.
bool Reader::nextChild()
{
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::Characters:
            if (!isBlank(m_xml.text().toString()))
                refuseElement("an element");
            break;
        default:
            return false;
        }
    }
}

void Reader::expectChild(const char *name)
{
    if (!nextChild() || m_xml.qualifiedName() != QLatin1String(name))
        refuseElement(name);
}

void Reader::expectEnd()
{
    if (nextChild())
        refuseElement("an end");
}

/// The text of an element that has no children, up to and with its end.
QString Reader::text()
{
    QString text;
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::Characters:
            text += m_xml.text();
            break;
        case QXmlStreamReader::StartElement:
            refuseElement("text");
        default:
            return text;
        }
    }
}

/// After the root's end the XML reader itself refuses all but comments and white space.
void Reader::closeDocument()
{
    while (next() != QXmlStreamReader::EndDocument) {
    }
}

MethodCall Reader::methodCall()
{
    MethodCall call;
    call.params.setSize(0);
    expectChild("methodCall");
    expectChild("methodName");
    call.method = QString::fromUtf8(trimmed(text()));
    if (call.method.isEmpty())
        refuse(QStringLiteral("The name of the method is empty"));
    if (nextChild()) {
        if (m_xml.qualifiedName() != QLatin1String("params"))
            refuseElement("params");
        params(call.params);
        expectEnd();
    }
    closeDocument();
    return call;
}

MethodResponse Reader::methodResponse()
{
    MethodResponse response;
    expectChild("methodResponse");
    if (nextChild() && m_xml.qualifiedName() == QLatin1String("fault")) {
        response.fault = fault();
    } else {
        if (m_xml.qualifiedName() != QLatin1String("params") || !m_xml.isStartElement())
            refuseElement("params or fault");
        XmlRpcValue values;
        values.setSize(0);
        params(values);
        if (values.size() != 1)
            refuse(QStringLiteral("A response has one value, not %1").arg(values.size()));
        response.value = values[0];
    }
    expectEnd();
    closeDocument();
    return response;
}

void Reader::params(XmlRpcValue &into)
{
    for (int count = 0; nextChild(); ++count) {
        if (m_xml.qualifiedName() != QLatin1String("param"))
            refuseElement("param");
        expectChild("value");
        into.setSize(count + 1);
        value(into[count]);
        expectEnd();
    }
}

/// The value whose start has just been read, up to and with its end. \a into is empty.
void Reader::value(XmlRpcValue &into)
{
    if (++m_values > m_maxValues)
        refuse(QStringLiteral("More than %1 values").arg(m_maxValues));
    QString text;
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::Characters:
            text += m_xml.text();
            break;
        case QXmlStreamReader::StartElement:
            if (!isBlank(text))
                refuseElement("the end of 'value'");
            typedValue(into);
            expectEnd();
            return;
        default:
            into = stringValue(text);
            return;
        }
    }
}

void Reader::typedValue(XmlRpcValue &into)
{
    const QStringRef type = m_xml.qualifiedName();
    for (const Scalar &scalar : Scalars) {
        if (type == QLatin1String(scalar.type)) {
            into = scalar.read(text());
            return;
        }
    }
    const bool isArray = type == QLatin1String("array");
    if (!isArray && type != QLatin1String("struct"))
        refuse(QStringLiteral("The type '%1' is not supported").arg(excerpt(type.toString())));
    if (++m_nesting > m_maxNesting)
        refuse(QStringLiteral("More than %1 arrays and structs inside each other").arg(m_maxNesting));
    if (isArray)
        array(into);
    else
        structure(into);
    --m_nesting;
}

void Reader::array(XmlRpcValue &into)
{
    into.setSize(0);
    expectChild("data");
    for (int count = 0; nextChild(); ++count) {
        if (m_xml.qualifiedName() != QLatin1String("value"))
            refuseElement("value");
        into.setSize(count + 1);
        value(into[count]);
    }
    expectEnd();
}

void Reader::structure(XmlRpcValue &into)
{
    into.begin(); // makes it a struct, also without members
    while (nextChild()) {
        if (m_xml.qualifiedName() != QLatin1String("member"))
            refuseElement("member");
        expectChild("name");
        const QString name = text();
        const std::string key = EncodeXmlRpcText(name);
        if (into.hasMember(key))
            refuse(QStringLiteral("The member '%1' stands twice").arg(excerpt(name)));
        expectChild("value");
        value(into[key]);
        expectEnd();
    }
}

Fault Reader::fault()
{
    XmlRpcValue members;
    expectChild("value");
    value(members);
    expectEnd();
    Fault fault;
    if (!DecodeXmlRpcValue(members, QStringLiteral("faultCode"), fault.code) ||
        !DecodeXmlRpcValue(members, QStringLiteral("faultString"), fault.text))
        refuse(QStringLiteral("A fault without its code and text"));
    return fault;
}

} // namespace

MethodCall parseMethodCall(const QByteArray &document, const XmlRpcLimits &limits)
{
    return Reader(document, limits).methodCall();
}

MethodResponse parseMethodResponse(const QByteArray &document, const XmlRpcLimits &limits)
{
    return Reader(document, limits).methodResponse();
}

} // namespace quv
