// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <xmlrpcpp/XmlRpcValue.h>

/** What one circuit is to do in a priming, a pack or an air purge. Over XML-RPC a struct of four ints. */
struct QUVPROTOCOL_EXPORT PCircuit
{
    static constexpr char positionID_TAG[] = "position_id";
    static constexpr char queueID_TAG[] = "queue_id";
    static constexpr char speed_TAG[] = "speed";
    static constexpr char strokes_TAG[] = "strokes";

    PCircuit() = default;
    PCircuit(int position, int queue, int speedValue, int strokeCount)
        : positionID(position),
          queueID(queue),
          speed(speedValue),
          strokes(strokeCount)
    {}
    /** Throws DE02317 when a member is missing or no int. */
    explicit PCircuit(const XmlRpc::XmlRpcValue &value);
    explicit PCircuit(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit PCircuit(int) = delete;
    explicit PCircuit(double) = delete;
    explicit PCircuit(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const PCircuit &other) const;
    bool operator!=(const PCircuit &other) const { return !(*this == other); }

    int positionID = 0;
    int queueID = 0; ///< circuits of one queue run one after the other; 0 for none
    int speed = 0;   ///< turns per minute
    int strokes = 0; ///< of the pump; 0 for none
};
