// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/argumentteller_p.h"

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

QString nameOfClass(const std::type_info &type)
{
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr), &std::free);
    return QString::fromLatin1(name ? name.get() : type.name());
}

} // namespace quv
