// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/rowstore.h"

#include "pouringmachine.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_stirringmotor.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using quv::ConfigurationRow;
using quv::FirmwareAge;
using quv::RowKeys;
using quv::RowStore;
using Numbers = QList<int>;
using Outcome = RowStore::Outcome;

/// The fields of a row as the store answers it, after its header has been looked at.
Numbers valuesOf(const RowStore &rows, int code, int id = 1)
{
    const auto reply = rows.reply(code, id);
    if (!reply || reply->mid(0, 2) != Numbers{code, id})
        throw std::logic_error("no reply");
    Numbers values;
    for (int i = 3; i < reply->size(); i += reply->at(i) + 1) {
        int value = 0;
        for (int digit = reply->at(i); digit > 0; --digit)
            value = value * 246 + reply->at(i + digit);
        values.append(value);
    }
    EXPECT_EQ(values.size(), reply->at(2));
    return values;
}

/// The rows of a dispenser with the circuits 21 to 24 at the positions 1 to 4; two pour at once.
class RowStoreTest : public testing::Test
{
protected:
    Numbers values(int code, int id = 1) const { return valuesOf(m_rows, code, id); }

    RowStore m_rows{pouringMachine(2), FirmwareAge::Equal};
};

TEST_F(RowStoreTest, theListOfStructures)
{
    EXPECT_EQ(m_rows.listing(), (Numbers{2, 0,  23, 1,  1,  2,  2,  3,  18, 4,  11, 5,  53, 6,  11, 7,  4,
                                         8, 9,  9,  13, 10, 6,  11, 3,  13, 3,  14, 3,  15, 14, 16, 11, 17,
                                         3, 18, 3,  19, 20, 20, 13, 21, 12, 22, 8,  25, 2,  26, 4}));
    EXPECT_EQ(
        RowStore(pouringMachine(), FirmwareAge::Older).listing(),
        (Numbers{1,  0, 23, 1, 1,  2,  2,  3,  10, 4, 8,  5, 30, 6,  8,  7,  4,  8,  7,  9, 10, 10, 6,  11, 3,
                 13, 3, 14, 3, 15, 12, 16, 10, 17, 3, 18, 3, 19, 18, 20, 13, 21, 12, 22, 8, 25, 2,  26, 4}));
    EXPECT_EQ(RowStore(pouringMachine(), FirmwareAge::Newer).listing(),
              (Numbers{3, 0,  23, 1,  2,  2,  2,  3,  19, 4,  12, 5,  55, 6,  13, 7,  5,
                       8, 10, 9,  14, 10, 8,  11, 4,  13, 4,  14, 4,  15, 15, 16, 12, 17,
                       4, 18, 4,  19, 22, 20, 14, 21, 13, 22, 10, 25, 3,  26, 5}));
}

TEST_F(RowStoreTest, aMixerHasTwoStructures)
{
    const RowStore rows(FW_Mixer(), FirmwareAge::Equal);
    EXPECT_EQ(rows.listing(), (Numbers{2, 0, 2, 1, 1, 2, 2}));
    EXPECT_EQ(rows.reply(1, 1), (Numbers{1, 1, 1, 1, 1}));
    EXPECT_EQ(rows.reply(3, 1), std::nullopt);
}

TEST_F(RowStoreTest, itBeginsWithWhatTheMachineIs)
{
    EXPECT_EQ(values(3), (Numbers{1, 1, 1, 1, 2, 1, 1, 60, 0, 0, 0, 30, 90, 0, 0, 0, 0, 0}));
    EXPECT_EQ(m_rows.reply(7, 1), (Numbers{7, 1, 4, 1, 0, 1, 60, 1, 10, 1, 40})); // it has no humidifier
    // canister 13 holds 1000
    EXPECT_EQ(values(5, 3).mid(0, 12), (Numbers{1, 13, 10, 3, 1, 0, 0, 0, 200, 1, 20, 50}));
    EXPECT_EQ(values(6, 3), (Numbers{0, 13, 3, 60, 30, 1, 400, 15, 100, 0, 0}));
}

