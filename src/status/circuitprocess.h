// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

/** A process in which circuits can be engaged. Which number is which is known to the machine; 1 to 13 are valid. */
enum class CircuitProcess : int { None = 0, First = 1, Last = 13 };

/** How a circuit is engaged; a mask may hold both bits. */
enum class CircuitProcessStatusMask : int { Logical = 1, Physical = 2 };
