// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/arguments_p.h"
#include "base/argumentteller_p.h"
#include "base/describedcommand.h"
#include "base/replaceanswer_p.h"
#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"

#include <type_traits>
#include <utility>
#include <vector>

namespace quv {

/** The class of a command's answer, and what a failure to make it is called in each of the four ways in which it comes. */
template <class Answer>
struct AnsweredBy
{
    using Class = Answer;

    // A way without a code is left to the command's base.
    Refusal tokens;
    Refusal value;
    Refusal list;
    Refusal envelope;
};

/** All of its answers are the base's. */
using PlainlyAnswered = AnsweredBy<void>;

/**
 * What every description may leave out. A description itself holds
 *
 *     static constexpr auto command = ProtoCommandList::FOO_BAR;       its row, always
 *     template <class Self, class Archive>
 *     static void arguments(Self &self, Archive &archive);              see base/arguments_p.h; without it those of the base
 *     static void tellArguments(ArgumentTeller &teller);                in place of it, when the class reads them by hand
 *
 * and of what stands here whatever the command has of its own.
 */
struct Description
{
    static constexpr PlainlyAnswered answer{};
    // True for an answer that needs more than the tokens: the class then builds it in an operation of its own.
    static constexpr bool buildsAnswerOfTokens = false;
    static constexpr const char *commandText = nullptr;
    // Marked with QT_TRANSLATE_NOOP. Without a detailed one the other is told in both cases.
    static constexpr const char *actionText = nullptr;
    static constexpr const char *detailedActionText = nullptr;
};

template <class Leaf, class = void>
inline constexpr bool describesArguments = false;
template <class Leaf>
inline constexpr bool describesArguments<Leaf, std::void_t<decltype(Leaf::Description::arguments(
                                                   std::declval<Leaf &>(), std::declval<ListWriter &>()))>> =
    true;

template <class Leaf, class = void>
inline constexpr bool tellsArguments = false;
template <class Leaf>
inline constexpr bool tellsArguments<
    Leaf, std::void_t<decltype(Leaf::Description::tellArguments(std::declval<ArgumentTeller &>()))>> = true;

template <class Leaf>
inline constexpr auto answerOf = Leaf::Description::answer;
template <class Leaf>
using AnswerOf = typename decltype(Leaf::Description::answer)::Class;
template <class Leaf>
inline constexpr bool hasAnswer = !std::is_void_v<AnswerOf<Leaf>>;

/** Where the fields of the arguments are. */
class FieldCollector : public ArgumentVisitor<FieldCollector>
{
public:
    const std::vector<const void *> &fields() const { return m_fields; }

private:
    friend ArgumentVisitor<FieldCollector>;

    template <class T>
    void visit(const T &field)
    {
        m_fields.push_back(&field);
    }
    template <class T>
    void visitObject(const T &field)
    {
        visit(field);
    }

    std::vector<const void *> m_fields;
};

/** Gives the fields of the arguments what another object of the class has in them. */
class FieldRestorer : public ArgumentVisitor<FieldRestorer>
{
public:
    explicit FieldRestorer(const std::vector<const void *> &fields) : m_next(fields.data()) {}

private:
    friend ArgumentVisitor<FieldRestorer>;

    template <class T>
    void visit(T &field)
    {
        field = *static_cast<const T *>(*m_next++);
    }
    template <class T>
    void visitObject(T &field)
    {
        visit(field);
    }

    const void *const *m_next = nullptr;
};

/** The class that has the operation of its own, by a pointer to it. */
template <class Class>
Class *ownerOf(bool (Class::*buildOfTokens)(QStringList, FW_DriverError *));

template <class Leaf, class Base>
bool TokenAnswered<Leaf, Base, true>::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    if constexpr (Leaf::Description::buildsAnswerOfTokens) {
        static_assert(std::is_same_v<decltype(ownerOf(&Leaf::buildProtoAnswer)), Leaf *>,
                      "the class has to override it");
        return Base::buildProtoAnswer(std::move(tokens), error);
    } else if constexpr (isGiven(answerOf<Leaf>.tokens)) {
        static_assert(std::is_constructible_v<AnswerOf<Leaf>, QStringList>,
                      "tokens alone make no such answer: set buildsAnswerOfTokens");
        return this->replaceProtoAnswer(answerOf<Leaf>.tokens.code, answerOf<Leaf>.tokens.text, error,
                                        [&] { return new AnswerOf<Leaf>(std::move(tokens)); });
    } else {
        return Base::buildProtoAnswer(std::move(tokens), error);
    }
}

template <class Leaf, class Base>
DescribedCommand<Leaf, Base>::DescribedCommand(const FW_Machine *machine)
    : TokenAnswered<Leaf, Base>(ProtoCommandList::cmdStr(Leaf::Description::command), machine)
{}

