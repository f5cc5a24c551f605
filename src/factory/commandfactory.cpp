// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/protocommandlist.h"

#include "base/guard_p.h"
#include "factory/commandtables_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <array>
#include <cstddef>
#include <optional>
#include <type_traits>

// Args is an XML-RPC array or a variant list.

namespace {

using Cmd = ProtoCommandList;
using quv::Dispatch;

/** The command of a row of the catalogue, which may be null; null when the table has none. */
template <class Command, class Args>
Command *make(const quv::CommandTable<Command> &table, const CMD_STRUCT *row, const QString &name, Args &args,
              const FW_Machine *machine)
{
    if (!row)
        return nullptr;
    const auto maker = table.classOf(*row).template maker<Args>();
    return maker ? maker(name, args, machine) : nullptr;
}

/** What an operation says for any exception but FW_Exception, and the signature that it says it under. */
struct Failure
{
    const char *code;
    const char *text;
    const char *function;
};

template <class Work>
auto guarded(const Failure &failure, Work work) -> decltype(work())
{
    try {
        return work();
    } catch (...) {
        quv::rethrowCurrentException(failure.code, failure.text, failure.function);
    }
}

/** The operation that makes a command of any kind; none for a name that is no command's. */
std::optional<Dispatch> operationOf(const QString &name)
{
    const bool isSerial = Cmd::isSerialCommand(name, false);
    if (isSerial || Cmd::isConfigurationCommand(name, false)) {
        if (Cmd::targetIsDispenser(name))
            return isSerial ? Dispatch::DispenserSerial : Dispatch::DispenserConfig;
        if (Cmd::targetIsMixer(name))
            return isSerial ? Dispatch::MixerSerial : Dispatch::MixerConfig;
        return isSerial ? Dispatch::Serial : Dispatch::Config;
    }
    if (Cmd::isScaleCommand(name, false))
        return Dispatch::Scale;
    return {};
}

/** The same of a row, asked once for all. */
std::optional<Dispatch> operationOf(const CMD_STRUCT &row)
{
    static const auto operations = [] {
        std::array<std::optional<Dispatch>, Cmd::rowCount> all;
        for (int id = 0; id < Cmd::rowCount; ++id)
            all[static_cast<std::size_t>(id)] = operationOf(Cmd::row(id)->name);
        return all;
    }();
    return operations[static_cast<std::size_t>(row.id)];
}

template <class Args>
ProtoCommand *makeOfAnyKind(const QString &name, Args &args, const FW_Machine *machine,
                            const char *unknownCode, const char *function)
{
    const CMD_STRUCT *row = Cmd::row(name);
    const std::optional<Dispatch> operation = row ? operationOf(*row) : std::nullopt;
    if (!operation)
        throw FW_Exception(unknownCode, "Command type not recognized", function);
    const QString &known = row->name; // costs less to hand on than the caller's own text
    // a machine of the other kind is none
    switch (*operation) {
    case Dispatch::Serial:
        return Cmd::getSerialProtoCommand(known, args, nullptr);
    case Dispatch::DispenserSerial:
        return Cmd::getDispenserSerialProtoCommand(known, args, dynamic_cast<const FW_Dispenser *>(machine));
    case Dispatch::MixerSerial:
        return Cmd::getMixerSerialProtoCommand(known, args, dynamic_cast<const FW_Mixer *>(machine));
    case Dispatch::Config:
        return Cmd::getConfigProtoCommand(known, args);
    case Dispatch::DispenserConfig:
        return Cmd::getDispenserConfigProtoCommand(known, args, dynamic_cast<const FW_Dispenser *>(machine));
    case Dispatch::MixerConfig:
        return Cmd::getMixerConfigProtoCommand(known, args, dynamic_cast<const FW_Mixer *>(machine));
    case Dispatch::Scale:
        break;
    }
    return Cmd::getScaleProtoCommand(known, args);
}

template <class Command, class Args>
Command *makeOrPlain(const quv::CommandTable<Command> &table, const QString &name, Args &args,
                     const FW_Machine *machine, const char *unknownCode, const char *function)
{
    const CMD_STRUCT *row = Cmd::row(name);
    if (Command *command = make(table, row, name, args, machine))
        return command;
    if (!row)
        throw FW_Exception(unknownCode, "Unknown command received", function);
    return new Command(name, nullptr);
}

} // namespace

// DE00339 and DE00434 are the contract: the operations called here have codes of their own for all that goes wrong in them.

ProtoCommand *ProtoCommandList::getProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                const FW_Machine *machine)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE00339", "Errors during protocol command parameters decoding", function},
                   [&] { return makeOfAnyKind(name, args, machine, "DE00337", function); });
}

ProtoCommand *ProtoCommandList::getProtoCommand(QString name, QList<QVariant> args, const FW_Machine *machine)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE00434", "Errors during protocol command parameters decoding", function},
                   [&] { return makeOfAnyKind(name, args, machine, "DE00441", function); });
}

SerialProtoCommand *ProtoCommandList::getSerialProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                            const FW_Machine *machine)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE02233", "Errors during serial protocol command xml-rpc decoding", function},
                   [&] { return makeOrPlain(quv::serialTable, name, args, machine, "DE02547", function); });
}

SerialProtoCommand *ProtoCommandList::getSerialProtoCommand(QString name, QList<QVariant> args,
                                                            const FW_Machine *machine)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE02220", "Errors during serial protocol command parmeters decoding", function},
                   [&] { return makeOrPlain(quv::serialTable, name, args, machine, "DE02536", function); });
}

