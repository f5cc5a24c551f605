// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareresetcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"

#include <QuvFramework/fw_firmwarefile.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <type_traits>

namespace {

using namespace testing_base;

using Addresses = QList<int>;

constexpr char ofValue[] = "FirmwareResetCmd::FirmwareResetCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "FirmwareResetCmd::FirmwareResetCmd(QList<QVariant>)";
constexpr char badType[] = "FirmwareResetCmd: invalid board type parameter";
constexpr char badAddress[] = "FirmwareResetCmd: invalid board address parameter";
constexpr char badAddresses[] = "FirmwareResetCmd: invalid board addresses parameter";
constexpr char noType[] = "FirmwareResetCmd: board type: expected INT parameter";
constexpr char noAddresses[] = "FirmwareResetCmd: error in board addresses decoding";

FirmwareFile fileFor(int type, const Addresses &addresses)
{
    return FirmwareFile("image", addresses, type);
}

QVariant addressesOf(const ProtoCommand &command)
{
    // variants of integer lists do not compare
    return {intListToVariant(dynamic_cast<const FirmwareResetCmd &>(command).boardAddresses())};
}

Request ofBoards(int type, const List &addresses)
{
    Value struc;
    struc["board_addresses"] = arrayOfList(addresses);
    return Request({type, QVariant(addresses)}).value(arrayOf(type, struc));
}

Request withoutAddresses(int type)
{
    return Request({type})
        .parameters({type, QVariant(List())})
        .written("[" + std::to_string(type) + "]")
        .sends({type})
        .notReadBack();
}

std::vector<TypedRefusal> typedRefusals()
{
    constexpr char ofType[] = "FirmwareResetCmd::FirmwareResetCmd(int)";
    constexpr char ofBoard[] = "FirmwareResetCmd::FirmwareResetCmd(int, int)";
    constexpr char ofBoardList[] = "FirmwareResetCmd::FirmwareResetCmd(int, QList<int>)";
    constexpr char ofFile[] = "FirmwareResetCmd::FirmwareResetCmd(const FirmwareFile&)";
    std::vector<TypedRefusal> refusals;
    for (const int type : {-1, 0, 16}) {
        refusals.push_back({made<FirmwareResetCmd>(type), {"DE00821", badType}, ofType});
        refusals.push_back({made<FirmwareResetCmd>(type, 3), {"DE00821", badType}, ofBoard});
        refusals.push_back({made<FirmwareResetCmd>(type, Addresses{3}), {"DE01486", badType}, ofBoardList});
        refusals.push_back({made<FirmwareResetCmd>(fileFor(type, {3})), {"DE01489", badType}, ofFile});
    }
    for (const int address : {-1, 0, 216}) {
        const Addresses addresses = {3, address};
        refusals.push_back({made<FirmwareResetCmd>(2, address), {"DE00823", badAddress}, ofBoard});
        refusals.push_back({made<FirmwareResetCmd>(2, addresses), {"DE01487", badAddresses}, ofBoardList});
        refusals.push_back(
            {made<FirmwareResetCmd>(fileFor(2, addresses)), {"DE01490", badAddresses}, ofFile});
    }
    return refusals;
}

CommandFacts facts()
{
    constexpr char writtenTwo[] = R"([2, {"board_addresses": [3, 4]}])";
    CommandFacts facts(formsOf<FirmwareResetCmd>());
    facts.catalogue = {"RESET_FW", 32, "3F78", 1};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.getters = {getter(&FirmwareResetCmd::boardType), addressesOf};
    facts.defaults = withoutAddresses(-1);
    facts.requests = {
        ofBoards(2, {3, 4}).typed<FirmwareResetCmd>(2, Addresses{3, 4}).written(writtenTwo).sends({2, 3, 4}),
        ofBoards(2, {3, 4}).typed<FirmwareResetCmd>(fileFor(2, {3, 4})).written(writtenTwo).sends({2, 3, 4}),
        ofBoards(15, {215})
            .typed<FirmwareResetCmd>(15, 215)
            .written(R"([15, {"board_addresses": [215]}])")
            .sends({15, 215}),
        ofBoards(1, {201})
            .typed<FirmwareResetCmd>(1)
            .written(R"([1, {"board_addresses": [201]}])")
            .sends({1, 201}),
        withoutAddresses(7).typed<FirmwareResetCmd>(7, Addresses()),
        withoutAddresses(7).typed<FirmwareResetCmd>(fileFor(7, {})),
        // what is decoded is not checked
        ofBoards(-5, {0, -1, 999})
            .written(R"([-5, {"board_addresses": [0, -1, 999]}])")
            .sends({-5, 0, -1, 999}),
        ofBoards(2, {3})
            .alsoFromList({2, QVariant::fromValue(Addresses{3})})
            .parameters({2, QVariant(List{3})})
            .written(R"([2, {"board_addresses": [3]}])")
            .sends({2, 3}),
    };
    facts.typedRefusals = typedRefusals();
    facts.answers = serialAnswers();
    return facts;
}

TEST(FirmwareResetCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(FirmwareResetCmd, tellsItsArguments)
{
    constexpr char addresses[] =
        "board_addresses (struct) = {\"board_addresses\": []}: member \"board_addresses\": "
        "an array of one int at least (in a list the list itself)";
    EXPECT_EQ(
        argumentsOf("RESET_FW"),
        (Lines{"board_type (int): 1 to 15", "  XML-RPC, another type: DE00826",
               "  list, another type: DE00829", addresses, "  XML-RPC, without an address: DE00827",
               "  list, without an address: DE01488", "  XML-RPC, with an address of another type: DE00827",
               "  list, with an address of another type: DE00830"}));
}

TEST(FirmwareResetCmd, readsBackTheTypeAloneToo)
{
    EXPECT_EQ(FirmwareResetCmd(FirmwareResetCmd(7, Addresses()).xmlrpc_parameters()).boardType(), 7);
    EXPECT_STREQ(FirmwareResetCmd::BOARD_ADDRESSES_TAG, "board_addresses");
}

TEST(FirmwareResetCmd, needsATypeAndWhatGivesAddresses)
{
    for (const Value &other : {Value("2"), Value(2.0), Value(true), arrayOf(2), structOf({})}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE00826", noType, ofValue, [&] { const FirmwareResetCmd command(arrayOf(other)); });
    }
    for (const Value &other :
         {Value(3), Value("3"), arrayOf(3, 4), structOf({}), structOf({{"board_addresses", 3}}),
          structOf({{"board_addresses", arrayOf()}}), structOf({{"board_addresses", arrayOf(3, "4")}}),
          structOf({{"addresses", arrayOf(3)}})}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE00827", noAddresses, ofValue,
                      [&] { const FirmwareResetCmd command(arrayOf(2, other)); });
    }
}

TEST(FirmwareResetCmd, needsATypeAndAddressesInAListToo)
{
    for (const QVariant &other :
         {QVariant(), QVariant("2"), QVariant(2.0), QVariant(true), QVariant(List{2})}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE00829", noType, ofList, [&] { const FirmwareResetCmd command(List{other}); });
    }
    for (const QVariant &other : {QVariant("4"), QVariant(4.0), QVariant(), QVariant(List{4})}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE00830", "FirmwareResetCmd: board address: expected INT parameter", ofList, [&] {
            const FirmwareResetCmd command(List{2, QVariant(List{3, other})});
        });
    }
    for (const QVariant &other :
         {QVariant(), QVariant(3), QVariant("3"), QVariant(List()), QVariant::fromValue(Addresses()),
          QVariant(QVariantMap{{"board_addresses", List{3}}})}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE01488", noAddresses, ofList, [&] {
            const FirmwareResetCmd command(List{2, other});
        });
    }
}

