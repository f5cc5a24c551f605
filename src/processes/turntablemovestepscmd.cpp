// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovestepscmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"

struct TurntableMoveStepsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::TURNTABLE_MOVE_STEPS;

    static constexpr auto commandText = "Turntable positioning by steps";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Moving turntable by %1 steps");
    // the steps stand in all three places: users know the text
    static constexpr auto detailedActionText =
        QT_TRANSLATE_NOOP("QuvProtocol", "Moving turntable by %1 steps - direction : %1 - speed : %1");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        // a list is told of a movement type: users know the text
        constexpr quv::ArgumentRefusal direction = {
            {"DE01759", "Turntable movement direction: expected INT parameter"},
            {"DE01762", "Turntable movement type: expected INT parameter"}};
        constexpr quv::ArgumentRefusal speed = {"DE01760", "DE01763",
                                                "Turntable speed: expected INT parameter"};
        constexpr quv::ArgumentRefusal steps = {"DE01761", "DE01764",
                                                "Turntable movement steps: expected INT parameter"};
        archive.required({"direction", "0 clockwise, 1 counter-clockwise, 2 the shortest way"},
                         self.m_direction, direction, direction);
        archive.required({"speed", "1 to 100; 245 is the machine's own"}, self.m_speed, speed, speed);
        archive.required("steps", self.m_steps, steps, steps);
    }
};

template class quv::DescribedCommand<TurntableMoveStepsCmd, SerialProtoCommand>;

TurntableMoveStepsCmd::TurntableMoveStepsCmd(int direction, int speed, long long steps)
    : TurntableMovement(direction, speed),
      m_steps(steps)
{}

TurntableMoveStepsCmd::TurntableMoveStepsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

TurntableMoveStepsCmd::TurntableMoveStepsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

TurntableMoveStepsCmd *TurntableMoveStepsCmd::clone() const
{
    return new TurntableMoveStepsCmd(*this);
}

QList<QVariant> TurntableMoveStepsCmd::parameters() const
{
    return intListToVariant(serialParameters(0)); // the same for every family
}

QList<int> TurntableMoveStepsCmd::serialParameters(int) const
{
    if (m_steps < 0)
        return {};
    QList<int> parameters = {m_direction, m_speed};
    quv::appendCountedDigits(parameters, m_steps);
    return parameters;
}

TString TurntableMoveStepsCmd::actionString(bool detailed) const
{
    return DescribedCommand::actionString(detailed).arg(QString::number(m_steps), false);
}
