// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include "values.h"

#include <memory>
#include <type_traits>

using values::arrayOf;
using values::structOf;
using values::XmlRpcValue;

namespace {

void fill(FW_Machine &machine)
{
    machine.setId(7);
    machine.setSID("000042");
    machine.setModel(MachineModel::Zandor);
    machine.setModelName("ZANDOR 16");
    machine.setDescription("line 2");
    machine.setProductCode("P-100");
    machine.setSerialNumber("A1/2.3-4");
    machine.setConnectionName("ttyUSB0");
    machine.setConfStructureName("structure 3");
}

void expectFilled(const FW_Machine &machine)
{
    EXPECT_EQ(machine.id(), 7);
    EXPECT_EQ(machine.SID(), "000042");
    EXPECT_EQ(machine.model(), MachineModel::Zandor);
    EXPECT_EQ(machine.modelName(), "ZANDOR 16");
    EXPECT_EQ(machine.description(), "line 2");
    EXPECT_EQ(machine.productCode(), "P-100");
    EXPECT_EQ(machine.serialNumber(), "A1/2.3-4");
    EXPECT_EQ(machine.connectionName(), "ttyUSB0");
    EXPECT_EQ(machine.confStructureName(), "structure 3");
}

/** Changes every text of the machine, so that what it still shared with another would show there. */
void overwrite(FW_Machine &machine)
{
    machine.setId(0);
    machine.setModel(MachineModel::None);
    for (auto set : {&FW_Machine::setSID, &FW_Machine::setModelName, &FW_Machine::setDescription,
                     &FW_Machine::setProductCode, &FW_Machine::setSerialNumber,
                     &FW_Machine::setConnectionName, &FW_Machine::setConfStructureName})
        (machine.*set)("changed");
}

TEST(SerialDeviceType, hasTheBitsOfTheWire)
{
    EXPECT_EQ(static_cast<int>(SerialDeviceType::Dispenser), 1);
    EXPECT_EQ(static_cast<int>(SerialDeviceType::Mixer), 4);
}

TEST(FW_Machine, isTheRootOfBothKinds)
{
    EXPECT_TRUE(std::is_abstract_v<FW_Machine>);
    EXPECT_TRUE(std::has_virtual_destructor_v<FW_Machine>);
    EXPECT_EQ(FW_Dispenser().machineType(), SerialDeviceType::Dispenser);
    EXPECT_EQ(FW_Mixer().machineType(), SerialDeviceType::Mixer);

    const std::unique_ptr<FW_Machine> dispenser = std::make_unique<FW_Dispenser>();
    const std::unique_ptr<FW_Machine> mixer = std::make_unique<FW_Mixer>();
    EXPECT_NE(dynamic_cast<FW_Dispenser *>(dispenser.get()), nullptr);
    EXPECT_EQ(dynamic_cast<FW_Mixer *>(dispenser.get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Mixer *>(mixer.get()), nullptr);
    EXPECT_EQ(dynamic_cast<FW_Dispenser *>(mixer.get()), nullptr);
}

TEST(FW_Machine, beginsWithoutIdentity)
{
    const FW_Mixer mixer;
    EXPECT_EQ(mixer.id(), 0);
    EXPECT_EQ(mixer.model(), MachineModel::None);
    EXPECT_EQ(mixer.SID() + mixer.modelName() + mixer.description() + mixer.productCode() +
                  mixer.serialNumber() + mixer.connectionName() + mixer.confStructureName(),
              "");
}

TEST(FW_Machine, cloneOfADispenserIsOneOfItsOwn)
{
    auto original = std::make_unique<FW_Dispenser>();
    fill(*original);
    original->setCommandFamily(FW_Dispenser::CommandFamily2);
    original->setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    const FW_Machine &machine = *original;

    const std::unique_ptr<FW_Machine> copy(machine.clone());
    overwrite(*original);
    original->setCommandFamily(FW_Dispenser::CommandFamily1);
    original->setHeadArrangement(FW_Dispenser::HeadArrangement::Single);
    original.reset();

    expectFilled(*copy);
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(copy.get());
    ASSERT_NE(dispenser, nullptr);
    EXPECT_EQ(dispenser->commandFamily(), FW_Dispenser::CommandFamily2);
    EXPECT_EQ(dispenser->headArrangement(), FW_Dispenser::HeadArrangement::Dual);
}

TEST(FW_Machine, changingTheCloneLeavesTheOriginal)
{
    FW_Mixer original;
    fill(original);
    const std::unique_ptr<FW_Mixer> copy(original.clone());
    expectFilled(*copy);
    overwrite(*copy);
    expectFilled(original);
    EXPECT_EQ(copy->SID(), "changed");
    EXPECT_EQ(copy->confStructureName(), "changed");
}

TEST(FW_Machine, serialNumberHasOneToTwentyCharacters)
{
    EXPECT_FALSE(FW_Machine::checkSerialNumber(QString()));
    EXPECT_FALSE(FW_Machine::checkSerialNumber(""));
    EXPECT_TRUE(FW_Machine::checkSerialNumber("7"));
    EXPECT_TRUE(FW_Machine::checkSerialNumber("12345678901234567890"));
    EXPECT_FALSE(FW_Machine::checkSerialNumber("123456789012345678901"));
}

TEST(FW_Machine, serialNumberIsOfLettersDigitsBlanksDotsSlashesAndHyphens)
{
    EXPECT_TRUE(FW_Machine::checkSerialNumber("AZaz09 ./-"));
    EXPECT_TRUE(FW_Machine::checkSerialNumber(" 7 "));
    EXPECT_FALSE(FW_Machine::checkSerialNumber("   "));
    for (const char *bad :
         {"A_1", "A,1", "A\t1", "A\n", "A:1", "A@1", "A[1", "A`1", "A{1", "A*1", "A\"1", "A\\1"})
        EXPECT_FALSE(FW_Machine::checkSerialNumber(bad)) << bad;
    EXPECT_FALSE(FW_Machine::checkSerialNumber(QString(QChar(0x00e9)))); // a letter beyond ASCII
    EXPECT_FALSE(FW_Machine::checkSerialNumber(QString(QChar(0x0661)))); // a digit beyond ASCII
    EXPECT_FALSE(FW_Machine::checkSerialNumber(QString("A1") + QChar(0)));
}

TEST(FW_Machine, factorySystemIdIsEmptyOrZeros)
{
    EXPECT_TRUE(FW_Machine::isAFactorySID(QString()));
    EXPECT_TRUE(FW_Machine::isAFactorySID("0"));
    EXPECT_TRUE(FW_Machine::isAFactorySID("00000000"));
    EXPECT_FALSE(FW_Machine::isAFactorySID("00000001"));
    EXPECT_FALSE(FW_Machine::isAFactorySID("0 0"));
    EXPECT_FALSE(FW_Machine::isAFactorySID("A"));
}

TEST(FW_Machine, kindOfAModel)
{
    EXPECT_EQ(FW_Machine::getMachineType(MachineModel::GenericDispenser), 1);
    EXPECT_EQ(FW_Machine::getMachineType(MachineModel::Lumina), 1);
    EXPECT_EQ(FW_Machine::getMachineType(static_cast<MachineModel>(99)), 1);
    EXPECT_EQ(FW_Machine::getMachineType(MachineModel::GenericMixer), 4);
    EXPECT_EQ(FW_Machine::getMachineType(static_cast<MachineModel>(101)), 4);
    EXPECT_EQ(FW_Machine::getMachineType(MachineModel::None), 0);
    EXPECT_EQ(FW_Machine::getMachineType(static_cast<MachineModel>(-2)), 0);
}

TEST(FW_Machine, modelIsReadFromTheMachinesStruct)
{
    EXPECT_EQ(FW_Machine::getMachineModelFromXmlRpcValue(structOf({{"machine_model", 30}})),
              MachineModel::Zandor);
    EXPECT_EQ(FW_Machine::getMachineModelFromXmlRpcValue(structOf({{"machine_model", 100}})),
              MachineModel::GenericMixer);
    EXPECT_EQ(FW_Machine::getMachineModelFromXmlRpcValue(structOf({{"machine_model", "30"}})),
              MachineModel::None);
    EXPECT_EQ(FW_Machine::getMachineModelFromXmlRpcValue(arrayOf({30})), MachineModel::None);
    EXPECT_EQ(FW_Machine::getMachineModelFromXmlRpcValue(XmlRpcValue()), MachineModel::None);

    const XmlRpcValue other = structOf({{"model", 30}});
    EXPECT_EQ(FW_Machine::getMachineModelFromXmlRpcValue(other), MachineModel::None);
    EXPECT_EQ(other.size(), 1);
}

TEST(FW_Dispenser, commandFamiliesAreBitsOfTheFamilyMask)
{
    EXPECT_EQ(FW_Dispenser::CommandFamily1, 1);
    EXPECT_EQ(FW_Dispenser::CommandFamily2, 2);
    EXPECT_EQ(FW_Dispenser().commandFamily(), FW_Dispenser::CommandFamily1);
}

TEST(FW_Dispenser, hasOneHeadUnlessToldOtherwise)
{
    FW_Dispenser dispenser;
    EXPECT_FALSE(dispenser.hasMultipleHead());
    dispenser.setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    EXPECT_TRUE(dispenser.hasMultipleHead());
}

TEST(FW_Dispenser, modelTestsAskForTheLineAtTheBeginning)
{
    EXPECT_TRUE(FW_Dispenser::isZANDORDispenser("ZANDOR"));
    EXPECT_TRUE(FW_Dispenser::isZANDORDispenser("Zandor 16"));
    EXPECT_FALSE(FW_Dispenser::isZANDORDispenser("NEW ZANDOR"));
    EXPECT_TRUE(FW_Dispenser::isLUMINAdispenser("lumina 500"));
    EXPECT_FALSE(FW_Dispenser::isLUMINAdispenser("LUMI"));
    EXPECT_TRUE(FW_Dispenser::isSOLA100dispenser("SOLA100"));
    EXPECT_FALSE(FW_Dispenser::isSOLA100dispenser("SOLA10"));
    EXPECT_TRUE(FW_Dispenser::isLIRADORdispenser("LIRADOR TR"));
    EXPECT_FALSE(FW_Dispenser::isLIRADORdispenser("LUMINA"));
    EXPECT_TRUE(FW_Dispenser::isROTANV1dispenser("Rotan V1 plus"));
    EXPECT_FALSE(FW_Dispenser::isROTANV1dispenser("ROTAN V2"));
    for (auto isOfLine :
         {FW_Dispenser::isZANDORDispenser, FW_Dispenser::isLUMINAdispenser, FW_Dispenser::isSOLA100dispenser,
          FW_Dispenser::isLIRADORdispenser, FW_Dispenser::isROTANV1dispenser}) {
        EXPECT_FALSE(isOfLine(QString()));
        EXPECT_FALSE(isOfLine("ROTAN"));
    }
}

TEST(FW_Dispenser, knowsTheModelsThatTurnATable)
{
    for (const int model : {6, 10})
        EXPECT_TRUE(FW_Dispenser::isRotatingDispenserModel(static_cast<MachineModel>(model))) << model;
    for (const int model : {-1, 0, 5, 7, 19, 20, 30, 100})
        EXPECT_FALSE(FW_Dispenser::isRotatingDispenserModel(static_cast<MachineModel>(model))) << model;
}

} // namespace