TEST_F(RowStoreTest, aRowThatThereIsNotIsAnsweredAsAbsent)
{
    EXPECT_EQ(values(5, 21), (Numbers{0,   1, 100, 0, 1, 0, 0, 0, 200, 1, 20, 50, 0,  50, 400, 120, 60, 0,
                                      1,   2, 0,   0, 0, 0, 0, 0, 0,   0, 0,  0,  50, 0,  240, 1,   0,  0,
                                      100, 1, 0,   0, 0, 0, 0, 0, 245, 0, 1,  0,  0,  0,  0,   0,   0}));
    EXPECT_EQ(values(6, 5), (Numbers{0, 1, 111, 60, 30, 1, 400, 15, 100, 0, 0}));
    EXPECT_EQ(values(10, 9), (Numbers{0, 9, 20, 20, 60, 15}));
    EXPECT_EQ(values(22, 255), (Numbers{0, 255, 10, 5, 5, 5, 1, 1}));
}

TEST_F(RowStoreTest, thereIsNoReplyForWhatItDoesNotKnow)
{
    for (const int code : {-1, 0, 12, 23, 24, 27, 255})
        EXPECT_EQ(m_rows.reply(code, 1), std::nullopt) << code;
    for (const int id : {-1, 256}) {
        EXPECT_EQ(m_rows.reply(5, id), std::nullopt) << id;
        EXPECT_EQ(m_rows.reply(7, id), std::nullopt) << id;
    }
    EXPECT_EQ(m_rows.reply(7, 0), (Numbers{7, 0, 4, 1, 0, 1, 60, 1, 10, 1, 40})); // it exists once
}

TEST_F(RowStoreTest, whatIsWrittenIsAnswered)
{
    EXPECT_EQ(m_rows.write({7, 4, 1, 2, 1, 30, 2, 10, 1, 1, 245}), Outcome::Taken);
    EXPECT_EQ(m_rows.reply(7, 1), (Numbers{7, 1, 4, 1, 2, 1, 30, 2, 10, 1, 1, 245}));
    EXPECT_EQ(m_rows.value(7, 2), 256);
    EXPECT_EQ(m_rows.value(7, 4), std::nullopt);
    EXPECT_EQ(m_rows.value(12, 1), std::nullopt);
}

TEST_F(RowStoreTest, fieldsThatAreMissingStayAsTheyAre)
{
    EXPECT_EQ(m_rows.write({7, 2, 1, 1, 1, 33}), Outcome::Taken);
    EXPECT_EQ(values(7), (Numbers{1, 33, 10, 40}));
    EXPECT_EQ(m_rows.write({7, 1, 1, 2}), Outcome::Taken);
    EXPECT_EQ(values(7), (Numbers{2, 33, 10, 40}));
}

TEST_F(RowStoreTest, whatItRefusesChangesNothing)
{
    const QList<Numbers> wrong{
        {},
        {7, 4, 1, 1, 1, 30, 1, 10},              // a field is missing
        {7, 4, 1, 1, 1, 30, 1, 10, 1, 40, 1},    // a number left over
        {7, 5, 1, 1, 1, 30, 1, 10, 1, 40, 1, 1}, // a field that the structure does not have
        {7, 4, 1, 1, 1, 30, 1, 10, 1, 246},      // no digit
        {12, 1, 1, 1},                           // no structure
        {0, 1, 1, 1},                            //
        {27, 1, 1, 1},                           //
        {5, 3, 1, 1, 1, 11, 1, 10},              // a circuit without its position
        {10, 1, 1, 1},                           // a ramp without its number
        {2, 3, 1, 1, 1, 65, 1, 1},               // more than a name
    };
    const auto before = m_rows.rows();
    for (const Numbers &numbers : wrong)
        EXPECT_EQ(m_rows.write(numbers), Outcome::BadParameters) << testing::PrintToString(numbers);
    EXPECT_EQ(m_rows.write({7, 1, 1, 3}), Outcome::FieldOutOfRange); // neither absent, enabled nor disabled
    EXPECT_EQ(m_rows.write({10, 2, 1, 1, 1, 0}), Outcome::FieldOutOfRange);
    EXPECT_EQ(m_rows.write({10, 2, 1, 1, 2, 10, 1}), Outcome::FieldOutOfRange); // 256
    EXPECT_TRUE(m_rows.rows() == before);
}

