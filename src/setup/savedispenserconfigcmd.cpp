// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/savedispenserconfigcmd.h"

#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/requeststruct_p.h"

namespace quv {

template <>
inline constexpr const char *markOf<FW_Dispenser> = "type"; // of all machines

} // namespace quv

namespace {

using XmlRpc::XmlRpcValue;

constexpr char notStruct[] = "SaveDispenserConfigCmd: invalid xml-rpc type (not struct)";
constexpr char notCreated[] = "SaveDispenserConfigCmd: Failed to create FW_Dispenser object";
constexpr quv::Refusal noStruct = {"DE01521", notStruct};
constexpr quv::Refusal noData = {"DE01522", notStruct};
constexpr quv::Refusal badData = {"DE01523", notStruct};
constexpr quv::Refusal noDispenser = {"DE01524", notCreated};
constexpr quv::Refusal badDispenser = {"DE01525", notCreated};
constexpr quv::Refusal badFlag = {
    "DE01526", "SaveDispenserConfigCmd failed: expected Bool type for update board parameter"};
constexpr quv::Refusal badFactory = {
    "DE03360", "SaveDispenserConfigCmd failed: expected Bool type for factory configuration parameter"};
constexpr quv::Refusal emptyList = {"DE01520", "SaveDispenserConfigCmd: empty parameters list received"};
constexpr quv::Refusal badVariant = {"DE01518", notCreated};
constexpr quv::Refusal noFlag = {"DE01519", "SaveDispenserConfigCmd: expected update board parameter"};

} // namespace

struct SaveDispenserConfigCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SAVE_DISP_CONFIG;
    static constexpr auto commandText = "Configuration write";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating dispenser configuration");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"config",
             "\"disp_data\" with \"dispenser_config\", the dispenser, \"update_board_config\", true "
             "when its boards get it as well, and \"factory_config\", true when it is that of the "
             "factory; in a list the dispenser and the two flags"},
            "struct");
        teller.refuse("another type", {noStruct, badVariant});
        teller.refuse("without disp_data", {noData, {}});
        teller.refuse("disp_data is no struct", {badData, {}});
        teller.refuse("without dispenser_config", {noDispenser, {}});
        teller.refuse("dispenser_config is no struct", {badDispenser, {}});
        teller.refuse("the dispenser has a wrong member", {quv::toldOfMachineData, {}});
        teller.refuse("update_board_config is of another type", {badFlag, {}});
        teller.refuse("the flag of the boards is missing or of another type", {{}, noFlag});
        teller.refuse("the flag of the factory is of another type", {badFactory, badFactory});
    }
};

template class quv::DescribedCommand<SaveDispenserConfigCmd, ConfProtoCommand>;

SaveDispenserConfigCmd::SaveDispenserConfigCmd(const FW_Dispenser &dispenser, bool updateBoard, bool factory)
    : m_dispenser(dispenser),
      m_updateBoard(updateBoard),
      m_factory(factory)
{}

SaveDispenserConfigCmd::SaveDispenserConfigCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const char *function = Q_FUNC_INFO;
    const XmlRpcValue &argument = quv::structArgument(value, noStruct, function);
    const XmlRpcValue &data = quv::structMember(argument, dispData_TAG, noData, badData, function);
    const XmlRpcValue &dispenser =
        quv::structMember(data, dispenserConfig_TAG, noDispenser, badDispenser, function);
    m_dispenser = quv::decodedValue<FW_Dispenser>(&dispenser, badDispenser, function);
    quv::readMember(data, updateBoardConfig_TAG, m_updateBoard, badFlag, function);
    quv::readMember(data, factoryConfig_TAG, m_factory, badFactory, function);
}

SaveDispenserConfigCmd::SaveDispenserConfigCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    m_dispenser =
        quv::decodedVariant<FW_Dispenser>(qAsConst(list).first(), badVariant, badVariant, Q_FUNC_INFO);
    if (!quv::decodeVariant(list.value(1), m_updateBoard))
        quv::throwRefusal(noFlag, Q_FUNC_INFO);
    if (list.size() > 2 && !quv::decodeVariant(list.at(2), m_factory))
        quv::throwRefusal(badFactory, Q_FUNC_INFO);
}

SaveDispenserConfigCmd *SaveDispenserConfigCmd::clone() const
{
    return new SaveDispenserConfigCmd(*this);
}

QList<QVariant> SaveDispenserConfigCmd::parameters() const
{
    return {dispenserValue(), updateBoardConfigValue(), factoryConfigValue()};
}

XmlRpcValue SaveDispenserConfigCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    XmlRpcValue &data = array[0][dispData_TAG];
    data[dispenserConfig_TAG] = m_dispenser.toXmlRpcValue();
    data[updateBoardConfig_TAG] = m_updateBoard;
    data[factoryConfig_TAG] = m_factory;
    return array;
}
