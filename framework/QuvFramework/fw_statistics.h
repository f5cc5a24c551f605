// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QDateTime>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

#include <optional>

// The records of a driver's statistics. Over XML-RPC each is a struct of its members, which stand in the order of its fields; a time is
// a text in ISO 8601, in UTC and with milliseconds, and an empty one when nobody knows it. Each travels in a QVariant under its
// name, also as the map that its struct is, and so does a QList of them.
//
// The constructors from XML-RPC throw std::invalid_argument for a member that is missing or of another type. There is no code to it:
// whoever expected the record says so in words of his own.

/** Something that happened to a machine. What the codes mean is for the driver to know. */
struct QUVFRAMEWORK_EXPORT EventStatData
{
    static constexpr char TIMESTAMP[] = "timestamp";
    static constexpr char EVENT_CODE[] = "event_code";
    static constexpr char POSITION_ID[] = "position_id";
    static constexpr char VALUE[] = "value"; ///< double

    EventStatData() = default;
    EventStatData(const QDateTime &time, int code, int position, double amount);
    explicit EventStatData(const XmlRpc::XmlRpcValue &encoded);
    explicit EventStatData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit EventStatData(int) = delete;
    explicit EventStatData(double) = delete;
    explicit EventStatData(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const EventStatData &other) const;
    bool operator!=(const EventStatData &other) const { return !(*this == other); }

    QDateTime timestamp;
    int eventCode = 0;
    int positionID = 0; ///< the circuit's, or 0 for the whole machine
    double value = 0;   ///< what was counted or measured with it
};

/** A canister that was filled: what it held before and after, in grams or millilitres. */
struct QUVFRAMEWORK_EXPORT RefillStatData
{
    static constexpr char TIMESTAMP[] = "timestamp";
    static constexpr char CANISTER_ID[] = "canister_id";
    static constexpr char COLORANT_CODE[] = "colorant_code";
    static constexpr char PREVIOUS_QUANTITY[] = "previous_quantity";
    static constexpr char CURRENT_QUANTITY[] = "current_quantity";

    RefillStatData() = default;
    RefillStatData(const QDateTime &time, int canister, const QString &colorant, double before, double after);
    explicit RefillStatData(const XmlRpc::XmlRpcValue &encoded);
    explicit RefillStatData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit RefillStatData(int) = delete;
    explicit RefillStatData(double) = delete;
    explicit RefillStatData(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const RefillStatData &other) const;
    bool operator!=(const RefillStatData &other) const { return !(*this == other); }

    QDateTime timestamp;
    int canisterID = 0;
    QString colorantCode;
    double previousQuantity = 0;
    double currentQuantity = 0;
};

/**
 * How much of a colorant a machine used in a time, in grams or millilitres. Nobody need know all of it: only what is known is
 * written, and what is missing from a struct stays unknown. The members' names are what can be asked for.
 */
struct QUVFRAMEWORK_EXPORT ColorantUsageStatData
{
    static constexpr char COLORANT_CODE[] = "colorant_code";
    static constexpr char FROM[] = "from";
    static constexpr char TO[] = "to";
    static constexpr char DISPENSED[] = "dispensed"; ///< double, as are the next two
    static constexpr char PURGED[] = "purged";
    static constexpr char REFILLED[] = "refilled";
    static constexpr char DISPENSATIONS[] = "dispensations";

    ColorantUsageStatData() = default;
    explicit ColorantUsageStatData(
        const XmlRpc::XmlRpcValue &encoded);       ///< any struct without a member of another type
    explicit ColorantUsageStatData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ColorantUsageStatData(int) = delete;
    explicit ColorantUsageStatData(double) = delete;
    explicit ColorantUsageStatData(const char *) = delete;

    /** What is known of the \a information that was asked for, which are names of members; of all when nothing was named. */
    XmlRpc::XmlRpcValue toXmlRpcValue(const QStringList &information = {}) const;

    bool operator==(const ColorantUsageStatData &other) const;
    bool operator!=(const ColorantUsageStatData &other) const { return !(*this == other); }

    std::optional<QString> colorantCode;
    std::optional<QDateTime> from; ///< when the time began that is told of
    std::optional<QDateTime> to;
    std::optional<double> dispensed;
    std::optional<double> purged;
    std::optional<double> refilled;
    std::optional<int> dispensations; ///< in how many pours
};

/** An error of a machine's history. */
struct QUVFRAMEWORK_EXPORT DispError
{
    static constexpr char TIMESTAMP[] = "timestamp";
    static constexpr char ERROR_TYPE[] = "error_type";
    static constexpr char POSITION_ID[] = "position_id";
    static constexpr char ERROR_CODE[] = "error_code";
    static constexpr char DESCRIPTION[] = "description";

    DispError() = default;
    DispError(const QDateTime &time, int type, int position, const QString &code, const QString &text);
    explicit DispError(const XmlRpc::XmlRpcValue &encoded);
    explicit DispError(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit DispError(int) = delete;
    explicit DispError(double) = delete;
    explicit DispError(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const DispError &other) const;
    bool operator!=(const DispError &other) const { return !(*this == other); }

    QDateTime timestamp;
    int errorType = 0;   ///< FW_Error::Type
    int positionID = 0;  ///< the circuit's, or 0 for the whole machine
    QString errorCode;   ///< DE and digits of the driver, or the firmware's number
    QString description; ///< for people, in English
};

/** How often the ultrasound cleaning had run at a time, as when its water was changed. */
struct QUVFRAMEWORK_EXPORT WaterChangeStatData
{
    static constexpr char TIMESTAMP[] = "timestamp";
    static constexpr char CLEANING_CYCLES[] = "cleaning_cycles";

    WaterChangeStatData() = default;
    WaterChangeStatData(const QDateTime &time, int cycles);
    explicit WaterChangeStatData(const XmlRpc::XmlRpcValue &encoded);
    explicit WaterChangeStatData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit WaterChangeStatData(int) = delete;
    explicit WaterChangeStatData(double) = delete;
    explicit WaterChangeStatData(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const WaterChangeStatData &other) const;
    bool operator!=(const WaterChangeStatData &other) const { return !(*this == other); }

    QDateTime timestamp;
    int cleaningCycles = 0; ///< since the machine was new
};

Q_DECLARE_METATYPE(EventStatData)
Q_DECLARE_METATYPE(RefillStatData)
Q_DECLARE_METATYPE(ColorantUsageStatData)
Q_DECLARE_METATYPE(DispError)
Q_DECLARE_METATYPE(WaterChangeStatData)
