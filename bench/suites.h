// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

void addCatalogueRatios();
void addConfigurationRatios();
void addDispensingRatios();
void addErrorRatios();
void addResourceRatios();
void addMachineRatios();
void addMachineTreeRatios();
void addSettingsRatios();
void addStatusRatios();

} // namespace quv
