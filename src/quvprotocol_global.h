// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

#ifdef QUVPROTOCOL_BUILD
#define QUVPROTOCOL_EXPORT Q_DECL_EXPORT
#else
#define QUVPROTOCOL_EXPORT Q_DECL_IMPORT
#endif
