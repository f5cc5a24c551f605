// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/asyncanswer.h"
#include "base/outofmemory.h"
#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"
#include "dispensing/dispensertesting.h"

#include <QuvFramework/purgeformula.h>

// What the tests of the questions about a formula share.

namespace testing_dispensing {

/** "2.5 g of position 1", as it travels. */
inline Value formulaStruct()
{
    return structOf({{"formula_type", Value(1)},
                     {"quantity_unit", Value(3)},
                     {"ids", arrayOf("1")},
                     {"quantities", arrayOf(2.5)}});
}
constexpr char formulaWritten[] =
    R"({"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1"], "levels_policy": 0, )"
    R"("quantities": [2.50000], "quantity_unit": 3})";
inline Formula formula()
{
    return grams({{"1", 2.5}});
}
inline QVariantMap formulaMap()
{
    return {{"formula_type", 1},
            {"quantity_unit", 3},
            {"ids", QVariantList{"1"}},
            {"quantities", QVariantList{2.5}}};
}

/** "2 strokes of each circuit that is not empty", as it travels. */
inline Value purgeStruct()
{
    return structOf(
        {{"purge_quantity", Value(2.0)}, {"quantity_unit", Value(2)}, {"only_filled", Value(true)}});
}
constexpr char purgeWritten[] =
    R"({"head": 0, "only_filled": true, "purge_quantity": 2.00000, "quantity_unit": 2})";
inline PurgeFormula purge()
{
    return PurgeFormula(2.0, true, 2);
}
inline QVariantMap purgeMap()
{
    return {{"purge_quantity", 2.0}, {"quantity_unit", 2}, {"only_filled", true}};
}

inline Value negativeFormulaStruct()
{
    Value value = formulaStruct();
    value["quantities"][0] = -2.5;
    return value;
}

inline Value envelope(int retCode, const Value &result)
{
    return structOf({{"ret_code", Value(retCode)},
                     {"info", Value("as it went")},
                     {"ret_value", result},
                     {"errors", arrayOf()}});
}

/** What a command says of an answer that could not be made, by the way in which it came. */
struct AnswerFailures
{
    const char *text = "";
    const char *valueCode = "";
    const char *listCode = "";
    const char *envelopeCode = "";
};

/** Expects that the command makes the answer of its class from what is right, in all ways to take one. */
inline void expectAnswers(ProtoCommand &command, const char *answerClass, const Value &value, List list,
                          const Value &result)
{
    FW_DriverError error;
    EXPECT_TRUE(command.buildProtoAnswer(value, &error));
    ASSERT_EQ(className(command.getProtoAnswer()), answerClass);
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), dumped(result));

    command.clearProtoAnswer();
    EXPECT_TRUE(command.buildProtoAnswer(list, &error));
    ASSERT_EQ(className(command.getProtoAnswer()), answerClass);
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), dumped(result));

    command.clearProtoAnswer();
    EXPECT_TRUE(command.setAnswer(envelope(0, value), false, &error));
    ASSERT_EQ(className(command.getProtoAnswer()), answerClass);
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), dumped(result));
    ASSERT_TRUE(command.getXmlRpcAnswer());
    EXPECT_EQ(command.getXmlRpcAnswer()->infoMsg(), "as it went");

    EXPECT_TRUE(command.setAnswer(envelope(0, structOf({{"ticket_id", Value("T7")}})), true, &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "AsyncAnswer");
    EXPECT_TRUE(command.setAnswer(envelope(4, Value(0)), false, &error));
    EXPECT_FALSE(command.getProtoAnswer());
    EXPECT_EQ(error.code(), "");
}

/** Expects that the command says why no answer could be made of what is right. */
inline void expectAnswerFailures(ProtoCommand &command, const AnswerFailures &failures, const Value &value,
                                 List list)
{
    const Value whole = envelope(0, value);
    FW_DriverError error;
    const auto expectFailure = [&](const char *code, auto work) {
        SCOPED_TRACE(code);
        ASSERT_TRUE(work(&error));
        EXPECT_FALSE(outOfMemoryOnce([&] { return work(&error); }));
        expectError(error, code, failures.text);
        EXPECT_FALSE(command.getProtoAnswer());
        EXPECT_FALSE(outOfMemoryOnce([&] { return work(nullptr); }));
    };
    expectFailure(failures.valueCode, [&](FW_DriverError *e) { return command.buildProtoAnswer(value, e); });
    expectFailure(failures.listCode, [&](FW_DriverError *e) { return command.buildProtoAnswer(list, e); });
    expectFailure(failures.envelopeCode,
                  [&](FW_DriverError *e) { return command.setAnswer(whole, false, e); });
}

} // namespace testing_dispensing
