// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatusanswer.h"

#include "base/flags_p.h"
#include "base/gate_p.h"
#include "base/tokens_p.h"
#include "status/machinestatusanswer_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_utils.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Status = DispenserStatusAnswer;

// Words are numbered as the firmware numbers them: 6 and 7 are the position and its zone.
constexpr quv::MaskBit<Status> bits[] = {
    {1, 0, &Status::offline_pressed},
    {1, 1, &Status::board_not_initialized},
    {1, 2, &Status::tinting},
    {1, 3, &Status::recirculating},
    {1, 4, &Status::stirring},
    {1, 5, &Status::startup},
    {1, 6, &Status::resetting},
    {2, 0, &Status::valve_on},
    {2, 1, &Status::cap_open},
    {2, 2, &Status::BL_active},
    {2, 3, &Status::BL_memory_resetting},
    {2, 4, &Status::BL_fw_update},
    {2, 5, &Status::conf_writing},
    {2, 6, &Status::hw_error},
    {3, 0, &Status::conf_error},
    {3, 1, &Status::bellow_up},
    {3, 2, &Status::process_error},
    {3, 3, &Status::stop_process},
    {3, 4, &Status::dispenser_not_ready},
    {3, 5, &Status::new_buffered_error},
    {3, 6, &Status::emergency_pressed},
    {4, 0, &Status::normal_wm, true}, // the firmware tells of the reserved mode
    {4, 1, &Status::no_24_voltage},
    {4, 2, &Status::no_48_voltage},
    {4, 3, &Status::can_present},
    {4, 4, &Status::punching},
    {4, 5, &Status::shelf_up},
    {4, 6, &Status::shelf_down},
    {5, 0, &Status::slave_scan},
    {5, 1, &Status::post_erogation},
    {5, 2, &Status::turntable_moving},
    {5, 3, &Status::cleaning},
    {5, 4, &Status::formula_interrupted},
    {5, 5, &Status::nozzle_valve_working_pos},
    {5, 6, &Status::door_open},
    {8, 0, &Status::circuit_fin_presence},
    {8, 1, &Status::airpurge},
    {8, 2, &Status::head1_can_dose},
    {8, 3, &Status::head2_can_dose},
    {9, 0, &Status::predispensing},
    {9, 1, &Status::pumping},
    {9, 2, &Status::nozzle_moving},
    {9, 3, &Status::machine_turned_off},
    {9, 4, &Status::machine_unlocked},
    {9, 5, &Status::nozzle_valve_open_accurate},
    {9, 6, &Status::canister_lvl_critical},
    {10, 0, &Status::new_cleaning_stats},
    {10, 1, &Status::stall_low},
    {10, 2, &Status::stall_high},
    {10, 3, &Status::check_level_in_progress},
    {10, 4, &Status::speed_red_in_recirc},
    {10, 5, &Status::plc_start_activated},
    {10, 6, &Status::plc_stop_activated},
    {11, 2, &Status::m_zdr_mixingInProgress},
    {11, 3, &Status::m_zdr_openingPlatesInProgress},
    {11, 4, &Status::m_zdr_closingPlatesInProgress},
    {11, 5, &Status::m_zdr_pluggingInProgress},
    {11, 6, &Status::m_zdr_canCentered},
    {12, 1, &Status::m_zdr_plasticPlugReserve},
    {12, 2, &Status::m_zdr_plasticPlugNotMounted},
    {12, 3, &Status::m_zdr_homePosition},
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

constexpr quv::Condition<Status> conditionsBeforeHeads[] = {
    {&Status::tinting, QT_TRANSLATE_NOOP("QuvProtocol", "Tinting in progress")},
    {&Status::recirculating, QT_TRANSLATE_NOOP("QuvProtocol", "Recirculation in progress")},
    {&Status::stirring, QT_TRANSLATE_NOOP("QuvProtocol", "Stirring in progress")},
    {&Status::valve_on, QT_TRANSLATE_NOOP("QuvProtocol", "At least one valve ON")},
    {&Status::cap_open, QT_TRANSLATE_NOOP("QuvProtocol", "Autocap opened")},
    {&Status::bellow_up, QT_TRANSLATE_NOOP("QuvProtocol", "Bellows up")},
    {&Status::punching, QT_TRANSLATE_NOOP("QuvProtocol", "Punching in progress")},
    {&Status::slave_scan, QT_TRANSLATE_NOOP("QuvProtocol", "Slave scan in progress")},
    {&Status::post_erogation, QT_TRANSLATE_NOOP("QuvProtocol", "Post dispensing in progress")},
    {&Status::turntable_moving, QT_TRANSLATE_NOOP("QuvProtocol", "Turntable moving")},
    {&Status::cleaning, QT_TRANSLATE_NOOP("QuvProtocol", "Cleaning in progress")},
    {&Status::formula_interrupted, QT_TRANSLATE_NOOP("QuvProtocol", "Formula interrupted present")},
    {&Status::nozzle_valve_working_pos, QT_TRANSLATE_NOOP("QuvProtocol", "Nozzle valve in working position")},
    {&Status::airpurge, QT_TRANSLATE_NOOP("QuvProtocol", "Air purge in progress")},
};

constexpr quv::Condition<Status> onlyHeadCondition[] = {
    {&Status::head1_can_dose, QT_TRANSLATE_NOOP("QuvProtocol", "Ready to dispense")},
};

constexpr quv::Condition<Status> headConditions[] = {
    {&Status::head1_can_dose, QT_TRANSLATE_NOOP("QuvProtocol", "Head 1 ready to dispense")},
    {&Status::head2_can_dose, QT_TRANSLATE_NOOP("QuvProtocol", "Head 2 ready to dispense")},
};

constexpr quv::Condition<Status> conditionsAfterHeads[] = {
    {&Status::canister_lvl_critical,
     QT_TRANSLATE_NOOP("QuvProtocol", "One or more canister under critical level"), true},
    {&Status::stall_low, QT_TRANSLATE_NOOP("QuvProtocol", "Stall low")},
    {&Status::stall_high, QT_TRANSLATE_NOOP("QuvProtocol", "Stall high")},
    {&Status::check_level_in_progress, QT_TRANSLATE_NOOP("QuvProtocol", "Check level in progress")},
    {&Status::speed_red_in_recirc, QT_TRANSLATE_NOOP("QuvProtocol", "Speed reduced in recirculation")},
};

constexpr quv::Change<Status> changes[] = {
    {&Status::tinting, QT_TRANSLATE_NOOP("QuvProtocol", "Tinting in progress"), "Tinting not in progress"},
    {&Status::recirculating, QT_TRANSLATE_NOOP("QuvProtocol", "Recirculation in progress"),
     "Recirculation not in progress"},
    {&Status::stirring, QT_TRANSLATE_NOOP("QuvProtocol", "Stirring in progress"), "Stirring not in progress"},
    {&Status::valve_on, QT_TRANSLATE_NOOP("QuvProtocol", "At least one valve ON"), "No valve open"},
    {&Status::cap_open, QT_TRANSLATE_NOOP("QuvProtocol", "Autocap opened"), "Autocap closed"},
    {&Status::bellow_up, QT_TRANSLATE_NOOP("QuvProtocol", "Bellows up"), "No bellows up"},
    {&Status::no_24_voltage, QT_TRANSLATE_NOOP("QuvProtocol", "24V absent"), "24V power ON"},
    {&Status::no_48_voltage, QT_TRANSLATE_NOOP("QuvProtocol", "48V absent"), "48V power ON"},
    {&Status::punching, QT_TRANSLATE_NOOP("QuvProtocol", "Punching in progress"), "Punching not in progress"},
    {&Status::slave_scan, QT_TRANSLATE_NOOP("QuvProtocol", "Slave scan in progress"),
     "Slave scan not in progress"},
    {&Status::post_erogation, QT_TRANSLATE_NOOP("QuvProtocol", "Post dispensing in progress"),
     "Post dispensing not in progress"},
    {&Status::turntable_moving, QT_TRANSLATE_NOOP("QuvProtocol", "Turntable moving"), "Turntable idle"},
    {&Status::cleaning, QT_TRANSLATE_NOOP("QuvProtocol", "Cleaning in progress"), "Cleaning not in progress"},
    {&Status::formula_interrupted, QT_TRANSLATE_NOOP("QuvProtocol", "Formula interrupted present"),
     "No formula interrupted present"},
    {&Status::nozzle_valve_working_pos, QT_TRANSLATE_NOOP("QuvProtocol", "Nozzle valve in working position"),
     "Nozzle valve in rest position"},
    {&Status::nozzle_valve_open_accurate, QT_TRANSLATE_NOOP("QuvProtocol", "Nozzle valve open (precise)"),
     "Nozzle valve open (swift)"},
    {&Status::canister_lvl_critical,
     QT_TRANSLATE_NOOP("QuvProtocol", "One or more canister under critical level"), "Canister levels ok"},
    {&Status::new_cleaning_stats, QT_TRANSLATE_NOOP("QuvProtocol", "New cleaning stats available"),
     "No cleaning stats available"},
};

constexpr quv::FamilyGate machineMovementsMask[] = {{63, 37}, {69, 1}};
constexpr quv::FamilyGate headCanDoseStatus[] = {{63, 37}, {70, 1}, {72}};

using Row = quv::Member<Status>;

Row required(const char *key, bool Status::*field)
{
    return {key, field, "DE00026", "DispenserStatusAnswer: expected %1 value"};
}

/** A capping station's flag travels under the property name of its variable. */
Row cappingStation(const char *variable, bool Status::*field)
{
    return {stringVariableToStringProperty(variable).toStdString(), field};
}

/** The dispenser's own members, in the order in which they are read. */
std::vector<Row> ownRows()
{
    return {
        required("tinting", &Status::tinting),
        required("recirculating", &Status::recirculating),
        required("stirring", &Status::stirring),
        required("valve_on", &Status::valve_on),
        required("cap_open", &Status::cap_open),
        required("bellow_up", &Status::bellow_up),
        required("no_24_voltage", &Status::no_24_voltage),
        required("no_48_voltage", &Status::no_48_voltage),
        required("punching", &Status::punching),
        {"slave_scan", &Status::slave_scan},
        {"post_erogation", &Status::post_erogation},
        {"turntable_moving", &Status::turntable_moving},
        {"cleaning", &Status::cleaning},
        {"formula_interrupted", &Status::formula_interrupted},
        {"nozzle_valve_working_pos", &Status::nozzle_valve_working_pos},
        {"circuit_fin_presence", &Status::circuit_fin_presence},
        {"airpurge", &Status::airpurge},
        {"head1_can_dose", &Status::head1_can_dose},
        {"head2_can_dose", &Status::head2_can_dose},
        {"predispensing", &Status::predispensing},
        {"pumping", &Status::pumping, nullptr, nullptr, quv::Read | quv::Write},
        {"nozzle_moving", &Status::nozzle_moving},
        {"nozzle_valve_open_accurate", &Status::nozzle_valve_open_accurate},
        {"canister_lvl_critical", &Status::canister_lvl_critical},
        {"new_cleaning_stats", &Status::new_cleaning_stats},
        {"stall_low", &Status::stall_low},
        {"stall_high", &Status::stall_high},
        {"check_level_in_progress", &Status::check_level_in_progress},
        {"speed_red_in_recirc", &Status::speed_red_in_recirc},
        {"plc_start_activated", &Status::plc_start_activated},
        {"plc_stop_activated", &Status::plc_stop_activated},
        {"current_position_id", &Status::current_position_id},
        {"current_position_id_zone", &Status::current_position_id_zone},
        cappingStation("m_zdr_mixingInProgress", &Status::m_zdr_mixingInProgress),
        cappingStation("m_zdr_openingPlatesInProgress", &Status::m_zdr_openingPlatesInProgress),
        cappingStation("m_zdr_closingPlatesInProgress", &Status::m_zdr_closingPlatesInProgress),
        cappingStation("m_zdr_pluggingInProgress", &Status::m_zdr_pluggingInProgress),
        cappingStation("m_zdr_canCentered", &Status::m_zdr_canCentered),
        cappingStation("m_zdr_plasticPlugReserve", &Status::m_zdr_plasticPlugReserve),
        cappingStation("m_zdr_plasticPlugNotMounted", &Status::m_zdr_plasticPlugNotMounted),
        cappingStation("m_zdr_homePosition", &Status::m_zdr_homePosition),
        {"machine_turned_off", &Status::machine_turned_off, nullptr, nullptr, quv::Write},
        {"machine_unlocked", &Status::machine_unlocked, nullptr, nullptr, quv::Write},
    };
}

const quv::Record<Status> &ownRecord()
{
    static const quv::Record<Status> record(ownRows());
    return record;
}

/** The machine's members and the dispenser's: the whole struct, for writing. */
const quv::Record<Status> &wholeRecord()
{
    static const quv::Record<Status> record(quv::joinedRows(quv::machineStatusRecord(), ownRecord()));
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
    quv::applyWords<bits>(masks.data(), decoded, *this);
    return refusal;
}

bool DispenserStatusAnswer::acceptCommands() const
{
    return !board_not_initialized && !dispenser_not_ready && !emergency_pressed && !offline_pressed;
}

QList<QPair<QString, bool>> DispenserStatusAnswer::getStatusDescriptions(const FW_Machine *machine) const
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    QList<QPair<QString, bool>> descriptions = getMachineStatusDescriptions(SerialDeviceType::Dispenser);
    quv::describeConditions(conditionsBeforeHeads, *this, true, descriptions);
    if (dispenser && !dispenser->hasMultipleHead())
        quv::describeConditions(onlyHeadCondition, *this, true, descriptions);
    else
        quv::describeConditions(headConditions, *this, true, descriptions);
    quv::describeConditions(conditionsAfterHeads, *this, true, descriptions);
    return descriptions;
}

bool DispenserStatusAnswer::hasBadWorkingState() const
{
    const auto descriptions = getStatusDescriptions(nullptr);
    return std::any_of(descriptions.begin(), descriptions.end(),
                       [](const auto &entry) { return entry.second; });
}

QString DispenserStatusAnswer::getFirstBadWorkingState() const
{
    const auto descriptions = getStatusDescriptions(nullptr);
    const auto bad = std::find_if(descriptions.begin(), descriptions.end(),
                                  [](const auto &entry) { return entry.second; });
    return bad == descriptions.end() ? QString() : bad->first;
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
        quv::describeChanges(changes, *before, *after, true, descriptions);
    return descriptions;
}

bool DispenserStatusAnswer::isMachineMovementsMaskSupported(const FW_Version &version)
{
    return quv::passesGate(machineMovementsMask, version);
}

bool DispenserStatusAnswer::isHeadCanDoseStatusSupported(const FW_Version &version)
{
    return quv::passesGate(headCanDoseStatus, version);
}