TEST(FirmwareResetCmd, restartsAllBoardsOfAType)
{
    FirmwareResetCmd command(2);
    EXPECT_EQ(command.boardType(), 2);
    ASSERT_EQ(command.boardAddresses().size(), 200);
    EXPECT_EQ(command.boardAddresses().first(), 1);
    EXPECT_EQ(command.boardAddresses().last(), 200);
    command.setAllBoardAddress(3);
    EXPECT_EQ(command.boardAddresses(), Addresses{203});
    EXPECT_EQ(command.boardType(), 2);
    command.setAllBoardAddress(16);
    EXPECT_EQ(command.boardAddresses(), Addresses());
}

TEST(FirmwareResetCmd, checksTypesAndAddresses)
{
    for (const int good : {1, 15}) {
        EXPECT_TRUE(FirmwareResetCmd::checkBoardType(good));
        EXPECT_TRUE(FirmwareResetCmd::checkBoardAddress(good));
    }
    for (const int bad : {-1, 0, 216}) {
        EXPECT_FALSE(FirmwareResetCmd::checkBoardType(bad));
        EXPECT_FALSE(FirmwareResetCmd::checkBoardAddress(bad));
        EXPECT_FALSE(FirmwareResetCmd::checkBoardAddresses({1, bad}));
    }
    EXPECT_TRUE(FirmwareResetCmd::checkBoardAddresses({1, 215}));
    EXPECT_TRUE(FirmwareResetCmd::checkBoardAddresses({}));
    static_assert(!std::is_constructible_v<FirmwareResetCmd, bool>);
    static_assert(!std::is_constructible_v<FirmwareResetCmd, double>);
    static_assert(!std::is_constructible_v<FirmwareResetCmd, const char *>);
}

} // namespace
