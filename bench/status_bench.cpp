// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ratios.h"
#include "status/dispenserstatusanswer.h"
#include "status/mixerstatusanswer.h"
#include "status/sensorsstatusanswer.h"
#include "suites.h"

#include <QtCore/QStringList>

namespace {

using XmlRpc::XmlRpcValue;

QStringList tokensOf(const char *tokens)
{
    return QString::fromLatin1(tokens).split(QLatin1Char(' '));
}

/** Sensors in every mask. */
constexpr char sensorTokens[] = "B 41 10 8 20 12 41 7 30 8 55 8";

/** The numbers from \a first on. */
unsigned sumOfWords(const QStringList &list, int first)
{
    unsigned sum = 0;
    bool ok = false;
    for (int i = first; i < list.size(); ++i)
        sum += list.at(i).toUInt(&ok, 16);
    return sum;
}

/** The names of a struct's members, by their type, for those who build and read it by hand. */
struct Names
{
    explicit Names(const XmlRpcValue &value)
    {
        for (const auto &[name, member] : value)
            (member.getType() == XmlRpcValue::TypeBoolean ? flags : ints).push_back(name);
    }

    std::vector<std::string> flags;
    std::vector<std::string> ints;
};

XmlRpcValue structByHand(const Names &names)
{
    XmlRpcValue value;
    for (const std::string &name : names.flags)
        value[name] = true;
    for (const std::string &name : names.ints)
        value[name] = 1;
    return value;
}

int readByHand(const XmlRpcValue &value, const Names &names)
{
    int sum = 0;
    for (const std::string &name : names.flags) {
        if (value.hasMember(name))
            sum += static_cast<const bool &>(value[name]) ? 1 : 0;
    }
    for (const std::string &name : names.ints) {
        if (value.hasMember(name))
            sum += static_cast<const int &>(value[name]);
    }
    return sum;
}

/** A status from its tokens, to its struct and from it. */
template <class Answer>
void addRatiosOf(const std::string &name, const std::string &fromTokens, const QStringList &tokens)
{
    quv::addRatio(name + fromTokens, 1.3, quv::repeat([tokens] { return Answer(tokens); }),
                  quv::repeat([tokens] { return sumOfWords(tokens, 3); }));

    const Answer answer(tokens);
    const XmlRpcValue value = answer.toXmlRpcValue();
    const Names names(value);
    quv::addRatio(name + ": to its struct", 1.0, quv::repeat([answer] { return answer.toXmlRpcValue(); }),
                  quv::repeat([names] { return structByHand(names); }));
    quv::addRatio(name + ": from its struct", 0.4, quv::repeat([value] { return Answer(value); }),
                  quv::repeat([value, names] { return readByHand(value, names); }));
}

} // namespace

void quv::addStatusRatios()
{
    addRatio("sensors: 10 masks from tokens", 1.5,
             repeat([list = tokensOf(sensorTokens)] { return SensorsStatusAnswer(list); }),
             repeat([list = tokensOf(sensorTokens)] { return sumOfWords(list, 0); }));
    // a dispenser in the middle of its work: flags in every word, a position and a zone
    addRatiosOf<DispenserStatusAnswer>("status", ": 12 words from tokens",
                                       tokensOf("E 0 1 4 1 0 8 4 5 2 6 3 10 0 8"));
    // a mixer in its second cycle, with five minutes to go
    addRatiosOf<MixerStatusAnswer>("mixer status", ": 13 words from tokens",
                                   tokensOf("F 0 1 14 1 0 8 21 8 2 36 1 28 A 36 1"));
}
