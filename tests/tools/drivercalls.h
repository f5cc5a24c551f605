// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedfirmware.h"
#include "requests/driver.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

// What the tests of the driver share: firmware behind it, and calls to it.

namespace quv::test {

using XmlRpc::XmlRpcValue;

/// Replies as it is told, and notes what it was asked.
class ScriptedFirmware final : public Firmware
{
public:
    using Script = std::function<FirmwareReply()>;
    using CodeScript = std::function<FirmwareReply(const QString &code)>;
    explicit ScriptedFirmware(Script script)
        : m_script([script = std::move(script)](const QString &) { return script(); })
    {}
    explicit ScriptedFirmware(CodeScript script, double speed = 1)
        : m_script(std::move(script)),
          m_speed(speed)
    {}

    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override
    {
        asked.append(QStringLiteral("%1 %2 %3").arg(code).arg(module).arg(parameters.size()));
        return m_script(code);
    }
    double speed() const override { return m_speed; }

    QStringList asked{};

private:
    CodeScript m_script{};
    double m_speed = 1;
};

inline const QStringList IdleTokens =
    QStringLiteral("E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0").split(QLatin1Char(' '));

template <class... Params>
XmlRpcValue arrayOf(const Params &...params)
{
    XmlRpcValue array;
    array.setSize(0);
    int i = 0;
    ((array[i++] = XmlRpcValue(params)), ...);
    return array;
}

/// A formula by colorants, in weight or volume unless \a unit says otherwise.
inline XmlRpcValue formula(const std::vector<std::pair<const char *, double>> &items, int unit = 3)
{
    XmlRpcValue value;
    value["formula_type"] = 4;
    value["quantity_unit"] = unit;
    value["ids"].setSize(0);
    value["quantities"].setSize(0);
    int i = 0;
    for (const auto &item : items) {
        value["ids"][i] = item.first;
        value["quantities"][i++] = item.second;
    }
    return value;
}

/// The parts of an envelope that tests look at.
struct Envelope
{
    explicit Envelope(const XmlRpcValue &value)
    {
        if (!DecodeXmlRpcValue(value, "ret_code", retCode) || !DecodeXmlRpcValue(value, "info", info) ||
            !DecodeXmlRpcMember(value, "ret_value", answer))
            throw std::logic_error("no envelope");
        const XmlRpcValue *errors = FindXmlRpcMember(value, "errors");
        for (int i = 0; i < errors->size(); ++i) {
            QString code;
            QString text;
            DecodeXmlRpcValue(*FindXmlRpcElement(*errors, i), "code", code);
            DecodeXmlRpcValue(*FindXmlRpcElement(*errors, i), "text", text);
            failures.append(code + QLatin1Char(' ') + text);
        }
    }

    bool flag(const char *key) const
    {
        bool value = false;
        if (!DecodeXmlRpcValue(answer, key, value))
            throw std::logic_error("no flag");
        return value;
    }
    int number(const char *key) const
    {
        int value = 0;
        if (!DecodeXmlRpcValue(answer, key, value))
            throw std::logic_error("no number");
        return value;
    }
    std::string text(const char *key) const
    {
        QString value;
        if (!DecodeXmlRpcValue(answer, key, value))
            throw std::logic_error("no text");
        return value.toStdString();
    }
    XmlRpcValue member(const char *key) const
    {
        XmlRpcValue value;
        if (!DecodeXmlRpcMember(answer, key, value))
            throw std::logic_error("no member");
        return value;
    }
    std::string error() const { return failures.join(QLatin1Char('|')).toStdString(); }

    int retCode = -1;
    QString info{};
    XmlRpcValue answer{};
    QStringList failures{};
};

/// The simulated firmware, with notes of the integers that it gets for a code.
class WatchedFirmware final : public Firmware
{
public:
    using Firmware::Firmware;
    WatchedFirmware(const FW_Machine &machine, double speed) : m_firmware(machine, speed) {}

    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override
    {
        if (!parameters.isEmpty())
            received.append({code, parameters});
        return m_firmware.execute(code, module, parameters);
    }
    double speed() const override { return m_firmware.speed(); }
    void canisterFilled(int canisterID, double quantity) override
    {
        m_firmware.canisterFilled(canisterID, quantity);
    }

    QList<QPair<QString, QList<int>>> received{};

private:
    SimulatedFirmware m_firmware;
};

/// A driver with the machines that a test gives it.
class DriverFixture : public testing::Test
{
protected:
    ScriptedFirmware &addScripted(std::unique_ptr<FW_Machine> machine, ScriptedFirmware::Script script)
    {
        auto firmware = std::make_unique<ScriptedFirmware>(std::move(script));
        ScriptedFirmware &added = *firmware;
        m_driver->addMachine(std::move(machine), std::move(firmware));
        return added;
    }
    ScriptedFirmware &addScripted(std::unique_ptr<FW_Machine> machine, ScriptedFirmware::CodeScript script,
                                  double speed = 1)
    {
        auto firmware = std::make_unique<ScriptedFirmware>(std::move(script), speed);
        ScriptedFirmware &added = *firmware;
        m_driver->addMachine(std::move(machine), std::move(firmware));
        return added;
    }
    /// A dispenser that works \a speed times faster than real. \a real is what stands there, if it is not what the driver
    /// believes.
    WatchedFirmware &addSimulated(const FW_Dispenser &machine, double speed,
                                  const FW_Dispenser *real = nullptr)
    {
        auto firmware = std::make_unique<WatchedFirmware>(real ? *real : machine, speed);
        WatchedFirmware &added = *firmware;
        m_driver->addMachine(std::make_unique<FW_Dispenser>(machine), std::move(firmware));
        return added;
    }
    ScriptedFirmware &addDispenser(const QStringList &tokens, bool refused = false)
    {
        return addScripted(std::make_unique<FW_Dispenser>(), [=] { return FirmwareReply{refused, tokens}; });
    }
    ScriptedFirmware &addMixer(const QStringList &tokens)
    {
        return addScripted(std::make_unique<FW_Mixer>(), [=] { return FirmwareReply{false, tokens}; });
    }

    Envelope exec(const char *method, const XmlRpcValue &params)
    {
        return Envelope(m_driver->call({QLatin1String(method), params}, m_gone));
    }
    template <class... Params>
    Envelope call(const char *method, const Params &...params)
    {
        return Envelope(m_driver->call({QLatin1String(method), arrayOf(params...)}, m_gone));
    }

    /// The level that the driver knows of a canister, out of the words in which it refuses to raise it.
    std::string level(int canister)
    {
        XmlRpcValue tooMuch;
        tooMuch["formula_type"] = 3;
        tooMuch["quantity_unit"] = 3;
        tooMuch["ids"][0] = canister;
        tooMuch["quantities"][0] = 100000.0;
        const QString text = QString::fromStdString(call("EXEC_B", "SET_LEVELS", true, tooMuch).error());
        const QString words = QStringLiteral("DE03118 Canister %1 cannot hold ").arg(canister);
        EXPECT_TRUE(text.startsWith(words)) << text.toStdString();
        return QString::number(text.mid(words.size()).section(QLatin1Char(';'), 0, 0).toDouble() - 100000)
            .toStdString();
    }

    Ending m_gone{}; ///< of a client, which stays
    std::unique_ptr<Driver> m_driver = std::make_unique<Driver>();
};

} // namespace quv::test
