// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/argumentteller_p.h"

#include "catalogue/protocommandlist.h"

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace quv {

void appendRefusal(QList<RefusalFacts> &refusals, const char *form, const char *when, const Refusal &refusal)
{
    if (isGiven(refusal))
        refusals.append({QString::fromLatin1(form), QString::fromLatin1(when),
                         QString::fromLatin1(refusal.code), QString::fromUtf8(refusal.text)});
}

bool ArgumentTeller::isCountedByBase() const
{
    return m_facts.arguments.size() <= ProtoCommandList::cmdParamNum(m_facts.name, true);
}

void ArgumentTeller::argument(const ArgumentName &name, const char *type,
                              const XmlRpc::XmlRpcValue &otherwise)
{
    tell(name, type);
    m_facts.arguments.last().optional = true;
    m_facts.arguments.last().defaultValue = otherwise;
}

void ArgumentTeller::require()
{
    m_facts.arguments.last().optional = false;
    m_facts.arguments.last().defaultValue.clear();
}

void ArgumentTeller::tell(const ArgumentName &name, const char *type)
{
    ArgumentFacts argument;
    argument.name = QString::fromLatin1(name.name);
    argument.type = QString::fromLatin1(type);
    argument.meaning = QString::fromUtf8(name.meaning);
    m_facts.arguments.append(argument);
}

void ArgumentTeller::refuse(const char *when, const ArgumentRefusal &refusal)
{
    refuse("XML-RPC", when, refusal.value);
    refuse("list", when, refusal.list);
}

void ArgumentTeller::refuse(const char *form, const char *when, const Refusal &refusal)
{
    if (!m_facts.arguments.isEmpty())
        appendRefusal(m_facts.arguments.last().refusals, form, when, refusal);
}

void leaveOutForm(const char *form, CommandFacts &facts)
{
    const auto isLeftOut = [form](const RefusalFacts &refusal) {
        return refusal.form == QLatin1String(form);
    };
    for (MemberFacts &member : facts.members)
        member.refusals.erase(std::remove_if(member.refusals.begin(), member.refusals.end(), isLeftOut),
                              member.refusals.end());
}

QString nameOfClass(const std::type_info &type)
{
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr), &std::free);
    return QString::fromLatin1(name ? name.get() : type.name());
}

} // namespace quv
