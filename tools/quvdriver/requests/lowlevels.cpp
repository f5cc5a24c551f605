// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/lowlevels.h"

#include "machines/drivenmachine.h"
#include "procedures/amounts.h"
#include "quantities.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <optional>
#include <stdexcept>

namespace quv {
namespace {

std::optional<Formula> formulaIn(const XmlRpc::XmlRpcValue &arguments)
{
    if (arguments.getType() != XmlRpc::XmlRpcValue::TypeArray)
        return std::nullopt;
    for (int i = 0; i < arguments.size(); ++i) {
        try {
            return Formula(*FindXmlRpcElement(arguments, i));
        } catch (const std::invalid_argument &) {
            continue; // another argument
        }
    }
    return std::nullopt;
}

QString inWords(const CanisterFormulaItem &item)
{
    return QStringLiteral(
               "Canister %1 (%2) holds %3; without %4 it would fall below its critical level of %5")
        .arg(QString::number(item.id()),
             item.colorantCode().isEmpty() ? QStringLiteral("no colorant")
                                           : nameInWords(item.colorantCode(), Formula::ColorantCodes),
             quantityInWords(item.currentQuantity()), quantityInWords(item.quantity()),
             quantityInWords(item.reserveQuantity()));
}

} // namespace

FW_ErrorList lowLevels(const XmlRpc::XmlRpcValue &arguments, const DrivenMachine *machine)
{
    FW_ErrorList errors;
    const std::unique_ptr<FW_Machine> copy = machine ? machine->copy() : nullptr;
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(copy.get());
    const std::optional<Formula> formula = formulaIn(arguments);
    CanisterFormulaItemList items;
    if (!formula || !(formula->levelsManagementPolicy() & Formula::CheckLevels) ||
        !formula->getCanisterItems(&items, dispenser, nullptr))
        return errors;
    for (const CanisterFormulaItem &item : items) {
        if (item.quantity() > 0 && item.currentQuantity() - item.quantity() < item.reserveQuantity())
            errors.append(FW_DriverError(QStringLiteral("DE03144"), inWords(item)));
    }
    return errors;
}

} // namespace quv
