// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/protocommandlist.h"

#include "base/confprotocommand.h"
#include "base/getcmdestimatedexectimecmd.h"
#include "base/getcommandstatuscmd.h"
#include "base/guard_p.h"
#include "base/scaleprotocommand.h"
#include "base/serialprotocommand.h"
#include "configuration/getconfigcmdscmd.h"
#include "configuration/readconfigurationparamcmd.h"
#include "configuration/writeconfigurationparamcmd.h"
#include "dispensing/airpurgecmd.h"
#include "dispensing/channeltintcmd.h"
#include "dispensing/checkformulalevelscmd.h"
#include "dispensing/genericformulacmd.h"
#include "dispensing/getdispensedformulaconfcmd.h"
#include "dispensing/getdispensedformulaserialcmd.h"
#include "dispensing/getformulacircuitscmd.h"
#include "dispensing/pack2cmd.h"
#include "dispensing/packcmd.h"
#include "dispensing/priming2cmd.h"
#include "dispensing/primingcmd.h"
#include "dispensing/purgeformulacmd.h"
#include "dispensing/setlevelscmd.h"
#include "dispensing/tintcmd.h"
#include "factory/pending_p.h"
#include "processes/autocapcmd.h"
#include "status/dispenserstatuscmd.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <type_traits>
#include <vector>

// One table a dispatch operation, with one row a command; the first row with the name makes the command. Args is an
// XML-RPC array or a variant list.

