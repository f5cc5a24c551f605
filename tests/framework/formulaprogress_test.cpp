// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/formulaprogress.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <memory>
#include <stdexcept>

namespace {

using values::arrayOf;
using values::structOf;
using values::XmlRpcValue;

Formula formula()
{
    Formula formula;
    formula.setItems({{"3", 12.5}});
    return formula;
}

XmlRpcValue channelValue()
{
    return structOf(
        {{"channel_id", 2}, {"percentage", 40}, {"time_left", 6000}, {"formula", formula().toXmlRpcValue()}});
}

FormulaProgress progressOf(std::initializer_list<FormulaChannel> channels)
{
    FormulaProgress progress;
    QList<FormulaChannel *> owned;
    for (const FormulaChannel &channel : channels)
        owned.append(channel.clone());
    progress.setFormulaChannels(owned);
    return progress;
}

template <class T>
bool isRefused(const XmlRpcValue &value)
{
    try {
        const T object(value);
    } catch (const std::invalid_argument &) {
        return true;
    }
    return false;
}

TEST(FormulaChannel, tellsHowFarItIs)
{
    const FormulaChannel channel(2, 40, 6000, formula());
    EXPECT_EQ(channel.channelID(), 2);
    EXPECT_EQ(channel.percentage(), 40);
    EXPECT_EQ(channel.timeLeft(), 6000);
    EXPECT_TRUE(channel.formula() == formula());
    const std::unique_ptr<FormulaChannel> copy(channel.clone());
    EXPECT_TRUE(*copy == channel);
}

TEST(FormulaChannel, anyChangeMakesItAnother)
{
    const FormulaChannel original(2, 40, 6000, formula());
    EXPECT_TRUE(original != FormulaChannel());
    EXPECT_TRUE(original != FormulaChannel(1, 40, 6000, formula()));
    EXPECT_TRUE(original != FormulaChannel(2, 41, 6000, formula()));
    EXPECT_TRUE(original != FormulaChannel(2, 40, 6001, formula()));
    EXPECT_TRUE(original != FormulaChannel(2, 40, 6000, Formula()));
    EXPECT_FALSE(original != FormulaChannel(2, 40, 6000, formula()));
}

TEST(FormulaChannel, isAStructOverXmlRpc)
{
    const FormulaChannel channel(2, 40, 6000, formula());
    EXPECT_TRUE(SameXmlRpcValue(channel.toXmlRpcValue(), channelValue()));
    EXPECT_TRUE(FormulaChannel(channelValue()) == channel);
    for (const char *key : {"channel_id", "percentage", "time_left", "formula"}) {
        XmlRpcValue value = channelValue();
        value[key] = "x";
        EXPECT_TRUE(isRefused<FormulaChannel>(value)) << key;
        XmlRpcValue cut;
        for (const auto &[name, member] : channelValue()) {
            if (name != key)
                cut[name] = member;
        }
        EXPECT_TRUE(isRefused<FormulaChannel>(cut)) << key;
    }
    EXPECT_TRUE(isRefused<FormulaChannel>(XmlRpcValue(5)));
    EXPECT_TRUE(isRefused<FormulaChannel>(XmlRpcValue()));
}

TEST(FormulaProgress, isAStructOverXmlRpc)
{
    const FormulaProgress progress = progressOf({FormulaChannel(2, 40, 6000, formula()), FormulaChannel()});
    const XmlRpcValue literal =
        structOf({{"channels", arrayOf({channelValue(), FormulaChannel().toXmlRpcValue()})}});
    EXPECT_TRUE(SameXmlRpcValue(progress.toXmlRpcValue(), literal));
    EXPECT_TRUE(FormulaProgress(literal) == progress);
    EXPECT_TRUE(FormulaProgress(FormulaProgress().toXmlRpcValue()) == FormulaProgress());
    for (const XmlRpcValue &value :
         {XmlRpcValue(), XmlRpcValue(5), structOf({}), structOf({{"channels", 5}}),
          structOf({{"channels", channelValue()}}), structOf({{"channels", arrayOf({channelValue(), 5})}})})
        EXPECT_TRUE(isRefused<FormulaProgress>(value));
}

TEST(FormulaProgress, copiesAreDeep)
{
    auto original = std::make_unique<FormulaProgress>(progressOf({FormulaChannel(1, 10, 100, formula())}));
    const FormulaProgress copy(*original);
    FormulaProgress assigned = progressOf({FormulaChannel(), FormulaChannel()});
    assigned = *original;
    EXPECT_NE(copy.formulaChannels().at(0), original->formulaChannels().at(0));
    EXPECT_NE(assigned.formulaChannels().at(0), original->formulaChannels().at(0));
    original.reset();
    ASSERT_EQ(copy.formulaChannels().size(), 1);
    EXPECT_TRUE(*copy.formulaChannels().at(0) == FormulaChannel(1, 10, 100, formula()));
    EXPECT_TRUE(assigned == copy);
    const FormulaProgress &same = assigned;
    assigned = same;
    EXPECT_TRUE(assigned == copy);
}

TEST(FormulaProgress, takesOverItsChannels)
{
    // that nothing is lost or freed twice is for the sanitizers to see
    FormulaProgress progress = progressOf({FormulaChannel(1, 10, 100, formula()), FormulaChannel()});
    FormulaChannel *kept = progress.formulaChannels().at(0);
    progress.setFormulaChannels({kept, new FormulaChannel(2, 20, 200, Formula())});
    ASSERT_EQ(progress.formulaChannels().size(), 2);
    EXPECT_EQ(progress.formulaChannels().at(0), kept);
    EXPECT_EQ(kept->percentage(), 10);
    EXPECT_EQ(progress.formulaChannels().at(1)->percentage(), 20);
    progress.setFormulaChannels({});
    EXPECT_TRUE(progress == FormulaProgress());
}

TEST(FormulaProgress, differsByItsChannels)
{
    const FormulaProgress progress = progressOf({FormulaChannel(1, 10, 100, formula())});
    EXPECT_TRUE(progress == progressOf({FormulaChannel(1, 10, 100, formula())}));
    EXPECT_TRUE(progress != progressOf({FormulaChannel(1, 11, 100, formula())}));
    EXPECT_TRUE(progress != progressOf({FormulaChannel(1, 10, 100, formula()), FormulaChannel()}));
    EXPECT_TRUE(progress != FormulaProgress());
}

TEST(FormulaProgress, travelsInAVariant)
{
    const FormulaProgress progress = progressOf({FormulaChannel(1, 10, 100, formula())});
    EXPECT_EQ(QMetaType::type("FormulaProgress"), qMetaTypeId<FormulaProgress>());
    const QVariant variant = QVariant::fromValue(progress);
    EXPECT_TRUE(variant == QVariant::fromValue(FormulaProgress(progress)));
    EXPECT_TRUE(QVariant(variant.toMap()).value<FormulaProgress>() == progress);
    EXPECT_TRUE(SameXmlRpcValue(EncodeXmlRpcVariant(variant), progress.toXmlRpcValue()));
    EXPECT_THROW(QVariant(QVariantMap()).value<FormulaProgress>(), std::invalid_argument);
}

} // namespace
