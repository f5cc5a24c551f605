// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "stiritem.h"
#include "stirringcmd.h"

class FW_Dispenser;

/**
 * STIR_ALL: stirs many circuits. The firmware does not know it: a driver carries it out as the series of
 * getSingleStirringCommands, as many at once as the dispenser can stir.
 */
class QUVPROTOCOL_EXPORT StirAllCmd : public quv::DescribedCommand<StirAllCmd, SerialProtoCommand>
{
public:
    struct Description;

    static constexpr char ITEMS[] = "items";
    static constexpr char ITEMS_TYPE[] = "items_type";

    StirAllCmd() = default; ///< every circuit for its own activity

    // With a dispenser the items are checked, and a constructor throws what it says of checkStirItems.
    /** All circuits; each for its own activity when the duration is below 0. DE01920; also throws as StirItem. */
    StirAllCmd(qlonglong duration, bool sequential, uint interval, const FW_Dispenser *dispenser);
    /** Numbers or texts, all for the same duration. DE01918; also throws as StirItem. */
    StirAllCmd(const QList<QVariant> &items, int type, qlonglong duration, bool sequential, uint interval,
               const FW_Dispenser *dispenser);
    /** DE01917. */
    StirAllCmd(const QList<StirItem> &items, int type, bool sequential, uint interval,
               const FW_Dispenser *dispenser);
    /**
     * An array of StirItem, or a duration for all circuits (int; below 0 for their own activities); then the type of the
     * items (int), sequential (bool) and the interval (int, not below 0). All may be left out. DE01922; also throws DE01874
     * for a bad item, DE01875 for no items, DE01921 for no type, DE01878 and DE01879 for what has another type.
     */
    StirAllCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /**
     * The same as a list, but a duration below 0 is none, and the interval may be any UInt. DE01924; also throws DE01890 for
     * bad items, DE01885 for no type, DE01886, DE01887 and DE01889 for what has another type.
     */
    StirAllCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    StirAllCmd *clone() const override;

    /** That of the runs of the series on the machine, with the interval after each. Throws as getSingleStirringCommands. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;

    const QList<StirItem> &items() const { return m_items; } ///< none for every circuit's own activity
    int stirringItemType() const { return m_itemType; }      ///< StirItem::Type
    bool setStirringItemType(int type);                ///< false, and it stays, for a type that there is not
    static bool checkStirringItemType(int type);       ///< 0 to 4
    bool isSequential() const { return m_sequential; } ///< one after the other, whatever could run at once
    uint interval() const { return m_interval; }       ///< milliseconds after each run

    /**
     * Takes items for all that the dispenser has of what the type names: for the duration, or -1 for the activities of the
     * circuits. They are circuit positions, whatever the type. False, and the items as they were, without a dispenser, for a
     * type that there is not, and when a circuit without a motor is to stir for its activity. Throws DE01877 for a duration
     * that there is not.
     */
    bool buildStirItems(long long duration);
    /**
     * Circuit positions, each with its duration. False, and the items as they were, for lists of different lengths. Throws
     * DE01877 for a duration that there is not.
     */
    bool setStirItems(const QList<int> &positions, const QList<int> &durations);
    long long getFirstValidDurationInItems() const; ///< the first that is not negative; -1 for none
    bool hasValidDurationsInItems() const;          ///< whether there is one
    /** True when every item names circuits of the dispenser; no items, and the null item alone, name all. */
    bool checkStirItems(const FW_Dispenser &dispenser) const;

    /**
     * What is to be stirred, one command for each circuit, on the command's own dispenser; one for all where one motor stirs
     * all. Empty for items that the dispenser does not have. Throws DE01892 when nothing tells how long a circuit stirs.
     */
    QList<StirringCmd> getSingleStirringCommands() const;

private:
    bool isNullItemAlone() const { return m_items.size() == 1 && m_items.constFirst().isNullItem(); }
    const FW_Dispenser *dispenser() const;
    bool collectPositions(const FW_Dispenser &dispenser, QList<int> &positions, QList<int> &durations) const;
    void requireItems(const FW_Dispenser *dispenser, const char *code, const char *function) const;
    void readItems(const XmlRpc::XmlRpcValue &value, const char *function);
    void readItems(const QList<QVariant> &list, const char *function);

    QList<StirItem> m_items;
    int m_itemType = StirItem::CircuitPosition;
    bool m_sequential = true;
    uint m_interval = 500;
};
