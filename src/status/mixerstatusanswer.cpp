// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/mixerstatusanswer.h"

#include "base/flags_p.h"
#include "base/memberfacts_p.h"
#include "base/tokens_p.h"
#include "base/wire_p.h"
#include "status/machinestatusanswer_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_metatype.h>

#include <array>
#include <limits>
#include <utility>

namespace {

using Status = MixerStatusAnswer;

const bool isRegistered = RegisterTravellingType<Status>("MixerStatusAnswer");

/** The flags that all machines have, where a mixer's firmware tells them: not all in the places of a dispenser's. */
constexpr quv::MaskBit<Status> machineBits[] = {
    {1, 0, &Status::offline_pressed},
    {1, 1, &Status::board_not_initialized},
    {1, 5, &Status::startup},
    {2, 2, &Status::BL_active},
    {2, 3, &Status::BL_memory_resetting},
    {2, 4, &Status::BL_fw_update},
    {2, 5, &Status::conf_writing},
    {2, 6, &Status::hw_error},
    {3, 0, &Status::conf_error},
    {3, 2, &Status::process_error},
    {3, 3, &Status::stop_process},
    {3, 4, &Status::dispenser_not_ready},
    {3, 5, &Status::new_buffered_error},
    {3, 6, &Status::emergency_pressed},
    {4, 0, &Status::normal_wm, true}, // the firmware tells of the reserved mode
    {4, 3, &Status::can_present},
    {4, 5, &Status::shelf_down},
    {4, 6, &Status::shelf_up},
    {5, 6, &Status::door_open},
};

/** The mixer's own flags. */
constexpr quv::StatusFlag<Status> flags[] = {
    {"repositioning", &Status::repositioning, 1, 6, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Repositioning in progress")},
    {"clamping", &Status::clamping, 1, 3, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Plates movement in progress")},
    {"mixing", &Status::mixing, 1, 4, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Mixing in progress")},
    {"cycle_active", &Status::cycle_active, 1, 2, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Cycle in progress")},
    {"plates_part_opened", &Status::plates_part_opened, 2, 0, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Plates partially opened")},
    {"not_locked_ver", &Status::not_locked_ver, 2, 1, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Plates not locked in vertical position")},
    {"ready_next_cycle", &Status::ready_next_cycle, 6, 1, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Ready for next cycle")},
    {"cycle_on_hold", &Status::cycle_on_hold, 6, 2, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Cycle on hold, waiting start")},
    {"intput_power_abs", &Status::intput_power_abs, 4, 1, quv::Required | quv::Lasting | quv::Bad,
     QT_TRANSLATE_NOOP("QuvProtocol", "Input power supply absent")},
    {"lower_plate_extracted", &Status::lower_plate_extracted, 4, 2, quv::Required | quv::Lasting | quv::Bad,
     QT_TRANSLATE_NOOP("QuvProtocol", "Lower plate extracted")},
    {"door_partially_opened", &Status::door_partially_opened, 4, 4, quv::Required},
    {"can_in_plates", &Status::can_in_plates, 5, 0, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Can clamped between plates")},
    {"door_opening", &Status::door_opening, 5, 1, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Door opening")},
    {"door_closing", &Status::door_closing, 5, 2, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Door closing")},
    {"door_reset", &Status::door_reset, 5, 3, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Automatic door reset in progress")},
    {"cycle_interrupted", &Status::cycle_interrupted, 5, 4, quv::Required | quv::Lasting | quv::Bad,
     QT_TRANSLATE_NOOP("QuvProtocol", "Cycle interrupted")},
    {"door_locked", &Status::door_locked, 5, 5, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Door locked")},
    {"config_changed", &Status::config_changed, 6, 0, quv::Required},
    {"need_repositioning", &Status::need_repositioning, 6, 3, quv::Required | quv::Lasting | quv::Bad,
     QT_TRANSLATE_NOOP("QuvProtocol", "Repositioning needed")},
    {"door_unlocked", &Status::door_unlocked, 6, 4, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Door unlocked")},
};

constexpr quv::Refusal flagMissing = {"DE00026", "MixerStatusAnswer: expected %1 value"};
constexpr quv::Refusal numberMissing = {"DE02667", "MixerStatusAnswer: expected %1 value"};

/** What refuses each mask, in their order. */
constexpr quv::Refusal badMasks[] = {
    {"DE02668", "Error during command answer decoding: mask 1"},
    {"DE02669", "Error during command answer decoding: mask 2"},
    {"DE02670", "Error during command answer decoding: mask 3"},
    {"DE02671", "Error during command answer decoding: mask 4"},
    {"DE02672", "Error during command answer decoding: mask 5"},
    {"DE02823", "Error during command answer decoding: mask 6"},
};
constexpr int maskCount = static_cast<int>(std::size(badMasks));
constexpr int leastTokens = 12; // all, without the high digit of the clamping height

std::vector<quv::Member<Status>> ownMembers()
{
    std::vector<quv::Member<Status>> members = quv::membersOf(flags, flagMissing);
    members.emplace_back("cycle_id", &Status::cycle_id, numberMissing);
    members.emplace_back("timeleft", &Status::m_timeleft, numberMissing);
    members.emplace_back("mixing_speed", &Status::mixing_speed, numberMissing);
    members.emplace_back("clamping_force", &Status::clamping_force, numberMissing);
    members.emplace_back("clamping_height", &Status::clamping_height, numberMissing);
    return members;
}

const quv::Record<Status> &ownRecord()
{
    static const quv::Record<Status> record(ownMembers());
    return record;
}

/** The machine's members and the mixer's: the whole struct, for writing. */
const quv::Record<Status> &wholeRecord()
{
    static const quv::Record<Status> record(quv::machineStatusRecord(), ownMembers());
    return record;
}

/** A number that is no reason to refuse the status: 0 for one that an int does not hold. */
int asInt(long long number)
{
    return number <= std::numeric_limits<int>::max() ? static_cast<int>(number) : 0;
}

/** Two digits, the high one of which may be missing; 0 when one of them is no number. As joinValues does, without a list. */
int nextTwoDigits(quv::TokenReader &tokens)
{
    unsigned low = 0;
    unsigned high = 0;
    const bool isLow = tokens.next(low);
    const bool isHigh = tokens.atEnd() || tokens.next(high);
    return isLow && isHigh ? asInt(low + static_cast<long long>(quv::serialBase) * high) : 0;
}

} // namespace

MixerStatusAnswer::MixerStatusAnswer() = default;

MixerStatusAnswer::MixerStatusAnswer(QList<QVariant> list)
    : MachineStatusAnswer(list),
      SerialProtoAnswer(list)
{}

MixerStatusAnswer::MixerStatusAnswer(const XmlRpc::XmlRpcValue &value)
    : MachineStatusAnswer(value),
      SerialProtoAnswer(value)
{
    ownRecord().decode(value, *this, Q_FUNC_INFO);
}

MixerStatusAnswer::MixerStatusAnswer(QStringList tokens)
    : MachineStatusAnswer(tokens),
      SerialProtoAnswer(std::move(tokens))
{
    if (const quv::Refusal *refusal = decodeWords(m_parameters, 2))
        throw FW_Exception(refusal->code, refusal->text, Q_FUNC_INFO);
}

MixerStatusAnswer *MixerStatusAnswer::clone() const
{
    return new MixerStatusAnswer(*this);
}

bool MixerStatusAnswer::decodeSerialStatus(QStringList tokens, FW_DriverError *error)
{
    const quv::Refusal *refusal = decodeWords(tokens, 0);
    return refusal ? FW_DriverError::D_E(refusal->code, refusal->text, error) : true;
}

const quv::Refusal *MixerStatusAnswer::decodeWords(const QStringList &tokens, int first)
{
    static constexpr quv::Refusal tooFew = {"DE02673", "Error during command answer decoding: bad length"};

    quv::TokenReader reader(tokens, first, "");
    if (reader.remaining() < leastTokens)
        return &tooFew;
    std::array<unsigned, maskCount + 1> masks{}; // numbered as the firmware does, from 1
    int decoded = 0;
    while (decoded < maskCount && reader.next(masks[static_cast<std::size_t>(decoded) + 1]))
        ++decoded;
    quv::applyWords<machineBits>(masks.data(), decoded, *this);
    quv::applyWords<flags>(masks.data(), decoded, *this);
    if (decoded < maskCount)
        return &badMasks[decoded];
    cycle_id = asInt(reader.nextUnchecked());
    m_timeleft = nextTwoDigits(reader);
    mixing_speed = asInt(reader.nextUnchecked());
    clamping_force = asInt(reader.nextUnchecked());
    clamping_height = nextTwoDigits(reader);
    return nullptr;
}

bool MixerStatusAnswer::acceptCommands() const
{
    return quv::takesCommands(*this);
}

QList<QPair<QString, bool>> MixerStatusAnswer::getStatusDescriptions(const FW_Machine *) const
{
    QList<QPair<QString, bool>> descriptions = getMachineStatusDescriptions(SerialDeviceType::Mixer);
    for (const auto &row : flags) {
        if (row.has(quv::Lasting) && this->*row.flag)
            descriptions.append({quv::translated(row.on), row.has(quv::Bad)});
    }
    return descriptions;
}

bool MixerStatusAnswer::hasBadWorkingState() const
{
    return quv::firstBadLine(getStatusDescriptions(nullptr)).has_value();
}

QString MixerStatusAnswer::getFirstBadWorkingState() const
{
    return quv::firstBadLine(getStatusDescriptions(nullptr)).value_or(QString());
}

bool MixerStatusAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const MixerStatusAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue MixerStatusAnswer::toXmlRpcValue() const
{
    return wholeRecord().encode(*this);
}

bool MixerStatusAnswer::operator==(const MixerStatusAnswer &other) const
{
    return MachineStatusAnswer::operator==(other) && ownRecord().equal(*this, other);
}

void MixerStatusAnswer::clear(bool all)
{
    if (all)
        clearMachineStatus();
    ownRecord().reset(*this);
}

int MixerStatusAnswer::timeleft(int unit) const
{
    switch (unit) {
    case 2:
        return m_timeleft / 60;
    case 3:
        return m_timeleft / 3600;
    default:
        return m_timeleft;
    }
}

QList<QString> MixerStatusAnswer::getNewStatesDescriptions(const MixerStatusAnswer *before,
                                                           const MixerStatusAnswer *after)
{
    return getNewMachineStatesDescriptions(SerialDeviceType::Mixer, before, after);
}

QList<quv::MemberFacts> MixerStatusAnswer::memberFacts()
{
    return quv::factsOf(wholeRecord().rows());
}
