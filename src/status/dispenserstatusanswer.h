// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotoanswer.h"
#include "machinestatusanswer.h"

#include <QtCore/QMetaType>

struct FW_Version;

namespace quv {
struct MemberFacts;
struct Refusal;
} // namespace quv

/**
 * The status of a dispenser, the answer to GET_STATUS: what the machine is doing right now. Over the serial link it is a
 * list of masks of seven bits each, over XML-RPC one flat struct of flags and three ints.
 */
class QUVPROTOCOL_EXPORT DispenserStatusAnswer : public MachineStatusAnswer, public SerialProtoAnswer
{
public:
    DispenserStatusAnswer();                              ///< cleared
    explicit DispenserStatusAnswer(QList<QVariant> list); ///< cleared; the list is not read
    /** Throws what MachineStatusAnswer throws, and DE00026 without a flag of the dispenser that every firmware tells. */
    explicit DispenserStatusAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Tokens of the firmware: length, one that is not read, status, masks 1 to 4; then, as far as the firmware sends them,
     * mask 5, position, zone, masks 8 to 12. What is missing stays cleared. Throws what MachineStatusAnswer and
     * SerialProtoAnswer throw, and what decodeSerialStatus tells.
     */
    explicit DispenserStatusAnswer(QStringList tokens);

    DispenserStatusAnswer *clone() const override;
    /** Fails with DE02666 (fewer than four masks) or the code of the mask that is not hexadecimal. */
    bool decodeSerialStatus(QStringList tokens, FW_DriverError *error) override;
    /** False while the board is not initialised, the machine not ready, or emergency or offline pressed. */
    bool acceptCommands() const override;
    QList<QPair<QString, bool>> getStatusDescriptions(const FW_Machine *machine) const override;
    bool hasBadWorkingState() const override;
    QString getFirstBadWorkingState() const override;

    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    /** Compares all but pumping, which comes and goes during a single dispensing. */
    bool operator==(const DispenserStatusAnswer &other) const;
    bool operator!=(const DispenserStatusAnswer &other) const { return !(*this == other); }

    void clear(bool all);      ///< the dispenser's own fields; the machine's as well with \a all
    int getStallLevel() const; ///< 0 none, 1 low, 2 high, 3 both

    /** What has changed from the older status to the newer one; nothing when one of them is null. */
    static QList<QString> getNewStatesDescriptions(const DispenserStatusAnswer *before,
                                                   const DispenserStatusAnswer *after);

    static QList<quv::MemberFacts> memberFacts();

    // For a driver that wants to rely on bits which older firmware leaves at 0.
    static bool isMachineMovementsMaskSupported(const FW_Version &version);
    static bool isHeadCanDoseStatusSupported(const FW_Version &version);

    bool tinting = false;
    bool recirculating = false;
    bool stirring = false;
    bool valve_on = false;
    bool cap_open = false;
    bool bellow_up = false;
    bool no_24_voltage = false;
    bool no_48_voltage = false;
    bool punching = false;
    bool slave_scan = false;
    bool post_erogation = false;
    bool turntable_moving = false;
    bool cleaning = false;
    bool formula_interrupted = false;
    bool nozzle_valve_working_pos = false;
    bool circuit_fin_presence = false;
    bool airpurge = false;
    bool head1_can_dose = false;
    bool head2_can_dose = false;
    bool predispensing = false;
    bool pumping = false;
    bool nozzle_moving = false;
    bool nozzle_valve_open_accurate = false;
    bool canister_lvl_critical = false;
    bool new_cleaning_stats = false;
    bool stall_low = false;
    bool stall_high = false;
    bool check_level_in_progress = false;
    bool speed_red_in_recirc = false;
    bool plc_start_activated = false;
    bool plc_stop_activated = false;
    bool m_zdr_mixingInProgress = false;
    bool m_zdr_openingPlatesInProgress = false;
    bool m_zdr_closingPlatesInProgress = false;
    bool m_zdr_pluggingInProgress = false;
    bool m_zdr_canCentered = false;
    bool m_zdr_plasticPlugReserve = false;
    bool m_zdr_plasticPlugNotMounted = false;
    bool m_zdr_homePosition = false;
    int current_position_id = 0;      ///< 0: no position
    int current_position_id_zone = 0; ///< 0: no zone

private:
    /** Reads the words from \a first on; null, or why not. */
    const quv::Refusal *decodeWords(const QStringList &tokens, int first);
};

Q_DECLARE_METATYPE(DispenserStatusAnswer)
