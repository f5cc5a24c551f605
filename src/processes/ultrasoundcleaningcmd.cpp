// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/ultrasoundcleaningcmd.h"

#include "base/describedcommand_p.h"
#include "base/wordstable_p.h"
#include "processes/milliseconds_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>

#include <algorithm>
#include <iterator>

namespace {

using Cmd = UltrasoundCleaningCmd;

constexpr quv::Words processes[] = {
    {Cmd::FullCleaning, "", QT_TRANSLATE_NOOP("QuvProtocol", "Running full cleaning process")},
    {Cmd::Emptying, "", QT_TRANSLATE_NOOP("QuvProtocol", "Running emptying process")},
    {Cmd::Filling, "", QT_TRANSLATE_NOOP("QuvProtocol", "Running filling process")},
    {Cmd::Clean, "", QT_TRANSLATE_NOOP("QuvProtocol", "Running clean process")},
};
constexpr quv::Words noProcess = {0, "", nullptr};

constexpr char noType[] = "Cleaning type: expected INT parameter";

} // namespace

struct UltrasoundCleaningCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::ULTRASOUND_CLEAN;
    static constexpr auto commandText = "Ultrasound cleaning";

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required({"type", "1 full cleaning, 2 emptying, 3 filling, 4 cleaning alone"}, self.m_type,
                         {{"DE02193", noType}, {"DE02197", "Expected cleaning type parameter"}},
                         {"DE02193", "DE02196", noType});
        archive.refuseUnless(checkCleaningType(self.m_type),
                             {{"DE02192", "Cleaning type: invalid parameter"}, {}});
        archive.required({"duration", "1 to 60515; 245 as configured; needed in a list"}, self.m_duration,
                         {{}, {"DE02199", "Expected recirculation duration parameter"}},
                         {{"DE02195", "Turntable cleaning duration: expected INT parameter"},
                          {"DE02198", "Recirculation duration: expected INT or LONG parameter"}});
        archive.refuseUnless(checkDuration(self.m_duration),
                             {{"DE02194", "Turntable cleaning duration: invalid parameter"}, {}});
    }
};

template class quv::DescribedCommand<UltrasoundCleaningCmd, SerialProtoCommand>;

UltrasoundCleaningCmd::UltrasoundCleaningCmd(UltrasoundCleaningType type, qlonglong duration)
    : FWProcess(0, duration, Seconds, false),
      m_type(type)
{}

UltrasoundCleaningCmd::UltrasoundCleaningCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

UltrasoundCleaningCmd::UltrasoundCleaningCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

UltrasoundCleaningCmd *UltrasoundCleaningCmd::clone() const
{
    return new UltrasoundCleaningCmd(*this);
}

XmlRpc::XmlRpcValue UltrasoundCleaningCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array = DescribedCommand::xmlrpc_parameters(ok);
    array[1] = writtenDuration();
    return array;
}

QList<int> UltrasoundCleaningCmd::serialParameters(int) const
{
    QList<int> parameters = {m_type};
    if (m_type == FullCleaning)
        return parameters;
    if (m_duration == configuredDuration)
        parameters << configuredDuration << configuredDuration;
    else
        appendDuration(parameters);
    return parameters;
}

long long UltrasoundCleaningCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    if (m_type != FullCleaning && m_duration != configuredDuration) {
        // of emptying and filling in tenths of a second
        if (m_type == Emptying || m_type == Filling)
            return quv::millisecondsOf(m_duration / 10);
        return durationInMilliseconds();
    }
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    const auto *station =
        dispenser
            ? dynamic_cast<const FW_UltrasoundCleaning *>(dispenser->getDevice(FW_Device::UltrasoundCleaning))
            : nullptr;
    if (!station)
        return 0;
    constexpr int preparation = 10;
    const double cleaning = station->ultrasoundDuration();
    const double whole =
        m_type == FullCleaning ? cleaning + station->emptyingTime() + station->fillingTime() : cleaning;
    return quv::millisecondsOf(static_cast<long long>(whole), 1, preparation);
}

TString UltrasoundCleaningCmd::actionString(bool detailed) const
{
    const quv::Words &words = quv::wordsOf(processes, m_type, noProcess);
    if (!words.actionText)
        return DescribedCommand::actionString(detailed);
    TString text = quv::actionOf(words, detailed);
    if (detailed && m_duration != configuredDuration) {
        const TString time =
            TString(QT_TRANSLATE_NOOP("QuvProtocol", "for %1 seconds"), quv::translationContext)
                .arg(QString::number(m_duration), false);
        text.m_text += QLatin1Char(' ') + time.m_text;
        text.m_translated += QLatin1Char(' ') + time.m_translated;
    }
    return text;
}

bool UltrasoundCleaningCmd::checkCleaningType(int type)
{
    return std::any_of(std::begin(processes), std::end(processes),
                       [type](const quv::Words &words) { return words.number == type; });
}
