// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/scenario.h"
#include "firmware/simulatedfirmware.h"
#include "procedures/machineconfiguration.h"
#include "requests/driver.h"

#include "callthreads.h"
#include "httpaccess.h"
#include "language.h"
#include "machines.h"
#include "terminal.h"
#include "trace.h"
#include "xmlrpcserver.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include <unistd.h>

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int WrongUsage = 2;
constexpr double MinSpeed = 0.01;
constexpr double MaxSpeed = 10000;

struct Usage : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

struct Options
{
    quv::XmlRpcServerOptions server{};
    QStringList machines{};
    double speed = 1;
    QString state{};
    QString scenario{};
    quv::FirmwareAge age = quv::FirmwareAge::Equal;
    bool once = false;
    std::optional<quv::Trace::Form> trace{};
};

/// The parser's own has a second option beside it, of which nothing here knows.
const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                    QStringLiteral("This help."));
/// -V as in quvctl, where -v is another option.
const QCommandLineOption versionOption({QStringLiteral("v"), QStringLiteral("V"), QStringLiteral("version")},
                                       QStringLiteral("The version."));
const QCommandLineOption hostOption(QStringLiteral("host"),
                                    QStringLiteral("Address to listen on (default 127.0.0.1)."),
                                    QStringLiteral("ADDRESS"), QStringLiteral("127.0.0.1"));
const QCommandLineOption portOption(QStringLiteral("port"),
                                    QStringLiteral("Port to listen on, 0 for any free one (default 9333)."),
                                    QStringLiteral("PORT"), QStringLiteral("9333"));
const QCommandLineOption machineOption(
    QStringLiteral("machine"),
    QStringLiteral("A simulated machine: dispenser, turntable, dual, station, mixer, one of these "
                   "with an ID as in dispenser:2, none, or a file; may be repeated (default "
                   "dispenser and mixer)."),
    QStringLiteral("NAME|FILE"));
const QCommandLineOption speedOption(QStringLiteral("speed"),
                                     QStringLiteral("How many times faster than real the machines work "
                                                    "(0.01 to 10000, default 1)."),
                                     QStringLiteral("FACTOR"), QStringLiteral("1"));
const QCommandLineOption
    stateOption(QStringLiteral("state"),
                QStringLiteral("The file in which the machines keep the configuration that was finalised."),
                QStringLiteral("FILE"));
const QCommandLineOption
    scenarioOption(QStringLiteral("scenario"),
                   QStringLiteral("The file that tells what goes wrong with the machines, and when."),
                   QStringLiteral("FILE"));
const QCommandLineOption firmwareOption(
    QStringLiteral("firmware"),
    QStringLiteral("What the firmware knows of configurations: older, equal (default) or newer "
                   "than this program."),
    QStringLiteral("AGE"), QStringLiteral("equal"));
const QCommandLineOption tokenOption(
    QStringLiteral("token-file"),
    QStringLiteral("The file with the token that each client must send (HTTP bearer, or basic with any "
                   "user name)."),
    QStringLiteral("FILE"));
const QCommandLineOption openOption(QStringLiteral("open"),
                                    QStringLiteral("Needs no token on an address that other computers reach: "
                                                   "anybody who reaches the port commands the machines."));
const QCommandLineOption traceOption(
    QStringLiteral("trace"),
    QStringLiteral("Tell each call and each exchange with a firmware on standard error: alone for "
                   "people, or as --trace=json in JSON lines."),
    QStringLiteral("[=json]"));
const QCommandLineOption onceOption(QStringLiteral("once"), QStringLiteral("Answer one call, then end."));

const QList<QCommandLineOption> knownOptions{
    helpOption,  versionOption,  hostOption,  portOption, machineOption, speedOption, scenarioOption,
    stateOption, firmwareOption, tokenOption, openOption, traceOption,   onceOption};

