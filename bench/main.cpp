// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ratios.h"
#include "suites.h"

int main(int argc, char **argv)
{
    quv::addCatalogueRatios();
    quv::addConfigurationRatios();
    quv::addDispensingRatios();
    quv::addErrorRatios();
    quv::addResourceRatios();
    quv::addMachineRatios();
    quv::addMachineTreeRatios();
    quv::addSettingsRatios();
    quv::addStatusRatios();
    return quv::runRatios(argc, argv);
}