namespace {

using Value = XmlRpc::XmlRpcValue;
using List = QList<QVariant>;
using Cmd = ProtoCommandList;
using quv::Dispatch;

template <class Command, class Args>
struct Row
{
    Cmd::CommandListValue name;
    Command *(*make)(const QString &name, Args &args, const FW_Machine *machine);
};

template <class Command, class Args>
using Rows = std::vector<Row<Command, Args>>;

// What a row's constructor takes.

template <class Command, class Base, class Args>
Base *fromArguments(const QString &, Args &args, const FW_Machine *)
{
    return new Command(args);
}

template <class Command, class Base, class Args>
Base *fromArgumentsAndMachine(const QString &, Args &args, const FW_Machine *machine)
{
    return new Command(args, machine);
}

template <class Command, class Base, class Args>
Base *fromArgumentsAndDispenser(const QString &, Args &args, const FW_Machine *machine)
{
    return new Command(args, dynamic_cast<const FW_Dispenser *>(machine));
}

template <class Command, class Base, class Args>
Base *fromNameAndArguments(const QString &name, Args &args, const FW_Machine *)
{
    return new Command(name, args);
}

template <class Command, class Base, class Args>
Base *fromNameArgumentsAndMachine(const QString &name, Args &args, const FW_Machine *machine)
{
    return new Command(name, args, machine);
}

/** The plain command of its kind, with its arguments. */
template <class Command, class Args>
Command *fromNameAndAll(const QString &name, Args &args, const FW_Machine *machine)
{
    return new Command(name, args, machine);
}

/** A command without parameters of its own: the arguments are dropped. */
template <class Command, class Args>
Command *fromName(const QString &name, Args &, const FW_Machine *)
{
    return new Command(name, nullptr);
}

template <class Args>
const Rows<SerialProtoCommand, Args> &serialRows()
{
    static const Rows<SerialProtoCommand, Args> rows = {
        {Cmd::GET_ERRORS, fromName},
        {Cmd::WRITE_CONFIG_ROW, fromArguments<WriteConfigurationParamCmd>},
        {Cmd::READ_CONFIG_ROW, fromArguments<ReadConfigurationParamCmd>},
        {Cmd::GET_CONFIG_CMDS, fromArguments<GetConfigCmdsCmd>},
        {Cmd::FINALIZE_CONFIG, fromName},
        {Cmd::GET_SENSORS_STATUS, fromName},
        {Cmd::CLOSE_SERIAL, fromName},
    };
    return rows;
}

template <class Args>
const Rows<SerialProtoCommand, Args> &dispenserSerialRows()
{
    static const Rows<SerialProtoCommand, Args> rows = {
        {Cmd::GET_STATUS, fromArguments<DispenserStatusCmd>},
        {Cmd::AUTOCAP_MOVE, fromArguments<AutocapCmd>},
        {Cmd::TINT, fromArgumentsAndDispenser<TintCmd>},
        {Cmd::PRIMING, fromArgumentsAndDispenser<PrimingCmd>},
        {Cmd::PACK, fromArgumentsAndDispenser<PackCmd>},
        {Cmd::PURGE, fromArgumentsAndDispenser<PurgeFormulaCmd>},
        {Cmd::CHANNEL_TINT, fromArgumentsAndDispenser<ChannelTintCmd>},
        {Cmd::GET_DISPENSED_FORMULA, fromArguments<GetDispensedFormulaSerialCmd>},
        {Cmd::PRIMING2, fromArgumentsAndDispenser<Priming2Cmd>},
        {Cmd::PACK2, fromArgumentsAndDispenser<Pack2Cmd>},
        {Cmd::AIRPURGE, fromArgumentsAndDispenser<AirpurgeCmd>},
        {Cmd::GET_TURNTABLE_POSITIONS, fromName},
    };
    return rows;
}

template <class Args>
const Rows<SerialProtoCommand, Args> &mixerSerialRows()
{
    static const Rows<SerialProtoCommand, Args> rows;
    return rows;
}

template <class Args>
const Rows<ConfProtoCommand, Args> &configRows();

template <>
const Rows<ConfProtoCommand, Value> &configRows<Value>()
{
    static const Rows<ConfProtoCommand, Value> rows = {
        {Cmd::GET_CMD_STATUS, fromArguments<GetCommandStatusCmd>},
        {Cmd::GET_DISPENSED_FORMULA, fromArguments<GetDispensedFormulaConfCmd>},
    };
    return rows;
}

template <>
const Rows<ConfProtoCommand, List> &configRows<List>()
{
    static const Rows<ConfProtoCommand, List> rows = {
        {Cmd::GET_CMD_STATUS, fromArguments<GetCommandStatusCmd>},
        {Cmd::SET_LEVELS, fromArguments<SetLevelsCmd>},
        {Cmd::CHECK_FORMULA_LEVELS, fromArguments<CheckFormulaLevelsCmd>},
        {Cmd::GET_FORMULA_CIRCUITS, fromArguments<GetFormulaCircuitsCmd>},
        {Cmd::GET_LOW_LEVEL_FORMULA, fromNameAndArguments<GenericFormulaCmd>},
        {Cmd::GET_FORMULA_EXECUTION, fromNameAndArguments<GenericFormulaCmd>},
        {Cmd::GET_DISPENSED_FORMULA, fromArguments<GetDispensedFormulaConfCmd>},
    };
    return rows;
}

template <class Args>
const Rows<ConfProtoCommand, Args> &dispenserConfigRows();

template <>
const Rows<ConfProtoCommand, Value> &dispenserConfigRows<Value>()
{
    static const Rows<ConfProtoCommand, Value> rows = {
        {Cmd::SET_LEVELS, fromArgumentsAndMachine<SetLevelsCmd>},
        {Cmd::CHECK_FORMULA_LEVELS, fromArgumentsAndMachine<CheckFormulaLevelsCmd>},
        {Cmd::GET_FORMULA_CIRCUITS, fromArgumentsAndMachine<GetFormulaCircuitsCmd>},
        {Cmd::GET_LOW_LEVEL_FORMULA, fromNameArgumentsAndMachine<GenericFormulaCmd>},
        {Cmd::GET_FORMULA_EXECUTION, fromNameArgumentsAndMachine<GenericFormulaCmd>},
        {Cmd::GET_CMD_EST_EXEC_TIME, fromArgumentsAndMachine<GetCmdEstimatedExecTimeCmd>},
    };
    return rows;
}

template <>
const Rows<ConfProtoCommand, List> &dispenserConfigRows<List>()
{
    static const Rows<ConfProtoCommand, List> rows = {
        {Cmd::CLOSE_SERIAL, fromNameAndAll},
        {Cmd::GET_CMD_EST_EXEC_TIME, fromArgumentsAndMachine<GetCmdEstimatedExecTimeCmd>},
    };
    return rows;
}

template <class Args>
const Rows<ConfProtoCommand, Args> &mixerConfigRows()
{
    static const Rows<ConfProtoCommand, Args> rows = {
        {Cmd::GET_CMD_EST_EXEC_TIME, fromArgumentsAndMachine<GetCmdEstimatedExecTimeCmd>},
    };
    return rows;
}

template <class Args>
const Rows<ScaleProtoCommand, Args> &scaleRows()
{
    static const Rows<ScaleProtoCommand, Args> rows;
    return rows;
}

/** The command of the first row with this name; null when the table has none. */
template <class Command, class Args>
Command *make(const Rows<Command, Args> &rows, Dispatch dispatch, const QString &name, Args &args,
              const FW_Machine *machine)
{
    const CMD_STRUCT *found = Cmd::row(name);
    if (!found)
        return nullptr;
    for (const auto &row : rows) {
        if (row.name == found->id)
            return row.make(name, args, machine);
    }
    constexpr quv::Form form = std::is_same_v<Args, Value> ? quv::ValueForm : quv::ListForm;
    if (!quv::isPending(dispatch, form, found->id))
        return nullptr;
    if constexpr (std::is_same_v<Command, ScaleProtoCommand>)
        return new Command(name, args);
    else
        return new Command(name, args, machine);
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

/** The machine as the kind that the command is for: one of the two, or none. */
struct Target
{
    Target(const QString &name, const FW_Machine *machine)
    {
        if (Cmd::targetIsDispenser(name))
            dispenser = dynamic_cast<const FW_Dispenser *>(machine);
        else if (Cmd::targetIsMixer(name))
            mixer = dynamic_cast<const FW_Mixer *>(machine);
    }

    const FW_Dispenser *dispenser = nullptr;
    const FW_Mixer *mixer = nullptr;
};

template <class Args>
ProtoCommand *makeOfAnyKind(const QString &name, Args &args, const FW_Machine *machine,
                            const char *unknownCode, const char *function)
{
    const Target target(name, machine);
    if (Cmd::isSerialCommand(name, false)) {
        if (Cmd::targetIsDispenser(name))
            return Cmd::getDispenserSerialProtoCommand(name, args, target.dispenser);
        if (Cmd::targetIsMixer(name))
            return Cmd::getMixerSerialProtoCommand(name, args, target.mixer);
        return Cmd::getSerialProtoCommand(name, args, nullptr);
    }
    if (Cmd::isConfigurationCommand(name, false)) {
        if (Cmd::targetIsDispenser(name))
            return Cmd::getDispenserConfigProtoCommand(name, args, target.dispenser);
        if (Cmd::targetIsMixer(name))
            return Cmd::getMixerConfigProtoCommand(name, args, target.mixer);
        return Cmd::getConfigProtoCommand(name, args);
    }
    if (Cmd::isScaleCommand(name, false))
        return Cmd::getScaleProtoCommand(name, args);
    throw FW_Exception(unknownCode, "Command type not recognized", function);
}

template <class Command, class Args>
Command *makeOrPlain(const Rows<Command, Args> &rows, Dispatch dispatch, const QString &name, Args &args,
                     const FW_Machine *machine, const char *unknownCode, const char *function)
{
    if (Command *command = make(rows, dispatch, name, args, machine))
        return command;
    if (!Cmd::existsCommand(name))
        throw FW_Exception(unknownCode, "Unknown command received", function);
    return new Command(name, nullptr);
}

} // namespace

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
    return guarded({"DE02233", "Errors during serial protocol command xml-rpc decoding", function}, [&] {
        return makeOrPlain(serialRows<Value>(), Dispatch::Serial, name, args, machine, "DE02547", function);
    });
}

