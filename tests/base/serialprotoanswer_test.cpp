// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/serialprotoanswer.h"

#include "base/basetesting.h"

#include <memory>

using namespace testing_base;

namespace {

constexpr char tokensFunction[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";

QStringList parametersOf(const QStringList &tokens)
{
    return SerialProtoAnswer(tokens).serialParameters();
}

} // namespace

TEST(SerialProtoAnswer, isOfTypeOne)
{
    EXPECT_EQ(SerialProtoAnswer().protoType(), 1);
    EXPECT_EQ(SerialProtoAnswer(QStringList{"0"}).protoType(), 1);
    EXPECT_EQ(SerialProtoAnswer(Value(5)).protoType(), 1);
    List list;
    EXPECT_EQ(SerialProtoAnswer(list).protoType(), 1);
}

TEST(SerialProtoAnswer, keepsTheTokensAfterTheLength)
{
    EXPECT_EQ(parametersOf({"0"}), QStringList());
    EXPECT_EQ(parametersOf({"1", "A"}), QStringList({"A"}));
    EXPECT_EQ(parametersOf({"2", "A", "b"}), (QStringList{"A", "b"}));
    EXPECT_EQ(parametersOf({"a", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}),
              (QStringList{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}));
}

TEST(SerialProtoAnswer, keepsTokensBeyondTheLength)
{
    EXPECT_EQ(parametersOf({"1", "A", "B"}), (QStringList{"A", "B"}));
    EXPECT_EQ(parametersOf({"0", "A", "B"}), (QStringList{"A", "B"}));
}

TEST(SerialProtoAnswer, doesNotReadTheParameters)
{
    EXPECT_EQ(parametersOf({"2", "not a number", ""}), (QStringList{"not a number", ""}));
}

TEST(SerialProtoAnswer, takesALengthOfAnyNumberOfDigits)
{
    EXPECT_EQ(parametersOf({"01", "A"}), QStringList({"A"}));
    EXPECT_EQ(parametersOf({"0001", "A"}), QStringList({"A"}));
    EXPECT_EQ(parametersOf({QString(40, '0') + "1", "A"}), QStringList({"A"}));
    EXPECT_EQ(parametersOf({QString(5000, '0') + "1", "A"}), QStringList({"A"}));
    EXPECT_EQ(parametersOf({"0x1", "A"}), QStringList({"A"}));
}

TEST(SerialProtoAnswer, leavesTheCallersTokensAlone)
{
    const QStringList tokens = {"1", "A"};
    const SerialProtoAnswer answer(tokens);
    EXPECT_EQ(tokens, (QStringList{"1", "A"}));
    QStringList handedOver = {"1", "B"};
    EXPECT_EQ(SerialProtoAnswer(std::move(handedOver)).serialParameters(), QStringList({"B"}));
}

TEST(SerialProtoAnswer, refusesNoTokens)
{
    expectRefusal("DE00076", "Empty answer received", tokensFunction,
                  [] { SerialProtoAnswer{QStringList()}; });
}

TEST(SerialProtoAnswer, refusesALengthThatIsNoNumber)
{
    for (const char *length : {"ZZ", "", " ", "-1", "G", "1G", "1 1", "100000000", "FFFFFFFFFFFFFFFF"}) {
        SCOPED_TRACE(length);
        expectRefusal("DE00070", "Invalid parameter length type found in answer", tokensFunction, [&] {
            SerialProtoAnswer(QStringList{length, "A"});
        });
    }
}

TEST(SerialProtoAnswer, refusesFewerTokensThanTheLength)
{
    const QStringList rows[] = {{"1"},
                                {"2", "A"},
                                {"A", "1", "2", "3", "4", "5", "6", "7", "8", "9"},
                                {"FFFFFFFF", "A"},
                                {"80000000"}};
    for (const QStringList &tokens : rows) {
        SCOPED_TRACE(tokens.first().toStdString());
        expectRefusal("DE00077", "Error during command answer decoding: bad length", tokensFunction,
                      [&] { SerialProtoAnswer{tokens}; });
    }
}

TEST(SerialProtoAnswer, keepsNothingOfListsAndValues)
{
    List list = {1, 2};
    EXPECT_EQ(SerialProtoAnswer(list).serialParameters(), QStringList());
    EXPECT_EQ(SerialProtoAnswer(arrayOf("A")).serialParameters(), QStringList());
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { SerialProtoAnswer{Value()}; });
}

TEST(SerialProtoAnswer, keepsTheTypeOnlyOfAnotherAnswer)
{
    const SerialProtoAnswer tokens(QStringList{"1", "A"});
    const SerialProtoAnswer ofRoot(static_cast<const ProtoAnswer &>(tokens));
    EXPECT_EQ(ofRoot.protoType(), 1);
    EXPECT_EQ(ofRoot.serialParameters(), QStringList());
    EXPECT_EQ(SerialProtoAnswer(ProtoAnswer(3)).protoType(), 3);
}

TEST(SerialProtoAnswer, keepsItsTokensInCopies)
{
    SerialProtoAnswer answer(QStringList{"1", "A"});
    const SerialProtoAnswer copy(answer);
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    answer.clearSerialProtoAnswer();
    EXPECT_EQ(answer.serialParameters(), QStringList());
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(copy.serialParameters(), QStringList({"A"}));
    const auto *serial = dynamic_cast<const SerialProtoAnswer *>(clone.get());
    ASSERT_NE(serial, nullptr);
    EXPECT_EQ(serial->serialParameters(), QStringList({"A"}));
}

TEST(SerialProtoAnswer, sendsNoTokens)
{
    EXPECT_EQ(dumped(SerialProtoAnswer(QStringList{"1", "A"}).toXmlRpcValue()), "0");
}

TEST(SerialProtoAnswer, comparesTypesOnly)
{
    const SerialProtoAnswer one(QStringList{"1", "A"});
    const SerialProtoAnswer other(QStringList{"1", "B"});
    EXPECT_TRUE(one.equalTo(&other));
    EXPECT_FALSE(one.equalTo(nullptr));
    const ProtoAnswer plain;
    EXPECT_FALSE(one.equalTo(&plain));
}
