// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/canisterformulaitem.h>
#include <QuvFramework/circuitformulaitem.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <xmlrpcpp/XmlRpcValue.h>

class FW_DriverError;
class FW_Dispenser;

/** One line of a formula: what, and how much of it. */
struct QUVFRAMEWORK_EXPORT FormulaItem
{
    QString id; ///< by the formula's type: position, circuit or canister in decimal, or a colorant's code
    double quantity = 0;   ///< by the formula's unit: steps, strokes, grams or millilitres
    int queueID = 0;       ///< 0: the circuit's own queue
    int nozzleValveID = 0; ///< 0: by the circuit's calibration
    int speed = 0;         ///< 0: by the circuit's calibration, or as great as its motor may

    bool operator==(const FormulaItem &other) const;
    bool operator!=(const FormulaItem &other) const { return !(*this == other); }
};

/**
 * What a dispenser is to pour. Over XML-RPC a struct, its members below; one item stands at the same index in all arrays.
 *
 * | Member | Type | |
 * |---|---|---|
 * | "formula_type" | int | Type: what the items name |
 * | "quantity_unit" | int | QuantityUnit |
 * | "ids" | array of string (or int) | the items |
 * | "quantities" | array of double (or int) | finite numbers |
 * | "queue_ids", "nozzle_valves", "speeds" | array of int | left out when all are 0 |
 * | "exec_criterion", "levels_policy", "decimals" | int | 0, 0 and 3 when left out |
 */
class QUVFRAMEWORK_EXPORT Formula
{
public:
    enum Type { CircuitPositions = 1, CircuitIDs = 2, CanisterIDs = 3, ColorantCodes = 4 };
    /** The machine's own unit is its weight or volume. */
    enum QuantityUnit { MachineUnit = 0, Steps = 1, Strokes = 2, WeightOrVolume = 3 };
    /** Bits of the levels policy; a check refuses what the canisters do not hold. */
    enum LevelsPolicy { CheckLevels = 2 };
    /** The worst that a change of levels does to a canister. */
    enum LevelsResult {
        LevelsGood = 0,
        BelowWarning = 100,
        BelowReserve = 200,
        BelowZero = 300,
        AboveMaximum = 400
    };

    static constexpr char FORMULA_TYPE[] = "formula_type";
    static constexpr char QUANTITY_UNIT[] = "quantity_unit";
    static constexpr char IDS[] = "ids";
    static constexpr char QUANTITIES[] = "quantities";
    static constexpr char QUEUE_IDS[] = "queue_ids";
    static constexpr char NOZZLE_VALVES[] = "nozzle_valves";
    static constexpr char SPEEDS[] = "speeds";
    static constexpr char EXEC_CRITERION[] = "exec_criterion";
    static constexpr char LEVELS_POLICY[] = "levels_policy";
    static constexpr char DECIMALS[] = "decimals";

