// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareversionanswer.h"

#include "base/basetesting.h"
#include "base/factlines.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = FirmwareVersionAnswer;

constexpr char ofTokens[] = "FirmwareVersionAnswer::FirmwareVersionAnswer(QStringList)";
constexpr char ofValue[] = "FirmwareVersionAnswer::FirmwareVersionAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char noVersion[] = "FirmwareVersionAnswer failed: expected FW_Version type parameter";
constexpr char noAppVersion[] = "FirmwareVersionAnswer failed: expected firmware app version type parameter";

FW_Program program()
{
    return FW_Program(-1, FW_Version(63, 2, 3, 4, 5, 38), FW_Version(63, 2, 1, 0, 0, 7));
}

/** The firmware's answer about that program. */
const QStringList tokens = {"C", "3F", "2", "3", "4", "5", "26", "3F", "2", "1", "0", "0", "7"};

Value programValue()
{
    return structOf({{"board_address", -1},
                     {"app_version", arrayOf(63, 2, 3, 4, 5, 38)},
                     {"boot_version", arrayOf(63, 2, 1, 0, 0, 7)}});
}

TEST(FirmwareVersionAnswer, readsTheProgramOfAModule)
{
    const Answer answer(tokens);
    EXPECT_TRUE(answer.program() == program());
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(answer.serialParameters(), tokens.mid(1));
    EXPECT_TRUE(Answer(QStringList{"2", "3F", "26"}).program() ==
                FW_Program(-1, FW_Version(63, 38), FW_Version()));
}

TEST(FirmwareVersionAnswer, isRefusedWhenTheTokensEndTooEarly)
{
    for (int size = 0; size < 12; ++size) {
        SCOPED_TRACE(size);
        const QStringList cut = QStringList(QString::number(size, 16)) + tokens.mid(1, size);
        if (size == 2 || size == 4 || size == 6) {
            EXPECT_EQ(Answer(cut).serialParameters().size(), size) << "a shorter form";
            continue;
        }
        expectRefusal("DE00628", noVersion, ofTokens, [&] { const Answer answer(cut); });
    }
    for (int i = 1; i < tokens.size(); ++i) {
        SCOPED_TRACE(i);
        QStringList wrong = tokens;
        wrong[i] = "x";
        expectRefusal("DE00628", noVersion, ofTokens, [&] { const Answer answer(wrong); });
    }
    expectRefusal("DE00077", "Error during command answer decoding: bad length",
                  "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                  [] { const Answer answer(tokens.mid(0, 12)); });
}

TEST(FirmwareVersionAnswer, isTheStructOfItsProgram)
{
    EXPECT_EQ(dumped(Answer(program()).toXmlRpcValue()), dumped(programValue()));
    EXPECT_EQ(Answer(programValue()), Answer(program()));
    EXPECT_EQ(Answer(programValue()).protoType(), 1);
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
    for (const Value &other : {Value(), Value(0), Value("x"), arrayOf(programValue()), structOf({}),
                               structOf({{"app_version", arrayOf(63, 2, 3, 4, 5, 38)}})}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE01474", noAppVersion, ofValue, [&] { const Answer answer(other); });
    }
}

TEST(FirmwareVersionAnswer, comparesItsProgram)
{
    const Answer answer(program());
    const Answer same(program());
    EXPECT_TRUE(answer == same);
    EXPECT_TRUE(answer.equalTo(&same));
    Answer cleared = answer;
    cleared.clear();
    EXPECT_EQ(cleared, Answer());
    EXPECT_TRUE(answer != cleared);
    EXPECT_FALSE(answer.equalTo(&cleared));
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

TEST(FirmwareVersionAnswer, tellsItsMembers)
{
    EXPECT_EQ(membersOf("READ_FW_VERSION"),
              (Lines{"FirmwareVersionAnswer", "board_address (int): -1 of a module that was asked by itself",
                     "  XML-RPC, missing or another type: DE01474",
                     "app_version (array of ints): six: family, hardware, major, minor, patch, revision",
                     "  XML-RPC, missing or another type: DE01474",
                     "boot_version (array of ints): the same of the boot loader; empty when it is not told",
                     "  XML-RPC, missing or another type: DE01474", "  tokens, : DE00610",
                     "  XML-RPC, : DE03241"}));
}

} // namespace
