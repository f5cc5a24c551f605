// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/argumentteller_p.h"
#include "base/confprotocommand.h"
#include "base/scaleprotocommand.h"
#include "base/serialprotocommand.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <array>
#include <cstddef>
#include <initializer_list>
#include <stdexcept>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace quv {

// Which class serves which command: one table a dispatch operation of ProtoCommandList, with one row a command. A row says
// how its class is constructed,
//
//     {Cmd::READ_CONFIG_ROW, fromArguments<ReadConfigurationParamCmd>()},
//
// and which of the two forms it stands in when that is not both.

/** The dispatch operations that have tables of their own. */
enum class Dispatch { Serial, DispenserSerial, MixerSerial, Config, DispenserConfig, MixerConfig, Scale };

/** The two forms in which arguments come; the values are bits. */
enum Form : unsigned { ValueForm = 1, ListForm = 2, BothForms = ValueForm | ListForm };

template <class Args>
inline constexpr Form formOf = std::is_same_v<Args, XmlRpc::XmlRpcValue> ? ValueForm : ListForm;

/** What is known of the class that serves a command: how it is made of its arguments in either form. */
template <class Command>
struct CommandClass
{
    /** Args is an XML-RPC array or a variant list. */
    template <class Args>
    using Maker = Command *(*)(const QString &name, Args &args, const FW_Machine *machine);

    Maker<XmlRpc::XmlRpcValue> fromValue = nullptr; ///< null when the row is not in this form
    Maker<QList<QVariant>> fromList = nullptr;
    void (*tell)(CommandFacts &facts) = nullptr; ///< adds what the class knows of itself

    template <class Args>
    constexpr Maker<Args> maker() const
    {
        if constexpr (formOf<Args> == ValueForm)
            return fromValue;
        else
            return fromList;
    }
};

/** What an operation returns that makes a \a Class. */
template <class Class>
using CommandKind = std::conditional_t<
    std::is_base_of_v<SerialProtoCommand, Class>, SerialProtoCommand,
    std::conditional_t<std::is_base_of_v<ConfProtoCommand, Class>, ConfProtoCommand, ScaleProtoCommand>>;

template <class Class, class = void>
inline constexpr bool tellsItself = false;
template <class Class>
inline constexpr bool tellsItself<Class, std::void_t<decltype(Class::tell(std::declval<CommandFacts &>()))>> =
    true;

/** The classes of commands without arguments of their own. */
template <class Class>
inline constexpr bool isPlain = std::is_same_v<Class, CommandKind<Class>>;

template <class Class>
void tellClass(CommandFacts &facts)
{
    facts.className = nameOfClass(typeid(Class));
    if constexpr (tellsItself<Class>)
        Class::tell(facts);
    else if constexpr (isPlain<Class>)
        facts.tellsArguments = true; // that there are none
}

/** A class that \a make, which is generic over the arguments, makes in these forms; no other needs a constructor. */
template <class Class, Form Forms, class Make>
constexpr CommandClass<CommandKind<Class>> madeBy(Make make)
{
    CommandClass<CommandKind<Class>> made;
    made.tell = tellClass<Class>;
    if constexpr ((Forms & ValueForm) != 0)
        made.fromValue = make;
    if constexpr ((Forms & ListForm) != 0)
        made.fromList = make;
    return made;
}

// What the class's constructor takes.

template <class Class, Form Forms = BothForms>
constexpr auto fromArguments()
{
    return madeBy<Class, Forms>([](const QString &, auto &args, const FW_Machine *) -> CommandKind<Class> * {
        return new Class(args);
    });
}

template <class Class, Form Forms = BothForms>
constexpr auto fromArgumentsAndMachine()
{
    return madeBy<Class, Forms>(
        [](const QString &, auto &args, const FW_Machine *machine) -> CommandKind<Class> * {
            return new Class(args, machine);
        });
}

template <class Class, Form Forms = BothForms>
constexpr auto fromArgumentsAndDispenser()
{
    return madeBy<Class, Forms>(
        [](const QString &, auto &args, const FW_Machine *machine) -> CommandKind<Class> * {
            return new Class(args, dynamic_cast<const FW_Dispenser *>(machine));
        });
}

template <class Class, Form Forms = BothForms>
constexpr auto fromNameAndArguments()
{
    return madeBy<Class, Forms>(
        [](const QString &name, auto &args, const FW_Machine *) -> CommandKind<Class> * {
            return new Class(name, args);
        });
}

template <class Class, Form Forms = BothForms>
constexpr auto fromNameArgumentsAndMachine()
{
    return madeBy<Class, Forms>(
        [](const QString &name, auto &args, const FW_Machine *machine) -> CommandKind<Class> * {
            return new Class(name, args, machine);
        });
}

/** For a command without parameters of its own: the arguments and the machine are dropped. */
template <class Class, Form Forms = BothForms>
constexpr auto fromName()
{
    return madeBy<Class, Forms>([](const QString &name, auto &, const FW_Machine *) -> CommandKind<Class> * {
        return new Class(name, nullptr);
    });
}

/** For a class of one command without arguments: whatever is given is dropped. */
template <class Class, Form Forms = BothForms>
constexpr auto fromNothing()
{
    return madeBy<Class, Forms>(
        [](const QString &, auto &, const FW_Machine *) -> CommandKind<Class> * { return new Class; });
}

template <class Command>
struct CommandRow
{
    ProtoCommandList::CommandListValue command;
    CommandClass<Command> served;
};

/** The rows of one dispatch operation, found by the command's number in the catalogue. */
template <class Command>
class CommandTable
{
public:
    /** With a command that is there twice it does not compile. */
    constexpr CommandTable(Dispatch dispatch, std::initializer_list<CommandRow<Command>> rows)
        : m_dispatch(dispatch)
    {
        for (const CommandRow<Command> &row : rows) {
            CommandClass<Command> &known = m_classes[static_cast<std::size_t>(row.command)];
            if (known.tell)
                throw std::logic_error("a command has two rows");
            known = row.served;
        }
    }

    constexpr Dispatch dispatch() const { return m_dispatch; }
    /** The class of a row of the catalogue; one without makers when the operation has none for it. */
    constexpr const CommandClass<Command> &classOf(const CMD_STRUCT &row) const
    {
        return m_classes[static_cast<std::size_t>(row.id)];
    }

private:
    Dispatch m_dispatch;
    std::array<CommandClass<Command>, ProtoCommandList::rowCount> m_classes{};
};

extern const CommandTable<SerialProtoCommand> serialTable;
extern const CommandTable<SerialProtoCommand> dispenserSerialTable;
extern const CommandTable<SerialProtoCommand> mixerSerialTable;
extern const CommandTable<ConfProtoCommand> configTable;
extern const CommandTable<ConfProtoCommand> dispenserConfigTable;
extern const CommandTable<ConfProtoCommand> mixerConfigTable;
extern const CommandTable<ScaleProtoCommand> scaleTable;

} // namespace quv
