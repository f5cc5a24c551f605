// SPDX-License-Identifier: LGPL-3.0-or-later
#include "argumentwords.h"

#include "commandline.h"
#include "excerpt.h"
#include "suggestions.h"

#include "catalogue/commandfacts.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <optional>
#include <vector>

namespace quv {

namespace {

/// The arguments of one command, as they are given one by one.
class ArgumentPlaces
{
public:
    explicit ArgumentPlaces(const CommandFacts &command) : m_facts(command) {}

    void take(const QString &word)
    {
        const QString name = word.left(word.indexOf(QLatin1Char('=')));
        const int place = placeOf(name);
        if (place >= 0 && name.size() < word.size())
            give(place, {argumentFromWord(word.mid(name.size() + 1)), word});
        else if (name.size() < word.size() && looksLikeName(name))
            takeUnknown(name, word);
        else if (m_byName)
            throw UsageError(QStringLiteral("\"%1\" needs a name, as it stands behind an argument with one")
                                 .arg(excerpt(word)));
        else
            m_given.emplace_back(Given{argumentFromWord(word), word});
    }

    TypedArguments result() const
    {
        TypedArguments arguments;
        for (std::size_t place = 0; place < m_given.size(); ++place) {
            const auto &given = m_given[place];
            arguments.values.push_back(given ? given->value : defaultAt(static_cast<int>(place)));
            arguments.words.append(given ? given->word : QString());
        }
        if (m_byName)
            for (int place = static_cast<int>(m_given.size()); place < m_facts.arguments.size(); ++place)
                if (!m_facts.arguments[place].optional)
                    refuseMissing(place);
        return arguments;
    }

private:
    struct Given
    {
        nlohmann::json value;
        QString word;
    };

    int placeOf(const QString &name) const { return names().indexOf(name); }

    QStringList names() const
    {
        QStringList names;
        for (const ArgumentFacts &argument : m_facts.arguments)
            names.append(argument.name);
        return names;
    }

    bool looksLikeName(const QString &name) const
    {
        static const QRegularExpression form(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
        return !m_facts.arguments.isEmpty() && form.match(name).hasMatch();
    }

    /// A text may hold the sign as well, so where one can stand an unknown name is a mistake only when it is nearly a known one.
    void takeUnknown(const QString &name, const QString &word)
    {
        const int next = static_cast<int>(m_given.size());
        const QString unknown = QStringLiteral("%1 has no argument \"%2\"").arg(m_facts.name, excerpt(name));
        if (m_byName || m_facts.arguments.value(next).type != QLatin1String("string"))
            throw UsageError(
                QStringLiteral("%1; it has: %2").arg(unknown, names().join(QStringLiteral(", "))));
        const QString meant = nameMeant(name, names());
        if (!meant.isEmpty())
            throw UsageError(
                QStringLiteral("%1; did you mean \"%2\"? As a text it is given with its name: %3=%4")
                    .arg(unknown, meant, m_facts.arguments[next].name, excerpt(word)));
        m_given.emplace_back(Given{argumentFromWord(word), word});
    }

    void give(int place, Given given)
    {
        const auto index = static_cast<std::size_t>(place);
        m_given.resize(std::max(m_given.size(), index + 1));
        if (m_given[index])
            throw UsageError(
                QStringLiteral("the argument \"%1\" is given twice").arg(m_facts.arguments[place].name));
        m_given[index] = std::move(given);
        m_byName = true;
    }

    nlohmann::json defaultAt(int place) const
    {
        if (!m_facts.arguments[place].optional)
            refuseMissing(place);
        return toJson(m_facts.arguments[place].defaultValue);
    }

    [[noreturn]] void refuseMissing(int place) const
    {
        throw UsageError(
            QStringLiteral("%1 needs the argument \"%2\"").arg(m_facts.name, m_facts.arguments[place].name));
    }

    const CommandFacts &m_facts;
    std::vector<std::optional<Given>> m_given;
    bool m_byName = false; ///< one was given by its name
};

} // namespace

nlohmann::json argumentFromWord(const QString &word)
{
    // who begins like this means JSON, and wants to hear of a mistake
    static const QRegularExpression start(
        QStringLiteral(R"(^([\[{"]|-?(0|[1-9]\d*)(\.\d+)?([eE][+-]?\d+)?$))"));
    try {
        nlohmann::json value = parseJson(word.toStdString());
        toXmlRpcValue(value); // which not all of JSON can become
        return value;
    } catch (const JsonError &error) {
        if (start.match(word).hasMatch())
            throw UsageError(
                QStringLiteral("argument %1: %2").arg(excerpt(word), QString::fromUtf8(error.what())));
        return word.toStdString();
    }
}

TypedArguments argumentsFromWords(const CommandFacts &command, const QStringList &words)
{
    ArgumentPlaces places(command);
    for (const QString &word : words)
        places.take(word);
    return places.result();
}

} // namespace quv