    /** No items, circuit positions, in weight or volume. */
    Formula() = default;
    /**
     * Items from lists of one length; \a queueIDs and \a nozzleValves may also be empty. Quantities are numbers, whole ones
     * up to 2^53. \throws std::invalid_argument for anything else, and for a type, unit, criterion or number of decimals
     * that there is not
     */
    Formula(QList<QString> &ids, QList<QVariant> &quantities, QList<int> &queueIDs, int formulaType,
            int quantityUnit, int executionCriterion, int decimals, int levelsPolicy,
            QList<int> nozzleValves);
    /**
     * \throws std::invalid_argument when the value is no formula. There is no code to it: whoever expected a formula says
     * so in words of his own.
     */
    explicit Formula(const XmlRpc::XmlRpcValue &value);
    explicit Formula(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit Formula(int) = delete;
    explicit Formula(double) = delete;
    explicit Formula(const char *) = delete;

    void setDefaults() { *this = Formula(); }

    int formulaType() const { return m_type; }
    void setFormulaType(int type) { m_type = type; }
    int quantityUnit() const { return m_quantityUnit; }
    void setQuantityUnit(int unit) { m_quantityUnit = unit; }
    /** 0 not set, 1 without queues, 2 queued, 8 and 16 as the firmware means them. */
    int executionCriterion() const { return m_executionCriterion; }
    void setExecutionCriterion(int criterion) { m_executionCriterion = criterion; }
    int levelsManagementPolicy() const { return m_levelsPolicy; } ///< LevelsPolicy bits
    void setLevelsManagementPolicy(int policy) { m_levelsPolicy = policy; }
    int decimals() const { return m_decimals; } ///< with which a weight or volume is printed
    void setDecimals(int decimals) { m_decimals = decimals; }

    const QVector<FormulaItem> &items() const { return m_items; }
    void setItems(const QVector<FormulaItem> &items) { m_items = items; }
    void addItem(const FormulaItem &item) { m_items.append(item); }
    /** Of a formula by circuit positions: the circuit's strokes, or of one in steps its steps, at the item's speed. */
    void addCircuit(const CircuitFormulaItem &item);
    bool isEmpty() const { return m_items.isEmpty(); }

    static bool checkFormulaType(int type);             ///< 1 to 4
    static bool checkQuantityUnit(int unit);            ///< 0 to 3
    static bool checkExecutionCriterion(int criterion); ///< 0, 1, 2, 8 or 16
    /** The criterion in a firmware's report, which marks a purge with bit value 64. */
    static int convertExecutionCriterionFromFw(int criterion);

    bool hasNegativeValues(const FW_Dispenser *dispenser = nullptr) const;
    bool hasNullValues() const; ///< true when a quantity is 0

    // The next operations read the formula by a machine. \a error, when given, is filled by a failure: DE03020 no dispenser,
    // DE03021 an item that the dispenser does not have, DE03022 one that is disabled, DE03023 a quantity without a usable
    // calibration. A canister pours through its first enabled circuit; a colorant comes from the first enabled canister
    // that holds enough of it, or else from the first enabled one. What names one circuit or canister twice is added up.

    /** Makes this the formula of what the canisters lose: canister IDs and negative weights or volumes. */
    bool convertToNegativeQuantities(const FW_Dispenser *dispenser, FW_DriverError *error);
    bool convertToNegativeQuantities(const FW_Dispenser *dispenser, FW_DriverError &error);
    /**
     * Weighs the quantities as changes of the canisters' levels, or with \a delta false as new levels. \a result, when given,
     * becomes the worst LevelsResult of all canisters. False when the formula does not fit the dispenser.
     */
    bool checkDispenserLevels(const FW_Dispenser *dispenser, int *result, bool delta) const;
    /** The circuits in the formula's order. A number that a circuit cannot give is told by its item, not by a failure. */
    bool getCircuitFormulaItems(CircuitFormulaItemList &items, const FW_Dispenser *dispenser,
                                FW_DriverError *error) const;
    bool getCircuitFormulaItems(CircuitFormulaItemList &items, const FW_Dispenser *dispenser,
                                FW_DriverError &error) const;
    /** The circuits in the order in which a turntable that stands at \a position reaches them, the nearest one next. */
    bool getCircuitFormulaItems(CircuitFormulaItemList &items, int position, const FW_Dispenser *dispenser,
                                FW_DriverError *error) const;
    /** The same pour by circuit positions, in the same unit, each circuit once. */
    bool convertToCircuitPositions(Formula &converted, const FW_Dispenser *dispenser,
                                   FW_DriverError *error) const;
    bool getCanisterItems(CanisterFormulaItemList *items, const FW_Dispenser *dispenser,
                          FW_DriverError *error) const;

    /**
     * One line: "B 12.500, KX 0.300"; not \a brief with type and unit: "colorants: B 12.500, KX 0.300 (weight or volume)".
     * With a dispenser the circuits and their steps follow: "...: circuit 2 1250 steps, circuit 5 30 steps".
     */
    QString toPrintableString(bool brief, const FW_Dispenser *dispenser) const;
    /** The same in a turntable's order. */
    QString toPrintableString(bool brief, int position, const FW_Dispenser *dispenser) const;
    QString formulaTypeStr() const; ///< "circuit positions", "circuits", "canisters", "colorants"

    XmlRpc::XmlRpcValue toXmlRpcValue(bool *ok = nullptr) const;

    bool operator==(const Formula &other) const;
    bool operator!=(const Formula &other) const { return !(*this == other); }

private:
    void checkMembers() const;

    int m_type = CircuitPositions;
    int m_quantityUnit = WeightOrVolume;
    int m_executionCriterion = 0;
    int m_levelsPolicy = 0;
    int m_decimals = 3;
    QVector<FormulaItem> m_items;
};

Q_DECLARE_METATYPE(Formula)
