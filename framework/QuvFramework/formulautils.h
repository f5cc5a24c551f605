// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

class Formula;
class FW_Dispenser;
class FW_DriverError;
class PurgeFormula;

/** How the driver makes a real formula of what a client asks to be purged. */
class QUVFRAMEWORK_EXPORT FormulaUtils
{
public:
    FormulaUtils() = delete;

    // Fill \a built, or give false and fill \a error when it is given.
    /**
     * The same pour by circuit positions; a formula with negative quantities, which nothing can pour, stays as it is. Fails as
     * Formula::getCircuitFormulaItems does.
     */
    static bool buildPurgeFormula(const Formula &asked, Formula &built, const FW_Dispenser &dispenser,
                                  FW_DriverError *error);
    /** The quantity for each circuit that the purge chooses. Fails with DE03024 when there is none. */
    static bool buildPurgeFormula(const PurgeFormula &asked, Formula &built, const FW_Dispenser &dispenser,
                                  FW_DriverError *error);
};
