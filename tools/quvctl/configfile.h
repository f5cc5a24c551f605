// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <stdexcept>
#include <vector>

// A machine's configuration as text, see docs/config.md.

namespace quv {

/// One configuration row.
struct ConfigRow
{
    int code = 0; ///< of the structure
    int id = 1;   ///< the circuit or reference; 1 for a structure that exists once
    /// `cmd_enabled`, then the parameters: whole numbers from 0 on, but for the name that "@NOM" holds.
    QStringList fields{};

    bool isPresent() const { return fields.value(0) != QLatin1String("0"); }
};

/// The number of the structure that holds a text, the machine's name.
inline constexpr int nameStructure = 2;

/// "@HUM", or the number of a structure without a name.
QString structureName(int code);
/// What stands in a file above the row: "[@HUM]", "[@CPT 3]".
QString headingOf(const ConfigRow &row);
/// "cmd_enabled" for the position 0, "NEW_DATA 18" for one that the structure's table does not know.
QString fieldLabel(int code, int position);
/// The value as it stands in a file: a number, or a quoted name.
QString fieldText(int code, int position, const QString &value);
/// What keeps the firmware from taking the row; empty for nothing.
QString whyUnwritable(const ConfigRow &row);

/// "dispenser" or "mixer": the kind of machine that has these structures; empty when there are none to tell it by.
QString machineKind(const QList<int> &structures);

/// The most fields of a row; the structures of today have 53 and fewer.
inline constexpr int MaxRowFields = 1000;

/// The fields of a row in its text form. \throws std::runtime_error when they are no whole numbers from 0 on, or too many
QStringList fieldsOfText(int code, const QString &text);
QString textOf(const ConfigRow &row);

/// A file that is none; the text tells the line.
class ConfigFileError : public std::runtime_error
{
public:
    ConfigFileError(int line, const QString &text);
    int line() const { return m_line; }

private:
    int m_line = 0;
};

/// Greatest size of a file, bytes.
inline constexpr int MaxConfigFileSize = 1024 * 1024;

/// What a file tells.
struct ConfigFile
{
    QString
        machine{}; ///< the kind of machine that it is of, "dispenser" or "mixer"; empty when it does not tell
    std::vector<ConfigRow> rows{};
};

/// The rows in the file's order. \throws ConfigFileError
ConfigFile readConfigFile(const QByteArray &text);

/// \a firmware tells in a comment where the rows come from.
QByteArray configFileOf(const ConfigFile &file, const QString &firmware);

} // namespace quv