SerialProtoCommand *ProtoCommandList::getDispenserSerialProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                                     const FW_Dispenser *dispenser)
{
    return guarded({"DE00148", "Errors during serial protocol command xml-rpc decoding", Q_FUNC_INFO}, [&] {
        auto *command = make(quv::dispenserSerialTable, row(name), name, args, dispenser);
        return command ? command : getSerialProtoCommand(name, args, dispenser);
    });
}

SerialProtoCommand *ProtoCommandList::getDispenserSerialProtoCommand(QString name, QList<QVariant> args,
                                                                     const FW_Dispenser *dispenser)
{
    return guarded({"DE00146", "Errors during serial protocol command parmeters decoding", Q_FUNC_INFO}, [&] {
        auto *command = make(quv::dispenserSerialTable, row(name), name, args, dispenser);
        return command ? command : getSerialProtoCommand(name, args, dispenser);
    });
}

SerialProtoCommand *ProtoCommandList::getMixerSerialProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                                 const FW_Mixer *mixer)
{
    return guarded({"DE02524", "Errors during serial protocol command parmeters decoding", Q_FUNC_INFO}, [&] {
        auto *command = make(quv::mixerSerialTable, row(name), name, args, mixer);
        return command ? command : getSerialProtoCommand(name, args, mixer);
    });
}

SerialProtoCommand *ProtoCommandList::getMixerSerialProtoCommand(QString name, QList<QVariant> args,
                                                                 const FW_Mixer *mixer)
{
    return guarded({"DE02522", "Errors during serial protocol command parmeters decoding", Q_FUNC_INFO}, [&] {
        auto *command = make(quv::mixerSerialTable, row(name), name, args, mixer);
        return command ? command : getSerialProtoCommand(name, args, mixer);
    });
}

ConfProtoCommand *ProtoCommandList::getConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE00345", "Errors during configuration protocol command xml-rpc decoding", function},
                   [&] { return makeOrPlain(quv::configTable, name, args, nullptr, "DE00344", function); });
}

ConfProtoCommand *ProtoCommandList::getConfigProtoCommand(QString name, QList<QVariant> args)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE00336", "Errors during configuration protocol command parameters decoding", function},
                   [&] { return makeOrPlain(quv::configTable, name, args, nullptr, "DE00335", function); });
}

ConfProtoCommand *ProtoCommandList::getConfigProtoCommand(QString name, const FW_Machine *machine)
{
    if (targetIsDispenser(name))
        return getDispenserConfigProtoCommand(name, QList<QVariant>(),
                                              dynamic_cast<const FW_Dispenser *>(machine));
    if (targetIsMixer(name))
        return getMixerConfigProtoCommand(name, QList<QVariant>(), dynamic_cast<const FW_Mixer *>(machine));
    throw FW_Exception("DE03010", "Command has no target machine", Q_FUNC_INFO);
}

ConfProtoCommand *ProtoCommandList::getDispenserConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                                   const FW_Dispenser *dispenser)
{
    return guarded({"DE02551", "Errors during configuration protocol command xml-rpc decoding", Q_FUNC_INFO},
                   [&] {
                       auto *command = make(quv::dispenserConfigTable, row(name), name, args, dispenser);
                       return command ? command : getConfigProtoCommand(name, args);
                   });
}

ConfProtoCommand *ProtoCommandList::getDispenserConfigProtoCommand(QString name, QList<QVariant> args,
                                                                   const FW_Dispenser *dispenser)
{
    return guarded(
        {"DE02549", "Errors during configuration protocol command parameters decoding", Q_FUNC_INFO}, [&] {
            auto *command = make(quv::dispenserConfigTable, row(name), name, args, dispenser);
            return command ? command : getConfigProtoCommand(name, args);
        });
}

ConfProtoCommand *ProtoCommandList::getMixerConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                               const FW_Mixer *mixer)
{
    return guarded({"DE02558", "Errors during configuration protocol command xml-rpc decoding", Q_FUNC_INFO},
                   [&] {
                       auto *command = make(quv::mixerConfigTable, row(name), name, args, mixer);
                       return command ? command : getConfigProtoCommand(name, args);
                   });
}

ConfProtoCommand *ProtoCommandList::getMixerConfigProtoCommand(QString name, QList<QVariant> args,
                                                               const FW_Mixer *mixer)
{
    return guarded({"DE02556", "Errors during configuration protocol command variant decoding", Q_FUNC_INFO},
                   [&] {
                       auto *command = make(quv::mixerConfigTable, row(name), name, args, mixer);
                       return command ? command : getConfigProtoCommand(name, args);
                   });
}

ScaleProtoCommand *ProtoCommandList::getScaleProtoCommand(QString name, XmlRpc::XmlRpcValue &args)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE02082", "Errors during scale protocol command xml-rpc decoding", function}, [&] {
        if (auto *command = make(quv::scaleTable, row(name), name, args, nullptr))
            return command;
        throw FW_Exception("DE02070", "Unknown command received", function);
    });
}

ScaleProtoCommand *ProtoCommandList::getScaleProtoCommand(QString name, QList<QVariant> args)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE02081", "Errors during scale protocol command decoding", function}, [&] {
        if (auto *command = make(quv::scaleTable, row(name), name, args, nullptr))
            return command;
        throw FW_Exception("DE02080", "Unknown command received", function);
    });
}
