// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/protocommandlist.h"

#include "catalogue/commandrows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <limits>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

using Cmd = ProtoCommandList;

/** A query of a row's kind: what it says for each kind, strictly taken and not. */
struct KindQuery
{
    const char *what;
    bool (*ask)(const QString &name, bool strict);
    bool strict[8];
    bool loose[8];
};

// kinds 0 serial, 1 configuration, 2 and 3 both, 4 special, 5 special and serial, 6 special and configuration, 7 scale
constexpr bool Y = true;
constexpr bool n = false;
constexpr KindQuery kindQueries[] = {
    {"isSerialCommand", Cmd::isSerialCommand, {Y, n, n, n, n, n, n, n}, {Y, n, Y, Y, n, Y, n, n}},
    {"isConfigurationCommand",
     Cmd::isConfigurationCommand,
     {n, Y, n, n, n, n, n, n},
     {n, Y, Y, Y, n, n, Y, n}},
    {"isSerialAndConfigCommand",
     Cmd::isSerialAndConfigCommand,
     {n, n, Y, n, n, n, n, n},
     {n, n, Y, Y, n, n, n, n}},
    {"isConfigAndSerialCommand",
     Cmd::isConfigAndSerialCommand,
     {n, n, n, Y, n, n, n, n},
     {n, n, Y, Y, n, n, n, n}},
    {"isSpecialCommand", Cmd::isSpecialCommand, {n, n, n, n, Y, n, n, n}, {n, n, n, n, Y, Y, Y, n}},
    {"isSpecialAndSerialCommand",
     Cmd::isSpecialAndSerialCommand,
     {n, n, n, n, n, Y, n, n},
     {n, n, n, n, n, Y, n, n}},
    {"isSpecialAndConfigCommand",
     Cmd::isSpecialAndConfigCommand,
     {n, n, n, n, n, n, Y, n},
     {n, n, n, n, n, n, Y, n}},
    {"isScaleCommand", Cmd::isScaleCommand, {n, n, n, n, n, n, n, Y}, {n, n, n, n, n, n, n, Y}},
};

/** What the three questions for the target say for each mask that a row has. */
struct TargetAnswers
{
    int mask;
    bool dispenser;
    bool mixer;
    bool machine;
};

constexpr TargetAnswers targetAnswers[] = {{0, n, n, n}, {1, Y, n, Y}, {4, n, Y, Y}, {5, Y, Y, Y}};

const TargetAnswers &answersForTarget(int mask)
{
    return *std::find_if(std::begin(targetAnswers), std::end(targetAnswers) - 1,
                         [mask](const TargetAnswers &answers) { return answers.mask == mask; });
}

/** Names that no row has, close to names that rows have. */
const QStringList unknownNames = {
    QString(),
    QStringLiteral(""),
    QStringLiteral("tint"),
    QStringLiteral("Tint"),
    QStringLiteral("TIN"),
    QStringLiteral("TINT "),
    QStringLiteral(" TINT"),
    QStringLiteral("TINT3"),
    QStringLiteral("TINT\n"),
    QStringLiteral("TINT,PACK"),
    QStringLiteral("GET_STATU"),
    QStringLiteral("GET_STATUSS"),
    QStringLiteral("GET-STATUS"),
    QStringLiteral("PAUSE_"),
    QStringLiteral("0017"),
    QStringLiteral("7"),
    QStringLiteral("ТINT"), // a Cyrillic letter
    QString(QStringLiteral("TINT") + QChar(0)),
    QString(QStringLiteral("TI") + QChar(0) + QStringLiteral("NT")),
    QString(100000, QLatin1Char('T')),
};