template <class Leaf, class Base>
DescribedCommand<Leaf, Base>::DescribedCommand(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : TokenAnswered<Leaf, Base>(ProtoCommandList::cmdStr(Leaf::Description::command), value, machine)
{}

template <class Leaf, class Base>
DescribedCommand<Leaf, Base>::DescribedCommand(const QList<QVariant> &list, const FW_Machine *machine)
    : TokenAnswered<Leaf, Base>(ProtoCommandList::cmdStr(Leaf::Description::command), list, machine)
{}

template <class Leaf, class Base>
DescribedCommand<Leaf, Base>::DescribedCommand(const DescribedCommand &other) = default;

template <class Leaf, class Base>
DescribedCommand<Leaf, Base>::~DescribedCommand() = default;

template <class Leaf, class Base>
void DescribedCommand<Leaf, Base>::read(const XmlRpc::XmlRpcValue &value, const char *function)
{
    if constexpr (describesArguments<Leaf>) {
        ValueReader reader(value, function);
        Leaf::Description::arguments(leaf(), reader);
    }
}

template <class Leaf, class Base>
void DescribedCommand<Leaf, Base>::read(const QList<QVariant> &list, const char *function)
{
    if constexpr (describesArguments<Leaf>) {
        ListReader reader(list, function);
        Leaf::Description::arguments(leaf(), reader);
    }
}

template <class Leaf, class Base>
void DescribedCommand<Leaf, Base>::setDefaults()
{
    if constexpr (describesArguments<Leaf>) {
        const Leaf fresh;
        FieldCollector collector;
        Leaf::Description::arguments(fresh, collector);
        FieldRestorer restorer(collector.fields());
        Leaf::Description::arguments(leaf(), restorer);
    }
}

template <class Leaf, class Base>
QList<QVariant> DescribedCommand<Leaf, Base>::parameters() const
{
    if constexpr (describesArguments<Leaf>) {
        ListWriter writer;
        Leaf::Description::arguments(leaf(), writer);
        return writer.result();
    } else {
        return Base::parameters();
    }
}

template <class Leaf, class Base>
XmlRpc::XmlRpcValue DescribedCommand<Leaf, Base>::xmlrpc_parameters(bool *ok) const
{
    if constexpr (describesArguments<Leaf>) {
        if (ok)
            *ok = true;
        return writtenArguments([this](auto &archive) { Leaf::Description::arguments(leaf(), archive); });
    } else {
        return Base::xmlrpc_parameters(ok);
    }
}

template <class Leaf, class Base>
bool DescribedCommand<Leaf, Base>::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    if constexpr (isGiven(answerOf<Leaf>.value))
        return this->replaceProtoAnswer(answerOf<Leaf>.value.code, answerOf<Leaf>.value.text, error,
                                        [&] { return new AnswerOf<Leaf>(value); });
    else
        return Base::buildProtoAnswer(value, error);
}

template <class Leaf, class Base>
bool DescribedCommand<Leaf, Base>::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    if constexpr (isGiven(answerOf<Leaf>.list))
        return this->replaceProtoAnswer(answerOf<Leaf>.list.code, answerOf<Leaf>.list.text, error,
                                        [&] { return new AnswerOf<Leaf>(list); });
    else
        return Base::buildProtoAnswer(list, error);
}

template <class Leaf, class Base>
bool DescribedCommand<Leaf, Base>::setAnswer(const XmlRpc::XmlRpcValue &value, bool async,
                                             FW_DriverError *error)
{
    if constexpr (isGiven(answerOf<Leaf>.envelope))
        return this->takeXmlRpcAnswer(value, async, answerOf<Leaf>.envelope.code,
                                      answerOf<Leaf>.envelope.text, error);
    else
        return Base::setAnswer(value, async, error);
}

template <class Leaf, class Base>
QString DescribedCommand<Leaf, Base>::commandString() const
{
    return Leaf::Description::commandText ? QString::fromLatin1(Leaf::Description::commandText)
                                          : Base::commandString();
}

template <class Leaf, class Base>
TString DescribedCommand<Leaf, Base>::actionString(bool detailed) const
{
    const char *text = detailed && Leaf::Description::detailedActionText
                           ? Leaf::Description::detailedActionText
                           : Leaf::Description::actionText;
    return text ? TString(text, translationContext) : Base::actionString(detailed);
}

template <class Leaf, class Base>
void DescribedCommand<Leaf, Base>::tell(CommandFacts &facts)
{
    if constexpr (tellsArguments<Leaf>) {
        ArgumentTeller teller(facts);
        Leaf::Description::tellArguments(teller);
    } else if constexpr (describesArguments<Leaf>) {
        const Leaf fresh;
        ArgumentTeller teller(facts);
        Leaf::Description::arguments(fresh, teller);
    }
    if constexpr (hasAnswer<Leaf>)
        tellAnswer<AnswerOf<Leaf>>(answerOf<Leaf>, facts);
}

} // namespace quv
