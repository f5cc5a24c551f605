// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <type_traits>

class FW_Dispenser;

/**
 * What STIR_ALL is to stir, and for how long. The item is a number or a text; which part of the machine it names is told by
 * the type that stands beside all items of a command. Over XML-RPC a struct of "item" (int or string) and "duration" (int).
 */
class QUVPROTOCOL_EXPORT StirItem
{
public:
    static constexpr char ITEM[] = "item";
    static constexpr char DURATION[] = "duration";

    /** What items name: numbers, but for the code of a colorant, which is a text. */
    enum Type : int { CircuitPosition = 0, CircuitID, CanisterID, SystemColorantID, ColorantCode };

    /** The duration by which each circuit stirs for the activity of its motor. */
    static constexpr long long ownActivity = -1;

    StirItem() = default; ///< all circuits for 30 seconds
    /** All circuits. Throws DE01877 for a duration that there is not. */
    explicit StirItem(qlonglong duration);
    // a flag, a fraction or a text is no duration
    template <class T, std::enable_if_t<std::is_same_v<T, bool> || std::is_floating_point_v<T> ||
                                            std::is_same_v<T, const char *>,
                                        int> = 0>
    explicit StirItem(T) = delete;
    /** Throws DE01876 for an item, DE01877 for a duration that there is not. */
    StirItem(QVariant item, qlonglong duration);
    /**
     * Throws DE01880 for what is no struct, DE01882 and DE01881 for a missing item and one of another type, DE01916 for a
     * missing duration, DE01883 for one of another type and one that there is not.
     */
    explicit StirItem(const XmlRpc::XmlRpcValue &value);

    StirItem *clone() const; ///< owned by the caller
    XmlRpc::XmlRpcValue toXmlRpcValue(bool *ok = nullptr) const;

    const QVariant &item() const { return m_item; }
    bool setItem(QVariant item); ///< false, and the item as it was, for what is neither Int nor String
    bool isNullItem() const;     ///< the number 0, which stands for all circuits

    long long duration() const { return m_duration; } ///< seconds
    /** False, and the duration as it was, for what is neither ownActivity nor the duration of a stirring. */
    bool setDuration(long long duration);

    /** The duration, or in place of ownActivity that of the position's motor; ownActivity when there is none. */
    long long getStirringDuration(int position, const FW_Dispenser &dispenser) const;
    /**
     * The positions of the circuits that an item of the type names, and the duration for each. False, and both empty, for an
     * item that the dispenser does not have or has disabled, and for one of another kind than the type asks for.
     */
    bool convertItemToPositionsID(int type, const FW_Dispenser &dispenser, QList<int> &positions,
                                  QList<int> &durations) const;

    bool operator==(const StirItem &other) const;
    bool operator!=(const StirItem &other) const { return !(*this == other); }

private:
    QVariant m_item = 0;
    long long m_duration = 30;
};

Q_DECLARE_METATYPE(StirItem)
