// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/savemachineconfigcmd.h"

#include "base/cloned_p.h"
#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/requeststruct_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

namespace {

using XmlRpc::XmlRpcValue;

constexpr char notStruct[] = "SaveMachineConfigCmd: invalid xml-rpc type (not struct)";
constexpr char notCreated[] = "SaveMachineConfigCmd: Failed to create machine object";
constexpr quv::Refusal noStruct = {"DE02701", notStruct};
constexpr quv::Refusal noData = {"DE02702", notStruct};
constexpr quv::Refusal badData = {"DE02703", notStruct};
constexpr quv::Refusal unknownKind = {"DE02704", notCreated};
constexpr quv::Refusal notMade = {"DE02705", notCreated};
constexpr quv::Refusal noMachine = {"DE02706", notCreated};
constexpr quv::Refusal badFlag = {
    "DE02707", "SaveMachineConfigCmd failed: expected Bool type for update board parameter"};
constexpr quv::Refusal badFactory = {
    "DE03361", "SaveMachineConfigCmd failed: expected Bool type for factory configuration parameter"};

/** By its own class; nothing for a machine of no known one. */
QVariant variantOf(const FW_Machine *machine)
{
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine))
        return QVariant::fromValue(*dispenser);
    if (const auto *mixer = dynamic_cast<const FW_Mixer *>(machine))
        return QVariant::fromValue(*mixer);
    return {};
}

} // namespace

struct SaveMachineConfigCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SAVE_MACHINE_CONFIG;
    static constexpr auto commandText = "Configuration write";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating machine configuration");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"config",
                         "\"config_data\" with \"machine_config\", a dispenser or a mixer, "
                         "\"update_board_config\", true when its boards get it as well, and "
                         "\"factory_config\", true when it is that of the factory; a list is not read"},
                        "struct");
        teller.refuse("another type", {noStruct, {}});
        teller.refuse("without config_data", {noData, {}});
        teller.refuse("config_data is no struct", {badData, {}});
        teller.refuse("without machine_config", {noMachine, {}});
        teller.refuse("machine_config is neither a dispenser nor a mixer", {unknownKind, {}});
        teller.refuse("machine_config has a wrong member", {quv::toldOfMachineData, {}});
        teller.refuse("machine_config cannot be made", {notMade, {}});
        teller.refuse("update_board_config is of another type", {badFlag, {}});
        teller.refuse("factory_config is of another type", {badFactory, {}});
    }
};

template class quv::DescribedCommand<SaveMachineConfigCmd, ConfProtoCommand>;

SaveMachineConfigCmd::SaveMachineConfigCmd(const FW_Machine *machine, bool updateBoard, bool factory)
    : m_machineConfig(quv::cloned(machine)),
      m_updateBoard(updateBoard),
      m_factory(factory)
{}

SaveMachineConfigCmd::SaveMachineConfigCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const char *function = Q_FUNC_INFO;
    const XmlRpcValue &argument = quv::structArgument(value, noStruct, function);
    const XmlRpcValue &data = quv::structMember(argument, configData_TAG, noData, badData, function);
    const XmlRpcValue &machine = quv::memberOf(data, machineConfig_TAG, noMachine, function);
    m_machineConfig =
        quv::madeOrRefused(notMade, function, [&] { return FW_Machine::fromXmlRpcValue(machine); });
    if (!m_machineConfig)
        quv::throwRefusal(unknownKind, function);
    quv::readMember(data, updateBoardConfig_TAG, m_updateBoard, badFlag, function);
    quv::readMember(data, factoryConfig_TAG, m_factory, badFactory, function);
}

SaveMachineConfigCmd::SaveMachineConfigCmd(QList<QVariant> list) : DescribedCommand(list) {}

SaveMachineConfigCmd::SaveMachineConfigCmd(const SaveMachineConfigCmd &other)
    : DescribedCommand(other),
      m_machineConfig(quv::cloned(other.machineConfig())),
      m_updateBoard(other.m_updateBoard),
      m_factory(other.m_factory)
{}

SaveMachineConfigCmd::~SaveMachineConfigCmd() = default;

SaveMachineConfigCmd *SaveMachineConfigCmd::clone() const
{
    return new SaveMachineConfigCmd(*this);
}

void SaveMachineConfigCmd::setDefaults()
{
    m_parameters.clear();
    m_machineConfig.reset();
    m_updateBoard = false;
    m_factory = false;
}

QList<QVariant> SaveMachineConfigCmd::parameters() const
{
    if (!m_parameters.isEmpty())
        return m_parameters;
    return {variantOf(machineConfig()), m_updateBoard, m_factory};
}

XmlRpcValue SaveMachineConfigCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    XmlRpcValue &data = array[0][configData_TAG];
    if (m_machineConfig)
        data[machineConfig_TAG] = m_machineConfig->toXmlRpcValue();
    data[updateBoardConfig_TAG] = m_updateBoard;
    data[factoryConfig_TAG] = m_factory;
    return array;
}
