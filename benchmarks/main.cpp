#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"
#include "core/MsgBox.h"
#include "frame/platform/Application.h"
#include "tests/support/OffscreenMessages.h"
#include "tests/support/TestSettings.h"

#include <QTemporaryDir>

#include <string>
#include <vector>

namespace
{
/// What an answer to a box costs is nobody's business here; a box that tells of a failure ends the run.
MsgAnswer AnswerBox(const Message &message)
{
    if (message.text == "Record/s updated successfully.")
        return MsgAnswer::Ok;
    if (message.buttons == MsgButtons::YesNoCancel)
        return MsgAnswer::No;
    BenchFailure(message.text);
}
} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(place, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    DropOffscreenMessages();
    const Application application(argc, argv);
    const TestSettings settings(home.filePath(QStringLiteral("settings.ini")).toStdString());
    const ScopedPort boxes(MsgBoxPort(), AnswerBox);

    // Repetitions of both sides are mixed, so that a slow moment of the machine meets both alike.
    std::vector<std::string> arguments {argv[0], "--benchmark_repetitions=7", "--benchmark_min_time=0.1",
                                        "--benchmark_enable_random_interleaving=true",
                                        "--benchmark_report_aggregates_only=true"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char *> pointers;
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 1;
    RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    table.Print();
    return 0;
}