SerialProtoCommand *ProtoCommandList::getSerialProtoCommand(QString name, QList<QVariant> args,
                                                            const FW_Machine *machine)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE02220", "Errors during serial protocol command parmeters decoding", function}, [&] {
        return makeOrPlain(serialRows<List>(), Dispatch::Serial, name, args, machine, "DE02536", function);
    });
}

SerialProtoCommand *ProtoCommandList::getDispenserSerialProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                                     const FW_Dispenser *dispenser)
{
    return guarded({"DE00148", "Errors during serial protocol command xml-rpc decoding", Q_FUNC_INFO}, [&] {
        auto *command = make(dispenserSerialRows<Value>(), Dispatch::DispenserSerial, name, args, dispenser);
        return command ? command : getSerialProtoCommand(name, args, dispenser);
    });
}

SerialProtoCommand *ProtoCommandList::getDispenserSerialProtoCommand(QString name, QList<QVariant> args,
                                                                     const FW_Dispenser *dispenser)
{
    return guarded({"DE00146", "Errors during serial protocol command parmeters decoding", Q_FUNC_INFO}, [&] {
        auto *command = make(dispenserSerialRows<List>(), Dispatch::DispenserSerial, name, args, dispenser);
        return command ? command : getSerialProtoCommand(name, args, dispenser);
    });
}

SerialProtoCommand *ProtoCommandList::getMixerSerialProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                                 const FW_Mixer *mixer)
{
    return guarded({"DE02524", "Errors during serial protocol command parmeters decoding", Q_FUNC_INFO}, [&] {
        auto *command = make(mixerSerialRows<Value>(), Dispatch::MixerSerial, name, args, mixer);
        return command ? command : getSerialProtoCommand(name, args, mixer);
    });
}

