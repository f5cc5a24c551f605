// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/formula.h>
#include <QuvFramework/purgeformula.h>

#include <QtCore/QList>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <optional>

// The queries about a formula keep their arguments as the variants that they are: one PurgeFormula, or a Formula and
// whether it is a purge. How many there are tells which.

namespace quv {

// What the variant holds, as itself or as the map that stands for it; nothing when it holds none.
std::optional<Formula> formulaIn(const QVariant &variant);
std::optional<PurgeFormula> purgeFormulaIn(const QVariant &variant);

/** The list with a map that stands for its first element turned into what it stands for. */
QList<QVariant> formulaParameters(QList<QVariant> list);

/** The one or two arguments as an array. What is neither form gives an empty array and \a ok false. */
XmlRpc::XmlRpcValue formulaQueryValue(const QList<QVariant> &parameters, bool *ok);
/** The formula alone as an array, and an empty array and \a ok false when there is none. */
XmlRpc::XmlRpcValue formulaValue(const QList<QVariant> &parameters, bool *ok);

} // namespace quv
