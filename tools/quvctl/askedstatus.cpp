// SPDX-License-Identifier: LGPL-3.0-or-later
#include "askedstatus.h"

#include "executed.h"
#include "operations.h"

#include "status/dispenserstatusanswer.h"
#include "status/dispenserstatuscmd.h"
#include "status/mixerstatusanswer.h"
#include "status/mixerstatuscmd.h"

namespace quv {

namespace {

template <class Answer, class Command>
ToldStatus toldBy(const Driver &driver, Command command)
{
    const auto &answer = executed<Answer>(driver, command);
    return {std::make_shared<const Answer>(answer), answerReply(command)};
}

ToldStatus ofDispenser(const Driver &driver, int position)
{
    return toldBy<DispenserStatusAnswer>(driver,
                                         position > 0 ? DispenserStatusCmd(position) : DispenserStatusCmd());
}

ToldStatus ofMixer(const Driver &driver)
{
    return toldBy<MixerStatusAnswer>(driver, MixerStatusCmd());
}

constexpr char noSuchMachine[] = "DE03104";

} // namespace

bool StatusQuestion::isMixer() const
{
    const auto &chosen = m_driver.chosen();
    return m_kind ? *m_kind == SerialDeviceType::Mixer : chosen && chosen->type == SerialDeviceType::Mixer;
}

ToldStatus StatusQuestion::ask()
{
    return ask(0);
}

ToldStatus StatusQuestion::ask(int position)
{
    if (isMixer())
        return ofMixer(m_driver);
    try {
        ToldStatus told = ofDispenser(m_driver, position);
        m_kind = SerialDeviceType::Dispenser;
        return told;
    } catch (const RequestRefused &refusal) {
        if (m_kind || m_driver.chosen() || refusal.json()["code"] != noSuchMachine)
            throw;
    }
    ToldStatus told = ofMixer(m_driver);
    m_kind = SerialDeviceType::Mixer;
    return told;
}

} // namespace quv
