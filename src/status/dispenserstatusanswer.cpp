// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatusanswer.h"

#include "base/flags_p.h"
#include "base/gate_p.h"
#include "base/memberfacts_p.h"
#include "base/tokens_p.h"
#include "status/machinestatusanswer_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_metatype.h>

#include <array>
#include <utility>

namespace {

using Status = DispenserStatusAnswer;

const bool isRegistered = RegisterTravellingType<Status>("DispenserStatusAnswer");

// Words are numbered as the firmware numbers them: 6 and 7 are the position and its zone.

/** The flags that all machines have, where a dispenser's firmware tells them. */
constexpr quv::MaskBit<Status> machineBits[] = {
    {1, 0, &Status::offline_pressed},
    {1, 1, &Status::board_not_initialized},
    {1, 5, &Status::startup},
    {1, 6, &Status::resetting},
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
    {4, 5, &Status::shelf_up},
    {4, 6, &Status::shelf_down},
    {5, 6, &Status::door_open},
    {9, 3, &Status::machine_turned_off},
    {9, 4, &Status::machine_unlocked},
};

/** The dispenser's own flags. Those of a capping station travel under the property names of their variables. */
constexpr quv::StatusFlag<Status> flags[] = {
    {"tinting", &Status::tinting, 1, 2, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Tinting in progress"), "Tinting not in progress"},
    {"recirculating", &Status::recirculating, 1, 3, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Recirculation in progress"), "Recirculation not in progress"},
    {"stirring", &Status::stirring, 1, 4, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Stirring in progress"), "Stirring not in progress"},
    {"valve_on", &Status::valve_on, 2, 0, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "At least one valve ON"), "No valve open"},
    {"cap_open", &Status::cap_open, 2, 1, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Autocap opened"), "Autocap closed"},
    {"bellow_up", &Status::bellow_up, 3, 1, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Bellows up"), "No bellows up"},
    {"no_24_voltage", &Status::no_24_voltage, 4, 1, quv::Required,
     QT_TRANSLATE_NOOP("QuvProtocol", "24V absent"), "24V power ON"},
    {"no_48_voltage", &Status::no_48_voltage, 4, 2, quv::Required,
     QT_TRANSLATE_NOOP("QuvProtocol", "48V absent"), "48V power ON"},
    {"punching", &Status::punching, 4, 4, quv::Required | quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Punching in progress"), "Punching not in progress"},
    {"slave_scan", &Status::slave_scan, 5, 0, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Slave scan in progress"), "Slave scan not in progress"},
    {"post_erogation", &Status::post_erogation, 5, 1, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Post dispensing in progress"), "Post dispensing not in progress"},
    {"turntable_moving", &Status::turntable_moving, 5, 2, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Turntable moving"), "Turntable idle"},
    {"cleaning", &Status::cleaning, 5, 3, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Cleaning in progress"), "Cleaning not in progress"},
    {"formula_interrupted", &Status::formula_interrupted, 5, 4, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Formula interrupted present"), "No formula interrupted present"},
    {"nozzle_valve_working_pos", &Status::nozzle_valve_working_pos, 5, 5, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Nozzle valve in working position"), "Nozzle valve in rest position"},
    {"circuit_fin_presence", &Status::circuit_fin_presence, 8, 0},
    {"airpurge", &Status::airpurge, 8, 1, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Air purge in progress")},
    {"head1_can_dose", &Status::head1_can_dose, 8, 2, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Head 1 ready to dispense")},
    {"head2_can_dose", &Status::head2_can_dose, 8, 3, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Head 2 ready to dispense")},
    {"predispensing", &Status::predispensing, 9, 0},
    {"pumping", &Status::pumping, 9, 1, quv::Uncompared},
    {"nozzle_moving", &Status::nozzle_moving, 9, 2},
    {"nozzle_valve_open_accurate", &Status::nozzle_valve_open_accurate, 9, 5, quv::Plain,
     QT_TRANSLATE_NOOP("QuvProtocol", "Nozzle valve open (precise)"), "Nozzle valve open (swift)"},
    {"canister_lvl_critical", &Status::canister_lvl_critical, 9, 6, quv::Lasting | quv::Bad,
     QT_TRANSLATE_NOOP("QuvProtocol", "One or more canister under critical level"), "Canister levels ok"},
    {"new_cleaning_stats", &Status::new_cleaning_stats, 10, 0, quv::Plain,
     QT_TRANSLATE_NOOP("QuvProtocol", "New cleaning stats available"), "No cleaning stats available"},
    {"stall_low", &Status::stall_low, 10, 1, quv::Lasting, QT_TRANSLATE_NOOP("QuvProtocol", "Stall low")},
    {"stall_high", &Status::stall_high, 10, 2, quv::Lasting, QT_TRANSLATE_NOOP("QuvProtocol", "Stall high")},
    {"check_level_in_progress", &Status::check_level_in_progress, 10, 3, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Check level in progress")},
    {"speed_red_in_recirc", &Status::speed_red_in_recirc, 10, 4, quv::Lasting,
     QT_TRANSLATE_NOOP("QuvProtocol", "Speed reduced in recirculation")},
    {"plc_start_activated", &Status::plc_start_activated, 10, 5},
    {"plc_stop_activated", &Status::plc_stop_activated, 10, 6},
    {"m_zdr_mixingInProgress", &Status::m_zdr_mixingInProgress, 11, 2, quv::Property},
    {"m_zdr_openingPlatesInProgress", &Status::m_zdr_openingPlatesInProgress, 11, 3, quv::Property},
    {"m_zdr_closingPlatesInProgress", &Status::m_zdr_closingPlatesInProgress, 11, 4, quv::Property},
    {"m_zdr_pluggingInProgress", &Status::m_zdr_pluggingInProgress, 11, 5, quv::Property},
    {"m_zdr_canCentered", &Status::m_zdr_canCentered, 11, 6, quv::Property},
    {"m_zdr_plasticPlugReserve", &Status::m_zdr_plasticPlugReserve, 12, 1, quv::Property},
    {"m_zdr_plasticPlugNotMounted", &Status::m_zdr_plasticPlugNotMounted, 12, 2, quv::Property},
    {"m_zdr_homePosition", &Status::m_zdr_homePosition, 12, 3, quv::Property},
};

/** A word in the order of its token: a mask with its refusal, or one of the two position numbers. */
struct Word
{
    int number = 0;
    quv::Refusal refusal{};
    int Status::*position = nullptr;
};

constexpr int requiredWords = 4;
constexpr int lastWordNumber = 12;

constexpr Word words[] = {
    {1, {"DE00128", "Error during command answer decoding: mask 1"}},
    {2, {"DE00129", "Error during command answer decoding: mask 2"}},
    {3, {"DE00130", "Error during command answer decoding: mask 3"}},
    {4, {"DE00113", "Error during command answer decoding: mask 4"}},
    {5, {"DE01454", "Error during command answer decoding: mask 5"}},
    {6, {}, &Status::current_position_id},
    {7, {}, &Status::current_position_id_zone},
    {8, {"DE02242", "Error during command answer decoding: mask 8"}},
    {9, {"DE02430", "Error during command answer decoding: mask 9"}},
    {10, {"DE02628", "Error during command answer decoding: mask 10"}},
    {11, {"DE02877", "Error during command answer decoding: mask 10"}}, // users know both by this text
    {12, {"DE02878", "Error during command answer decoding: mask 10"}},
};

constexpr int noPosition = 245;
constexpr quv::Refusal flagMissing = {"DE00026", "DispenserStatusAnswer: expected %1 value"};

constexpr quv::FamilyGate machineMovementsMask[] = {{63, 37}, {69, 1}};
constexpr quv::FamilyGate headCanDoseStatus[] = {{63, 37}, {70, 1}, {72}};

/** The only head's line, for machines that have but one. */
constexpr char readyToDispense[] = QT_TRANSLATE_NOOP("QuvProtocol", "Ready to dispense");

/** The dispenser's own members. */
std::vector<quv::Member<Status>> ownMembers()
{
    using Member = quv::Member<Status>;
    std::vector<Member> members = quv::membersOf(flags, flagMissing);
    members.emplace_back("current_position_id", &Status::current_position_id);
    members.emplace_back("current_position_id_zone", &Status::current_position_id_zone);
    // the machine reads and compares them
    members.push_back(Member("machine_turned_off", &Status::machine_turned_off).uses(quv::Write));
    members.push_back(Member("machine_unlocked", &Status::machine_unlocked).uses(quv::Write));
    return members;
}

const quv::Record<Status> &ownRecord()
{
    static const quv::Record<Status> record(ownMembers());
    return record;
}

/** The machine's members and the dispenser's: the whole struct, for writing. */
const quv::Record<Status> &wholeRecord()
{
    static const quv::Record<Status> record(quv::machineStatusRecord(), ownMembers());
    return record;
}

} // namespace

DispenserStatusAnswer::DispenserStatusAnswer() = default;

DispenserStatusAnswer::DispenserStatusAnswer(QList<QVariant> list)
    : MachineStatusAnswer(list),
      SerialProtoAnswer(list)
{}

DispenserStatusAnswer::DispenserStatusAnswer(const XmlRpc::XmlRpcValue &value)
    : MachineStatusAnswer(value),
      SerialProtoAnswer(value)
{
    ownRecord().decode(value, *this, Q_FUNC_INFO);
}

DispenserStatusAnswer::DispenserStatusAnswer(QStringList tokens)
    : MachineStatusAnswer(tokens),
      SerialProtoAnswer(std::move(tokens))
{
    if (const quv::Refusal *refusal = decodeWords(m_parameters, 2))
        throw FW_Exception(refusal->code, refusal->text, Q_FUNC_INFO);
}

DispenserStatusAnswer *DispenserStatusAnswer::clone() const
{
    return new DispenserStatusAnswer(*this);
}

bool DispenserStatusAnswer::decodeSerialStatus(QStringList tokens, FW_DriverError *error)
{
    const quv::Refusal *refusal = decodeWords(tokens, 0);
    return refusal ? FW_DriverError::D_E(refusal->code, refusal->text, error) : true;
}

const quv::Refusal *DispenserStatusAnswer::decodeWords(const QStringList &tokens, int first)
{
    static constexpr quv::Refusal tooFew = {"DE02666", "Error during command answer decoding"};

    quv::TokenReader reader(tokens, first, "");
    if (reader.remaining() < requiredWords)
        return &tooFew;
    std::array<unsigned, lastWordNumber + 1> masks{};
    int decoded = 0;
    const quv::Refusal *refusal = nullptr;
    for (const Word &word : words) {
        if (reader.atEnd())
            break; // older firmware sends fewer words
        if (word.position) {
            const int position = static_cast<int>(reader.nextUnchecked());
            this->*word.position = position == noPosition || position < 0 ? 0 : position;
        } else if (!reader.next(masks[static_cast<std::size_t>(word.number)])) {
            refusal = &word.refusal;
            break;
        }
        decoded = word.number;
    }
    quv::applyWords<machineBits>(masks.data(), decoded, *this);
    quv::applyWords<flags>(masks.data(), decoded, *this);
    return refusal;
}

bool DispenserStatusAnswer::acceptCommands() const
{
    return quv::takesCommands(*this);
}

QList<QPair<QString, bool>> DispenserStatusAnswer::getStatusDescriptions(const FW_Machine *machine) const
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    QList<QPair<QString, bool>> descriptions = getMachineStatusDescriptions(SerialDeviceType::Dispenser);
    const bool onlyOneHead = dispenser && !dispenser->hasMultipleHead();
    for (const auto &row : flags) {
        if (!row.has(quv::Lasting) || !(this->*row.flag))
            continue;
        if (onlyOneHead && row.flag == &Status::head2_can_dose)
            continue;
        const char *text = onlyOneHead && row.flag == &Status::head1_can_dose ? readyToDispense : row.on;
        descriptions.append({quv::translated(text), row.has(quv::Bad)});
    }
    return descriptions;
}

bool DispenserStatusAnswer::hasBadWorkingState() const
{
    return quv::firstBadLine(getStatusDescriptions(nullptr)).has_value();
}

QString DispenserStatusAnswer::getFirstBadWorkingState() const
{
    return quv::firstBadLine(getStatusDescriptions(nullptr)).value_or(QString());
}

bool DispenserStatusAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const DispenserStatusAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue DispenserStatusAnswer::toXmlRpcValue() const
{
    return wholeRecord().encode(*this);
}

bool DispenserStatusAnswer::operator==(const DispenserStatusAnswer &other) const
{
    return MachineStatusAnswer::operator==(other) && ownRecord().equal(*this, other);
}

void DispenserStatusAnswer::clear(bool all)
{
    if (all)
        clearMachineStatus();
    ownRecord().reset(*this);
}

int DispenserStatusAnswer::getStallLevel() const
{
    return (stall_low ? 1 : 0) + (stall_high ? 2 : 0);
}

QList<QString> DispenserStatusAnswer::getNewStatesDescriptions(const DispenserStatusAnswer *before,
                                                               const DispenserStatusAnswer *after)
{
    QList<QString> descriptions = getNewMachineStatesDescriptions(SerialDeviceType::Dispenser, before, after);
    if (before && after)
        quv::describeChanges(flags, *before, *after, descriptions);
    return descriptions;
}

QList<quv::MemberFacts> DispenserStatusAnswer::memberFacts()
{
    return quv::factsOf(wholeRecord().rows());
}

bool DispenserStatusAnswer::isMachineMovementsMaskSupported(const FW_Version &version)
{
    return quv::passesGate(machineMovementsMask, version);
}

bool DispenserStatusAnswer::isHeadCanDoseStatusSupported(const FW_Version &version)
{
    return quv::passesGate(headCanDoseStatus, version);
}
