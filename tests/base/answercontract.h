// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/protocommand.h"

/** What a kind of command says when it cannot make an answer, and which class its answers have. */
struct AnswerContract
{
    const char *answerClass;
    const char *valueCode;
    const char *listCode;
    const char *envelopeCode;
    const char *envelopeText;
    const char *nullCode;
    const char *cloneCode;
};

/** Expects of a command without a class of its own that it keeps the contract, in all ways to take an answer. */
void expectAnswerContract(ProtoCommand &command, const AnswerContract &contract);
