// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

/** Who carries a command out, and who answered: the values of m_protoType. */
enum ProtoType { PlainType = 0, SerialType = 1, ConfigurationType = 2, ScaleType = 3 };

} // namespace quv
