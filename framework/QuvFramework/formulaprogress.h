// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/formula.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>

/** How far one channel of a machine, which is one head, is with its formula. */
class QUVFRAMEWORK_EXPORT FormulaChannel
{
public:
    static constexpr char CHANNEL_ID[] = "channel_id";
    static constexpr char PERCENTAGE[] = "percentage";
    static constexpr char TIME_LEFT[] = "time_left";
    static constexpr char FORMULA[] = "formula";

    FormulaChannel() = default;
    /** \a percentage 0 to 100, \a timeLeft in milliseconds. */
    FormulaChannel(int channelID, int percentage, int timeLeft, const Formula &formula);
    /** A struct with the four members above, all required. \throws std::invalid_argument for anything else */
    explicit FormulaChannel(const XmlRpc::XmlRpcValue &value);

    FormulaChannel *clone() const; ///< owned by the caller

    int channelID() const { return m_channelID; }
    int percentage() const { return m_percentage; }
    int timeLeft() const { return m_timeLeft; }
    const Formula &formula() const { return m_formula; }

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FormulaChannel &other) const;
    bool operator!=(const FormulaChannel &other) const { return !(*this == other); }

private:
    int m_channelID = 0;
    int m_percentage = 0;
    int m_timeLeft = 0;
    Formula m_formula;
};

/** How far a machine is with the formulas that it pours: one entry a channel, which it owns. */
class QUVFRAMEWORK_EXPORT FormulaProgress
{
public:
    static constexpr char CHANNELS[] = "channels";

    FormulaProgress() = default;
    /** A struct with "channels", an array of channels. \throws std::invalid_argument for anything else */
    explicit FormulaProgress(const XmlRpc::XmlRpcValue &value);
    FormulaProgress(const FormulaProgress &other); ///< deep
    FormulaProgress &operator=(const FormulaProgress &other);
    ~FormulaProgress();

    const QList<FormulaChannel *> &formulaChannels() const { return m_channels; }
    /** Takes over the channels, which must not be null, and deletes those that it had. */
    void setFormulaChannels(const QList<FormulaChannel *> &channels);

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FormulaProgress &other) const; ///< by content
    bool operator!=(const FormulaProgress &other) const { return !(*this == other); }

private:
    QList<FormulaChannel *> m_channels;
};

Q_DECLARE_METATYPE(FormulaProgress)