/// The option as it is typed.
QString headOf(const QCommandLineOption &option)
{
    QStringList names;
    for (const QString &name : option.names())
        names.append((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
    const QString value = option.valueName();
    const bool needsBlank = !value.isEmpty() && !value.startsWith(QLatin1Char('['));
    return names.join(QStringLiteral(", ")) + (needsBlank ? QStringLiteral(" ") : QString()) + value;
}

void printHelp()
{
    using quv::printLine;
    const int columns = quv::columnsOfText();
    printLine(QStringLiteral("Usage: quvdriver [options]"));
    printLine(QString());
    quv::printParagraph(
        QStringLiteral("Owns simulated machines and carries out their commands, called by XML-RPC."),
        quv::Colour::Plain, columns);
    printLine(QString());
    printLine(QStringLiteral("Options:"));
    quv::Columns table;
    for (const QCommandLineOption &option : knownOptions)
        table.add({headOf(option), option.description()});
    table.printBroken(2, columns);
}

/// Tells why standard output did not take what was written, if so.
void tellOutputFailure()
{
    if (const QString failure = quv::outputFailure(); !failure.isEmpty())
        std::fprintf(stderr, "quvdriver: %s\n", qPrintable(failure));
}

/// The exit status of a run that only prints.
int statusOfOutput()
{
    tellOutputFailure();
    return quv::outputFailure().isEmpty() ? Done : Failed;
}

/// The parser knows no option whose value may be left out.
QStringList withTraceValue(QStringList words)
{
    words.replaceInStrings(QRegularExpression(QStringLiteral("^--trace$")), QStringLiteral("--trace="));
    return words;
}

std::optional<quv::Trace::Form> traceForm(const QCommandLineParser &parser)
{
    const QString form = parser.value(traceOption);
    if (!form.isEmpty() && form != QLatin1String("json"))
        throw Usage("--trace stands alone, or as --trace=json");
    if (!parser.isSet(traceOption))
        return std::nullopt;
    return form.isEmpty() ? quv::Trace::Form::People : quv::Trace::Form::Json;
}

Options readOptions(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty())
        throw Usage("unexpected argument \"" + parser.positionalArguments().constFirst().toStdString() +
                    "\"");
    Options options;
    bool isNumber = false;
    options.server.host = parser.value(hostOption);
    if (options.server.host.isEmpty())
        throw Usage("--host must be an address");
    options.server.isOpen = parser.isSet(openOption);
    if (parser.isSet(tokenOption)) {
        if (options.server.isOpen)
            throw Usage("--token-file and --open exclude each other");
        options.server.token = quv::readToken(parser.value(tokenOption));
    }
    const uint port = parser.value(portOption).toUInt(&isNumber);
    if (!isNumber || port > 65535)
        throw Usage("--port must be a number from 0 to 65535");
    options.server.port = static_cast<int>(port);
    options.speed = parser.value(speedOption).toDouble(&isNumber);
    if (!isNumber || !(options.speed >= MinSpeed && options.speed <= MaxSpeed))
        throw Usage("--speed must be a number from 0.01 to 10000");
    const auto age = quv::firmwareAgeOf(parser.value(firmwareOption));
    if (!age)
        throw Usage("--firmware must be older, equal or newer");
    options.age = *age;
    options.state = parser.value(stateOption);
    if (parser.isSet(stateOption) && options.state.isEmpty())
        throw Usage("--state must be a file");
    options.scenario = parser.value(scenarioOption);
    if (parser.isSet(scenarioOption) && options.scenario.isEmpty())
        throw Usage("--scenario must be a file");
    options.machines = parser.values(machineOption);
    if (options.machines.isEmpty())
        options.machines = QStringList{QStringLiteral("dispenser"), QStringLiteral("mixer")};
    options.once = parser.isSet(onceOption);
    options.trace = traceForm(parser);
    return options;
}

/// The driver knows its machine as it was left, not as it was built.
void followConfiguration(FW_Machine &machine, quv::SimulatedFirmware &firmware)
{
    QStringList problems;
    const auto ask = [&firmware](const QString &code, const QList<int> &parameters) {
        return firmware.execute(code, 0, parameters);
    };
    const quv::ToldRows rows = quv::readRows(firmware.changedRows(), ask, problems);
    quv::applyRows(machine, rows, problems);
    for (const QString &problem : problems)
        std::fprintf(stderr, "quvdriver: the machine does not follow its configuration: %s\n",
                     qPrintable(problem));
}

/// A machine that was asked for, and whether another ID than its own will do.
struct ChosenMachine
{
    QString name{};
    quv::DescribedMachine described{};
    bool mayChangeID = false;
};

/// A built-in machine may stand with an ID, as dispenser:2.
ChosenMachine chosenMachine(const QString &word)
{
    static const QRegularExpression withID(QStringLiteral("^(.+):([0-9]{1,9})$"));
    const QRegularExpressionMatch match = withID.match(word);
    if (match.hasMatch() && quv::isBuiltInMachine(match.captured(1))) {
        ChosenMachine chosen{word, quv::describedMachineByName(match.captured(1))};
        chosen.described.machine->setId(match.captured(2).toInt());
        return chosen;
    }
    return {word, quv::describedMachineByName(word), quv::isBuiltInMachine(word)};
}

/// Gives the machine an ID that none of its kind has, if it may have another than its own.
void giveID(ChosenMachine &chosen, const QSet<int> &taken)
{
    FW_Machine &machine = *chosen.described.machine;
    if (!taken.contains(machine.id()))
        return;
    if (!chosen.mayChangeID)
        throw Usage(QStringLiteral("there are two %1s with the ID %2")
                        .arg(quv::kindInWords(machine.machineType()))
                        .arg(machine.id())
                        .toStdString());
    int id = 1;
    while (taken.contains(id))
        ++id;
    machine.setId(id);
}

/// What the firmware tells of itself. Of one whose version nobody has written down the driver wants to know nothing.
quv::Abilities abilitiesOf(const quv::DescribedMachine &described, quv::SimulatedFirmware &firmware)
{
    if (!described.firmwareVersion.isValid())
        return {};
    return {*described.machine, [&firmware](const QString &code, const QList<int> &parameters) {
                return firmware.execute(code, 0, parameters);
            }};
}

/// The machines that were asked for, each with an ID of its own among its kind.
std::vector<ChosenMachine> machinesOf(const QStringList &words)
{
    std::vector<ChosenMachine> machines;
    std::map<SerialDeviceType, QSet<int>> taken;
    for (const QString &word : words) {
        ChosenMachine chosen = chosenMachine(word);
        if (!chosen.described.machine)
            continue;
        QSet<int> &takenIDs = taken[chosen.described.machine->machineType()];
        giveID(chosen, takenIDs);
        takenIDs.insert(chosen.described.machine->id());
        machines.push_back(std::move(chosen));
    }
    return machines;
}

/// Those of its file, and those of the scenario.
std::vector<quv::FaultSpan> faultsOf(const ChosenMachine &chosen, quv::Scenario *scenario)
{
    const FW_Machine &machine = *chosen.described.machine;
    std::vector<quv::FaultSpan> faults;
    try {
        faults = quv::standingFaults(chosen.described.faults, machine);
    } catch (const std::runtime_error &error) {
        throw std::runtime_error("Machine \"" + chosen.name.toStdString() + "\": " + error.what());
    }
    if (!scenario)
        return faults;
    const std::vector<quv::FaultSpan> timed = scenario->faultsOfNext(machine);
    faults.insert(faults.end(), timed.begin(), timed.end());
    return faults;
}

void addMachine(quv::Driver &driver, quv::DescribedMachine described, double speed,
                quv::SimulatedConfiguration configuration, const std::vector<quv::FaultSpan> &faults,
                quv::Trace *trace)
{
    configuration.version = described.firmwareVersion;
    auto simulated = std::make_unique<quv::SimulatedFirmware>(
        *described.machine, speed, quv::SimulatedFirmware::steadyClock(), std::move(configuration));
    followConfiguration(*described.machine, *simulated);
    quv::Abilities abilities = abilitiesOf(described, *simulated);
    simulated->play(faults);
    std::unique_ptr<quv::Firmware> firmware = std::move(simulated);
    if (trace)
        firmware =
            trace->watching(std::move(firmware), QStringLiteral("%1:%2")
                                                     .arg(quv::kindInWords(described.machine->machineType()))
                                                     .arg(described.machine->id()));
    driver.addMachine(std::move(described.machine), std::move(firmware), std::move(abilities));
}

void addMachines(quv::Driver &driver, const Options &options, quv::Trace *trace)
{
    quv::SimulatedConfiguration configuration;
    configuration.age = options.age;
    if (!options.state.isEmpty()) {
        configuration.state = std::make_shared<quv::FirmwareState>(options.state);
        configuration.state->claim();
    }
    std::optional<quv::Scenario> scenario;
    if (!options.scenario.isEmpty())
        scenario.emplace(options.scenario);
    std::set<SerialDeviceType> kinds;
    for (ChosenMachine &chosen : machinesOf(options.machines)) {
        const FW_Machine &machine = *chosen.described.machine;
        const bool isFirst = kinds.insert(machine.machineType()).second;
        configuration.stateID = isFirst ? std::nullopt : std::optional(machine.id());
        const std::vector<quv::FaultSpan> faults = faultsOf(chosen, scenario ? &*scenario : nullptr);
        addMachine(driver, std::move(chosen.described), options.speed, configuration, faults, trace);
    }
    if (scenario)
        scenario->checkMachines();
}

/// Keeps the signals that end the program from all threads that are started from here on, for the main thread to take.
class EndSignals
{
public:
    EndSignals()
    {
        sigemptyset(&m_signals);
        sigaddset(&m_signals, SIGINT);
        sigaddset(&m_signals, SIGTERM);
        pthread_sigmask(SIG_BLOCK, &m_signals, nullptr);
    }

    void wait() const
    {
        int signal = 0;
        sigwait(&m_signals, &signal);
    }
    /// Ends wait().
    static void send() { ::kill(::getpid(), SIGTERM); }

private:
    sigset_t m_signals{};
};

void run(const Options &options)
{
    const EndSignals signals;
    std::optional<quv::Trace> trace;
    if (options.trace)
        trace.emplace(*options.trace,
                      [](const std::string &line) { std::fwrite(line.data(), 1, line.size(), stderr); });
    const auto told = [&trace](const quv::MethodCall &call, const auto &handle) {
        return trace ? trace->call(call, handle) : handle();
    };
    quv::Driver driver;
    addMachines(driver, options, trace ? &*trace : nullptr);
    std::atomic<bool> isUsed{false};
    quv::XmlRpcServerOptions serverOptions = options.server;
    serverOptions.mayLast = quv::Driver::mayLast;
    serverOptions.refuseLongCall = [&told](const quv::MethodCall &call) {
        return told(call, [&call] { return quv::Driver::refuseLongCall(call); });
    };
    quv::XmlRpcServer server(
        [&](const quv::MethodCall &call, quv::Ending &gone) -> QByteArray {
            if (options.once) {
                if (isUsed.exchange(true))
                    throw quv::FaultException({quv::FaultInternal, QStringLiteral("The driver is ending")});
                // It still answers the call that it is in.
                server.stop();
            }
            return trace
                       ? quv::writeMethodResponse(trace->call(call, [&] { return driver.call(call, gone); }))
                       : driver.reply(call, gone);
        },
        serverOptions);
    try {
        server.listen();
    } catch (const quv::OpenToOthers &error) {
        throw Usage(error.what() +
                    std::string("; give --token-file, or --open to let anybody command the machines"));
    }

    std::signal(SIGPIPE, SIG_IGN);
    quv::printLine(QStringLiteral("listening on %1:%2").arg(options.server.host).arg(server.port()));
    tellOutputFailure(); // whoever knows the port needs no more
    std::thread serving = quv::startQuietThread([&server] {
        server.run();
        EndSignals::send(); // when it has ended by itself
    });
    signals.wait();
    // The server waits for the calls that it is in, and the driver must not keep them.
    server.stop();
    driver.stop();
    serving.join();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    // QT_LOGGING_RULES shows them all the same
    QLoggingCategory::setFilterRules(QStringLiteral("quvprotocol.*.debug=false"));
    QCoreApplication::setApplicationName(QStringLiteral("quvdriver"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUV_VERSION));
    const quv::Language language(argc, argv, quv::Language::QuvLangOrLocale);
    try {
        QCommandLineParser parser;
        parser.addOptions(knownOptions);
        if (!parser.parse(withTraceValue(QCoreApplication::arguments())))
            throw Usage(parser.errorText().toStdString());
        if (parser.isSet(helpOption)) {
            printHelp();
            return statusOfOutput();
        }
        if (parser.isSet(versionOption)) {
            quv::printLine(QStringLiteral("quvdriver " QUV_VERSION));
            return statusOfOutput();
        }
        run(readOptions(parser));
        return Done;
    } catch (const Usage &error) {
        std::fprintf(stderr, "quvdriver: %s\nTry \"quvdriver --help\".\n", error.what());
        return WrongUsage;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "quvdriver: %s\n", error.what());
        return Failed;
    }
}
