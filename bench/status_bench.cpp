// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ratios.h"
#include "status/dispenserstatusanswer.h"
#include "status/sensorsstatusanswer.h"
#include "suites.h"

#include <QtCore/QStringList>

namespace {

using XmlRpc::XmlRpcValue;

/** A dispenser in the middle of its work: flags in every word, a position and a zone. */
QStringList tokens()
{
    return QString::fromLatin1("E 0 1 4 1 0 8 4 5 2 6 3 10 0 8").split(QLatin1Char(' '));
}

/** Sensors in every mask. */
QStringList sensorTokens()
{
    return QString::fromLatin1("B 41 10 8 20 12 41 7 30 8 55 8").split(QLatin1Char(' '));
}

/** The numbers from \a first on. */
unsigned sumOfWords(const QStringList &list, int first)
{
    unsigned sum = 0;
    bool ok = false;
    for (int i = first; i < list.size(); ++i)
        sum += list.at(i).toUInt(&ok, 16);
    return sum;
}

const std::vector<std::string> &flagNames()
{
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        const XmlRpcValue value = DispenserStatusAnswer().toXmlRpcValue();
        for (const auto &[name, member] : value) {
            if (member.getType() == XmlRpcValue::TypeBoolean)
                all.push_back(name);
        }
        return all;
    }();
    return names;
}

const std::vector<std::string> intNames = {"disp_status", "current_position_id", "current_position_id_zone"};

XmlRpcValue structByHand()
{
    XmlRpcValue value;
    for (const std::string &name : flagNames())
        value[name] = true;
    for (const std::string &name : intNames)
        value[name] = 1;
    return value;
}

int readByHand(const XmlRpcValue &value)
{
    int sum = 0;
    for (const std::string &name : flagNames()) {
        if (value.hasMember(name))
            sum += static_cast<const bool &>(value[name]) ? 1 : 0;
    }
    for (const std::string &name : intNames) {
        if (value.hasMember(name))
            sum += static_cast<const int &>(value[name]);
    }
    return sum;
}

} // namespace

void quv::addStatusRatios()
{
    addRatio("status: 12 words from tokens", 1.3,
             repeat([list = tokens()] { return DispenserStatusAnswer(list); }),
             repeat([list = tokens()] { return sumOfWords(list, 3); }));

    addRatio("sensors: 10 masks from tokens", 1.5,
             repeat([list = sensorTokens()] { return SensorsStatusAnswer(list); }),
             repeat([list = sensorTokens()] { return sumOfWords(list, 0); }));

    const DispenserStatusAnswer answer(tokens());
    addRatio("status: to its struct", 1.0, repeat([answer] { return answer.toXmlRpcValue(); }),
             repeat([] { return structByHand(); }));

    const XmlRpcValue value = answer.toXmlRpcValue();
    addRatio("status: from its struct", 0.4, repeat([value] { return DispenserStatusAnswer(value); }),
             repeat([value] { return readByHand(value); }));
}
