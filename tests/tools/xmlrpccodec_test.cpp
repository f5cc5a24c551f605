// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpccodec.h"

#include <QtCore/QList>

#include <gmock/gmock.h>

#include <cmath>
#include <ctime>
#include <limits>
#include <string>
#include <vector>

namespace {

using namespace quv;
using XmlRpc::XmlRpcValue;

QByteArray callOf(const QByteArray &value)
{
    return "<?xml version=\"1.0\"?><methodCall><methodName>EXEC_B</methodName><params><param><value>" +
           value + "</value></param></params></methodCall>";
}

QByteArray responseOf(const QByteArray &value)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><methodResponse><params><param><value>" + value +
           "</value></param></params></methodResponse>\n";
}

/// The only parameter of a call that holds \a value.
XmlRpcValue read(const QByteArray &value)
{
    const MethodCall call = parseMethodCall(callOf(value));
    EXPECT_EQ(call.params.size(), 1);
    return call.params[0];
}

std::string readText(const QByteArray &value)
{
    const XmlRpcValue text = read(value);
    EXPECT_EQ(text.getType(), XmlRpcValue::TypeString);
    return static_cast<const std::string &>(text);
}

int readInt(const QByteArray &value)
{
    const XmlRpcValue number = read(value);
    EXPECT_EQ(number.getType(), XmlRpcValue::TypeInt);
    return static_cast<const int &>(number);
}

double readDouble(const QByteArray &value)
{
    const XmlRpcValue number = read(value);
    EXPECT_EQ(number.getType(), XmlRpcValue::TypeDouble);
    return static_cast<const double &>(number);
}

struct Refusal
{
    int code = 0;
    std::string text{};
};

Refusal refusalOfDocument(const QByteArray &document)
{
    try {
        parseMethodCall(document);
    } catch (const CodecError &error) {
        return {error.faultCode(), error.what()};
    }
    return {};
}

Refusal refusalOf(const QByteArray &value)
{
    return refusalOfDocument(callOf(value));
}

std::string written(const XmlRpcValue &value)
{
    const QByteArray document = writeMethodResponse(value);
    const QByteArray head = responseOf("#").split('#').at(0);
    const QByteArray tail = responseOf("#").split('#').at(1);
    EXPECT_TRUE(document.startsWith(head)) << document.constData();
    EXPECT_TRUE(document.endsWith(tail)) << document.constData();
    return document.mid(head.size(), document.size() - head.size() - tail.size()).toStdString();
}

XmlRpcValue wayBack(const XmlRpcValue &value)
{
    const MethodResponse response = parseMethodResponse(writeMethodResponse(value));
    EXPECT_FALSE(response.fault.has_value());
    return response.value;
}

QByteArray nestedArrays(int depth)
{
    return QByteArray("<array><data><value>").repeated(depth - 1) + "<array><data/></array>" +
           QByteArray("</value></data></array>").repeated(depth - 1);
}

XmlRpcValue nestedValue(int depth)
{
    XmlRpcValue value;
    value.setSize(0);
    for (int level = 1; level < depth; ++level) {
        XmlRpcValue outer;
        outer.setSize(1);
        outer[0] = value;
        value = outer;
    }
    return value;
}

XmlRpcValue emptyStruct()
{
    int offset = 0;
    return XmlRpcValue("<value><struct></struct></value>", &offset);
}

// ---- documents ----

TEST(XmlRpcCodec, readsACallWithParameters)
{
    const MethodCall call = parseMethodCall("<?xml version='1.0'?>\n<!-- of a client -->\n<methodCall>\n"
                                            "  <methodName> EXEC_NB </methodName>\n  <params>\n"
                                            "    <param><value><string>RESET</string></value></param>\n"
                                            "    <param>\n <value> <i4>7</i4> </value>\n </param>\n"
                                            "  </params>\n</methodCall>\n\n");
    EXPECT_EQ(call.method, QStringLiteral("EXEC_NB"));
    ASSERT_EQ(call.params.getType(), XmlRpcValue::TypeArray);
    ASSERT_EQ(call.params.size(), 2);
    EXPECT_EQ(static_cast<const std::string &>(std::as_const(call.params)[0]), "RESET");
    EXPECT_EQ(static_cast<const int &>(std::as_const(call.params)[1]), 7);
}

