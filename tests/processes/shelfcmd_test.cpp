// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/shelfcmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "ShelfCmd::ShelfCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "ShelfCmd::ShelfCmd(QList<QVariant>)";

CommandFacts facts()
{
    CommandFacts facts(formsOf<ShelfCmd>());
    facts.catalogue = {"SHELF_MOVE", 4, "0071", 1};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {
        required(Integer, {"DE00811", "DE00815", "Shelf command type: expected INT parameter"}),
        optional(Integer, {"DE00812", "DE00816", "Shelf height: expected INT parameter",
                           "Shelf command type: expected INT parameter"})};
    facts.getters = {getter(&ShelfCmd::commandType), getter(&ShelfCmd::height)};
    facts.words = Words("", "In progress");
    facts.defaults = Request().parameters({-1, 0}).notWritten().sends({-1, 0, 0}).takes(5000);
    facts.requests = {
        Request({0, 300})
            .typed<ShelfCmd>(0, 300)
            .written("[0, 300]")
            .sends({0, 54, 1})
            .says({"Shelf move to can position", "Moving shelf to can position",
                   "Moving shelf to can position (height 300 mm)"}),
        Request({1, 10})
            .typed<ShelfCmd>(1, 10)
            .written("[1, 10]")
            .sends({1, 10, 0})
            .says({"Shelf move to low position", "Moving shelf to low position",
                   "Moving shelf to low position (height 10 mm)"}),
        Request({2, 245}).typed<ShelfCmd>(2, 245).written("[2, 245]").sends({2, 245, 0}),
        Request({2}).parameters({2, 0}).typed<ShelfCmd>(2, 0).written("[2, 0]").sends({2, 0, 0}),
        Request({7, 60515}).typed<ShelfCmd>(7, 60515).written("[7, 60515]").sends({7, 245, 245}),
        Request({7, 60516}).typed<ShelfCmd>(7, 60516).written("[7, 60516]").sends({7, 0, 0, 1}),
        Request({7, -1}).typed<ShelfCmd>(7, -1).written("[7, -1]").sends({7}),
        Request({-2, 5}).typed<ShelfCmd>(-2, 5).written("[-2, 5]").sends({-2, 5, 0}),
        Request({-1, 5}).typed<ShelfCmd>(-1, 5).notWritten().sends({-1, 5, 0}),
    };
    for (Request &request : facts.requests)
        request.takes(5000);
    facts.answers = serialAnswers();
    return facts;
}

TEST(ShelfCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(ShelfCmd, needsAHeightForTheTypesBelowTwo)
{
    constexpr char noHeight[] = "Expected shelf height for this command type parameter";
    for (int type : {0, 1, -1, -2}) {
        SCOPED_TRACE(type);
        expectRefusal("DE00813", noHeight, ofValue, [&] { const ShelfCmd command(arrayOf(type)); });
        expectRefusal("DE00817", noHeight, ofList, [&] { const ShelfCmd command(List{type}); });
    }
}

TEST(ShelfCmd, namesTwoTypes)
{
    EXPECT_EQ(ShelfCmd(ShelfCmd::CanPosition, 1).commandType(), 0);
    EXPECT_EQ(ShelfCmd(ShelfCmd::LowPosition, 1).commandType(), 1);
    for (int type : {0, 1})
        EXPECT_TRUE(ShelfCmd::checkCommandType(type)) << type;
    for (int type : {-1, 2, 245})
        EXPECT_FALSE(ShelfCmd::checkCommandType(type)) << type;
}

TEST(ShelfCmd, doesNotMistakeOneArgumentForAMovement)
{
    static_assert(!std::is_constructible_v<ShelfCmd, int>);
    static_assert(!std::is_constructible_v<ShelfCmd, bool>);
    static_assert(!std::is_constructible_v<ShelfCmd, double>);
    static_assert(!std::is_constructible_v<ShelfCmd, const char *>);
}

} // namespace
