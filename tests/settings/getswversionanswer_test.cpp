// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getswversionanswer.h"

#include "settings/structs.h"

#include <memory>

namespace {

using namespace testing_base;
using Answer = GetSwVersionAnswer;

constexpr char invalid[] = "GetSwVersionAnswer decoding failed: invalid QVariant value";
constexpr char dump[] =
    R"({"build_TS": "2026-03-04T05:06:07.008Z", "build_revision": 5.00000e+09, "git_sha": "0a1b2c", )"
    R"("release_type": "beta", "sw_version": "3.14.2"})";

QDateTime time()
{
    return QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7, 8), Qt::UTC);
}

Answer whole()
{
    return {"3.14.2", 5000000000ULL, time(), "beta", "0a1b2c"};
}

List listOfWhole()
{
    return {"3.14.2", 5000000000ULL, time(), "beta", "0a1b2c"};
}

Answer answerOf(const char *version)
{
    return {version, 0, QDateTime(), "", ""};
}

TEST(GetSwVersionAnswer, tellsTheBuild)
{
    EXPECT_EQ(whole().swVersion(), "3.14.2");
    EXPECT_EQ(whole().buildRevision(), 5000000000ULL);
    EXPECT_EQ(whole().buildTS(), time());
    EXPECT_EQ(whole().releaseType(), "beta");
    EXPECT_EQ(whole().gitSha(), "0a1b2c");
    EXPECT_EQ(Answer().swVersion(), "");
    EXPECT_EQ(Answer().buildRevision(), 0U);
    EXPECT_FALSE(Answer().buildTS().isValid());
    EXPECT_EQ(Answer().protoType(), 2);
}

TEST(GetSwVersionAnswer, travels)
{
    EXPECT_EQ(dumped(whole().toXmlRpcValue()), dump);
    EXPECT_EQ(Answer(whole().toXmlRpcValue()), whole());
    List list = listOfWhole();
    EXPECT_EQ(Answer(list), whole());
}

TEST(GetSwVersionAnswer, refusesWhatLacksAMember)
{
    constexpr char ofList[] = "GetSwVersionAnswer::GetSwVersionAnswer(QList<QVariant>&)";
    constexpr char ofValue[] = "GetSwVersionAnswer::GetSwVersionAnswer(const XmlRpc::XmlRpcValue&)";
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(i);
        List cut = listOfWhole().mid(0, i);
        expectRefusal("DE01310", invalid, ofList, [&] { Answer{cut}; });
        List other = listOfWhole();
        other[i] = QVariantList();
        expectRefusal("DE01310", invalid, ofList, [&] { Answer{other}; });
    }
    for (const char *key : {"sw_version", "build_revision", "build_TS", "release_type", "git_sha"}) {
        SCOPED_TRACE(key);
        Value other = whole().toXmlRpcValue();
        other[key] = arrayOf(1);
        expectRefusal("DE01310", invalid, ofValue, [&] { Answer{other}; });
        const Value missing = testing_settings::without(whole().toXmlRpcValue(), key);
        expectRefusal("DE01310", invalid, ofValue, [&] { Answer{missing}; });
    }
    for (const Value &value : {Value(5), arrayOf(1), Value("3.14.2")})
        expectRefusal("DE01310", invalid, ofValue, [&] { Answer{value}; });
}

TEST(GetSwVersionAnswer, hasAVersionOfThreeNumbers)
{
    const struct
    {
        const char *text;
        bool isGood;
        int numbers[3];
    } rows[] = {
        {"3.14.2", true, {3, 14, 2}},
        {"3.14.2.9", true, {3, 14, 2}},
        {"3.14.2.x", true, {3, 14, 2}},
        {"3..14.2", true, {3, 14, 2}},
        {".3.14.2.", true, {3, 14, 2}},
        {"3.14", false, {}},
        {"3", false, {}},
        {"", false, {}},
        {"...", false, {}},
        {"x.14.2", false, {}},
        {"3.x.2", false, {}},
        {"3.14.x", false, {}},
        {"3.14.0x2", false, {}},
        {"3.14.2147483648", false, {}},
        {"0.0.0", true, {0, 0, 0}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.text);
        int major = -1;
        int minor = -2;
        int patch = -3;
        EXPECT_EQ(answerOf(row.text).getSwVersion(major, minor, patch), row.isGood);
        EXPECT_EQ(major, row.isGood ? row.numbers[0] : -1);
        EXPECT_EQ(minor, row.isGood ? row.numbers[1] : -2);
        EXPECT_EQ(patch, row.isGood ? row.numbers[2] : -3);
        EXPECT_EQ(answerOf(row.text).version(),
                  QVersionNumber(row.numbers[0], row.numbers[1], row.numbers[2]));
    }
    EXPECT_EQ(Answer().version().toString(), "0.0.0");
}

TEST(GetSwVersionAnswer, takesEachValueInBothForms)
{
    Answer variants;
    variants.setSwVersion(QVariant("3.14.2"));
    variants.setBuildRevision(QVariant(5000000000ULL));
    variants.setBuildTS(QVariant(time()));
    variants.setReleaseType(QVariant("beta"));
    variants.setGitSha(QVariant("0a1b2c"));
    EXPECT_EQ(variants, whole());
    Answer values;
    values.setSwVersion(Value("3.14.2"));
    values.setBuildRevision(Value(5000000000.0));
    values.setBuildTS(Value("2026-03-04T05:06:07.008Z"));
    values.setReleaseType(Value("beta"));
    values.setGitSha(Value("0a1b2c"));
    EXPECT_EQ(values, whole());
}

TEST(GetSwVersionAnswer, leavesAloneWhatGetsAnotherType)
{
    Answer answer = whole();
    const QVariant variant = QVariantList();
    answer.setSwVersion(variant);
    answer.setBuildRevision(variant);
    answer.setBuildTS(variant);
    answer.setReleaseType(variant);
    answer.setGitSha(variant);
    const Value value = arrayOf(1);
    answer.setSwVersion(value);
    answer.setBuildRevision(value);
    answer.setBuildTS(value);
    answer.setReleaseType(value);
    answer.setGitSha(value);
    EXPECT_EQ(answer, whole());
}

TEST(GetSwVersionAnswer, clonesAndCompares)
{
    const std::unique_ptr<ProtoAnswer> copy(whole().clone());
    EXPECT_EQ(className(copy.get()), "GetSwVersionAnswer");
    EXPECT_TRUE(whole().equalTo(copy.get()));
    const Answer others[] = {{"3.14.3", 5000000000ULL, time(), "beta", "0a1b2c"},
                             {"3.14.2", 5000000001ULL, time(), "beta", "0a1b2c"},
                             {"3.14.2", 5000000000ULL, time().addMSecs(1), "beta", "0a1b2c"},
                             {"3.14.2", 5000000000ULL, time(), "final", "0a1b2c"},
                             {"3.14.2", 5000000000ULL, time(), "beta", "0a1b2d"}};
    for (const Answer &other : others)
        EXPECT_FALSE(whole().equalTo(&other));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(whole().equalTo(&plain));
    EXPECT_FALSE(whole().equalTo(nullptr));
}

} // namespace