TEST(XmlRpcCodec, readsACallWithoutParameters)
{
    for (const char *document :
         {"<methodCall><methodName>A</methodName></methodCall>",
          "<methodCall><methodName>A</methodName><params/></methodCall>",
          "<methodCall><methodName>A</methodName><params>\n</params>\n</methodCall>"}) {
        const MethodCall call = parseMethodCall(document);
        EXPECT_EQ(call.method, QStringLiteral("A")) << document;
        EXPECT_EQ(call.params.getType(), XmlRpcValue::TypeArray) << document;
        EXPECT_EQ(call.params.size(), 0) << document;
    }
}

TEST(XmlRpcCodec, readsAResponseAndAFault)
{
    const MethodResponse response = parseMethodResponse(responseOf("<boolean>1</boolean>"));
    EXPECT_FALSE(response.fault.has_value());
    EXPECT_EQ(response.value.getType(), XmlRpcValue::TypeBoolean);

    const MethodResponse refused =
        parseMethodResponse("<methodResponse><fault><value><struct>"
                            "<member><name>faultCode</name><value><int>-32600</int></value></member>"
                            "<member><name>faultString</name><value>perch\xC3\xA9 no</value></member>"
                            "</struct></value></fault></methodResponse>");
    ASSERT_TRUE(refused.fault.has_value());
    EXPECT_EQ(refused.fault->code, -32600);
    EXPECT_EQ(refused.fault->text, QString::fromUtf8("perch\xC3\xA9 no"));
    EXPECT_FALSE(refused.value.valid());
}

TEST(XmlRpcCodec, refusesResponsesThatHoldNoSingleValue)
{
    for (const char *document :
         {"<methodResponse></methodResponse>", "<methodResponse><params/></methodResponse>",
          "<methodResponse><params><param><value>1</value></param><param><value>2</value>"
          "</param></params></methodResponse>",
          "<methodResponse><fault><value>no</value></fault></methodResponse>",
          "<methodResponse><fault><value><struct><member><name>faultCode</name>"
          "<value>1</value></member></struct></value></fault></methodResponse>",
          "<methodResponse><params><param><value>1</value></param></params><fault/>"
          "</methodResponse>"})
        EXPECT_THROW(parseMethodResponse(document), CodecError) << document;
}

