// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"
#include "factory/pending_p.h"

#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

/** Which class the answer to a command has that has no class of its own, and what it can be made of. */
struct AnswerRow
{
    const char *command;
    const char *answerClass;
    testing_base::Value value = testing_base::arrayOf();
    testing_base::List list = {};
    QStringList tokens = {QStringLiteral("0")};
};

inline bool isPendingAnswer(const AnswerRow &row, unsigned kind)
{
    const auto &pending = quv::pendingAnswers();
    return std::any_of(pending.begin(), pending.end(), [&](const quv::PendingAnswer &answer) {
        return answer.kind == kind && ProtoCommandList::cmdStr(answer.command) == row.command &&
               row.answerClass == std::string(answer.className);
    });
}

/** The class of the row, or the plain one as long as that class is still to come. */
inline std::string expectedClass(const AnswerRow &row, unsigned kind, const char *plainClass)
{
    return isPendingAnswer(row, kind) ? plainClass : row.answerClass;
}

/** Every answer class of the kind that is still to come must be a row, under the same command. */
template <class Rows>
void expectPendingAnswersAmong(const Rows &rows, unsigned kind)
{
    const auto &pending = quv::pendingAnswers();
    const auto ofKind = std::count_if(pending.begin(), pending.end(),
                                      [&](const quv::PendingAnswer &answer) { return answer.kind == kind; });
    const auto found = std::count_if(std::begin(rows), std::end(rows),
                                     [&](const AnswerRow &row) { return isPendingAnswer(row, kind); });
    EXPECT_EQ(found, ofKind);
}
