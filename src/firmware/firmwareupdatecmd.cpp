// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareupdatecmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "base/objectfield_p.h"
#include "firmware/firmwareupdateanswer.h"

#include <QuvFramework/fw_dispenser.h>

#include <algorithm>
#include <iterator>

namespace quv {

template <>
inline constexpr const char *markOf<FirmwareFile> = FirmwareFile::IMAGE;

} // namespace quv

namespace {

using XmlRpc::XmlRpcValue;

constexpr quv::Refusal noArray = {"DE00846", "FirmwareUpdateCmd: invalid xml-rpc type (not array)"};
constexpr quv::Refusal tooFew = {"DE00847", "FirmwareUpdateCmd: too few parameters received"};
constexpr quv::Refusal badFile = {"DE00848", "FirmwareUpdateCmd: invalid FirmwareFile parameter"};
constexpr quv::Refusal noFiles = {"DE00849", "FirmwareUpdateCmd: no FirmwareFile found"};
constexpr quv::Refusal emptyList = {"DE00850", "Too few parameters received"};
constexpr quv::Refusal noFileList = {"DE00851", "FirmwareUpdateCmd: expected FirmwareFile type parameter"};

// Refused by the base already, as long as the catalogue asks for an argument: no array at all, and an empty one.
const XmlRpcValue &filesIn(const XmlRpcValue &arguments, const char *function)
{
    if (arguments.getType() != XmlRpcValue::TypeArray)
        quv::throwRefusal(noArray, function);
    const XmlRpcValue *files = FindXmlRpcElement(arguments, 0);
    if (!files)
        quv::throwRefusal(tooFew, function);
    if (files->getType() != XmlRpcValue::TypeArray)
        quv::throwRefusal(noArray, function);
    if (files->size() == 0)
        quv::throwRefusal(noFiles, function);
    return *files;
}

constexpr quv::FamilyGate sendsMultipleFiles[] = {{63, 31}};
constexpr quv::FamilyGate sendsOverBluetooth[] = {{63, 33}, {70, 4}, {72, 5}};

// ---------------------------------------------------------------- how long it takes, in milliseconds

constexpr int circuitBoard = 2;

/** Boards that begin and end slowly, and need no jump to their boot loader. */
bool isSlow(int boardType)
{
    constexpr int slowTypes[] = {1, 6, 8, 9, 11};
    return std::find(std::begin(slowTypes), std::end(slowTypes), boardType) != std::end(slowTypes);
}

// Microseconds for one byte. Slow boards go by the type of the update's first file, whatever their own is.
long long timeOfSlowByte(int firstType)
{
    switch (firstType) {
    case 6:
    case 8:
        return 100;
    case 9:
        return 134;
    case 11:
        return 240;
    default:
        return 90;
    }
}

long long timeOfByte(int boardType, bool isFirstTarget)
{
    switch (boardType) {
    case circuitBoard:
        return isFirstTarget ? 310 : 110;
    case 3:
    case 14:
    case 15:
        return 250;
    case 13:
        return 400;
    default:
        return 300;
    }
}

/** How many boards the file goes to. */
int targetsOf(const FirmwareFile &file, const FW_Dispenser *dispenser)
{
    if (file.boardType() != circuitBoard || !dispenser)
        return file.addresses().size();
    const QList<int> wired = dispenser->getWireBoardsID();
    return static_cast<int>(std::count_if(file.addresses().begin(), file.addresses().end(),
                                          [&](int address) { return wired.contains(address); }));
}

long long timeOfFile(const FirmwareFile &file, int firstType, const FW_Dispenser *dispenser)
{
    constexpr long long jumpTime = 7000;
    constexpr long long openingTime = 17500;
    constexpr long long microseconds = 1000;
    const bool slow = isSlow(file.boardType());
    const bool parallel = file.isParallelSendSupported() && !slow;
    const int targets = targetsOf(file, dispenser);
    long long time = slow ? 0 : targets * jumpTime;
    for (int i = 0; i < targets; ++i) {
        const long long byteTime = slow ? timeOfSlowByte(firstType) : timeOfByte(file.boardType(), i == 0);
        time += (parallel && i > 0 ? 0 : openingTime) + file.image().size() * byteTime / microseconds;
    }
    return time;
}

} // namespace

struct FirmwareUpdateCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::UPDATE_FW;

    static constexpr char answerFailed[] = "Failed to create FirmwareUpdateAnswer";
    static constexpr quv::AnsweredBy<FirmwareUpdateAnswer> answer = {
        {}, {"DE00181", answerFailed}, {"DE00528", answerFailed}, {"DE00181", answerFailed}};

    static constexpr auto commandText = "Firmware update";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating firmware");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"files",
             "of each file \"image\" (binary), \"board_addresses\" (array of ints), \"board_type\" (int) "
             "and, where the boards take it all at once, \"parallel_send\" (bool)"},
            "array of structs");
        teller.refuse("another type", {noArray, noFileList});
        teller.refuse("empty", {noFiles, {}});
        teller.refuse("with a bad file", {badFile, noFileList});
    }
};

template class quv::DescribedCommand<FirmwareUpdateCmd, SerialProtoCommand>;

FirmwareUpdateCmd::FirmwareUpdateCmd(const FirmwareFiles &files) : m_files(files) {}

FirmwareUpdateCmd::FirmwareUpdateCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpcValue &files = filesIn(value, Q_FUNC_INFO);
    for (int i = 0; i < files.size(); ++i)
        quv::madeOrRefused(badFile, Q_FUNC_INFO, [&] { m_files.append(FirmwareFile(files[i])); });
}

FirmwareUpdateCmd::FirmwareUpdateCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    const bool areRead = quv::madeOrRefused(noFileList, Q_FUNC_INFO, [&] {
        return quv::readObjectsVariant<FirmwareFile>(list.constFirst(), &m_files);
    });
    if (!areRead)
        quv::throwRefusal(noFileList, Q_FUNC_INFO);
}

FirmwareUpdateCmd *FirmwareUpdateCmd::clone() const
{
    return new FirmwareUpdateCmd(*this);
}

QList<QVariant> FirmwareUpdateCmd::parameters() const
{
    return {QVariant::fromValue(m_files)};
}

XmlRpcValue FirmwareUpdateCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array.setSize(1);
    quv::writeObjects<FirmwareFile>(&m_files, array[0]);
    return array;
}

long long FirmwareUpdateCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    if (m_files.isEmpty())
        return 0;
    const int firstType = m_files.constFirst().boardType();
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    constexpr long long endTime = 25000;
    long long time = endTime + (isSlow(firstType) ? 14000 + 8000 : 6000);
    for (const FirmwareFile &file : m_files)
        time += timeOfFile(file, firstType, dispenser);
    return time;
}

TString FirmwareUpdateCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    QString text = QStringLiteral("Firmware update to the following boards:\n");
    for (const FirmwareFile &file : m_files)
        text += file.traceString() + QLatin1Char('\n');
    return {text, ""}; // it has no translation
}

bool FirmwareUpdateCmd::isMultipleFileSendSupported(const FW_Version &version)
{
    return version.isValid() && quv::passesGate(sendsMultipleFiles, version, true);
}

bool FirmwareUpdateCmd::isBluetoothFileSendSupported(const FW_Version &version)
{
    return version.isValid() && quv::passesGate(sendsOverBluetooth, version);
}
