// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_circuit.h>

#include <QtCore/QVector>

class FW_Dispenser;

/** What a formula asks of one circuit, in the numbers that its motor understands. */
class QUVFRAMEWORK_EXPORT CircuitFormulaItem : public FW_Circuit
{
public:
    /** A number that may be out of reach: not calculated, it is 0 and not ok. */
    template <class Number>
    struct Result
    {
        Number value = 0;
        bool ok = false;
    };

    CircuitFormulaItem() = default;
    explicit CircuitFormulaItem(const FW_Circuit &circuit) : FW_Circuit(circuit) {}
    /** So many strokes at a speed. */
    CircuitFormulaItem(const FW_Circuit &circuit, int strokes, int speed)
        : FW_Circuit(circuit),
          m_strokes{strokes, true},
          m_speed{speed, true}
    {}

    // \a ok, when given, tells whether the number could be calculated.
    long long steps(bool *ok = nullptr) const { return told(m_steps, ok); }
    int strokes(bool *ok = nullptr) const { return told(m_strokes, ok); }
    int speed(bool *ok = nullptr) const { return told(m_speed, ok); }                 ///< turns per minute
    int nozzleValveID(bool *ok = nullptr) const { return told(m_nozzleValveID, ok); } ///< 0 for none
    /** The queue in which this formula pours the circuit, which may be another than the circuit's own; 0 for none. */
    int queueID() const { return m_queueID; }
    /** What the canister holds, in steps of this circuit; 0 when it cannot be calculated. */
    int currentCheckLevelSteps() const { return m_currentCheckLevelSteps; }

    void setSteps(Result<long long> steps) { m_steps = steps; }
    void setStrokes(Result<int> strokes) { m_strokes = strokes; }
    void setSpeed(Result<int> speed) { m_speed = speed; }
    void setNozzleValveID(Result<int> valve) { m_nozzleValveID = valve; }
    void setQueueID(int queue) { m_queueID = queue; }
    void setCurrentCheckLevelSteps(int steps) { m_currentCheckLevelSteps = steps; }

    /** Milliseconds that the motor turns; \a ok is false without steps, speed or the motor's resolution, and beyond 10^12. */
    long long dosingTime(bool *ok = nullptr) const;

private:
    template <class Number>
    static Number told(const Result<Number> &result, bool *ok)
    {
        if (ok)
            *ok = result.ok;
        return result.value;
    }

    Result<long long> m_steps;
    Result<int> m_strokes;
    Result<int> m_speed;
    Result<int> m_nozzleValveID;
    int m_queueID = 0;
    int m_currentCheckLevelSteps = 0;
};

/** The circuits of a formula, each once, in the order in which they are sent. */
class QUVFRAMEWORK_EXPORT CircuitFormulaItemList : public QVector<CircuitFormulaItem>
{
public:
    using QVector<CircuitFormulaItem>::QVector;

    /** How many of the circuits pour at once; 1 at least. */
    int parallelism() const { return m_parallelism; }
    void setParallelism(int circuits) { m_parallelism = circuits; }

    bool hasNullQueueID() const; ///< true when an item has no queue

    /**
     * Milliseconds to pour all items: as many at once as the machine can, each begun in the list's order as soon as one of
     * those ends; items of one queue wait for each other. False, and \a time as it was, when a time cannot be calculated.
     */
    bool getEstimatedDosingTime(long long &time) const;
    /**
     * The same on a rotating machine whose table stands with \a position at the dosing point: one circuit after the other
     * in the list's order, and the way of the table between them.
     */
    bool getEstimatedDosingTime(int position, const FW_Dispenser *dispenser, long long &time) const;

private:
    int m_parallelism = 1;
};
