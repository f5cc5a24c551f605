// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotoanswer.h"
#include "machinestatusanswer.h"

#include <QtCore/QMetaType>

namespace quv {
struct MemberFacts;
struct Refusal;
} // namespace quv

/**
 * The status of a can mixer, the answer to MIXER_STATUS: what the mixer is doing right now, and how far its cycle is. Over the
 * serial link it is six masks of seven bits and five numbers, always all of them; over XML-RPC one flat struct.
 */
class QUVPROTOCOL_EXPORT MixerStatusAnswer : public MachineStatusAnswer, public SerialProtoAnswer
{
public:
    MixerStatusAnswer();                              ///< cleared
    explicit MixerStatusAnswer(QList<QVariant> list); ///< cleared; the list is not read
    /** Throws what MachineStatusAnswer throws, DE00026 without a flag of the mixer, DE02667 without a number. */
    explicit MixerStatusAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Tokens of the firmware: length, one that is not read, status, masks 1 to 6, cycle, time left (two digits), speed, force,
     * height (two digits, the second of which may be missing). Throws what MachineStatusAnswer and SerialProtoAnswer throw,
     * and what decodeSerialStatus tells.
     */
    explicit MixerStatusAnswer(QStringList tokens);

    MixerStatusAnswer *clone() const override;
    /** Fails with DE02673 (fewer than 12 tokens) or the code of the mask that is not hexadecimal. */
    bool decodeSerialStatus(QStringList tokens, FW_DriverError *error) override;
    /** False while the board is not initialised, the machine not ready, or emergency or offline pressed. */
    bool acceptCommands() const override;
    QList<QPair<QString, bool>> getStatusDescriptions(const FW_Machine *machine) const override;
    bool hasBadWorkingState() const override;
    QString getFirstBadWorkingState() const override;

    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    bool operator==(const MixerStatusAnswer &other) const;
    bool operator!=(const MixerStatusAnswer &other) const { return !(*this == other); }

    void clear(bool all); ///< the mixer's own fields; the machine's as well with \a all

    /** What is left of the cycle in \a unit: 1 (and any other) as it is stored, in seconds; 2 whole minutes; 3 whole hours. */
    int timeleft(int unit) const;

    /** What has changed of the machine from the older status to the newer one; nothing when one of them is null. */
    static QList<QString> getNewStatesDescriptions(const MixerStatusAnswer *before,
                                                   const MixerStatusAnswer *after);

    static QList<quv::MemberFacts> memberFacts();

    bool repositioning = false;
    bool clamping = false;
    bool mixing = false;
    bool cycle_active = false;
    bool plates_part_opened = false;
    bool not_locked_ver = false;
    bool ready_next_cycle = false;
    bool cycle_on_hold = false;
    bool intput_power_abs = false; ///< spelt as on the wire
    bool lower_plate_extracted = false;
    bool door_partially_opened = false;
    bool can_in_plates = false;
    bool door_opening = false;
    bool door_closing = false;
    bool door_reset = false;
    bool cycle_interrupted = false;
    bool door_locked = false;
    bool config_changed = false;
    bool need_repositioning = false;
    bool door_unlocked = false;
    int cycle_id = 0;
    int m_timeleft = 0; ///< seconds; "timeleft" in the struct
    int mixing_speed = 0;
    int clamping_force = 0;
    int clamping_height = 0;

private:
    /** Reads the words from \a first on; null, or why not. */
    const quv::Refusal *decodeWords(const QStringList &tokens, int first);
};

Q_DECLARE_METATYPE(MixerStatusAnswer)
