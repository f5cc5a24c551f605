// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovecmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "base/wordstable_p.h"

namespace {

constexpr quv::FamilyGate keepsRollbarLocked[] = {{69, 1}};

constexpr quv::Words words[] = {
    {TurntableMoveCmd::ReferenceSearch, "Reference position search",
     QT_TRANSLATE_NOOP("QuvProtocol", "Moving turntable to reference position")},
    {TurntableMoveCmd::CircuitPositioning, "Circuit positioning",
     QT_TRANSLATE_NOOP("QuvProtocol", "Moving turntable to circuit %1")},
    {TurntableMoveCmd::LockedCircuitPositioning, "Circuit positioning without rollbar unlock",
     QT_TRANSLATE_NOOP("QuvProtocol", "Moving turntable to circuit %1 (no rollbar unlock)")}};

const quv::Words &wordsOf(int movementType)
{
    static constexpr quv::Words others = {-1, "", QT_TRANSLATE_NOOP("QuvProtocol", "In progress")};
    return quv::wordsOf(words, movementType, others);
}

bool positionsCircuit(int movementType)
{
    return movementType == TurntableMoveCmd::CircuitPositioning ||
           movementType == TurntableMoveCmd::LockedCircuitPositioning;
}

} // namespace

struct TurntableMoveCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::TURNTABLE_MOVE;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noPosition = {
            "DE01659", "DE01660", "Turntable movement position ID: expected INT parameter"};
        constexpr quv::ArgumentRefusal noType = {"DE01649", "DE01654",
                                                 "Turntable movement type: expected INT parameter"};
        constexpr quv::ArgumentRefusal noDirection = {"DE01650", "DE01655",
                                                      "Turntable movement direction: expected INT parameter"};
        constexpr quv::ArgumentRefusal noAngle = {"DE01651", "DE01656",
                                                  "Turntable refill angle: expected INT parameter"};
        constexpr quv::ArgumentRefusal noRefillDirection = {
            "DE01652", "DE01657", "Turntable refill direction: expected INT parameter"};
        archive.required({"position", "a circuit's position"}, self.m_moduleID, noPosition, noPosition);
        archive.required({"movement_type", "0 search of the reference position, 1 to the circuit, 2 to the "
                                           "circuit with the rollbar locked"},
                         self.m_movementType, noType, noType);
        archive.required({"direction", "0 clockwise, 1 counter-clockwise, 2 the shortest way"},
                         self.m_direction, noDirection, noDirection);
        archive.required({"refill_angle", "degrees by which the table turns on"}, self.m_refillAngle, noAngle,
                         noAngle);
        // four arguments are enough for the catalogue, but not for the firmware
        archive.required({"refill_direction", "0 clockwise, 1 counter-clockwise"}, self.m_refillDirection,
                         noRefillDirection, noRefillDirection);
        archive.optional({"speed", "1 to 100; 245 is the machine's own"}, self.m_speed,
                         {"DE01653", "DE01658", "Turntable speed: expected INT parameter"});
    }
};

template class quv::DescribedCommand<TurntableMoveCmd, SerialProtoCommand>;

TurntableMoveCmd::TurntableMoveCmd(int positionID)
{
    setModuleID(positionID);
}

TurntableMoveCmd::TurntableMoveCmd(int positionID, int refillAngle, int refillDirection)
    : m_refillAngle(refillAngle),
      m_refillDirection(refillDirection)
{
    setModuleID(positionID);
}

TurntableMoveCmd::TurntableMoveCmd(int positionID, int movementType, int direction, int refillAngle,
                                   int refillDirection, int speed)
    : TurntableMovement(direction, speed),
      m_movementType(movementType),
      m_refillAngle(refillAngle),
      m_refillDirection(refillDirection)
{
    if (positionsCircuit(movementType))
        setModuleID(positionID);
}

TurntableMoveCmd::TurntableMoveCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

TurntableMoveCmd::TurntableMoveCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

TurntableMoveCmd *TurntableMoveCmd::clone() const
{
    return new TurntableMoveCmd(*this);
}

QList<int> TurntableMoveCmd::serialParameters(int) const
{
    QList<int> parameters = {m_movementType, m_direction, m_refillAngle, m_refillDirection};
    if (!positionsCircuit(m_movementType))
        parameters.append(m_speed);
    return parameters;
}

QString TurntableMoveCmd::commandString() const
{
    return QString::fromLatin1(wordsOf(m_movementType).commandText);
}

TString TurntableMoveCmd::actionString(bool detailed) const
{
    TString action = quv::actionOf(wordsOf(m_movementType), detailed);
    if (positionsCircuit(m_movementType))
        action.arg(QString::number(m_moduleID), false);
    return action;
}

bool TurntableMoveCmd::checkMovementType(int movementType)
{
    return movementType >= ReferenceSearch && movementType <= LockedCircuitPositioning;
}

bool TurntableMoveCmd::isMovementTypeSupported(int movementType, const FW_Version &version)
{
    return movementType != LockedCircuitPositioning || quv::passesGate(keepsRollbarLocked, version);
}

bool TurntableMoveCmd::convertFromConfiguration(int angle, int &rotation, int &direction)
{
    constexpr int fullTurn = 360;
    if (angle < 0 || angle > fullTurn)
        return false;
    const bool isShorterBack = angle > fullTurn / 2;
    rotation = isShorterBack ? fullTurn - angle : angle;
    direction = isShorterBack ? CounterClockwise : Clockwise;
    return true;
}
