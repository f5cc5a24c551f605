// SPDX-License-Identifier: LGPL-3.0-or-later
#include "store/firmwarestate.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <stdexcept>

namespace {

using quv::ConfigurationRow;
using quv::FirmwareState;
using Rows = std::vector<ConfigurationRow>;

constexpr auto Dispenser = SerialDeviceType::Dispenser;
constexpr auto Mixer = SerialDeviceType::Mixer;

class FirmwareStateTest : public testing::Test
{
protected:
    QByteArray text() const
    {
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void write(const QByteArray &text) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    std::string refusal(const QByteArray &content) const
    {
        write(content);
        try {
            const FirmwareState state(m_path);
        } catch (const std::runtime_error &error) {
            const std::string beginning = "State file \"" + m_path.toStdString() + "\": ";
            const std::string told = error.what();
            return told.rfind(beginning, 0) == 0 ? told.substr(beginning.size()) : "elsewhere: " + told;
        }
        return "";
    }

    QTemporaryDir m_folder{};
    QString m_path = m_folder.filePath(QStringLiteral("state.json"));
};

TEST_F(FirmwareStateTest, aFileThatDoesNotExistIsEmpty)
{
    const FirmwareState state(m_path);
    EXPECT_TRUE(state.rows(Dispenser).empty());
    EXPECT_FALSE(QFile::exists(m_path));
}

TEST_F(FirmwareStateTest, bothKindsOfMachinesAreKeptInOneFile)
{
    const Rows ofDispenser{{2, {1}, QByteArray("L\xEDnea \"1\"")}, {7, {1, 30, 2147483647, 0}, {}}};
    const Rows ofMixer{{1, {1}, {}}};
    FirmwareState state(m_path);
    state.keep(Mixer, ofMixer);
    EXPECT_EQ(text(), QByteArray("{\n  \"mixer\": [\n    {\"code\":1,\"row\":[1]}\n  ]\n}\n"));
    state.keep(Dispenser, ofDispenser);
    EXPECT_EQ(text(),
              QByteArray(
                  "{\n  \"dispenser\": [\n    {\"code\":2,\"row\":[1],\"name\":\"L\xC3\xADnea \\\"1\\\"\"},\n"
                  "    {\"code\":7,\"row\":[1,30,2147483647,0]}\n  ],\n"
                  "  \"mixer\": [\n    {\"code\":1,\"row\":[1]}\n  ]\n}\n"));
    const FirmwareState again(m_path);
    EXPECT_TRUE(again.rows(Dispenser) == ofDispenser);
    EXPECT_TRUE(again.rows(Mixer) == ofMixer);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("state.json")});
}

TEST_F(FirmwareStateTest, machinesThatAreNotTheFirstOfTheirKindHaveTheirIDs)
{
    const Rows first{{1, {1}, {}}};
    const Rows second{{1, {0}, {}}};
    FirmwareState state(m_path);
    state.keep(Mixer, second, 0);
    state.keep(Dispenser, second, 12);
    state.keep(Dispenser, first);
    EXPECT_EQ(text(), QByteArray("{\n  \"dispenser\": [\n    {\"code\":1,\"row\":[1]}\n  ],\n"
                                 "  \"dispenser:12\": [\n    {\"code\":1,\"row\":[0]}\n  ],\n"
                                 "  \"mixer:0\": [\n    {\"code\":1,\"row\":[0]}\n  ]\n}\n"));
    const FirmwareState again(m_path);
    EXPECT_TRUE(again.rows(Dispenser) == first);
    EXPECT_TRUE(again.rows(Dispenser, 12) == second);
    EXPECT_TRUE(again.rows(Dispenser, 1).empty());
    EXPECT_TRUE(again.rows(Mixer, 0) == second);
    EXPECT_TRUE(again.rows(Mixer).empty());
}

TEST_F(FirmwareStateTest, rowsReplaceThoseOfBefore)
{
    FirmwareState state(m_path);
    state.keep(Dispenser, {{7, {1, 30}, {}}, {8, {1}, {}}});
    state.keep(Dispenser, {{7, {2}, {}}});
    EXPECT_TRUE(state.rows(Dispenser) == (Rows{{7, {2}, {}}}));
    EXPECT_TRUE(FirmwareState(m_path).rows(Dispenser) == (Rows{{7, {2}, {}}}));
}

TEST_F(FirmwareStateTest, whatCannotBeWrittenIsNotKept)
{
    FirmwareState state(m_folder.filePath(QStringLiteral("nowhere/state.json")));
    EXPECT_THROW(state.keep(Dispenser, {{7, {1}, {}}}), std::runtime_error);
    EXPECT_TRUE(state.rows(Dispenser).empty());
}

TEST_F(FirmwareStateTest, filesThatAreRefused)
{
    EXPECT_NE(refusal("{"), "");
    EXPECT_EQ(refusal("[]"), "it must hold an object");
    for (const char *name : {"scale", "mixer:", "mixer:x", "mixer:02", "mixer:-1", "mixer:2:3", "Mixer"})
        EXPECT_EQ(
            refusal(QByteArray("{\"") + name + "\": []}"),
            "its members must be \"dispenser\" and \"mixer\", or one of them with an ID, as \"mixer:2\"")
            << name;
    EXPECT_EQ(refusal(R"({"mixer:2": 1})"), "mixer:2 must be an array of rows");
    EXPECT_EQ(refusal(R"({"mixer": 1})"), "mixer must be an array of rows");
    EXPECT_EQ(refusal(R"({"mixer": [1]})"), R"(mixer[0] must be an object with "code" and "row")");
    EXPECT_EQ(refusal(R"({"mixer": [{"code": 1}]})"), R"(mixer[0] must be an object with "code" and "row")");
    EXPECT_EQ(refusal(R"({"mixer": [{"code": 1, "row": []}]})"), "mixer[0].row must be an array of numbers");
    EXPECT_EQ(refusal(R"({"mixer": [{"code": 1, "row": [-1]}]})"),
              "mixer[0].row must be a whole number from 0 to 2147483647");
    EXPECT_EQ(refusal(R"({"mixer": [{"code": 1, "row": [2147483648]}]})"),
              "mixer[0].row must be a whole number from 0 to 2147483647");
    EXPECT_EQ(refusal(R"({"mixer": [{"code": 1.0, "row": [1]}]})"),
              "mixer[0].code must be a whole number from 0 to 2147483647");
    EXPECT_EQ(refusal(R"({"mixer": [{"code": 1, "row": [1], "id": 1}]})"), "mixer[0].id: unknown member");
    EXPECT_EQ(refusal(R"({"mixer": [{"code": 1, "row": [1], "name": "a"}]})"),
              "mixer[0].name: only structure 2 has one");
    EXPECT_EQ(refusal("{\"mixer\": [{\"code\": 2, \"row\": [1], \"name\": \"\xE8\x89\xB2\"}]}"),
              "mixer[0].name must be a text of at most 255 characters in Latin-1");
    EXPECT_EQ(refusal(R"({"dispenser": [{"code": 7, "row": [1]}, {"code": 7, "row": [2]}]})"),
              "dispenser[1]: the same row for the second time");
    EXPECT_EQ(refusal(R"({"dispenser": [{"code": 10, "row": [1, 1]}, {"code": 10, "row": [1, 2]}]})"), "");
    EXPECT_EQ(refusal(QByteArray(1024 * 1024 + 1, ' ')), "it is greater than 1 MiB");
    EXPECT_EQ(refusal("{}"), "");
}

} // namespace
