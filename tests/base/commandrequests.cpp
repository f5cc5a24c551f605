// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandrequests.h"

#include "base/commandcomparison.h"

namespace testing_base {

namespace {

struct Form
{
    const char *name;
    Making making;
    const FW_Machine *machine;
};

Value valueOf(const Request &request)
{
    return request.valueForm ? *request.valueForm : arrayOfList(request.arguments);
}

Form valueForm(const char *name, const CommandFacts &facts, const Value &value)
{
    return {name, [&facts, value] { return facts.forms.ofValue(value); }, facts.forms.valueMachine};
}

Form listForm(const char *name, const CommandFacts &facts, const List &list)
{
    return {name, [&facts, list] { return facts.forms.ofList(list); }, facts.forms.listMachine};
}

/** Of a request with all arguments: more of them are read by nobody. */
void addFormsWithMore(std::vector<Form> &forms, const CommandFacts &facts, const Request &request)
{
    if (request.hasValueForm) {
        Value value = valueOf(request);
        value[value.size()] = "rest";
        value[value.size()] = true;
        forms.push_back(valueForm("XML-RPC form with more arguments", facts, value));
    }
    if (request.hasListForm && !facts.keepsTheList)
        forms.push_back(
            listForm("list form with more arguments", facts, request.arguments + List{"rest", true}));
}

std::vector<Form> formsOfRequest(const CommandFacts &facts, const Request &request)
{
    std::vector<Form> forms;
    if (request.typedForm) {
        const FW_Machine *machine =
            facts.forms.valueMachine ? facts.forms.valueMachine : facts.forms.listMachine;
        forms.push_back({"typed form", request.typedForm, request.typedHasMachine ? machine : nullptr});
    }
    if (request.hasValueForm)
        forms.push_back(valueForm("XML-RPC form", facts, valueOf(request)));
    if (request.hasListForm)
        forms.push_back(listForm("list form", facts, request.arguments));
    if (!facts.readsByHand && static_cast<size_t>(request.arguments.size()) == facts.arguments.size())
        addFormsWithMore(forms, facts, request);
    return forms;
}

/** What a command writes makes the same command. */
void expectReadBack(const ProtoCommand &command, const CommandFacts &facts, const Request &request)
{
    std::vector<Form> forms;
    if (!request.isReadBack)
        return;
    if (facts.comesBackFromValue && request.isWritten)
        forms.push_back(valueForm("read back from XML-RPC", facts, command.xmlrpc_parameters()));
    if (facts.comesBackFromList)
        forms.push_back(listForm("read back from a list", facts, command.parameters()));
    for (const Form &form : forms) {
        SCOPED_TRACE(form.name);
        if (const Made same = tryToMake(form.making))
            expectContents(*same, facts, request);
    }
}

} // namespace

void expectRequest(const CommandFacts &facts, const Request &request)
{
    SCOPED_TRACE("request " + request.name());
    for (const Form &form : formsOfRequest(facts, request)) {
        SCOPED_TRACE(form.name);
        const Made command = tryToMake(form.making);
        if (!command)
            continue;
        expectContents(*command, facts, request);
        expectOwned(*command, form.machine);
        expectTranslatedWords(*command, facts, request);
        expectReadBack(*command, facts, request);
        for (const Copy &copy : copiesOf(*command, facts)) {
            SCOPED_TRACE(copy.name);
            expectContents(*copy.command, facts, request);
        }
    }
}

Made firstCommand(const CommandFacts &facts)
{
    const std::vector<Form> forms = formsOfRequest(facts, facts.requests.front());
    return forms.empty() ? nullptr : tryToMake(forms.front().making);
}

std::vector<Copy> copiesOf(const ProtoCommand &command, const CommandFacts &facts)
{
    std::vector<Copy> copies;
    copies.push_back({"clone", Made(command.clone())});
    copies.push_back({"copy", facts.forms.copy(command)});
    return copies;
}

} // namespace testing_base
