// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/saveconfigcmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "setup/configurationfield_p.h"

namespace {

using XmlRpc::XmlRpcValue;

constexpr char notStruct[] = "SaveConfigCmd: invalid xml-rpc type (not struct)";
constexpr char notCreated[] = "SaveConfigCmd: Failed to create FW_Configuration object";
constexpr quv::Refusal noStruct = {"DE00678", notStruct};
constexpr quv::Refusal noData = {"DE00679", notStruct};
constexpr quv::Refusal noConfiguration = {"DE00370", notCreated};
constexpr quv::Refusal badConfiguration = {"DE00577", notCreated};
constexpr quv::Refusal badFlag = {"DE00574",
                                  "SaveConfigCmd failed: expected Bool type for update board parameter"};
constexpr quv::Refusal emptyList = {"DE00681", "SaveConfigCmd: empty parameters list received"};
constexpr quv::Refusal badVariant = {"DE00680", notCreated};
constexpr quv::Refusal noFlag = {"DE00802", "SaveConfigCmd: expected update board parameter"};

} // namespace

struct SaveConfigCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SAVE_CONFIG;
    static constexpr auto commandText = "Configuration write";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating dispenser configurations");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"config",
             "\"config_data\" with \"configuration\", the \"machines\" and the IDs of the active "
             "ones (\"active_dispenser\", \"active_mixer\"), and \"update_board_config\", true when "
             "their boards get it as well; in a list the configuration and the flag"},
            "struct");
        teller.refuse("another type", {noStruct, badVariant});
        teller.refuse("config_data is missing or no struct", {noData, {}});
        teller.refuse("without configuration", {noConfiguration, {}});
        teller.refuse("configuration is no struct", {badConfiguration, {}});
        for (const auto &[when, refusal] : quv::configurationRefusals)
            teller.refuse(when, {refusal, {}});
        teller.refuse("update_board_config is of another type", {badFlag, {}});
        teller.refuse("the flag is missing or of another type", {{}, noFlag});
    }
};

template class quv::DescribedCommand<SaveConfigCmd, ConfProtoCommand>;

SaveConfigCmd::SaveConfigCmd(const FW_Configuration &configuration, bool updateBoard)
    : m_configuration(configuration),
      m_updateBoard(updateBoard)
{}

SaveConfigCmd::SaveConfigCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const char *function = Q_FUNC_INFO;
    const XmlRpcValue &argument = quv::structArgument(value, noStruct, function);
    const XmlRpcValue &data = quv::structMember(argument, configData_TAG, noData, noData, function);
    const XmlRpcValue &configuration =
        quv::structMember(data, configuration_TAG, noConfiguration, badConfiguration, function);
    m_configuration = quv::decodedValue<FW_Configuration>(&configuration, badConfiguration, function);
    quv::readMember(data, updateBoardConfig_TAG, m_updateBoard, badFlag, function);
}

SaveConfigCmd::SaveConfigCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    m_configuration =
        quv::decodedVariant<FW_Configuration>(qAsConst(list).first(), badVariant, badVariant, Q_FUNC_INFO);
    if (!quv::decodeVariant(list.value(1), m_updateBoard))
        quv::throwRefusal(noFlag, Q_FUNC_INFO);
}

SaveConfigCmd *SaveConfigCmd::clone() const
{
    return new SaveConfigCmd(*this);
}

QList<QVariant> SaveConfigCmd::parameters() const
{
    return {configurationValue(), updateBoardConfigValue()};
}

XmlRpcValue SaveConfigCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    XmlRpcValue &data = array[0][configData_TAG];
    data[configuration_TAG] = m_configuration.toXmlRpcValue();
    data[updateBoardConfig_TAG] = m_updateBoard;
    return array;
}
