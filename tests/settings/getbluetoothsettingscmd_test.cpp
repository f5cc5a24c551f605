// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getbluetoothsettingscmd.h"

#include "base/commandcontract.h"
#include "settings/bluetoothtesting.h"

namespace {

using namespace testing_settings;

constexpr char notMade[] = "Failed to create GravSettingsAnswer";

AnswerFacts answers()
{
    AnswerFacts answers = confAnswers();
    answers.value = AnswerOfValue("BluetoothSettingsAnswer", settingsStruct(), dump)
                        .failsWith("DE02414", notMade)
                        .refuses(Value(0), "DE02446", invalid,
                                 "BluetoothSettingsBase::BluetoothSettingsBase(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("BluetoothSettingsAnswer", settingsList(), dump)
            .failsWith("DE02414", notMade)
            .refuses({}, "DE02446", invalid, "BluetoothSettingsBase::BluetoothSettingsBase(QList<QVariant>)");
    return answers;
}

TEST(GetBluetoothSettingsCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<GetBluetoothSettingsCmd>());
    facts.catalogue = {"GET_BT_SETTINGS", 130, "", 0};
    facts.protoType = 2;
    facts.keepsTheList = true;
    facts.words = {"Bluetooth settings read", "Reading bluetooth settings"};
    facts.defaults = Request().written("[]");
    facts.requests = {
        Request().written("[]"),
        Request({5}).onlyFromList().notReadBack().written("[]"),
        Request({5}).onlyFromValue().parameters({}).written("[]"),
    };
    facts.answers = answers();
    expectCommandContract(facts);
}

} // namespace
