// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/arguments_p.h"
#include "base/fieldtype_p.h"
#include "catalogue/commandfacts.h"

#include <type_traits>
#include <typeinfo>
#include <utility>

namespace quv {

/** Adds the refusal, if it has a code. */
void appendRefusal(QList<RefusalFacts> &refusals, const char *form, const char *when, const Refusal &refusal);

/** Tells the arguments of a command that was built without any to those who explain it. */
class ArgumentTeller
{
public:
    explicit ArgumentTeller(CommandFacts &facts) : m_facts(facts) { facts.tellsArguments = true; }

    /** For arguments that no field holds, as structs that are taken apart. */
    void argument(const ArgumentName &name, const char *type) { tell(name, type); }
    /** The same for one that may be left out, which is as if it were \a otherwise. */
    void argument(const ArgumentName &name, const char *type, const XmlRpc::XmlRpcValue &otherwise);

    template <class T>
    void required(const ArgumentName &name, const T &field, const ArgumentRefusal &absent,
                  const ArgumentRefusal &otherType)
    {
        if (isGiven(absent.list) && !isGiven(absent.value))
            unread(name, field); // XML-RPC, in which it may be left out
        else
            tell(name, fieldType<T>().name);
        refuseMissing(absent);
        refuse("another type", otherType);
    }

    template <class T>
    void requiredIf(bool, const ArgumentName &name, const T &field, const ArgumentRefusal &absent,
                    const ArgumentRefusal &otherType)
    {
        unread(name, field);
        refuseMissing(absent);
        refuse("another type", otherType);
    }

    template <class T>
    void optional(const ArgumentName &name, const T &field, const ArgumentRefusal &otherType)
    {
        unread(name, field);
        if (isCountedByBase())
            require();
        refuse("another type", otherType);
    }

    template <class T>
    void convertible(const ArgumentName &name, const T &, const ArgumentRefusal &refusal)
    {
        tell(name, fieldType<T>().name);
        refuse(whenNotThere(), refusal);
    }

    template <class T>
    void object(const ArgumentName &name, const T &, const ArgumentRefusal &refusal,
                const Refusal &unreadable)
    {
        tell(name, nameOf<T>);
        if (ownRefusals<T>.empty()) {
            refuse(whenNotThere(), refusal);
            refuse("list", "unreadable", unreadable);
            return;
        }
        refuse("list", whenNotThere(), refusal.list);
        for (const auto &[when, own] : ownRefusals<T>) // which pass through those of the command
            refuse("XML-RPC", when, own);
    }

    template <class T>
    void unread(const ArgumentName &name, const T &field)
    {
        argument(name, fieldType<T>().name, EncodeXmlRpcVariant(QVariant::fromValue(field)));
    }

    void refuseUnless(bool, const ArgumentRefusal &refusal) { refuse("out of range", refusal); }

    /** Another refusal of the argument that was told last. */
    void refuse(const char *when, const ArgumentRefusal &refusal);

    template <class Check>
    void whenRead(Check) const
    {}

private:
    /** Whether the base refuses a request without the argument that was told last, before the class looks at it. */
    bool isCountedByBase() const;
    const char *whenNotThere() const
    {
        return isCountedByBase() ? "another type" : "missing or another type";
    }

    void tell(const ArgumentName &name, const char *type);
    void require(); ///< that the argument that was told last cannot be left out
    void refuseMissing(const ArgumentRefusal &absent)
    {
        if (!isCountedByBase())
            refuse("missing", absent);
    }
    void refuse(const char *form, const char *when, const Refusal &refusal);

    CommandFacts &m_facts;
};

/** The name of a class as it stands in the sources. */
QString nameOfClass(const std::type_info &type);

template <class Answer, class = void>
inline constexpr bool tellsMembers = false;
template <class Answer>
inline constexpr bool tellsMembers<Answer, std::void_t<decltype(Answer::memberFacts())>> = true;

/** Tells the class of an answer and its members. */
template <class Answer>
void tellAnswerClass(CommandFacts &facts)
{
    facts.answerClass = nameOfClass(typeid(Answer));
    if constexpr (tellsMembers<Answer>) {
        facts.tellsMembers = true;
        facts.members = Answer::memberFacts();
    }
}

/** Takes back the refusals of members in a form in which the command's answer never comes. */
void leaveOutForm(const char *form, CommandFacts &facts);

/** Tells the answer, and what a failure to make it is called. */
template <class Answer, class Ways>
void tellAnswer(const Ways &ways, CommandFacts &facts)
{
    tellAnswerClass<Answer>(facts);
    const std::pair<const char *, Refusal> refusals[] = {
        {"tokens", ways.tokens}, {"XML-RPC", ways.value}, {"list", ways.list}, {"envelope", ways.envelope}};
    for (const auto &[form, refusal] : refusals)
        appendRefusal(facts.answerRefusals, form, "", refusal);
    if (!isGiven(ways.value))
        leaveOutForm("XML-RPC", facts);
    if (!isGiven(ways.list))
        leaveOutForm("list", facts);
}

} // namespace quv
