// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/confclasses_p.h"

#include "configuration/generic_cdata.h"
#include "sharedparttesting.h"

#include <functional>
#include <limits>
#include <random>

// What every structure promises, whatever it is made of.

namespace {

using namespace testing_configuration;

/** The codes with which each structure refuses, from code 1 on; those without a class refuse as a row that nobody knows. */
const char *const codesOf[] = {
    // @ICS
    "DE00177",
    // @NOM
    "DE00178 DE00180 DE00183 DE00184",
    // @GMC
    "DE00185 DE00186 DE00187 DE00188 DE00189 DE00190 DE00191 DE00192 DE00193 DE00194 DE00195 DE00196 "
    "DE01546 DE01547 DE01929 DE01931 DE02151 DE02152 DE02789 DE02850 DE02851 DE02852 DE02864",
    // @ACP
    "DE00197 DE00198 DE00199 DE00201 DE00202 DE00203 DE00204 DE00205 DE00206 DE00207 DE00208 DE00382 "
    "DE02202 DE02204 DE02603 DE02790",
    // @CPT
    "DE00209 DE00213 DE00214 DE00215 DE00216 DE00217 DE00218 DE00219 DE00220 DE00221 DE00222 DE00223 "
    "DE00224 DE00225 DE00226 DE00227 DE00228 DE00229 DE00230 DE00231 DE00232 DE00233 DE00324 DE00325 "
    "DE00520 DE00674 DE00873 DE01356 DE01459 DE01599 DE01601 DE01602 DE01932 DE01940 DE02149 DE02150 "
    "DE02164 DE02201 DE02276 DE02311 DE02425 DE02663 DE02664 DE02808 DE02824 DE02825 DE02826 DE02843 "
    "DE02844 DE02845 DE02846 DE02849 DE02865",
    // @AGI
    "DE00234 DE00237 DE00238 DE00239 DE00240 DE00241 DE00242 DE00243 DE00244 DE00245 DE00636 DE00872 "
    "DE01598 DE01941 DE01942 DE02807",
    // @HUM
    "DE00246 DE00247 DE00248 DE00249 DE00250 DE00251 DE00252 DE00253 DE02791",
    // @TEM
    "DE00595 DE00597 DE00598 DE00599 DE00601 DE00602 DE00603 DE00604 DE00605 DE00606 DE00607 DE02792 "
    "DE02830 DE02831",
    // @SGA
    "DE00254 DE00255 DE00256 DE00257 DE00258 DE00259 DE00260 DE00261 DE00262 DE00263 DE00264 DE00265 "
    "DE00866 DE00867 DE02604 DE02793 DE02903 DE02904",
    // @RAM
    "DE00266 DE00268 DE00269 DE00270 DE00271 DE00272 DE00273 DE00274 DE00275 DE00276 DE02806",
    // @FOT
    "DE00277 DE00278 DE00279 DE00280 DE00281 DE00282 DE00283 DE02794",
    // @AUT
    "DE00284 DE00285 DE00286 DE00287 DE00288 DE02805",
    // @BHL
    "DE00326 DE00328 DE00329 DE00521 DE00702 DE00703 DE00704 DE02795",
    // @LIT
    "DE00522 DE00705 DE00707 DE00708 DE00709 DE00710 DE00711 DE02796",
    // @TTD
    "DE01603 DE01604 DE01605 DE01606 DE01607 DE01608 DE01609 DE01610 DE01611 DE01612 DE01613 DE01614 "
    "DE01615 DE01617 DE01640 DE01641 DE01984 DE02797 DE02829",
    // @PUL
    "DE01618 DE01619 DE01620 DE01621 DE01622 DE01623 DE01624 DE01625 DE01626 DE01627 DE01628 DE01629 "
    "DE01630 DE01631 DE02798 DE02842",
    // @HEA
    "DE01632 DE01633 DE01634 DE01635 DE01636 DE01637 DE01638 DE02799",
    // @NOZ
    "DE01632 DE01934 DE01935 DE01936 DE01937 DE01938 DE01939 DE02801",
    // @MOT
    "DE01930 DE01943 DE01963 DE01964 DE01965 DE01966 DE01967 DE01968 DE01969 DE01970 DE01971 DE01972 "
    "DE01973 DE01974 DE01975 DE01976 DE01977 DE01978 DE01979 DE01980 DE01981 DE01982 DE01983 DE02809 "
    "DE02947 DE02948",
    // @LTD
    "DE01995 DE01996 DE01997 DE01998 DE01999 DE02001 DE02002 DE02003 DE02004 DE02005 DE02006 DE02007 "
    "DE02008 DE02009 DE02010 DE02011 DE02012 DE02802",
    // @USS
    "DE02176 DE02177 DE02178 DE02179 DE02180 DE02181 DE02182 DE02183 DE02184 DE02185 DE02186 DE02187 "
    "DE02188 DE02189 DE02190 DE02191 DE02803",
    // @PRO
    "DE02298 DE02299 DE02301 DE02302 DE02303 DE02304 DE02305 DE02306 DE02307 DE02308 DE02309 DE02310 "
    "DE02312 DE02810",
    // @ZDR
    "DE00284 DE00285 DE00286 DE00287 DE00288 DE02805",
    // @MIX
    "DE00284 DE00285 DE00286 DE00287 DE00288 DE02805",
    // @LCK
    "DE02435 DE02436 DE02437 DE02438 DE02439 DE02440 DE02804",
    // @PLC
    "DE02909 DE02910 DE02911 DE02912 DE02913 DE02914 DE02915 DE02916 DE02917",
};

const QStringList codesOfBase = tokens("DE00085 DE00086 DE00151 DE00152");

QStringList refusalsOf(int code)
{
    constexpr int structures = 26;
    constexpr int withoutClass = 12;
    const int listed = code >= 1 && code <= structures ? code : withoutClass;
    return tokens(codesOf[listed - 1]) + codesOfBase;
}

using Row = std::unique_ptr<ConfData>;

/** The row, or null when it was refused as it should be. */
Row made(int code, const std::function<Row()> &make)
{
    try {
        Row row = make();
        EXPECT_TRUE(row);
        return row;
    } catch (const FW_Exception &refusal) {
        EXPECT_TRUE(refusalsOf(code).contains(refusal.code())) << refusal.code().toStdString();
        EXPECT_FALSE(refusal.text().isEmpty());
        EXPECT_FALSE(refusal.function().isEmpty());
        return nullptr;
    }
}

class Chance
{
public:
    explicit Chance(unsigned seed) : m_generator(seed) {}

