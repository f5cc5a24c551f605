// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/formulaprogress.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QtAlgorithms>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

using XmlRpc::XmlRpcValue;

const bool isRegistered = RegisterTravellingType<FormulaProgress>("FormulaProgress");

const XmlRpcValue &required(const XmlRpcValue &value, const char *key)
{
    const XmlRpcValue *member = FindXmlRpcMember(value, key);
    if (!member)
        throw std::invalid_argument("a member of the progress is missing");
    return *member;
}

int requiredInt(const XmlRpcValue &value, const char *key)
{
    int number = 0;
    if (!DecodeXmlRpcValue(required(value, key), number))
        throw std::invalid_argument("a member of the progress is no integer");
    return number;
}

} // namespace

FormulaChannel::FormulaChannel(int channelID, int percentage, int timeLeft, const Formula &formula)
    : m_channelID(channelID),
      m_percentage(percentage),
      m_timeLeft(timeLeft),
      m_formula(formula)
{}

FormulaChannel::FormulaChannel(const XmlRpcValue &value)
    : m_channelID(requiredInt(value, CHANNEL_ID)),
      m_percentage(requiredInt(value, PERCENTAGE)),
      m_timeLeft(requiredInt(value, TIME_LEFT)),
      m_formula(required(value, FORMULA))
{}

FormulaChannel *FormulaChannel::clone() const
{
    return new FormulaChannel(*this);
}

XmlRpcValue FormulaChannel::toXmlRpcValue() const
{
    XmlRpcValue value;
    value[CHANNEL_ID] = m_channelID;
    value[PERCENTAGE] = m_percentage;
    value[TIME_LEFT] = m_timeLeft;
    value[FORMULA] = m_formula.toXmlRpcValue();
    return value;
}

bool FormulaChannel::operator==(const FormulaChannel &other) const
{
    return m_channelID == other.m_channelID && m_percentage == other.m_percentage &&
           m_timeLeft == other.m_timeLeft && m_formula == other.m_formula;
}

FormulaProgress::FormulaProgress(const XmlRpcValue &value)
{
    const XmlRpcValue &array = required(value, CHANNELS);
    if (array.getType() != XmlRpcValue::TypeArray)
        throw std::invalid_argument("the channels of the progress are no array");
    std::vector<std::unique_ptr<FormulaChannel>> channels; // one of the next may be refused
    channels.reserve(static_cast<std::size_t>(array.size()));
    for (int i = 0; i < array.size(); ++i)
        channels.push_back(std::make_unique<FormulaChannel>(array[i]));
    for (auto &channel : channels)
        m_channels.append(channel.release());
}

FormulaProgress::FormulaProgress(const FormulaProgress &other)
{
    for (const FormulaChannel *channel : other.m_channels)
        m_channels.append(channel->clone());
}

FormulaProgress &FormulaProgress::operator=(const FormulaProgress &other)
{
    FormulaProgress copy(other);
    m_channels.swap(copy.m_channels);
    return *this;
}

FormulaProgress::~FormulaProgress()
{
    qDeleteAll(m_channels);
}

void FormulaProgress::setFormulaChannels(const QList<FormulaChannel *> &channels)
{
    QList<FormulaChannel *> former = channels;
    m_channels.swap(former);
    for (FormulaChannel *channel : former) {
        if (!m_channels.contains(channel))
            delete channel;
    }
}

XmlRpcValue FormulaProgress::toXmlRpcValue() const
{
    XmlRpcValue value;
    XmlRpcValue &array = value[CHANNELS];
    array.setSize(m_channels.size());
    for (int i = 0; i < m_channels.size(); ++i)
        array[i] = m_channels.at(i)->toXmlRpcValue();
    return value;
}

bool FormulaProgress::operator==(const FormulaProgress &other) const
{
    return std::equal(
        m_channels.cbegin(), m_channels.cend(), other.m_channels.cbegin(), other.m_channels.cend(),
        [](const FormulaChannel *left, const FormulaChannel *right) { return *left == *right; });
}