TEST(ProtoCommandList, hasARowForEachCommand)
{
    static_assert(std::size(commandRows) == 167);
    EXPECT_EQ(Cmd::rowCount, 167);
    std::set<std::string> names;
    int id = 0;
    for (const CommandRow &expected : commandRows) {
        SCOPED_TRACE(expected.name);
        EXPECT_EQ(expected.id, id++);
        EXPECT_EQ(static_cast<int>(expected.value), expected.id);
        EXPECT_TRUE(names.insert(expected.name).second) << "two rows of one name";

        const CMD_STRUCT *row = Cmd::row(expected.id);
        ASSERT_TRUE(row);
        EXPECT_EQ(Cmd::row(QString::fromLatin1(expected.name)), row);
        EXPECT_EQ(row->id, expected.id);
        EXPECT_EQ(row->name.toStdString(), expected.name);
        EXPECT_EQ(row->code.toStdString(), expected.code);
        EXPECT_EQ(row->altCode.toStdString(), expected.altCode);
        EXPECT_EQ(row->maxParams, expected.maxParams);
        EXPECT_EQ(row->minParams, expected.minParams);
        EXPECT_EQ(row->type, expected.type);
        EXPECT_EQ(row->target, expected.target);
        EXPECT_EQ(row->multiple, expected.multiple);
        EXPECT_EQ(row->addressMachine, expected.addressMachine);
        EXPECT_EQ(row->workingPriorityLevel, expected.workingPriorityLevel);
        EXPECT_EQ(row->schedulingPriorityLevel, expected.schedulingPriorityLevel);
        EXPECT_EQ(row->checkBusy, expected.checkBusy);
        EXPECT_EQ(row->busyTimeout, expected.busyTimeout);
        EXPECT_EQ(row->trackExecutionTime, expected.trackExecutionTime);
        EXPECT_EQ(row->recordInStats, expected.recordInStats);
        EXPECT_EQ(row->machineObjUsage, expected.machineObjUsage);
        EXPECT_EQ(row->privateCommand, expected.privateCommand);
        EXPECT_EQ(row->erogationCommand, expected.erogationCommand);
        EXPECT_EQ(row->familyMask, expected.familyMask);
    }
}

TEST(ProtoCommandList, holdsTheColumnsWithTheirTypesInTheirOrder)
{
    const CMD_STRUCT row = {3, "A", "0041", "I3", 2,    1,     7, 5,    true,  false,
                            9, 8,   true,   5000, true, false, 2, true, false, 3};
    static_assert(sizeof row.busyTimeout == 8);
    EXPECT_EQ(row.id, 3);
    EXPECT_EQ(row.name, QStringLiteral("A"));
    EXPECT_EQ(row.code, QStringLiteral("0041"));
    EXPECT_EQ(row.altCode, QStringLiteral("I3"));
    EXPECT_EQ(row.maxParams, 2);
    EXPECT_EQ(row.minParams, 1);
    EXPECT_EQ(row.type, 7);
    EXPECT_EQ(row.target, 5);
    EXPECT_TRUE(row.multiple);
    EXPECT_FALSE(row.addressMachine);
    EXPECT_EQ(row.workingPriorityLevel, 9);
    EXPECT_EQ(row.schedulingPriorityLevel, 8);
    EXPECT_TRUE(row.checkBusy);
    EXPECT_EQ(row.busyTimeout, 5000);
    EXPECT_TRUE(row.trackExecutionTime);
    EXPECT_FALSE(row.recordInStats);
    EXPECT_EQ(row.machineObjUsage, 2);
    EXPECT_TRUE(row.privateCommand);
    EXPECT_FALSE(row.erogationCommand);
    EXPECT_EQ(row.familyMask, 3);
}