TEST_F(RowStoreTest, aRowTellsItsOwnID)
{
    // canister 12, size 10, position 3, activation 2
    EXPECT_EQ(m_rows.write({5, 5, 1, 2, 1, 12, 1, 10, 1, 3, 1, 2}), Outcome::Taken);
    EXPECT_EQ(values(5, 3).mid(0, 6), (Numbers{2, 12, 10, 3, 2, 0}));
    EXPECT_EQ(values(5, 2).mid(0, 6), (Numbers{1, 12, 10, 2, 1, 0}));
    EXPECT_EQ(m_rows.changedRows(), (RowKeys{{5, 3}}));
}

TEST_F(RowStoreTest, theFirstRowOfAnIDBeginsAsAnAbsentOne)
{
    EXPECT_EQ(m_rows.write({10, 3, 1, 1, 1, 4, 2, 10, 1}), Outcome::Taken);
    EXPECT_EQ(values(10, 4), (Numbers{1, 4, 256, 20, 60, 15}));
    EXPECT_EQ(values(10, 5), (Numbers{0, 5, 20, 20, 60, 15}));
}

TEST_F(RowStoreTest, anAbsentRowThatWasAbsentChangesNothing)
{
    const auto before = m_rows.rows();
    EXPECT_EQ(m_rows.write({6, 3, 1, 0, 1, 1, 1, 111}), Outcome::Taken);
    EXPECT_EQ(m_rows.write({5, 4, 1, 0, 1, 1, 1, 100, 1, 0}), Outcome::Taken);
    EXPECT_TRUE(m_rows.rows() == before);
    EXPECT_EQ(m_rows.write({6, 3, 1, 0, 1, 99, 1, 3}), Outcome::Taken); // the circuit at position 3 is there
    EXPECT_EQ(values(6, 3).mid(0, 3), (Numbers{0, 99, 3}));
}

TEST_F(RowStoreTest, aMotorForAllIsThatOfEachCircuitWithoutOneOfItsOwn)
{
    FW_Dispenser machine = pouringMachine();
    machine.setGlobalStirring(true);
    machine.setStirringMotor(FW_StirringMotor());
    RowStore rows(machine, FirmwareAge::Equal);
    for (const int position : {1, 4, 200, 245})
        EXPECT_EQ(valuesOf(rows, 6, position).mid(0, 3), (Numbers{1, 245, 245})) << position;
    EXPECT_EQ(rows.write({6, 4, 1, 1, 1, 13, 1, 3, 1, 77}), Outcome::Taken);
    EXPECT_EQ(rows.write({6, 4, 1, 2, 1, 245, 1, 245, 1, 88}), Outcome::Taken);
    EXPECT_EQ(valuesOf(rows, 6, 3).mid(0, 4), (Numbers{1, 13, 3, 77}));
    EXPECT_EQ(valuesOf(rows, 6, 4).mid(0, 4), (Numbers{2, 245, 245, 88}));
}

TEST_F(RowStoreTest, aName)
{
    EXPECT_EQ(m_rows.write({2, 2, 1, 1, 5, 76, 105, 110, 101, 49}), Outcome::Taken);
    EXPECT_EQ(m_rows.reply(2, 1), (Numbers{2, 1, 2, 1, 1, 5, 76, 105, 110, 101, 49}));
    EXPECT_EQ(m_rows.write({2, 1, 1, 2}), Outcome::Taken); // it keeps its name
    EXPECT_EQ(m_rows.reply(2, 1), (Numbers{2, 1, 2, 1, 2, 5, 76, 105, 110, 101, 49}));
    EXPECT_EQ(m_rows.write({2, 2, 1, 1, 0}), Outcome::Taken);
    EXPECT_EQ(m_rows.reply(2, 1), (Numbers{2, 1, 2, 1, 1, 1, 32}));
}

