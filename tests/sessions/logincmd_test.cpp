// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/logincmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;
using Type = SerialDeviceType;

constexpr char notMade[] = "Failed to create LoginAnswer";

AnswerFacts answers()
{
    constexpr char invalid[] = "LoginAnswer decoding failed: invalid QVariant value";
    constexpr char dump[] = R"({"session_id": "S-7"})";
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue("LoginAnswer", structOf({{"session_id", "S-7"}}), dump)
            .failsWith("DE01291", notMade)
            .refuses(Value(0), "DE00353", invalid, "LoginAnswer::LoginAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList("LoginAnswer", {"S-7"}, dump)
                       .failsWith("DE00367", notMade)
                       .refuses({}, "DE00353", invalid, "LoginAnswer::LoginAnswer(QList<QVariant>&)");
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<LoginCmd>());
    facts.catalogue = {"LOGIN", 59, "", 2};
    facts.protoType = 2;
    facts.valueFunction = "LoginCmd::LoginCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "LoginCmd::LoginCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE00160", "DE00160", "Login failed: expected Int type for first parameter"})
            .takes({0, -1, 2147483647}),
        required(Text, {"DE00161", "DE00161", "Login failed: expected String type for second parameter"})
            .takes({"", QString::fromUtf8("T\xC3\xBCr")}),
        optional(Integer, {"DE01396", "DE01396", "Login failed: expected int type for third parameter"}),
        optional(Integer, {"DE03030", "DE03030", "Login failed: expected int type for fourth parameter"})
            .takes({1, 2, 4, 3, -1}),
    };
    facts.words = silence();
    facts.defaults = Request().parameters({0, "", 0, 1}).written(R"([0, "", 0, 1])");
    facts.requests = {
        Request({3, "till", 2, 4})
            .typed<LoginCmd>(MachineID(3, Type::Mixer), QString("till"), 2)
            .written(R"([3, "till", 2, 4])"),
        Request({3, "till", 2})
            .typed<LoginCmd>(3, QString("till"), 2)
            .parameters({3, "till", 2, 1})
            .written(R"([3, "till", 2, 1])"),
        Request({7, "till"}).parameters({7, "till", 0, 1}).written(R"([7, "till", 0, 1])"),
        Request({5, QString::fromUtf8("T\xC3\xBCr"), 1, 2})
            .typed<LoginCmd>(Session(17, MachineID(5, Type::Scale), QString::fromUtf8("T\xC3\xBCr"), 1))
            .written("[5, \"T\xC3\xBCr\", 1, 2]"),
    };
    facts.answers = answers();
    return facts;
}

TEST(LoginCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(LoginCmd, holdsASession)
{
    const LoginCmd mixer(arrayOf(3, "till", 2, 4));
    EXPECT_EQ(mixer.session(), Session(MachineID(3, Type::Mixer), "till", 2));
    const LoginCmd dispenser(List{3, "till"});
    EXPECT_EQ(dispenser.session(), Session(MachineID(3, Type::Dispenser), "till", 0));
    EXPECT_EQ(LoginCmd().session(), Session());
    const Session whole(17, MachineID(5, Type::Scale), "till", 1, "41", "29", true);
    EXPECT_EQ(LoginCmd(whole).session(), whole);
}

TEST(LoginCmd, takesNoNumberAlone)
{
    static_assert(!std::is_constructible_v<LoginCmd, int>);
    static_assert(!std::is_convertible_v<Session, LoginCmd>);
}

} // namespace
