// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_modelnumber.h>

#include <QtCore/QList>

class CPT_cdata;

namespace quv {

/** The parameters of the row that tells a circuit of a machine of this model. */
QList<int> writtenCircuit(const CPT_cdata &data, FW_ModelNumber model);

} // namespace quv
