// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/mixerplatescmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"

namespace {

const int actionType =
    qRegisterMetaType<MixerPlatesCmd::MixerPlatesAction>("MixerPlatesCmd::MixerPlatesAction");

constexpr quv::Refusal noAction = {"DE02889", "MixerPlatesCmd: invalid parameter"};

int converted(const QVariant &variant)
{
    int number = 0;
    return quv::convertVariant(variant, number) ? number : 0;
}

} // namespace

struct MixerPlatesCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::MIXER_PLATES;
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Mixer plates movement in progress");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        const MixerPlatesCmd fresh;
        teller.argument({"action", "as the firmware numbers it"}, "int");
        teller.refuse("another type", {noAction, {}});
        teller.unread({"duration", "60515 has no end"}, fresh.m_duration);
        teller.unread({"speed", "245 is that of the firmware's configuration"}, fresh.m_speed);
        teller.unread({"extra", "a number of the firmware's own"}, fresh.m_extra);
    }
};

template class quv::DescribedCommand<MixerPlatesCmd, SerialProtoCommand>;

MixerPlatesCmd::MixerPlatesCmd(MixerPlatesAction action, int duration, int speed, int extra)
    : m_action(action),
      m_duration(duration),
      m_speed(speed),
      m_extra(extra)
{}

MixerPlatesCmd::MixerPlatesCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    int action = 0;
    if (!DecodeXmlRpcValue(value, 0, action))
        quv::throwRefusal(noAction, Q_FUNC_INFO);
    m_action = static_cast<MixerPlatesAction>(action);
    // one that is missing or of another type leaves its default
    DecodeXmlRpcValue(value, 1, m_duration);
    DecodeXmlRpcValue(value, 2, m_speed);
    DecodeXmlRpcValue(value, 3, m_extra);
}

MixerPlatesCmd::MixerPlatesCmd(QList<QVariant> list)
    : DescribedCommand(list),
      m_action(static_cast<MixerPlatesAction>(converted(list.value(0)))),
      m_duration(converted(list.value(1))),
      m_speed(converted(list.value(2))),
      m_extra(converted(list.value(3)))
{}

MixerPlatesCmd *MixerPlatesCmd::clone() const
{
    return new MixerPlatesCmd(*this);
}

QList<QVariant> MixerPlatesCmd::parameters() const
{
    return {QVariant::fromValue(m_action), m_duration, m_speed, m_extra};
}

XmlRpc::XmlRpcValue MixerPlatesCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array.setSize(4);
    array[0] = static_cast<int>(m_action);
    array[1] = m_duration;
    array[2] = m_speed;
    array[3] = m_extra;
    return array;
}

QList<int> MixerPlatesCmd::serialParameters(int) const
{
    QList<int> parameters = {m_action};
    quv::appendDigits(parameters, m_duration);
    parameters << m_speed << m_extra;
    return parameters;
}
