// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/answercontract.h"
#include "base/argumentfacts.h"
#include "base/basetesting.h"
#include "base/protocommand.h"

#include <QuvFramework/fw_version.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

// The facts of a command class that expectCommandContract compares. A test states them as literals.

namespace testing_base {

using Made = std::unique_ptr<ProtoCommand>;
using Making = std::function<Made()>;

/** Fails the test and gives null when the command is refused. */
Made tryToMake(const Making &making);

/** The command that a constructor makes of these arguments. */
template <class Command, class... Arguments>
Making made(Arguments... arguments)
{
    return [=]() -> Made { return std::make_unique<Command>(arguments...); };
}

/** A text for displays, and what it is in a language in which every text stands between angle quotes. */
struct Phrase
{
    Phrase(const char *source); ///< translated as a whole
    Phrase(const char *source, const char *inContext, const QString &translation);

    QString text;
    std::string context;
    QString translated;
    std::optional<QString> logged; ///< in that language, where logs do not get the source
};

Phrase untranslated(const char *text);
Phrase inProgress(); ///< what the base says of most commands

/** commandString, and actionString without and with details. */
struct Words
{
    Words(); ///< those of the base
    Words(const char *label, const Phrase &both) : Words(label, both, both) {}
    Words(const char *label, const Phrase &brief, const Phrase &full)
        : command(label),
          action(brief),
          detailed(full)
    {}

    QString command;
    Phrase action;
    Phrase detailed;
    std::optional<QString> translatedCommand; ///< where the label is translated, too
};

Words silence(); ///< nothing at all

/**
 * A command with given arguments, and all that follows from them. What a request does not tell is as the base has it, and
 * compared as well.
 */
struct Request
{
    Request() = default;
    /** The arguments as a list; over XML-RPC they are the same, unless value() tells otherwise. */
    explicit Request(List given) : arguments(std::move(given)) {}

    /** The constructor's arguments that make the same command. */
    template <class Command, class... Arguments>
    Request &typed(Arguments... given)
    {
        typedForm = made<Command>(given...);
        typedHasMachine = (isMachine(given) || ...);
        return *this;
    }
    Request &value(const Value &array);
    Request &onlyTyped();
    Request &notReadBack(); ///< what it writes makes another command, or none
    Request &onlyFromList();
    Request &onlyFromValue();

    Request &parameters(List expected);     ///< where they are not the arguments
    Request &written(std::string expected); ///< xmlrpc_parameters, dumped
    Request &notWritten();                  ///< xmlrpc_parameters gives an empty array and false
    Request &sends(QList<int> both);
    Request &sends(QList<int> family1, QList<int> family2);
    Request &module(int expected);
    Request &takes(long long milliseconds); ///< on any machine
    Request &says(const Words &expected);
    Request &holds(List expected); ///< by the getters in their order, where that is not the parameters

    /** What a command of this request gives back: of parameters(), and of the getters. */
    const List &madeParameters() const { return expectedParameters ? *expectedParameters : arguments; }
    const List &madeHeld() const { return held ? *held : madeParameters(); }
    /** The arguments, as a failure names them. */
    std::string name() const;

    /** The same command from another list, or another value. */
    Request alsoFromList(List other) const;
    Request alsoFromValue(const Value &other) const;

    List arguments;
    std::optional<Value> valueForm;
    bool hasValueForm = true;
    bool hasListForm = true;
    bool isReadBack = true;
    Making typedForm;
    bool typedHasMachine = false;

