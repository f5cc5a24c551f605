// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"
#include "base/protocommand.h"

#include <QtCore/QStringList>

#include <optional>
#include <string>
#include <vector>

// What is alike in all commands when they take an answer, checked from literal facts.

namespace testing_base {

/** Code and text of a failure. */
struct CodeAndText
{
    std::string code;
    std::string text;
};

/** One way in which an answer comes: as tokens, as a value or as a list. */
template <class Source>
struct AnswerForm
{
    /** What the class of the answer refuses; the command passes the refusal on unchanged. */
    struct Wrong
    {
        Source source;
        CodeAndText refusal;
        std::string function;
    };

    AnswerForm() = default;
    /** What becomes an answer, and its class and XML-RPC form (dumped). */
    AnswerForm(std::string madeClass, Source source, std::string dump)
        : answerClass(std::move(madeClass)),
          right(std::move(source)),
          written(std::move(dump))
    {}

    /** What is said when there is no memory for the answer. */
    AnswerForm &failsWith(const std::string &code, const std::string &text)
    {
        failure = {code, text};
        return *this;
    }
    AnswerForm &refuses(Source source, const std::string &code, const std::string &text,
                        const std::string &function)
    {
        wrong.push_back({std::move(source), {code, text}, function});
        return *this;
    }
    /** For an answer whose errors are of the moment in which it was made: their times are not compared. */
    AnswerForm &ofThisMoment()
    {
        tellsMoment = true;
        return *this;
    }
    /** For an answer that reads nothing of it. */
    AnswerForm &refusesNothing()
    {
        takesAnything = true;
        return *this;
    }

    std::string answerClass;
    Source right;
    std::string written;
    CodeAndText failure;
    std::vector<Wrong> wrong;
    bool takesAnything = false;
    bool tellsMoment = false;
};

using AnswerOfTokens = AnswerForm<QStringList>;
using AnswerOfValue = AnswerForm<Value>;
using AnswerOfList = AnswerForm<List>;

/** All that is said of a command's answers. A class without one of its own has those of its base, below. */
struct AnswerFacts
{
    std::optional<AnswerOfTokens> tokens; ///< of a serial command
    AnswerOfValue value;
    AnswerOfList list;
    CodeAndText envelope;             ///< when there is no memory for the envelope
    std::string nullCode;             ///< no ready answer
    std::string cloneCode;            ///< a ready answer that cannot be copied
    bool gathersReadyAnswers = false; ///< in a way of its own, which a test of its own tells
};

AnswerFacts plainAnswers();  ///< of ProtoCommand
AnswerFacts serialAnswers(); ///< of SerialProtoCommand
AnswerFacts confAnswers();   ///< of ConfProtoCommand
AnswerFacts scaleAnswers();  ///< of ScaleProtoCommand

/** An envelope as a driver sends it. */
Value envelope(int retCode, const Value &result);

/**
 * Expects in all ways to take an answer: the answer made and stored, the one before deleted, the envelope kept; of a
 * failure code and text, no answer left, and no exception.
 */
void expectAnswerContract(ProtoCommand &command, const AnswerFacts &facts);

} // namespace testing_base