SerialProtoCommand *ProtoCommandList::getMixerSerialProtoCommand(QString name, QList<QVariant> args,
                                                                 const FW_Mixer *mixer)
{
    return guarded({"DE02522", "Errors during serial protocol command parmeters decoding", Q_FUNC_INFO}, [&] {
        auto *command = make(mixerSerialRows<List>(), Dispatch::MixerSerial, name, args, mixer);
        return command ? command : getSerialProtoCommand(name, args, mixer);
    });
}

ConfProtoCommand *ProtoCommandList::getConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE00345", "Errors during configuration protocol command xml-rpc decoding", function},
                   [&] {
                       return makeOrPlain(configRows<Value>(), Dispatch::Config, name, args, nullptr,
                                          "DE00344", function);
                   });
}

ConfProtoCommand *ProtoCommandList::getConfigProtoCommand(QString name, QList<QVariant> args)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE00336", "Errors during configuration protocol command parameters decoding", function},
                   [&] {
                       return makeOrPlain(configRows<List>(), Dispatch::Config, name, args, nullptr,
                                          "DE00335", function);
                   });
}

ConfProtoCommand *ProtoCommandList::getConfigProtoCommand(QString name, const FW_Machine *machine)
{
    const Target target(name, machine);
    if (targetIsDispenser(name))
        return getDispenserConfigProtoCommand(name, QList<QVariant>(), target.dispenser);
    if (targetIsMixer(name))
        return getMixerConfigProtoCommand(name, QList<QVariant>(), target.mixer);
    throw FW_Exception("DE03010", "Command has no target machine", Q_FUNC_INFO);
}

ConfProtoCommand *ProtoCommandList::getDispenserConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                                   const FW_Dispenser *dispenser)
{
    return guarded(
        {"DE02551", "Errors during configuration protocol command xml-rpc decoding", Q_FUNC_INFO}, [&] {
            auto *command =
                make(dispenserConfigRows<Value>(), Dispatch::DispenserConfig, name, args, dispenser);
            return command ? command : getConfigProtoCommand(name, args);
        });
}

ConfProtoCommand *ProtoCommandList::getDispenserConfigProtoCommand(QString name, QList<QVariant> args,
                                                                   const FW_Dispenser *dispenser)
{
    return guarded(
        {"DE02549", "Errors during configuration protocol command parameters decoding", Q_FUNC_INFO}, [&] {
            auto *command =
                make(dispenserConfigRows<List>(), Dispatch::DispenserConfig, name, args, dispenser);
            return command ? command : getConfigProtoCommand(name, args);
        });
}

ConfProtoCommand *ProtoCommandList::getMixerConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                               const FW_Mixer *mixer)
{
    return guarded(
        {"DE02558", "Errors during configuration protocol command xml-rpc decoding", Q_FUNC_INFO}, [&] {
            auto *command = make(mixerConfigRows<Value>(), Dispatch::MixerConfig, name, args, mixer);
            return command ? command : getConfigProtoCommand(name, args);
        });
}

ConfProtoCommand *ProtoCommandList::getMixerConfigProtoCommand(QString name, QList<QVariant> args,
                                                               const FW_Mixer *mixer)
{
    return guarded(
        {"DE02556", "Errors during configuration protocol command variant decoding", Q_FUNC_INFO}, [&] {
            auto *command = make(mixerConfigRows<List>(), Dispatch::MixerConfig, name, args, mixer);
            return command ? command : getConfigProtoCommand(name, args);
        });
}

ScaleProtoCommand *ProtoCommandList::getScaleProtoCommand(QString name, XmlRpc::XmlRpcValue &args)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE02082", "Errors during scale protocol command xml-rpc decoding", function}, [&] {
        if (auto *command = make(scaleRows<Value>(), Dispatch::Scale, name, args, nullptr))
            return command;
        throw FW_Exception("DE02070", "Unknown command received", function);
    });
}

ScaleProtoCommand *ProtoCommandList::getScaleProtoCommand(QString name, QList<QVariant> args)
{
    const char *function = Q_FUNC_INFO;
    return guarded({"DE02081", "Errors during scale protocol command decoding", function}, [&] {
        if (auto *command = make(scaleRows<List>(), Dispatch::Scale, name, args, nullptr))
            return command;
        throw FW_Exception("DE02080", "Unknown command received", function);
    });
}