TEST_F(RowStoreTest, anOlderFirmwareLacksTheLaterFields)
{
    FW_Dispenser machine = pouringMachine();
    machine.setDevice(FW_Autocap());
    RowStore rows(machine, FirmwareAge::Older);
    EXPECT_EQ(rows.reply(4, 1)->mid(0, 5), (Numbers{4, 1, 8, 1, 1}));
    EXPECT_EQ(valuesOf(rows, 3), (Numbers{1, 1, 1, 1, 1, 1, 1, 60, 0, 0}));
    EXPECT_EQ(valuesOf(rows, 5, 4).size(), 30);
    EXPECT_EQ(valuesOf(rows, 5, 9).size(), 30); // an absent one
    EXPECT_EQ(valuesOf(rows, 7).size(), 4);
    EXPECT_EQ(rows.write({8, 8, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}), Outcome::BadParameters);
    EXPECT_EQ(rows.write({8, 7, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}), Outcome::Taken);
}

TEST_F(RowStoreTest, aNewerFirmwareKeepsFieldsThatNobodyElseKnows)
{
    RowStore rows(pouringMachine(), FirmwareAge::Newer);
    EXPECT_EQ(rows.reply(1, 1), (Numbers{1, 1, 2, 1, 1, 1, 7}));
    EXPECT_EQ(rows.reply(7, 1), (Numbers{7, 1, 5, 1, 0, 1, 60, 1, 10, 1, 40, 1, 7}));
    EXPECT_EQ(valuesOf(rows, 5, 2).mid(52), (Numbers{0, 7, 1000}));
    EXPECT_EQ(valuesOf(rows, 10, 2), (Numbers{0, 2, 20, 20, 60, 15, 7, 1000}));
    EXPECT_EQ(rows.write({7, 4, 1, 1, 1, 30, 1, 11, 1, 41}), Outcome::Taken); // by one who does not know them
    EXPECT_EQ(valuesOf(rows, 7), (Numbers{1, 30, 11, 41, 7}));
    EXPECT_EQ(rows.write({7, 5, 1, 1, 1, 30, 1, 11, 1, 41, 1, 99}), Outcome::Taken);
    EXPECT_EQ(valuesOf(rows, 7), (Numbers{1, 30, 11, 41, 99}));
}

TEST_F(RowStoreTest, rowsOfBeforeAreTakenTogetherOrNotAtAll)
{
    const auto before = m_rows.rows();
    EXPECT_THROW(m_rows.restore({{7, {1, 30, 11, 41}, {}}, {7, {1, 30, 11, 41, 99}, {}}}),
                 std::runtime_error);
    EXPECT_THROW(m_rows.restore({{7, {1, 30, 11, 41}, {}}, {27, {1}, {}}}), std::runtime_error);
    EXPECT_TRUE(m_rows.rows() == before);
    EXPECT_TRUE(m_rows.changedRows().empty());
    m_rows.restore({{7, {1, 30, 11}, {}}, {3, {1, 1, 1, 1, 9}, {}}, {10, {1, 6, 50, 60, 70, 80}, {}}});
    EXPECT_EQ(values(7), (Numbers{1, 30, 11, 40}));
    EXPECT_EQ(values(3), (Numbers{1, 1, 1, 1, 9, 1, 1, 60, 0, 0, 0, 30, 90, 0, 0, 0, 0, 0}));
    EXPECT_EQ(m_rows.changedRows(), (RowKeys{{3, 1}, {7, 1}, {10, 6}}));
}

} // namespace