    int upTo(int greatest) { return std::uniform_int_distribution<int>(0, greatest)(m_generator); }
    bool oneIn(int times) { return upTo(times - 1) == 0; }
    template <class T, std::size_t size>
    T oneOf(const T (&choices)[size])
    {
        return choices[upTo(static_cast<int>(size) - 1)];
    }

private:
    std::mt19937 m_generator;
};

/** A row of some fields, now and then with a token that does not belong there. */
QStringList randomTokens(Chance &chance)
{
    constexpr const char *strange[] = {"00", "FF", "zz", "", "-1", "FFFFFFFF", "F6", " 1", "0x2", "7FFFFFFF"};
    QStringList row;
    const int fields = chance.upTo(60);
    const bool clean = chance.oneIn(2);
    for (int i = 0; i < fields; ++i) {
        const int digits = 1 + chance.upTo(chance.oneIn(4) ? 3 : 0);
        row << QString::number(digits, 16);
        for (int digit = 0; digit < digits; ++digit)
            row << QString::number(chance.upTo(chance.oneIn(2) ? 3 : 127), 16);
    }
    while (!clean && chance.upTo(2) != 0) {
        const QString token = QString::fromLatin1(chance.oneOf(strange));
        const int place = chance.upTo(row.size());
        if (place < row.size() && chance.oneIn(2))
            row[place] = token;
        else
            row.insert(place, token);
    }
    return row;
}

QString randomText(Chance &chance)
{
    constexpr const char *strange[] = {"",           "x",   "-1",    "2147483647", "-2147483648",
                                       "2147483648", "1.5", "Rotan", " 3",         "\xE9"};
    QStringList parts{QString::number(chance.upTo(3))};
    const int fields = chance.upTo(60);
    const bool clean = chance.oneIn(2);
    for (int i = 0; i < fields; ++i) {
        const bool odd = !clean && chance.oneIn(20);
        parts << (odd ? QString::fromLatin1(chance.oneOf(strange))
                      : QString::number(chance.upTo(chance.oneIn(2) ? 3 : 300)));
    }
    return parts.join(QLatin1Char(','));
}

int randomFieldCount(Chance &chance)
{
    constexpr int strange[] = {-1, 0, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    return chance.oneIn(10) ? chance.oneOf(strange) : chance.upTo(60);
}

/** The same structure, the same row. */
void expectSame(const ConfData &row, const Row &again)
{
    ASSERT_TRUE(again);
    EXPECT_EQ(again->commandCode(), row.commandCode());
    EXPECT_EQ(again->configurationParamsStr(), row.configurationParamsStr());
    EXPECT_EQ(dumped(again->toXmlRpcValue()), dumped(row.toXmlRpcValue()));
}

/** A name that could not be read stays empty, and an empty one is refused. */
bool hasNoName(const ConfData &row)
{
    return row.commandCode() == 2 && row.configurationParamsStr().endsWith(QLatin1Char(','));
}

/** A machine with parts of reference 1 and 2, and with circuits 1 to 3. */
FW_Dispenser wholeMachine()
{
    FW_Dispenser machine = dispenserOf({1, 2, 3});
    for (const int circuit : {1, 2}) {
        motorOf(machine, circuit).setRamp(FW_Ramp(circuit));
        motorOf(machine, circuit).setSingleTransmission(FW_SingleTransmission(circuit));
        motorOf(machine, circuit).setFlowCorrection(FW_FlowCorrection(circuit));
    }
    machine.getCanisterById(1)->setLayoutPositionsId({3, 4},
                                                     QString()); // otherwise they are those of the circuits
    for (int kind = 0; kind < 20; ++kind)
        machine.createDevice(kind);
    return machine;
}

bool hasClass(int code)
{
    return code >= 1 && code <= 26 && code != 12 && code != 23 && code != 24;
}

/** Whatever the row does to a machine, the machine has a row afterwards. */
void expectAppliable(int code, const ConfData &row, Chance &chance)
{
    FW_Dispenser machine = chance.oneIn(2) ? wholeMachine() : FW_Dispenser();
    QList<int> extra;
    row.updateConfiguration(&machine, nullptr, chance.oneIn(2) ? &extra : nullptr);
    const bool describesAPart = hasClass(code) && code > 3;
    if (describesAPart) {
        EXPECT_EQ(row.updateConfiguration(nullptr, nullptr, nullptr), row.commandEnable() == 0);
    }
    EXPECT_EQ(quv::confDataOfMachine(code, &machine, 1) != nullptr, hasClass(code));
}

TEST(ConfClasses, takeOrRefuseAnyTokens)
{
    Chance chance(4711);
    int taken = 0;
    int refused = 0;
    for (int round = 0; round < 400; ++round) {
        for (int code = 0; code <= 27; ++code) {
            const QStringList tokens = randomTokens(chance);
            const int fieldCount = randomFieldCount(chance);
            SCOPED_TRACE(tokens.join(QLatin1Char(' ')).toStdString());
            SCOPED_TRACE("structure " + std::to_string(code) + ", fields " + std::to_string(fieldCount));
            const Row row = made(code, [&] { return quv::confDataOfTokens(code, tokens, fieldCount); });
            ++(row ? taken : refused);
            if (!row)
                continue;
            EXPECT_EQ(row->commandCode(), code);
            const QList<int> integers = sent(*row);
            ASSERT_FALSE(integers.isEmpty());
            if (!hasNoName(*row)) {
                expectSame(*row, made(code, [&] {
                    return quv::confDataOfTokens(code, answered(integers),
                                                 row->numOfConfigurationParams() + 1);
                }));
            }
            expectSame(*row, Row(row->clone()));
            expectAppliable(code, *row, chance);
        }
    }
    EXPECT_GT(taken, 1000);
    EXPECT_GT(refused, 1000);
}

TEST(ConfClasses, takeOrRefuseAnyText)
{
    Chance chance(4712);
    int taken = 0;
    int refused = 0;
    for (int round = 0; round < 400; ++round) {
        for (int code = 0; code <= 27; ++code) {
            const QString text = randomText(chance);
            SCOPED_TRACE(text.toStdString());
            SCOPED_TRACE(code);
            const Row row = made(code, [&] { return quv::confDataOfText(code, text); });
            ++(row ? taken : refused);
            if (!row)
                continue;
            EXPECT_EQ(row->commandCode(), code);
            expectSame(*row,
                       made(code, [&] { return quv::confDataOfText(code, row->configurationParamsStr()); }));
            expectSame(*row, Row(row->clone()));
            expectAppliable(code, *row, chance);
        }
    }
    EXPECT_GT(taken, 1000);
    EXPECT_GT(refused, 1000);
}

TEST(ConfClasses, makeTheRowOfAnyMachine)
{
    const FW_Dispenser whole = wholeMachine();
    const FW_Dispenser bare;
    const FW_Mixer mixer;
    for (const FW_Machine *machine :
         {static_cast<const FW_Machine *>(&whole), static_cast<const FW_Machine *>(&bare),
          static_cast<const FW_Machine *>(&mixer), static_cast<const FW_Machine *>(nullptr)}) {
        for (int code = 1; code <= 26; ++code) {
            for (const int id :
                 {-1, 0, 1, 2, 3, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
                SCOPED_TRACE(code);
                SCOPED_TRACE(id);
                if (!hasClass(code)) {
                    EXPECT_FALSE(quv::confDataOfMachine(code, machine, id));
                    continue;
                }
                const Row row = made(code, [&] { return quv::confDataOfMachine(code, machine, id); });
                const bool onMixer = code <= 2;
                if (machine == &mixer || machine == nullptr) {
                    EXPECT_TRUE(!row || onMixer);
                }
                if (!row)
                    continue;
                EXPECT_EQ(row->commandCode(), code);
                if (code != 2) // the name of these machines is empty
                    expectSame(*row, made(code, [&] {
                        return quv::confDataOfText(code, row->configurationParamsStr());
                    }));
            }
        }
    }
}

TEST(ConfClasses, carryAWholeMachineToAnother)
{
    const FW_Dispenser source = wholeMachine();
    FW_Dispenser target = source;
    QList<int> extra;
    for (int code = 1; code <= 26; ++code) {
        for (const int id : {1, 2}) {
            SCOPED_TRACE(code);
            const Row row = quv::confDataOfMachine(code, &source, id);
            if (row) {
                EXPECT_TRUE(row->updateConfiguration(&target, nullptr, &extra));
            }
        }
    }
    for (int code = 1; code <= 26; ++code) {
        for (const int id : {1, 2}) {
            SCOPED_TRACE(code);
            const Row row = quv::confDataOfMachine(code, &source, id);
            if (row)
                expectSame(*row, quv::confDataOfMachine(code, &target, id));
        }
    }
}

} // namespace