TEST(XmlRpcCodec, writesACall)
{
    XmlRpcValue params;
    params[0] = "TINT";
    params[1] = 5;
    EXPECT_EQ(writeMethodCall(QStringLiteral("A<B"), params).toStdString(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><methodCall><methodName>A&lt;B</methodName><params>"
              "<param><value><string>TINT</string></value></param><param><value><i4>5</i4></value></param>"
              "</params></methodCall>\n");
    EXPECT_EQ(writeMethodCall(QStringLiteral("A"), XmlRpcValue()).toStdString(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><methodCall><methodName>A</methodName>"
              "<params></params></methodCall>\n");
    EXPECT_EQ(writeMethodCall(QStringLiteral("A"), XmlRpcValue(true)).toStdString(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><methodCall><methodName>A</methodName><params>"
              "<param><value><boolean>1</boolean></value></param></params></methodCall>\n");
}

TEST(XmlRpcCodec, writesEmptyArraysAndStructsWithEndTags)
{
    XmlRpcValue array;
    array.setSize(0);
    EXPECT_EQ(written(array), "<array><data></data></array>");
    EXPECT_EQ(written(emptyStruct()), "<struct></struct>");
    EXPECT_EQ(written(XmlRpcValue("")), "<string></string>");
}

TEST(XmlRpcCodec, XmlRpcppReadsWhatIsWritten)
{
    XmlRpcValue value;
    value["errors"].setSize(0);
    value["nothing"] = emptyStruct();
    value["info"] = "";
    value["list"][0] = "a<b";
    value["list"][1] = emptyStruct();
    value["list"][2] = 12.5;
    value["list"][3] = true;
    int offset = 0;
    XmlRpcValue read;
    ASSERT_TRUE(read.fromXml("<value>" + written(value) + "</value>", &offset));
    EXPECT_EQ(read.toXml(), value.toXml());
}

TEST(XmlRpcCodec, writesAFault)
{
    EXPECT_EQ(writeFault({-32700, QStringLiteral("no <XML>")}).toStdString(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?><methodResponse><fault><value><struct>"
              "<member><name>faultCode</name><value><i4>-32700</i4></value></member>"
              "<member><name>faultString</name><value><string>no &lt;XML&gt;</string></value></member>"
              "</struct></value></fault></methodResponse>\n");
}

// ---- reading values ----

TEST(XmlRpcCodec, readsWholeNumbers)
{
    EXPECT_EQ(readInt("<i4>0</i4>"), 0);
    EXPECT_EQ(readInt("<int>-17</int>"), -17);
    EXPECT_EQ(readInt("<int>+42</int>"), 42);
    EXPECT_EQ(readInt("<int> \t\r\n007\n</int>"), 7);
    EXPECT_EQ(readInt("<i4>2147483647</i4>"), std::numeric_limits<int>::max());
    EXPECT_EQ(readInt("<i4>-2147483648</i4>"), std::numeric_limits<int>::min());
}

TEST(XmlRpcCodec, refusesWhatIsNoWholeNumber)
{
    for (const char *text : {"", " ", "12abc", "1 2", "1.0", "1e3", "0x10", "+-5", "-+5", "--5", "+", "-",
                             "\u00A05", "\xD9\xA3", "true", "5<!-- --> 5"}) {
        const Refusal refusal = refusalOf(QByteArray("<i4>") + text + "</i4>");
        EXPECT_EQ(refusal.code, FaultNotXmlRpc) << text;
        EXPECT_THAT(refusal.text, testing::HasSubstr("Not an integer: '")) << text;
    }
    for (const char *text :
         {"2147483648", "-2147483649", "4294967301", "+2147483648", "99999999999999999999999"}) {
        EXPECT_EQ(refusalOf(QByteArray("<int>") + text + "</int>").code, FaultNotXmlRpc) << text;
        EXPECT_THAT(refusalOf(QByteArray("<int>") + text + "</int>").text,
                    testing::HasSubstr("out of the range of 32 bits: '"))
            << text;
    }
}

TEST(XmlRpcCodec, readsBooleans)
{
    const XmlRpcValue yes = read("<boolean>1</boolean>");
    const XmlRpcValue no = read("<boolean>\n0 </boolean>");
    ASSERT_EQ(yes.getType(), XmlRpcValue::TypeBoolean);
    ASSERT_EQ(no.getType(), XmlRpcValue::TypeBoolean);
    EXPECT_TRUE(static_cast<const bool &>(yes));
    EXPECT_FALSE(static_cast<const bool &>(no));
    for (const char *text : {"", "2", "-1", "01", "true", "false", "1 0"})
        EXPECT_EQ(refusalOf(QByteArray("<boolean>") + text + "</boolean>").code, FaultNotXmlRpc) << text;
}

TEST(XmlRpcCodec, readsDoublesToTheLastDigit)
{
    EXPECT_EQ(readDouble("<double>0.1</double>"), 0.1);
    EXPECT_EQ(readDouble("<double> -2.5 </double>"), -2.5);
    EXPECT_EQ(readDouble("<double>+3</double>"), 3.0);
    EXPECT_EQ(readDouble("<double>.5</double>"), 0.5);
    EXPECT_EQ(readDouble("<double>7.</double>"), 7.0);
    EXPECT_EQ(readDouble("<double>1e-05</double>"), 0.00001);
    EXPECT_EQ(readDouble("<double>1.7976931348623157E+308</double>"), std::numeric_limits<double>::max());
    EXPECT_EQ(readDouble("<double>5e-324</double>"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(readDouble("<double>3.141592653589793238462643383279</double>"), 3.141592653589793);
    EXPECT_TRUE(std::signbit(readDouble("<double>-0.0</double>")));
}

TEST(XmlRpcCodec, refusesWhatIsNoDouble)
{
    for (const char *text : {"", ".", "nan", "inf", "-inf", "infinity", "0x1p3", "1,5", "1.5x", "1e", "+-1",
                             "--1", "1 2", "1e999", "-1e999", "1.2.3"})
        EXPECT_EQ(refusalOf(QByteArray("<double>") + text + "</double>").code, FaultNotXmlRpc) << text;
}

TEST(XmlRpcCodec, readsTextsWithTheirWhiteSpace)
{
    EXPECT_EQ(readText("<string> a \n b\t</string>"), " a \n b\t");
    EXPECT_EQ(readText(" a \n b\t"), " a \n b\t");
    EXPECT_EQ(readText("<string></string>"), "");
    EXPECT_EQ(readText("<string/>"), "");
    EXPECT_EQ(readText(""), "");
    EXPECT_EQ(readText("  "), "  ");
    EXPECT_EQ(readText("12"), "12");
    EXPECT_EQ(readText("&lt;a&gt;&amp;&quot;&apos;"), "<a>&\"'");
    EXPECT_EQ(readText("<![CDATA[<i4>1</i4> & < b]]>"), "<i4>1</i4> & < b");
    EXPECT_EQ(readText("a<!-- <b> -->c"), "ac");
    EXPECT_EQ(readText("a&#13;&#10;b"), "a\r\nb");
    EXPECT_EQ(readText("&#x1F3A8;"), "\xF0\x9F\x8E\xA8");
}

TEST(XmlRpcCodec, readsBinary)
{
    const XmlRpcValue value = read("<base64>\n AAH/\n gA==\r\n</base64>");
    ASSERT_EQ(value.getType(), XmlRpcValue::TypeBase64);
    EXPECT_EQ(static_cast<const XmlRpcValue::BinaryData &>(value),
              (std::vector<char>{'\x00', '\x01', '\xFF', '\x80'}));
    const XmlRpcValue empty = read("<base64/>");
    ASSERT_EQ(empty.getType(), XmlRpcValue::TypeBase64);
    EXPECT_EQ(empty.size(), 0);
    for (const char *text :
         {"A", "AA", "AAA", "AA=", "AAAA=", "=AAA", "AA==AAAA", "AB==", "AA-_", "AA*A", "\u00E9AAA"})
        EXPECT_EQ(refusalOf(QByteArray("<base64>") + text + "</base64>").code, FaultNotXmlRpc) << text;
}

TEST(XmlRpcCodec, readsDateAndTime)
{
    const XmlRpcValue value = read("<dateTime.iso8601>20240229T23:59:58</dateTime.iso8601>");
    ASSERT_EQ(value.getType(), XmlRpcValue::TypeDateTime);
    const std::tm &time = static_cast<const std::tm &>(value);
    EXPECT_EQ(time.tm_year, 124);
    EXPECT_EQ(time.tm_mon, 1);
    EXPECT_EQ(time.tm_mday, 29);
    EXPECT_EQ(time.tm_hour, 23);
    EXPECT_EQ(time.tm_min, 59);
    EXPECT_EQ(time.tm_sec, 58);
    EXPECT_EQ(time.tm_wday, 4);
    EXPECT_EQ(time.tm_yday, 59);
    for (const char *text :
         {"", "20240229", "20230229T00:00:00", "20241301T00:00:00", "20240101T24:00:00", "20240101T00:60:00",
          "2024-01-01T00:00:00", "20240101T00:00:00Z", "20240101 00:00:00"})
        EXPECT_EQ(refusalOf(QByteArray("<dateTime.iso8601>") + text + "</dateTime.iso8601>").code,
                  FaultNotXmlRpc)
            << text;
}

TEST(XmlRpcCodec, readsArrays)
{
    const XmlRpcValue value = read("<array>\n<data>\n<value><i4>1</i4></value> <value>b</value>"
                                   "<value><array><data></data></array></value></data>\n</array>");
    ASSERT_EQ(value.getType(), XmlRpcValue::TypeArray);
    ASSERT_EQ(value.size(), 3);
    EXPECT_EQ(static_cast<const int &>(value[0]), 1);
    EXPECT_EQ(static_cast<const std::string &>(value[1]), "b");
    EXPECT_EQ(value[2].getType(), XmlRpcValue::TypeArray);
    EXPECT_EQ(value[2].size(), 0);
}

TEST(XmlRpcCodec, readsStructs)
{
    const XmlRpcValue value =
        read("<struct>\n<member>\n<name>circuit</name>\n<value><i4>3</i4></value>\n</member>"
             "<member><name> a&amp;b</name><value/></member><member><name></name>"
             "<value><struct/></value></member></struct>");
    ASSERT_EQ(value.getType(), XmlRpcValue::TypeStruct);
    ASSERT_EQ(value.size(), 3);
    ASSERT_TRUE(value.hasMember("circuit"));
    ASSERT_TRUE(value.hasMember(" a&b"));
    ASSERT_TRUE(value.hasMember(""));
    EXPECT_EQ(static_cast<const int &>(static_cast<const XmlRpcValue &>(value["circuit"])), 3);
    EXPECT_EQ(value[" a&b"].getType(), XmlRpcValue::TypeString);
    EXPECT_EQ(value[""].getType(), XmlRpcValue::TypeStruct);
    EXPECT_EQ(value[""].size(), 0);
}

TEST(XmlRpcCodec, refusesAMemberThatStandsTwice)
{
    const QByteArray member = "<member><name>a</name><value>1</value></member>";
    const Refusal refusal = refusalOf("<struct>" + member + member + "</struct>");
    EXPECT_EQ(refusal.code, FaultNotXmlRpc);
    EXPECT_EQ(refusal.text, "The member 'a' stands twice");
}

TEST(XmlRpcCodec, refusesTypesThatItDoesNotKnow)
{
    for (const char *type : {"i8", "nil", "ex:nil", "i1", "float", "INT", "value", "param", "bool"}) {
        const Refusal refusal = refusalOf(QByteArray("<") + type + ">1</" + type + ">");
        EXPECT_EQ(refusal.code, FaultNotXmlRpc) << type;
        EXPECT_EQ(refusal.text, std::string("The type '") + type + "' is not supported");
    }
}

TEST(XmlRpcCodec, refusesElementsOutOfPlace)
{
    for (const char *value :
         {"text<i4>1</i4>", "<i4>1</i4>text", "<i4>1</i4><i4>2</i4>", "<i4><b/>1</i4>", "<array/>",
          "<array><value>1</value></array>", "<array><data>1</data></array>", "<array><data/><data/></array>",
          "<array><data><i4>1</i4></data></array>", "<struct><name>a</name></struct>", "<struct>a</struct>",
          "<struct><member><value>1</value><name>a</name></member></struct>",
          "<struct><member><name>a</name></member></struct>",
          "<struct><member><name>a</name><value>1</value>x</member></struct>"})
        EXPECT_EQ(refusalOf(value).code, FaultNotXmlRpc) << value;

    for (const QByteArray &document :
         {QByteArray("<methodResponse><params/></methodResponse>"), QByteArray("<html><body/></html>"),
          QByteArray("<methodCall/>"), QByteArray("<methodCall><methodName> </methodName></methodCall>"),
          QByteArray("<methodCall><params/></methodCall>"),
          QByteArray("<methodCall><methodName>a</methodName><params/><params/></methodCall>"),
          QByteArray("<methodCall>x<methodName>a</methodName></methodCall>"),
          QByteArray("<methodCall><methodName>a</methodName><params><value>1</value></params></methodCall>"),
          QByteArray("<methodCall><methodName>a</methodName><params><param/></params></methodCall>"),
          QByteArray("<methodCall><methodName>a</methodName><params><param><value/><value/></param></params>"
                     "</methodCall>"),
          QByteArray("<methodCall><methodName><b/></methodName></methodCall>")})
        EXPECT_EQ(refusalOfDocument(document).code, FaultNotXmlRpc) << document.constData();
}

TEST(XmlRpcCodec, refusesWhatIsNotWellFormed)
{
    const QByteArray whole = callOf("<i4>1</i4>");
    const QByteArray binary("\x00\x01\x02\xFF<methodCall>", 16);
    for (const QByteArray &document :
         {QByteArray(), QByteArray("hello"), binary, QByteArray("{\"method\":1}"), whole + "x", whole + whole,
          whole + "<a/>", callOf("<i4>1</int>"), callOf("a & b"), callOf("&unknown;"), callOf("&#0;"),
          callOf("&#xD800;"), callOf("\x01"), callOf("<i4 a=1>1</i4>"),
          QByteArray("<?xml version='1.0' encoding='klingon'?><methodCall/>")})
        EXPECT_EQ(refusalOfDocument(document).code, FaultNotWellFormed) << document.constData();
}

TEST(XmlRpcCodec, refusesEveryDocumentThatIsCutShort)
{
    const QByteArray whole =
        callOf("<struct><member><name>a</name><value><array><data><value>x</value></data></array>"
               "</value></member></struct>");
    ASSERT_NO_THROW(parseMethodCall(whole));
    for (int size = 0; size < whole.size(); ++size)
        EXPECT_EQ(refusalOfDocument(whole.left(size)).code, FaultNotWellFormed)
            << whole.left(size).constData();
}

TEST(XmlRpcCodec, refusesDeclarations)
{
    for (const char *prolog :
         {"<!DOCTYPE methodCall>", "<?xml version='1.0'?><!DOCTYPE x [<!ENTITY a \"b\">]>",
          "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;\"><!ENTITY c "
          "\"&b;&b;&b;&b;\">]>",
          "<!DOCTYPE x SYSTEM \"file:///etc/passwd\">"}) {
        const Refusal refusal =
            refusalOfDocument(QByteArray(prolog) + "<methodCall><methodName>a</methodName></methodCall>");
        EXPECT_EQ(refusal.code, FaultNotWellFormed) << prolog;
        EXPECT_EQ(refusal.text, "A document type declaration is not allowed") << prolog;
    }
}

TEST(XmlRpcCodec, refusesThousandsOfAttributes)
{
    QByteArray attributes;
    for (int number = 0; number < 50000; ++number)
        attributes += " a" + QByteArray::number(number) + "='>'";
    const Refusal refusal = refusalOfDocument("<methodCall" + attributes + "/>");
    EXPECT_EQ(refusal.code, FaultNotWellFormed);
    EXPECT_EQ(refusal.text, "A tag is too long");
    EXPECT_NO_THROW(
        parseMethodCall("<methodCall a='>' xmlns:ex='x'><methodName>a</methodName></methodCall>"));
}

TEST(XmlRpcCodec, readsUpTo64ValuesInsideEachOther)
{
    XmlRpcValue value = read(nestedArrays(64));
    for (int level = 1; level < 64; ++level) {
        ASSERT_EQ(value.size(), 1);
        const XmlRpcValue inner = value[0];
        value = inner;
    }
    EXPECT_EQ(value.size(), 0);

    EXPECT_EQ(refusalOf(nestedArrays(65)).code, FaultNotXmlRpc);
    EXPECT_EQ(refusalOf(nestedArrays(65)).text, "More than 64 arrays and structs inside each other");
    EXPECT_EQ(refusalOf(QByteArray("<struct><member><name>a</name><value>").repeated(65)).code,
              FaultNotXmlRpc);
    EXPECT_NO_THROW(read("<array><data><value>" + nestedArrays(63) + "</value><value>" + nestedArrays(63) +
                         "</value></data></array>"));
}

TEST(XmlRpcCodec, readsUpTo40000Values)
{
    const auto arrayOf = [](int count) {
        return "<array><data>" + QByteArray("<value/>").repeated(count) + "</data></array>";
    };
    EXPECT_EQ(read(arrayOf(39999)).size(), 39999);
    EXPECT_EQ(refusalOf(arrayOf(40000)).code, FaultNotXmlRpc);
    EXPECT_EQ(refusalOf(arrayOf(40000)).text, "More than 40000 values");
    EXPECT_EQ(parseMethodResponse(responseOf(arrayOf(639999))).value.size(), 639999);
    EXPECT_THROW(parseMethodResponse(responseOf(arrayOf(640000))), CodecError);
}

TEST(XmlRpcCodec, refusesSixtyThousandArrays)
{
    const QByteArray document = callOf(QByteArray("<array><data><value>").repeated(60000));
    XmlRpcLimits limits;
    limits.documentSize = document.size();
    try {
        parseMethodCall(document, limits);
        FAIL() << "was read";
    } catch (const CodecError &error) {
        EXPECT_EQ(error.faultCode(), FaultNotXmlRpc);
        EXPECT_STREQ(error.what(), "More than 64 arrays and structs inside each other");
    }
}

TEST(XmlRpcCodec, limitsTheSizeOfADocument)
{
    const QByteArray empty = callOf("<string></string>");
    const QByteArray fill(1024 * 1024 - empty.size(), 'x');
    EXPECT_EQ(readText("<string>" + fill + "</string>").size(), static_cast<std::size_t>(fill.size()));
    EXPECT_EQ(refusalOf("<string>" + fill + "x</string>").text, "The document is larger than 1048576 bytes");
    EXPECT_NO_THROW(parseMethodResponse(responseOf(QByteArray(2 * 1024 * 1024, 'x'))));
}

// ---- encodings ----

TEST(XmlRpcCodec, readsTextByItsEncoding)
{
    const std::string utf8 = "perch\xC3\xA9";
    const auto call = [](const QByteArray &declaration, const QByteArray &text) {
        const MethodCall result = parseMethodCall(declaration +
                                                  "<methodCall><methodName>a</methodName><params><param>"
                                                  "<value>" +
                                                  text + "</value></param></params></methodCall>");
        return std::string(static_cast<const std::string &>(result.params[0]));
    };
    EXPECT_EQ(call("", "perch\xC3\xA9"), utf8);
    EXPECT_EQ(call("\xEF\xBB\xBF", "perch\xC3\xA9"), utf8);
    EXPECT_EQ(call("", "perch\xE9"), utf8);
    EXPECT_EQ(call("<?xml version='1.0'?>", "perch\xE9"), utf8);
    EXPECT_EQ(call("<?xml version='1.0' encoding='utf-8'?>", "perch\xE9"), utf8);
    EXPECT_EQ(call("<?xml version='1.0' encoding='UTF-8'?>", "perch\xC3\xA9"), utf8);
    EXPECT_EQ(call("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>", "perch\xE9"), utf8);
    EXPECT_EQ(call("<?xml version='1.0' encoding='ISO-8859-1'?>", "\xC3\xA9"), "\xC3\x83\xC2\xA9");
    EXPECT_EQ(call("<?xml version='1.0' encoding='windows-1252'?>", "\x80"), "\xE2\x82\xAC");
}

TEST(XmlRpcCodec, readsUtf16)
{
    const QString text = QString::fromUtf8(callOf("perch\xC3\xA9"));
    QByteArray document("\xFF\xFE", 2);
    for (const QChar c : text) {
        document += static_cast<char>(c.cell());
        document += static_cast<char>(c.row());
    }
    EXPECT_EQ(std::string(static_cast<const std::string &>(parseMethodCall(document).params[0])),
              "perch\xC3\xA9");
    document.chop(1);
    EXPECT_EQ(refusalOfDocument(document).code, FaultNotWellFormed);
}

// ---- writing values ----

TEST(XmlRpcCodec, writesScalars)
{
    EXPECT_EQ(written(true), "<boolean>1</boolean>");
    EXPECT_EQ(written(false), "<boolean>0</boolean>");
    EXPECT_EQ(written(std::numeric_limits<int>::min()), "<i4>-2147483648</i4>");
    EXPECT_EQ(written("Avail < 5 & \"ok\""), "<string>Avail &lt; 5 &amp; &quot;ok&quot;</string>");
    EXPECT_EQ(written(XmlRpcValue()), "<i4>0</i4>");
    std::string bytes("\x00\x01\xFF\x80", 4);
    EXPECT_EQ(written(XmlRpcValue(bytes.data(), 4)), "<base64>AAH/gA==</base64>");
    std::tm time{};
    time.tm_year = 99;
    time.tm_mon = 11;
    time.tm_mday = 31;
    time.tm_hour = 1;
    time.tm_min = 2;
    time.tm_sec = 3;
    EXPECT_EQ(written(&time), "<dateTime.iso8601>19991231T01:02:03</dateTime.iso8601>");
}

TEST(XmlRpcCodec, writesDoubles)
{
    EXPECT_EQ(written(0.0), "<double>0.0</double>");
    EXPECT_EQ(written(-0.0), "<double>-0.0</double>");
    EXPECT_EQ(written(0.1), "<double>0.1</double>");
    EXPECT_EQ(written(100000.0), "<double>100000.0</double>");
    EXPECT_EQ(written(-12.625), "<double>-12.625</double>");
    EXPECT_EQ(written(0.000001), "<double>0.000001</double>");
    EXPECT_EQ(written(5e-324), "<double>5e-324</double>");
    EXPECT_EQ(written(1.7976931348623157e308), "<double>1.7976931348623157e+308</double>");
    EXPECT_THROW(writeMethodResponse(std::numeric_limits<double>::infinity()), CodecError);
    EXPECT_THROW(writeMethodResponse(std::numeric_limits<double>::quiet_NaN()), CodecError);
}

TEST(XmlRpcCodec, writesArraysAndStructs)
{
    XmlRpcValue value;
    value["b"][0] = 1;
    value["b"][1] = XmlRpcValue();
    value["a&"] = "x";
    EXPECT_EQ(written(value), "<struct><member><name>a&amp;</name><value><string>x</string></value></member>"
                              "<member><name>b</name><value><array><data><value><i4>1</i4></value>"
                              "<value><i4>0</i4></value></data></array></value></member></struct>");
    XmlRpcValue missing;
    missing["none"] = XmlRpcValue();
    EXPECT_EQ(written(missing),
              "<struct><member><name>none</name><value><i4>0</i4></value></member></struct>");
}

TEST(XmlRpcCodec, writesValidUtf8WhateverTheBytes)
{
    EXPECT_EQ(written("\xC3\xA8 \xF0\x9F\x8E\xA8"), "<string>\xC3\xA8 \xF0\x9F\x8E\xA8</string>");
    EXPECT_EQ(written("perch\xE9"), "<string>perch\xC3\xA9</string>"); // Latin-1
    EXPECT_EQ(written(std::string("a\0b\x1F\x7F", 5)), "<string>a\uFFFDb\uFFFD\x7F</string>");
    EXPECT_EQ(written("\xEF\xBF\xBF"), "<string>\xEF\xBF\xBD</string>"); // U+FFFF is no XML character
    EXPECT_EQ(written("a\r\nb\tc"), "<string>a&#13;\nb\tc</string>");
    EXPECT_EQ(written("]]>"), "<string>]]&gt;</string>");
}

TEST(XmlRpcCodec, writesNoMoreThan64ValuesInsideEachOther)
{
    EXPECT_NO_THROW(writeMethodResponse(nestedValue(64)));
    EXPECT_THROW(writeMethodResponse(nestedValue(65)), CodecError);
}

// ---- there and back ----

TEST(XmlRpcCodec, doublesComeBackExactly)
{
    for (const double number :
         {0.1, 5e-324, 2.2250738585072011e-308, 1.7976931348623157e308, 1.0 / 3, 123456789.123456789,
          9007199254740993.0, 1e17, 99999999999999990.0, 1e-6, 9.999999e-7, 1e22, -1.5}) {
        const XmlRpcValue back = wayBack(number);
        ASSERT_EQ(back.getType(), XmlRpcValue::TypeDouble) << number;
        EXPECT_EQ(static_cast<const double &>(back), number);
    }
    const XmlRpcValue minusZero = wayBack(-0.0);
    EXPECT_TRUE(std::signbit(static_cast<const double &>(minusZero)));
}

TEST(XmlRpcCodec, textsComeBackExactly)
{
    for (const char *text : {"", " ", "\r", "\n", "\r\n", "a\r\r\nb\t", "<>&\"'", "&#13;", "]]>", "<!-- -->",
                             "<![CDATA[", "\xC3\xA8", "\xF0\x9F\x8E\xA8", "\xEF\xBF\xBD", "  a  "}) {
        const XmlRpcValue back = wayBack(text);
        ASSERT_EQ(back.getType(), XmlRpcValue::TypeString) << text;
        EXPECT_EQ(static_cast<const std::string &>(back), text);
    }
    XmlRpcValue members;
    members["a<&>\r\"' \xC3\xA8"] = 1;
    const XmlRpcValue back = wayBack(members);
    EXPECT_TRUE(back.hasMember("a<&>\r\"' \xC3\xA8"));
    EXPECT_EQ(back.size(), 1);
}

TEST(XmlRpcCodec, emptyContainersComeBack)
{
    XmlRpcValue array;
    array.setSize(0);
    EXPECT_EQ(wayBack(array).getType(), XmlRpcValue::TypeArray);
    EXPECT_EQ(wayBack(array).size(), 0);
    XmlRpcValue members;
    members.begin();
    EXPECT_EQ(wayBack(members).getType(), XmlRpcValue::TypeStruct);
    EXPECT_EQ(wayBack(members).size(), 0);
    EXPECT_EQ(wayBack(XmlRpcValue(nullptr, 0)).getType(), XmlRpcValue::TypeBase64);
}

} // namespace
