// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandrefusals.h"

namespace testing_base {

namespace {

constexpr char ofBaseValue[] =
    "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char ofBaseList[] = "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)";

/** The first request in both forms, so that arguments can be taken from it or replaced in it. */
class Arguments
{
public:
    explicit Arguments(const Request &request)
        : m_value(request.valueForm ? *request.valueForm : arrayOfList(request.arguments)),
          m_list(request.arguments)
    {}

    Value firstValues(int count) const
    {
        Value values = arrayOf();
        for (int i = 0; i < count; ++i)
            values[i] = m_value[i];
        return values;
    }
    List firstVariants(int count) const { return m_list.mid(0, count); }
    const QVariant &at(int index) const { return m_list.at(index); }

    Value with(int index, const Value &other) const
    {
        Value values = m_value;
        values[index] = other;
        return values;
    }
    List with(int index, const QVariant &other) const
    {
        List list = m_list;
        list[index] = other;
        return list;
    }

private:
    Value m_value;
    List m_list;
};

void expectValueRefused(const CommandFacts &facts, const Value &value, const ArgumentRefusal &refusal)
{
    SCOPED_TRACE("XML-RPC form " + dumped(value));
    expectRefusal(refusal.valueCode.c_str(), refusal.text.c_str(), facts.valueFunction.c_str(),
                  [&] { facts.forms.ofValue(value); });
}

void expectListRefused(const CommandFacts &facts, const List &list, const ArgumentRefusal &refusal)
{
    SCOPED_TRACE("list form " + shown(list));
    expectRefusal(refusal.listCode.c_str(),
                  (refusal.listText.empty() ? refusal.text : refusal.listText).c_str(),
                  facts.listFunction.c_str(), [&] { facts.forms.ofList(list); });
}

// ---------------------------------------------------------------- what the base refuses

std::string tooFew(const CommandFacts &facts, int count)
{
    return (facts.countedName.empty() ? facts.catalogue.name : facts.countedName) +
           " command : expected at least " + std::to_string(facts.catalogue.minimum) +
           " parameters, received " + std::to_string(count) + " instead!";
}

void expectBaseRefusals(const CommandFacts &facts)
{
    if (facts.takesNothing)
        return;
    const Arguments arguments(facts.requests.front());
    if (facts.valueIsCheckedByBase) {
        SCOPED_TRACE("XML-RPC form");
        expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBaseValue,
                      [&] { facts.forms.ofValue(Value()); });
        for (const Value &other :
             {Value(7), Value(true), Value(7.5), Value("7"), structOf({}), structOf({{"value", Value(7)}})}) {
            SCOPED_TRACE(dumped(other));
            expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBaseValue,
                          [&] { facts.forms.ofValue(other); });
        }
    }
    for (int count = 0; count < facts.catalogue.minimum; ++count) {
        SCOPED_TRACE(count);
        if (facts.valueIsCheckedByBase)
            expectRefusal("DE00312", tooFew(facts, count).c_str(), ofBaseValue,
                          [&] { facts.forms.ofValue(arguments.firstValues(count)); });
        if (facts.listIsCountedByBase)
            expectRefusal("DE00313", tooFew(facts, count).c_str(), ofBaseList,
                          [&] { facts.forms.ofList(arguments.firstVariants(count)); });
    }
}

// ---------------------------------------------------------------- what the class refuses

void expectOthersRefused(const CommandFacts &facts, int index, const Argument::Refused &refused)
{
    const Arguments arguments(facts.requests.front());
    for (const Value &other : refused.values)
        expectValueRefused(facts, arguments.with(index, other), refused.refusal);
    for (const QVariant &other : refused.variants)
        expectListRefused(facts, arguments.with(index, other), refused.refusal);
}

/** All arguments from this one on are wrong: the first of them is refused. */
void expectFirstOtherRefused(const CommandFacts &facts, int index)
{
    const Arguments arguments(facts.requests.front());
    Value values = arguments.firstValues(index);
    List list = arguments.firstVariants(index);
    for (size_t i = static_cast<size_t>(index); i < facts.arguments.size(); ++i) {
        const Argument::Refused &refused = facts.arguments[i].refused.front();
        values[values.size()] = refused.values.empty() ? Value(structOf({})) : refused.values.front();
        list.append(refused.variants.empty() ? QVariant() : refused.variants.front());
    }
    const Argument::Refused &refused = facts.arguments[static_cast<size_t>(index)].refused.front();
    if (!refused.values.empty())
        expectValueRefused(facts, values, refused.refusal);
    if (!refused.variants.empty())
        expectListRefused(facts, list, refused.refusal);
}

void expectTaken(const CommandFacts &facts, int index, const QVariant &literal)
{
    SCOPED_TRACE("taken: " + shown({literal}));
    const Arguments arguments(facts.requests.front());
    const Value asValue = valueOf(literal);
    for (const bool fromValue : {true, false}) {
        SCOPED_TRACE(fromValue ? "XML-RPC form" : "list form");
        const Made command = tryToMake([&] {
            return fromValue ? facts.forms.ofValue(arguments.with(index, asValue))
                             : facts.forms.ofList(arguments.with(index, literal));
        });
        if (!command)
            continue;
        EXPECT_EQ(command->parameters().value(index), literal);
        const Value written = command->xmlrpc_parameters();
        ASSERT_LT(index, written.size());
        EXPECT_EQ(dumped(written[index]), dumped(asValue));
    }
}

/** In a list a number may be of another type, and means the same. */
void expectSameTaken(const CommandFacts &facts, int index, const Argument &argument)
{
    const Request &request = facts.requests.front();
    if (!argument.type || !request.hasListForm)
        return;
    const Arguments arguments(request);
    for (const QVariant &same : sameVariants(*argument.type, arguments.at(index))) {
        SCOPED_TRACE("list form with " + shown({same}));
        const Made command = tryToMake([&] { return facts.forms.ofList(arguments.with(index, same)); });
        if (!command)
            continue;
        EXPECT_EQ(command->parameters(), request.madeParameters());
        EXPECT_EQ(dumped(command->xmlrpc_parameters()), request.expectedDump);
    }
}

void expectArgument(const CommandFacts &facts, int index)
{
    SCOPED_TRACE("argument " + std::to_string(index + 1));
    const Argument &argument = facts.arguments[static_cast<size_t>(index)];
    if (!argument.absence.valueCode.empty()) {
        const Arguments arguments(facts.requests.front());
        expectValueRefused(facts, arguments.firstValues(index), argument.absence);
        expectListRefused(facts, arguments.firstVariants(index), argument.absence);
    }
    for (const Argument::Refused &refused : argument.refused)
        expectOthersRefused(facts, index, refused);
    expectFirstOtherRefused(facts, index);
    for (const QVariant &literal : argument.taken)
        expectTaken(facts, index, literal);
    expectSameTaken(facts, index, argument);
}

} // namespace

void expectRefusals(const CommandFacts &facts)
{
    expectBaseRefusals(facts);
    for (size_t i = 0; i < facts.arguments.size(); ++i)
        expectArgument(facts, static_cast<int>(i));
    for (const TypedRefusal &typed : facts.typedRefusals)
        expectRefusal(typed.refusal.code.c_str(), typed.refusal.text.c_str(), typed.function.c_str(),
                      [&] { typed.making(); });
}

} // namespace testing_base
