// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machines.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <QtCore/QTemporaryFile>

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace {

using quv::machineByName;

std::unique_ptr<FW_Machine> fromJson(const QByteArray &json)
{
    QTemporaryFile file;
    if (!file.open() || file.write(json) != json.size() || !file.flush())
        throw std::logic_error("no temporary file");
    return machineByName(file.fileName());
}

/// What is said of \a json, without the file's name.
std::string refusalOf(const QByteArray &json)
{
    try {
        fromJson(json);
    } catch (const std::runtime_error &error) {
        const std::string text = error.what();
        return text.substr(text.find("\": ") + 3);
    }
    return "accepted";
}

TEST(Machines, builtIn)
{
    EXPECT_EQ(machineByName(QStringLiteral("none")), nullptr);
    const auto machine = machineByName(QStringLiteral("dispenser"));
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine.get());
    ASSERT_NE(dispenser, nullptr);
    EXPECT_EQ(dispenser->commandFamily(), FW_Dispenser::CommandFamily1);
    EXPECT_FALSE(dispenser->hasMultipleHead());
    const auto mixer = machineByName(QStringLiteral("mixer"));
    EXPECT_NE(dynamic_cast<const FW_Mixer *>(mixer.get()), nullptr);
}

TEST(Machines, aDispenserOfAFile)
{
    const auto machine = fromJson(R"({"type": "dispenser", "id": 7, "model": 20, "model_name": "LUMINA 16",
        "sid": "00123", "description": "perché no", "product_code": "P-1", "serial_number": "A12-4/5",
        "heads": 2, "command_family": 2})");
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine.get());
    ASSERT_NE(dispenser, nullptr);
    EXPECT_EQ(dispenser->id(), 7);
    EXPECT_EQ(dispenser->model(), MachineModel::Lumina);
    EXPECT_EQ(dispenser->modelName(), QStringLiteral("LUMINA 16"));
    EXPECT_EQ(dispenser->SID(), QStringLiteral("00123"));
    EXPECT_EQ(dispenser->description(), QString::fromUtf8("perch\xC3\xA9 no"));
    EXPECT_EQ(dispenser->productCode(), QStringLiteral("P-1"));
    EXPECT_EQ(dispenser->serialNumber(), QStringLiteral("A12-4/5"));
    EXPECT_TRUE(dispenser->hasMultipleHead());
    EXPECT_EQ(dispenser->commandFamily(), FW_Dispenser::CommandFamily2);
}

TEST(Machines, onlyTheTypeIsRequired)
{
    const auto machine = fromJson(R"({"type": "dispenser"})");
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine.get());
    ASSERT_NE(dispenser, nullptr);
    EXPECT_EQ(dispenser->commandFamily(), FW_Dispenser::CommandFamily1);
    EXPECT_FALSE(dispenser->hasMultipleHead());
    const auto mixer = fromJson(R"({"type": "mixer", "id": 9, "model": 100})");
    ASSERT_NE(dynamic_cast<const FW_Mixer *>(mixer.get()), nullptr);
    EXPECT_EQ(mixer->id(), 9);
}

TEST(Machines, whatAFileIsRefusedFor)
{
    const std::pair<const char *, const char *> refusals[] = {
        {R"([])", "the file holds no JSON object"},
        {R"({})", "the member \"type\" is missing"},
        {R"({"type": 1})", "the member \"type\" must be a text"},
        {R"({"type": "scale"})", "the member \"type\" must be \"dispenser\" or \"mixer\""},
        {R"({"type": "mixer", "heads": 1})", "unknown member \"heads\""},
        {R"({"type": "mixer", "command_family": 1})", "unknown member \"command_family\""},
        {R"({"type": "dispenser", "Id": 1})", "unknown member \"Id\""},
        {R"({"type": "dispenser", "id": 1, "id": 2})", "the member \"id\" stands twice"},
        {R"({"type": "dispenser", "id": -1})", "the member \"id\" must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "id": 2147483648})",
         "the member \"id\" must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "id": 18446744073709551615})",
         "the member \"id\" must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "id": 1.0})", "the member \"id\" must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "id": "1"})", "the member \"id\" must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "heads": 3})", "the member \"heads\" must be an integer from 1 to 2"},
        {R"({"type": "dispenser", "heads": true})", "the member \"heads\" must be an integer from 1 to 2"},
        {R"({"type": "dispenser", "command_family": 0})",
         "the member \"command_family\" must be an integer from 1 to 2"},
        {R"({"type": "dispenser", "model_name": null})", "the member \"model_name\" must be a text"},
        {R"({"type": "dispenser", "serial_number": "a_b"})",
         "the member \"serial_number\" is no serial number"},
        {R"({"type": "dispenser", "model": 100})",
         "the member \"model\" is of the other kind of machine than \"type\""},
    };
    for (const auto &[json, text] : refusals)
        EXPECT_EQ(refusalOf(json), text) << json;
}

TEST(Machines, whatIsNoJsonIsRefused)
{
    for (const QByteArray json :
         {"", "{", "{\"type\": \"mixer\"} x", "{\"type\": \"\xFF\"}", "{\"\\ud800\": 1}"})
        EXPECT_EQ(refusalOf(json).substr(0, 9), "no JSON: ") << json.constData();
    EXPECT_EQ(refusalOf(QByteArray(64 * 1024 + 1, ' ')), "the file is larger than 65536 bytes");
    EXPECT_EQ(refusalOf(QByteArray(60000, '[')).substr(0, 9), "no JSON: ");
}

TEST(Machines, aFileThatIsNotThereIsNamed)
{
    try {
        machineByName(QStringLiteral("/nowhere/machine.json"));
        FAIL() << "accepted";
    } catch (const std::runtime_error &error) {
        EXPECT_EQ(std::string(error.what()),
                  "Machine \"/nowhere/machine.json\": no machine of this name, and no file that can be read: "
                  "No such file or directory");
    }
}

} // namespace
