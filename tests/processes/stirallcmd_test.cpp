// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stirallcmd.h"

#include "base/factlines.h"
#include "processes/stirredmachine.h"

#include <QuvFramework/fw_mixer.h>

#include <gmock/gmock.h>

namespace {

using namespace testing_processes;
using testing::ElementsAre;
using testing::IsEmpty;

using Items = QList<StirItem>;

constexpr char ofVariants[] =
    "StirAllCmd::StirAllCmd(const QList<QVariant>&, int, qlonglong, bool, uint, const FW_Dispenser*)";
constexpr char ofItems[] =
    "StirAllCmd::StirAllCmd(const QList<StirItem>&, int, bool, uint, const FW_Dispenser*)";
constexpr char ofValue[] = "StirAllCmd::StirAllCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "StirAllCmd::StirAllCmd(QList<QVariant>, const FW_Dispenser*)";

constexpr char badItem[] = "StirAllCmd failed: invalid StirItem parameter";
constexpr char badItems[] = "Stirring items: invalid parameters";
constexpr char badType[] = "StirAllCmd failed: invalid stirring type parameter";

QVariant variantOf(const Items &items)
{
    return QVariant::fromValue(items);
}

Value itemStruct(const Value &item, int duration)
{
    return structOf({{"item", item}, {"duration", duration}});
}

/** What the command is told, in all forms, and holds. */
Request request(const Items &items, int type, bool sequential, uint interval, const FW_Dispenser *machine)
{
    Value array = arrayOf();
    for (const StirItem &item : items)
        array[array.size()] = itemStruct(item.item().userType() == QMetaType::QString
                                             ? Value(item.item().toString().toStdString())
                                             : Value(item.item().toInt()),
                                         static_cast<int>(item.duration()));
    return Request({variantOf(items), type, sequential, interval})
        .value(arrayOf(array, type, sequential, static_cast<int>(interval)))
        .typed<StirAllCmd>(items, type, sequential, interval, machine)
        .holds({variantOf(items), type, sequential, interval});
}

/** The same told by the first arguments alone. */
Request toldBy(int count, Request request)
{
    Value array = arrayOf();
    for (int i = 0; i < count; ++i)
        array[i] = Value((*request.valueForm)[i]);
    request.parameters(request.arguments).value(array);
    request.arguments = request.arguments.mid(0, count);
    return request;
}

CommandFacts facts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<StirAllCmd>(machine));
    facts.catalogue = {"STIR_ALL", 100, "", 0};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    const List unread = {QVariant(),
                         "x",
                         -1,
                         true,
                         3.0,
                         QVariantMap{{"item", 1}, {"duration", 40}},
                         List{3},
                         List{QVariantMap{{"duration", 40}}},
                         List{QVariantMap{{"item", true}, {"duration", 4}}},
                         List{QVariantMap{{"item", 1}, {"duration", -2}}}};
    facts.arguments = {
        optional()
            .refuses({Value("x"), Value(true), Value(3.0), itemStruct(1, 40)}, {},
                     {"DE01875", "", "Stirring items: invalid parameter"})
            .refuses({arrayOf(3), arrayOf(structOf({})), arrayOf(itemStruct(1, 40), itemStruct(true, 40)),
                      arrayOf(itemStruct(1, -2)), arrayOf(itemStruct(1, 60516))},
                     unread, {"DE01874", "DE01890", badItem}),
        optional(Integer, {"DE01878", "DE01889", "Stirring sequential: expected BOOL parameter", badType})
            .outOfRange({-1, 5, 100}, {"DE01921", "DE01885", badType}),
        optional(Flag, {"DE01878", "DE01886", "Stirring sequential: expected BOOL parameter"}),
        optional(Unsigned, {"DE01879", "DE01887", "Stirring interval: expected INT parameter"})
            .takes({0, 1, 2147483647}),
    };
    facts.getters = {getter(&StirAllCmd::items), getter(&StirAllCmd::stirringItemType),
                     getter(&StirAllCmd::isSequential), getter(&StirAllCmd::interval)};
    facts.words = {"Stir all", "Stirring all circuits"};
    facts.defaults = request({}, 0, true, 500, nullptr)
                         .parameters({variantOf({}), 0, true, 500U})
                         .written("[[], 0, true, 500]");
    facts.requests = {
        request({StirItem(5, 40), StirItem(3, -1)}, 0, false, 700, machine)
            .written(R"([[{"duration": 40, "item": 5}, {"duration": -1, "item": 3}], 0, false, 700])"),
        request({StirItem(QString("C"), 40)}, 4, true, 0, machine)
            .written(R"([[{"duration": 40, "item": "C"}], 4, true, 0])"),
        toldBy(2, request({StirItem(102, 7)}, 2, true, 500, machine))
            .written(R"([[{"duration": 7, "item": 102}], 2, true, 500])"),
        toldBy(3, request({}, 3, false, 500, machine)).written("[[], 3, false, 500]"),
        request({StirItem(40)}, 0, true, 500, machine)
            .written(R"([[{"duration": 40, "item": 0}], 0, true, 500])"),
    };
    const Request all = facts.requests.back();
    facts.requests.push_back(all.alsoFromList({40}));
    facts.requests.push_back(all.alsoFromList({QVariant(List{QVariantMap{{"item", 0}, {"duration", 40}}})}));
    facts.requests.push_back(all.alsoFromList({QVariant(List{QVariant::fromValue(StirItem(40))})}));
    facts.requests.push_back(all.alsoFromValue(arrayOf(40, 0, true, 500)));
    const Request none = toldBy(0, request({}, 0, true, 500, machine)).written("[[], 0, true, 500]");
    facts.requests.push_back(none);
    for (const int duration : {-1, -2000})
        facts.requests.push_back(none.alsoFromValue(arrayOf(duration)));
    facts.timeNeedsAMachine = true;
    facts.answers = serialAnswers();
    return facts;
}

