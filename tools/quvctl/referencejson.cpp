// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandreference.h"
#include "queries.h"

namespace quv {

namespace {

template <class T>
OrderedJson arrayOf(const QList<T> &list, OrderedJson (*json)(const T &))
{
    OrderedJson array = OrderedJson::array();
    for (const T &element : list)
        array.push_back(json(element));
    return array;
}

OrderedJson refusalJson(const RefusalFacts &refusal)
{
    return {{"form", toJson(refusal.form)},
            {"when", toJson(refusal.when)},
            {"code", toJson(refusal.code)},
            {"text", toJson(refusal.text)}};
}

OrderedJson argumentJson(const ArgumentFacts &argument)
{
    OrderedJson json = {{"name", toJson(argument.name)},
                        {"type", toJson(argument.type)},
                        {"meaning", toJson(argument.meaning)},
                        {"optional", argument.optional}};
    if (argument.optional)
        json["default"] = toJson(argument.defaultValue);
    json["refusals"] = arrayOf(argument.refusals, refusalJson);
    return json;
}

OrderedJson memberJson(const MemberFacts &member)
{
    return {{"key", toJson(member.key)},
            {"type", toJson(member.type)},
            {"meaning", toJson(member.meaning)},
            {"required", member.required},
            {"refusals", arrayOf(member.refusals, refusalJson)}};
}

} // namespace

OrderedJson referenceJson(const CommandReference &command)
{
    const CommandFacts &facts = command.facts;
    OrderedJson json = catalogueRow(*command.row);
    json["purpose"] = toJson(facts.purpose);
    json["class"] = toJson(facts.className);
    json["plain"] = isPlain(facts);
    json["tellsArguments"] = facts.tellsArguments;
    json["arguments"] = arrayOf(facts.arguments, argumentJson);
    json["refusals"] = arrayOf(command.requestRefusals, refusalJson);
    json["answerClass"] = toJson(facts.answerClass);
    json["tellsMembers"] = facts.tellsMembers;
    json["members"] = arrayOf(facts.members, memberJson);
    json["answerRefusals"] = arrayOf(facts.answerRefusals, refusalJson);
    if (command.example && !command.example->shell.isEmpty())
        json["example"]["shell"] = toJson(command.example->shell);
    if (command.example)
        json["example"]["python"] = toJson(command.example->python);
    return json;
}

} // namespace quv
