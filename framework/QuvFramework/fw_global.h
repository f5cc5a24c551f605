// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

#ifdef QUVFRAMEWORK_BUILD
#define QUVFRAMEWORK_EXPORT Q_DECL_EXPORT
#else
#define QUVFRAMEWORK_EXPORT Q_DECL_IMPORT
#endif

/** The kind of device at the other end of a link; the values are bits, so that they can be joined to a mask. */
enum class SerialDeviceType { Dispenser = 1, Scale = 2, Mixer = 4 };
