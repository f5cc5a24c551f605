// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configfile.h"

#include "excerpt.h"
#include "jsonvalue.h"

#include "configuration/confdata.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTextCodec>

#include <algorithm>
#include <limits>
#include <set>
#include <utility>

namespace quv {

namespace {

constexpr int version = 1;
constexpr int greatestCode = 26; // of a structure with a name

const QString &fileHeader()
{
    static const QString header = QStringLiteral("quvctl configuration ");
    return header;
}

bool isNumber(const QString &text)
{
    bool ok = false;
    const bool digits = std::all_of(text.begin(), text.end(),
                                    [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    text.toInt(&ok);
    return ok && digits;
}

bool isName(int code, int position)
{
    return code == nameStructure && position == 1;
}

// The kinds of machines that have a configuration.
const QString dispenserKind = QStringLiteral("dispenser");
const QString mixerKind = QStringLiteral("mixer");

/// The structure of a name as it stands in a file; 0 for none.
int codeOfName(const QString &name)
{
    if (isNumber(name) && name.toInt() > greatestCode)
        return name.toInt();
    for (int code = 1; code <= greatestCode; ++code)
        if (ConfData::confCommandToString(code) == name)
            return code;
    return 0;
}

/// The field that tells which circuit or reference a row is of; 0 for a structure that exists once.
int identityPosition(int code)
{
    switch (code) {
    case 5: // "@CPT"
        return 3;
    case 6: // "@AGI"
        return 2;
    case 10: // "@RAM", "@MOT", "@PRO"
    case 19:
    case 22:
        return 1;
    default:
        return 0;
    }
}

/// Puts rows together line by line.
class Reader
{
public:
    explicit Reader(const QString &text) : m_lines(text.split(QLatin1Char('\n'))) {}

    ConfigFile read()
    {
        for (m_line = 1; m_line <= m_lines.size(); ++m_line) {
            const QString line = m_lines[m_line - 1].trimmed();
            if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
                readLine(line);
        }
        if (!m_hasHeader)
            refuse(QStringLiteral("the line \"%1%2\" is missing").arg(fileHeader()).arg(version));
        endRow();
        return {m_machine, std::move(m_rows)};
    }

private:
    [[noreturn]] void refuse(const QString &text) const
    {
        throw ConfigFileError(std::min(m_line, m_lines.size()), text);
    }

    void readLine(const QString &line)
    {
        if (!m_hasHeader)
            readHeader(line);
        else if (line.startsWith(QLatin1Char('[')))
            beginRow(line);
        else
            readField(line);
    }

    void readHeader(const QString &line)
    {
        if (!line.startsWith(fileHeader()))
            refuse(QStringLiteral("a configuration begins with the line \"%1%2\"")
                       .arg(fileHeader())
                       .arg(version));
        if (line.mid(fileHeader().size()).trimmed() != QString::number(version))
            refuse(QStringLiteral("this is a configuration of another version than %1").arg(version));
        m_hasHeader = true;
    }

    void beginRow(const QString &line)
    {
        endRow();
        static const QRegularExpression heading(QStringLiteral(R"(^\[(@?\w+)(?: +(\d+))?\]$)"));
        const QRegularExpressionMatch match = heading.match(line);
        ConfigRow row;
        row.code = codeOfName(match.captured(1));
        if (row.code == 0)
            refuse(QStringLiteral("%1 is no structure").arg(excerpt(line)));
        const QString id = match.captured(2);
        if (id.isEmpty() && ConfData::isMultipleInstance(row.code))
            refuse(QStringLiteral("%1 needs a number, as in [%2 1]").arg(line, match.captured(1)));
        if (!id.isEmpty() && !ConfData::isMultipleInstance(row.code))
            refuse(QStringLiteral("%1 has no number: there is one [%2] only").arg(line, match.captured(1)));
        if (!id.isEmpty() && (!isNumber(id) || id.toInt() < 1))
            refuse(QStringLiteral("%1 is no number from 1 on").arg(excerpt(id)));
        row.id = id.isEmpty() ? 1 : id.toInt();
        if (!m_known.insert({row.code, row.id}).second)
            refuse(QStringLiteral("%1 stands here for the second time").arg(headingOf(row)));
        m_rows.push_back(row);
    }

    void endRow() const
    {
        if (!m_rows.empty() && m_rows.back().fields.isEmpty())
            refuse(QStringLiteral("%1 has no field").arg(headingOf(m_rows.back())));
    }

    /// "machine = dispenser", above all rows.
    bool readMachine(const QString &line)
    {
        static const QRegularExpression form(QStringLiteral(R"(^machine\s*=\s*(.*)$)"));
        const QRegularExpressionMatch match = form.match(line);
        if (!match.hasMatch())
            return false;
        if (!m_machine.isEmpty())
            refuse(QStringLiteral("the machine stands here for the second time"));
        m_machine = match.captured(1);
        if (m_machine != dispenserKind && m_machine != mixerKind)
            refuse(QStringLiteral("the machine is a %1 or a %2, not \"%3\"")
                       .arg(dispenserKind, mixerKind, m_machine));
        return true;
    }

    void readField(const QString &line)
    {
        if (m_rows.empty() && readMachine(line))
            return;
        if (m_rows.empty())
            refuse(QStringLiteral("a field stands below the heading of its structure, such as [@HUM]"));
        static const QRegularExpression machine(QStringLiteral(R"(^machine\s*=)"));
        if (machine.match(line).hasMatch())
            refuse(QStringLiteral("the machine stands above all rows"));
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals < 0)
            refuse(QStringLiteral("this is no line \"label = value\""));
        ConfigRow &row = m_rows.back();
        checkLabel(row, line.left(equals).trimmed());
        const QString text = value(row, line.mid(equals + 1).trimmed());
        const int identity = identityPosition(row.code);
        if (identity > 0 && row.fields.size() == identity && text.toInt() != row.id)
            refuse(QStringLiteral("%1 has the %2 %3: a row is that of its heading")
                       .arg(headingOf(row), fieldLabel(row.code, row.fields.size()), text));
        row.fields.append(text);
    }

    void checkLabel(const ConfigRow &row, const QString &label) const
    {
        const int position = row.fields.size();
        const QString expected = fieldLabel(row.code, position);
        // who wrote the file may not have known the field
        const QString unknown = QStringLiteral("NEW_DATA %1").arg(position);
        if (label != expected && (label != unknown || position == 0))
            refuse(QStringLiteral("%1 has \"%2\" here, not \"%3\"")
                       .arg(headingOf(row), expected, excerpt(label)));
    }

    QString value(const ConfigRow &row, const QString &text) const
    {
        if (isName(row.code, row.fields.size()))
            return name(text);
        if (!isNumber(text))
            refuse(QStringLiteral("\"%1\" is no whole number from 0 to %2")
                       .arg(excerpt(text))
                       .arg(std::numeric_limits<int>::max()));
        return QString::number(text.toInt());
    }

    QString name(const QString &text) const
    {
        try {
            const nlohmann::json json = parseJson(text.toStdString());
            if (json.is_string())
                return QString::fromStdString(json.get_ref<const std::string &>());
        } catch (const JsonError &) {
            // told below
        }
        refuse(QStringLiteral("%1 is no name in quotation marks").arg(excerpt(text)));
    }

    const QStringList m_lines;
    int m_line = 0;
    bool m_hasHeader = false;
    QString m_machine{};
    std::vector<ConfigRow> m_rows{};
    std::set<std::pair<int, int>> m_known{}; ///< codes and IDs of the rows
};

QString decoded(const QByteArray &text)
{
    QTextCodec::ConverterState state;
    QString decoded = QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        throw ConfigFileError(1, QStringLiteral("this is no UTF-8"));
    return decoded;
}

} // namespace

QString structureName(int code)
{
    const QString name = ConfData::confCommandToString(code);
    return name.isEmpty() ? QString::number(code) : name;
}

QString headingOf(const ConfigRow &row)
{
    const QString name = structureName(row.code);
    return ConfData::isMultipleInstance(row.code) ? QStringLiteral("[%1 %2]").arg(name).arg(row.id)
                                                  : QStringLiteral("[%1]").arg(name);
}

QString fieldLabel(int code, int position)
{
    if (position == 0)
        return QStringLiteral("cmd_enabled");
    const QStringList labels = ConfData::fieldLabels(code);
    return labels.value(position - 1, QStringLiteral("NEW_DATA %1").arg(position));
}

QString fieldText(int code, int position, const QString &value)
{
    return isName(code, position) ? QString::fromStdString(writeJson(toJson(value))) : value;
}

QString whyUnwritable(const ConfigRow &row)
{
    if (!ConfData::checkCommandEnable(row.fields.value(0).toInt()))
        return QStringLiteral("%1: cmd_enabled is 0, 1 or 2").arg(headingOf(row));
    const int identity = identityPosition(row.code);
    if (identity > 0 && row.isPresent() && row.fields.value(identity).toInt() != row.id)
        return QStringLiteral("%1: the file does not tell the %2")
            .arg(headingOf(row), fieldLabel(row.code, identity));
    if (row.code != nameStructure)
        return QString();
    const QString name = row.fields.value(1);
    const bool good = !name.isEmpty() && std::all_of(name.begin(), name.end(), [](QChar c) {
        return c >= QLatin1Char(' ') && c <= QLatin1Char('~') && c != QLatin1Char(',');
    });
    return good ? QString()
                : QStringLiteral("%1: a name has one character at least, printable ASCII without commas")
                      .arg(headingOf(row));
}

QString machineKind(const QList<int> &structures)
{
    if (structures.isEmpty())
        return QString();
    const bool fitMixer = std::all_of(structures.begin(), structures.end(), [](int code) {
        return ConfData::isCommandCodeSupported(code, SerialDeviceType::Mixer);
    });
    return fitMixer ? mixerKind : dispenserKind;
}

QStringList fieldsOfText(int code, const QString &text)
{
    const int comma = text.indexOf(QLatin1Char(','));
    const bool hasName = code == nameStructure && comma >= 0;
    if (!hasName && text.count(QLatin1Char(',')) >= MaxRowFields)
        throw std::runtime_error("the row of " + structureName(code).toStdString() + " has more than " +
                                 std::to_string(MaxRowFields) + " fields");
    const QStringList fields =
        hasName ? QStringList{text.left(comma), text.mid(comma + 1)} : text.split(QLatin1Char(','));
    for (int position = 0; position < fields.size(); ++position)
        if (!isName(code, position) && !isNumber(fields[position]))
            throw std::runtime_error("the row of " + structureName(code).toStdString() +
                                     " is none: " + excerpt(text).toStdString());
    return fields;
}

QString textOf(const ConfigRow &row)
{
    return row.fields.join(QLatin1Char(','));
}

ConfigFileError::ConfigFileError(int line, const QString &text)
    : std::runtime_error(text.toStdString()),
      m_line(line)
{}

ConfigFile readConfigFile(const QByteArray &text)
{
    return Reader(decoded(text)).read();
}

QByteArray configFileOf(const ConfigFile &file, const QString &firmware)
{
    QString text = QStringLiteral("%1%2\n# %3\n").arg(fileHeader(), QString::number(version), firmware);
    if (!file.machine.isEmpty())
        text += QStringLiteral("machine = %1\n").arg(file.machine);
    for (const ConfigRow &row : file.rows) {
        text += QStringLiteral("\n%1\n").arg(headingOf(row));
        for (int position = 0; position < row.fields.size(); ++position)
            text += fieldLabel(row.code, position) + QStringLiteral(" = ") +
                    fieldText(row.code, position, row.fields[position]) + QLatin1Char('\n');
    }
    return text.toUtf8();
}

} // namespace quv
