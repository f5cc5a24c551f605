// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>

class CPT_cdata;
class FW_CalibrationProfiles;
class FW_Dispenser;

namespace quv {

/** A row tells less than a machine does: what it leaves out stays as it was. */
enum class CircuitSource { Row, Machine };

/**
 * Gives all that \a data tell to the circuit at their position and to its canister, which are made when there are none.
 * False for a circuit that cannot be made.
 */
bool applyCircuit(const CPT_cdata &data, CircuitSource source, FW_Dispenser &dispenser,
                  const FW_CalibrationProfiles *profiles, const QList<int> *extra);

} // namespace quv
