// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FW_Canister, positionsOfItsCircuits)
{
    FW_Circuit disabled = pouring::circuit(2, 7, 0);
    disabled.setEnabled(false);
    const FW_Canister canister =
        pouring::canister(1, "B", 500, {pouring::circuit(1, 9, 0), disabled, pouring::circuit(3, 2, 0)});
    EXPECT_THAT(canister.getCircuitPositions(false), ElementsAre(9, 7, 2));
    EXPECT_THAT(canister.getCircuitPositions(true), ElementsAre(9, 2));
    EXPECT_THAT(FW_Canister(1).getCircuitPositions(false), IsEmpty());
}

TEST(FW_Canister, circuitsChangeInPlace)
{
    FW_Canister canister = pouring::canister(1, "B", 500, {pouring::circuit(1, 9, 0)});
    const FW_Canister copy = canister;
    canister.circuits()[0].setPositionId(10);
    EXPECT_THAT(canister.getCircuitPositions(false), ElementsAre(10));
    EXPECT_THAT(copy.getCircuitPositions(false), ElementsAre(9));
}

TEST(FW_Canister, anyChangeMakesItAnother)
{
    const FW_Canister original = pouring::canister(1, "B", 500, {pouring::circuit(1, 9, 0)});
    const std::vector<void (*)(FW_Canister &)> changes = {
        [](FW_Canister &c) { c.setId(2); },
        [](FW_Canister &c) { c.setEnabled(false); },
        [](FW_Canister &c) { c.setColorantCode(QStringLiteral("C")); },
        [](FW_Canister &c) { c.setMaximumQuantity(1); },
        [](FW_Canister &c) { c.setCurrentQuantity(1); },
        [](FW_Canister &c) { c.setReserveQuantity(1); },
        [](FW_Canister &c) { c.setWarningQuantity(1); },
        [](FW_Canister &c) { c.circuits()[0].setEnabled(false); },
        [](FW_Canister &c) { c.addCircuit(FW_Circuit()); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        FW_Canister changed = original;
        EXPECT_TRUE(changed == original);
        changes[i](changed);
        EXPECT_TRUE(changed != original) << i;
        EXPECT_FALSE(changed == original) << i;
    }
}

} // namespace
