// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/toggletemporizedcmd.h"

#include "base/describedcommand_p.h"
#include "base/wire_p.h"
#include "processes/temporized_p.h"

#include <QuvFramework/fw_dispenser.h>

namespace {

constexpr char badMask[] = "Invalid temporized process mask value";
constexpr char badTimeout[] = "Invalid freeze timeout value";

struct ProcessName
{
    ToggleTemporizedCmd::TimedProcess process{};
    const char *name = "";
};

constexpr ProcessName processNames[] = {
    {ToggleTemporizedCmd::Recirculation, QT_TRANSLATE_NOOP("QuvProtocol", "recirculation")},
    {ToggleTemporizedCmd::Stirring, QT_TRANSLATE_NOOP("QuvProtocol", "stirring")},
    {ToggleTemporizedCmd::Humidifier, QT_TRANSLATE_NOOP("QuvProtocol", "humidifier")},
    {ToggleTemporizedCmd::Cleaning, QT_TRANSLATE_NOOP("QuvProtocol", "cleaning")}};

/** The processes of a mask, each as \a told tells it. */
template <class Told>
QString processesOf(int mask, Told told)
{
    QStringList names;
    for (const ProcessName &row : processNames)
        if (mask & row.process)
            names.append(told(row.name));
    return names.join(QStringLiteral(", "));
}

QString processesOf(int mask)
{
    return processesOf(mask, [](const char *name) { return QString::fromLatin1(name); });
}

} // namespace

struct ToggleTemporizedCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::TOGGLE_TEMPORIZED;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional("disable", self.m_disable,
                         {"DE00508", "DE00513", "Disable value type: expected BOOL parameter"});
        archive.optional(
            {"process_mask", "1 recirculation, 2 stirring, 4 humidifier, 8 cleaning; 0 is all processes"},
            self.m_processMask,
            {"DE00509", "DE00514", "Temporized process mask value type: expected INT parameter"});
        archive.refuseUnless(checkProcessMask(self.m_processMask), {"DE00510", "DE00515", badMask});
        archive.optional({"freeze_timeout", "0 to 245 seconds"}, self.m_freezeTimeout,
                         {"DE00511", "DE00516", "Freeze timeout value type: expected INT parameter"});
        archive.refuseUnless(checkFreezeTimeout(self.m_freezeTimeout), {"DE00512", "DE00517", badTimeout});
    }
};

template class quv::DescribedCommand<ToggleTemporizedCmd, SerialProtoCommand>;

ToggleTemporizedCmd::ToggleTemporizedCmd(bool disable, int processMask, int freezeTimeout)
    : m_disable(disable),
      m_processMask(processMask),
      m_freezeTimeout(freezeTimeout)
{
    if (!checkProcessMask(processMask))
        throw FW_Exception("DE00518", badMask, Q_FUNC_INFO);
    if (!checkFreezeTimeout(freezeTimeout))
        throw FW_Exception("DE00519", badTimeout, Q_FUNC_INFO);
}

ToggleTemporizedCmd::ToggleTemporizedCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ToggleTemporizedCmd::ToggleTemporizedCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ToggleTemporizedCmd *ToggleTemporizedCmd::clone() const
{
    return new ToggleTemporizedCmd(*this);
}

QList<int> ToggleTemporizedCmd::serialParameters(int family) const
{
    constexpr int normalMode = 1;
    if (family != FW_Dispenser::CommandFamily1)
        return {};
    if (!m_disable)
        return {normalMode, 0, 0};
    return {quv::timedProcessesHeld, m_processMask, m_freezeTimeout};
}

QString ToggleTemporizedCmd::commandString() const
{
    if (!m_disable)
        return QStringLiteral("Enable all timed processes");
    return m_processMask == 0
               ? QStringLiteral("Disable all timed processes")
               : QStringLiteral("Disable timed processes (%1)").arg(processesOf(m_processMask));
}

TString ToggleTemporizedCmd::actionString(bool) const
{
    if (!m_disable)
        return {QT_TRANSLATE_NOOP("QuvProtocol", "Enabling all timed processes"), quv::translationContext};
    if (m_processMask == 0)
        return {QT_TRANSLATE_NOOP("QuvProtocol", "Disabling all timed processes"), quv::translationContext};
    TString text(QT_TRANSLATE_NOOP("QuvProtocol", "Disabling timed processes (%1)"), quv::translationContext);
    // each name is a text of its own for translators, and the whole list is none
    text.m_text = text.m_text.arg(processesOf(m_processMask));
    text.m_translated = text.m_translated.arg(processesOf(m_processMask, quv::translated));
    return text;
}

bool ToggleTemporizedCmd::checkProcessMask(int mask)
{
    return mask >= 0 && mask <= (Recirculation | Stirring | Humidifier | Cleaning);
}

bool ToggleTemporizedCmd::checkFreezeTimeout(int timeout)
{
    return timeout >= 0 && timeout <= quv::unsetDigit;
}
