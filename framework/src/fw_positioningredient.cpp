// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulasources_p.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_positioningredient.h>

FormulaItem FW_PositionIngredient::formulaItem() const
{
    return {quv::nameOf(m_positionID), static_cast<double>(m_steps), 0, m_nozzleValveID, m_speed};
}
