// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_statistics.h>

#include <QtCore/QList>

/**
 * ADD_EVENT: adds what happened to a machine to the driver's statistics, events or refills. Over XML-RPC its one argument is a struct
 * with the type and an array of the records; in a list the two stand one behind the other.
 */
class QUVPROTOCOL_EXPORT AddEventCmd : public quv::DescribedCommand<AddEventCmd, ConfProtoCommand>
{
public:
    struct Description;

    /** What the records are. */
    enum EventType : int { Events = 0, Refills = 1 };

    static constexpr char eventType_TAG[] = "event_type";
    static constexpr char statEvents_TAG[] = "stat_events";

    AddEventCmd() = default; ///< no events
    explicit AddEventCmd(const QList<EventStatData> &events);
    explicit AddEventCmd(const QList<RefillStatData> &refills);
    /**
     * Throws DE02478 (no struct), DE02474 (no type, or one that there is not), DE02475 (no array of records) and DE02476 (an element
     * that is no record of the type).
     */
    explicit AddEventCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * The type, and the records as a QList of them or as a list of variants of which each is one, or the map that stands for it.
     * Throws DE02479 (no type, or one that there is not) and DE02477 (anything else in place of the records).
     */
    explicit AddEventCmd(QList<QVariant> list);
    explicit AddEventCmd(int) = delete; // would be an XML-RPC value

    AddEventCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    EventType eventType() const { return static_cast<EventType>(m_eventType); }
    const QList<EventStatData> &events() const { return m_events; }    ///< none in a command of refills
    const QList<RefillStatData> &refills() const { return m_refills; } ///< none in a command of events

private:
    int m_eventType = Events;
    QList<EventStatData> m_events;
    QList<RefillStatData> m_refills;
};