TEST(StirAllCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = stirredMachine();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(StirAllCmd, namesItsArguments)
{
    EXPECT_STREQ(StirAllCmd::ITEMS, "items");
    EXPECT_STREQ(StirAllCmd::ITEMS_TYPE, "items_type");
    EXPECT_STREQ(StirItem::ITEM, "item");
    EXPECT_STREQ(StirItem::DURATION, "duration");
}

// ---------------------------------------------------------------- construction

TEST(StirAllCmd, stirsAllCircuitsForADuration)
{
    const StirAllCmd command(40, false, 700, nullptr);
    EXPECT_EQ(command.items(), Items{StirItem(40)});
    EXPECT_EQ(command.stirringItemType(), 0);
    EXPECT_FALSE(command.isSequential());
    EXPECT_EQ(command.interval(), 700U);
    EXPECT_EQ(StirAllCmd(0, true, 0, nullptr).items(), Items{StirItem(0)});
    for (const int duration : {-1, -2, -60515})
        EXPECT_THAT(StirAllCmd(duration, true, 500, nullptr).items(), IsEmpty());
}

TEST(StirAllCmd, stirsNumbersAndTextsForOneDuration)
{
    const StirAllCmd command(List{5, 3}, 0, 40, false, 700, nullptr);
    EXPECT_EQ(command.items(), (Items{StirItem(5, 40), StirItem(3, 40)}));
    EXPECT_EQ(command.stirringItemType(), 0);
    EXPECT_FALSE(command.isSequential());
    EXPECT_EQ(command.interval(), 700U);
    EXPECT_EQ(StirAllCmd(List{"C"}, 4, -1, true, 0, nullptr).items(), Items{StirItem(QString("C"), -1)});
}

TEST(StirAllCmd, passesOnWhatAnItemRefuses)
{
    constexpr char ofItem[] = "StirItem::StirItem(QVariant, qlonglong)";
    constexpr char badDuration[] = "Stirring duration: invalid parameter";
    expectRefusal("DE01876", "Stirring item: invalid parameter", ofItem, [] {
        StirAllCmd(List{5, true}, 0, 40, true, 500, nullptr);
    });
    expectRefusal("DE01877", badDuration, ofItem, [] { StirAllCmd(List{5}, 0, -2, true, 500, nullptr); });
    expectRefusal("DE01877", badDuration, ofItem, [] { StirAllCmd(60516, true, 500, nullptr); });
    expectRefusal("DE01877", badDuration, ofItem, [] { StirAllCmd(arrayOf(60516), nullptr); });
    expectRefusal("DE01877", badDuration, ofItem, [] { StirAllCmd(List{60516}, nullptr); });
}

TEST(StirAllCmd, takesAnIntervalThatNoIntHolds)
{
    EXPECT_EQ(StirAllCmd(40, true, 4294967295U, nullptr).interval(), 4294967295U);
    const StirAllCmd command(List{40, 0, true, 3000000000U}, nullptr);
    EXPECT_EQ(command.interval(), 3000000000U);
    EXPECT_EQ(command.parameters().at(3), QVariant(3000000000U));
    EXPECT_EQ(command.parameters().at(3).userType(), QMetaType::UInt);
    EXPECT_EQ(dumped(command.xmlrpc_parameters()),
              R"([[{"duration": 40, "item": 0}], 0, true, -1294967296])");
    EXPECT_EQ(StirAllCmd(command.parameters(), nullptr).interval(), 3000000000U);
}

TEST(StirAllCmd, changesItsType)
{
    StirAllCmd command;
    for (const int type : {4, 3, 2, 1, 0}) {
        EXPECT_TRUE(StirAllCmd::checkStirringItemType(type));
        EXPECT_TRUE(command.setStirringItemType(type));
        EXPECT_EQ(command.stirringItemType(), type);
    }
    command.setStirringItemType(2);
    for (const int type : {-1, 5, 100}) {
        EXPECT_FALSE(StirAllCmd::checkStirringItemType(type));
        EXPECT_FALSE(command.setStirringItemType(type));
        EXPECT_EQ(command.stirringItemType(), 2);
    }
}

TEST(StirAllCmd, tellsItsIntervalAsAnInt)
{
    const Lines lines = argumentsOf("STIR_ALL");
    ASSERT_GE(lines.size(), 3U);
    EXPECT_EQ(Lines(lines.end() - 3, lines.end()),
              (Lines{"interval (int) = 500: milliseconds after each run, 0 and above",
                     "  XML-RPC, another type: DE01879", "  list, another type: DE01887"}));
}

// ---------------------------------------------------------------- the check

void expectRefused(const Items &items, int type, const FW_Dispenser &machine)
{
    expectRefusal("DE01917", badItems, ofItems, [&] { StirAllCmd(items, type, true, 500, &machine); });
    Request same = request(items, type, true, 500, nullptr);
    expectRefusal("DE01922", badItems, ofValue, [&] { StirAllCmd(*same.valueForm, &machine); });
    expectRefusal("DE01924", badItems, ofList, [&] { StirAllCmd(same.arguments, &machine); });
    EXPECT_FALSE(StirAllCmd(items, type, true, 500, nullptr).checkStirItems(machine));
}

TEST(StirAllCmd, refusesItemsThatTheDispenserDoesNotHave)
{
    FW_Dispenser machine = stirredMachine();
    expectRefused({StirItem(5, 40), StirItem(99, 40)}, 1, machine);
    expectRefused({StirItem(QString("5"), 40)}, 0, machine);
    expectRefused({StirItem(5, 40)}, 2, machine);
    expectRefused({StirItem(9, 40)}, 3, machine);
    expectRefused({StirItem(QString("c"), 40)}, 4, machine);
    expectRefused({StirItem(QString("N"), 40)}, 4, machine); // held by no canister
    expectRefusal("DE01918", badItems, ofVariants, [&] {
        StirAllCmd(List{5, 103}, 2, 40, true, 500, &machine);
    });
    machine.getCanisterById(101)->setEnabled(false);
    expectRefused({StirItem(101, 40)}, 2, machine);
}

TEST(StirAllCmd, checksATypeThatThereIsNotByItsItems)
{
    const FW_Dispenser machine = stirredMachine();
    expectRefusal("DE01917", badItems, ofItems,
                  [&] { StirAllCmd(Items{StirItem(5, 40)}, 5, true, 500, &machine); });
    EXPECT_EQ(StirAllCmd(Items{StirItem(5, 40)}, 5, true, 500, nullptr).stirringItemType(), 5);
}

TEST(StirAllCmd, takesAllCircuitsOfAnyDispenser)
{
    const FW_Dispenser none;
    for (const int type : {0, 1, 2, 3, 4}) {
        SCOPED_TRACE(type);
        EXPECT_TRUE(StirAllCmd(Items(), type, true, 500, &none).checkStirItems(none));
        EXPECT_TRUE(StirAllCmd(Items{StirItem(40)}, type, true, 500, &none).checkStirItems(none));
    }
    EXPECT_NO_THROW(StirAllCmd(40, true, 500, &none));
    EXPECT_FALSE(StirAllCmd(Items{StirItem(40), StirItem(40)}, 2, true, 500, nullptr).checkStirItems(none));
}

// ---------------------------------------------------------------- items of a machine

/** Position, duration, ... of the items. */
List contentOf(const StirAllCmd &command)
{
    List content;
    for (const StirItem &item : command.items())
        content << item.item() << item.duration();
    return content;
}

TEST(StirAllCmd, buildsItemsForADuration)
{
    FW_Dispenser machine = partlyStirredMachine();
    for (const int type : {0, 1}) {
        StirAllCmd command(Items(), type, true, 500, &machine);
        EXPECT_TRUE(command.buildStirItems(40));
        EXPECT_EQ(contentOf(command), (List{1, 40, 2, 40, 3, 40, 5, 40}));
        EXPECT_EQ(command.stirringItemType(), type);
    }
    StirAllCmd canisters(Items(), 2, true, 500, &machine);
    EXPECT_TRUE(canisters.buildStirItems(0));
    EXPECT_EQ(contentOf(canisters), (List{5, 0, 1, 0, 2, 0, 3, 0, 6, 0}));
    for (const qlonglong duration : {4294967326LL, -4294967266LL, -2LL, 60516LL}) { // two are 30 in 32 bits
        expectRefusal("DE01877", "Stirring duration: invalid parameter",
                      "StirItem::StirItem(QVariant, qlonglong)", [&] { canisters.buildStirItems(duration); });
        EXPECT_EQ(contentOf(canisters), (List{5, 0, 1, 0, 2, 0, 3, 0, 6, 0}));
    }
    for (const int type : {3, 4}) {
        StirAllCmd command(Items(), type, true, 500, &machine);
        EXPECT_TRUE(command.buildStirItems(9));
        EXPECT_EQ(contentOf(command), (List{1, 9, 2, 9, 3, 9, 5, 9, 6, 9})); // in the colorants' order
    }
}

TEST(StirAllCmd, buildsItemsForTheActivities)
{
    const FW_Dispenser machine = stirredMachine();
    StirAllCmd command(Items{StirItem(5, 40)}, 0, true, 500, &machine);
    EXPECT_TRUE(command.buildStirItems(-1));
    EXPECT_EQ(contentOf(command), (List{1, 30, 2, 30, 3, 40, 5, 20}));

    // a circuit without a motor tells no activity
    const FW_Dispenser partly = partlyStirredMachine();
    StirAllCmd canisters(Items{StirItem(101, 40)}, 2, true, 500, &partly);
    EXPECT_FALSE(canisters.buildStirItems(-1));
    EXPECT_EQ(contentOf(canisters), (List{101, 40}));
    StirAllCmd positions(Items(), 0, true, 500, &partly);
    EXPECT_TRUE(positions.buildStirItems(-1));
    EXPECT_EQ(positions.items().size(), 4);
}

TEST(StirAllCmd, buildsNoItemsWithoutADispenserOrAType)
{
    StirAllCmd alone(Items{StirItem(5, 40)}, 0, true, 500, nullptr);
    EXPECT_FALSE(alone.buildStirItems(40));
    EXPECT_EQ(contentOf(alone), (List{5, 40}));
    const FW_Dispenser machine = stirredMachine();
    StirAllCmd untyped(Items(), 5, true, 500, &machine);
    EXPECT_FALSE(untyped.buildStirItems(40));
    EXPECT_THAT(untyped.items(), IsEmpty());
}

TEST(StirAllCmd, takesPositionsWithTheirDurations)
{
    StirAllCmd command(Items{StirItem(5, 40)}, 2, true, 500, nullptr);
    EXPECT_FALSE(command.setStirItems({1, 2}, {30}));
    EXPECT_EQ(contentOf(command), (List{5, 40}));
    EXPECT_TRUE(command.setStirItems({1, 2}, {30, -1}));
    EXPECT_EQ(contentOf(command), (List{1, 30, 2, -1}));
    expectRefusal("DE01877", "Stirring duration: invalid parameter",
                  "StirItem::StirItem(QVariant, qlonglong)", [&] { command.setStirItems({3}, {-2}); });
    EXPECT_EQ(contentOf(command), (List{1, 30, 2, -1}));
    EXPECT_TRUE(command.setStirItems({}, {}));
    EXPECT_THAT(command.items(), IsEmpty());
}

TEST(StirAllCmd, findsTheFirstDurationThatIsOne)
{
    const auto of = [](const Items &items) { return StirAllCmd(items, 0, true, 500, nullptr); };
    EXPECT_EQ(of({}).getFirstValidDurationInItems(), -1);
    EXPECT_FALSE(of({}).hasValidDurationsInItems());
    EXPECT_EQ(of({StirItem(1, -1), StirItem(2, -1)}).getFirstValidDurationInItems(), -1);
    EXPECT_FALSE(of({StirItem(1, -1), StirItem(2, -1)}).hasValidDurationsInItems());
    EXPECT_EQ(of({StirItem(1, -1), StirItem(2, 0), StirItem(3, 9)}).getFirstValidDurationInItems(), 0);
    EXPECT_TRUE(of({StirItem(1, -1), StirItem(2, 0)}).hasValidDurationsInItems());
}

// ---------------------------------------------------------------- the series

/** Position, duration, ... of the commands. */
QList<qlonglong> seriesOf(const StirAllCmd &command)
{
    QList<qlonglong> series;
    for (const StirringCmd &single : command.getSingleStirringCommands()) {
        series << single.moduleID() << single.duration();
        EXPECT_FALSE(single.isBusyExecution());
        EXPECT_EQ(single.machine(), nullptr);
    }
    return series;
}

TEST(StirAllCmd, isNoSeriesWithoutADispenser)
{
    EXPECT_THAT(seriesOf(StirAllCmd(40, true, 500, nullptr)), IsEmpty());
}

TEST(StirAllCmd, stirsEveryCircuitWithAMotor)
{
    FW_Dispenser machine = partlyStirredMachine();
    EXPECT_THAT(seriesOf(StirAllCmd(40, true, 500, &machine)), ElementsAre(1, 40, 2, 40, 3, 40, 5, 40));
    EXPECT_THAT(seriesOf(StirAllCmd(-1, true, 500, &machine)), ElementsAre(1, 30, 2, 30, 3, 40, 5, 20));

    machine.getCircuitByPosition(2)->setEnabled(false);
    FW_StirringMotor off;
    off.setEnabled(false);
    machine.getCircuitByPosition(3)->setStirringMotor(off);
    EXPECT_THAT(seriesOf(StirAllCmd(40, true, 500, &machine)), ElementsAre(1, 40, 5, 40));
    EXPECT_THAT(seriesOf(StirAllCmd(-1, true, 500, &machine)), ElementsAre(1, 30, 5, 20));
}

TEST(StirAllCmd, stirsWhatItsItemsName)
{
    const FW_Dispenser machine = partlyStirredMachine();
    EXPECT_THAT(seriesOf(StirAllCmd(Items{StirItem(6, 9), StirItem(5, -1)}, 0, true, 500, &machine)),
                ElementsAre(6, 9, 5, 20));
    EXPECT_THAT(seriesOf(StirAllCmd(Items{StirItem(20, 9), StirItem(10, -1)}, 1, true, 500, &machine)),
                ElementsAre(2, 9, 1, 30));
    EXPECT_THAT(seriesOf(StirAllCmd(Items{StirItem(102, -1), StirItem(101, 9)}, 2, true, 500, &machine)),
                ElementsAre(1, 30, 2, 30, 5, 9));
    EXPECT_THAT(seriesOf(StirAllCmd(Items{StirItem(8, -1)}, 3, true, 500, &machine)),
                ElementsAre(1, 30, 2, 30, 3, 40));
    EXPECT_THAT(seriesOf(StirAllCmd(Items{StirItem(QString("B"), 0)}, 4, true, 500, &machine)),
                ElementsAre(5, 0));
    // all circuits among others are the serial address 0
    EXPECT_THAT(seriesOf(StirAllCmd(Items{StirItem(5, 9), StirItem(8)}, 0, true, 500, &machine)),
                ElementsAre(5, 9, 0, 8));
}

TEST(StirAllCmd, isNoSeriesOfItemsThatTheDispenserDoesNotHave)
{
    const FW_Dispenser machine = stirredMachine();
    StirAllCmd command(Items{StirItem(5, 9), StirItem(102, 9)}, 0, true, 500, &machine);
    ASSERT_TRUE(command.setStirringItemType(2)); // in which 5 is no canister
    EXPECT_THAT(seriesOf(command), IsEmpty());
}

TEST(StirAllCmd, refusesACircuitThatNothingTellsTheDurationOf)
{
    const FW_Dispenser machine = partlyStirredMachine();
    const auto expectThrown = [](const StirAllCmd &command, const FW_Machine *asked) {
        constexpr char signature[] = "StirringCmd::StirringCmd(int, qlonglong, bool)";
        constexpr char text[] = "Stirring duration: invalid parameter";
        expectRefusal("DE01892", text, signature, [&] { command.getSingleStirringCommands(); });
        expectRefusal("DE01892", text, signature, [&] { command.getCmdEstimatedExecutionTime(asked); });
    };
    expectThrown(StirAllCmd(Items{StirItem(6, -1)}, 0, true, 500, &machine), &machine);
    expectThrown(StirAllCmd(Items{StirItem(0, -1)}, 0, true, 500, &machine), &machine);
}

TEST(StirAllCmd, isOneCommandWhereOneMotorStirsAll)
{
    FW_Dispenser machine = stirredMachine();
    machine.setGlobalStirring(true);
    EXPECT_THAT(seriesOf(StirAllCmd(-1, true, 500, &machine)), ElementsAre(0, 20)); // of the first motor
    EXPECT_THAT(seriesOf(StirAllCmd(40, true, 500, &machine)), ElementsAre(0, 40));
    EXPECT_THAT(seriesOf(StirAllCmd(Items{StirItem(0, -1)}, 0, true, 500, &machine)), ElementsAre(0, 20));
    EXPECT_THAT(
        seriesOf(StirAllCmd(Items{StirItem(3, -1), StirItem(2, 0), StirItem(1, 9)}, 0, true, 500, &machine)),
        ElementsAre(0, 0));
    EXPECT_THAT(seriesOf(StirAllCmd(Items{StirItem(3, -1)}, 0, true, 500, &machine)), ElementsAre(0, 20));
}

TEST(StirAllCmd, needsADurationWhereTheOneMotorIsOffOrMissing)
{
    constexpr char signature[] = "StirringCmd::StirringCmd(int, qlonglong, bool)";
    FW_StirringMotor off;
    off.setEnabled(false);
    FW_Dispenser still = stirredMachine();
    still.setStirringMotor(off);
    for (FW_Dispenser machine : {still, dispenserWith({1})}) {
        machine.setGlobalStirring(true);
        expectRefusal("DE01892", "Stirring duration: invalid parameter", signature,
                      [&] { StirAllCmd(-1, true, 500, &machine).getSingleStirringCommands(); });
        EXPECT_THAT(seriesOf(StirAllCmd(40, true, 500, &machine)), ElementsAre(0, 40));
    }
}

// ---------------------------------------------------------------- time

TEST(StirAllCmd, takesTheTimeOfItsRuns)
{
    FW_Dispenser machine = stirredMachine();
    const auto time = [&](const StirAllCmd &command) {
        return command.getCmdEstimatedExecutionTime(&machine);
    };
    EXPECT_EQ(time(StirAllCmd(40, false, 500, &machine)), 81000);
    EXPECT_EQ(time(StirAllCmd(40, true, 500, &machine)), 4 * 40500);
    EXPECT_EQ(time(StirAllCmd(-1, false, 100, &machine)), 30100 + 40100);
    EXPECT_EQ(time(StirAllCmd(-1, true, 0, &machine)), 120000);
    EXPECT_EQ(time(StirAllCmd(40, true, 3000000000U, &machine)), 12000160000LL);

    machine.setStirringParallelism(3); // the last run is shorter
    EXPECT_EQ(time(StirAllCmd(-1, false, 100, &machine)), 40100 + 20100);
    machine.setStirringParallelism(9);
    EXPECT_EQ(time(StirAllCmd(-1, false, 100, &machine)), 40100);
    machine.setStirringParallelism(0);
    EXPECT_EQ(time(StirAllCmd(-1, false, 0, &machine)), 120000);
}

TEST(StirAllCmd, takesLongerOnTwoLinesOfMachines)
{
    FW_Dispenser machine = stirredMachine();
    machine.setModelName("Lumina 2");
    EXPECT_EQ(StirAllCmd(40, false, 500, &machine).getCmdEstimatedExecutionTime(&machine), 131000);
    machine.setModelName("SOLA100");
    EXPECT_EQ(StirAllCmd(40, false, 500, &machine).getCmdEstimatedExecutionTime(&machine), 131000);
    EXPECT_EQ(StirAllCmd(40, false, 500, nullptr).getCmdEstimatedExecutionTime(&machine), 50000);
    machine.setModelName("ROTAN");
    EXPECT_EQ(StirAllCmd(40, false, 500, &machine).getCmdEstimatedExecutionTime(&machine), 81000);
}

TEST(StirAllCmd, takesNoTimeOnWhatIsNoDispenser)
{
    const FW_Dispenser machine = stirredMachine();
    const FW_Mixer mixer;
    EXPECT_EQ(StirAllCmd(40, false, 500, &machine).getCmdEstimatedExecutionTime(nullptr), 0);
    EXPECT_EQ(StirAllCmd(40, false, 500, &machine).getCmdEstimatedExecutionTime(&mixer), 0);
}

} // namespace
