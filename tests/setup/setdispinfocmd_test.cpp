// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setdispinfocmd.h"

#include "setup/cleardispinfocmd.h"
#include "setup/dispinfotesting.h"

#include <type_traits>

namespace {

using namespace testing_setup;

CommandFacts facts()
{
    CommandFacts facts(formsOf<SetDispInfoCmd>());
    facts.catalogue = {"SET_DISP_INFO", 25, "0077", 2};
    facts.protoType = 1;
    facts.valueFunction = "SetDispInfoCmd::SetDispInfoCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SetDispInfoCmd::SetDispInfoCmd(QList<QVariant>)";
    facts.arguments = {
        required().refuses({}, {}, noInfoType()), // by the class below: see refusesATypeThatIsNone
        required(Text, {"DE00308", "DE00310", "Dispenser info value: expected String parameter",
                        "Dispenser info type: expected INT parameter"})};
    facts.getters = {getter(&SetDispInfoCmd::infoType), getter(&SetDispInfoCmd::value)};
    facts.defaults = Request().parameters({0, ""}).written(R"([0, ""])").sends({0, 0});
    facts.requests = {
        Request({3, "K 1z"})
            .typed<SetDispInfoCmd>(3, "K 1z")
            .written(R"([3, "K 1z"])")
            .sends({3, 2, 75, 32, 49, 122}),
        Request({6, ""}).typed<SetDispInfoCmd>(6, "").written(R"([6, ""])").sends({6, 0}),
        // e with an accent is 233; the euro sign has no code
        Request({7, QString::fromUtf8("é€ÿ")})
            .typed<SetDispInfoCmd>(7, QString::fromUtf8("é€ÿ"))
            .written("[7, \"é€ÿ\"]")
            .sends({7, 2, 233, 0, 255}),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(SetDispInfoCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SetDispInfoCmd, refusesATypeThatIsNone)
{
    const ArgumentRefusal refusal = noInfoType();
    for (const Value &other : otherValues(Integer)) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE00304", refusal.text.c_str(), ofDispInfoValue,
                      [&] { SetDispInfoCmd{arrayOf(other, 5)}; });
    }
    for (const QVariant &other : otherVariants(Integer)) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE00306", refusal.text.c_str(), ofDispInfoList, [&] {
            SetDispInfoCmd{List{other, 5}};
        });
    }
}

TEST(SetDispInfoCmd, clearsAsItsSisterWithoutAText)
{
    for (const int family : {1, 2})
        EXPECT_EQ(SetDispInfoCmd(4, QString()).serialParameters(family),
                  ClearDispInfoCmd(4).serialParameters(family));
}

TEST(SetDispInfoCmd, takesNoPlainValues)
{
    static_assert(!std::is_constructible_v<SetDispInfoCmd, int>);
    static_assert(!std::is_constructible_v<SetDispInfoCmd, bool>);
    static_assert(!std::is_constructible_v<SetDispInfoCmd, double>);
    static_assert(!std::is_constructible_v<SetDispInfoCmd, const char *>);
}

} // namespace
