// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>

/**
 * The number of a machine model, or -1 for no particular one: what defaults are asked with. Defaults that tell nothing else
 * are the same for all models.
 */
class FW_ModelNumber
{
public:
    // implicit, so that both a machine's model and the plain -1 can be given
    FW_ModelNumber(int number) : m_model(static_cast<MachineModel>(number)) {}
    FW_ModelNumber(MachineModel model) : m_model(model) {}

    MachineModel model() const { return m_model; }
    bool operator==(MachineModel model) const { return m_model == model; }

private:
    MachineModel m_model = MachineModel::None;
};
