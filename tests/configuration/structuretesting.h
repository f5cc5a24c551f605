// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "configurationtesting.h"

#include <QuvFramework/fw_mixer.h>

#include <memory>
#include <numeric>
#include <string>
#include <vector>

// What the tests of the structures share: a structure's table as it stands in its test, and what every table promises.

namespace testing_configuration {

enum Kind { Mandatory, Optional };

struct Field
{
    const char *label = "";
    const char *code = "";
    Kind kind = Mandatory;
    const char *textLabel = nullptr; ///< in the refusal of a text; null: the same
    int gate = 0;                    ///< the position that decides for an optional field; 0 for its own
};

struct Structure
{
    int code = 0;
    const char *name = "";
    const char *nullMachine = "";
    const char *nullMachineText = "";
    const char *noDispenser = "";
    const char *newData = "";
    const char *textData = "";
    std::vector<Field> fields;

    std::string constructor(const char *parameters) const
    {
        return std::string(name) + "::" + name + '(' + parameters + ')';
    }
    int size() const { return static_cast<int>(fields.size()); }
};

/** Integers as the firmware answers them. */
inline QStringList answered(const QList<int> &integers)
{
    QStringList tokens;
    for (const int integer : integers)
        tokens.append(QStringLiteral("%1").arg(integer, 2, 16, QLatin1Char('0')).toUpper());
    return tokens;
}

/** So many fields of one digit behind an enabled `cmd_enabled`: 11, 12, 13 … */
inline QList<int> numbered(int fields)
{
    QList<int> values;
    for (int i = 0; i < fields; ++i)
        values.append(11 + i);
    return values;
}

inline QStringList numberedTokens(int fields)
{
    QList<int> row{1, 1};
    for (const int value : numbered(fields))
        row << 1 << value;
    return answered(row);
}

inline QString numberedText(int fields)
{
    QString row = QStringLiteral("1");
    for (const int value : numbered(fields))
        row += QLatin1Char(',') + QString::number(value);
    return row;
}

inline std::string notFound(const char *label)
{
    return std::string(label) + " field not found in answer";
}

/** Fields that are read of a row whose firmware counts \a fieldCount of them, `cmd_enabled` included. */
inline int fieldsRead(const Structure &structure, int fieldCount)
{
    for (int i = 0; i < structure.size(); ++i) {
        const Field &field = structure.fields[static_cast<std::size_t>(i)];
        if (field.kind == Optional && fieldCount <= (field.gate ? field.gate : i + 1))
            return i;
    }
    return std::max(structure.size(), fieldCount - 1);
}

template <class Row>
void expectFieldsOfTokens(const Structure &structure)
{
    const int size = structure.size();
    const std::string function = structure.constructor("QStringList, int");
    for (int i = 0; i < size; ++i) {
        SCOPED_TRACE(i);
        const Field &field = structure.fields[static_cast<std::size_t>(i)];
        expectRefusal(field.code, notFound(field.label).c_str(), function.c_str(),
                      [&] { Row(numberedTokens(i), size + 1); });
        // a field of no digits is none, and one of more digits than there are neither
        expectRefusal(field.code, notFound(field.label).c_str(), function.c_str(),
                      [&] { Row(numberedTokens(i) + tokens("00 00 01 05 01 05"), size + 1); });
        expectRefusal(field.code, notFound(field.label).c_str(), function.c_str(),
                      [&] { Row(numberedTokens(i) + tokens("02 05"), size + 1); });
    }
    for (int fieldCount = 0; fieldCount <= size + 4; ++fieldCount) {
        SCOPED_TRACE(fieldCount);
        EXPECT_EQ(Row(numberedTokens(size + 5), fieldCount).parameters(),
                  numbered(fieldsRead(structure, fieldCount)));
    }
}

template <class Row>
void expectUnknownFields(const Structure &structure)
{
    const int size = structure.size();
    const QStringList received = numberedTokens(size) + tokens("02 0A 01 01 00");
    const Row row(received, size + 3);
    EXPECT_EQ(row.parameters(), numbered(size) + (QList<int>{256, 0}));
    EXPECT_EQ(row.numOfConfigurationParams(), size + 2);
    EXPECT_EQ(answered(sent(row)), received);
    expectRefusal(structure.newData, "NEW_DATA field not found in answer",
                  structure.constructor("QStringList, int").c_str(), [&] { Row(received, size + 4); });
    EXPECT_EQ(Row(numberedText(size + 2)).parameters(), numbered(size + 2));
}

template <class Row>
void expectFieldsOfText(const Structure &structure)
{
    const std::string function = structure.constructor("QString");
    for (int i = 0; i < structure.size(); ++i) {
        const Field &field = structure.fields[static_cast<std::size_t>(i)];
        SCOPED_TRACE(field.label);
        if (field.kind == Optional)
            EXPECT_EQ(Row(numberedText(i)).configurationParamsStr(), numberedText(i));
        else
            expectRefusal(structure.textData,
                          notFound(field.textLabel ? field.textLabel : field.label).c_str(), function.c_str(),
                          [&] { Row(numberedText(i)); });
    }
}

template <class Row>
void expectBaseRefusals()
{
    const char *ofTokens = "ConfData::ConfData(int, QStringList)";
    const char *ofText = "ConfData::ConfData(int, QString)";
    expectRefusal("DE00085", "Command enabled field not found in answer", ofTokens,
                  [] { Row(tokens("01"), 9); });
    expectRefusal("DE00086", "Invalid Command enabled field in answer", ofTokens,
                  [] { Row(tokens("00 01"), 9); });
    expectRefusal("DE00151", "Invalid Command enabled type field in answer", ofText, [] { Row{QString()}; });
    expectRefusal("DE00152", "Invalid configuration parameter field in answer", ofText,
                  [] { Row(QStringLiteral("1,2,x")); });
}

/** All that tokens and text promise by the table. */
template <class Row>
void expectTable(const Structure &structure)
{
    expectFieldsOfTokens<Row>(structure);
    expectUnknownFields<Row>(structure);
    expectFieldsOfText<Row>(structure);
    expectBaseRefusals<Row>();
    const Row row(numberedText(structure.size()));
    EXPECT_EQ(row.commandCode(), structure.code);
    EXPECT_EQ(row.commandEnable(), 1);
    EXPECT_EQ(Row().commandCode(), structure.code);
    EXPECT_EQ(Row().commandEnable(), -1);
    EXPECT_EQ(Row().parameters(), QList<int>());
    const std::unique_ptr<ConfData> copy(row.clone());
    EXPECT_NE(dynamic_cast<const Row *>(copy.get()), nullptr);
    EXPECT_EQ(copy->configurationParamsStr(), row.configurationParamsStr());
}

/** \a make makes the row of a machine; \a parameters are those of its constructor. */
template <class Make>
void expectDispenserWanted(const Structure &structure, const char *parameters, Make make)
{
    const std::string function = structure.constructor(parameters);
    const FW_Mixer mixer;
    expectRefusal(structure.nullMachine, structure.nullMachineText, function.c_str(), [&] { make(nullptr); });
    expectRefusal(structure.noDispenser, "Invalid data", function.c_str(), [&] { make(&mixer); });
}

inline bool applied(const ConfData &row, FW_Machine &machine)
{
    return row.updateConfiguration(&machine, nullptr, nullptr);
}

template <class Row>
void expectDispenserWantedToApply(const Structure &structure)
{
    const Row row(numberedText(structure.size()));
    FW_Mixer mixer;
    EXPECT_FALSE(row.updateConfiguration(nullptr, nullptr, nullptr));
    EXPECT_FALSE(applied(row, mixer));
    const Row absent(QStringLiteral("0") + numberedText(structure.size()).mid(1));
    EXPECT_TRUE(absent.updateConfiguration(nullptr, nullptr, nullptr));
    EXPECT_TRUE(applied(absent, mixer));
}

/** The same row, through the firmware and back. */
template <class Row>
Row sentAndReceived(const Row &row)
{
    return Row(answered(sent(row)), row.numOfConfigurationParams() + 1);
}

// Device structures.

template <class Row, class Device>
QString textOfDevice(Device device, bool enabled)
{
    FW_Dispenser machine;
    device.setEnabled(enabled);
    machine.setDevice(device);
    return Row(&machine).configurationParamsStr();
}

/**
 * Expects that a machine with \a device gives the row \a fields and one without it \a defaults, and that the row gives the
 * device to a machine.
 */
template <class Row, class Device>
void expectDeviceCarried(const Device &device, const char *fields, const char *defaults)
{
    const QString enabledRow = QStringLiteral("1,") + QLatin1String(fields);
    const QString disabledRow = QStringLiteral("2,") + QLatin1String(fields);
    const QString absentRow = QStringLiteral("0,") + QLatin1String(defaults);
    EXPECT_EQ((textOfDevice<Row>(device, true)), enabledRow);
    EXPECT_EQ((textOfDevice<Row>(device, false)), disabledRow);
    const FW_Dispenser without;
    EXPECT_EQ(Row(&without).configurationParamsStr(), absentRow);

    FW_Dispenser target;
    EXPECT_TRUE(applied(Row(absentRow), target));
    EXPECT_TRUE(target == without);

    Device enabled = device;
    enabled.setEnabled(true);
    EXPECT_TRUE(applied(sentAndReceived(Row(enabledRow)), target));
    ASSERT_TRUE(target.hasDevice(device.kind()));
    EXPECT_TRUE(*target.getDevice(device.kind()) == enabled);
    EXPECT_EQ(Row(&target).configurationParamsStr(), enabledRow);

    Device disabled = device;
    disabled.setEnabled(false);
    EXPECT_TRUE(applied(Row(disabledRow), target));
    EXPECT_TRUE(*target.getDevice(device.kind()) == disabled);

    const FW_Dispenser before = target;
    EXPECT_TRUE(applied(Row(absentRow), target));
    EXPECT_TRUE(target == before);
}

} // namespace testing_configuration