TEST(ProtoCommandList, answersEveryQueryForEveryRow)
{
    for (const CommandRow &row : commandRows) {
        SCOPED_TRACE(row.name);
        const QString name = QString::fromLatin1(row.name);
        EXPECT_TRUE(Cmd::existsCommand(name));
        EXPECT_EQ(Cmd::cmdStr(row.value), name);
        EXPECT_EQ(Cmd::cmdParamNum(row.value, true), row.minParams);
        EXPECT_EQ(Cmd::cmdParamNum(row.value, false), row.maxParams);
        EXPECT_EQ(Cmd::cmdParamNum(name, true), row.minParams);
        EXPECT_EQ(Cmd::cmdParamNum(name, false), row.maxParams);
        EXPECT_EQ(Cmd::cmdCode(name, 1).toStdString(), row.code);
        EXPECT_EQ(Cmd::cmdCode(name, 2).toStdString(), row.altCode);
        for (int family : {-1, 0, 3, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
            EXPECT_TRUE(Cmd::cmdCode(name, family).isNull()) << family;

        const TargetAnswers &target = answersForTarget(row.target);
        ASSERT_EQ(target.mask, row.target);
        EXPECT_EQ(Cmd::targetIsDispenser(name), target.dispenser);
        EXPECT_EQ(Cmd::targetIsMixer(name), target.mixer);
        EXPECT_EQ(Cmd::targetIsMachine(name), target.machine);

        for (const KindQuery &query : kindQueries) {
            EXPECT_EQ(query.ask(name, true), query.strict[row.type]) << query.what << " strict";
            EXPECT_EQ(query.ask(name, false), query.loose[row.type]) << query.what;
        }

        EXPECT_EQ(Cmd::isMultipleCommand(name), row.multiple);
        EXPECT_EQ(Cmd::addressMachine(name), row.addressMachine);
        EXPECT_EQ(Cmd::hasHighSchedulingPriority(name), row.schedulingPriorityLevel >= 1);
        EXPECT_EQ(Cmd::checkBusyFlag(name), row.checkBusy);
        EXPECT_EQ(Cmd::busyTimeout(name), row.busyTimeout);
        EXPECT_EQ(Cmd::commandTimeout(name), row.busyTimeout); // no row has a time below 0
        EXPECT_EQ(Cmd::trackExecutionTime(name), row.trackExecutionTime);
        EXPECT_EQ(Cmd::recordInStats(name), row.recordInStats);
        EXPECT_EQ(Cmd::machineObjUsage(name), row.machineObjUsage);
        EXPECT_EQ(Cmd::privateCommand(name), row.privateCommand);
        EXPECT_EQ(Cmd::erogationCommand(name), row.erogationCommand);
    }
}

TEST(ProtoCommandList, saysNothingOfAnUnknownName)
{
    for (const QString &name : unknownNames) {
        SCOPED_TRACE(name.left(20).toStdString());
        EXPECT_FALSE(Cmd::row(name));
        EXPECT_FALSE(Cmd::existsCommand(name));
        EXPECT_EQ(Cmd::cmdParamNum(name, true), -1);
        EXPECT_EQ(Cmd::cmdParamNum(name, false), -1);
        for (int family : {0, 1, 2, 3}) {
            SCOPED_TRACE(family);
            EXPECT_TRUE(Cmd::cmdCode(name, family).isNull());
        }
        EXPECT_FALSE(Cmd::targetIsDispenser(name));
        EXPECT_FALSE(Cmd::targetIsMixer(name));
        EXPECT_FALSE(Cmd::targetIsMachine(name));
        for (const KindQuery &query : kindQueries) {
            EXPECT_FALSE(query.ask(name, true)) << query.what;
            EXPECT_FALSE(query.ask(name, false)) << query.what;
        }
        EXPECT_FALSE(Cmd::isMultipleCommand(name));
        EXPECT_FALSE(Cmd::addressMachine(name));
        EXPECT_FALSE(Cmd::hasHighSchedulingPriority(name));
        EXPECT_FALSE(Cmd::checkBusyFlag(name));
        EXPECT_EQ(Cmd::busyTimeout(name), 0);
        EXPECT_EQ(Cmd::commandTimeout(name), 0);
        EXPECT_FALSE(Cmd::trackExecutionTime(name));
        EXPECT_FALSE(Cmd::recordInStats(name));
        EXPECT_EQ(Cmd::machineObjUsage(name), 0);
        EXPECT_FALSE(Cmd::privateCommand(name));
        EXPECT_FALSE(Cmd::erogationCommand(name));
    }
}

TEST(ProtoCommandList, takesNoOtherNameForARow)
{
    std::set<QString> names;
    for (const CommandRow &row : commandRows)
        names.insert(QString::fromLatin1(row.name));
    ASSERT_EQ(names.size(), 167U);
    const auto expectOnlyItself = [&names](const QString &text) {
        EXPECT_EQ(Cmd::existsCommand(text), names.count(text) == 1) << text.toStdString();
    };
    // what differs in one character, wherever it stands, and what is a character longer or shorter
    for (const QString &name : names) {
        for (int i = 0; i < name.size(); ++i) {
            for (const char16_t other : {u'A', u'_', u'2', char16_t(name.at(i).unicode() + 0x100)}) {
                QString text = name;
                text[i] = QChar(other);
                expectOnlyItself(text);
            }
        }
        expectOnlyItself(name + QLatin1Char('2'));
        expectOnlyItself(name.mid(1));
        expectOnlyItself(name.left(name.size() - 1));
    }
}

TEST(ProtoCommandList, saysNothingOfAValueOutsideTheTable)
{
    for (int value :
         {-1, -2, -167, 167, 168, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(value);
        const auto outside = static_cast<Cmd::CommandListValue>(value);
        EXPECT_TRUE(Cmd::cmdStr(outside).isNull());
        EXPECT_EQ(Cmd::cmdParamNum(outside, true), -1);
        EXPECT_EQ(Cmd::cmdParamNum(outside, false), -1);
        EXPECT_FALSE(Cmd::row(value));
    }
    EXPECT_EQ(Cmd::cmdStr(static_cast<Cmd::CommandListValue>(0)), QStringLiteral("GET_STATUS"));
    EXPECT_EQ(Cmd::cmdStr(static_cast<Cmd::CommandListValue>(166)), QStringLiteral("PAUSE"));
}

TEST(ProtoCommandList, givesTheCodeOfTheAskedFamilyOnly)
{
    EXPECT_EQ(Cmd::cmdCode("TINT", 1), QStringLiteral("0017"));
    EXPECT_TRUE(Cmd::cmdCode("TINT", 2).isEmpty());
    EXPECT_TRUE(Cmd::cmdCode("TINT", 3).isNull());
    EXPECT_EQ(Cmd::cmdCode("GET_STATUS", 1), QStringLiteral("0006"));
    EXPECT_EQ(Cmd::cmdCode("GET_STATUS", 2), QStringLiteral("I3"));
    EXPECT_EQ(Cmd::cmdCode("WORKING_MODE", 2), QStringLiteral("FR"));
    EXPECT_TRUE(Cmd::cmdCode("INIT", 2).isEmpty()); // family 2 knows it, but not by a code
}

TEST(ProtoCommandList, countsACommandOfFirmwareAndDriverAsBoth)
{
    EXPECT_FALSE(Cmd::isSerialCommand("STOP", true));
    EXPECT_TRUE(Cmd::isSerialCommand("STOP", false));
    EXPECT_FALSE(Cmd::isConfigurationCommand("STOP", true));
    EXPECT_TRUE(Cmd::isConfigurationCommand("STOP", false));
}

TEST(ProtoCommandList, takesARowWithoutCodeAsSerialAllTheSame)
{
    EXPECT_TRUE(Cmd::cmdCode("GET_ERRORS", 1).isEmpty());
    EXPECT_TRUE(Cmd::isSerialCommand("GET_ERRORS", true));
    EXPECT_TRUE(Cmd::isSerialCommand("GET_ERRORS", false));
}

TEST(ProtoCommandList, givesTheTimeThatACommandMayTake)
{
    EXPECT_EQ(Cmd::commandTimeout("GET_STATUS"), 0);
    EXPECT_EQ(Cmd::commandTimeout("TINT"), 9999999);
    EXPECT_EQ(Cmd::commandTimeout("ULTRASOUND_CLEAN"), 500000);
}

TEST(ProtoCommandList, hasOneCommandOfDriverAndSpecialProcedure)
{
    QStringList names;
    for (const CommandRow &row : commandRows) {
        if (Cmd::isSpecialAndConfigCommand(QString::fromLatin1(row.name), true))
            names << QString::fromLatin1(row.name);
        EXPECT_FALSE(Cmd::isSpecialCommand(QString::fromLatin1(row.name), true)) << row.name;
    }
    EXPECT_EQ(names, QStringList("CLEAN_CONFIG"));
}

TEST(ProtoCommandList, namesTheMethodOfACall)
{
    EXPECT_EQ(Cmd::functionCallStr(1), QStringLiteral("EXEC_B"));
    EXPECT_EQ(Cmd::functionCallStr(2), QStringLiteral("EXEC_NB"));
    EXPECT_EQ(Cmd::functionCallStr(4), QStringLiteral("EXEC_NC"));
    for (int mode : {-1, 0, 3, 5, 6, 7, 8, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(Cmd::functionCallStr(mode), QStringLiteral("EXEC_B")) << mode;
}

TEST(ProtoCommandList, givesTheSameRowsAgain)
{
    EXPECT_EQ(Cmd::row(QStringLiteral("PAUSE")), Cmd::row(QStringLiteral("PAUSE")));
    EXPECT_EQ(Cmd::row(QStringLiteral("PAUSE")), Cmd::row(166));
    EXPECT_EQ(Cmd::row(0) + 166, Cmd::row(166)) << "one array in row order";
}

/** Runs the work in so many threads at once. */
template <class Work>
void inThreads(int count, Work work)
{
    std::atomic<int> waiting{count};
    std::vector<std::thread> threads;
    threads.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&, i] {
            for (--waiting; waiting > 0;)
                std::this_thread::yield();
            work(i);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}

TEST(ProtoCommandList, isOneObjectForAllThreads)
{
    std::vector<Cmd *> seen(16, nullptr);
    inThreads(16, [&](int thread) { seen[static_cast<std::size_t>(thread)] = Cmd::instance(); });
    ASSERT_TRUE(Cmd::instance());
    EXPECT_EQ(seen, std::vector<Cmd *>(16, Cmd::instance()));
    EXPECT_EQ(Cmd::instance()->cmdStr(Cmd::TINT), QStringLiteral("TINT")) << "queries go through it as well";
}

TEST(ProtoCommandList, answersAllThreadsAtOnce)
{
    std::atomic<int> wrong{0};
    inThreads(8, [&](int) {
        for (const CommandRow &row : commandRows) {
            const QString name = QString::fromLatin1(row.name);
            if (Cmd::cmdStr(row.value) != name || Cmd::busyTimeout(name) != row.busyTimeout ||
                Cmd::existsCommand(name + QLatin1Char('?')))
                ++wrong;
        }
    });
    EXPECT_EQ(wrong, 0);
}

} // namespace
