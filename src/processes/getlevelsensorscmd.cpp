// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getlevelsensorscmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "processes/getlevelsensorsanswer.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_utils.h>

namespace {

constexpr quv::FamilyGate readsLevels[] = {{63, 39}};

} // namespace

struct GetLevelSensorsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_LEVEL_SENSORS;
    static constexpr auto commandText = "Read level sensors";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Level sensor read");

    static constexpr char answerFailed[] = "Failed to create GetLevelSensorsAnswer";
    // there is no answer from a list
    static constexpr quv::AnsweredBy<GetLevelSensorsAnswer> answer = {
        {"DE03189", answerFailed}, {"DE03190", answerFailed}, {}, {"DE03191", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"positions", "of circuits"}, self.m_positions,
                         {"DE02847", "DE02848", "GetLevelSensorsCmd: invalid parameter"});
    }
};

template class quv::DescribedCommand<GetLevelSensorsCmd, SerialProtoCommand>;

GetLevelSensorsCmd::GetLevelSensorsCmd(const QList<int> &positions) : m_positions(positions) {}

GetLevelSensorsCmd::GetLevelSensorsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

GetLevelSensorsCmd::GetLevelSensorsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

GetLevelSensorsCmd *GetLevelSensorsCmd::clone() const
{
    return new GetLevelSensorsCmd(*this);
}

QList<QVariant> GetLevelSensorsCmd::parameters() const
{
    // variants of integer lists do not compare, and in braces some compilers would copy the list
    return QList<QVariant>() << QVariant(intListToVariant(m_positions));
}

QList<int> GetLevelSensorsCmd::serialParameters(int) const
{
    return QList<int>{0} + m_positions;
}

long long GetLevelSensorsCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    constexpr long long timeOfOneReading = 8000;
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    if (!dispenser || dispenser->tintingParallelism() < 1)
        return 0;
    return m_positions.size() / dispenser->tintingParallelism() * timeOfOneReading;
}

bool GetLevelSensorsCmd::isSupportedCommand(const FW_Version &version) const
{
    return checkSupportedCommand(version);
}

bool GetLevelSensorsCmd::checkSupportedCommand(const FW_Version &version)
{
    return quv::passesGate(readsLevels, version);
}

TString GetLevelSensorsCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Level sensor read for positions %1"),
                   quv::translationContext)
        .arg(createListStr(m_positions, QLatin1Char(',')), false);
}
