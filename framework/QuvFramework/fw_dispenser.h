// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>

/** A colorant dispenser. */
class QUVFRAMEWORK_EXPORT FW_Dispenser : public FW_Machine
{
public:
    /** Which of the two firmware code columns a dispenser speaks; the values are bits of a command's family mask. */
    enum CommandFamily { CommandFamily1 = 1, CommandFamily2 = 2 };

    enum class HeadArrangement { Single = 1, Dual = 2 };

    FW_Dispenser() = default;

    FW_Dispenser *clone() const override;
    SerialDeviceType machineType() const override;

    CommandFamily commandFamily() const { return m_commandFamily; }
    void setCommandFamily(CommandFamily family) { m_commandFamily = family; }
    HeadArrangement headArrangement() const { return m_headArrangement; }
    void setHeadArrangement(HeadArrangement arrangement) { m_headArrangement = arrangement; }
    bool hasMultipleHead() const { return m_headArrangement == HeadArrangement::Dual; }

    // Model tests: the model's name begins with the line's name, whatever its case.
    static bool isZANDORDispenser(const QString &modelName);
    static bool isLUMINAdispenser(const QString &modelName);
    static bool isSOLA100dispenser(const QString &modelName);
    static bool isLIRADORdispenser(const QString &modelName);

private:
    CommandFamily m_commandFamily = CommandFamily1;
    HeadArrangement m_headArrangement = HeadArrangement::Single;
};