    std::optional<List> expectedParameters;
    std::string expectedDump;
    bool isWritten = true;
    QList<int> sent[2];
    int moduleID = 0;
    std::optional<long long> time;
    std::optional<Words> words;
    std::optional<List> held;

private:
    template <class T>
    static bool isMachine(const T &given)
    {
        if constexpr (std::is_convertible_v<T, const FW_Machine *>)
            return static_cast<const FW_Machine *>(given) != nullptr;
        else
            return false;
    }
};

/** How the commands of a class are made. */
struct CommandForms
{
    const std::type_info *type = nullptr;
    Making byDefault; ///< none for a class without such a constructor
    std::function<Made(const Value &)> ofValue;
    std::function<Made(const List &)> ofList;
    std::function<Made(const ProtoCommand &)> copy;
    std::function<void(ProtoCommand &)> setDefaults; ///< none where it is not public
    const FW_Machine *valueMachine = nullptr;        ///< what the forms are given
    const FW_Machine *listMachine = nullptr;
};

template <class Command, class = void>
struct HasDefaults : std::false_type
{};
template <class Command>
struct HasDefaults<Command, std::void_t<decltype(std::declval<Command &>().setDefaults())>> : std::true_type
{};

/** Stands for a source where constructors are chosen: an XML-RPC value itself also converts to numbers and flags. */
template <class Source>
struct OfSource
{
    operator Source() const;
};

/** Of the class; \a leading arguments stand before the others in each constructor. */
template <class Command, class... Leading>
CommandForms formsOf(const FW_Dispenser *machine = nullptr, Leading... leading)
{
    CommandForms forms;
    forms.type = &typeid(Command);
    if constexpr (std::is_constructible_v<Command, Leading...>)
        forms.byDefault = made<Command>(leading...);

    // null tells a pointer from a flag, which would take the pointer too
    if constexpr (std::is_constructible_v<Command, Leading..., OfSource<Value>, std::nullptr_t>) {
        forms.valueMachine = machine;
        forms.ofValue = [=](const Value &value) -> Made {
            return std::make_unique<Command>(leading..., value, machine);
        };
    } else if constexpr (std::is_constructible_v<Command, Leading..., OfSource<Value>>) {
        forms.ofValue = [=](const Value &value) -> Made {
            return std::make_unique<Command>(leading..., value);
        };
    }
    if constexpr (std::is_constructible_v<Command, Leading..., OfSource<List>, std::nullptr_t>) {
        forms.listMachine = machine;
        forms.ofList = [=](const List &list) -> Made {
            return std::make_unique<Command>(leading..., list, machine);
        };
    } else if constexpr (std::is_constructible_v<Command, Leading..., OfSource<List>>) {
        forms.ofList = [=](const List &list) -> Made { return std::make_unique<Command>(leading..., list); };
    }

    forms.copy = [](const ProtoCommand &command) -> Made {
        return std::make_unique<Command>(dynamic_cast<const Command &>(command));
    };
    if constexpr (HasDefaults<Command>::value)
        forms.setDefaults = [](ProtoCommand &command) { dynamic_cast<Command &>(command).setDefaults(); };
    return forms;
}

using Getter = std::function<QVariant(const ProtoCommand &)>;

template <class Class, class Result>
Getter getter(Result (Class::*get)() const)
{
    return [get](const ProtoCommand &command) {
        const auto &result = (dynamic_cast<const Class &>(command).*get)();
        using Plain = std::decay_t<Result>;
        if constexpr (std::is_enum_v<Plain>)
            return QVariant(static_cast<int>(result));
        else
            return QVariant::fromValue(static_cast<const Plain &>(result));
    };
}

/** What a typed constructor refuses. */
struct TypedRefusal
{
    Making making;
    CodeAndText refusal;
    std::string function;
};

struct Gate
{
    FW_Version version;
    bool isSupported = true;
};
std::vector<Gate> everyFirmware();

/** The command's row of the catalogue. */
struct CatalogueFacts
{
    std::string name;
    int row = -1;
    std::optional<std::string> code; ///< the firmware's in family 1, or ""
    int minimum = -1;                ///< of arguments
};

/** All facts of a class. The first four must be told, requests, and what refuses arguments. */
struct CommandFacts
{
    explicit CommandFacts(CommandForms made) : forms(std::move(made)) {}

    CommandForms forms;
    CatalogueFacts catalogue;
    int protoType = -1;
    AnswerFacts answers;
    std::string valueFunction; ///< the signature of the decoding constructor, as refusals tell it
    std::string listFunction;

    std::vector<Argument> arguments;
    std::vector<Getter> getters;
    Words words;                          ///< where a request does not tell its own
    Request defaults;                     ///< of the default constructor
    std::optional<Request> afterDefaults; ///< after setDefaults, where that is not the same
    std::vector<Request> requests;        ///< the first with all arguments
    std::vector<TypedRefusal> typedRefusals;
    std::vector<Gate> firmware = everyFirmware();

    // What a class does its own way; a test of its own tells it then.
    bool takesNothing = false; ///< the class has no form that takes arguments
    bool readsByHand =
        false; ///< no plain list of positions: nothing is known of what is absent or of another type
    bool keepsTheList = false;        ///< the list form reads nothing: parameters() gives the list as it came
    bool valueIsCheckedByBase = true; ///< the base refuses what is no array, and counts
    bool listIsCountedByBase = true;
    std::string countedName;        ///< under which the base counts, where that is another
    bool comesBackFromValue = true; ///< what xmlrpc_parameters() gives makes the same command
    bool comesBackFromList = true;  ///< what parameters() gives makes the same command
    bool timeNeedsAMachine = false; ///< takes() tells the time without one only
};

} // namespace testing_base
