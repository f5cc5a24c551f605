// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/confprotocommand.h"
#include "base/getcommandstatuscmd.h"
#include "catalogue/protocommandlist.h"
#include "configuration/readconfigurationparamcmd.h"
#include "dispensing/getdispensedformulaserialcmd.h"
#include "ratios.h"
#include "status/dispenserstatuscmd.h"
#include "suites.h"

#include <QtCore/QVariant>

#include <array>
#include <memory>
#include <vector>

namespace {

using XmlRpc::XmlRpcValue;
using List = QList<QVariant>;
using CommandPtr = std::unique_ptr<ProtoCommand>;

std::vector<QString> allNames()
{
    std::vector<QString> names;
    for (int id = 0; id < ProtoCommandList::rowCount; ++id)
        names.push_back(ProtoCommandList::row(id)->name);
    return names;
}

/** A name with arguments, and the class that serves it, made by hand. */
template <class Args>
struct Request
{
    QString name; // not the table's own string
    Args arguments;
    CommandPtr (*makeByHand)(const QString &name, const Args &arguments);
};

template <class Class, class Args>
CommandPtr ofClass(const QString &, const Args &arguments)
{
    return std::make_unique<Class>(arguments);
}

template <class Args>
CommandPtr plain(const QString &name, const Args &)
{
    return std::make_unique<ConfProtoCommand>(name, nullptr);
}

template <class Args>
using Requests = std::array<Request<Args>, 5>;

/** Commands of firmware and driver, from the table's first rows to its last. */
template <class Args>
Requests<Args> requestsOf(const Args &none, const Args &position, const Args &row, const Args &ticket)
{
    const auto named = [](const char *name) { return QString::fromLatin1(name); };
    return {{{named("GET_STATUS"), position, ofClass<DispenserStatusCmd>},
             {named("READ_CONFIG_ROW"), row, ofClass<ReadConfigurationParamCmd>},
             {named("GET_CMD_STATUS"), ticket, ofClass<GetCommandStatusCmd>},
             {named("GET_DISPENSED_FORMULA"), none, ofClass<GetDispensedFormulaSerialCmd>},
             {named("GET_SHELF_PARAMS"), none, plain}}};
}

template <class Args>
std::array<CommandPtr, 5> made(Requests<Args> &requests)
{
    std::array<CommandPtr, 5> commands;
    for (std::size_t i = 0; i < requests.size(); ++i)
        commands[i].reset(
            ProtoCommandList::getProtoCommand(requests[i].name, requests[i].arguments, nullptr));
    return commands;
}

template <class Args>
std::array<CommandPtr, 5> madeByHand(const Requests<Args> &requests)
{
    std::array<CommandPtr, 5> commands;
    for (std::size_t i = 0; i < requests.size(); ++i) {
        if (const CMD_STRUCT *row = ProtoCommandList::row(requests[i].name))
            commands[i] = requests[i].makeByHand(row->name, requests[i].arguments);
    }
    return commands;
}

template <class Args>
void addFactoryRatio(const char *name, Requests<Args> requests)
{
    quv::addRatio(name, 2.5, quv::repeat([requests]() mutable { return made(requests); }),
                  quv::repeat([requests] { return madeByHand(requests); }));
}

XmlRpcValue valueOf(const std::vector<XmlRpcValue> &elements)
{
    XmlRpcValue array;
    array.setSize(static_cast<int>(elements.size()));
    for (std::size_t i = 0; i < elements.size(); ++i)
        array[static_cast<int>(i)] = elements[i];
    return array;
}

} // namespace

void quv::addCatalogueRatios()
{
    const QString last = QString::fromLatin1("PAUSE"); // not the table's own string
    addRatio("catalogue: query of the last row", 1.1,
             repeat([last] { return ProtoCommandList::erogationCommand(last); }),
             repeat([last, names = allNames()] {
                 for (std::size_t i = 0; i < names.size(); ++i) {
                     if (names[i] == last)
                         return static_cast<int>(i);
                 }
                 return -1;
             }));

    XmlRpcValue arguments = valueOf({3});
    const QString name = QString::fromLatin1("GET_STATUS");
    // bare: one heap object that holds the name and the position, and the reading of the position
    struct Bare
    {
        QString name;
        int position = 0;
    };
    addRatio("factory: GET_STATUS from a value", 0, repeat([name, arguments]() mutable {
                 return CommandPtr(ProtoCommandList::getProtoCommand(name, arguments, nullptr));
             }),
             repeat([name, arguments]() mutable {
                 return std::make_unique<Bare>(Bare{name, static_cast<const int &>(arguments[0])});
             }));

    addFactoryRatio("factory: 5 commands from values",
                    requestsOf<XmlRpcValue>(valueOf({}), arguments, valueOf({5, 3}), valueOf({"7"})));
    addFactoryRatio("factory: 5 commands from lists",
                    requestsOf<List>({}, {3}, {5, 3}, {QStringLiteral("7")}));
}
