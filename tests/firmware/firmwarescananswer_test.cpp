// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescananswer.h"

#include "base/basetesting.h"
#include "firmware/firmwarescancmd.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = FirmwareScanAnswer;
using Programs = QList<FW_Program>;

constexpr char ofTokens[] = "FirmwareScanAnswer::FirmwareScanAnswer(QStringList)";
constexpr char ofValue[] = "FirmwareScanAnswer::FirmwareScanAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char badBlock[] = "FirmwareScanAnswer: error in firmware version decoding";

FW_Program programAt(int address, int revision)
{
    return FW_Program(address, FW_Version(63, revision), FW_Version());
}

/** The firmware's answer with these parameters: their number comes first. */
QStringList answerWith(const QStringList &parameters)
{
    return QStringList(QString::number(parameters.size(), 16)) + parameters;
}

/** Two slaves, their blocks of three tokens, and one more token. */
const QStringList twoSlaves = {"2", "11", "3F", "26", "3", "3F", "25", "x"};

Value programValue(int address, int revision)
{
    return structOf({{"board_address", address},
                     {"app_version", arrayOf(63, 0, 0, 0, 0, revision)},
                     {"boot_version", arrayOf()}});
}

TEST(FirmwareScanAnswer, readsABlockOfTokensOfEachSlave)
{
    const Answer answer(answerWith(twoSlaves));
    EXPECT_EQ(answer.programs(), (Programs{programAt(17, 38), programAt(3, 37)}));
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(Answer(answerWith(twoSlaves.mid(0, 7))), answer);
    const QStringList whole = {"1", "5", "3F", "2", "3", "4", "5", "26", "3F", "2", "1", "0", "0", "7"};
    EXPECT_EQ(Answer(answerWith(whole)).programs(),
              Programs{FW_Program(5, FW_Version(63, 2, 3, 4, 5, 38), FW_Version(63, 2, 1, 0, 0, 7))});
}

TEST(FirmwareScanAnswer, readsNoSlavesWhateverFollows)
{
    for (const QStringList &parameters : {QStringList{"0"}, QStringList{"00"}, QStringList{"0", "x", "3F"}})
        EXPECT_EQ(Answer(answerWith(parameters)).programs(), Programs());
}

TEST(FirmwareScanAnswer, refusesTokensThatTellNoSlaves)
{
    expectRefusal("DE01455", "Error during command answer decoding: bad length", ofTokens,
                  [] { const Answer answer(QStringList{"0"}); });
    for (const char *bad : {"x", "", "-1", "80000000"})
        expectRefusal("DE01456", "Error during address ID decoding", ofTokens, [&] {
            const Answer answer(answerWith({bad, "11", "3F", "26"}));
        });
    expectRefusal("DE00076", "Empty answer received", "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                  [] { const Answer answer{QStringList()}; });
}

TEST(FirmwareScanAnswer, refusesABlockThatIsNoProgram)
{
    for (int size = 1; size < 7; ++size) {
        SCOPED_TRACE(size);
        expectRefusal("DE01457", badBlock, ofTokens,
                      [&] { const Answer answer(answerWith(twoSlaves.mid(0, size))); });
    }
    for (int i = 1; i < 7; ++i) {
        SCOPED_TRACE(i);
        QStringList wrong = twoSlaves;
        wrong[i] = "x";
        expectRefusal("DE01457", badBlock, ofTokens, [&] { const Answer answer(answerWith(wrong)); });
    }
    for (const char *slaves : {"1", "3", "8", "7FFFFFFF"}) {
        SCOPED_TRACE(slaves);
        QStringList wrong = twoSlaves;
        wrong[0] = slaves;
        expectRefusal("DE01457", badBlock, ofTokens, [&] { const Answer answer(answerWith(wrong)); });
    }
}

TEST(FirmwareScanAnswer, isAStructOfOneArray)
{
    EXPECT_STREQ(Answer::slaveFwVersions_TAG, "slave_versions");
    const Value value = structOf({{"slave_versions", arrayOf(programValue(17, 38), programValue(3, 37))}});
    const Answer answer(Programs{programAt(17, 38), programAt(3, 37)});
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), dumped(value));
    EXPECT_EQ(Answer(value), answer);
    EXPECT_EQ(Answer(value).protoType(), 1);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"slave_versions": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(FirmwareScanAnswer, isRefusedWithoutThePrograms)
{
    for (const Value &other : {Value(), Value(0), Value("x"), arrayOf(programValue(17, 38))})
        expectRefusal("DE01460", "FirmwareScanAnswer decoding failed: invalid xml-rpc type", ofValue,
                      [&] { const Answer answer(other); });
    for (const Value &other : {structOf({}), structOf({{"slaves", arrayOf()}})})
        expectRefusal("DE01463", "FirmwareScanAnswer: Errors during FW_Program list creation", ofValue,
                      [&] { const Answer answer(other); });
    for (const Value &other : {Value(0), Value("x"), programValue(17, 38)})
        expectRefusal("DE01461", "FirmwareScanAnswer decoding failed: expected xml-rpc array type", ofValue,
                      [&] {
                          const Answer answer(structOf({{"slave_versions", other}}));
                      });
    for (const Value &other : {Value(17), structOf({}), arrayOf(63, 0, 0, 0, 0, 38)}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal(
            "DE01462", "FirmwareScanAnswer failed: expected FW_Program type parameter", ofValue, [&] {
                const Answer answer(structOf({{"slave_versions", arrayOf(programValue(17, 38), other)}}));
            });
    }
}

TEST(FirmwareScanAnswer, readsNothingOfAList)
{
    List list = {QVariant::fromValue(programAt(17, 38))};
    EXPECT_EQ(Answer(list), Answer());
    EXPECT_EQ(Answer(list).protoType(), 1);
}

TEST(FirmwareScanAnswer, comparesTheProgramsInTheirOrder)
{
    const FW_Program first = programAt(17, 38);
    const FW_Program second = programAt(3, 37);
    const Answer answer(Programs{first, second});
    const Answer same = answer;
    EXPECT_TRUE(answer.equalTo(&same));
    for (const Programs &programs : {Programs(), Programs{first}, Programs{second, first},
                                     Programs{first, programAt(3, 38)}, Programs{first, second, second}}) {
        const Answer other(programs);
        SCOPED_TRACE(dumped(other.toXmlRpcValue()));
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    Answer cleared = answer;
    cleared.clear();
    EXPECT_EQ(cleared, Answer());
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

} // namespace
