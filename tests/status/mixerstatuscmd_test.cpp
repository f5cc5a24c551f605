// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/mixerstatuscmd.h"

#include "base/commandcontract.h"
#include "status/mixertesting.h"

namespace {

using namespace testing_status;

constexpr char notCreated[] = "Failed to create MixerStatusAnswer";

Value workingStruct()
{
    Value value = idleMixerStruct();
    value["mixing"] = true;
    value["cycle_active"] = true;
    value["timeleft"] = 300;
    return value;
}

/** A status as it is written, with the three members that nothing sets and without two that no mixer tells. */
std::string written(Value status)
{
    for (const char *unused : {"WM_set", "disp_info_writing", "disp_info_erasing"})
        status[unused] = false;
    return dumped(without(without(status, "machine_turned_off"), "machine_unlocked"));
}

std::string clearedWritten()
{
    Value value = idleMixerStruct();
    value["disp_status"] = 0;
    return written(value);
}

AnswerFacts answers()
{
    constexpr char ofTokens[] = "MixerStatusAnswer::MixerStatusAnswer(QStringList)";
    constexpr char ofValue[] = "MixerStatusAnswer::MixerStatusAnswer(const XmlRpc::XmlRpcValue&)";
    constexpr char ofMachineTokens[] = "MachineStatusAnswer::MachineStatusAnswer(QStringList)";
    constexpr char ofMachineValue[] = "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)";
    QStringList working = idleMixerTokens();
    working[3] = "14";
    working[10] = "36";
    working[11] = "1";
    QStringList bad = idleMixerTokens();
    bad[8] = "x";
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens("MixerStatusAnswer", working, written(workingStruct()))
            .failsWith("DE02519", notCreated)
            .refuses(bad, "DE02823", "Error during command answer decoding: mask 6", ofTokens)
            .refuses({"6", "0", "1", "0", "0", "0", "0"}, "DE02673",
                     "Error during command answer decoding: bad length", ofTokens)
            .refuses({}, "DE00066", "Error during command answer decoding: bad length", ofMachineTokens);
    answers.value =
        AnswerOfValue("MixerStatusAnswer", workingStruct(), written(workingStruct()))
            .failsWith("DE02517", notCreated)
            .refuses(without(idleMixerStruct(), "mixing"), "DE00026",
                     "MixerStatusAnswer: expected mixing value", ofValue)
            .refuses(without(idleMixerStruct(), "timeleft"), "DE02667",
                     "MixerStatusAnswer: expected timeleft value", ofValue)
            .refuses(without(idleMixerStruct(), "hw_error"), "DE00026",
                     "MachineStatusAnswer: expected hw_error value", ofMachineValue)
            .refuses(Value(0), "DE00443", "MachineStatusAnswer: expected disp_status value", ofMachineValue);
    answers.list = AnswerOfList("MixerStatusAnswer", {1, true}, clearedWritten())
                       .failsWith("DE02518", notCreated)
                       .refusesNothing();
    answers.envelope = {"DE02520", notCreated};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<MixerStatusCmd>());
    facts.catalogue = {"MIXER_STATUS", 134, "0033", 0};
    facts.protoType = 1;
    facts.words = Words();
    facts.defaults = Request().written("[]");
    facts.requests = {
        Request().typed<MixerStatusCmd>().written("[]"),
        Request({5, "more"}).parameters({}).written("[]"), // nothing is read of it
    };
    facts.answers = answers();
    return facts;
}

TEST(MixerStatusCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(MixerStatusCmd, tellsThatNothingIsMissing)
{
    bool ok = false;
    EXPECT_EQ(dumped(MixerStatusCmd().xmlrpc_parameters(&ok)), "[]");
    EXPECT_TRUE(ok);
    MixerStatusCmd addressed;
    addressed.setModuleID(7);
    addressed.setDefaults();
    EXPECT_EQ(addressed.moduleID(), 7) << "there are no defaults to go back to";
}

TEST(MixerStatusCmd, takesNoPosition)
{
    static_assert(!std::is_constructible_v<MixerStatusCmd, int>);
}

} // namespace
