// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>
#include <stdexcept>
#include <vector>

namespace quv {

/// What the user typed cannot be understood: exit status 2.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString &text) : std::runtime_error(text.toStdString()) {}
};

enum ExitStatus { Done = 0, Refused = 1, WrongUsage = 2, Interrupted = 130 };

struct OptionText
{
    const char *name = nullptr;
    const char *value = nullptr; ///< its name in the help; null for a switch
    const char *text = nullptr;
    char letter = 0; ///< its short form; 0 for none
};

/// The machine that an operation is to know, as the batch operations take it.
constexpr OptionText machineOption = {"machine", "MACHINE",
                                      "none (default), dispenser, turntable, dual, station, mixer or a file"};

class CommandLine;

/// One subcommand of quvctl. Its options and its help come from here.
struct Subcommand
{
    const char *name;
    const char *words; ///< of the usage line, after the name
    const char *summary;
    const char *details;
    int minWords;
    int maxWords; ///< -1: any number
    std::vector<OptionText> options;
    ExitStatus (*run)(const CommandLine &line);
    std::optional<SerialDeviceType> kind{}; ///< of the machines that it is for; nothing for all, or none
};

/// The words and options that follow a subcommand's name. Negative numbers are words, not options.
class CommandLine
{
public:
    /// \throws UsageError
    CommandLine(const Subcommand &subcommand, const QStringList &words);

    const QStringList &words() const { return m_words; }
    bool isSet(const char *option) const;
    bool wantsHelp() const { return isSet("help"); }
    bool isQuiet() const { return isSet("quiet"); }
    QString value(const char *option, const QString &otherwise) const;
    /// \throws UsageError for what is no number from \a min to \a max
    int number(const char *option, int otherwise, int min, int max) const;
    double decimal(const char *option, double otherwise, double min, double max) const;
    /// \throws UsageError when the value is none of \a choices
    QString choice(const char *option, const QString &otherwise, const QStringList &choices) const;

private:
    QCommandLineParser m_parser;
    QStringList m_words;
};

/// What those have who tell more than an answer.
constexpr OptionText quietOption = {
    "quiet", nullptr, "no progress and no confirmation: answers, warnings and errors only", 'q'};
/// The time between two questions, everywhere in the unit of --timeout.
constexpr OptionText intervalOption = {"interval", "SECONDS",
                                       "the time between two questions, 0.01 to 86400 (0.5)"};

/// The address of the driver, its machine, how long it may take, and whether its calls are told.
std::vector<OptionText> withDriverOptions(std::vector<OptionText> options);

/// The time of the option --interval. \throws UsageError
std::chrono::milliseconds intervalOf(const CommandLine &line);

} // namespace quv
