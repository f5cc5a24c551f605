// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/argumentteller_p.h"
#include "base/protoanswer.h"
#include "catalogue/protocommandlist.h"

#include <QtCore/QStringList>

#include <type_traits>
#include <typeinfo>
#include <vector>

namespace quv {

// The answers to commands that have no class of their own, by the kind of the command. A command without a row gets the
// plain answer of its kind.

struct AnswerRow
{
    template <class Source>
    using Maker = ProtoAnswer *(*)(Source &source);

    ProtoCommandList::CommandListValue command;
    // A form that the class has no constructor for makes the plain answer.
    Maker<const XmlRpc::XmlRpcValue> fromValue = nullptr;
    Maker<QList<QVariant>> fromList = nullptr;
    Maker<const QStringList> fromTokens = nullptr;
    void (*tell)(CommandFacts &facts) = nullptr;
};

template <class Answer, class Source>
constexpr AnswerRow::Maker<Source> answerMaker()
{
    if constexpr (std::is_constructible_v<Answer, Source &>)
        return [](Source &source) -> ProtoAnswer * { return new Answer(source); };
    else
        return nullptr;
}

template <class Answer>
AnswerRow answerRow(ProtoCommandList::CommandListValue command)
{
    return {command, answerMaker<Answer, const XmlRpc::XmlRpcValue>(), answerMaker<Answer, QList<QVariant>>(),
            answerMaker<Answer, const QStringList>(), tellAnswerClass<Answer>};
}

/** The row of a command; null when it has none. */
const AnswerRow *serialAnswerRow(const QString &command);
const AnswerRow *configurationAnswerRow(const QString &command);

} // namespace quv
